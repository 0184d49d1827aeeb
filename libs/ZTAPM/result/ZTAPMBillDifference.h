#ifndef ZTAPMBILLDIFFERENCE_H
#define ZTAPMBILLDIFFERENCE_H

#include "ZTArticleId.h"
#include "ZTDiscountModel.h"
#include "ZTMoney.h"
#include "ZTShippingGroupId.h"
#include "ztapm_export.h"

#include <QSharedDataPointer>

class ZTAPMBillDifferenceImpl;

// One line on which the client's own calculation of an order and the server's disagree: what
// it is, where it stands, and the amount and the price table row (model and level) of each side.
// A side that has no such line has no amount (ZTMoney::notSet); a side that names no row, such as
// an add-on priced as a part of the server's position, has level -1.
class ZTAPM_EXPORT ZTAPMBillDifference
{
public:
    // The order in which a reconciliation lists the lines of one shipping group, then those of
    // the whole order.
    enum Kind {
        Position,
        Transfer,
        ExpressFee,
        PaymentFee,
        BillTotal,
        ShipmentFee,
        ProductsTotal,
        TransferTotal,
        Total,
    };

    // A position of no group and article with neither side.
    ZTAPMBillDifference();
    ZTAPMBillDifference(Kind theKind, const ZTShippingGroupId& theShippingGroup,
                        const ZTArticleId& theArticle);
    ZTAPMBillDifference(const ZTAPMBillDifference& theOther);
    ZTAPMBillDifference& operator=(const ZTAPMBillDifference& theOther);
    ~ZTAPMBillDifference();

    bool operator==(const ZTAPMBillDifference& theOther) const;
    bool operator!=(const ZTAPMBillDifference& theOther) const { return !(*this == theOther); }

    Kind kind() const;
    // Invalid for the lines of the whole order.
    ZTShippingGroupId shippingGroupId() const;
    // Invalid where the line has no article, as the totals.
    ZTArticleId articleId() const;

    ZTMoney localAmount() const;
    ZTDiscountModel localModel() const;
    int localLevel() const;
    ZTMoney serverAmount() const;
    ZTDiscountModel serverModel() const;
    int serverLevel() const;
    bool hasLocal() const { return localAmount() != ZTMoney(ZTMoney::notSet); }
    bool hasServer() const { return serverAmount() != ZTMoney(ZTMoney::notSet); }
    // The amounts differ.
    bool differs() const { return localAmount() != serverAmount(); }

    void setLocal(const ZTMoney& theAmount, const ZTDiscountModel& theModel = ZTDiscountModel(),
                  int theLevel = -1);
    void setServer(const ZTMoney& theAmount, const ZTDiscountModel& theModel = ZTDiscountModel(),
                   int theLevel = -1);

private:
    QSharedDataPointer<ZTAPMBillDifferenceImpl> d;
};

#endif // ZTAPMBILLDIFFERENCE_H
