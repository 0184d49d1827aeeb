#ifndef ZTPRODUCTCHECKERREGISTRY_H
#define ZTPRODUCTCHECKERREGISTRY_H

#include "ZTArticleVariants.h"
#include "ZTProductCheckerType.h"
#include "ZTProductType.h"
#include "ZTSingleton.h"
#include "ztproductbase_export.h"

#include <QHash>
#include <QList>
#include <QMutex>

class ZTProductChecker;

// Whether a product may be offered, as the registered checkers see it. A question names a mask
// of checker types; the checkers whose type() meets the mask are asked, and the product is
// valid when every one of them says so. A mask that selects no checker leaves nobody to object:
// the answer is yes. Answers of isValid() are remembered per product type and mask until
// clearCaches(), which the catalogue calls whenever it changes. Safe to use from any thread.
class ZTPRODUCTBASE_EXPORT ZTProductCheckerRegistry : public ZTSingleton<ZTProductCheckerRegistry>
{
    friend class ZTSingleton<ZTProductCheckerRegistry>;

public:
    // The registry owns theChecker from now on and keeps it to the end of the process. A null
    // pointer, or a checker registered before, is ignored. Remembered answers are dropped, since
    // the new checker may disagree with them.
    void registerChecker(ZTProductChecker* theChecker);
    int checkerCount() const;

    void clearCaches();

    bool isValid(const ZTProductType& theProductType,
                 const ZTProductCheckerType& theTypes = ZTProductCheckerTypeAll) const;
    // The same rule for the chosen variants of a product; not remembered, as the variants
    // change with every choice of the customer.
    bool isValidBoxStyle(const ZTProductType& theProductType, const ZTArticleVariants& theVariants,
                         const ZTProductCheckerType& theTypes = ZTProductCheckerTypeAll) const;

private:
    ZTProductCheckerRegistry();
    ~ZTProductCheckerRegistry() override;
    Q_DISABLE_COPY(ZTProductCheckerRegistry)

    // The checkers that theTypes selects, and the cache generation they belong to.
    QList<ZTProductChecker*> selectedCheckers(const ZTProductCheckerType& theTypes,
                                              quint64* theGeneration) const;

    mutable QMutex myMutex;
    // Each checker with its type, asked once at registration: a checker's type never changes.
    QList<QPair<ZTProductCheckerTypeEnum, ZTProductChecker*>> myCheckers;
    // Mask -> product type -> answer.
    mutable QHash<qint32, QHash<ZTProductType, bool>> myCache;
    // Counts registrations and clearings, so that an answer worked out meanwhile by an older
    // state is not stored.
    quint64 myGeneration = 0;
};

#endif // ZTPRODUCTCHECKERREGISTRY_H
