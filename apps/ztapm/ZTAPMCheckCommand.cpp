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

// The severity of a finding (a keyword of JSON) for a person.
QString severityText(const QString& theName)
{
    if (theName == ZTDiagnostic::severityName(ZTDiagnostic::Error))
        return ZTAPMCheckCommand::tr("error");
    if (theName == ZTDiagnostic::severityName(ZTDiagnostic::Warning))
        return ZTAPMCheckCommand::tr("warning");
    if (theName == ZTDiagnostic::severityName(ZTDiagnostic::Note))
        return ZTAPMCheckCommand::tr("note");
    return theName;
}

// "1 error", "2 warnings": a whole text for one and for more, as languages differ in both.
QString countText(ZTDiagnostic::Severity theSeverity, int theCount)
{
    const bool one = theCount == 1;
    switch (theSeverity) {
    case ZTDiagnostic::Error:
        return (one ? ZTAPMCheckCommand::tr("%1 error") : ZTAPMCheckCommand::tr("%1 errors")).arg(theCount);
    case ZTDiagnostic::Warning:
        return (one ? ZTAPMCheckCommand::tr("%1 warning") : ZTAPMCheckCommand::tr("%1 warnings"))
            .arg(theCount);
    case ZTDiagnostic::Note:
        return (one ? ZTAPMCheckCommand::tr("%1 note") : ZTAPMCheckCommand::tr("%1 notes")).arg(theCount);
    }
    return QString::number(theCount);
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
    return tr("check the key account's documents: each problem with file, line,\n"
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
        theOut << tr("%1: %2: %3")
                      .arg(placeText(finding), severityText(finding[QStringLiteral("severity")].toString()),
                           finding[QStringLiteral("message")].toString())
               << '\n';
    }
    const QJsonObject counts = theReport[QStringLiteral("counts")].toObject();
    QStringList parts;
    for (const ZTDiagnostic::Severity severity : severities)
        parts.append(countText(severity, counts[ZTDiagnostic::severityName(severity)].toInt()));
    theOut << parts.join(QStringLiteral(", ")) << '\n';
}

int ZTAPMCheckCommand::exitStatus(const QJsonObject& theReport) const
{
    const int errors = theReport[QStringLiteral("counts")].toObject()[QStringLiteral("error")].toInt();
    return errors > 0 ? ErrorsFound : Success;
}
