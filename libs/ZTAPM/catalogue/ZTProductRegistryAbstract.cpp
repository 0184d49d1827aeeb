#include "ZTProductRegistryAbstract.h"

#include "ZTArticleId.h"
#include "ZTDiagnosticCollector.h"
#include "ZTMutexLocker.h"
#include "ZTProductAbstract.h"
#include "ZTProductFactory.h"
#include "ZTShippingGroupId.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDomElement>
#include <QMutex>

ZTProductRegistryAbstract::ZTProductRegistryAbstract() = default;
ZTProductRegistryAbstract::~ZTProductRegistryAbstract() = default;

void ZTProductRegistryAbstract::readProducts(const QDomNode& theRoot)
{
    setProductsDeprecated();
    for (const QString& keyWord : xmlKeyWords()) {
        const QString sectionName = keyWord + QLatin1Char('s');
        const QDomElement section = theRoot.firstChildElement(sectionName);
        if (section.isNull())
            warnMissingSection(sectionName);
        for (QDomElement element = section.firstChildElement(keyWord); !element.isNull();
             element = element.nextSiblingElement(keyWord))
            readElement(element);
    }
}

void ZTProductRegistryAbstract::readElement(const QDomElement& theElement)
{
    if (ZTProductAbstract* known = productWithArticleID(ZTArticleId::fromIdAttribute(theElement))) {
        known->update(theElement);
    } else if (ZTProductAbstract* product = buildAbstractProduct(theElement)) {
        registerProduct(theElement, product);
    }
}

void ZTProductRegistryAbstract::warnMissingSection(const QString& theSectionName)
{
    qWarning() << "no node" << theSectionName;
}

ZTProductAbstract* ZTProductRegistryAbstract::buildAbstractProduct(const QDomElement& theElement)
{
    ZTProductAbstract* product = ZTSingleton<ZTProductFactory>::instance()->build(theElement);
    if (!product) {
        qWarning().noquote() << QStringLiteral("-- article unsupported: %1 - '%2'")
                                    .arg(theElement.attribute(QStringLiteral("id")),
                                         theElement.attribute(QStringLiteral("name")));
        ZTDiagnosticCollector::report(
            ZTDiagnostic::Warning,
            QCoreApplication::translate("ZTProductRegistryAbstract",
                                        "%1 %2 verworfen: kein Produkt dieser Art")
                .arg(theElement.tagName(), theElement.attribute(QStringLiteral("id"))));
    }
    return product;
}

ZTShippingGroupId ZTProductRegistryAbstract::readShippingGroupId(const QDomElement& theElement) const
{
    return ZTShippingGroupId(theElement, QStringLiteral("group"));
}

void ZTProductRegistryAbstract::keepAlive(const QList<ZTProductAbstract*>& theProducts)
{
    // Registries outside the data base (tests, tools) have no common lock, hence one here.
    static QMutex theMutex;
    static auto* theKeptProducts = new QList<ZTProductAbstract*>;
    ZTMutexLocker locker(&theMutex);
    *theKeptProducts += theProducts;
}
