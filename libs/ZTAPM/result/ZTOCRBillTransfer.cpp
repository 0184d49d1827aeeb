#include "ZTOCRBillTransfer.h"

#include "ZTOCRBillFeeWriter_p.h"
#include "ZTOCRBillTransferImpl.h"
#include "ZTXMLParser.h"

#include <QDomElement>

namespace {
const ZTTransferModelEnum TRANSFER_MODEL_DEFAULT = ZTTransferModelNone;

// One code; anything else, a list of codes too, is the default model.
ZTTransferModel decodeTransferModel(const QString& theText)
{
    return ZTTransferModel(ZTTransferModel().enumToStringTable()->decode(theText, TRANSFER_MODEL_DEFAULT));
}
} // namespace

ZTOCRBillTransfer::ZTOCRBillTransfer() : d(new ZTOCRBillTransferImpl)
{}

ZTOCRBillTransfer::ZTOCRBillTransfer(const QDomElement& theElement) : d(new ZTOCRBillTransferImpl)
{
    if (theElement.isNull())
        return;
    d->myArticleId = ZTArticleId::fromIdAttribute(theElement);
    d->myTransferModel = decodeTransferModel(
        ZTXMLParser::attribute(theElement, QStringLiteral("model"), QStringLiteral("-1")));
    d->myPrice = ZTMoney::fromXmlAttribute(theElement, QStringLiteral("price"), 0);
    d->myDiscountModel = ZTDiscountModel(theElement, nullptr);
    d->myDiscountLevel = ZTXMLParser::intAttribute(theElement, QStringLiteral("discount_level"), 0);
}

ZTOCRBillTransfer::ZTOCRBillTransfer(const ZTOCRBillTransfer& theOther) = default;
ZTOCRBillTransfer::ZTOCRBillTransfer(ZTOCRBillTransfer&& theOther) noexcept = default;
ZTOCRBillTransfer& ZTOCRBillTransfer::operator=(const ZTOCRBillTransfer& theOther) = default;
ZTOCRBillTransfer& ZTOCRBillTransfer::operator=(ZTOCRBillTransfer&& theOther) noexcept = default;
ZTOCRBillTransfer::~ZTOCRBillTransfer() = default;

bool ZTOCRBillTransfer::operator==(const ZTOCRBillTransfer& theOther) const
{
    return d == theOther.d ||
           (d->myArticleId == theOther.d->myArticleId && d->myTransferModel == theOther.d->myTransferModel &&
            d->myPrice == theOther.d->myPrice && d->myDiscountModel == theOther.d->myDiscountModel &&
            d->myDiscountLevel == theOther.d->myDiscountLevel);
}

ZTArticleId ZTOCRBillTransfer::articleId() const
{
    return d->myArticleId;
}

ZTTransferModel ZTOCRBillTransfer::transferModel() const
{
    return d->myTransferModel;
}

ZTMoney ZTOCRBillTransfer::price() const
{
    return d->myPrice;
}

ZTDiscountModel ZTOCRBillTransfer::discountModel() const
{
    return d->myDiscountModel;
}

int ZTOCRBillTransfer::discountLevel() const
{
    return d->myDiscountLevel;
}

ZTXMLOrderedElement ZTOCRBillTransfer::orderDeclarationElement() const
{
    ZTXMLOrderedElement element =
        ZTOCRBillFeeWriter::withArticleId(QStringLiteral("transfer"), d->myArticleId);
    element.addAttribute(QStringLiteral("model"), d->myTransferModel.encode());
    ZTOCRBillFeeWriter::addDiscount(element, d->myDiscountModel, d->myDiscountLevel);
    return ZTOCRBillFeeWriter::addPrice(element, d->myPrice);
}

void ZTOCRBillTransfer::buildOrderDeclarationElement(QDomElement& theParent) const
{
    orderDeclarationElement().appendTo(theParent);
}
