#include "ZTAPMCommandLine.h"

#include "ZTAPMArticleCommand.h"
#include "ZTAPMCatalogueCommand.h"
#include "ZTAPMCheckCommand.h"
#include "ZTAPMCommand.h"
#include "ZTAPMLadderCommand.h"
#include "ZTAPMOrderingCommand.h"
#include "ZTAPMPriceCommand.h"
#include "ZTAPMQuoteCommand.h"
#include "ZTAPMResultCommand.h"
#include "ZTAPMStartupCommand.h"
#include "ZTInitializer.h"
#include "ZTProgramConfig.h"
#include "ZTTranslations.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>
#include <QTextStream>

// The commands, in the order of --help; the first one runs when none is named. To add a command,
// write a class ZTAPMFooCommand derived from ZTAPMCommand in ZTAPMFooCommand.h and .cpp (its name
// and help lines, its own options, how it reads its arguments, the report it builds and its text
// writer), list the two files in CMakeLists.txt, include the header above and add one line here.
// Give the command a golden file of its text and JSON output under tests/data/ztapm-*/.
ZTAPMCommandLine::ZTAPMCommandLine()
{
    add<ZTAPMStartupCommand>();
    add<ZTAPMCatalogueCommand>();
    add<ZTAPMArticleCommand>();
    add<ZTAPMPriceCommand>();
    // After price, whose --source brings the default that price relies on.
    add<ZTAPMLadderCommand>();
    add<ZTAPMQuoteCommand>();
    add<ZTAPMOrderingCommand>();
    add<ZTAPMResultCommand>();
    add<ZTAPMCheckCommand>();
}

ZTAPMCommandLine::~ZTAPMCommandLine() = default;

int ZTAPMCommandLine::run(const QStringList& theArguments)
{
    // The language comes first: the help below is written in it, and the engine translates some
    // of its texts while it starts.
    const QString requested = requestedLanguage(theArguments);
    const bool known = requested.isEmpty() || languages().contains(requested);
    ZTTranslations::install(known && !requested.isEmpty() ? requested : environmentLanguage(),
                            {QStringLiteral("ZTCore"), QStringLiteral("ZTXML"),
                             QStringLiteral("ZTProductBase"), QStringLiteral("ZTAPM"),
                             QStringLiteral("ztapm-command")});

    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Runs the ZTAPM engine on a key account.") + QStringLiteral("\n\n") +
                                     commandsHelp());
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption dataOption(QStringLiteral("data"),
                                        tr("Key-account directory (default: the demo key account)."),
                                        QStringLiteral("DIR"));
    const QCommandLineOption jsonOption(QStringLiteral("json"), tr("Print one JSON document."));
    const QCommandLineOption verboseOption(QStringLiteral("verbose"), tr("Show the engine's log."));
    const QCommandLineOption languageOption(
        QStringLiteral("lang"),
        tr("Language of the output, %1 (default: from LC_ALL, LC_MESSAGES or LANG, English unless German).")
            .arg(ZTAPMCommand::joined(languages(), tr("or"))),
        QStringLiteral("LANG"));
    parser.addOptions({dataOption, jsonOption, verboseOption, languageOption});
    QStringList valueOptions = dataOption.names() + languageOption.names();
    // Every command's options, each once: two commands may share one.
    QSet<QString> optionNames;
    for (const auto& command : myCommands) {
        for (const QCommandLineOption& option : command->options()) {
            if (!optionNames.contains(option.names().first())) {
                optionNames.insert(option.names().first());
                parser.addOption(option);
                if (!option.valueName().isEmpty())
                    valueOptions.append(option.names());
            }
        }
    }
    parser.addPositionalArgument(QStringLiteral("command"), tr("What to do (see above)."),
                                 QStringLiteral("[command] [arguments]"));
    if (!parser.parse(negativeNumbersAsArguments(theArguments, valueOptions)))
        return ZTAPMCommand::fail(ZTAPMCommand::UsageError, parser.errorText());
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp(ZTAPMCommand::Success);
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    if (!known)
        return ZTAPMCommand::fail(
            ZTAPMCommand::UsageError,
            tr("--lang takes %1, not '%2'").arg(ZTAPMCommand::joined(languages(), tr("or")), requested));
    ZTAPMCommand::setVerbose(parser.isSet(verboseOption));

    QStringList arguments = parser.positionalArguments();
    const QString name = arguments.isEmpty() ? myCommands.front()->name() : arguments.takeFirst();
    ZTAPMCommand* chosen = command(name);
    if (!chosen)
        return ZTAPMCommand::fail(ZTAPMCommand::UsageError, tr("unknown command '%1'; see --help").arg(name));
    if (const int status = checkForeignOptions(*chosen, parser))
        return status;

    // Start-up on the key account, as the ordering client does it.
    ZTProgramConfig* config = ZTSingleton<ZTProgramConfig>::instance();
    if (parser.isSet(dataOption))
        config->setKeyAccountDirectory(QDir(parser.value(dataOption)).absolutePath());
    if (!QFileInfo(config->keyAccountDirectory()).isDir())
        return ZTAPMCommand::fail(
            ZTAPMCommand::NotFound,
            tr("data directory '%1' does not exist").arg(config->keyAccountDirectory()));
    if (const int status = chosen->readArguments(arguments, parser))
        return status;
    ZTSingleton<ZTInitializer>::instance()->setupAll();

    QJsonObject report;
    if (const int status = chosen->run(report))
        return status;
    QTextStream out(stdout);
    if (parser.isSet(jsonOption))
        out << QJsonDocument(report).toJson(QJsonDocument::Indented);
    else
        chosen->writeText(report, out);
    return chosen->exitStatus(report);
}

