#include "ZTProductRegistryExpressFees.h"

#include "ZTAPMPriceKey.h"
#include "ZTArticleId.h"
#include "ZTExpressKey.h"
#include "ZTMoney.h"
#include "ZTProductAbstract.h"

#include <QDomElement>

ZTProductRegistryExpressFees::ZTProductRegistryExpressFees()
    : ZTProductRegistryFees(QStringLiteral("express_fee"))
{}

ZTProductRegistryExpressFees::~ZTProductRegistryExpressFees()
{
    qDeleteAll(myProducts);
}

ZTProductAbstract* ZTProductRegistryExpressFees::productWithArticleID(const ZTArticleId& theId) const
{
    for (const ExpressTypeMap* types : myProducts) {
        if (!types)
            continue;
        for (ZTProductAbstract* product : *types) {
            if (product && product->articleId() == theId)
                return product;
        }
    }
    return nullptr;
}

void ZTProductRegistryExpressFees::enter(const QDomElement& theElement, ZTProductAbstract* theProduct)
{
    const ZTExpressType type(theElement.attribute(QStringLiteral("express_id")));
    if (type.isNull())
        return;
    safeExpressTypeMap(readShippingGroupId(theElement))->insert(type, theProduct);
}

void ZTProductRegistryExpressFees::setProductsDeprecated()
{
    qDeleteAll(myProducts);
    myProducts.clear();
}

ZTProductRegistryExpressFees::ExpressTypeMap*
ZTProductRegistryExpressFees::expressTypeMap(const ZTShippingGroupId& theShippingGroupId) const
{
    return myProducts.value(theShippingGroupId);
}

ZTProductRegistryExpressFees::ExpressTypeMap*
ZTProductRegistryExpressFees::safeExpressTypeMap(const ZTShippingGroupId& theShippingGroupId)
{
    ExpressTypeMap*& types = myProducts[theShippingGroupId];
    if (!types)
        types = new ExpressTypeMap;
    return types;
}

ZTProductAbstract* ZTProductRegistryExpressFees::expressFeeProduct(const ZTExpressKey& theKey) const
{
    const ExpressTypeMap* types = expressTypeMap(theKey.shippingGroupId());
    return types ? types->value(theKey.expressType()) : nullptr;
}

QList<const ZTProductAbstract*>
ZTProductRegistryExpressFees::expressFeeProducts(const ZTShippingGroupId& theShippingGroupId) const
{
    QList<const ZTProductAbstract*> result;
    if (const ExpressTypeMap* types = expressTypeMap(theShippingGroupId)) {
        for (const ZTProductAbstract* product : *types)
            result.append(product);
    }
    return result;
}

bool ZTProductRegistryExpressFees::expressFeeProductsExist() const
{
    for (const ExpressTypeMap* types : myProducts) {
        if (types && !types->isEmpty())
            return true;
    }
    return false;
}

bool ZTProductRegistryExpressFees::hasAnyExpressFeeProduct(const ZTShippingGroupId& theShippingGroupId) const
{
    for (const ZTExpressType& type : ZTExpressTypeList::allExpressTypes()) {
        if (expressFeeProduct(ZTExpressKey(theShippingGroupId, type)))
            return true;
    }
    return false;
}

ZTExpressType ZTProductRegistryExpressFees::expressType(const ZTArticleId& theId) const
{
    for (const ExpressTypeMap* types : myProducts) {
        if (!types)
            continue;
        for (auto it = types->cbegin(); it != types->cend(); ++it) {
            if (it.value() && it.value()->articleId() == theId)
                return it.key();
        }
    }
    return ZTExpressType(ZTExpressTypeStandard);
}

ZTExpressTypeList ZTProductRegistryExpressFees::findExpressTypes(const ZTShippingGroupId& theShippingGroupId,
                                                                 const ZTAPMPriceKey& thePriceKey) const
{
    ZTExpressTypeList result;
    const ExpressTypeMap* types = expressTypeMap(theShippingGroupId);
    if (!types)
        return result;
    for (const ZTExpressType& type : ZTExpressTypeList::allExpressTypes()) {
        const ZTProductAbstract* product = types->value(type);
        // A free express is no option to offer.
        if (product && product->price(thePriceKey, 1, ZTMoney(1)).hasPrice())
            result.append(type);
    }
    return result;
}

int ZTProductRegistryExpressFees::productCount() const
{
    int result = 0;
    for (const ExpressTypeMap* types : myProducts)
        result += types ? int(types->size()) : 0;
    return result;
}

ZTProductList ZTProductRegistryExpressFees::productList() const
{
    ZTProductList result;
    for (const ExpressTypeMap* types : myProducts) {
        if (types)
            result += types->values();
    }
    return result;
}
