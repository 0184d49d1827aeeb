#ifndef ZTPRODUCTADDON_H
#define ZTPRODUCTADDON_H

#include "ZTProductAbstract.h"

// Something sold with articles it is linked to: a slipcase, a page package, a frame.
class ZTAPM_EXPORT ZTProductAddOn : public ZTProductAbstract
{
public:
    // The price class is read here once and kept for the life of the product.
    explicit ZTProductAddOn(const QDomElement& theElement);
    ~ZTProductAddOn() override;

    ZTPriceClass priceClass() const override;

private:
    const ZTPriceClass myPriceClass;
};

#endif // ZTPRODUCTADDON_H
