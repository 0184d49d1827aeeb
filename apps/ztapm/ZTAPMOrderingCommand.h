#ifndef ZTAPMORDERINGCOMMAND_H
#define ZTAPMORDERINGCOMMAND_H

#include "ZTAPMCommand.h"
#include "ZTOrderSource.h"

// "ordering": what the key account permits and how an order starts: the order sources with their
// payments and fees, the shipment methods, the starting payment and shipment method, currencies,
// shipping groups, discount texts and the account rules.
class ZTAPMOrderingCommand : public ZTAPMCommand
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMOrderingCommand)

public:
    QString name() const override;
    QString synopsis() const override;
    QString summary() const override;
    QList<QCommandLineOption> options() const override;
    int readArguments(const QStringList& theArguments, const QCommandLineParser& theParser) override;
    int run(QJsonObject& theReport) override;
    void writeText(const QJsonObject& theReport, QTextStream& theOut) const override;

private:
    // Invalid when --source is not given: the order source the engine starts with.
    ZTOrderSource myOrderSource;
};

#endif // ZTAPMORDERINGCOMMAND_H
