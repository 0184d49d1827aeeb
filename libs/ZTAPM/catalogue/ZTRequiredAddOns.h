#ifndef ZTREQUIREDADDONS_H
#define ZTREQUIREDADDONS_H

#include "ZTArticleClass.h"
#include "ZTArticleIdSet.h"
#include "ztapm_export.h"

#include <QHash>

class QDomElement;

// The add-ons an article cannot be ordered without, by add-on class: of each class one of the
// listed articles must come along.
class ZTAPM_EXPORT ZTRequiredAddOns
{
public:
    ZTRequiredAddOns();
    // From the required_add_ons child of an article element: each required_add_on names an id
    // and, in its attribute group, the add-on class. Entries without a valid id or with an
    // unknown class are left out.
    explicit ZTRequiredAddOns(const QDomElement& theElement);
    ZTRequiredAddOns(const ZTRequiredAddOns& other);
    ZTRequiredAddOns& operator=(const ZTRequiredAddOns& other);
    virtual ~ZTRequiredAddOns();

    bool operator==(const ZTRequiredAddOns& other) const;
    bool operator!=(const ZTRequiredAddOns& other) const;

    // All required add-ons, whatever their class.
    ZTArticleIdSet articleIds() const;
    // The add-ons listed under exactly this class.
    ZTArticleIdSet articleIds(const ZTArticleClass& theArticleClass) const;

private:
    QHash<ZTArticleClass, ZTArticleIdSet> myArticleIds;
};

#endif // ZTREQUIREDADDONS_H
