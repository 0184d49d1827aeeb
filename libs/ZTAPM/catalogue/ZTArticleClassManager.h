#ifndef ZTARTICLECLASSMANAGER_H
#define ZTARTICLECLASSMANAGER_H

#include "ZTArticleClass.h"
#include "ztapm_export.h"

#include <QList>

// Which article classes the current catalogue offers, for the host's menus.
class ZTAPM_EXPORT ZTArticleClassManager
{
public:
    // Some article of the class is in the catalogue.
    bool isActive(const ZTArticleClass& theClass) const;
    // The single article class bits that are active, in no particular order.
    QList<ZTArticleClass> activeArticleClasses() const;
};

#endif // ZTARTICLECLASSMANAGER_H
