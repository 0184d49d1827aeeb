#include "ZTOCRBillShipmentFee.h"

#include "ZTOCRBillFeeWriter_p.h"
#include "ZTOCRBillShipmentFeeImpl.h"

#include <QDomElement>

ZTOCRBillShipmentFee::ZTOCRBillShipmentFee() : d(new ZTOCRBillShipmentFeeImpl)
{}

ZTOCRBillShipmentFee::ZTOCRBillShipmentFee(const QDomElement& theElement) : d(new ZTOCRBillShipmentFeeImpl)
{
    if (theElement.isNull())
        return;
    d->myArticleId = ZTArticleId::fromIdAttribute(theElement);
    d->myPrice = ZTMoney::fromXmlAttribute(theElement, QStringLiteral("price"), 0);
}

ZTOCRBillShipmentFee::ZTOCRBillShipmentFee(const ZTOCRBillShipmentFee& theOther) = default;
ZTOCRBillShipmentFee::ZTOCRBillShipmentFee(ZTOCRBillShipmentFee&& theOther) noexcept = default;
ZTOCRBillShipmentFee& ZTOCRBillShipmentFee::operator=(const ZTOCRBillShipmentFee& theOther) = default;
ZTOCRBillShipmentFee& ZTOCRBillShipmentFee::operator=(ZTOCRBillShipmentFee&& theOther) noexcept = default;
ZTOCRBillShipmentFee::~ZTOCRBillShipmentFee() = default;

bool ZTOCRBillShipmentFee::operator==(const ZTOCRBillShipmentFee& theOther) const
{
    return d == theOther.d ||
           (d->myArticleId == theOther.d->myArticleId && d->myPrice == theOther.d->myPrice);
}

ZTArticleId ZTOCRBillShipmentFee::articleId() const
{
    return d->myArticleId;
}

ZTMoney ZTOCRBillShipmentFee::price() const
{
    return d->myPrice;
}

ZTXMLOrderedElement ZTOCRBillShipmentFee::orderDeclarationElement() const
{
    if (!d->myArticleId.isValid())
        return ZTXMLOrderedElement();
    ZTXMLOrderedElement element =
        ZTOCRBillFeeWriter::withArticleId(QStringLiteral("shipment_method_fee"), d->myArticleId);
    return ZTOCRBillFeeWriter::addPrice(element, d->myPrice);
}

void ZTOCRBillShipmentFee::buildOrderDeclarationElement(QDomElement& theParent) const
{
    orderDeclarationElement().appendTo(theParent);
}
