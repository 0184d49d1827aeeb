#ifndef ZTAPMCATALOGUECOMMAND_H
#define ZTAPMCATALOGUECOMMAND_H

#include "ZTAPMCommand.h"

// "catalogue": every product, fees included, with its lowest price per order source.
class ZTAPMCatalogueCommand : public ZTAPMCommand
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMCatalogueCommand)

public:
    QString name() const override;
    QString synopsis() const override;
    QString summary() const override;
    int readArguments(const QStringList& theArguments, const QCommandLineParser& theParser) override;
    int run(QJsonObject& theReport) override;
    void writeText(const QJsonObject& theReport, QTextStream& theOut) const override;
};

#endif // ZTAPMCATALOGUECOMMAND_H
