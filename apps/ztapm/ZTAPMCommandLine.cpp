#include "ZTAPMCommandLine.h"

#include "ZTAPMArticleDefinition.h"
#include "ZTAPMArticlePriceInfo.h"
#include "ZTAPMDataBase.h"
#include "ZTAPMDeliveryTimes.h"
#include "ZTInitializer.h"
#include "ZTKeyAccountDataType.h"
#include "ZTProductAbstract.h"
#include "ZTProductList.h"
#include "ZTProductRegistry.h"
#include "ZTProductRegistryExpressFees.h"
#include "ZTProductRegistryPaymentFees.h"
#include "ZTProductRegistryShipmentMethodFees.h"
#include "ZTProductRegistryTransferFees.h"
#include "ZTProgramConfig.h"
#include "ZTResourceFile.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace {

QStringList theWarnings;
bool theVerbose = false;

const QString theCommandsHelp =
    QStringLiteral("Commands:\n"
                   "  startup                run the engine's start-up and report what it loaded (default)\n"
                   "  catalogue              every product with its lowest price per order source\n"
                   "  article ID             an article's facts, price ladder and delivery times\n"
                   "  price ID COUNT         the amount for COUNT pieces, with every model's amount\n"
                   "                         [--source S] [--sum CENTS] [--model x]\n"
                   "Order sources (--source): online-pos (FC), online-mail (FM, default), cd-pos (CC).");

struct OrderSourceName
{
    const char* name;
    ZTOrderSource (*make)();
};

const OrderSourceName theOrderSources[] = {
    {"online-pos", &ZTOrderSource::onlinePointOfSale},
    {"online-mail", &ZTOrderSource::onlineMailOrder},
    {"cd-pos", &ZTOrderSource::cdPointOfSale},
};

// A source by its name or its two-letter form; an invalid source for anything else.
ZTOrderSource orderSourceNamed(const QString& theName)
{
    for (const OrderSourceName& source : theOrderSources) {
        const ZTOrderSource orderSource = source.make();
        if (theName.compare(QLatin1String(source.name), Qt::CaseInsensitive) == 0 ||
            theName.compare(orderSource.toLogString(), Qt::CaseInsensitive) == 0)
            return orderSource;
    }
    return ZTOrderSource();
}

// An amount for JSON: whole hundredths, null where nothing is priced or set.
QJsonValue amountJson(const ZTMoney& theAmount)
{
    if (theAmount.value() == ZTMoney::notSet)
        return QJsonValue(QJsonValue::Null);
    return theAmount.value();
}

// An amount for a person: units and hundredths, computed on the integer.
QString amountText(const QJsonValue& theAmount)
{
    if (theAmount.isNull())
        return QStringLiteral("-");
    const qint64 value = theAmount.toInteger();
    if (value == ZTMoney::noPrice)
        return QStringLiteral("no price");
    const qint64 magnitude = value < 0 ? -value : value;
    return QStringLiteral("%1%2.%3")
        .arg(value < 0 ? QStringLiteral("-") : QString())
        .arg(magnitude / 100)
        .arg(magnitude % 100, 2, 10, QLatin1Char('0'));
}

// The keyword of a model; the basket-wide transfer has none and is named "basket".
QString modelName(const ZTDiscountModel& theModel)
{
    if (theModel.value() == ZTDiscountModelBasketTransfer)
        return QStringLiteral("basket");
    return theModel.encode();
}

QJsonValue groupJson(const ZTShippingGroupId& theGroup)
{
    return theGroup.isValid() ? QJsonValue(theGroup.id()) : QJsonValue(QJsonValue::Null);
}

QJsonArray idsJson(const ZTArticleIdSet& theIds)
{
    QList<int> ids;
    for (const ZTArticleId& id : theIds)
        ids.append(id.id());
    std::sort(ids.begin(), ids.end());
    QJsonArray result;
    for (int id : std::as_const(ids))
        result.append(id);
    return result;
}

