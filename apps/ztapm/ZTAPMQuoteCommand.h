#ifndef ZTAPMQUOTECOMMAND_H
#define ZTAPMQUOTECOMMAND_H

#include "ZTAPMCommand.h"
#include "ZTAPMQuoteArguments.h"

// "quote ID:COUNT ...": the basket split by shipping group as a host does it, one bill per
// group with its positions, transfer and fees, then the shipment fee and the grand total.
class ZTAPMQuoteCommand : public ZTAPMCommand
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMQuoteCommand)

public:
    QString name() const override;
    QString synopsis() const override;
    QString summary() const override;
    QList<QCommandLineOption> options() const override;
    int readArguments(const QStringList& theArguments, const QCommandLineParser& theParser) override;
    int run(QJsonObject& theReport) override;
    void writeText(const QJsonObject& theReport, QTextStream& theOut) const override;

private:
    ZTAPMQuoteArguments myArguments;
};

#endif // ZTAPMQUOTECOMMAND_H
