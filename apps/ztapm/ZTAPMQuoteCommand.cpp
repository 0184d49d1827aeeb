#include "ZTAPMQuoteCommand.h"

#include "ZTAPMBill.h"
#include "ZTAPMBillPosition.h"
#include "ZTAPMBillPositionInvalid.h"
#include "ZTAPMShippingGroupManager.h"
#include "ZTOrderingDetails.h"
#include "ZTProductAbstract.h"

#include <QCommandLineParser>
#include <QTextStream>

namespace {

QJsonObject positionJson(const ZTAPMBillPositionAbstract* thePosition, const QString& theModel)
{
    const ZTProductAbstract* product = thePosition->product();
    QJsonObject position{{QStringLiteral("article"), product ? product->articleId().id() : 0},
                         {QStringLiteral("name"), product ? product->name() : QString()}};
    if (dynamic_cast<const ZTAPMBillPositionInvalid*>(thePosition)) {
        position.insert(QStringLiteral("valid"), false);
        return position;
    }
    position.insert(QStringLiteral("model"), theModel);
    position.insert(QStringLiteral("level"), thePosition->discountLevel());
    position.insert(QStringLiteral("units"), thePosition->unitCount());
    position.insert(QStringLiteral("itemsPerUnit"), thePosition->itemsPerUnit());
    position.insert(QStringLiteral("unitPrice"), thePosition->unitPrice().value());
    if (thePosition->nonOfferPrice().value() >= 0 && thePosition->nonOfferPrice() != thePosition->unitPrice())
        position.insert(QStringLiteral("nonOfferPrice"), thePosition->nonOfferPrice().value());
    position.insert(QStringLiteral("price"), thePosition->positionPrice().value());
    return position;
}

} // namespace

QString ZTAPMQuoteCommand::name() const
{
    return QStringLiteral("quote");
}

QString ZTAPMQuoteCommand::synopsis() const
{
    return QStringLiteral("quote ID:COUNT ...");
}

QString ZTAPMQuoteCommand::summary() const
{
    return tr("one bill per shipping group of the basket, with fees and the total") +
           QStringLiteral(
               "\n[--source S] [--payment ID[_BRAND]] [--shipment ID] [--express standard|express]");
}

QList<QCommandLineOption> ZTAPMQuoteCommand::options() const
{
    return {QCommandLineOption(
                QStringLiteral("source"),
                tr("price, quote: the order source (default %1).").arg(orderSourceName(defaultOrderSource())),
                QStringLiteral("S"), orderSourceName(defaultOrderSource())),
            QCommandLineOption(QStringLiteral("payment"),
                               tr("quote: the payment method, ID or ID_BRAND (default the order source's "
                                  "starting payment)."),
                               QStringLiteral("ID")),
            QCommandLineOption(QStringLiteral("shipment"), tr("quote: the shipment method id."),
                               QStringLiteral("ID")),
            QCommandLineOption(QStringLiteral("express"),
                               tr("quote: the express wish, standard or express (default none)."),
                               QStringLiteral("E"))};
}

int ZTAPMQuoteCommand::readArguments(const QStringList& theArguments, const QCommandLineParser& theParser)
{
    if (theArguments.isEmpty())
        return fail(UsageError, tr("usage: quote ID:COUNT [ID:COUNT ...] [--source S] [--payment ID[_BRAND]] "
                                   "[--shipment ID] [--express standard|express]"));
    for (const QString& argument : theArguments) {
        const QStringList parts = argument.split(QLatin1Char(':'));
        bool countOk = false;
        const int count = parts.size() == 2 ? parts.at(1).toInt(&countOk) : 0;
        if (!countOk || count < 0)
            return fail(UsageError, tr("'%1' is no item ID:COUNT").arg(argument));
        int id = 0;
        if (const int status = readArticleId(parts.at(0), &id))
            return status;
        myItems.append({id, count});
    }

    const QString sourceName = theParser.value(QStringLiteral("source"));
    myOrderSource = orderSourceNamed(sourceName);
    if (!myOrderSource.isValid())
        return fail(UsageError, tr("unknown order source '%1'; see --help").arg(sourceName));
    myPayment = theParser.value(QStringLiteral("payment"));
    if (theParser.isSet(QStringLiteral("shipment"))) {
        bool ok = false;
        myShipment = theParser.value(QStringLiteral("shipment")).toInt(&ok);
        if (!ok || myShipment < 0)
            return fail(UsageError,
                        tr("'%1' is no shipment method id").arg(theParser.value(QStringLiteral("shipment"))));
    }
    const QString express = theParser.value(QStringLiteral("express"));
    if (express == QLatin1String("standard"))
        myExpressType = ZTExpressType(ZTExpressTypeStandard);
    else if (express == QLatin1String("express"))
        myExpressType = ZTExpressType(ZTExpressTypeExpress);
    else if (theParser.isSet(QStringLiteral("express")))
        return fail(UsageError, tr("--express takes standard or express, not '%1'").arg(express));
    return Success;
}

