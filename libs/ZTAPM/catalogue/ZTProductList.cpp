#include "ZTProductList.h"

#include "ZTArticleClass.h"
#include "ZTDiscountLimitListKey.h"
#include "ZTProductAbstract.h"
#include "ZTProductCheckerRegistry.h"
#include "ZTRegularExpression.h"
#include "ZTShippingGroupId.h"

#include <algorithm>
#include <functional>

namespace {

const ZTRegularExpression startsWithNumber(QStringLiteral("^(\\d+)"));

// Classes that are sold whatever the checkers say: prints come in any size a customer orders.
constexpr ZTArticleClassEnum alwaysValidPrints =
    ZTArticleClassEnum(ZTArticleClassPrints | ZTArticleClassPremiumPrints | ZTArticleClassEnlargements);
static_assert(alwaysValidPrints == 0x38000, "prints, premium prints and enlargements");

} // namespace

ZTProductList::ZTProductList() = default;

ZTProductList::ZTProductList(const QList<ZTProductAbstract*>& theProducts)
    : QList<ZTProductAbstract*>(theProducts)
{}

ZTProductList::ZTProductList(std::initializer_list<ZTProductAbstract*> theProducts)
    : QList<ZTProductAbstract*>(theProducts)
{}

bool ZTProductList::operator==(const ZTProductList& other) const
{
    if (size() != other.size())
        return false;
    return std::all_of(other.cbegin(), other.cend(), [this](ZTProductAbstract* p) { return contains(p); });
}

ZTProductList ZTProductList::filterValid() const
{
    ZTProductList result;
    const ZTProductCheckerRegistry* checkers = ZTSingleton<ZTProductCheckerRegistry>::instance();
    for (ZTProductAbstract* product : *this) {
        if (product->hasArticleClass(alwaysValidPrints) ||
            product->hasArticleClass(ZTArticleClassPreAssembled) ||
            checkers->isValid(product->productType(), ZTProductCheckerTypeAll))
            result.append(product);
    }
    return result;
}

ZTProductList ZTProductList::withoutNullPointers() const
{
    ZTProductList result;
    std::copy_if(cbegin(), cend(), std::back_inserter(result), [](ZTProductAbstract* p) { return p; });
    return result;
}

ZTProductList ZTProductList::withoutDeprecatedProducts() const
{
    ZTProductList result;
    std::copy_if(cbegin(), cend(), std::back_inserter(result),
                 [](ZTProductAbstract* p) { return !p->isDeprecated(); });
    return result;
}

ZTProductList ZTProductList::filter(const ZTArticleClass& theClass) const
{
    ZTProductList result;
    std::copy_if(cbegin(), cend(), std::back_inserter(result),
                 [&theClass](ZTProductAbstract* p) { return p->hasArticleClass(theClass); });
    return result;
}

ZTProductList ZTProductList::filter(const ZTShippingGroupId& theShippingGroupId) const
{
    ZTProductList result;
    std::copy_if(cbegin(), cend(), std::back_inserter(result), [&theShippingGroupId](ZTProductAbstract* p) {
        return p->shippingGroupId() == theShippingGroupId;
    });
    return result;
}

void ZTProductList::sort()
{
    // A merge sort: the comparator is no strict weak order on mixed lists, and a quicksort may
    // then run past the ends of the range.
    std::stable_sort(begin(), end(), sortProductByNumber);
}

ZTDiscountLimitSet ZTProductList::discountLimits(const ZTDiscountLimitListKey& theKey) const
{
    ZTDiscountLimitSet result;
    for (ZTProductAbstract* product : *this)
        result.unite(product->discountLimits(theKey.priceKey()));
    result.removeZeroLimits();
    if (!theKey.showAllDiscountLimits())
        result.removeAllNoneLevelZeroLimits();
    return result;
}

bool sortByNumber(const QString& a, const QString& b)
{
    const QRegularExpressionMatch matchA = startsWithNumber.match(a);
    const QRegularExpressionMatch matchB = startsWithNumber.match(b);
    if (matchA.hasMatch() && matchB.hasMatch()) {
        // A number too large for an int counts as 0.
        const int numberA = matchA.captured(1).toInt();
        const int numberB = matchB.captured(1).toInt();
        if (numberA != numberB)
            return numberA < numberB;
        return a.size() < b.size();
    }
    if (a.size() != b.size())
        return a.size() < b.size();
    return QString::compare(a, b, Qt::CaseInsensitive) < 0;
}

bool sortProductByNumber(ZTProductAbstract* a, ZTProductAbstract* b)
{
    const QString nameA = a->name();
    const QString nameB = b->name();
    if (nameA == nameB)
        return std::less<ZTProductAbstract*>()(a, b);
    return sortByNumber(nameA, nameB);
}
