#include "ZTAPMDeliveryTime.h"

#include "ZTRegularExpression.h"

#include <QDebug>
#include <QDomElement>

ZTAPMDeliveryTime::ZTAPMDeliveryTime()
    : myDeliveryType(ZTDeliveryTypeUndecodable), myExpressType(ZTExpressTypeNone), myLatency(-1, -1)
{}

ZTAPMDeliveryTime::ZTAPMDeliveryTime(const ZTIntRange& theLatency, const ZTDeliveryType& theDeliveryType,
                                     const ZTExpressType& theExpressType)
    : myDeliveryType(theDeliveryType), myExpressType(theExpressType), myLatency(theLatency)
{}

ZTAPMDeliveryTime::ZTAPMDeliveryTime(const QDomElement& theElement) : ZTAPMDeliveryTime()
{
    myLatency = decodeLatency(theElement.attribute(QStringLiteral("days"), QString()));
    myDeliveryType = ZTDeliveryType(theElement.attribute(QStringLiteral("delivery_type")));
    myExpressType = ZTExpressType(theElement.attribute(QStringLiteral("express")));
}

ZTAPMDeliveryTime::ZTAPMDeliveryTime(const ZTAPMDeliveryTime& other) = default;
ZTAPMDeliveryTime& ZTAPMDeliveryTime::operator=(const ZTAPMDeliveryTime& other) = default;
ZTAPMDeliveryTime::~ZTAPMDeliveryTime() = default;

bool ZTAPMDeliveryTime::operator==(const ZTAPMDeliveryTime& other) const
{
    return myDeliveryType == other.myDeliveryType && myExpressType == other.myExpressType &&
           myLatency.lower() == other.myLatency.lower() && myLatency.upper() == other.myLatency.upper();
}

bool ZTAPMDeliveryTime::operator!=(const ZTAPMDeliveryTime& other) const
{
    return !(*this == other);
}

bool ZTAPMDeliveryTime::operator<(const ZTAPMDeliveryTime& other) const
{
    if (!myLatency.isValid())
        return false;
    if (!other.myLatency.isValid())
        return true;
    if (minDays() != other.minDays())
        return minDays() < other.minDays();
    return maxDays() < other.maxDays();
}

ZTExpressType ZTAPMDeliveryTime::expressType() const
{
    return myExpressType;
}

ZTDeliveryType ZTAPMDeliveryTime::deliveryType() const
{
    return myDeliveryType;
}

ZTIntRange ZTAPMDeliveryTime::latencyInDays() const
{
    return myLatency;
}

int ZTAPMDeliveryTime::minDays() const
{
    return myLatency.lower();
}

int ZTAPMDeliveryTime::maxDays() const
{
    return myLatency.upper();
}

bool ZTAPMDeliveryTime::isValid() const
{
    return myDeliveryType.isValid() && myExpressType.isValid();
}

bool ZTAPMDeliveryTime::hasValidDayRange() const
{
    return minDays() > 0 && maxDays() > 0;
}

bool ZTAPMDeliveryTime::hasKey(const ZTDeliveryType& theDeliveryType,
                               const ZTExpressType& theExpressType) const
{
    return myDeliveryType.value() == theDeliveryType.value() &&
           myExpressType.value() == theExpressType.value();
}

bool ZTAPMDeliveryTime::varies() const
{
    return minDays() != maxDays();
}

ZTIntRange ZTAPMDeliveryTime::decodeLatency(const QString& theText)
{
    // Not anchored on purpose: texts such as "ca. 3-5 Tage" occur.
    static const ZTRegularExpression daysRegExp(QStringLiteral("(\\d+)(-(\\d+))*"),
                                                QRegularExpression::NoPatternOption);
    const QRegularExpressionMatch match =
        daysRegExp.match(theText, 0, QRegularExpression::NormalMatch, QRegularExpression::NoMatchOption);
    if (!match.hasMatch())
        return ZTIntRange(-1, -1);
    bool ok = false;
    int lower = match.captured(1).toInt(&ok, 10);
    if (!ok)
        lower = 0;
    const int upper = match.captured(3).toInt(&ok, 10);
    return ZTIntRange(lower, ok ? upper : lower);
}

QDebug operator<<(QDebug debug, const ZTAPMDeliveryTime& theTime)
{
    QDebugStateSaver saver(debug);
    debug.noquote() << QStringLiteral(
                           "ZTAPMDeliveryTime -- min: %1; max %2; deliveryType %3; expressType: %4")
                           .arg(theTime.minDays())
                           .arg(theTime.maxDays())
                           .arg(theTime.deliveryType().encode(), theTime.expressType().encode());
    return debug;
}
