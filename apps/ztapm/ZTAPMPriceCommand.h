#ifndef ZTAPMPRICECOMMAND_H
#define ZTAPMPRICECOMMAND_H

#include "ZTAPMCommand.h"
#include "ZTOrderSource.h"

// "price ID COUNT": the amount of COUNT pieces under an order source, the model that won and what
// every model of the article would give.
class ZTAPMPriceCommand : public ZTAPMCommand
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMPriceCommand)

public:
    QString name() const override;
    QString synopsis() const override;
    QString summary() const override;
    QList<QCommandLineOption> options() const override;
    int readArguments(const QStringList& theArguments, const QCommandLineParser& theParser) override;
    int run(QJsonObject& theReport) override;
    void writeText(const QJsonObject& theReport, QTextStream& theOut) const override;

private:
    int myArticleId = 0;
    int myCount = 0;
    ZTOrderSource myOrderSource;
    int myBillingSum = 0;
    bool myExpress = false;
};

#endif // ZTAPMPRICECOMMAND_H
