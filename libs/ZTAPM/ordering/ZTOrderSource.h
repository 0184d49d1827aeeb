#ifndef ZTORDERSOURCE_H
#define ZTORDERSOURCE_H

#include "ZTDeliveryType.h"
#include "ZTInputSource.h"
#include "ztapm_export.h"

#include <QList>
#include <QString>

class QDebug;
class QDomElement;

// One way of ordering: how the data travel and where the goods go. Only three pairs are valid;
// the named constructors make them. The default value is unset (-1, -2) and invalid.
class ZTAPM_EXPORT ZTOrderSource
{
public:
    ZTOrderSource();
    ZTOrderSource(const ZTInputSource& theInputSource, const ZTDeliveryType& theDeliveryType);
    // Reads "input_source" and "delivery_type"; a missing attribute gives -1, an unknown code the
    // invalid value of its vocabulary.
    explicit ZTOrderSource(const QDomElement& theElement);

    static ZTOrderSource onlinePointOfSale();
    static ZTOrderSource onlineMailOrder();
    static ZTOrderSource cdPointOfSale();
    // The three valid ways, in the one order in which lists and reports name them: online point
    // of sale, online mail order, CD point of sale (the map order).
    static QList<ZTOrderSource> all();
    // The valid ways of one input source, in map order; empty for an invalid input source.
    static QList<ZTOrderSource> orderSources(const ZTInputSource& theInputSource);

    const ZTInputSource& inputSource() const { return myInputSource; }
    const ZTDeliveryType& deliveryType() const { return myDeliveryType; }

    bool isOnlinePointOfSale() const;
    bool isOnlineMailOrder() const;
    bool isCDPointOfSale() const;
    bool isMailOrder() const;
    bool isPointOfSale() const;
    bool isValid() const;

    // "FC", "FM", "CC" or "UNKNOWN".
    QString toLogString() const;
    // The two codes joined by "_", e.g. "0_1"; the settings key of the way.
    QString toString() const;

    bool operator==(const ZTOrderSource& theOther) const;
    bool operator!=(const ZTOrderSource& theOther) const;
    // Input source first, then delivery type.
    bool operator<(const ZTOrderSource& theOther) const;

private:
    ZTInputSource myInputSource;
    ZTDeliveryType myDeliveryType;
};

ZTAPM_EXPORT size_t qHash(const ZTOrderSource& theSource, size_t theSeed = 0) noexcept;
ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTOrderSource& theSource);

#endif // ZTORDERSOURCE_H