ZTAPMCommand* ZTAPMCommandLine::command(const QString& theName) const
{
    for (const auto& command : myCommands) {
        if (command->name() == theName)
            return command.get();
    }
    return nullptr;
}

QString ZTAPMCommandLine::commandsHelp() const
{
    QString result = tr("Commands:") + QLatin1Char('\n');
    for (const auto& command : myCommands) {
        QStringList lines = command->summary().split(QLatin1Char('\n'));
        if (command == myCommands.front())
            lines.first() += tr(" (default)");
        result += QStringLiteral("  ") + command->synopsis().leftJustified(22) + QLatin1Char(' ') +
                  lines.join(QLatin1Char('\n') + QString(25, QLatin1Char(' '))) + QLatin1Char('\n');
    }
    return result + tr("Order sources (--source): %1.\n"
                       "Exit status: 0 done, 2 usage error, 3 data directory, file or article not found,\n"
                       "4 the file is no valid order calculation, 5 check found errors.")
                        .arg(ZTAPMCommand::orderSourcesHelp());
}

QStringList ZTAPMCommandLine::negativeNumbersAsArguments(const QStringList& theArguments,
                                                         const QStringList& theValueOptions)
{
    static const QRegularExpression negativeNumber(QStringLiteral("^-[0-9]+$"));
    QStringList options;
    QStringList positional;
    bool movedOne = false;
    for (int i = 0; i < theArguments.size(); ++i) {
        const QString& argument = theArguments.at(i);
        if (i == 0 || (argument.startsWith(QLatin1Char('-')) && argument != QLatin1String("-") &&
                       !negativeNumber.match(argument).hasMatch())) {
            if (argument == QLatin1String("--")) {
                positional.append(theArguments.mid(i + 1));
                break;
            }
            options.append(argument);
            // "--sum -5": the value belongs to its option, whatever it looks like.
            const QString name = argument.mid(argument.startsWith(QLatin1String("--")) ? 2 : 1);
            if (i > 0 && theValueOptions.contains(name) && i + 1 < theArguments.size())
                options.append(theArguments.at(++i));
            continue;
        }
        movedOne = movedOne || argument.startsWith(QLatin1Char('-'));
        positional.append(argument);
    }
    if (!movedOne)
        return theArguments;
    return options + QStringList{QStringLiteral("--")} + positional;
}

