#include "ZTAPMCatalogueCommand.h"

#include "ZTAPMDataBase.h"
#include "ZTAPMPriceKey.h"
#include "ZTOrderSource.h"
#include "ZTProductAbstract.h"

#include <QTextStream>

QString ZTAPMCatalogueCommand::name() const
{
    return QStringLiteral("catalogue");
}

QString ZTAPMCatalogueCommand::synopsis() const
{
    return name();
}

QString ZTAPMCatalogueCommand::summary() const
{
    return tr("every product with its lowest price per order source");
}

int ZTAPMCatalogueCommand::readArguments(const QStringList& theArguments, const QCommandLineParser&)
{
    return noArguments(theArguments);
}

int ZTAPMCatalogueCommand::run(QJsonObject& theReport)
{
    QJsonArray products;
    for (ZTProductAbstract* product : ZTSingleton<ZTAPMDataBase>::instance()->allProducts()) {
        QJsonObject lowest;
        for (const ZTOrderSource& source : ZTOrderSource::all()) {
            const ZTMoney price = product->minPriceFor(ZTAPMPriceKey(source), false);
            lowest.insert(source.toLogString(), price.value() == ZTMoney::noPrice
                                                    ? QJsonValue(QJsonValue::Null)
                                                    : amountJson(price));
        }
        products.append(QJsonObject{{QStringLiteral("id"), product->articleId().id()},
                                    {QStringLiteral("name"), product->name()},
                                    {QStringLiteral("articleClass"), product->articleClass().encodeCSV()},
                                    {QStringLiteral("shippingGroup"), groupJson(product->shippingGroupId())},
                                    {QStringLiteral("deprecated"), product->isDeprecated()},
                                    {QStringLiteral("lowestPrices"), lowest}});
    }
    theReport = {{QStringLiteral("keyAccount"), keyAccountDirectory()},
                 {QStringLiteral("products"), products}};
    return Success;
}

void ZTAPMCatalogueCommand::writeText(const QJsonObject& theReport, QTextStream& theOut) const
{
    const QList<int> widths{6, 40, 24, 5, 10, 10, 10};
    const QList<ZTOrderSource> sources = ZTOrderSource::all();
    QStringList header{tr("id"), tr("name"), tr("class"), tr("group")};
    for (const ZTOrderSource& source : sources)
        header.append(source.toLogString());
    writeColumns(theOut, header, widths);

    const QJsonArray products = theReport[QStringLiteral("products")].toArray();
    for (const QJsonValue& value : products) {
        const QJsonObject product = value.toObject();
        QString title = product[QStringLiteral("name")].toString();
        if (product[QStringLiteral("deprecated")].toBool())
            title += tr(" [deprecated]");
        QStringList cells{QString::number(product[QStringLiteral("id")].toInt()), title,
                          product[QStringLiteral("articleClass")].toString(),
                          groupText(product[QStringLiteral("shippingGroup")])};
        const QJsonObject lowest = product[QStringLiteral("lowestPrices")].toObject();
        for (const ZTOrderSource& source : sources)
            cells.append(amountText(lowest[source.toLogString()]));
        writeColumns(theOut, cells, widths);
    }
    theOut << tr("%1 products").arg(products.size()) << '\n';
}
