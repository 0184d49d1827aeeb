#include "ZTOCRBillPositionPart.h"

#include "ZTAPMDataBase.h"
#include "ZTOCRBillPositionPartImpl.h"
#include "ZTProductAbstract.h"
#include "ZTXMLOrderedElement.h"
#include "ZTXMLParser.h"

#include <QDomElement>

ZTOCRBillPositionPart::ZTOCRBillPositionPart() : d(new ZTOCRBillPositionPartImpl)
{}

ZTOCRBillPositionPart::ZTOCRBillPositionPart(const QDomElement& theElement) : d(new ZTOCRBillPositionPartImpl)
{
    if (theElement.isNull())
        return;
    d->myOrderPartId = ZTXMLParser::intAttribute(theElement, QStringLiteral("order_part_id"), -1);
    d->myArticleId = ZTArticleId::fromArtIdAttribute(theElement);
    d->myQuantity = ZTXMLParser::intAttribute(theElement, QStringLiteral("quantity"), 0);
    d->myPrice = ZTMoney::fromXmlAttribute(theElement, QStringLiteral("price"), 0);
}

ZTOCRBillPositionPart::ZTOCRBillPositionPart(const ZTOCRBillPositionPart& theOther) = default;
ZTOCRBillPositionPart::ZTOCRBillPositionPart(ZTOCRBillPositionPart&& theOther) noexcept = default;
ZTOCRBillPositionPart& ZTOCRBillPositionPart::operator=(const ZTOCRBillPositionPart& theOther) = default;
ZTOCRBillPositionPart& ZTOCRBillPositionPart::operator=(ZTOCRBillPositionPart&& theOther) noexcept = default;
ZTOCRBillPositionPart::~ZTOCRBillPositionPart() = default;

bool ZTOCRBillPositionPart::operator==(const ZTOCRBillPositionPart& theOther) const
{
    return d == theOther.d ||
           (d->myOrderPartId == theOther.d->myOrderPartId && d->myArticleId == theOther.d->myArticleId &&
            d->myQuantity == theOther.d->myQuantity && d->myPrice == theOther.d->myPrice &&
            d->myUsedQuantity == theOther.d->myUsedQuantity);
}

bool ZTOCRBillPositionPart::isValid() const
{
    return d && d->myOrderPartId != -1;
}

int ZTOCRBillPositionPart::orderPartId() const
{
    return d->myOrderPartId;
}

ZTArticleId ZTOCRBillPositionPart::articleId() const
{
    return d->myArticleId;
}

int ZTOCRBillPositionPart::quantity() const
{
    return d->myQuantity;
}

ZTMoney ZTOCRBillPositionPart::price() const
{
    return d->myPrice;
}

ZTMoney ZTOCRBillPositionPart::totalPrice() const
{
    ZTMoney total = d->myPrice;
    total *= d->myQuantity;
    return total;
}

void ZTOCRBillPositionPart::setQuantity(int theQuantity)
{
    d->myQuantity = theQuantity;
}

ZTProductAbstract* ZTOCRBillPositionPart::findProduct() const
{
    return ZTAPMDataBase::instance()->productAbstract(d->myArticleId);
}

ZTMoney ZTOCRBillPositionPart::nonOfferPrice(const ZTAPMPriceKey& theKey) const
{
    const ZTProductAbstract* product = findProduct();
    return product ? product->nonOfferPrice(theKey) : ZTMoney(0);
}

int ZTOCRBillPositionPart::freeQuantity() const
{
    return d->myQuantity - d->myUsedQuantity;
}

void ZTOCRBillPositionPart::initForXTCI() const
{
    d->myUsedQuantity = 0;
}

void ZTOCRBillPositionPart::buildPriceInformation(QDomElement& theElement, int theCount) const
{
    d->myPrice.toXmlAttribute(theElement);
    d->myArticleId.toArtIdAttribute(theElement);
    d->myUsedQuantity += theCount;
}

void ZTOCRBillPositionPart::buildPriceInformation(ZTXMLOrderedElement& theElement, int theCount) const
{
    theElement.addAttributesFrom([this](QDomElement& theScratch) { d->myPrice.toXmlAttribute(theScratch); });
    theElement.addAttributesFrom(
        [this](QDomElement& theScratch) { d->myArticleId.toArtIdAttribute(theScratch); });
    d->myUsedQuantity += theCount;
}

void ZTOCRBillPositionPart::checkIntegrityPostOrder() const
{}
