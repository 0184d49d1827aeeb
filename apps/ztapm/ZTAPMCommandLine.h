#ifndef ZTAPMCOMMANDLINE_H
#define ZTAPMCOMMANDLINE_H

#include <QJsonObject>
#include <QStringList>

class QCommandLineParser;
class QTextStream;
class ZTProductAbstract;

// The commands of the ztapm program. Each command builds one JSON report; --json prints it as it
// is, otherwise it is written as text for a person. Warnings of the engine go to stderr as they
// happen and are counted in the start-up report.
class ZTAPMCommandLine
{
public:
    enum ExitStatus { Success = 0, UsageError = 2, NotFound = 3 };

    ZTAPMCommandLine();

    // Parses the arguments (program name first) and runs the command.
    int run(const QStringList& theArguments);

    // Installed as Qt's message handler for the life of the program.
    static void collectMessage(QtMsgType theType, const QMessageLogContext& theContext,
                               const QString& theMessage);

private:
    int runStartup();
    int runCatalogue();
    int runArticle(const QStringList& theArguments);
    int runPrice(const QStringList& theArguments);

    int fail(ExitStatus theStatus, const QString& theMessage) const;
    // The product of an id given on the command line, or null with the message already written.
    ZTProductAbstract* productArgument(const QString& theText, int* theStatus) const;
    int report(const QJsonObject& theReport, void (*theTextWriter)(const QJsonObject&, QTextStream&)) const;

    QCommandLineParser* myParser = nullptr;
    bool myJson = false;
};

#endif // ZTAPMCOMMANDLINE_H
