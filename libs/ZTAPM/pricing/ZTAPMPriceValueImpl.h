#ifndef ZTAPMPRICEVALUEIMPL_H
#define ZTAPMPRICEVALUEIMPL_H

#include "ZTDiscountLimit.h"
#include "ZTMoney.h"

#include <QSharedData>

// Body of ZTAPMPriceValue; private to the library.
class ZTAPMPriceValueImpl : public QSharedData
{
public:
    ZTAPMPriceValueImpl();
    ZTAPMPriceValueImpl(const ZTAPMPriceValueImpl& theOther);
    virtual ~ZTAPMPriceValueImpl();

    ZTMoney myPrice = ZTMoney(-1);
    ZTDiscountLimit myDiscountLimit;
    ZTMoney myUnitTransferPrice = ZTMoney(0);
    ZTMoney myBaseTransferPrice = ZTMoney(0);
    ZTMoney myNonOfferPrice = ZTMoney(-1);
    // Seconds since the epoch; 0 is no offer.
    qint64 myEndOfferDateEpoch = 0;
};

#endif // ZTAPMPRICEVALUEIMPL_H
