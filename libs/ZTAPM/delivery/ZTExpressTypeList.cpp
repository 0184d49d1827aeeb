#include "ZTExpressTypeList.h"

#include "ZTAPMDataBase.h"

#include <algorithm>

ZTExpressTypeList::ZTExpressTypeList() = default;

ZTExpressTypeList::ZTExpressTypeList(const QList<ZTExpressType>& theList) : QList<ZTExpressType>(theList)
{}

ZTExpressTypeList::ZTExpressTypeList(const QList<ZTExpressTypeEnum>& theList)
{
    reserve(theList.size());
    for (ZTExpressTypeEnum value : theList)
        append(ZTExpressType(value));
}

ZTExpressTypeList::ZTExpressTypeList(std::initializer_list<ZTExpressTypeEnum> theValues)
{
    reserve(qsizetype(theValues.size()));
    for (ZTExpressTypeEnum value : theValues)
        append(ZTExpressType(value));
}

ZTExpressTypeList::ZTExpressTypeList(const ZTExpressTypeList& other) = default;
ZTExpressTypeList::ZTExpressTypeList(ZTExpressTypeList&& other) noexcept = default;
ZTExpressTypeList& ZTExpressTypeList::operator=(const ZTExpressTypeList& other) = default;
ZTExpressTypeList& ZTExpressTypeList::operator=(ZTExpressTypeList&& other) noexcept = default;
ZTExpressTypeList::~ZTExpressTypeList() = default;

ZTExpressTypeList ZTExpressTypeList::allExpressTypes()
{
    static const ZTExpressTypeList all{ZTExpressTypeExpress};
    return all;
}

ZTExpressTypeList ZTExpressTypeList::sorted() const
{
    ZTExpressTypeList result(*this);
    std::sort(result.begin(), result.end(),
              [](const ZTExpressType& a, const ZTExpressType& b) { return a.value() < b.value(); });
    return result;
}

ZTExpressTypeList& ZTExpressTypeList::filterOut(const ZTExpressTypeList& other)
{
    removeIf([&other](const ZTExpressType& entry) { return other.contains(entry); });
    return *this;
}

ZTExpressTypeList ZTExpressTypeList::intersection(const ZTExpressTypeList& other) const
{
    ZTExpressTypeList result;
    for (const ZTExpressType& entry : *this) {
        if (other.contains(entry))
            result.append(entry);
    }
    return result;
}

QSet<ZTExpressType> ZTExpressTypeList::asSet() const
{
    return QSet<ZTExpressType>(cbegin(), cend());
}

ZTExpressTypeList ZTExpressTypeList::supportedExpressTypes(const ZTShippingGroupId& theShippingGroupId,
                                                           const ZTAPMPriceKey& thePriceKey)
{
    return ZTSingleton<ZTAPMDataBase>::instance()->supportedExpressTypes(theShippingGroupId, thePriceKey);
}
