#include "ZTAPMCheckCommand.h"

#include "ZTAPMCatalogueCheck.h"

#include <QDir>
#include <QTextStream>

namespace {

const QList<ZTDiagnostic::Severity> severities{ZTDiagnostic::Error, ZTDiagnostic::Warning,
                                               ZTDiagnostic::Note};

// "products.xml:12:5", "products.xml:12" or "products.xml", as far as the place is known.
QString placeText(const QJsonObject& theFinding)
{
    QString result = theFinding[QStringLiteral("file")].toString();
    const int line = theFinding[QStringLiteral("line")].toInt();
    const int column = theFinding[QStringLiteral("column")].toInt();
    if (line > 0)
        result += QLatin1Char(':') + QString::number(line);
    if (line > 0 && column > 0)
        result += QLatin1Char(':') + QString::number(column);
    return result;
}

} // namespace

ZTAPMCheckCommand::ZTAPMCheckCommand() = default;
ZTAPMCheckCommand::~ZTAPMCheckCommand() = default;

QString ZTAPMCheckCommand::name() const
{
    return QStringLiteral("check");
}

QString ZTAPMCheckCommand::synopsis() const
{
    return name();
}

QString ZTAPMCheckCommand::summary() const
{
    return QStringLiteral("check the key account's documents: each problem with file, line,\n"
                          "column and severity; exit status 5 if one is an error");
}

int ZTAPMCheckCommand::readArguments(const QStringList& theArguments, const QCommandLineParser&)
{
    if (const int status = noArguments(theArguments))
        return status;
    // The findings stand for the log, which the readings that start now would write.
    setWarningsShown(false);
    // In place before the start-up reads the first document.
    myCheck = std::make_unique<ZTAPMCatalogueCheck>();
    return Success;
}

int ZTAPMCheckCommand::run(QJsonObject& theReport)
{
    const QDir keyAccount(keyAccountDirectory());
    QJsonArray findings;
    QList<int> counts(severities.size(), 0);
    for (const ZTDiagnostic& finding : myCheck->run()) {
        ++counts[severities.indexOf(finding.severity())];
        findings.append(
            QJsonObject{{QStringLiteral("file"), keyAccount.relativeFilePath(finding.file())},
                        {QStringLiteral("line"), finding.line()},
                        {QStringLiteral("column"), finding.column()},
                        {QStringLiteral("severity"), ZTDiagnostic::severityName(finding.severity())},
                        {QStringLiteral("message"), finding.message()}});
    }
    QJsonObject countsJson;
    for (int i = 0; i < severities.size(); ++i)
        countsJson.insert(ZTDiagnostic::severityName(severities.at(i)), counts.at(i));
    theReport = {{QStringLiteral("keyAccount"), keyAccountDirectory()},
                 {QStringLiteral("findings"), findings},
                 {QStringLiteral("counts"), countsJson}};
    return Success;
}

void ZTAPMCheckCommand::writeText(const QJsonObject& theReport, QTextStream& theOut) const
{
    for (const QJsonValue& value : theReport[QStringLiteral("findings")].toArray()) {
        const QJsonObject finding = value.toObject();
        theOut << placeText(finding) << ": " << finding[QStringLiteral("severity")].toString() << ": "
               << finding[QStringLiteral("message")].toString() << '\n';
    }
    const QJsonObject counts = theReport[QStringLiteral("counts")].toObject();
    QStringList parts;
    for (const ZTDiagnostic::Severity severity : severities) {
        const QString name = ZTDiagnostic::severityName(severity);
        const int count = counts[name].toInt();
        parts.append(
            QStringLiteral("%1 %2%3").arg(count).arg(name, count == 1 ? QString() : QStringLiteral("s")));
    }
    theOut << parts.join(QStringLiteral(", ")) << '\n';
}

int ZTAPMCheckCommand::exitStatus(const QJsonObject& theReport) const
{
    const int errors = theReport[QStringLiteral("counts")].toObject()[QStringLiteral("error")].toInt();
    return errors > 0 ? ErrorsFound : Success;
}
