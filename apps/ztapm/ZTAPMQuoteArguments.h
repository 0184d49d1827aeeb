#ifndef ZTAPMQUOTEARGUMENTS_H
#define ZTAPMQUOTEARGUMENTS_H

#include "ZTExpressType.h"
#include "ZTOrderSource.h"

#include <QCommandLineOption>
#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QStringList>

class QCommandLineParser;
class ZTAPMOrderStatistic;
class ZTAPMStatus;

// What a local quote is asked for, as quote and result --basket read it: the basket items
// ID:COUNT and the way of ordering (--source, --payment, --shipment, --express). The arguments are
// read before the engine starts; the basket and the status are made from them after it started.
class ZTAPMQuoteArguments
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMQuoteArguments)

public:
    // --payment, --shipment and --express, for the commands named in theCommands ("quote, result").
    static QList<QCommandLineOption> options(const QString& theCommands);
    // --source, which price and ordering take too.
    static QCommandLineOption sourceOption();

    // Each argument an item ID:COUNT; a usage error for anything else.
    int readItems(const QStringList& theArguments);
    // The options of options() and --source; a usage error for a malformed value.
    int readOptions(const QCommandLineParser& theParser);

    bool hasItems() const { return !myItems.isEmpty(); }
    ZTOrderSource orderSource() const { return myOrderSource; }
    ZTExpressType expressType() const { return myExpressType; }
    // "standard", "express" or "none".
    QString expressName() const;

    // The basket of the items; NotFound with the message written for an unknown article.
    int basket(ZTAPMOrderStatistic* theBasket) const;
    // The status as the client starts an order under the order source: the named payment, else
    // the source's starting one, and the named shipment method, else the key account's starting
    // one; NotFound with the message written for an unknown payment or shipment method.
    int status(ZTAPMStatus* theStatus) const;
    // "3", "1_VISA", or empty without a payment.
    static QString paymentName(const ZTAPMStatus& theStatus);

private:
    QList<QPair<int, int>> myItems;
    ZTOrderSource myOrderSource;
    QString myPayment;
    int myShipment = -1;
    ZTExpressType myExpressType;
};

#endif // ZTAPMQUOTEARGUMENTS_H
