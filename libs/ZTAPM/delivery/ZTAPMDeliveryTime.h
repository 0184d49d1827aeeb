#ifndef ZTAPMDELIVERYTIME_H
#define ZTAPMDELIVERYTIME_H

#include "ZTDeliveryType.h"
#include "ZTExpressType.h"
#include "ZTRange.h"
#include "ztapm_export.h"

class QDebug;
class QDomElement;

// The days an article takes to arrive for one delivery type and express type, as the catalogue
// publishes them ("3-5").
class ZTAPM_EXPORT ZTAPMDeliveryTime
{
public:
    ZTAPMDeliveryTime();
    ZTAPMDeliveryTime(const ZTIntRange& theLatency, const ZTDeliveryType& theDeliveryType,
                      const ZTExpressType& theExpressType);
    // Reads days, delivery_type and express of a delivery_time (or shipping_time) element.
    explicit ZTAPMDeliveryTime(const QDomElement& theElement);
    ZTAPMDeliveryTime(const ZTAPMDeliveryTime& other);
    ZTAPMDeliveryTime& operator=(const ZTAPMDeliveryTime& other);
    virtual ~ZTAPMDeliveryTime();

    bool operator==(const ZTAPMDeliveryTime& other) const;
    bool operator!=(const ZTAPMDeliveryTime& other) const;
    // By the day range alone: an invalid range sorts last, then lower and upper bound decide.
    bool operator<(const ZTAPMDeliveryTime& other) const;

    ZTExpressType expressType() const;
    ZTDeliveryType deliveryType() const;
    ZTIntRange latencyInDays() const;
    int minDays() const;
    int maxDays() const;

    // Decodable delivery type and an express type at all; says nothing about the days.
    bool isValid() const;
    bool hasValidDayRange() const;
    // Both key parts equal as whole values; express is not compared bit by bit.
    bool hasKey(const ZTDeliveryType& theDeliveryType, const ZTExpressType& theExpressType) const;
    bool varies() const;

    // "3" gives 3..3, "3-5" gives 3..5; no digits give -1..-1. The first run of digits anywhere in
    // the text counts, and a reversed range is kept as it stands.
    static ZTIntRange decodeLatency(const QString& theText);

private:
    ZTDeliveryType myDeliveryType;
    ZTExpressType myExpressType;
    ZTIntRange myLatency;
};

ZTAPM_EXPORT QDebug operator<<(QDebug debug, const ZTAPMDeliveryTime& theTime);

#endif // ZTAPMDELIVERYTIME_H
