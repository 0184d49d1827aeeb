#ifndef ZTPRODUCTCHECKER_H
#define ZTPRODUCTCHECKER_H

#include "ZTArticleVariants.h"
#include "ZTProductCheckerType.h"
#include "ZTProductType.h"
#include "ztproductbase_export.h"

// One opinion on whether a product may be offered, registered with ZTProductCheckerRegistry.
// Called from any thread and never under the registry's lock, so an implementation may take its
// own locks, and may call the registry itself.
class ZTPRODUCTBASE_EXPORT ZTProductChecker
{
public:
    ZTProductChecker();
    virtual ~ZTProductChecker();

    virtual bool isValid(const ZTProductType& theProductType) const = 0;
    // What this checker looks at; one bit of ZTProductCheckerTypeEnum.
    virtual ZTProductCheckerType type() const = 0;
    // Whether the product can be made with these variants, such as the style of its box.
    virtual bool isValidBoxStyle(const ZTProductType& theProductType,
                                 const ZTArticleVariants& theVariants) const = 0;

private:
    Q_DISABLE_COPY(ZTProductChecker)
};

#endif // ZTPRODUCTCHECKER_H
