// ztapm: the engine's command-line host. It runs the engine's start-up on a key account the way
// the ordering client does, and answers catalogue and price questions from it.

#include "ZTAPMCommand.h"
#include "ZTAPMCommandLine.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    ZTAPMCommandLine commandLine;
    const std::unique_ptr<QCoreApplication> app = commandLine.createApplication(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("ztapm"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZTAPM_VERSION));
    qInstallMessageHandler(&ZTAPMCommand::collectMessage);
    return commandLine.run(QCoreApplication::arguments());
}
