#ifndef ZTAPMBILLDIFFERENCEIMPL_H
#define ZTAPMBILLDIFFERENCEIMPL_H

#include "ZTAPMBillDifference.h"

#include <QSharedData>

class ZTAPMBillDifferenceImpl : public QSharedData
{
public:
    ZTAPMBillDifference::Kind myKind = ZTAPMBillDifference::Position;
    ZTShippingGroupId myShippingGroupId;
    ZTArticleId myArticleId;
    ZTMoney myLocalAmount;
    ZTDiscountModel myLocalModel;
    int myLocalLevel = -1;
    ZTMoney myServerAmount;
    ZTDiscountModel myServerModel;
    int myServerLevel = -1;
};

#endif // ZTAPMBILLDIFFERENCEIMPL_H
