#ifndef ZTAPMDELIVERYTIMES_H
#define ZTAPMDELIVERYTIMES_H

#include "ZTAPMDeliveryTime.h"
#include "ztapm_export.h"

#include <QList>

class QDomElement;

// The delivery times of one article, in document order.
class ZTAPM_EXPORT ZTAPMDeliveryTimes : public QList<ZTAPMDeliveryTime>
{
public:
    ZTAPMDeliveryTimes();
    explicit ZTAPMDeliveryTimes(const QDomElement& theElement);
    ZTAPMDeliveryTimes(const ZTAPMDeliveryTimes& other);
    ZTAPMDeliveryTimes& operator=(const ZTAPMDeliveryTimes& other);
    virtual ~ZTAPMDeliveryTimes();

    // Replaces the list by the children of a delivery_times or shipping_times element (any other
    // element: all its child elements). Entries without a usable key are dropped with a warning.
    void update(const QDomElement& theElement);

    // The first entry with exactly this key, or an invalid default.
    ZTAPMDeliveryTime shippingTime(const ZTDeliveryType& theDeliveryType,
                                   const ZTExpressType& theExpressType) const;
    bool isExpressable(const ZTDeliveryType& theDeliveryType, const ZTExpressType& theExpressType) const;
    // Whether any delivery type knows any express option.
    bool isExpressable() const;
};

#endif // ZTAPMDELIVERYTIMES_H
