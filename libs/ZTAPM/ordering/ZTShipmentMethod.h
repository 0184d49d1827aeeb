#ifndef ZTSHIPMENTMETHOD_H
#define ZTSHIPMENTMETHOD_H

#include "ZTArticleId.h"
#include "ztapm_export.h"

#include <QCoreApplication>
#include <QSharedDataPointer>
#include <QString>
#include <QUrl>

class QDebug;
class QDomElement;
class QRegularExpressionValidator;
class ZTShipmentMethodImpl;

// A carrier or delivery service for mail order. Some need a value from the customer, such as the
// customer number of a parcel locker; the method brings the pattern of that value and the texts
// around it. Copy on write.
class ZTAPM_EXPORT ZTShipmentMethod
{
    Q_DECLARE_TR_FUNCTIONS(ZTShipmentMethod)

public:
    static constexpr qint32 invalidId = -1;
    static constexpr qint32 defaultId = 0;
    static constexpr qint32 dhlPackstationId = 96;

    // Invalid: id -1.
    ZTShipmentMethod();
    // Reads a "shipment_method" element; without "id" the method is invalid.
    explicit ZTShipmentMethod(const QDomElement& theElement);
    ZTShipmentMethod(const ZTShipmentMethod& theOther);
    ZTShipmentMethod(ZTShipmentMethod&& theOther) noexcept;
    ZTShipmentMethod& operator=(const ZTShipmentMethod& theOther);
    ZTShipmentMethod& operator=(ZTShipmentMethod&& theOther) noexcept;
    virtual ~ZTShipmentMethod();

    // Every field.
    bool operator==(const ZTShipmentMethod& theOther) const;
    bool operator!=(const ZTShipmentMethod& theOther) const;

    int id() const;
    QString name() const;
    bool pickupPointsAvailable() const;
    bool additionalFieldIsRequired() const;
    QString additionalFieldKey() const;
    QString additionalFieldName() const;

    bool isValid() const;
    // The key account's default method.
    bool isDefault() const;

    // The article of the method's fee.
    ZTArticleId articleId() const;

    // A new validator for the additional value, or null if the pattern is broken, in which case
    // the value goes unchecked. The caller owns it.
    QRegularExpressionValidator* additionalFieldValidator() const;

    bool registrationIsPossible() const;
    QUrl registrationUrl() const;
    QString registrationText() const;
    QString registrationLinkText() const;
    // The hint above the additional value: the Packstation rules for DHL's Packstation, a
    // general request for other methods.
    QString intro() const;
    // The label of the additional value; empty if the method needs none.
    QString valueIntro() const;

private:
    QSharedDataPointer<ZTShipmentMethodImpl> d;
};

// Id and name.
ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTShipmentMethod& theMethod);

#endif // ZTSHIPMENTMETHOD_H