int ZTAPMQuoteCommand::run(QJsonObject& theReport)
{
    ZTAPMOrderStatistic basket;
    for (const QPair<int, int>& item : std::as_const(myItems)) {
        int status = Success;
        ZTProductAbstract* product = findProduct(item.first, &status);
        if (!product)
            return status;
        basket.add(product, item.second);
    }

    const ZTOrderingDetails* details = ZTSingleton<ZTOrderingDetails>::instance();
    ZTAPMStatus status;
    status.setOrderSource(myOrderSource);
    if (!myPayment.isEmpty()) {
        bool ok = false;
        const int id = myPayment.section(QLatin1Char('_'), 0, 0).toInt(&ok);
        const ZTPaymentMethod method =
            details->paymentMethod(myOrderSource, ZTPaymentId(id), myPayment.section(QLatin1Char('_'), 1));
        if (!ok || !method.isValid())
            return fail(NotFound,
                        tr("no payment method '%1' for %2").arg(myPayment, orderSourceName(myOrderSource)));
        status.setPaymentMethod(method);
    }
    // As the client starts an order: the key account's starting shipment unless one is named.
    status.setReasonableStartingShipmentMethod();
    if (myShipment >= 0) {
        const ZTShipmentMethod method = details->shipmentMethods().value(myShipment);
        if (!method.isValid())
            return fail(NotFound, tr("no shipment method %1").arg(myShipment));
        status.setShipmentMethod(method);
    }

    const ZTAPMShippingGroupManager* groups = ZTSingleton<ZTAPMShippingGroupManager>::instance();
    const ZTArticleClass goods(ZTArticleClassEnum(ZTArticleClassAll & ~ZTArticleClassAllFees));
    ZTMoney total(0);
    QJsonArray bills;
    const auto statistics = ZTAPMBill::shippingGroupStatistics(basket);
    for (auto group = statistics.cbegin(); group != statistics.cend(); ++group) {
        const ZTAPMBill bill(group.key(), status, myExpressType, group.value());
        QJsonArray positions;
        for (const ZTAPMBillPositionAbstract* position : bill.sortedBillPositions(goods))
            positions.append(positionJson(position, modelName(position->discountModel())));
        QJsonValue transfer;
        if (const ZTAPMBillPosition* position = bill.billPosition(bill.transferProduct()))
            transfer = QJsonObject{{QStringLiteral("article"), position->product()->articleId().id()},
                                   {QStringLiteral("price"), position->positionPrice().value()},
                                   {QStringLiteral("unitTransfer"), bill.priceOfUnitTransfer().value()},
                                   {QStringLiteral("baseTransfer"), bill.priceOfBaseTransfer().value()}};
        bills.append(QJsonObject{{QStringLiteral("group"), groupJson(group.key())},
                                 {QStringLiteral("name"), groups->shippingGroupName(group.key())},
                                 {QStringLiteral("valid"), bill.isValid()},
                                 {QStringLiteral("positions"), positions},
                                 {QStringLiteral("transfer"), transfer},
                                 {QStringLiteral("paymentFee"), bill.priceOfPaymentFee().value()},
                                 {QStringLiteral("expressFee"), bill.priceOfExpressFee().value()},
                                 {QStringLiteral("total"), bill.totalFinalCost().value()}});
        total += bill.totalFinalCost();
    }
    const ZTMoney shipmentFee = ZTAPMBill::priceOfShipmentFee(status.shipmentMethod(), status.priceKey());
    total += shipmentFee;

    const ZTPaymentMethod payment = status.paymentMethod();
    QString paymentName = payment.isValid() ? QString::number(payment.paymentId().id()) : QString();
    if (payment.isValid() && !payment.brand().isEmpty())
        paymentName += QLatin1Char('_') + payment.brand();
    theReport = {{QStringLiteral("source"), myOrderSource.toLogString()},
                 {QStringLiteral("payment"), paymentName},
                 {QStringLiteral("shipment"), status.shipmentMethod().id()},
                 {QStringLiteral("express"),
                  myExpressType.hasValue(ZTExpressTypeExpress)    ? QStringLiteral("express")
                  : myExpressType.hasValue(ZTExpressTypeStandard) ? QStringLiteral("standard")
                                                                  : QStringLiteral("none")},
                 {QStringLiteral("bills"), bills},
                 {QStringLiteral("shipmentFee"), shipmentFee.value()},
                 {QStringLiteral("total"), total.value()}};
    return Success;
}