// Every product of the catalogue once, articles and add-ons first, then the fees; by id.
QList<ZTProductAbstract*> allProducts(ZTAPMDataBase* theDataBase)
{
    QList<ZTProductAbstract*> result = theDataBase->products()->productList();
    result += theDataBase->products()->allAddOns();
    result += theDataBase->transferFees()->productList();
    result += theDataBase->expressFees()->productList();
    result += theDataBase->paymentFees()->productList();
    result += theDataBase->shipmentMethodFees()->productList();
    std::sort(result.begin(), result.end(), [](ZTProductAbstract* a, ZTProductAbstract* b) {
        return a->articleId().id() < b->articleId().id();
    });
    result.erase(std::unique(result.begin(), result.end()), result.end());
    return result;
}

void writeColumns(QTextStream& theOut, const QStringList& theCells, const QList<int>& theWidths)
{
    for (int i = 0; i < theCells.size(); ++i) {
        const int width = theWidths.value(i, 0);
        theOut << (width > 0 ? theCells.at(i).leftJustified(width) : theCells.at(i));
        if (i + 1 < theCells.size())
            theOut << ' ';
    }
    theOut << '\n';
}

void writeStartup(const QJsonObject& theReport, QTextStream& theOut)
{
    theOut << "Key account: " << theReport[QStringLiteral("keyAccount")].toString() << '\n' << "Documents:\n";
    for (const QJsonValue& value : theReport[QStringLiteral("documents")].toArray()) {
        const QJsonObject document = value.toObject();
        const bool present = document[QStringLiteral("present")].toBool();
        writeColumns(theOut,
                     {QStringLiteral(" "), document[QStringLiteral("name")].toString(),
                      document[QStringLiteral("file")].toString(),
                      present ? QStringLiteral("%1 bytes").arg(document[QStringLiteral("bytes")].toInteger())
                              : QStringLiteral("missing")},
                     {1, 18, 22});
    }
    theOut << "Products document read into the registries: "
           << theReport[QStringLiteral("productsRead")].toInt() << " time(s)\nRegistries:\n";
    for (const QJsonValue& value : theReport[QStringLiteral("registries")].toArray()) {
        const QJsonObject registry = value.toObject();
        writeColumns(theOut,
                     {QStringLiteral(" "), registry[QStringLiteral("name")].toString(),
                      QString::number(registry[QStringLiteral("products")].toInt())},
                     {1, 22});
    }
    const QJsonArray warnings = theReport[QStringLiteral("warnings")].toArray();
    theOut << "Warnings: " << warnings.size() << '\n';
    for (const QJsonValue& warning : warnings)
        theOut << "  " << warning.toString() << '\n';
}

void writeCatalogue(const QJsonObject& theReport, QTextStream& theOut)
{
    const QList<int> widths{6, 40, 24, 5, 10, 10, 10};
    writeColumns(theOut,
                 {QStringLiteral("id"), QStringLiteral("name"), QStringLiteral("class"),
                  QStringLiteral("group"), QStringLiteral("FC"), QStringLiteral("FM"), QStringLiteral("CC")},
                 widths);
    for (const QJsonValue& value : theReport[QStringLiteral("products")].toArray()) {
        const QJsonObject product = value.toObject();
        const QJsonObject lowest = product[QStringLiteral("lowestPrices")].toObject();
        QString name = product[QStringLiteral("name")].toString();
        if (product[QStringLiteral("deprecated")].toBool())
            name += QStringLiteral(" [deprecated]");
        const QJsonValue group = product[QStringLiteral("shippingGroup")];
        writeColumns(theOut,
                     {QString::number(product[QStringLiteral("id")].toInt()), name,
                      product[QStringLiteral("articleClass")].toString(),
                      group.isNull() ? QStringLiteral("-") : QString::number(group.toInt()),
                      amountText(lowest[QStringLiteral("FC")]), amountText(lowest[QStringLiteral("FM")]),
                      amountText(lowest[QStringLiteral("CC")])},
                     widths);
    }
    theOut << theReport[QStringLiteral("products")].toArray().size() << " products\n";
}

