#ifndef ZTAPMRESULTCOMMAND_H
#define ZTAPMRESULTCOMMAND_H

#include "ZTAPMCommand.h"
#include "ZTAPMQuoteArguments.h"

// "result FILE": the server's order calculation as the client reads it, bill by bill, with the
// pay methods it permits; --declaration writes the order declaration of its bills, --basket
// compares it with the local quote of a basket line by line.
class ZTAPMResultCommand : public ZTAPMCommand
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMResultCommand)

public:
    QString name() const override;
    QString synopsis() const override;
    QString summary() const override;
    QList<QCommandLineOption> options() const override;
    int readArguments(const QStringList& theArguments, const QCommandLineParser& theParser) override;
    int run(QJsonObject& theReport) override;
    void writeText(const QJsonObject& theReport, QTextStream& theOut) const override;

private:
    QString myFile;
    QString myDeclaration;
    ZTAPMQuoteArguments myArguments;
};

#endif // ZTAPMRESULTCOMMAND_H
