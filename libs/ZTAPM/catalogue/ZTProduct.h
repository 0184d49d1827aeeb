#ifndef ZTPRODUCT_H
#define ZTPRODUCT_H

#include "ZTProductAbstract.h"

// An article of arrangement "prints": a print, a poster size, a photo package.
class ZTAPM_EXPORT ZTProduct : public ZTProductAbstract
{
public:
    explicit ZTProduct(const QDomElement& theElement);
    ~ZTProduct() override;

    // The name with the shipping group behind it in parentheses.
    QString fullQualifiedName() const override;
};

#endif // ZTPRODUCT_H
