#ifndef ZTDISCOUNTLIMITIMPL_H
#define ZTDISCOUNTLIMITIMPL_H

#include "ZTDiscountModel.h"

#include <QSharedData>

// Body of ZTDiscountLimit; private to the library.
class ZTDiscountLimitImpl : public QSharedData
{
public:
    ZTDiscountLimitImpl();
    ZTDiscountLimitImpl(const ZTDiscountLimitImpl& theOther);
    virtual ~ZTDiscountLimitImpl();

    ZTDiscountModel myDiscountModel;
    qint32 myDiscountLevel = 0;
    qint32 myLowerLimit = 1;
    qint32 myUpperLimit = -1;
    bool myWasBulkModel = false;
};

#endif // ZTDISCOUNTLIMITIMPL_H
