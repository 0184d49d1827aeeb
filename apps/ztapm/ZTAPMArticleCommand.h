#ifndef ZTAPMARTICLECOMMAND_H
#define ZTAPMARTICLECOMMAND_H

#include "ZTAPMCommand.h"

// "article ID": an article's facts, its price rows per order source and its delivery times.
class ZTAPMArticleCommand : public ZTAPMCommand
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMArticleCommand)

public:
    QString name() const override;
    QString synopsis() const override;
    QString summary() const override;
    int readArguments(const QStringList& theArguments, const QCommandLineParser& theParser) override;
    int run(QJsonObject& theReport) override;
    void writeText(const QJsonObject& theReport, QTextStream& theOut) const override;

private:
    int myArticleId = 0;
};

#endif // ZTAPMARTICLECOMMAND_H
