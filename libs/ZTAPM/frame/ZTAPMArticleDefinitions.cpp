#include "ZTAPMArticleDefinitions.h"
#include "ZTWriteLocker.h"

#include "ZTDiagnosticCollector.h"

#include <QCoreApplication>
#include <QDebug>

ZTAPMArticleDefinitions::ZTAPMArticleDefinitions() = default;
ZTAPMArticleDefinitions::~ZTAPMArticleDefinitions() = default;

bool ZTAPMArticleDefinitions::insert(const ZTArticleId& theId, const ZTAPMArticleDefinition& theValue) const
{
    ZTWriteLocker locker(&lock());
    if (!containsUnlocked(theId))
        return ZTAPMArticleData<ZTAPMArticleDefinition>::insert(theId, theValue);
    // The copy shares its body with the stored entry, so the update lands there too.
    ZTAPMArticleDefinition stored = valueUnlocked(theId);
    stored.update(theValue);
    return true;
}

ZTKeyAccountDataType ZTAPMArticleDefinitions::dataType() const
{
    return ZTKeyAccountDataType(ZTKeyAccountDataTypeProducts);
}

bool ZTAPMArticleDefinitions::parseElement(const QDomElement& theElement) const
{
    const ZTAPMArticleDefinition definition(theElement);
    if (!definition.isValid()) {
        qWarning().noquote()
            << QStringLiteral("Definition for article %1 invalid").arg(definition.articleId().id());
        if (ZTDiagnosticCollector::isCollecting())
            ZTDiagnosticCollector::report(
                ZTDiagnostic::Warning,
                QCoreApplication::translate(
                    "ZTAPMArticleDefinitions",
                    "Element %1 verworfen: es braucht eine ID, eine bekannte Klasse und eine Versandgruppe")
                    .arg(theElement.tagName()));
        return false;
    }
    return insert(definition.articleId(), definition);
}

ZTAPMArticleDefinition ZTAPMArticleDefinitions::definition(const ZTArticleId& theId) const
{
    return data(theId);
}

ZTAPMArticleDefinition ZTAPMArticleDefinitions::definition(const ZTProductType& /*theProductType*/) const
{
    return ZTAPMArticleDefinition();
}
