#ifndef ZTAPMSTARTUPCOMMAND_H
#define ZTAPMSTARTUPCOMMAND_H

#include "ZTAPMCommand.h"

// "startup": what the engine's start-up found and loaded, and the warnings the documents caused.
class ZTAPMStartupCommand : public ZTAPMCommand
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMStartupCommand)

public:
    QString name() const override;
    QString synopsis() const override;
    QString summary() const override;
    int readArguments(const QStringList& theArguments, const QCommandLineParser& theParser) override;
    int run(QJsonObject& theReport) override;
    void writeText(const QJsonObject& theReport, QTextStream& theOut) const override;
};

#endif // ZTAPMSTARTUPCOMMAND_H
