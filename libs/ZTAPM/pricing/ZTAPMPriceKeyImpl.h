#ifndef ZTAPMPRICEKEYIMPL_H
#define ZTAPMPRICEKEYIMPL_H

#include "ZTDiscountModel.h"
#include "ZTOrderSource.h"

#include <QSharedData>

// Body of ZTAPMPriceKey; private to the library.
class ZTAPMPriceKeyImpl : public QSharedData
{
public:
    ZTAPMPriceKeyImpl();
    ZTAPMPriceKeyImpl(const ZTAPMPriceKeyImpl& theOther);
    ~ZTAPMPriceKeyImpl();

    ZTOrderSource myOrderSource;
    qint32 myDiscountLevel = -1;
    ZTDiscountModel myDiscountModel;
    // 0 until computed. Written by const calls without a lock: every thread that shares the
    // body computes the same number, so the race is harmless.
    mutable quint32 myHashValue = 0;
};

#endif // ZTAPMPRICEKEYIMPL_H
