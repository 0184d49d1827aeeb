// ztapm: the engine's command-line host. It runs the engine's start-up on a key account the way
// the ordering client does and reports what came of it.

#include "ZTAPMDataBase.h"
#include "ZTAPMInitializer.h"
#include "ZTInitializer.h"
#include "ZTKeyAccount.h"
#include "ZTKeyAccountDataType.h"
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
#include <QJsonObject>
#include <QTextStream>

#include <cstdio>

namespace {

enum ExitStatus { Success = 0, UsageError = 2, DataMissing = 3 };

QStringList theWarnings;
bool theVerbose = false;

// Warnings are part of the report; they go to stderr as they happen and are counted. Info lines
// ("Creating...") only with --verbose, so that stdout stays clean for --json.
void collectMessages(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtWarningMsg || type == QtCriticalMsg || type == QtFatalMsg)
        theWarnings.append(message);
    else if (!theVerbose)
        return;
    std::fprintf(stderr, "%s\n", qPrintable(message));
}

int fail(ExitStatus status, const QString& message)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(QCoreApplication::applicationName()), qPrintable(message));
    return status;
}

struct Document
{
    QString name;
    ZTResourceFile file;
};

QList<Document> keyAccountDocuments()
{
    return {
        {QStringLiteral("products"), ZTResourceFile(ZTKeyAccountDataType(ZTKeyAccountDataTypeProducts))},
        {QStringLiteral("prices"), ZTResourceFile(ZTKeyAccountDataType(ZTKeyAccountDataTypePrices))},
        {QStringLiteral("delivery times"),
         ZTResourceFile(ZTKeyAccountDataType(ZTKeyAccountDataTypeDeliveryTimes))},
        {QStringLiteral("ordering details"), ZTResourceFile(ZTResourceFileTypeOrderingDetails)},
        {QStringLiteral("currencies"), ZTResourceFile(ZTResourceFileTypeCurrencies)},
        {QStringLiteral("configuration"), ZTResourceFile(ZTResourceFileTypeConfig)},
    };
}

const char* const theRegistryNames[] = {"products", "payment fees", "transfer fees", "express fees",
                                        "shipment method fees"};

int runStartup(bool json)
{
    ZTSingleton<ZTInitializer>::instance()->setupAll();
    ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();

    QJsonArray documents;
    for (const Document& document : keyAccountDocuments()) {
        const QFileInfo info = document.file.fileInfo(false, QString());
        documents.append(QJsonObject{{QStringLiteral("name"), document.name},
                                     {QStringLiteral("file"), info.fileName()},
                                     {QStringLiteral("present"), info.isFile()},
                                     {QStringLiteral("bytes"), info.isFile() ? double(info.size()) : 0.0}});
    }
    // In the order of registries().
    const int productCounts[] = {
        dataBase->products()->productCount(), dataBase->paymentFees()->productCount(),
        dataBase->transferFees()->productCount(), dataBase->expressFees()->productCount(),
        dataBase->shipmentMethodFees()->productCount()};
    QJsonArray registries;
    for (int i = 0; i < dataBase->registries().size(); ++i) {
        registries.append(QJsonObject{{QStringLiteral("name"), QLatin1String(theRegistryNames[i])},
                                      {QStringLiteral("products"), productCounts[i]}});
    }
    const QJsonObject report{
        {QStringLiteral("keyAccount"), ZTSingleton<ZTProgramConfig>::instance()->keyAccountDirectory()},
        {QStringLiteral("documents"), documents},
        {QStringLiteral("productsRead"), dataBase->productUpdateCount()},
        {QStringLiteral("registries"), registries},
        {QStringLiteral("warnings"), QJsonArray::fromStringList(theWarnings)},
    };

    QTextStream out(stdout);
    if (json) {
        out << QJsonDocument(report).toJson(QJsonDocument::Indented);
        return Success;
    }
    out << "Key account: " << report[QStringLiteral("keyAccount")].toString() << '\n' << "Documents:\n";
    for (const auto& value : documents) {
        const QJsonObject document = value.toObject();
        out << "  " << qSetFieldWidth(18) << Qt::left << document[QStringLiteral("name")].toString()
            << qSetFieldWidth(0) << ' ' << qSetFieldWidth(22) << document[QStringLiteral("file")].toString()
            << qSetFieldWidth(0)
            << (document[QStringLiteral("present")].toBool()
                    ? QStringLiteral("%1 bytes").arg(qint64(document[QStringLiteral("bytes")].toDouble()))
                    : QStringLiteral("missing"))
            << '\n';
    }
    out << "Products document read into the registries: " << dataBase->productUpdateCount() << " time(s)\n"
        << "Registries:";
    for (const auto& value : registries) {
        const QJsonObject registry = value.toObject();
        out << ' ' << registry[QStringLiteral("name")].toString() << ' '
            << registry[QStringLiteral("products")].toInt() << ';';
    }
    out << '\n' << "Warnings: " << theWarnings.size() << '\n';
    for (const QString& warning : std::as_const(theWarnings))
        out << "  " << warning << '\n';
    return Success;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("ztapm"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZTAPM_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Runs the ZTAPM engine on a key account.\n\nCommands:\n"
                       "  startup   run the engine's start-up and report what it loaded (default)"));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption dataOption(
        QStringLiteral("data"), QStringLiteral("Key-account directory (default: the demo key account)."),
        QStringLiteral("DIR"));
    const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("Print one JSON document."));
    const QCommandLineOption verboseOption(QStringLiteral("verbose"),
                                           QStringLiteral("Show the engine's log."));
    parser.addOptions({dataOption, jsonOption, verboseOption});
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("What to do."),
                                 QStringLiteral("[command]"));
    if (!parser.parse(QCoreApplication::arguments()))
        return fail(UsageError, parser.errorText());
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp(Success);
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();

    theVerbose = parser.isSet(verboseOption);
    qInstallMessageHandler(collectMessages);

    const QStringList arguments = parser.positionalArguments();
    const QString command = arguments.value(0, QStringLiteral("startup"));
    if (command != QLatin1String("startup") || arguments.size() > 1)
        return fail(UsageError,
                    QStringLiteral("unknown command '%1'; see --help").arg(arguments.join(QLatin1Char(' '))));

    if (parser.isSet(dataOption)) {
        const QString directory = parser.value(dataOption);
        if (!QFileInfo(directory).isDir())
            return fail(DataMissing, QStringLiteral("data directory '%1' does not exist").arg(directory));
        ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(QDir(directory).absolutePath());
    } else if (!QFileInfo(ZTSingleton<ZTProgramConfig>::instance()->keyAccountDirectory()).isDir()) {
        return fail(DataMissing, QStringLiteral("data directory '%1' does not exist")
                                     .arg(ZTSingleton<ZTProgramConfig>::instance()->keyAccountDirectory()));
    }
    return runStartup(parser.isSet(jsonOption));
}
