#ifndef ZTSHIPMENTMETHODIMPL_H
#define ZTSHIPMENTMETHODIMPL_H

#include <QRegularExpression>
#include <QSharedData>
#include <QString>
#include <QUrl>

// Body of ZTShipmentMethod; private to the library.
class ZTShipmentMethodImpl : public QSharedData
{
public:
    ZTShipmentMethodImpl();
    ZTShipmentMethodImpl(const ZTShipmentMethodImpl& theOther);
    ~ZTShipmentMethodImpl();

    bool operator==(const ZTShipmentMethodImpl& theOther) const;

    qint32 myId = -1;
    QString myName;
    bool myPickupPointsAvailable = false;
    bool myAdditionalFieldIsRequired = false;
    QRegularExpression myAdditionalFieldValidator;
    QString myAdditionalFieldKey;
    QString myAdditionalFieldName;
    QUrl myRegistrationUrl;
};

#endif // ZTSHIPMENTMETHODIMPL_H
