#ifndef ZTAPMBILLPOSITIONABSTRACT_H
#define ZTAPMBILLPOSITIONABSTRACT_H

#include "ZTDiscountLimit.h"
#include "ZTMoney.h"
#include "ztapm_export.h"

#include <QString>

class ZTProductAbstract;

// One priced line of a bill: a product, how often a unit of it is charged, how many pieces a unit
// holds, the unit's price and the price table row that gave it. The product is not owned.
class ZTAPM_EXPORT ZTAPMBillPositionAbstract
{
public:
    explicit ZTAPMBillPositionAbstract(ZTProductAbstract* theProduct);
    virtual ~ZTAPMBillPositionAbstract();

    // A new copy, owned by the caller.
    virtual ZTAPMBillPositionAbstract* clone() const = 0;
    // Writes log() to the message log.
    virtual void dump() const = 0;
    virtual QString log() const = 0;
    virtual ZTMoney unitPrice() const = 0;
    virtual int unitCount() const = 0;
    virtual int itemsPerUnit() const = 0;
    virtual ZTDiscountLimit discountLimit() const = 0;
    // Unit price times unit count; the pieces per unit do not enter, so a photo package of many
    // pieces costs its one unit price.
    virtual ZTMoney positionPrice() const;
    virtual ZTMoney nonOfferPrice() const = 0;

    ZTProductAbstract* product() const { return myProduct; }
    // The product's editor name; empty without a product.
    QString productName() const;
    ZTDiscountModel discountModel() const;
    int discountLevel() const;

    // By product name, numbers in names compared as numbers; equal names by address, so that
    // the order is strict.
    static bool lessThan(const ZTAPMBillPositionAbstract* theFirst,
                         const ZTAPMBillPositionAbstract* theSecond);

protected:
    ZTAPMBillPositionAbstract(const ZTAPMBillPositionAbstract& theOther);
    ZTAPMBillPositionAbstract& operator=(const ZTAPMBillPositionAbstract& theOther);

private:
    ZTProductAbstract* myProduct;
};

#endif // ZTAPMBILLPOSITIONABSTRACT_H
