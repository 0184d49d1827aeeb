#include "ZTAPMCatalogueCheck.h"

#include "ZTAPMArticleDefinitions.h"
#include "ZTAPMArticlePriceInfo.h"
#include "ZTAPMArticlePrices.h"
#include "ZTAPMConfig.h"
#include "ZTAPMDataBase.h"
#include "ZTAPMObjects.h"
#include "ZTAPMShippingGroupManager.h"
#include "ZTArticleIdSet.h"
#include "ZTCurrencyConfig.h"
#include "ZTOrderSource.h"
#include "ZTOrderingDetails.h"
#include "ZTProductAbstract.h"
#include "ZTProductRegistry.h"
#include "ZTResourceFile.h"

#include <QFileInfo>
#include <QMap>
#include <QSet>

#include <algorithm>

namespace {

QString filePath(const ZTResourceFile& theFile)
{
    return theFile.fileInfo(false, QString()).filePath();
}

const QStringList productTags{QStringLiteral("article"), QStringLiteral("add_on")};

bool byId(const ZTProductAbstract* theFirst, const ZTProductAbstract* theSecond)
{
    return theFirst->articleId() < theSecond->articleId();
}

} // namespace

ZTAPMCatalogueCheck::ZTAPMCatalogueCheck()
    : myProductsFile(filePath(ZTResourceFile(ZTResourceFileTypeProducts)))
    , myPricesFile(filePath(ZTResourceFile(ZTKeyAccountDataType(ZTKeyAccountDataTypePrices))))
    , myDeliveryTimesFile(filePath(ZTResourceFile(ZTKeyAccountDataType(ZTKeyAccountDataTypeDeliveryTimes))))
    , myOrderingDetailsFile(filePath(ZTResourceFile(ZTResourceFileTypeOrderingDetails)))
{
    // Installed before the start-up, so that every reading of it collects; the data base reads
    // the prices and delivery times beside the products.
    myCollector.install();
}

ZTAPMCatalogueCheck::~ZTAPMCatalogueCheck()
{
    myCollector.uninstall();
}

QList<ZTDiagnostic> ZTAPMCatalogueCheck::run()
{
    // Nothing happens here for singletons that the start-up has made already.
    ZTSingleton<ZTAPMConfig>::instance();
    ZTSingleton<ZTCurrencyConfig>::instance();
    ZTSingleton<ZTOrderingDetails>::instance();
    ZTSingleton<ZTAPMDataBase>::instance();

    // A document that is missing or does not parse would make every element of the others look
    // orphaned; the readers report nothing else as an error.
    const ZTAPMObjects* objects = ZTSingleton<ZTAPMObjects>::instance();
    if (wasRead(myProductsFile)) {
        if (wasRead(myPricesFile)) {
            checkArticles();
            checkStore(objects->articlePrices().ids(), myPricesFile, ZTAPMArticlePriceInfo::xtciNodeNames(),
                       tr("Preise für Artikel %1, den das Produktdokument nicht hat"));
        }
        if (wasRead(myDeliveryTimesFile))
            checkStore(objects->articleDeliveryTimes().ids(), myDeliveryTimesFile, productTags,
                       tr("Lieferzeiten für Artikel %1, den das Produktdokument nicht hat"));
        if (wasRead(myOrderingDetailsFile))
            checkShippingGroups();
    }
    if (wasRead(myOrderingDetailsFile))
        checkPayments();
    return myCollector.diagnostics();
}

void ZTAPMCatalogueCheck::checkArticles()
{
    const ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
    const ZTAPMObjects* objects = ZTSingleton<ZTAPMObjects>::instance();
    ZTProductList products = dataBase->products()->productList();
    products += dataBase->products()->allAddOns();
    std::sort(products.begin(), products.end(), byId);
    products.erase(std::unique(products.begin(), products.end()), products.end());
    const QList<ZTOrderSource> sources = ZTOrderSource::all();
    // Both stores have read their whole documents by now (findings are collected).
    const QHash<ZTArticleId, ZTAPMArticlePriceInfo> priceInfos = objects->articlePrices().values();
    const QHash<ZTArticleId, ZTAPMArticleDefinition> definitions = objects->articleDefinitions().values();
    for (const ZTProductAbstract* product : std::as_const(products)) {
        if (product->isDeprecated())
            continue;
        const ZTAPMArticlePriceInfo prices = priceInfos.value(product->articleId());
        const ZTAPMPriceValues::Rows& rows = prices.priceValues().rows();
        const bool priced =
            std::any_of(rows.keyBegin(), rows.keyEnd(), [&sources](const ZTAPMPriceKey& theKey) {
                return sources.contains(theKey.orderSource());
            });
        const QString id = QString::number(product->articleId().id());
        if (!priced)
            add(ZTDiagnostic::Error, myProductsFile, productTags, id,
                tr("Artikel %1 hat für keinen Bestellweg einen Preis").arg(id));

        const ZTArticleIdSet linked = definitions.value(product->articleId()).linkedArticleIds();
        if (linked.isEmpty())
            continue;
        QList<ZTArticleId> linkedIds(linked.cbegin(), linked.cend());
        std::sort(linkedIds.begin(), linkedIds.end());
        for (const ZTArticleId& linkedId : std::as_const(linkedIds)) {
            if (!dataBase->productAbstract(linkedId))
                add(ZTDiagnostic::Warning, myProductsFile, productTags, id,
                    (product->articleClass().matches(ZTArticleClassAllAddOns)
                         ? tr("Zusatzartikel %1 ist mit Artikel %2 verknüpft, den das Produktdokument nicht "
                              "hat")
                         : tr("Artikel %1 ist mit Artikel %2 verknüpft, den das Produktdokument nicht hat"))
                        .arg(id)
                        .arg(linkedId.id()));
        }
    }
}

