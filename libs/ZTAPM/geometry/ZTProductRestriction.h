#ifndef ZTPRODUCTRESTRICTION_H
#define ZTPRODUCTRESTRICTION_H

#include "ZTArticleClass.h"
#include "ZTCoverType.h"
#include "ZTEmptyMeansAllSet.h"
#include "ZTOrientation.h"
#include "ZTPageBinding.h"
#include "ZTSpaceMagnitude.h"
#include "ztapm_export.h"

#include <QSharedDataPointer>
#include <QString>

class QDebug;
class QDomElement;
class ZTProductRestrictionImpl;

// Which products a template or a design fits: allowed orientations, article classes, cover types
// and bindings, and a smallest size. An empty set restricts nothing. Built by the host
// application; copy on write.
class ZTAPM_EXPORT ZTProductRestriction
{
public:
    ZTProductRestriction();
    ZTProductRestriction(const ZTEmptyMeansAllSet<ZTOrientation>& theOrientations,
                         const ZTEmptyMeansAllSet<ZTArticleClass>& theArticleClasses,
                         const ZTEmptyMeansAllSet<ZTCoverType>& theCoverTypes,
                         const ZTEmptyMeansAllSet<ZTPageBinding>& thePageBindings,
                         const ZTSpaceMagnitude& theMinimumSize);
    ZTProductRestriction(const ZTProductRestriction& theOther);
    ZTProductRestriction(ZTProductRestriction&& theOther) noexcept;
    ZTProductRestriction& operator=(const ZTProductRestriction& theOther);
    ZTProductRestriction& operator=(ZTProductRestriction&& theOther) noexcept;
    virtual ~ZTProductRestriction();

    // No orientation, article class or cover type is named; bindings and size are not looked at.
    bool isEmpty() const;
    bool isValid() const;
    // Nothing at all is restricted. Orientations count only when none of their entries is a
    // real shape.
    bool restrictsNothing() const;
    bool restrictsAnything() const;

    const ZTEmptyMeansAllSet<ZTOrientation>& orientations() const;
    const ZTEmptyMeansAllSet<ZTArticleClass>& articleClasses() const;
    const ZTEmptyMeansAllSet<ZTCoverType>& allowedCoverTypes() const;
    const ZTEmptyMeansAllSet<ZTPageBinding>& pageBinding() const;
    const ZTSpaceMagnitude& minimumSize() const;

    // The allowed orientations joined; all of them for an empty set.
    ZTOrientation effectiveOrientation() const;
    double defaultWidthHeightRatio() const;

    // Whether both can apply to one product, judged by orientations and article classes only.
    bool matches(const ZTProductRestriction& theOther) const;
    // Widens this by theOther: the sets are united (an empty set adds nothing) and the smaller
    // minimum size is kept.
    ZTProductRestriction& operator+=(const ZTProductRestriction& theOther);

    bool operator==(const ZTProductRestriction& theOther) const;
    bool operator!=(const ZTProductRestriction& theOther) const;
    // Independent of the order in which entries were added.
    quint64 hashValue() const;

    // One line for logs: orientation, article classes, cover types, bindings and size.
    QString describe() const;
    // Orientation, article classes and bindings as attributes; nothing unless isValid().
    void toTemplates2Format(QDomElement& theElement) const;

    // Adds each bit of the value as an entry.
    void addOrientations(const ZTOrientation& theOrientations);
    // Adds each bit of the value as an entry; whether that added anything.
    bool addArticleClass(const ZTArticleClass& theClass);
    // Adds the value as it is, as one entry.
    void addAllowedPageBinding(const ZTPageBinding& theBinding);
    // Replace the set by one entry per bit of the value; 0 lifts the restriction.
    void setAllowedPageBinding(const ZTPageBinding& theBinding);
    void setAllowedCoverTypes(const ZTCoverType& theCoverTypes);
    // An existing minimum is replaced only with theForce; whether the value changed.
    bool setMinimumSize(const ZTSpaceMagnitude& theSize, bool theForce);

private:
    QSharedDataPointer<ZTProductRestrictionImpl> d;
};

inline size_t qHash(const ZTProductRestriction& theRestriction, size_t theSeed = 0) noexcept
{
    return qHash(theRestriction.hashValue(), theSeed);
}

ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTProductRestriction& theRestriction);

#endif // ZTPRODUCTRESTRICTION_H
