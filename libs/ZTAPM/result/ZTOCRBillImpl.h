#ifndef ZTOCRBILLIMPL_H
#define ZTOCRBILLIMPL_H

#include "ZTAPMShippingDate.h"
#include "ZTExpressType.h"
#include "ZTMoney.h"
#include "ZTOCRBillCouponList.h"
#include "ZTOCRBillExpressFee.h"
#include "ZTOCRBillPaymentFee.h"
#include "ZTOCRBillPositionList.h"
#include "ZTOCRBillShipmentFee.h"
#include "ZTOCRBillTransfer.h"
#include "ZTShippingGroupId.h"

#include <QHash>
#include <QSharedData>

class QDomElement;

// Body of ZTOCRBill; private to the library.
class ZTOCRBillImpl : public QSharedData
{
public:
    ZTOCRBillImpl();
    // An "order" of the server's answer.
    explicit ZTOCRBillImpl(const QDomElement& theElement);
    ZTOCRBillImpl(const ZTOCRBillImpl& theOther);
    virtual ~ZTOCRBillImpl();

    bool operator==(const ZTOCRBillImpl& theOther) const;

    // What the items of the bill add up to: fees, transfer, valid taxes and the positions' total
    // prices, less the coupons. A debugging aid that leaves the server's sum aside.
    ZTMoney checkIntegrity() const;
    // Back to the state of a bill without a group; the shipping dates stay.
    void clear();

    ZTShippingGroupId myShippingGroupId;
    ZTMoney myBillSum{0};
    ZTMoney mySalesTax{-1};
    ZTMoney myProvincialSalesTax{-1};
    ZTOCRBillExpressFee myExpressFee;
    ZTOCRBillPaymentFee myPaymentFee;
    ZTOCRBillShipmentFee myShipmentFee;
    ZTOCRBillTransfer myTransfer;
    ZTOCRBillPositionList myPositions;
    ZTOCRBillCouponList myCoupons;
    QHash<ZTExpressType, ZTAPMShippingDate> myShippingDates;

private:
    void readShippingTimes(const QDomElement& theElement);
};

#endif // ZTOCRBILLIMPL_H
