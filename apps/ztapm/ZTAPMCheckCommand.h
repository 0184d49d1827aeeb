#ifndef ZTAPMCHECKCOMMAND_H
#define ZTAPMCHECKCOMMAND_H

#include "ZTAPMCommand.h"

#include <memory>

class ZTAPMCatalogueCheck;

// "check": every problem of the key account's documents, with file, line and column and a
// severity, in the order of file, line and column; exit status 5 when one is an error.
class ZTAPMCheckCommand : public ZTAPMCommand
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMCheckCommand)

public:
    ZTAPMCheckCommand();
    ~ZTAPMCheckCommand() override;

    QString name() const override;
    QString synopsis() const override;
    QString summary() const override;
    int readArguments(const QStringList& theArguments, const QCommandLineParser& theParser) override;
    int run(QJsonObject& theReport) override;
    void writeText(const QJsonObject& theReport, QTextStream& theOut) const override;
    int exitStatus(const QJsonObject& theReport) const override;

private:
    std::unique_ptr<ZTAPMCatalogueCheck> myCheck;
};

#endif // ZTAPMCHECKCOMMAND_H
