#ifndef ZTPRODUCTREGISTRYFEES_H
#define ZTPRODUCTREGISTRYFEES_H

#include "ZTProductRegistryAbstract.h"

// What the fee registries share: each reads one keyword, holds one kind of fee product under a
// key that its element names, and is rebuilt on every reading. A fee that a later entry or
// reading replaces may still be on a bill, so every fee product is kept alive when it comes in.
class ZTAPM_EXPORT ZTProductRegistryFees : public ZTProductRegistryAbstract
{
public:
    ~ZTProductRegistryFees() override;

    // Keeps the product alive and lets enter() file it.
    void registerProduct(const QDomElement& theElement, ZTProductAbstract* theProduct) final;
    QList<QString> xmlKeyWords() const final;

protected:
    explicit ZTProductRegistryFees(const QString& theKeyWord);

    // Files the product under the key of its element, or nowhere.
    virtual void enter(const QDomElement& theElement, ZTProductAbstract* theProduct) = 0;

private:
    const QString myKeyWord;
};

#endif // ZTPRODUCTREGISTRYFEES_H
