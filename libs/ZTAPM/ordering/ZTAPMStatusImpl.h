#ifndef ZTAPMSTATUSIMPL_H
#define ZTAPMSTATUSIMPL_H

#include "ZTOrderSource.h"
#include "ZTPaymentMethod.h"
#include "ZTShipmentMethod.h"

#include <QHash>
#include <QSharedData>
#include <QString>

// Body of ZTAPMStatus; private to the library.
class ZTAPMStatusImpl : public QSharedData
{
public:
    ZTOrderSource myOrderSource = ZTOrderSource::onlineMailOrder();
    ZTPaymentMethod myPaymentMethod;
    QHash<QString, QString> myPaymentAuthorizations;
    ZTShipmentMethod myShipmentMethod;
    QHash<QString, QString> myShipmentMethodValues;
};

#endif // ZTAPMSTATUSIMPL_H
