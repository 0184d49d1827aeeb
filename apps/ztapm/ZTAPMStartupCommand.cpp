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
    return tr("run the engine's start-up and report what it loaded");
}

int ZTAPMStartupCommand::readArguments(const QStringList& theArguments, const QCommandLineParser&)
{
    return noArguments(theArguments);
}

int ZTAPMStartupCommand::run(QJsonObject& theReport)
{
    // The names are the same in every language in JSON; the text report translates them.
    const QList<QPair<QString, ZTResourceFile>> files{
        {QStringLiteral(QT_TR_NOOP("products")),
         ZTResourceFile(ZTKeyAccountDataType(ZTKeyAccountDataTypeProducts))},
        {QStringLiteral(QT_TR_NOOP("prices")),
         ZTResourceFile(ZTKeyAccountDataType(ZTKeyAccountDataTypePrices))},
        {QStringLiteral(QT_TR_NOOP("delivery times")),
         ZTResourceFile(ZTKeyAccountDataType(ZTKeyAccountDataTypeDeliveryTimes))},
        {QStringLiteral(QT_TR_NOOP("ordering details")), ZTResourceFile(ZTResourceFileTypeOrderingDetails)},
        {QStringLiteral(QT_TR_NOOP("currencies")), ZTResourceFile(ZTResourceFileTypeCurrencies)},
        {QStringLiteral(QT_TR_NOOP("configuration")), ZTResourceFile(ZTResourceFileTypeConfig)},
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
    const QStringList registryNames{
        QStringLiteral(QT_TR_NOOP("products")), QStringLiteral(QT_TR_NOOP("payment fees")),
        QStringLiteral(QT_TR_NOOP("transfer fees")), QStringLiteral(QT_TR_NOOP("express fees")),
        QStringLiteral(QT_TR_NOOP("shipment method fees"))};
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
    // The names of documents and registries come in English from the report.
    const auto translated = [](const QJsonValue& theName) {
        return tr(theName.toString().toUtf8().constData());
    };
    theOut << tr("Key account: %1").arg(theReport[QStringLiteral("keyAccount")].toString()) << '\n'
           << tr("Documents:") << '\n';
    for (const QJsonValue& value : theReport[QStringLiteral("documents")].toArray()) {
        const QJsonObject document = value.toObject();
        const bool present = document[QStringLiteral("present")].toBool();
        writeColumns(
            theOut,
            {QStringLiteral(" "), translated(document[QStringLiteral("name")]),
             document[QStringLiteral("file")].toString(),
             present ? tr("%1 bytes").arg(document[QStringLiteral("bytes")].toInteger()) : tr("missing")},
            {1, 18, 22});
    }
    theOut << tr("Products document read into the registries: %1 time(s)")
                  .arg(theReport[QStringLiteral("productsRead")].toInt())
           << '\n'
           << tr("Registries:") << '\n';
    for (const QJsonValue& value : theReport[QStringLiteral("registries")].toArray()) {
        const QJsonObject registry = value.toObject();
        writeColumns(theOut,
                     {QStringLiteral(" "), translated(registry[QStringLiteral("name")]),
                      QString::number(registry[QStringLiteral("products")].toInt())},
                     {1, 22});
    }
    const QJsonArray reported = theReport[QStringLiteral("warnings")].toArray();
    theOut << tr("Warnings: %1").arg(reported.size()) << '\n';
    for (const QJsonValue& warning : reported)
        theOut << "  " << warning.toString() << '\n';
}