void ZTAPMCatalogueCheck::checkStore(const QList<ZTArticleId>& theIds, const QString& theFile,
                                     const QStringList& theTags, const QString& theMessage)
{
    const ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
    for (const ZTArticleId& id : theIds) {
        if (!dataBase->productAbstract(id))
            add(ZTDiagnostic::Warning, theFile, theTags, QString::number(id.id()), theMessage.arg(id.id()));
    }
}

void ZTAPMCatalogueCheck::checkPayments()
{
    const ZTOrderingDetails* details = ZTSingleton<ZTOrderingDetails>::instance();
    QSet<int> borne;
    for (const ZTPaymentClass& payClass : details->payClasses()) {
        for (const ZTPaymentMethod& method : *details->paymentMethods(payClass))
            borne.insert(method.paymentId().id());
    }
    QSet<int> reported;
    for (const ZTOrderSource& source : ZTOrderSource::all()) {
        for (const ZTPaymentId& id : details->permittedPayments(source)) {
            if (borne.contains(id.id()) || reported.contains(id.id()))
                continue;
            reported.insert(id.id());
            add(ZTDiagnostic::Warning, myOrderingDetailsFile, {QStringLiteral("permitted_pay_method")},
                QString::number(id.id()),
                tr("erlaubte Zahlart %1 (Bestellweg %2): keine Zahlart hat diese ID")
                    .arg(id.id())
                    .arg(source.toLogString()));
        }
    }
}

void ZTAPMCatalogueCheck::checkShippingGroups()
{
    const ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
    // The first article of each group by id stands for the group's products.
    QMap<int, const ZTProductAbstract*> firstOfGroup;
    ZTProductList products = dataBase->products()->productList();
    std::sort(products.begin(), products.end(), byId);
    for (const ZTProductAbstract* product : std::as_const(products)) {
        const ZTShippingGroupId group = product->shippingGroupId();
        if (!product->isDeprecated() && group.isValid() && !firstOfGroup.contains(group.id()))
            firstOfGroup.insert(group.id(), product);
    }
    for (auto it = firstOfGroup.cbegin(); it != firstOfGroup.cend(); ++it) {
        if (!dataBase->transferProduct(ZTShippingGroupId(it.key()))) {
            const QString id = QString::number(it.value()->articleId().id());
            add(ZTDiagnostic::Error, myProductsFile, productTags, id,
                tr("Versandgruppe %1 hat Produkte (Artikel %2 ist eines), aber keinen Versandkostenartikel")
                    .arg(it.key())
                    .arg(id));
        }
    }

    QList<ZTAPMShippingGroup> groups = ZTSingleton<ZTAPMShippingGroupManager>::instance()->shippingGroups();
    std::sort(groups.begin(), groups.end(),
              [](const ZTAPMShippingGroup& theFirst, const ZTAPMShippingGroup& theSecond) {
                  return theFirst.id() < theSecond.id();
              });
    for (const ZTAPMShippingGroup& group : std::as_const(groups)) {
        if (!group.name().isEmpty() && !firstOfGroup.contains(group.id().id()))
            add(ZTDiagnostic::Note, myOrderingDetailsFile, {QStringLiteral("group")},
                QString::number(group.id().id()),
                tr("Versandgruppe %1 \"%2\" hat keine Produkte").arg(group.id().id()).arg(group.name()));
    }
}

void ZTAPMCatalogueCheck::add(ZTDiagnostic::Severity theSeverity, const QString& theFile,
                              const QStringList& theTags, const QString& theId, const QString& theMessage)
{
    int line = 0;
    int column = 0;
    for (const QString& tag : theTags) {
        if (myCollector.elementPosition(theFile, tag, theId, &line, &column))
            break;
    }
    myCollector.add(ZTDiagnostic(theSeverity, theFile, line, column, theMessage));
}

bool ZTAPMCatalogueCheck::wasRead(const QString& theFile) const
{
    if (!QFileInfo(theFile).isFile())
        return false;
    const QList<ZTDiagnostic> found = myCollector.diagnostics();
    return std::none_of(found.cbegin(), found.cend(), [&theFile](const ZTDiagnostic& theFinding) {
        return theFinding.file() == theFile && theFinding.severity() == ZTDiagnostic::Error;
    });
}
