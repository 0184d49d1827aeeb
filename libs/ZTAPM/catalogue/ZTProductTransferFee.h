#ifndef ZTPRODUCTTRANSFERFEE_H
#define ZTPRODUCTTRANSFERFEE_H

#include "ZTProductAbstract.h"

// The shipping costs of one shipping group.
class ZTAPM_EXPORT ZTProductTransferFee : public ZTProductAbstract
{
public:
    explicit ZTProductTransferFee(const QDomElement& theElement);
    ~ZTProductTransferFee() override;
};

#endif // ZTPRODUCTTRANSFERFEE_H
