#ifndef ZTPRODUCTREGISTRYABSTRACT_H
#define ZTPRODUCTREGISTRYABSTRACT_H

#include "ztapm_export.h"

#include <QList>
#include <QString>

class QDomElement;
class QDomNode;
class ZTArticleId;
class ZTProductAbstract;
class ZTShippingGroupId;

// The reading loop that all registries of the data base share: a products document's sections
// become products, known products are updated in place and keep their identity. Registries have
// no lock of their own; every call runs under the data base's lock.
class ZTAPM_EXPORT ZTProductRegistryAbstract
{
public:
    ZTProductRegistryAbstract();
    virtual ~ZTProductRegistryAbstract();

    virtual ZTProductAbstract* productWithArticleID(const ZTArticleId& theId) const = 0;
    // Takes ownership of theProduct; may delete it at once when it does not belong here.
    virtual void registerProduct(const QDomElement& theElement, ZTProductAbstract* theProduct) = 0;
    // Called before each reading.
    virtual void setProductsDeprecated() = 0;
    // The element names this registry reads; each stands in a section of its name with an "s".
    virtual QList<QString> xmlKeyWords() const = 0;

    void readProducts(const QDomNode& theRoot);
    // The reading loop one element at a time, for a reader that streams the document instead of
    // holding it: setProductsDeprecated() first, then for each keyword of xmlKeyWords() in order
    // warnMissingSection() if its section is missing and readElement() for each of its elements,
    // in document order. A known id updates its product, anything else becomes a new product.
    void readElement(const QDomElement& theElement);
    static void warnMissingSection(const QString& theSectionName);
    ZTProductAbstract* buildAbstractProduct(const QDomElement& theElement);
    ZTShippingGroupId readShippingGroupId(const QDomElement& theElement) const;

protected:
    // Products are never freed: bills and baskets may still point at one that a registry lets go
    // of, on a new reading or when the registry itself goes. Such products are handed here and
    // stay allocated, and reachable, to the end of the process.
    static void keepAlive(const QList<ZTProductAbstract*>& theProducts);

private:
    Q_DISABLE_COPY(ZTProductRegistryAbstract)
};

#endif // ZTPRODUCTREGISTRYABSTRACT_H
