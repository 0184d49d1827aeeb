#ifndef ZTAPMSHIPPINGGROUPIMPL_H
#define ZTAPMSHIPPINGGROUPIMPL_H

#include "ZTFotoPaperType.h"
#include "ZTKeyAccountDataType.h"
#include "ZTShippingGroupId.h"
#include "ZTTransferModel.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QSharedData>
#include <QString>

class QDomElement;

// Body of ZTAPMShippingGroup; private to the library. Nothing changes it after parsing, so the
// handles share it outright.
class ZTAPMShippingGroupImpl : public QSharedData
{
public:
    ZTAPMShippingGroupImpl();
    ZTAPMShippingGroupImpl(const QDomElement& theElement, int thePriceListTabPosition);
    virtual ~ZTAPMShippingGroupImpl();

    bool operator==(const ZTAPMShippingGroupImpl& theOther) const;

    ZTShippingGroupId myId;
    // Under the data types products (2), prices (4) and delivery times (8).
    QHash<ZTKeyAccountDataType, QDateTime> myLastChange;
    qint32 myMaxOrderItems = 0;
    QString myName;
    ZTTransferModel myTransferModel;
    bool myIsBrand = false;
    qint32 myPriceListTabPosition = -1;
    QList<ZTFotoPaperType> myFotoPaperTypes;

private:
    void parseShippingGroup(const QDomElement& theElement);
    void parseFotoPaperTypes(const QDomElement& theElement);
};

#endif // ZTAPMSHIPPINGGROUPIMPL_H
