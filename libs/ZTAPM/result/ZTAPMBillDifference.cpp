#include "ZTAPMBillDifference.h"

#include "ZTAPMBillDifferenceImpl.h"

ZTAPMBillDifference::ZTAPMBillDifference() : d(new ZTAPMBillDifferenceImpl)
{}

ZTAPMBillDifference::ZTAPMBillDifference(Kind theKind, const ZTShippingGroupId& theShippingGroup,
                                         const ZTArticleId& theArticle)
    : d(new ZTAPMBillDifferenceImpl)
{
    d->myKind = theKind;
    d->myShippingGroupId = theShippingGroup;
    d->myArticleId = theArticle;
}

ZTAPMBillDifference::ZTAPMBillDifference(const ZTAPMBillDifference& theOther) = default;
ZTAPMBillDifference& ZTAPMBillDifference::operator=(const ZTAPMBillDifference& theOther) = default;
ZTAPMBillDifference::~ZTAPMBillDifference() = default;

bool ZTAPMBillDifference::operator==(const ZTAPMBillDifference& theOther) const
{
    return d == theOther.d ||
           (d->myKind == theOther.d->myKind && d->myShippingGroupId == theOther.d->myShippingGroupId &&
            d->myArticleId == theOther.d->myArticleId && d->myLocalAmount == theOther.d->myLocalAmount &&
            d->myLocalModel == theOther.d->myLocalModel && d->myLocalLevel == theOther.d->myLocalLevel &&
            d->myServerAmount == theOther.d->myServerAmount &&
            d->myServerModel == theOther.d->myServerModel && d->myServerLevel == theOther.d->myServerLevel);
}

ZTAPMBillDifference::Kind ZTAPMBillDifference::kind() const
{
    return d->myKind;
}

ZTShippingGroupId ZTAPMBillDifference::shippingGroupId() const
{
    return d->myShippingGroupId;
}

ZTArticleId ZTAPMBillDifference::articleId() const
{
    return d->myArticleId;
}

ZTMoney ZTAPMBillDifference::localAmount() const
{
    return d->myLocalAmount;
}

ZTDiscountModel ZTAPMBillDifference::localModel() const
{
    return d->myLocalModel;
}

int ZTAPMBillDifference::localLevel() const
{
    return d->myLocalLevel;
}

ZTMoney ZTAPMBillDifference::serverAmount() const
{
    return d->myServerAmount;
}

ZTDiscountModel ZTAPMBillDifference::serverModel() const
{
    return d->myServerModel;
}

int ZTAPMBillDifference::serverLevel() const
{
    return d->myServerLevel;
}

void ZTAPMBillDifference::setLocal(const ZTMoney& theAmount, const ZTDiscountModel& theModel, int theLevel)
{
    d->myLocalAmount = theAmount;
    d->myLocalModel = theModel;
    d->myLocalLevel = theLevel;
}

void ZTAPMBillDifference::setServer(const ZTMoney& theAmount, const ZTDiscountModel& theModel, int theLevel)
{
    d->myServerAmount = theAmount;
    d->myServerModel = theModel;
    d->myServerLevel = theLevel;
}
