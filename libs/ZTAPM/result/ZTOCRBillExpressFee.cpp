#include "ZTOCRBillExpressFee.h"

#include "ZTOCRBillExpressFeeImpl.h"
#include "ZTOCRBillFeeWriter_p.h"
#include "ZTXMLParser.h"

#include <QDomElement>

ZTOCRBillExpressFee::ZTOCRBillExpressFee() : d(new ZTOCRBillExpressFeeImpl)
{}

ZTOCRBillExpressFee::ZTOCRBillExpressFee(const QDomElement& theElement) : d(new ZTOCRBillExpressFeeImpl)
{
    if (theElement.isNull())
        return;
    d->myArticleId = ZTArticleId::fromIdAttribute(theElement);
    d->myPrice = ZTMoney::fromXmlAttribute(theElement, QStringLiteral("price"), 0);
    d->myDiscountModel = ZTDiscountModel(theElement, nullptr);
    d->myDiscountLevel = ZTXMLParser::intAttribute(theElement, QStringLiteral("discount_level"), 0);
}

ZTOCRBillExpressFee::ZTOCRBillExpressFee(const ZTOCRBillExpressFee& theOther) = default;
ZTOCRBillExpressFee::ZTOCRBillExpressFee(ZTOCRBillExpressFee&& theOther) noexcept = default;
ZTOCRBillExpressFee& ZTOCRBillExpressFee::operator=(const ZTOCRBillExpressFee& theOther) = default;
ZTOCRBillExpressFee& ZTOCRBillExpressFee::operator=(ZTOCRBillExpressFee&& theOther) noexcept = default;
ZTOCRBillExpressFee::~ZTOCRBillExpressFee() = default;

bool ZTOCRBillExpressFee::operator==(const ZTOCRBillExpressFee& theOther) const
{
    return d == theOther.d ||
           (d->myArticleId == theOther.d->myArticleId && d->myPrice == theOther.d->myPrice &&
            d->myDiscountModel == theOther.d->myDiscountModel &&
            d->myDiscountLevel == theOther.d->myDiscountLevel);
}

ZTArticleId ZTOCRBillExpressFee::articleId() const
{
    return d->myArticleId;
}

ZTMoney ZTOCRBillExpressFee::price() const
{
    return d->myPrice;
}

ZTDiscountModel ZTOCRBillExpressFee::discountModel() const
{
    return d->myDiscountModel;
}

int ZTOCRBillExpressFee::discountLevel() const
{
    return d->myDiscountLevel;
}

ZTXMLOrderedElement ZTOCRBillExpressFee::orderDeclarationElement() const
{
    if (!d->myArticleId.isValid())
        return ZTXMLOrderedElement();
    ZTXMLOrderedElement element =
        ZTOCRBillFeeWriter::withArticleId(QStringLiteral("express_fee"), d->myArticleId);
    ZTOCRBillFeeWriter::addDiscount(element, d->myDiscountModel, d->myDiscountLevel);
    return ZTOCRBillFeeWriter::addPrice(element, d->myPrice);
}

void ZTOCRBillExpressFee::buildOrderDeclarationElement(QDomElement& theParent) const
{
    orderDeclarationElement().appendTo(theParent);
}
