#include "ZTAPMArticleDeliveryTimes.h"

#include "ZTDiagnosticCollector.h"

#include <QCoreApplication>

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

// A value is made of the elements of its own id: most articles are never asked about in a
// session, and a big document is read in a fraction of the time of a whole reading.
bool ZTAPMArticleDeliveryTimes::readsElementsOnDemand() const
{
    return true;
}

bool ZTAPMArticleDeliveryTimes::parseElement(const QDomElement& theElement) const
{
    const ZTArticleId id = ZTArticleId::fromIdAttribute(theElement);
    const ZTAPMDeliveryTimes times(theElement.firstChildElement(QStringLiteral("delivery_times")));
    if (times.isEmpty()) {
        if (ZTDiagnosticCollector::isCollecting())
            ZTDiagnosticCollector::report(
                ZTDiagnostic::Warning,
                QCoreApplication::translate("ZTAPMArticleDeliveryTimes",
                                            "Lieferzeiten von %1 %2 verworfen: keine gültige Lieferzeit")
                    .arg(theElement.tagName(), theElement.attribute(QStringLiteral("id"))));
        return false;
    }
    return insert(id, times);
}

ZTAPMDeliveryTimes ZTAPMArticleDeliveryTimes::deliveryTimes(const ZTArticleId& theId) const
{
    return data(theId);
}
