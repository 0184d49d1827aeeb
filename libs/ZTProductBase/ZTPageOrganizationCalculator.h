#ifndef ZTPAGEORGANIZATIONCALCULATOR_H
#define ZTPAGEORGANIZATIONCALCULATOR_H

#include "ZTPageCountOrganization.h"
#include "ZTProductType.h"
#include "ztproductbase_export.h"

// Where ZTPageOrganizationManager gets a product's page organisation from: the page counts a
// product of this type may have, with what the catalogue sells around it already taken into
// account. The catalogue engine provides the implementation.
//
// Called from any thread that asks the manager, and never under the manager's lock, so an
// implementation may take its own locks and may even call the manager's clearCache().
class ZTPRODUCTBASE_EXPORT ZTPageOrganizationCalculator
{
public:
    ZTPageOrganizationCalculator();
    virtual ~ZTPageOrganizationCalculator();

    // The organisation of the product type, or a default-made one for a type without pages.
    virtual ZTPageCountOrganization createPageOrganization(const ZTProductType& theProductType) const = 0;

private:
    Q_DISABLE_COPY(ZTPageOrganizationCalculator)
};

#endif // ZTPAGEORGANIZATIONCALCULATOR_H