void writeArticle(const QJsonObject& theReport, QTextStream& theOut)
{
    const auto line = [&theOut](const char* theLabel, const QString& theText) {
        theOut << QString::fromLatin1(theLabel).leftJustified(18) << theText << '\n';
    };
    const auto ids = [](const QJsonValue& theIds) {
        QStringList texts;
        for (const QJsonValue& id : theIds.toArray())
            texts.append(QString::number(id.toInt()));
        return texts.isEmpty() ? QStringLiteral("-") : texts.join(QStringLiteral(", "));
    };
    const QJsonObject pages = theReport[QStringLiteral("pages")].toObject();
    const QJsonValue group = theReport[QStringLiteral("shippingGroup")];
    line("Article", QStringLiteral("%1 %2")
                        .arg(theReport[QStringLiteral("id")].toInt())
                        .arg(theReport[QStringLiteral("name")].toString()));
    line("Class", theReport[QStringLiteral("articleClass")].toString());
    line("Shipping group", group.isNull() ? QStringLiteral("-") : QString::number(group.toInt()));
    line("Product type", theReport[QStringLiteral("productType")].toString());
    line("Order text head", theReport[QStringLiteral("orderTxtHead")].toString());
    line("Pages", QStringLiteral("%1 to %2, in steps of %3")
                      .arg(pages[QStringLiteral("min")].toInt())
                      .arg(pages[QStringLiteral("max")].toInt())
                      .arg(pages[QStringLiteral("increment")].toInt()));
    line("Linked articles", ids(theReport[QStringLiteral("linkedArticles")]));
    line("Required add-ons", ids(theReport[QStringLiteral("requiredAddOns")]));
    line("Deprecated",
         theReport[QStringLiteral("deprecated")].toBool() ? QStringLiteral("yes") : QStringLiteral("no"));

    theOut << "Prices:\n";
    const QList<int> widths{2, 4, 8, 8, 6, 5, 10};
    for (const QJsonValue& value : theReport[QStringLiteral("prices")].toArray()) {
        const QJsonObject source = value.toObject();
        theOut << "  " << source[QStringLiteral("source")].toString() << '\n';
        writeColumns(theOut,
                     {QString(), QString(), QStringLiteral("from"), QStringLiteral("to"),
                      QStringLiteral("model"), QStringLiteral("level"), QStringLiteral("unit price"),
                      QStringLiteral("offer")},
                     widths);
        for (const QJsonValue& rowValue : source[QStringLiteral("rows")].toArray()) {
            const QJsonObject row = rowValue.toObject();
            const int to = row[QStringLiteral("to")].toInt();
            writeColumns(
                theOut,
                {QString(), QString(), QString::number(row[QStringLiteral("from")].toInt()),
                 to < 0 ? QStringLiteral("-") : QString::number(to), row[QStringLiteral("model")].toString(),
                 QString::number(row[QStringLiteral("level")].toInt()),
                 amountText(row[QStringLiteral("price")]),
                 row[QStringLiteral("offer")].toBool()
                     ? QStringLiteral("instead of %1").arg(amountText(row[QStringLiteral("nonOfferPrice")]))
                     : QString()},
                widths);
        }
    }
    theOut << "Delivery times:\n";
    const QJsonArray times = theReport[QStringLiteral("deliveryTimes")].toArray();
    if (times.isEmpty())
        theOut << "  -\n";
    for (const QJsonValue& value : times) {
        const QJsonObject time = value.toObject();
        theOut << "  " << time[QStringLiteral("deliveryType")].toString().leftJustified(14)
               << time[QStringLiteral("express")].toString().leftJustified(10)
               << QStringLiteral("%1 to %2 days")
                      .arg(time[QStringLiteral("minDays")].toInt())
                      .arg(time[QStringLiteral("maxDays")].toInt())
               << '\n';
    }
}

