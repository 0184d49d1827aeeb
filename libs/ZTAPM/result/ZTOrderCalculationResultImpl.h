#ifndef ZTORDERCALCULATIONRESULTIMPL_H
#define ZTORDERCALCULATIONRESULTIMPL_H

#include "ZTAPMStatus.h"
#include "ZTMoney.h"
#include "ZTOCRBillHash.h"
#include "ZTPermittedPayMethodList.h"
#include "ZTShippingGroupIdList.h"

#include <QSharedData>

// Body of ZTOrderCalculationResult; private to the library.
class ZTOrderCalculationResultImpl : public QSharedData
{
public:
    ZTAPMStatus myApmStatus;
    ZTOCRBillHash myBills;
    ZTShippingGroupIdList myBillDeclarationOrder;
    qint32 myNumOfProducts = 0;
    ZTMoney myTotalBillSum{0};
    ZTMoney myTotalCouponSum{0};
    ZTMoney myTotalProductsSum{0};
    ZTMoney myTotalTransfer{0};
    ZTPermittedPayMethodList myAvailablePayMethods;
};

#endif // ZTORDERCALCULATIONRESULTIMPL_H
