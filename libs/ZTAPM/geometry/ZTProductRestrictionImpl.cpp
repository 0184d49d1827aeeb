#include "ZTProductRestrictionImpl.h"

#include <QStringList>

namespace {

// XOR is commutative, so the result does not depend on the order in which a set is walked.
template <typename T>
quint64 xorOfEntries(const ZTEmptyMeansAllSet<T>& theSet)
{
    quint64 result = 0;
    for (const T& entry : theSet)
        result ^= quint64(entry.value());
    return result;
}

} // namespace

ZTProductRestrictionImpl::ZTProductRestrictionImpl() = default;

ZTProductRestrictionImpl::ZTProductRestrictionImpl(
    const ZTEmptyMeansAllSet<ZTOrientation>& theOrientations,
    const ZTEmptyMeansAllSet<ZTArticleClass>& theArticleClasses,
    const ZTEmptyMeansAllSet<ZTCoverType>& theCoverTypes,
    const ZTEmptyMeansAllSet<ZTPageBinding>& thePageBindings, const ZTSpaceMagnitude& theMinimumSize)
    : myOrientations(theOrientations)
    , myArticleClasses(theArticleClasses)
    , myCoverTypes(theCoverTypes)
    , myPageBindings(thePageBindings)
    , myMinimumSize(theMinimumSize)
{}

ZTProductRestrictionImpl::ZTProductRestrictionImpl(const ZTProductRestrictionImpl& theOther) = default;
ZTProductRestrictionImpl::~ZTProductRestrictionImpl() = default;

ZTEmptyMeansAllSet<ZTOrientation> ZTProductRestrictionImpl::orientations(const ZTOrientation& theValue)
{
    return ZTEmptyMeansAllSet<ZTOrientation>::decompose(theValue);
}

ZTEmptyMeansAllSet<ZTArticleClass> ZTProductRestrictionImpl::articleClasses(const ZTArticleClass& theValue)
{
    return ZTEmptyMeansAllSet<ZTArticleClass>::decompose(theValue);
}

bool ZTProductRestrictionImpl::isEmpty() const
{
    // Bindings and the minimum size do not count: a design restricted only by them still fits
    // every kind of product.
    return myOrientations.isEmpty() && myArticleClasses.isEmpty() && myCoverTypes.isEmpty();
}

bool ZTProductRestrictionImpl::restrictsNothing() const
{
    // Orientations only count when no entry names a real shape; a set naming landscape alone
    // passes here on purpose.
    const bool orientationsOpen =
        myOrientations.isEmpty() || myOrientations.compose().matches(ZTOrientationAll);
    return orientationsOpen && myArticleClasses.isEmpty() && myCoverTypes.isEmpty() &&
           myPageBindings.isEmpty() && myMinimumSize.isNull();
}

ZTOrientation ZTProductRestrictionImpl::effectiveOrientation() const
{
    return myOrientations.isEmpty() ? ZTOrientation(ZTOrientationAll) : myOrientations.compose();
}

ZTArticleClass ZTProductRestrictionImpl::effectiveArticleClasses() const
{
    return myArticleClasses.isEmpty() ? ZTArticleClass(ZTArticleClassAllDesignable)
                                      : myArticleClasses.compose();
}

bool ZTProductRestrictionImpl::matches(const ZTProductRestrictionImpl& theOther) const
{
    // Only shape and kind decide whether two restrictions can meet in one product.
    if (!myOrientations.isEmpty() && !theOther.myOrientations.isEmpty() &&
        !theOther.myOrientations.sharesRealKeysWith(myOrientations))
        return false;
    if (myArticleClasses.isEmpty() || theOther.myArticleClasses.isEmpty())
        return true;
    return theOther.myArticleClasses.sharesRealKeysWith(myArticleClasses);
}

void ZTProductRestrictionImpl::join(const ZTProductRestrictionImpl& theOther)
{
    // unite() skips a set that shares storage with this one. An empty set of the other side adds
    // nothing, so joining "all" with a real set keeps the real set: a deliberate widening by
    // entries, not by meaning.
    myOrientations.unite(theOther.myOrientations);
    myArticleClasses.unite(theOther.myArticleClasses);
    myCoverTypes.unite(theOther.myCoverTypes);
    myPageBindings.unite(theOther.myPageBindings);
    // The smaller minimum wins, so that joining with no minimum (0) lifts it.
    if (theOther.myMinimumSize < myMinimumSize)
        myMinimumSize = theOther.myMinimumSize;
}

bool ZTProductRestrictionImpl::equals(const ZTProductRestrictionImpl& theOther) const
{
    return myOrientations == theOther.myOrientations && myArticleClasses == theOther.myArticleClasses &&
           myCoverTypes == theOther.myCoverTypes && myPageBindings == theOther.myPageBindings &&
           myMinimumSize == theOther.myMinimumSize;
}

quint64 ZTProductRestrictionImpl::hashValue() const
{
    return 17u * xorOfEntries(myOrientations) ^ 23u * quint64(myMinimumSize.value()) ^
           29u * xorOfEntries(myCoverTypes) ^ 51u * xorOfEntries(myPageBindings) ^
           xorOfEntries(myArticleClasses);
}

QString ZTProductRestrictionImpl::describe() const
{
    // Every part is a joined value, written lowest bit first, so the text never depends on the
    // order of the sets.
    return QStringList{QStringLiteral("o {%1}").arg(effectiveOrientation().encodeCSV()),
                       QStringLiteral("t {%1}").arg(effectiveArticleClasses().encodeCSV()),
                       QStringLiteral("c {%1}").arg(myCoverTypes.compose().encodeCSV()),
                       QStringLiteral("b {%1}").arg(myPageBindings.compose().encodeCSV()),
                       QStringLiteral("s {%1}").arg(myMinimumSize.encodeCSV())}
        .join(QStringLiteral(", "));
}

void ZTProductRestrictionImpl::toTemplates2Format(QDomElement& theElement) const
{
    if (isEmpty())
        return;
    effectiveOrientation().toTemplates2Format(theElement);
    effectiveArticleClasses().toTemplates2Format(theElement);
    myPageBindings.compose().toTemplates2Format(theElement);
}

bool ZTProductRestrictionImpl::addArticleClass(const ZTArticleClass& theClass)
{
    const auto before = myArticleClasses.size();
    myArticleClasses.unite(articleClasses(theClass));
    return myArticleClasses.size() != before;
}

bool ZTProductRestrictionImpl::setMinimumSize(const ZTSpaceMagnitude& theSize, bool theForce)
{
    if (!myMinimumSize.isNull() && !theForce)
        return false;
    if (theSize == myMinimumSize)
        return false;
    myMinimumSize = theSize;
    return true;
}
