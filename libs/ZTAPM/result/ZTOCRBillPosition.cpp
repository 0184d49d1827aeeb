#include "ZTOCRBillPosition.h"

#include "ZTAPMDataBase.h"
#include "ZTOCRBillPositionImpl.h"
#include "ZTProductAbstract.h"
#include "ZTProductPrintFun.h"

#include <QDomElement>

#include <algorithm>

ZTOCRBillPosition::ZTOCRBillPosition() : d(new ZTOCRBillPositionImpl)
{}

ZTOCRBillPosition::ZTOCRBillPosition(const QDomElement& theElement) : d(new ZTOCRBillPositionImpl(theElement))
{}

ZTOCRBillPosition::ZTOCRBillPosition(const ZTOCRBillPosition& theOther) = default;
ZTOCRBillPosition::ZTOCRBillPosition(ZTOCRBillPosition&& theOther) noexcept = default;
ZTOCRBillPosition& ZTOCRBillPosition::operator=(const ZTOCRBillPosition& theOther) = default;
ZTOCRBillPosition& ZTOCRBillPosition::operator=(ZTOCRBillPosition&& theOther) noexcept = default;
ZTOCRBillPosition::~ZTOCRBillPosition() = default;

bool ZTOCRBillPosition::operator==(const ZTOCRBillPosition& theOther) const
{
    return d == theOther.d || *d == *theOther.d;
}

bool ZTOCRBillPosition::operator<(const ZTOCRBillPosition& theOther) const
{
    return *d < *theOther.d;
}

bool ZTOCRBillPosition::lessThan(const ZTOCRBillPosition& theLeft, const ZTOCRBillPosition& theRight)
{
    return theLeft < theRight;
}

bool ZTOCRBillPosition::isValid() const
{
    return d->myOrderPositionId != -1;
}

int ZTOCRBillPosition::orderPositionId() const
{
    return d->myOrderPositionId;
}

ZTArticleId ZTOCRBillPosition::articleId() const
{
    return d->myArticleId;
}

int ZTOCRBillPosition::quantity() const
{
    return d->myQuantity;
}

int ZTOCRBillPosition::maxNumberOfFotos() const
{
    return d->myMaxNumberOfFotos;
}

ZTMoney ZTOCRBillPosition::price() const
{
    return d->myPrice;
}

ZTDiscountModel ZTOCRBillPosition::discountModel() const
{
    return d->myDiscountModel;
}

int ZTOCRBillPosition::discountLevel() const
{
    return d->myDiscountLevel;
}

ZTMoney ZTOCRBillPosition::transferBasePrice() const
{
    return d->myTransferBasePrice;
}

ZTMoney ZTOCRBillPosition::transferUnitPrice() const
{
    return d->myTransferUnitPrice;
}

ZTOCRBillPositionPartList ZTOCRBillPosition::orderParts() const
{
    return d->myOrderParts;
}

int ZTOCRBillPosition::numberOfFotos() const
{
    return d->myQuantity * std::max(d->myNumberOfFotos, 1);
}

int ZTOCRBillPosition::totalNumberOfFotos() const
{
    int total = numberOfFotos();
    for (const ZTOCRBillPositionPart& part : d->myOrderParts)
        total += part.quantity();
    return total;
}

bool ZTOCRBillPosition::isFotopack() const
{
    return d->myDiscountModel == ZTDiscountModelPackage;
}

bool ZTOCRBillPosition::isFotoBasePackage() const
{
    return d->myDiscountModel == ZTDiscountModelFotoPackage;
}

ZTProductAbstract* ZTOCRBillPosition::findProduct() const
{
    return ZTAPMDataBase::instance()->productAbstract(d->myArticleId);
}

ZTArticleClass ZTOCRBillPosition::articleClass() const
{
    const ZTProductAbstract* product = findProduct();
    return product ? product->articleClass() : ZTArticleClass();
}

ZTShippingGroupId ZTOCRBillPosition::shippingGroupId() const
{
    const ZTProductAbstract* product = findProduct();
    return product ? product->shippingGroupId() : ZTShippingGroupId();
}

ZTMoney ZTOCRBillPosition::nonOfferPrice(const ZTAPMPriceKey& theKey) const
{
    const ZTProductAbstract* product = findProduct();
    return product ? product->nonOfferPrice(theKey) : ZTMoney(0);
}

ZTOCRBillPositionPart ZTOCRBillPosition::orderPartByArticleId(const ZTArticleId& theArticleId) const
{
    for (const ZTOCRBillPositionPart& part : d->myOrderParts) {
        if (part.articleId() == theArticleId && part.freeQuantity() > 0)
            return part;
    }
    return ZTOCRBillPositionPart();
}

ZTMoney ZTOCRBillPosition::subTotalPrice() const
{
    ZTMoney total = d->myPrice;
    for (const ZTOCRBillPositionPart& part : d->myOrderParts)
        total += part.totalPrice();
    return total;
}

ZTMoney ZTOCRBillPosition::totalPrice() const
{
    ZTMoney total = d->myTotalPrice;
    for (const ZTOCRBillPositionPart& part : d->myOrderParts) {
        ZTMoney parts = part.totalPrice();
        parts *= d->myQuantity;
        total += parts;
    }
    return total;
}

int ZTOCRBillPosition::freeQuantity() const
{
    return d->myQuantity - d->myUsedQuantity;
}

void ZTOCRBillPosition::reduceFreeQuantity(int theCount) const
{
    d->myUsedQuantity += theCount;
}

void ZTOCRBillPosition::initForXTCI() const
{
    d->myUsedQuantity = 0;
    for (const ZTOCRBillPositionPart& part : d->myOrderParts)
        part.initForXTCI();
}

void ZTOCRBillPosition::checkIntegrityPostOrder() const
{
    if (!findProduct())
        qFatal("product not found");
    if (isFotopack() || isFotoBasePackage())
        return;
    for (const ZTOCRBillPositionPart& part : d->myOrderParts)
        part.checkIntegrityPostOrder();
}

int ZTOCRBillPosition::countPages() const
{
    const auto* book = dynamic_cast<const ZTProductPrintFun*>(findProduct());
    if (!book)
        return 0;
    int pages = book->minPages();
    for (const ZTOCRBillPositionPart& part : d->myOrderParts) {
        const ZTProductAbstract* product = part.findProduct();
        if (product && product->isPagePackage())
            pages += book->pageIncrement() * part.quantity();
    }
    return pages;
}

qint64 ZTOCRBillPosition::hashValue() const
{
    return qint64(d->myArticleId.id());
}
