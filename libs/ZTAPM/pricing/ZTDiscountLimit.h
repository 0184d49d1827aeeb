#ifndef ZTDISCOUNTLIMIT_H
#define ZTDISCOUNTLIMIT_H

#include "ZTDiscountModel.h"
#include "ztapm_export.h"

#include <QSharedDataPointer>
#include <QString>

class QDebug;
class QDomElement;
class ZTDiscountLimitImpl;

// One step of a price ladder: from which quantity to which quantity (inclusive) a row applies,
// under which model and at which level. For the model "z" the bounds are sums of money.
// Copy on write.
class ZTAPM_EXPORT ZTDiscountLimit
{
public:
    // Model 0 (invalid), level 0, from 1, no upper bound.
    ZTDiscountLimit();
    ZTDiscountLimit(const ZTDiscountModel& theModel, int theLevel, int theLowerLimit, int theUpperLimit);
    // A copy that takes theModel unless it is 0. Unlike setDiscountModel, the origin flag is
    // copied, not recomputed.
    ZTDiscountLimit(const ZTDiscountLimit& theOther, const ZTDiscountModel& theModel);
    // Reads "level", "quantity" and "type" of a price row. Without a "type" the model follows the
    // article node two levels up: "f" for a "transfer", "x" for an "express_fee", else "b".
    explicit ZTDiscountLimit(const QDomElement& theElement);
    ZTDiscountLimit(const ZTDiscountLimit& theOther);
    ZTDiscountLimit(ZTDiscountLimit&& theOther) noexcept;
    ZTDiscountLimit& operator=(const ZTDiscountLimit& theOther);
    ZTDiscountLimit& operator=(ZTDiscountLimit&& theOther) noexcept;
    ~ZTDiscountLimit();

    const ZTDiscountModel& discountModel() const;
    int discountLevel() const;
    int lowerLimit() const;
    // -1: no upper bound.
    int upperLimit() const;
    // The row was read as "y" and converted to "w".
    bool wasBulkModel() const;

    bool isBulkModel() const;
    bool isFotoBasePackageLimit() const;
    bool isFotoBasePackageCombiLimmit() const;
    bool isFotoBasePackageBulkLimit() const;
    bool isValid() const;

    bool operator==(const ZTDiscountLimit& theOther) const;
    bool operator!=(const ZTDiscountLimit& theOther) const;
    // Model, lower limit, upper limit; level and origin do not count.
    bool operator<(const ZTDiscountLimit& theOther) const;
    // Cheap on purpose: lower limit and model only; equality decides within a bucket.
    uint createHash() const;

    void setUpperLimit(int theUpperLimit);
    // Remembers whether the old model was "y".
    void setDiscountModel(const ZTDiscountModel& theModel);

    QString dump() const;

    bool isSharedWith(const ZTDiscountLimit& theOther) const;

private:
    QSharedDataPointer<ZTDiscountLimitImpl> d;
};

inline size_t qHash(const ZTDiscountLimit& theLimit, size_t theSeed = 0) noexcept
{
    return qHash(theLimit.createHash(), theSeed);
}

ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTDiscountLimit& theLimit);

#endif // ZTDISCOUNTLIMIT_H
