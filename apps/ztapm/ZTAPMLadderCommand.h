#ifndef ZTAPMLADDERCOMMAND_H
#define ZTAPMLADDERCOMMAND_H

#include "ZTAPMCommand.h"

#include <QList>
#include <QString>

class ZTOrderSource;

// "ladder ID --svg FILE | --png FILE": a chart of the article's unit price against the quantity,
// one line per order source (or only that of --source), drawn by ZTAPMLadderChart.
class ZTAPMLadderCommand : public ZTAPMCommand
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMLadderCommand)

public:
    QString name() const override;
    QString synopsis() const override;
    QString summary() const override;
    QList<QCommandLineOption> options() const override;
    bool needsGuiApplication() const override;
    int readArguments(const QStringList& theArguments, const QCommandLineParser& theParser) override;
    int run(QJsonObject& theReport) override;
    void writeText(const QJsonObject& theReport, QTextStream& theOut) const override;

private:
    int myArticleId = 0;
    QList<ZTOrderSource> myOrderSources;
    QString myFile;
    bool mySvg = true;
};

#endif // ZTAPMLADDERCOMMAND_H
