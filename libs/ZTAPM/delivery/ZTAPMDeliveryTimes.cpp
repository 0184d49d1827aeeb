#include "ZTAPMDeliveryTimes.h"

#include "ZTDiagnosticCollector.h"
#include "ZTExpressTypeList.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDomElement>

ZTAPMDeliveryTimes::ZTAPMDeliveryTimes() = default;

ZTAPMDeliveryTimes::ZTAPMDeliveryTimes(const QDomElement& theElement)
{
    update(theElement);
}

ZTAPMDeliveryTimes::ZTAPMDeliveryTimes(const ZTAPMDeliveryTimes& other) = default;
ZTAPMDeliveryTimes& ZTAPMDeliveryTimes::operator=(const ZTAPMDeliveryTimes& other) = default;
ZTAPMDeliveryTimes::~ZTAPMDeliveryTimes() = default;

void ZTAPMDeliveryTimes::update(const QDomElement& theElement)
{
    clear();
    const QString nodeName = theElement.nodeName();
    QString childTag;
    if (nodeName == QLatin1String("shipping_times"))
        childTag = QStringLiteral("shipping_time");
    else if (nodeName == QLatin1String("delivery_times"))
        childTag = QStringLiteral("delivery_time");

    for (QDomElement child = theElement.firstChildElement(childTag); !child.isNull();
         child = child.nextSiblingElement(childTag)) {
        const ZTAPMDeliveryTime time(child);
        if (time.isValid())
            append(time);
        else {
            qWarning() << "invalid" << childTag;
            ZTDiagnosticCollector::report(
                ZTDiagnostic::Warning,
                QCoreApplication::translate("ZTAPMDeliveryTimes", "ungültiges Element %1 verworfen")
                    .arg(childTag));
        }
    }
}

ZTAPMDeliveryTime ZTAPMDeliveryTimes::shippingTime(const ZTDeliveryType& theDeliveryType,
                                                   const ZTExpressType& theExpressType) const
{
    for (const ZTAPMDeliveryTime& time : *this) {
        if (time.hasKey(theDeliveryType, theExpressType))
            return time;
    }
    return ZTAPMDeliveryTime();
}

bool ZTAPMDeliveryTimes::isExpressable(const ZTDeliveryType& theDeliveryType,
                                       const ZTExpressType& theExpressType) const
{
    return shippingTime(theDeliveryType, theExpressType).isValid();
}

bool ZTAPMDeliveryTimes::isExpressable() const
{
    const ZTExpressTypeList expressTypes = ZTExpressTypeList::allExpressTypes();
    for (const ZTDeliveryType& deliveryType : ZTDeliveryType::allDeliveryTypes()) {
        for (const ZTExpressType& expressType : expressTypes) {
            if (isExpressable(deliveryType, expressType))
                return true;
        }
    }
    return false;
}
