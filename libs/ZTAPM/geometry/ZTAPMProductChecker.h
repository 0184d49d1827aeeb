#ifndef ZTAPMPRODUCTCHECKER_H
#define ZTAPMPRODUCTCHECKER_H

#include "ZTProductChecker.h"
#include "ztapm_export.h"

// Tells the host's product checks whether this engine can sell a product: it must be in the
// catalogue, not deprecated, and have a price. Registered once at start-up.
class ZTAPM_EXPORT ZTAPMProductChecker : public ZTProductChecker
{
public:
    ZTAPMProductChecker();
    ~ZTAPMProductChecker() override;

    bool isValid(const ZTProductType& theProductType) const override;
    // ZTProductCheckerTypeSaleable.
    ZTProductCheckerType type() const override;
    // The engine knows no restrictions of variants: always true.
    bool isValidBoxStyle(const ZTProductType& theProductType,
                         const ZTArticleVariants& theVariants) const override;
};

#endif // ZTAPMPRODUCTCHECKER_H
