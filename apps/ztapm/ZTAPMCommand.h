#ifndef ZTAPMCOMMAND_H
#define ZTAPMCOMMAND_H

#include <QCommandLineOption>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QStringList>

class QCommandLineParser;
class QTextStream;
class ZTArticleIdSet;
class ZTDiscountModel;
class ZTMoney;
class ZTOrderSource;
class ZTProductAbstract;
class ZTShippingGroupId;

// One command of the ztapm program. The dispatcher, ZTAPMCommandLine, hands a command its
// arguments before the engine starts, runs it once the engine has started on the key account, and
// prints the JSON report that it builds: as it is with --json, else through the command's text
// writer, which reads nothing but that report. What the commands share (exit statuses, names of
// order sources, amounts, columns) stands here, so that a command holds only its own questions.
class ZTAPMCommand
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMCommand)

public:
    enum ExitStatus { Success = 0, UsageError = 2, NotFound = 3, InvalidResult = 4, ErrorsFound = 5 };

    ZTAPMCommand();
    virtual ~ZTAPMCommand();

    // The word that selects the command.
    virtual QString name() const = 0;
    // For --help: the command with its arguments ("price ID COUNT") and what it prints; the
    // summary may run over several lines.
    virtual QString synopsis() const = 0;
    virtual QString summary() const = 0;
    // The options that only this command takes; the dispatcher refuses them with other commands.
    virtual QList<QCommandLineOption> options() const;
    // Whether the command draws text, which takes a QGuiApplication; false for all that print.
    virtual bool needsGuiApplication() const;

    // Reads the arguments after the command's name, and its options, before the engine starts.
    // Returns Success, or the status of a failure whose message is already written.
    virtual int readArguments(const QStringList& theArguments, const QCommandLineParser& theParser) = 0;
    // Asks the started engine and fills theReport; the status as above.
    virtual int run(QJsonObject& theReport) = 0;
    // The report for a person.
    virtual void writeText(const QJsonObject& theReport, QTextStream& theOut) const = 0;
    // The program's status once the report is printed: Success unless the command says otherwise.
    virtual int exitStatus(const QJsonObject& theReport) const;

    // Installed as Qt's message handler for the life of the program: warnings go to stderr as they
    // happen and are kept for the start-up report; the rest of the log only when verbose.
    static void collectMessage(QtMsgType theType, const QMessageLogContext& theContext,
                               const QString& theMessage);
    static void setVerbose(bool theVerbose);
    // Whether warnings go to stderr without --verbose (they do unless a command reports them itself).
    static void setWarningsShown(bool theShown);

    // The command-line name of an order source, made of its two halves: "online-pos",
    // "online-mail", "cd-pos".
    static QString orderSourceName(const ZTOrderSource& theSource);
    // A source by that name or by its log string ("FM"), ignoring case; invalid for anything else.
    static ZTOrderSource orderSourceNamed(const QString& theName);
    // What --source takes when it is not given.
    static ZTOrderSource defaultOrderSource();
    // "online-pos (FC), online-mail (FM, default), cd-pos (CC)", for --help.
    static QString orderSourcesHelp();

    // Writes "ztapm: MESSAGE" to stderr and returns the status.
    static int fail(ExitStatus theStatus, const QString& theMessage);
    // An article id as typed; a usage error for anything but a positive number.
    static int readArticleId(const QString& theText, int* theId);
    // The product of an id, or null with the not-found message written.
    static ZTProductAbstract* findProduct(int theId, int* theStatus);
    // "a", "a and b", "a, b and c" (or with theLastJoint "or").
    static QString joined(const QStringList& theItems, const QString& theLastJoint);

    // An amount for JSON: whole hundredths, null where nothing is set.
    static QJsonValue amountJson(const ZTMoney& theAmount);
    // An amount of a report for a person in the key account's currency ("12,34 €"), as units and
    // hundredths where the key account describes no currency; "-" for null, "no price" for -1.
    static QString amountText(const QJsonValue& theAmount);
    // The keyword of a model; the basket-wide transfer has none and is named "basket".
    static QString modelName(const ZTDiscountModel& theModel);
    // A shipping group for JSON, null when there is none, and back as text, "-" for null.
    static QJsonValue groupJson(const ZTShippingGroupId& theGroup);
    static QString groupText(const QJsonValue& theGroup);
    // Ids in ascending order.
    static QJsonArray idsJson(const ZTArticleIdSet& theIds);
    // One line of cells, each left-justified to its width (none for a width of 0), one space apart.
    static void writeColumns(QTextStream& theOut, const QStringList& theCells, const QList<int>& theWidths);

protected:
    Q_DISABLE_COPY(ZTAPMCommand)

    // Success when there are none, else a usage error "NAME takes no arguments".
    int noArguments(const QStringList& theArguments) const;

    static QString keyAccountDirectory();
    // The warnings of the engine so far.
    static QStringList warnings();
};

#endif // ZTAPMCOMMAND_H
