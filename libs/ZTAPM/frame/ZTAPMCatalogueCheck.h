#ifndef ZTAPMCATALOGUECHECK_H
#define ZTAPMCATALOGUECHECK_H

#include "ZTDiagnostic.h"
#include "ZTDiagnosticCollector.h"
#include "ztapm_export.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

class ZTArticleId;

// A check of a key account's documents for the people who write them. It collects what the
// engine's own readers find while they read (documents that do not parse, elements dropped or
// repaired) and adds what only shows across documents: an article without prices, prices,
// delivery times or add-on links for articles that the products document lacks, a shipping group
// with products but no transfer article, a permitted payment that no payment method bears, a
// named shipping group without products.
//
// The check is made before the engine's start-up: from then on every reading reports into it,
// the prices and delivery times included, which the start-up reads beside the products. run()
// then answers everything, sorted.
class ZTAPM_EXPORT ZTAPMCatalogueCheck
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMCatalogueCheck)

public:
    ZTAPMCatalogueCheck();
    ~ZTAPMCatalogueCheck();
    Q_DISABLE_COPY(ZTAPMCatalogueCheck)

    // Runs what is left of the start-up, waits for the readings, checks across the documents.
    QList<ZTDiagnostic> run();

private:
    void checkArticles();
    // theMessage names the article with %1.
    void checkStore(const QList<ZTArticleId>& theIds, const QString& theFile, const QStringList& theTags,
                    const QString& theMessage);
    void checkPayments();
    void checkShippingGroups();

    // A finding at the first element of one of theTags with that id in theFile, or at the file.
    void add(ZTDiagnostic::Severity theSeverity, const QString& theFile, const QStringList& theTags,
             const QString& theId, const QString& theMessage);
    // The file was read: it is there and parses.
    bool wasRead(const QString& theFile) const;

    ZTDiagnosticCollector myCollector;
    QString myProductsFile;
    QString myPricesFile;
    QString myDeliveryTimesFile;
    QString myOrderingDetailsFile;
};

#endif // ZTAPMCATALOGUECHECK_H