void ZTAPMQuoteCommand::writeText(const QJsonObject& theReport, QTextStream& theOut) const
{
    // The express wish is one of the keywords of JSON.
    const QString express = theReport[QStringLiteral("express")].toString();
    const QString expressText = express == QLatin1String("express")    ? tr("express")
                                : express == QLatin1String("standard") ? tr("standard")
                                                                       : tr("none");
    theOut << tr("Quote, order source %1, payment %2, shipment %3, express %4")
                  .arg(theReport[QStringLiteral("source")].toString(),
                       theReport[QStringLiteral("payment")].toString().isEmpty()
                           ? tr("none")
                           : theReport[QStringLiteral("payment")].toString(),
                       QString::number(theReport[QStringLiteral("shipment")].toInt()), expressText)
           << '\n';
    for (const QJsonValue& value : theReport[QStringLiteral("bills")].toArray()) {
        const QJsonObject bill = value.toObject();
        theOut << '\n'
               << (bill[QStringLiteral("valid")].toBool() ? tr("Shipping group %1 %2")
                                                          : tr("Shipping group %1 %2 (not valid)"))
                      .arg(groupText(bill[QStringLiteral("group")]), bill[QStringLiteral("name")].toString())
               << '\n';
        for (const QJsonValue& entry : bill[QStringLiteral("positions")].toArray()) {
            const QJsonObject position = entry.toObject();
            QStringList cells{QString::number(position[QStringLiteral("article")].toInt()),
                              position[QStringLiteral("name")].toString()};
            if (position.contains(QStringLiteral("valid"))) {
                cells << tr("not orderable");
                writeColumns(theOut, QStringList{QString()} + cells, {1, 6, 34, 0});
                continue;
            }
            const QString nonOffer =
                position.contains(QStringLiteral("nonOfferPrice"))
                    ? tr(" (instead of %1)").arg(amountText(position[QStringLiteral("nonOfferPrice")]))
                    : QString();
            cells << QStringLiteral("%1:%2")
                         .arg(position[QStringLiteral("model")].toString())
                         .arg(position[QStringLiteral("level")].toInt())
                  << QStringLiteral("%1 x %2")
                         .arg(position[QStringLiteral("units")].toInt())
                         .arg(position[QStringLiteral("itemsPerUnit")].toInt())
                  << QStringLiteral("@ %1%2").arg(amountText(position[QStringLiteral("unitPrice")]), nonOffer)
                  << amountText(position[QStringLiteral("price")]);
            writeColumns(theOut, QStringList{QString()} + cells, {1, 6, 34, 9, 10, 36, 0});
        }
        const QJsonValue transfer = bill[QStringLiteral("transfer")];
        if (transfer.isObject()) {
            const QJsonObject fee = transfer.toObject();
            theOut << "  "
                   << tr("Transfer (article %1): %2 (unit %3, base %4)")
                          .arg(QString::number(fee[QStringLiteral("article")].toInt()),
                               amountText(fee[QStringLiteral("price")]),
                               amountText(fee[QStringLiteral("unitTransfer")]),
                               amountText(fee[QStringLiteral("baseTransfer")]))
                   << '\n';
        } else {
            theOut << "  " << tr("Transfer: none") << '\n';
        }
        theOut << "  " << tr("Payment fee: %1").arg(amountText(bill[QStringLiteral("paymentFee")])) << '\n'
               << "  " << tr("Express fee: %1").arg(amountText(bill[QStringLiteral("expressFee")])) << '\n'
               << "  " << tr("Total: %1").arg(amountText(bill[QStringLiteral("total")])) << '\n';
    }
    theOut << '\n'
           << tr("Shipment fee: %1").arg(amountText(theReport[QStringLiteral("shipmentFee")])) << '\n'
           << tr("Total: %1").arg(amountText(theReport[QStringLiteral("total")])) << '\n';
}
