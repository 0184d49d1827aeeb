#include "ZTProductRestriction.h"

#include "ZTProductRestrictionImpl.h"

#include <QDebug>

ZTProductRestriction::ZTProductRestriction() : d(new ZTProductRestrictionImpl)
{}

ZTProductRestriction::ZTProductRestriction(const ZTEmptyMeansAllSet<ZTOrientation>& theOrientations,
                                           const ZTEmptyMeansAllSet<ZTArticleClass>& theArticleClasses,
                                           const ZTEmptyMeansAllSet<ZTCoverType>& theCoverTypes,
                                           const ZTEmptyMeansAllSet<ZTPageBinding>& thePageBindings,
                                           const ZTSpaceMagnitude& theMinimumSize)
    : d(new ZTProductRestrictionImpl(theOrientations, theArticleClasses, theCoverTypes, thePageBindings,
                                     theMinimumSize))
{}

ZTProductRestriction::ZTProductRestriction(const ZTProductRestriction& theOther) = default;
ZTProductRestriction::ZTProductRestriction(ZTProductRestriction&& theOther) noexcept = default;
ZTProductRestriction& ZTProductRestriction::operator=(const ZTProductRestriction& theOther) = default;
ZTProductRestriction& ZTProductRestriction::operator=(ZTProductRestriction&& theOther) noexcept = default;
ZTProductRestriction::~ZTProductRestriction() = default;

bool ZTProductRestriction::isEmpty() const
{
    return d->isEmpty();
}

bool ZTProductRestriction::isValid() const
{
    return !d->isEmpty();
}

bool ZTProductRestriction::restrictsNothing() const
{
    return d->restrictsNothing();
}

bool ZTProductRestriction::restrictsAnything() const
{
    return !d->restrictsNothing();
}

const ZTEmptyMeansAllSet<ZTOrientation>& ZTProductRestriction::orientations() const
{
    return d->myOrientations;
}

const ZTEmptyMeansAllSet<ZTArticleClass>& ZTProductRestriction::articleClasses() const
{
    return d->myArticleClasses;
}

const ZTEmptyMeansAllSet<ZTCoverType>& ZTProductRestriction::allowedCoverTypes() const
{
    return d->myCoverTypes;
}

const ZTEmptyMeansAllSet<ZTPageBinding>& ZTProductRestriction::pageBinding() const
{
    return d->myPageBindings;
}

const ZTSpaceMagnitude& ZTProductRestriction::minimumSize() const
{
    return d->myMinimumSize;
}

ZTOrientation ZTProductRestriction::effectiveOrientation() const
{
    return d->effectiveOrientation();
}

double ZTProductRestriction::defaultWidthHeightRatio() const
{
    return d->effectiveOrientation().defaultWidthHeightRatio();
}

bool ZTProductRestriction::matches(const ZTProductRestriction& theOther) const
{
    return d->matches(*theOther.d);
}

ZTProductRestriction& ZTProductRestriction::operator+=(const ZTProductRestriction& theOther)
{
    // Held by value: theOther may be this very object, whose body detach() is about to replace.
    const QSharedDataPointer<ZTProductRestrictionImpl> other = theOther.d;
    d->join(*other);
    return *this;
}

bool ZTProductRestriction::operator==(const ZTProductRestriction& theOther) const
{
    return d.constData() == theOther.d.constData() || d->equals(*theOther.d);
}

bool ZTProductRestriction::operator!=(const ZTProductRestriction& theOther) const
{
    return !(*this == theOther);
}

quint64 ZTProductRestriction::hashValue() const
{
    return d->hashValue();
}

QString ZTProductRestriction::describe() const
{
    return d->describe();
}

void ZTProductRestriction::toTemplates2Format(QDomElement& theElement) const
{
    d->toTemplates2Format(theElement);
}

void ZTProductRestriction::addOrientations(const ZTOrientation& theOrientations)
{
    d->myOrientations.unite(ZTProductRestrictionImpl::orientations(theOrientations));
}

bool ZTProductRestriction::addArticleClass(const ZTArticleClass& theClass)
{
    return d->addArticleClass(theClass);
}

void ZTProductRestriction::addAllowedPageBinding(const ZTPageBinding& theBinding)
{
    d->myPageBindings.insert(theBinding);
}

void ZTProductRestriction::setAllowedPageBinding(const ZTPageBinding& theBinding)
{
    d->myPageBindings = ZTEmptyMeansAllSet<ZTPageBinding>::decompose(theBinding);
}

void ZTProductRestriction::setAllowedCoverTypes(const ZTCoverType& theCoverTypes)
{
    d->myCoverTypes = ZTEmptyMeansAllSet<ZTCoverType>::decompose(theCoverTypes);
}

bool ZTProductRestriction::setMinimumSize(const ZTSpaceMagnitude& theSize, bool theForce)
{
    return d->setMinimumSize(theSize, theForce);
}

QDebug operator<<(QDebug theDebug, const ZTProductRestriction& theRestriction)
{
    QDebugStateSaver saver(theDebug);
    theDebug.noquote() << theRestriction.describe();
    return theDebug;
}
