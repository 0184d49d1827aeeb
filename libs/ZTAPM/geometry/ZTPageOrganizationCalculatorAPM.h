#ifndef ZTPAGEORGANIZATIONCALCULATORAPM_H
#define ZTPAGEORGANIZATIONCALCULATORAPM_H

#include "ZTPageOrganizationCalculator.h"
#include "ztapm_export.h"

// Lets the host's page organisation manager ask this engine for a product's page counts.
class ZTAPM_EXPORT ZTPageOrganizationCalculatorAPM : public ZTPageOrganizationCalculator
{
public:
    ZTPageOrganizationCalculatorAPM();
    ~ZTPageOrganizationCalculatorAPM() override;

    // The page counts of the article of that type; without a page package on sale for it only
    // the minimum. A default organisation for types that are no article with pages.
    ZTPageCountOrganization createPageOrganization(const ZTProductType& theProductType) const override;
};

#endif // ZTPAGEORGANIZATIONCALCULATORAPM_H
