#ifndef ZTDISCOUNTLIMITCACHE_H
#define ZTDISCOUNTLIMITCACHE_H

#include "ZTDiscountLimitList.h"
#include "ZTDiscountLimitListKey.h"
#include "ZTSingleton.h"
#include "ztapm_export.h"

#include <QHash>
#include <QObject>

// Finished discount ladders by shipping group and price key: a ladder is the union of the limits
// of every article of a group, too costly to build at each question. It has no lock: it belongs
// to the thread that made it, and a new price list empties it through a queued call there.
class ZTAPM_EXPORT ZTDiscountLimitCache : public QObject, public ZTSingleton<ZTDiscountLimitCache>
{
    Q_OBJECT

public:
    ZTDiscountLimitList discountLimits(const ZTDiscountLimitListKey& theKey);
    // Asks the data base, sorted.
    ZTDiscountLimitList calculateList(const ZTDiscountLimitListKey& theKey) const;

public Q_SLOTS:
    void clear();

private:
    friend class ZTSingleton<ZTDiscountLimitCache>;
    ZTDiscountLimitCache();
    ~ZTDiscountLimitCache() override;

    QHash<ZTDiscountLimitListKey, ZTDiscountLimitList> myLists;
};

#endif // ZTDISCOUNTLIMITCACHE_H
