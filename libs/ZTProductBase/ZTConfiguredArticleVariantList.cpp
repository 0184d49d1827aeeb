#include "ZTConfiguredArticleVariantList.h"

#include "ZTDiagnosticCollector.h"
#include "ZTProblemList.h"
#include "ZTXMLParser.h"

#include <QCoreApplication>
#include <QDomElement>

ZTConfiguredArticleVariantList::ZTConfiguredArticleVariantList() = default;

ZTConfiguredArticleVariantList::ZTConfiguredArticleVariantList(const QDomElement& theArticle)
{
    const QDomElement variants = theArticle.firstChildElement(QStringLiteral("variants"));
    if (variants.isNull())
        return;

    ZTProblemList skipped;
    for (QDomElement variant = variants.firstChildElement(QStringLiteral("variant")); !variant.isNull();
         variant = variant.nextSiblingElement(QStringLiteral("variant"))) {
        const QString idText = ZTXMLParser::attribute(variant, QStringLiteral("id"), QString(), true);
        bool ok = false;
        const int id = ZTXMLParser::fastDecodeInt(idText, &ok);
        if (!ok || id <= 0) {
            skipped.append(QStringLiteral("id \"%1\" is no positive number").arg(idText),
                           QCoreApplication::translate("ZTConfiguredArticleVariantList",
                                                       "ID \"%1\" ist keine positive Zahl")
                               .arg(idText));
            continue;
        }
        if (containsId(id)) {
            skipped.append(QStringLiteral("id %1 is listed twice").arg(id),
                           QCoreApplication::translate("ZTConfiguredArticleVariantList",
                                                       "ID %1 steht zweimal in der Liste")
                               .arg(id));
            continue;
        }
        append(ZTConfiguredArticleVariant(
            id, ZTXMLParser::attribute(variant, QStringLiteral("name"), QString(), true).trimmed()));
    }
    if (!skipped.isEmpty()) {
        qWarning().noquote() << "variants of article" << theArticle.attribute(QStringLiteral("id"))
                             << "skipped:" << skipped.logText();
        ZTDiagnosticCollector::report(ZTDiagnostic::Warning,
                                      QCoreApplication::translate("ZTConfiguredArticleVariantList",
                                                                  "Varianten von Artikel %1 verworfen: %2")
                                          .arg(theArticle.attribute(QStringLiteral("id")), skipped.text()));
    }
}

ZTConfiguredArticleVariantList::ZTConfiguredArticleVariantList(const ZTConfiguredArticleVariantList& other) =
    default;
ZTConfiguredArticleVariantList&
ZTConfiguredArticleVariantList::operator=(const ZTConfiguredArticleVariantList& other) = default;
ZTConfiguredArticleVariantList::~ZTConfiguredArticleVariantList() = default;

ZTConfiguredArticleVariant ZTConfiguredArticleVariantList::variant(int theId) const
{
    for (const ZTConfiguredArticleVariant& candidate : *this) {
        if (candidate.id() == theId)
            return candidate;
    }
    return ZTConfiguredArticleVariant();
}

bool ZTConfiguredArticleVariantList::containsId(int theId) const
{
    return variant(theId).isValid();
}