void writePrice(const QJsonObject& theReport, QTextStream& theOut)
{
    theOut << QStringLiteral("Article %1, %2 piece(s), order source %3")
                  .arg(theReport[QStringLiteral("article")].toInt())
                  .arg(theReport[QStringLiteral("count")].toInt())
                  .arg(theReport[QStringLiteral("source")].toString())
           << '\n';
    const QString winner = theReport[QStringLiteral("model")].toString();
    for (const QJsonValue& value : theReport[QStringLiteral("candidates")].toArray()) {
        const QJsonObject candidate = value.toObject();
        const QString model = candidate[QStringLiteral("model")].toString();
        theOut << "  model " << model.leftJustified(7) << amountText(candidate[QStringLiteral("amount")])
               << (model == winner ? QStringLiteral("  <- chosen") : QString()) << '\n';
    }
    theOut << "Amount: " << amountText(theReport[QStringLiteral("amount")]);
    if (!winner.isEmpty())
        theOut << " (model " << winner << ')';
    theOut << '\n';
}

} // namespace

ZTAPMCommandLine::ZTAPMCommandLine() = default;

void ZTAPMCommandLine::collectMessage(QtMsgType theType, const QMessageLogContext&, const QString& theMessage)
{
    if (theType == QtWarningMsg || theType == QtCriticalMsg || theType == QtFatalMsg)
        theWarnings.append(theMessage);
    else if (!theVerbose)
        return;
    std::fprintf(stderr, "%s\n", qPrintable(theMessage));
}

int ZTAPMCommandLine::run(const QStringList& theArguments)
{
    QCommandLineParser parser;
    myParser = &parser;
    parser.setApplicationDescription(QStringLiteral("Runs the ZTAPM engine on a key account.\n\n") +
                                     theCommandsHelp);
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption dataOption(
        QStringLiteral("data"), QStringLiteral("Key-account directory (default: the demo key account)."),
        QStringLiteral("DIR"));
    const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("Print one JSON document."));
    const QCommandLineOption verboseOption(QStringLiteral("verbose"),
                                           QStringLiteral("Show the engine's log."));
    const QCommandLineOption sourceOption(QStringLiteral("source"),
                                          QStringLiteral("price: the order source (default online-mail)."),
                                          QStringLiteral("S"), QStringLiteral("online-mail"));
    const QCommandLineOption sumOption(QStringLiteral("sum"),
                                       QStringLiteral("price: the goods' sum in hundredths, for \"z\" rows."),
                                       QStringLiteral("CENTS"), QStringLiteral("0"));
    const QCommandLineOption modelOption(QStringLiteral("model"),
                                         QStringLiteral("price: \"x\" to price an express fee."),
                                         QStringLiteral("M"));
    parser.addOptions({dataOption, jsonOption, verboseOption, sourceOption, sumOption, modelOption});
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("What to do (see above)."),
                                 QStringLiteral("[command] [arguments]"));
    if (!parser.parse(theArguments))
        return fail(UsageError, parser.errorText());
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp(Success);
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();

    myJson = parser.isSet(jsonOption);
    theVerbose = parser.isSet(verboseOption);

    QStringList arguments = parser.positionalArguments();
    const QString command = arguments.isEmpty() ? QStringLiteral("startup") : arguments.takeFirst();
    const bool known = command == QLatin1String("startup") || command == QLatin1String("catalogue") ||
                       command == QLatin1String("article") || command == QLatin1String("price");
    if (!known)
        return fail(UsageError, QStringLiteral("unknown command '%1'; see --help").arg(command));
    if (command != QLatin1String("price") &&
        (parser.isSet(sourceOption) || parser.isSet(sumOption) || parser.isSet(modelOption)))
        return fail(UsageError, QStringLiteral("--source, --sum and --model go with the command price"));

    ZTProgramConfig* config = ZTSingleton<ZTProgramConfig>::instance();
    if (parser.isSet(dataOption))
        config->setKeyAccountDirectory(QDir(parser.value(dataOption)).absolutePath());
    if (!QFileInfo(config->keyAccountDirectory()).isDir())
        return fail(NotFound,
                    QStringLiteral("data directory '%1' does not exist").arg(config->keyAccountDirectory()));

    if (command == QLatin1String("startup") && !arguments.isEmpty())
        return fail(UsageError, QStringLiteral("startup takes no arguments"));
    if (command == QLatin1String("catalogue") && !arguments.isEmpty())
        return fail(UsageError, QStringLiteral("catalogue takes no arguments"));

    ZTSingleton<ZTInitializer>::instance()->setupAll();
    if (command == QLatin1String("catalogue"))
        return runCatalogue();
    if (command == QLatin1String("article"))
        return runArticle(arguments);
    if (command == QLatin1String("price"))
        return runPrice(arguments);
    return runStartup();
}

