#include "ZTProductRegistryFees.h"

ZTProductRegistryFees::ZTProductRegistryFees(const QString& theKeyWord) : myKeyWord(theKeyWord)
{}

ZTProductRegistryFees::~ZTProductRegistryFees() = default;

void ZTProductRegistryFees::registerProduct(const QDomElement& theElement, ZTProductAbstract* theProduct)
{
    keepAlive({theProduct});
    enter(theElement, theProduct);
}

QList<QString> ZTProductRegistryFees::xmlKeyWords() const
{
    return {myKeyWord};
}
