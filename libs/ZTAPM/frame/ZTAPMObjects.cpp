#include "ZTAPMObjects.h"

#include <QDebug>

ZTAPMObjects::ZTAPMObjects()
{
    // The stores fill themselves at their first question.
    qInfo() << "Creating...";
    qInfo() << "Created.";
}

ZTAPMObjects::~ZTAPMObjects() = default;

ZTAPMArticleDefinition ZTAPMObjects::articleDefinition(const ZTArticleId& theId) const
{
    return myArticleDefinitions.definition(theId);
}

ZTAPMArticlePriceInfo ZTAPMObjects::priceInfo(const ZTArticleId& theId) const
{
    return myArticlePrices.priceInfo(theId);
}

ZTAPMDeliveryTimes ZTAPMObjects::deliveryTimes(const ZTArticleId& theId) const
{
    return myArticleDeliveryTimes.deliveryTimes(theId);
}

const ZTAPMArticleDefinitions& ZTAPMObjects::articleDefinitions() const
{
    return myArticleDefinitions;
}

const ZTAPMArticlePrices& ZTAPMObjects::articlePrices() const
{
    return myArticlePrices;
}

const ZTAPMArticleDeliveryTimes& ZTAPMObjects::articleDeliveryTimes() const
{
    return myArticleDeliveryTimes;
}

void ZTAPMObjects::updateKeyAccountData()
{
    updateKeyAccountData(ZTKeyAccountDataType(ZTKeyAccountDataTypeProducts));
    updateKeyAccountData(ZTKeyAccountDataType(ZTKeyAccountDataTypePrices));
    updateKeyAccountData(ZTKeyAccountDataType(ZTKeyAccountDataTypeDeliveryTimes));
}

void ZTAPMObjects::updateKeyAccountData(const ZTKeyAccountDataType& theDataType)
{
    if (theDataType == ZTKeyAccountDataTypePrices)
        myArticlePrices.load();
    else if (theDataType == ZTKeyAccountDataTypeDeliveryTimes)
        myArticleDeliveryTimes.load();
    else if (theDataType == ZTKeyAccountDataTypeProducts)
        myArticleDefinitions.load();
}
