#include "ZTOCRBillPaymentFee.h"

#include "ZTOCRBillFeeWriter_p.h"
#include "ZTOCRBillPaymentFeeImpl.h"

#include <QDomElement>

ZTOCRBillPaymentFee::ZTOCRBillPaymentFee() : d(new ZTOCRBillPaymentFeeImpl)
{}

ZTOCRBillPaymentFee::ZTOCRBillPaymentFee(const QDomElement& theElement) : d(new ZTOCRBillPaymentFeeImpl)
{
    if (theElement.isNull())
        return;
    d->myArticleId = ZTArticleId::fromIdAttribute(theElement);
    d->myPrice = ZTMoney::fromXmlAttribute(theElement, QStringLiteral("price"), 0);
}

ZTOCRBillPaymentFee::ZTOCRBillPaymentFee(const ZTOCRBillPaymentFee& theOther) = default;
ZTOCRBillPaymentFee::ZTOCRBillPaymentFee(ZTOCRBillPaymentFee&& theOther) noexcept = default;
ZTOCRBillPaymentFee& ZTOCRBillPaymentFee::operator=(const ZTOCRBillPaymentFee& theOther) = default;
ZTOCRBillPaymentFee& ZTOCRBillPaymentFee::operator=(ZTOCRBillPaymentFee&& theOther) noexcept = default;
ZTOCRBillPaymentFee::~ZTOCRBillPaymentFee() = default;

bool ZTOCRBillPaymentFee::operator==(const ZTOCRBillPaymentFee& theOther) const
{
    return d == theOther.d ||
           (d->myArticleId == theOther.d->myArticleId && d->myPrice == theOther.d->myPrice);
}

ZTArticleId ZTOCRBillPaymentFee::articleId() const
{
    return d->myArticleId;
}

ZTMoney ZTOCRBillPaymentFee::price() const
{
    return d->myPrice;
}

ZTXMLOrderedElement ZTOCRBillPaymentFee::orderDeclarationElement() const
{
    if (!d->myArticleId.isValid())
        return ZTXMLOrderedElement();
    ZTXMLOrderedElement element =
        ZTOCRBillFeeWriter::withArticleId(QStringLiteral("paymethod_fee"), d->myArticleId);
    return ZTOCRBillFeeWriter::addPrice(element, d->myPrice);
}

void ZTOCRBillPaymentFee::buildOrderDeclarationElement(QDomElement& theParent) const
{
    orderDeclarationElement().appendTo(theParent);
}
