#ifndef ZTAPMBILLRECONCILIATION_H
#define ZTAPMBILLRECONCILIATION_H

#include "ZTAPMBillDifference.h"
#include "ztapm_export.h"

#include <QList>

class ZTAPMOrderQuote;
class ZTOrderCalculationResult;

// Compares the client's own calculation of an order with the server's, line by line, and keeps
// the lines whose amounts differ.
//
// Per shipping group, in ascending group id (a server bill of group 0, which spans groups, is a
// group of its own): each article of the goods, in the product order of the editor, then the
// transfer, the express fee, the payment fee and the bill's total; then for the whole order the
// shipment fee, the products' sum, the transfers' sum and the total.
//
// An article's amount is the sum of its positions in the group. On the client's side an add-on
// is a position of its own; on the server's it is a part of the positions it is ordered with,
// costing its price times its quantity times the position's quantity. A server position costs
// its "total_price", or its price times its quantity where the server sent no total. The
// server's model and level of an article are those of its first position; parts name none. A
// fee that a side does not charge costs 0 there.
//
// The server's totals are compared without what the client does not calculate: a bill's sum
// less its taxes and its shipment fee, with its coupons added back; the order's sum less all
// taxes, with the coupon sum added back. The shipment fee of the order is the sum of the
// bills' shipment fees.
class ZTAPM_EXPORT ZTAPMBillReconciliation
{
public:
    ZTAPMBillReconciliation(const ZTAPMOrderQuote& theLocal, const ZTOrderCalculationResult& theServer);

    // Nothing differs.
    bool agrees() const { return myDifferences.isEmpty(); }
    // The lines that differ, in the order above.
    QList<ZTAPMBillDifference> differences() const { return myDifferences; }
    // How many lines were compared, those that agree included.
    int comparedLines() const { return myComparedLines; }

private:
    void add(const ZTAPMBillDifference& theLine);

    QList<ZTAPMBillDifference> myDifferences;
    int myComparedLines = 0;
};

#endif // ZTAPMBILLRECONCILIATION_H