int ZTAPMCommandLine::checkForeignOptions(const ZTAPMCommand& theCommand,
                                          const QCommandLineParser& theParser) const
{
    QSet<QString> own;
    for (const QCommandLineOption& option : theCommand.options())
        own.insert(option.names().first());
    for (const auto& other : myCommands) {
        for (const QCommandLineOption& option : other->options()) {
            const QString optionName = option.names().first();
            if (own.contains(optionName) || !theParser.isSet(optionName))
                continue;
            // Name the options of the command it belongs to, or the commands that share it.
            QStringList owners;
            for (const auto& candidate : myCommands) {
                for (const QCommandLineOption& candidateOption : candidate->options()) {
                    if (candidateOption.names().first() == optionName)
                        owners.append(candidate->name());
                }
            }
            QStringList options;
            if (owners.size() == 1) {
                for (const QCommandLineOption& ownerOption : other->options())
                    options.append(QStringLiteral("--") + ownerOption.names().first());
            } else {
                options.append(QStringLiteral("--") + optionName);
            }
            // One command's options, or one option that several commands share.
            const QString message = owners.size() > 1     ? tr("%1 goes with the commands %2")
                                    : options.size() == 1 ? tr("%1 goes with the command %2")
                                                          : tr("%1 go with the command %2");
            return ZTAPMCommand::fail(ZTAPMCommand::UsageError,
                                      message.arg(ZTAPMCommand::joined(options, tr("and")),
                                                  ZTAPMCommand::joined(owners, tr("and"))));
        }
    }
    return ZTAPMCommand::Success;
}

QStringList ZTAPMCommandLine::languages()
{
    return {QStringLiteral("en"), QStringLiteral("de")};
}

QString ZTAPMCommandLine::environmentLanguage()
{
    return ZTTranslations::languageFromEnvironment() == QLatin1String("de") ? QStringLiteral("de")
                                                                            : QStringLiteral("en");
}

QString ZTAPMCommandLine::requestedLanguage(const QStringList& theArguments)
{
    // The last one wins, as with QCommandLineParser::value(); nothing after "--" is an option.
    QString result;
    for (int i = 1; i < theArguments.size(); ++i) {
        const QString& argument = theArguments.at(i);
        if (argument == QLatin1String("--"))
            break;
        if (argument == QLatin1String("--lang") && i + 1 < theArguments.size())
            result = theArguments.at(++i);
        else if (argument.startsWith(QLatin1String("--lang=")))
            result = argument.mid(7);
    }
    return result;
}

std::unique_ptr<QCoreApplication> ZTAPMCommandLine::createApplication(int& theArgc, char** theArgv) const
{
    QStringList valueOptions{QStringLiteral("data"), QStringLiteral("lang")};
    for (const auto& command : myCommands) {
        for (const QCommandLineOption& option : command->options()) {
            if (!option.valueName().isEmpty())
                valueOptions.append(option.names());
        }
    }
    // The first argument that is neither an option nor an option's value names the command.
    QString name = myCommands.front()->name();
    for (int i = 1; i < theArgc; ++i) {
        const QString argument = QString::fromLocal8Bit(theArgv[i]);
        if (argument == QLatin1String("--")) {
            if (i + 1 < theArgc)
                name = QString::fromLocal8Bit(theArgv[i + 1]);
            break;
        }
        if (argument.startsWith(QLatin1Char('-')) && argument.size() > 1) {
            const QString option = argument.mid(argument.startsWith(QLatin1String("--")) ? 2 : 1);
            if (valueOptions.contains(option))
                ++i;
            continue;
        }
        name = argument;
        break;
    }
    const ZTAPMCommand* chosen = command(name);
    if (!chosen || !chosen->needsGuiApplication())
        return std::make_unique<QCoreApplication>(theArgc, theArgv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(theArgc, theArgv);
}
