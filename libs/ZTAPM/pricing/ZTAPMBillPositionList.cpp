#include "ZTAPMBillPositionList.h"

#include "ZTAPMBillPosition.h"
#include "ZTAPMBillPositionInvalid.h"
#include "ZTProductAbstract.h"

#include <algorithm>

ZTAPMBillPositionList::ZTAPMBillPositionList() = default;

ZTAPMBillPositionList::ZTAPMBillPositionList(const QList<ZTAPMBillPositionAbstract*>& thePositions)
    : QList<ZTAPMBillPositionAbstract*>(thePositions)
{}

ZTAPMBillPosition* ZTAPMBillPositionList::position(const ZTProductAbstract* theProduct) const
{
    for (ZTAPMBillPositionAbstract* entry : *this) {
        if (entry->product() == theProduct)
            return dynamic_cast<ZTAPMBillPosition*>(entry);
    }
    return nullptr;
}

bool ZTAPMBillPositionList::isValid() const
{
    return std::none_of(cbegin(), cend(), [](const ZTAPMBillPositionAbstract* entry) {
        return dynamic_cast<const ZTAPMBillPositionInvalid*>(entry) != nullptr;
    });
}

bool ZTAPMBillPositionList::containsDiscountModel(const ZTDiscountModel& theModel) const
{
    return std::any_of(cbegin(), cend(), [&theModel](const ZTAPMBillPositionAbstract* entry) {
        return entry->discountModel().matches(theModel);
    });
}

ZTAPMBillPosition* ZTAPMBillPositionList::any() const
{
    for (ZTAPMBillPositionAbstract* entry : *this) {
        if (auto* position = dynamic_cast<ZTAPMBillPosition*>(entry))
            return position;
    }
    return nullptr;
}

ZTAPMBillPositionList ZTAPMBillPositionList::filter(const ZTProductAbstract* theProduct) const
{
    ZTAPMBillPositionList result;
    std::copy_if(
        cbegin(), cend(), std::back_inserter(result),
        [theProduct](const ZTAPMBillPositionAbstract* entry) { return entry->product() == theProduct; });
    return result;
}

ZTAPMBillPositionList ZTAPMBillPositionList::filter(const ZTArticleClass& theClass) const
{
    ZTAPMBillPositionList result;
    std::copy_if(cbegin(), cend(), std::back_inserter(result),
                 [&theClass](const ZTAPMBillPositionAbstract* entry) {
                     return entry->product() && entry->product()->hasArticleClass(theClass);
                 });
    return result;
}

void ZTAPMBillPositionList::filterOutArticles(const QList<ZTArticleId>& theArticleIds)
{
    if (theArticleIds.isEmpty())
        return;
    removeIf([&theArticleIds](const ZTAPMBillPositionAbstract* entry) {
        return !entry->product() || !theArticleIds.contains(entry->product()->articleId());
    });
}
