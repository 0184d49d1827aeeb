#ifndef ZTAPMBILLPOSITIONINVALID_H
#define ZTAPMBILLPOSITIONINVALID_H

#include "ZTAPMBillPositionAbstract.h"

// Marks an article that no price model could price; a bill holding one is not valid. All
// amounts and counts are 0, so the bill's totals go on without the article.
class ZTAPM_EXPORT ZTAPMBillPositionInvalid : public ZTAPMBillPositionAbstract
{
public:
    explicit ZTAPMBillPositionInvalid(ZTProductAbstract* theProduct);
    ~ZTAPMBillPositionInvalid() override;

    ZTAPMBillPositionAbstract* clone() const override;
    // Writes log() as a warning.
    void dump() const override;
    // "# <product name>, Nicht bestellbar"
    QString log() const override;
    ZTMoney unitPrice() const override { return ZTMoney(0); }
    int unitCount() const override { return 0; }
    int itemsPerUnit() const override { return 0; }
    ZTDiscountLimit discountLimit() const override { return ZTDiscountLimit(); }
    ZTMoney nonOfferPrice() const override { return ZTMoney(0); }

protected:
    ZTAPMBillPositionInvalid(const ZTAPMBillPositionInvalid& theOther);

private:
    ZTAPMBillPositionInvalid& operator=(const ZTAPMBillPositionInvalid&) = delete;
};

#endif // ZTAPMBILLPOSITIONINVALID_H
