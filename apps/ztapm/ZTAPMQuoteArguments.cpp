#include "ZTAPMQuoteArguments.h"

#include "ZTAPMCommand.h"
#include "ZTAPMOrderStatistic.h"
#include "ZTAPMStatus.h"
#include "ZTOrderingDetails.h"
#include "ZTProductAbstract.h"

#include <QCommandLineParser>

QList<QCommandLineOption> ZTAPMQuoteArguments::options(const QString& theCommands)
{
    return {
        QCommandLineOption(QStringLiteral("payment"),
                           tr("%1: the payment method, ID or ID_BRAND (default the order "
                              "source's starting payment).")
                               .arg(theCommands),
                           QStringLiteral("ID")),
        QCommandLineOption(QStringLiteral("shipment"), tr("%1: the shipment method id.").arg(theCommands),
                           QStringLiteral("ID")),
        QCommandLineOption(QStringLiteral("express"),
                           tr("%1: the express wish, standard or express (default none).").arg(theCommands),
                           QStringLiteral("E"))};
}

QCommandLineOption ZTAPMQuoteArguments::sourceOption()
{
    const QString defaultName = ZTAPMCommand::orderSourceName(ZTAPMCommand::defaultOrderSource());
    return QCommandLineOption(
        QStringLiteral("source"),
        tr("price, quote, ordering, result: the order source (default %1).").arg(defaultName),
        QStringLiteral("S"), defaultName);
}

int ZTAPMQuoteArguments::readItems(const QStringList& theArguments)
{
    for (const QString& argument : theArguments) {
        const QStringList parts = argument.split(QLatin1Char(':'));
        bool countOk = false;
        const int count = parts.size() == 2 ? parts.at(1).toInt(&countOk) : 0;
        if (!countOk || count < 0)
            return ZTAPMCommand::fail(ZTAPMCommand::UsageError, tr("'%1' is no item ID:COUNT").arg(argument));
        int id = 0;
        if (const int status = ZTAPMCommand::readArticleId(parts.at(0), &id))
            return status;
        myItems.append({id, count});
    }
    return ZTAPMCommand::Success;
}

int ZTAPMQuoteArguments::readOptions(const QCommandLineParser& theParser)
{
    const QString sourceName = theParser.value(QStringLiteral("source"));
    myOrderSource = ZTAPMCommand::orderSourceNamed(sourceName);
    if (!myOrderSource.isValid())
        return ZTAPMCommand::fail(ZTAPMCommand::UsageError,
                                  tr("unknown order source '%1'; see --help").arg(sourceName));
    myPayment = theParser.value(QStringLiteral("payment"));
    if (theParser.isSet(QStringLiteral("shipment"))) {
        bool ok = false;
        myShipment = theParser.value(QStringLiteral("shipment")).toInt(&ok);
        if (!ok || myShipment < 0)
            return ZTAPMCommand::fail(
                ZTAPMCommand::UsageError,
                tr("'%1' is no shipment method id").arg(theParser.value(QStringLiteral("shipment"))));
    }
    const QString express = theParser.value(QStringLiteral("express"));
    if (express == QLatin1String("standard"))
        myExpressType = ZTExpressType(ZTExpressTypeStandard);
    else if (express == QLatin1String("express"))
        myExpressType = ZTExpressType(ZTExpressTypeExpress);
    else if (theParser.isSet(QStringLiteral("express")))
        return ZTAPMCommand::fail(ZTAPMCommand::UsageError,
                                  tr("--express takes standard or express, not '%1'").arg(express));
    return ZTAPMCommand::Success;
}

QString ZTAPMQuoteArguments::expressName() const
{
    if (myExpressType.hasValue(ZTExpressTypeExpress))
        return QStringLiteral("express");
    if (myExpressType.hasValue(ZTExpressTypeStandard))
        return QStringLiteral("standard");
    return QStringLiteral("none");
}

int ZTAPMQuoteArguments::basket(ZTAPMOrderStatistic* theBasket) const
{
    for (const QPair<int, int>& item : myItems) {
        int status = ZTAPMCommand::Success;
        ZTProductAbstract* product = ZTAPMCommand::findProduct(item.first, &status);
        if (!product)
            return status;
        theBasket->add(product, item.second);
    }
    return ZTAPMCommand::Success;
}

int ZTAPMQuoteArguments::status(ZTAPMStatus* theStatus) const
{
    const ZTOrderingDetails* details = ZTSingleton<ZTOrderingDetails>::instance();
    theStatus->setOrderSource(myOrderSource);
    if (!myPayment.isEmpty()) {
        bool ok = false;
        const int id = myPayment.section(QLatin1Char('_'), 0, 0).toInt(&ok);
        const ZTPaymentMethod method =
            details->paymentMethod(myOrderSource, ZTPaymentId(id), myPayment.section(QLatin1Char('_'), 1));
        if (!ok || !method.isValid())
            return ZTAPMCommand::fail(ZTAPMCommand::NotFound,
                                      tr("no payment method '%1' for %2")
                                          .arg(myPayment, ZTAPMCommand::orderSourceName(myOrderSource)));
        theStatus->setPaymentMethod(method);
    }
    // As the client starts an order: the key account's starting shipment unless one is named.
    theStatus->setReasonableStartingShipmentMethod();
    if (myShipment >= 0) {
        const ZTShipmentMethod method = details->shipmentMethods().value(myShipment);
        if (!method.isValid())
            return ZTAPMCommand::fail(ZTAPMCommand::NotFound, tr("no shipment method %1").arg(myShipment));
        theStatus->setShipmentMethod(method);
    }
    return ZTAPMCommand::Success;
}

QString ZTAPMQuoteArguments::paymentName(const ZTAPMStatus& theStatus)
{
    const ZTPaymentMethod payment = theStatus.paymentMethod();
    if (!payment.isValid())
        return QString();
    QString name = QString::number(payment.paymentId().id());
    if (!payment.brand().isEmpty())
        name += QLatin1Char('_') + payment.brand();
    return name;
}
