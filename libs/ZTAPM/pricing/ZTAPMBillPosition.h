#ifndef ZTAPMBILLPOSITION_H
#define ZTAPMBILLPOSITION_H

#include "ZTAPMBillPositionAbstract.h"

#include <QPair>

// A priced line: a bulk row makes count units of one piece, a flat fee one unit of one piece, a
// photo package one unit of count pieces.
class ZTAPM_EXPORT ZTAPMBillPosition : public ZTAPMBillPositionAbstract
{
public:
    ZTAPMBillPosition(ZTProductAbstract* theProduct, int theUnitCount, int theItemsPerUnit,
                      const ZTDiscountLimit& theDiscountLimit, const ZTMoney& theUnitPrice,
                      const ZTMoney& theNonOfferPrice);
    ~ZTAPMBillPosition() override;

    ZTAPMBillPositionAbstract* clone() const override;
    void dump() const override;
    // "CART COUNT:.. ARTICLEID:.. PRODUCTNAME:.. DISCOUNTMODEL:.. UNITPRICE:.. UNITCOUNT:..
    // DISCOUNTLEVEL:.. NONOFFERPRICE:..". UNITCOUNT shows the pieces per unit: the label is
    // older than the photo package, and the readers of these logs expect it so.
    QString log() const override;
    ZTMoney unitPrice() const override { return myUnitPrice; }
    int unitCount() const override { return myUnitCount; }
    int itemsPerUnit() const override { return myItemsPerUnit; }
    ZTDiscountLimit discountLimit() const override { return myDiscountLimit; }
    // -1 if no offer runs.
    ZTMoney nonOfferPrice() const override { return myNonOfferPrice; }
    // The log line without the cart count, and the unit count beside it.
    virtual QPair<QString, int> logNew() const;

protected:
    ZTAPMBillPosition(const ZTAPMBillPosition& theOther);

private:
    ZTAPMBillPosition& operator=(const ZTAPMBillPosition&) = delete;

    int myUnitCount;
    int myItemsPerUnit;
    ZTMoney myUnitPrice;
    ZTMoney myNonOfferPrice;
    ZTDiscountLimit myDiscountLimit;
};

#endif // ZTAPMBILLPOSITION_H