int ZTAPMCommandLine::fail(ExitStatus theStatus, const QString& theMessage) const
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(QCoreApplication::applicationName()), qPrintable(theMessage));
    return theStatus;
}

int ZTAPMCommandLine::report(const QJsonObject& theReport,
                             void (*theTextWriter)(const QJsonObject&, QTextStream&)) const
{
    QTextStream out(stdout);
    if (myJson)
        out << QJsonDocument(theReport).toJson(QJsonDocument::Indented);
    else
        theTextWriter(theReport, out);
    return Success;
}

ZTProductAbstract* ZTAPMCommandLine::productArgument(const QString& theText, int* theStatus) const
{
    bool ok = false;
    const int id = theText.toInt(&ok);
    if (!ok || id <= 0) {
        *theStatus = fail(UsageError, QStringLiteral("'%1' is no article id").arg(theText));
        return nullptr;
    }
    ZTProductAbstract* product = ZTSingleton<ZTAPMDataBase>::instance()->productAbstract(ZTArticleId(id));
    if (!product)
        *theStatus =
            fail(NotFound, QStringLiteral("article %1 does not exist in %2")
                               .arg(id)
                               .arg(ZTSingleton<ZTProgramConfig>::instance()->keyAccountDirectory()));
    return product;
}

int ZTAPMCommandLine::runStartup()
{
    ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
    const QList<QPair<QString, ZTResourceFile>> files{
        {QStringLiteral("products"), ZTResourceFile(ZTKeyAccountDataType(ZTKeyAccountDataTypeProducts))},
        {QStringLiteral("prices"), ZTResourceFile(ZTKeyAccountDataType(ZTKeyAccountDataTypePrices))},
        {QStringLiteral("delivery times"),
         ZTResourceFile(ZTKeyAccountDataType(ZTKeyAccountDataTypeDeliveryTimes))},
        {QStringLiteral("ordering details"), ZTResourceFile(ZTResourceFileTypeOrderingDetails)},
        {QStringLiteral("currencies"), ZTResourceFile(ZTResourceFileTypeCurrencies)},
        {QStringLiteral("configuration"), ZTResourceFile(ZTResourceFileTypeConfig)},
    };
    QJsonArray documents;
    for (const auto& [name, file] : files) {
        const QFileInfo info = file.fileInfo(false, QString());
        documents.append(QJsonObject{{QStringLiteral("name"), name},
                                     {QStringLiteral("file"), info.fileName()},
                                     {QStringLiteral("present"), info.isFile()},
                                     {QStringLiteral("bytes"), info.isFile() ? info.size() : 0}});
    }
    // In the order of registries().
    const QList<QPair<QString, int>> registries{
        {QStringLiteral("products"), dataBase->products()->productCount()},
        {QStringLiteral("payment fees"), dataBase->paymentFees()->productCount()},
        {QStringLiteral("transfer fees"), dataBase->transferFees()->productCount()},
        {QStringLiteral("express fees"), dataBase->expressFees()->productCount()},
        {QStringLiteral("shipment method fees"), dataBase->shipmentMethodFees()->productCount()},
    };
    QJsonArray registryReport;
    for (const auto& [name, count] : registries)
        registryReport.append(
            QJsonObject{{QStringLiteral("name"), name}, {QStringLiteral("products"), count}});
    return report(
        {{QStringLiteral("keyAccount"), ZTSingleton<ZTProgramConfig>::instance()->keyAccountDirectory()},
         {QStringLiteral("documents"), documents},
         {QStringLiteral("productsRead"), dataBase->productUpdateCount()},
         {QStringLiteral("registries"), registryReport},
         {QStringLiteral("warnings"), QJsonArray::fromStringList(theWarnings)}},
        &writeStartup);
}

