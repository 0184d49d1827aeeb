#include "ZTAPMQuoteCommand.h"

#include "ZTAPMBill.h"
#include "ZTAPMBillPosition.h"
#include "ZTAPMBillPositionInvalid.h"
#include "ZTAPMOrderQuote.h"
#include "ZTAPMShippingGroupManager.h"
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
    return QList<QCommandLineOption>{ZTAPMQuoteArguments::sourceOption()} +
           ZTAPMQuoteArguments::options(QStringLiteral("quote, result"));
}

int ZTAPMQuoteCommand::readArguments(const QStringList& theArguments, const QCommandLineParser& theParser)
{
    if (theArguments.isEmpty())
        return fail(UsageError, tr("usage: quote ID:COUNT [ID:COUNT ...] [--source S] [--payment ID[_BRAND]] "
                                   "[--shipment ID] [--express standard|express]"));
    if (const int status = myArguments.readItems(theArguments))
        return status;
    return myArguments.readOptions(theParser);
}

int ZTAPMQuoteCommand::run(QJsonObject& theReport)
{
    ZTAPMOrderStatistic basket;
    if (const int status = myArguments.basket(&basket))
        return status;
    ZTAPMStatus status;
    if (const int failure = myArguments.status(&status))
        return failure;

    const ZTAPMShippingGroupManager* groups = ZTSingleton<ZTAPMShippingGroupManager>::instance();
    const ZTArticleClass goods(ZTArticleClassEnum(ZTArticleClassAll & ~ZTArticleClassAllFees));
    const ZTAPMOrderQuote quote(status, myArguments.expressType(), basket);
    QJsonArray bills;
    for (const ZTAPMBill* bill : quote.bills()) {
        QJsonArray positions;
        for (const ZTAPMBillPositionAbstract* position : bill->sortedBillPositions(goods))
            positions.append(positionJson(position, modelName(position->discountModel())));
        QJsonValue transfer;
        if (const ZTAPMBillPosition* position = bill->billPosition(bill->transferProduct()))
            transfer = QJsonObject{{QStringLiteral("article"), position->product()->articleId().id()},
                                   {QStringLiteral("price"), position->positionPrice().value()},
                                   {QStringLiteral("unitTransfer"), bill->priceOfUnitTransfer().value()},
                                   {QStringLiteral("baseTransfer"), bill->priceOfBaseTransfer().value()}};
        bills.append(QJsonObject{{QStringLiteral("group"), groupJson(bill->shippingGroup())},
                                 {QStringLiteral("name"), groups->shippingGroupName(bill->shippingGroup())},
                                 {QStringLiteral("valid"), bill->isValid()},
                                 {QStringLiteral("positions"), positions},
                                 {QStringLiteral("transfer"), transfer},
                                 {QStringLiteral("paymentFee"), bill->priceOfPaymentFee().value()},
                                 {QStringLiteral("expressFee"), bill->priceOfExpressFee().value()},
                                 {QStringLiteral("total"), bill->totalFinalCost().value()}});
    }

    theReport = {{QStringLiteral("source"), myArguments.orderSource().toLogString()},
                 {QStringLiteral("payment"), ZTAPMQuoteArguments::paymentName(status)},
                 {QStringLiteral("shipment"), status.shipmentMethod().id()},
                 {QStringLiteral("express"), myArguments.expressName()},
                 {QStringLiteral("bills"), bills},
                 {QStringLiteral("shipmentFee"), quote.shipmentFee().value()},
                 {QStringLiteral("total"), quote.totalFinalCost().value()}};
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
