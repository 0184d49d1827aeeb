#ifndef ZTPRODUCTEXPRESSFEE_H
#define ZTPRODUCTEXPRESSFEE_H

#include "ZTExpressType.h"
#include "ZTProductAbstract.h"

// What express shipping of one shipping group costs.
class ZTAPM_EXPORT ZTProductExpressFee : public ZTProductAbstract
{
public:
    explicit ZTProductExpressFee(const QDomElement& theElement);
    ~ZTProductExpressFee() override;

    ZTExpressType expressType() const;

private:
    const ZTExpressType myExpressType;
};

#endif // ZTPRODUCTEXPRESSFEE_H