int ZTAPMCommandLine::runCatalogue()
{
    QJsonArray products;
    for (ZTProductAbstract* product : allProducts(ZTSingleton<ZTAPMDataBase>::instance())) {
        QJsonObject lowest;
        for (const OrderSourceName& source : theOrderSources) {
            const ZTOrderSource orderSource = source.make();
            const ZTMoney price = product->minPriceFor(ZTAPMPriceKey(orderSource), false);
            lowest.insert(orderSource.toLogString(), price.value() == ZTMoney::noPrice
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
    return report(
        {{QStringLiteral("keyAccount"), ZTSingleton<ZTProgramConfig>::instance()->keyAccountDirectory()},
         {QStringLiteral("products"), products}},
        &writeCatalogue);
}

int ZTAPMCommandLine::runArticle(const QStringList& theArguments)
{
    if (theArguments.size() != 1)
        return fail(UsageError, QStringLiteral("usage: article ID"));
    int status = Success;
    ZTProductAbstract* product = productArgument(theArguments.first(), &status);
    if (!product)
        return status;

    const ZTAPMArticleDefinition definition = product->articleDefinition();
    const ZTAPMArticlePriceInfo priceInfo = product->priceInfo();
    const ZTPageCountOrganization pages = definition.pageCountOrganization();

    QJsonArray prices;
    for (const OrderSourceName& source : theOrderSources) {
        const ZTOrderSource orderSource = source.make();
        const QList<ZTAPMPriceValue> values = priceInfo.ladder(orderSource);
        if (values.isEmpty())
            continue;
        QJsonArray ladder;
        for (const ZTAPMPriceValue& value : std::as_const(values)) {
            const bool offer = value.isOfferPriceValid();
            ladder.append(QJsonObject{
                {QStringLiteral("from"), value.lowerLimit()},
                {QStringLiteral("to"), value.upperLimit()},
                {QStringLiteral("model"), modelName(value.discountModel())},
                {QStringLiteral("level"), value.discountLevel()},
                {QStringLiteral("price"), amountJson(value.price())},
                {QStringLiteral("offer"), offer},
                {QStringLiteral("nonOfferPrice"), offer ? amountJson(value.nonOfferPrice()) : QJsonValue()}});
        }
        prices.append(QJsonObject{{QStringLiteral("source"), orderSource.toLogString()},
                                  {QStringLiteral("rows"), ladder}});
    }

    QJsonArray deliveryTimes;
    for (const ZTAPMDeliveryTime& time : product->deliveryTimes()) {
        const ZTDeliveryType deliveryType = time.deliveryType();
        deliveryTimes.append(
            QJsonObject{{QStringLiteral("deliveryType"),
                         deliveryType == ZTDeliveryTypeMailOrder
                             ? QStringLiteral("mail order")
                             : (deliveryType == ZTDeliveryTypePointOfSale ? QStringLiteral("point of sale")
                                                                          : QStringLiteral("any"))},
                        {QStringLiteral("express"), time.expressType().matches(ZTExpressTypeExpress)
                                                        ? QStringLiteral("express")
                                                        : QStringLiteral("standard")},
                        {QStringLiteral("minDays"), time.minDays()},
                        {QStringLiteral("maxDays"), time.maxDays()}});
    }

    return report(
        {{QStringLiteral("id"), product->articleId().id()},
         {QStringLiteral("name"), product->name()},
         {QStringLiteral("articleClass"), product->articleClass().encodeCSV()},
         {QStringLiteral("shippingGroup"), groupJson(product->shippingGroupId())},
         {QStringLiteral("productType"), definition.productType().name()},
         {QStringLiteral("orderTxtHead"), definition.orderTxtHead()},
         {QStringLiteral("pages"), QJsonObject{{QStringLiteral("min"), pages.minPages()},
                                               {QStringLiteral("max"), pages.maxPages()},
                                               {QStringLiteral("increment"), pages.pageIncrement()}}},
         {QStringLiteral("linkedArticles"), idsJson(definition.linkedArticleIds())},
         {QStringLiteral("requiredAddOns"), idsJson(definition.requiredAddOns())},
         {QStringLiteral("deprecated"), product->isDeprecated()},
         {QStringLiteral("prices"), prices},
         {QStringLiteral("deliveryTimes"), deliveryTimes}},
        &writeArticle);
}

int ZTAPMCommandLine::runPrice(const QStringList& theArguments)
{
    if (theArguments.size() != 2)
        return fail(UsageError,
                    QStringLiteral("usage: price ID COUNT [--source S] [--sum CENTS] [--model x]"));
    bool countOk = false;
    const int count = theArguments.at(1).toInt(&countOk);
    if (!countOk || count < 0)
        return fail(UsageError, QStringLiteral("'%1' is no number of pieces").arg(theArguments.at(1)));
    const ZTOrderSource orderSource = orderSourceNamed(myParser->value(QStringLiteral("source")));
    if (!orderSource.isValid())
        return fail(UsageError,
                    QStringLiteral("unknown order source '%1'; use online-pos, online-mail or cd-pos")
                        .arg(myParser->value(QStringLiteral("source"))));
    bool sumOk = false;
    const int sum = myParser->value(QStringLiteral("sum")).toInt(&sumOk);
    if (!sumOk || sum < 0)
        return fail(UsageError, QStringLiteral("'%1' is no goods' sum in hundredths")
                                    .arg(myParser->value(QStringLiteral("sum"))));
    const bool express = myParser->isSet(QStringLiteral("model"));
    if (express && myParser->value(QStringLiteral("model")) != QLatin1String("x"))
        return fail(UsageError,
                    QStringLiteral("--model takes only x (an express fee); the engine chooses every "
                                   "other model"));
    int status = Success;
    ZTProductAbstract* product = productArgument(theArguments.first(), &status);
    if (!product)
        return status;

    const ZTAPMPriceKey key(orderSource, 0,
                            express ? ZTDiscountModel(ZTDiscountModelExpressFee) : ZTDiscountModel());
    const ZTAPMPriceExplanation explanation = product->explainPrice(key, count, ZTMoney(sum), nullptr);
    QJsonArray candidates;
    for (const ZTAPMPriceExplanation::Candidate& candidate : explanation.candidates())
        candidates.append(QJsonObject{{QStringLiteral("model"), modelName(candidate.first)},
                                      {QStringLiteral("amount"), amountJson(candidate.second)}});
    return report({{QStringLiteral("article"), product->articleId().id()},
                   {QStringLiteral("count"), count},
                   {QStringLiteral("source"), orderSource.toLogString()},
                   {QStringLiteral("model"),
                    explanation.chosenModel().isNull() ? QString() : modelName(explanation.chosenModel())},
                   {QStringLiteral("amount"), amountJson(explanation.amount())},
                   {QStringLiteral("candidates"), candidates}},
                  &writePrice);
}
