#include "ZTAPMStartupCommand.h"

#include "ZTAPMDataBase.h"
#include "ZTKeyAccountDataType.h"
#include "ZTResourceFile.h"

#include <QTextStream>

QString ZTAPMStartupCommand::name() const
{
    return QStringLiteral("startup");
}

QString ZTAPMStartupCommand::synopsis() const
{
    return name();
}

QString ZTAPMStartupCommand::summary() const
{
    return QStringLiteral("run the engine's start-up and report what it loaded");
}

int ZTAPMStartupCommand::readArguments(const QStringList& theArguments, const QCommandLineParser&)
{
    return noArguments(theArguments);
}

int ZTAPMStartupCommand::run(QJsonObject& theReport)
{
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

    const ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
    // In the order of ZTAPMDataBase::registries().
    const QStringList registryNames{QStringLiteral("products"), QStringLiteral("payment fees"),
                                    QStringLiteral("transfer fees"), QStringLiteral("express fees"),
                                    QStringLiteral("shipment method fees")};
    const QList<int> counts = dataBase->productCounts();
    QJsonArray registries;
    for (int i = 0; i < registryNames.size(); ++i)
        registries.append(QJsonObject{{QStringLiteral("name"), registryNames.at(i)},
                                      {QStringLiteral("products"), counts.value(i)}});

    theReport = {{QStringLiteral("keyAccount"), keyAccountDirectory()},
                 {QStringLiteral("documents"), documents},
                 {QStringLiteral("productsRead"), dataBase->productUpdateCount()},
                 {QStringLiteral("registries"), registries},
                 {QStringLiteral("warnings"), QJsonArray::fromStringList(warnings())}};
    return Success;
}

void ZTAPMStartupCommand::writeText(const QJsonObject& theReport, QTextStream& theOut) const
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
    const QJsonArray reported = theReport[QStringLiteral("warnings")].toArray();
    theOut << "Warnings: " << reported.size() << '\n';
    for (const QJsonValue& warning : reported)
        theOut << "  " << warning.toString() << '\n';
}
