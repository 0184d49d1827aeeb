#ifndef ZTPRODUCTRESTRICTIONIMPL_H
#define ZTPRODUCTRESTRICTIONIMPL_H

#include "ZTArticleClass.h"
#include "ZTCoverType.h"
#include "ZTEmptyMeansAllSet.h"
#include "ZTOrientation.h"
#include "ZTPageBinding.h"
#include "ZTSpaceMagnitude.h"

#include <QSharedData>
#include <QString>

class QDomElement;

// Body of ZTProductRestriction; private to the library. Holds the rules themselves, so that the
// handle only detaches and forwards.
class ZTProductRestrictionImpl : public QSharedData
{
public:
    ZTProductRestrictionImpl();
    ZTProductRestrictionImpl(const ZTEmptyMeansAllSet<ZTOrientation>& theOrientations,
                             const ZTEmptyMeansAllSet<ZTArticleClass>& theArticleClasses,
                             const ZTEmptyMeansAllSet<ZTCoverType>& theCoverTypes,
                             const ZTEmptyMeansAllSet<ZTPageBinding>& thePageBindings,
                             const ZTSpaceMagnitude& theMinimumSize);
    ZTProductRestrictionImpl(const ZTProductRestrictionImpl& theOther);
    virtual ~ZTProductRestrictionImpl();

    // One entry per bit of the value.
    static ZTEmptyMeansAllSet<ZTOrientation> orientations(const ZTOrientation& theValue);
    static ZTEmptyMeansAllSet<ZTArticleClass> articleClasses(const ZTArticleClass& theValue);

    bool isEmpty() const;
    bool restrictsNothing() const;
    // The entries joined; all orientations, resp. all designable classes, for an empty set.
    ZTOrientation effectiveOrientation() const;
    ZTArticleClass effectiveArticleClasses() const;

    bool matches(const ZTProductRestrictionImpl& theOther) const;
    void join(const ZTProductRestrictionImpl& theOther);
    bool equals(const ZTProductRestrictionImpl& theOther) const;
    quint64 hashValue() const;
    QString describe() const;
    void toTemplates2Format(QDomElement& theElement) const;
    bool addArticleClass(const ZTArticleClass& theClass);
    bool setMinimumSize(const ZTSpaceMagnitude& theSize, bool theForce);

    ZTEmptyMeansAllSet<ZTOrientation> myOrientations;
    ZTEmptyMeansAllSet<ZTArticleClass> myArticleClasses;
    ZTEmptyMeansAllSet<ZTCoverType> myCoverTypes;
    ZTEmptyMeansAllSet<ZTPageBinding> myPageBindings;
    // 0 is no minimum.
    ZTSpaceMagnitude myMinimumSize;
};

#endif // ZTPRODUCTRESTRICTIONIMPL_H
