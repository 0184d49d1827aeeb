#ifndef ZTAPMCOMMANDLINE_H
#define ZTAPMCOMMANDLINE_H

#include <QCoreApplication>
#include <QStringList>

#include <memory>
#include <vector>

class QCommandLineParser;
class QCoreApplication;
class ZTAPMCommand;

// The ztapm program: reads the options, picks the command, starts the engine on the key account
// and prints the command's report, as JSON with --json and as text otherwise. The commands
// themselves are ZTAPMCommand classes, registered in the constructor.
class ZTAPMCommandLine
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMCommandLine)

public:
    ZTAPMCommandLine();
    ~ZTAPMCommandLine();

    // Parses the arguments (program name first) and runs the command; returns the exit status.
    int run(const QStringList& theArguments);
    // The application the chosen command needs: a QGuiApplication on the offscreen platform (unless
    // QT_QPA_PLATFORM names one) for a command that draws, else a QCoreApplication. Before any
    // application exists, so the command is found by a plain look at the arguments.
    std::unique_ptr<QCoreApplication> createApplication(int& theArgc, char** theArgv) const;

private:
    template <typename COMMAND>
    void add()
    {
        myCommands.push_back(std::make_unique<COMMAND>());
    }
    // The languages of --lang, English first.
    static QStringList languages();
    // German for a German locale of the environment, English for any other.
    static QString environmentLanguage();
    // The value of --lang among the arguments (program name first), empty without one. Read
    // before the parser is made, since the help it holds is already translated.
    static QString requestedLanguage(const QStringList& theArguments);
    ZTAPMCommand* command(const QString& theName) const;
    QString commandsHelp() const;
    // The arguments with every negative number ("-1") that is no option's value moved behind a
    // "--", positional arguments keeping their order, so that a count of -1 reaches its command
    // instead of reading as an option "1". theValueOptions: names of the options that take a value.
    static QStringList negativeNumbersAsArguments(const QStringList& theArguments,
                                                  const QStringList& theValueOptions);
    // Usage error for an option that belongs to other commands only, else Success.
    int checkForeignOptions(const ZTAPMCommand& theCommand, const QCommandLineParser& theParser) const;

    std::vector<std::unique_ptr<ZTAPMCommand>> myCommands;
};

#endif // ZTAPMCOMMANDLINE_H
