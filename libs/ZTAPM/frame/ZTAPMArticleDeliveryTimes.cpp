#include "ZTAPMArticleDeliveryTimes.h"

#include "ZTDiagnosticCollector.h"

ZTAPMArticleDeliveryTimes::ZTAPMArticleDeliveryTimes() = default;
ZTAPMArticleDeliveryTimes::~ZTAPMArticleDeliveryTimes() = default;

QList<QString> ZTAPMArticleDeliveryTimes::articleNodes() const
{
    return {QStringLiteral("article"), QStringLiteral("add_on")};
}

ZTKeyAccountDataType ZTAPMArticleDeliveryTimes::dataType() const
{
    return ZTKeyAccountDataType(ZTKeyAccountDataTypeDeliveryTimes);
}

bool ZTAPMArticleDeliveryTimes::parseElement(const QDomElement& theElement) const
{
    const ZTArticleId id = ZTArticleId::fromIdAttribute(theElement);
    const ZTAPMDeliveryTimes times(theElement.firstChildElement(QStringLiteral("delivery_times")));
    if (times.isEmpty()) {
        if (ZTDiagnosticCollector::isCollecting())
            ZTDiagnosticCollector::report(
                ZTDiagnostic::Warning,
                QStringLiteral("delivery times of %1 %2 dropped: no valid delivery time")
                    .arg(theElement.tagName(), theElement.attribute(QStringLiteral("id"))));
        return false;
    }
    return insert(id, times);
}

ZTAPMDeliveryTimes ZTAPMArticleDeliveryTimes::deliveryTimes(const ZTArticleId& theId) const
{
    return data(theId);
}
