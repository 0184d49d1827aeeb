#include "ZTAPMResultCommand.h"

#include "ZTAPMBillReconciliation.h"
#include "ZTAPMDataBase.h"
#include "ZTAPMOrderQuote.h"
#include "ZTAPMShippingGroupManager.h"
#include "ZTOrderCalculationResult.h"
#include "ZTOrderingDetails.h"
#include "ZTProductAbstract.h"
#include "ZTXMLLoader.h"
#include "ZTXMLParser.h"

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QTextStream>

namespace {

QString articleName(const ZTArticleId& theId)
{
    const ZTProductAbstract* product = ZTSingleton<ZTAPMDataBase>::instance()->productAbstract(theId);
    return product ? product->name() : QString();
}

// An amount the server may leave out (-1): null then.
QJsonValue optionalAmountJson(const ZTMoney& theAmount)
{
    return theAmount.value() == ZTMoney::noPrice ? QJsonValue(QJsonValue::Null)
                                                 : QJsonValue(theAmount.value());
}

// "b:1"; null where a side names no model.
QJsonValue modelJson(const ZTDiscountModel& theModel, int theLevel)
{
    if (theLevel < 0)
        return QJsonValue(QJsonValue::Null);
    return QStringLiteral("%1:%2").arg(ZTAPMCommand::modelName(theModel)).arg(theLevel);
}

QString expressName(const ZTExpressType& theType)
{
    if (theType.hasValue(ZTExpressTypeExpress))
        return QStringLiteral("express");
    if (theType.hasValue(ZTExpressTypeStandard))
        return QStringLiteral("standard");
    return QStringLiteral("none");
}

QString kindName(ZTAPMBillDifference::Kind theKind)
{
    switch (theKind) {
    case ZTAPMBillDifference::Position:
        return QStringLiteral("position");
    case ZTAPMBillDifference::Transfer:
        return QStringLiteral("transfer");
    case ZTAPMBillDifference::ExpressFee:
        return QStringLiteral("expressFee");
    case ZTAPMBillDifference::PaymentFee:
        return QStringLiteral("paymentFee");
    case ZTAPMBillDifference::BillTotal:
        return QStringLiteral("billTotal");
    case ZTAPMBillDifference::ShipmentFee:
        return QStringLiteral("shipmentFee");
    case ZTAPMBillDifference::ProductsTotal:
        return QStringLiteral("productsTotal");
    case ZTAPMBillDifference::TransferTotal:
        return QStringLiteral("transferTotal");
    case ZTAPMBillDifference::Total:
        return QStringLiteral("total");
    }
    return QString();
}

// The words of a kind (a keyword of JSON) for a person.
QString kindText(const QString& theKind)
{
    static const QHash<QString, const char*> texts{
        {QStringLiteral("position"), QT_TRANSLATE_NOOP("ZTAPMResultCommand", "position")},
        {QStringLiteral("transfer"), QT_TRANSLATE_NOOP("ZTAPMResultCommand", "transfer")},
        {QStringLiteral("expressFee"), QT_TRANSLATE_NOOP("ZTAPMResultCommand", "express fee")},
        {QStringLiteral("paymentFee"), QT_TRANSLATE_NOOP("ZTAPMResultCommand", "payment fee")},
        {QStringLiteral("billTotal"), QT_TRANSLATE_NOOP("ZTAPMResultCommand", "bill total")},
        {QStringLiteral("shipmentFee"), QT_TRANSLATE_NOOP("ZTAPMResultCommand", "shipment fee")},
        {QStringLiteral("productsTotal"), QT_TRANSLATE_NOOP("ZTAPMResultCommand", "products")},
        {QStringLiteral("transferTotal"), QT_TRANSLATE_NOOP("ZTAPMResultCommand", "transfers")},
        {QStringLiteral("total"), QT_TRANSLATE_NOOP("ZTAPMResultCommand", "total")}};
    const char* text = texts.value(theKind);
    return text ? ZTAPMResultCommand::tr(text) : theKind;
}

// The express wish of a shipping date (a keyword of JSON) for a person.
QString expressText(const QString& theExpress)
{
    if (theExpress == QLatin1String("express"))
        return ZTAPMResultCommand::tr("express");
    if (theExpress == QLatin1String("standard"))
        return ZTAPMResultCommand::tr("standard");
    return ZTAPMResultCommand::tr("none");
}

QJsonObject positionJson(const ZTOCRBillPosition& thePosition)
{
    QJsonArray parts;
    for (const ZTOCRBillPositionPart& part : thePosition.orderParts())
        parts.append(QJsonObject{{QStringLiteral("id"), part.orderPartId()},
                                 {QStringLiteral("article"), part.articleId().id()},
                                 {QStringLiteral("name"), articleName(part.articleId())},
                                 {QStringLiteral("quantity"), part.quantity()},
                                 {QStringLiteral("price"), part.price().value()}});
    return {{QStringLiteral("pos"), thePosition.orderPositionId()},
            {QStringLiteral("article"), thePosition.articleId().id()},
            {QStringLiteral("name"), articleName(thePosition.articleId())},
            {QStringLiteral("model"), modelJson(thePosition.discountModel(), thePosition.discountLevel())},
            {QStringLiteral("quantity"), thePosition.quantity()},
            {QStringLiteral("price"), thePosition.price().value()},
            {QStringLiteral("total"), thePosition.totalPrice().value()},
            {QStringLiteral("photos"), thePosition.numberOfFotos()},
            {QStringLiteral("maxPhotos"), thePosition.maxNumberOfFotos()},
            {QStringLiteral("transferBasePrice"), optionalAmountJson(thePosition.transferBasePrice())},
            {QStringLiteral("transferUnitPrice"), optionalAmountJson(thePosition.transferUnitPrice())},
            {QStringLiteral("parts"), parts}};
}

// A fee of the bill: null where the server named no article.
QJsonValue feeJson(const ZTArticleId& theArticle, const ZTMoney& thePrice, const QJsonValue& theModel)
{
    if (!theArticle.isValid())
        return QJsonValue(QJsonValue::Null);
    QJsonObject fee{{QStringLiteral("article"), theArticle.id()},
                    {QStringLiteral("price"), thePrice.value()}};
    if (!theModel.isUndefined())
        fee.insert(QStringLiteral("model"), theModel);
    return fee;
}

QJsonArray couponsJson(const ZTOCRBillCouponList& theCoupons)
{
    QJsonArray coupons;
    for (const ZTOCRBillCoupon& coupon : theCoupons)
        coupons.append(QJsonObject{{QStringLiteral("code"), coupon.code()},
                                   {QStringLiteral("value"), coupon.value().value()}});
    return coupons;
}

QJsonObject billJson(const ZTOCRBill& theBill)
{
    QJsonArray positions;
    for (const ZTOCRBillPosition& position : theBill.positions())
        positions.append(positionJson(position));
    const ZTOCRBillTransfer transfer = theBill.transfer();
    QJsonArray dates;
    for (const ZTExpressType& type : theBill.possibleExpressTypes()) {
        const ZTAPMShippingDate date = theBill.shippingDate(type);
        dates.append(QJsonObject{{QStringLiteral("express"), expressName(type)},
                                 {QStringLiteral("from"), date.minDate().toString(Qt::ISODate)},
                                 {QStringLiteral("to"), date.maxDate().toString(Qt::ISODate)}});
    }
    return {
        {QStringLiteral("group"), ZTAPMCommand::groupJson(theBill.shippingGroupId())},
        {QStringLiteral("name"),
         ZTSingleton<ZTAPMShippingGroupManager>::instance()->shippingGroupName(theBill.shippingGroupId())},
        {QStringLiteral("positions"), positions},
        {QStringLiteral("transfer"),
         QJsonObject{{QStringLiteral("article"), transfer.articleId().id()},
                     {QStringLiteral("transferModel"), transfer.transferModel().encode()},
                     {QStringLiteral("model"), modelJson(transfer.discountModel(), transfer.discountLevel())},
                     {QStringLiteral("price"), transfer.price().value()}}},
        {QStringLiteral("expressFee"), feeJson(theBill.expressFeeItem().articleId(), theBill.expressFee(),
                                               modelJson(theBill.expressFeeItem().discountModel(),
                                                         theBill.expressFeeItem().discountLevel()))},
        {QStringLiteral("paymentFee"),
         feeJson(theBill.paymentFeeItem().articleId(), theBill.paymentFee(), QJsonValue::Undefined)},
        {QStringLiteral("shipmentFee"),
         feeJson(theBill.shipmentFeeItem().articleId(), theBill.shipmentFee(), QJsonValue::Undefined)},
        {QStringLiteral("salesTax"), optionalAmountJson(theBill.salesTaxValue())},
        {QStringLiteral("provincialSalesTax"), optionalAmountJson(theBill.provincialSalesTax())},
        {QStringLiteral("coupons"), couponsJson(theBill.coupons())},
        {QStringLiteral("shippingDates"), dates},
        {QStringLiteral("subTotal"), theBill.subTotalValue().value()},
        {QStringLiteral("total"), theBill.totalSumValue().value()}};
}

QJsonArray payMethodsJson(const ZTOrderCalculationResult& theResult)
{
    const ZTOrderingDetails* details = ZTSingleton<ZTOrderingDetails>::instance();
    const ZTPaymentMethodList known = theResult.availablePayMethods();
    QJsonArray methods;
    for (const ZTPermittedPayMethod& permitted : theResult.permittedPayMethods()) {
        // The client's methods behind the id: every credit card behind 1, for instance.
        QStringList names;
        for (const ZTPaymentMethod& method : known) {
            if (method.paymentId() == permitted.type())
                names.append(method.name());
        }
        QJsonArray shipments;
        for (const ZTPermittedShipmentMethod& shipment : permitted.availableShipmentMethods())
            shipments.append(
                QJsonObject{{QStringLiteral("id"), shipment.id()},
                            {QStringLiteral("name"), details->shipmentMethods().value(shipment.id()).name()},
                            {QStringLiteral("express"), shipment.isExpressable()}});
        methods.append(QJsonObject{{QStringLiteral("id"), permitted.type().id()},
                                   {QStringLiteral("names"), QJsonArray::fromStringList(names)},
                                   {QStringLiteral("shipmentMethods"), shipments}});
    }
    return methods;
}

QJsonObject reconciliationJson(const ZTAPMOrderQuote& theQuote, const ZTOrderCalculationResult& theResult)
{
    const ZTAPMBillReconciliation reconciliation(theQuote, theResult);
    QJsonArray differences;
    for (const ZTAPMBillDifference& difference : reconciliation.differences())
        differences.append(QJsonObject{
            {QStringLiteral("kind"), kindName(difference.kind())},
            {QStringLiteral("group"), ZTAPMCommand::groupJson(difference.shippingGroupId())},
            {QStringLiteral("article"), difference.articleId().isValid()
                                            ? QJsonValue(difference.articleId().id())
                                            : QJsonValue(QJsonValue::Null)},
            {QStringLiteral("name"), articleName(difference.articleId())},
            {QStringLiteral("local"), ZTAPMCommand::amountJson(difference.localAmount())},
            {QStringLiteral("localModel"), modelJson(difference.localModel(), difference.localLevel())},
            {QStringLiteral("server"), ZTAPMCommand::amountJson(difference.serverAmount())},
            {QStringLiteral("serverModel"), modelJson(difference.serverModel(), difference.serverLevel())}});
    return {{QStringLiteral("total"), theQuote.totalFinalCost().value()},
            {QStringLiteral("compared"), reconciliation.comparedLines()},
            {QStringLiteral("differences"), differences}};
}

// "12,34 € (b:1)", "- " for a side without the line.
QString sideText(const QJsonObject& theDifference, const QString& theSide)
{
    const QJsonValue model = theDifference[theSide + QStringLiteral("Model")];
    return ZTAPMCommand::amountText(theDifference[theSide]) +
           (model.isNull() ? QString() : QStringLiteral(" (%1)").arg(model.toString()));
}

} // namespace

QString ZTAPMResultCommand::name() const
{
    return QStringLiteral("result");
}

QString ZTAPMResultCommand::synopsis() const
{
    return QStringLiteral("result FILE");
}

QString ZTAPMResultCommand::summary() const
{
    return tr("the server's order calculation in FILE: sums, bills, fees, taxes, coupons,\n"
              "shipping dates and the pay methods it permits") +
           QStringLiteral(
               "\n[--source S] [--payment ID[_BRAND]] [--shipment ID] [--express standard|express]\n"
               "[--declaration OUT] [--basket ID:COUNT ...]");
}

QList<QCommandLineOption> ZTAPMResultCommand::options() const
{
    return QList<QCommandLineOption>{ZTAPMQuoteArguments::sourceOption()} +
           ZTAPMQuoteArguments::options(QStringLiteral("quote, result")) +
           QList<QCommandLineOption>{
               QCommandLineOption(QStringLiteral("declaration"),
                                  tr("result: writes the order declaration of the bills to OUT."),
                                  QStringLiteral("OUT")),
               QCommandLineOption(QStringLiteral("basket"),
                                  tr("result: compares with the local quote of the basket; further "
                                     "items ID:COUNT follow FILE."),
                                  QStringLiteral("ID:COUNT"))};
}

int ZTAPMResultCommand::readArguments(const QStringList& theArguments, const QCommandLineParser& theParser)
{
    const QString usage = tr("usage: result FILE [--source S] [--payment ID[_BRAND]] "
                             "[--declaration OUT] [--basket ID:COUNT ...]");
    if (theArguments.isEmpty())
        return fail(UsageError, usage);
    myFile = theArguments.first();
    const QStringList items = theParser.values(QStringLiteral("basket")) + theArguments.mid(1);
    if (theArguments.size() > 1 && !theParser.isSet(QStringLiteral("basket")))
        return fail(UsageError, usage);
    if (const int status = myArguments.readItems(items))
        return status;
    if (const int status = myArguments.readOptions(theParser))
        return status;
    myDeclaration = theParser.value(QStringLiteral("declaration"));
    if (!QFileInfo(myFile).isFile())
        return fail(NotFound, tr("file '%1' does not exist").arg(myFile));
    return Success;
}

int ZTAPMResultCommand::run(QJsonObject& theReport)
{
    ZTAPMStatus status;
    if (const int failure = myArguments.status(&status))
        return failure;
    // The loader has said why when it refuses the file.
    const QDomElement root = ZTXMLLoader::loadDocumentElement(QFileInfo(myFile));
    if (root.isNull())
        return fail(InvalidResult, tr("'%1' is no order calculation: it cannot be read").arg(myFile));
    const ZTOrderCalculationResult result(status, root);
    if (!result.isValid()) {
        const int declared = ZTXMLParser::intText(root, QStringLiteral("total_parts"), 0);
        if (result.billDeclarationOrder().isEmpty())
            return fail(InvalidResult,
                        tr("'%1' is no valid order calculation: it holds no valid bill").arg(myFile));
        return fail(InvalidResult, tr("'%1' is no valid order calculation: %2 bill(s), but "
                                      "total_parts says %3")
                                       .arg(myFile)
                                       .arg(result.billDeclarationOrder().size())
                                       .arg(declared));
    }

    QJsonValue reconciliation;
    if (myArguments.hasItems()) {
        ZTAPMOrderStatistic basket;
        if (const int failure = myArguments.basket(&basket))
            return failure;
        const ZTAPMOrderQuote quote(status, myArguments.expressType(), basket);
        reconciliation = reconciliationJson(quote, result);
    }
    QJsonValue declaration;
    if (!myDeclaration.isEmpty()) {
        QFile file(myDeclaration);
        const QByteArray document = result.orderDeclaration();
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(document) != document.size())
            return fail(NotFound, tr("cannot write '%1'").arg(myDeclaration));
        declaration = myDeclaration;
    }

    QJsonArray bills;
    for (const ZTOCRBill& bill : result.billsInDeclarationOrder())
        bills.append(billJson(bill));
    QJsonArray expressTypes;
    for (const ZTExpressType& type : result.possibleExpressTypes())
        expressTypes.append(expressName(type));
    theReport = {{QStringLiteral("file"), myFile},
                 {QStringLiteral("source"), status.orderSource().toLogString()},
                 {QStringLiteral("payment"), ZTAPMQuoteArguments::paymentName(status)},
                 {QStringLiteral("products"), result.numOfProducts()},
                 {QStringLiteral("productsSum"), result.totalProductsSum().value()},
                 {QStringLiteral("transferSum"), result.totalTransfer().value()},
                 {QStringLiteral("couponSum"), result.totalCouponSum().value()},
                 {QStringLiteral("total"), result.totalBillSum().value()},
                 {QStringLiteral("bills"), bills},
                 {QStringLiteral("coupons"), couponsJson(result.coupons())},
                 {QStringLiteral("expressTypes"), expressTypes},
                 {QStringLiteral("payMethods"), payMethodsJson(result)},
                 {QStringLiteral("declaration"), declaration},
                 {QStringLiteral("reconciliation"), reconciliation}};
    return Success;
}

void ZTAPMResultCommand::writeText(const QJsonObject& theReport, QTextStream& theOut) const
{
    const QString payment = theReport[QStringLiteral("payment")].toString();
    theOut << tr("Order calculation %1, order source %2, payment %3")
                  .arg(theReport[QStringLiteral("file")].toString(),
                       theReport[QStringLiteral("source")].toString(),
                       payment.isEmpty() ? tr("none") : payment)
           << '\n'
           << tr("%1 product(s) for %2, transfers %3, coupons %4, total %5")
                  .arg(theReport[QStringLiteral("products")].toInt())
                  .arg(amountText(theReport[QStringLiteral("productsSum")]),
                       amountText(theReport[QStringLiteral("transferSum")]),
                       amountText(theReport[QStringLiteral("couponSum")]),
                       amountText(theReport[QStringLiteral("total")]))
           << '\n';

    for (const QJsonValue& value : theReport[QStringLiteral("bills")].toArray()) {
        const QJsonObject bill = value.toObject();
        theOut << '\n'
               << tr("Shipping group %1 %2")
                      .arg(groupText(bill[QStringLiteral("group")]), bill[QStringLiteral("name")].toString())
               << '\n';
        for (const QJsonValue& entry : bill[QStringLiteral("positions")].toArray()) {
            const QJsonObject position = entry.toObject();
            writeColumns(theOut,
                         {QString(), tr("pos %1").arg(position[QStringLiteral("pos")].toInt()),
                          QString::number(position[QStringLiteral("article")].toInt()),
                          position[QStringLiteral("name")].toString(),
                          position[QStringLiteral("model")].toString(QStringLiteral("-")),
                          QStringLiteral("%1 x %2")
                              .arg(position[QStringLiteral("quantity")].toInt())
                              .arg(amountText(position[QStringLiteral("price")])),
                          amountText(position[QStringLiteral("total")])},
                         {1, 7, 6, 34, 9, 18, 0});
            theOut << "         "
                   << tr("%1 photo(s), at most %2 per piece; transfer base %3, unit %4")
                          .arg(position[QStringLiteral("photos")].toInt())
                          .arg(position[QStringLiteral("maxPhotos")].toInt())
                          .arg(amountText(position[QStringLiteral("transferBasePrice")]),
                               amountText(position[QStringLiteral("transferUnitPrice")]))
                   << '\n';
            for (const QJsonValue& item : position[QStringLiteral("parts")].toArray()) {
                const QJsonObject part = item.toObject();
                theOut << "         "
                       << tr("part %1: %2 %3, %4 x %5 per piece")
                              .arg(part[QStringLiteral("id")].toInt())
                              .arg(part[QStringLiteral("article")].toInt())
                              .arg(part[QStringLiteral("name")].toString())
                              .arg(part[QStringLiteral("quantity")].toInt())
                              .arg(amountText(part[QStringLiteral("price")]))
                       << '\n';
            }
        }
        const QJsonObject transfer = bill[QStringLiteral("transfer")].toObject();
        theOut << "  "
               << tr("Transfer (article %1, transfer model %2, %3): %4")
                      .arg(transfer[QStringLiteral("article")].toInt())
                      .arg(transfer[QStringLiteral("transferModel")].toString(),
                           transfer[QStringLiteral("model")].toString(),
                           amountText(transfer[QStringLiteral("price")]))
               << '\n';
        // A fee's key with its line without and with an article.
        const struct
        {
            QString key;
            QString none;
            QString text;
        } fees[] = {
            {QStringLiteral("expressFee"), tr("Express fee: none"), tr("Express fee (article %1%2): %3")},
            {QStringLiteral("paymentFee"), tr("Payment fee: none"), tr("Payment fee (article %1%2): %3")},
            {QStringLiteral("shipmentFee"), tr("Shipment fee: none"), tr("Shipment fee (article %1%2): %3")}};
        for (const auto& fee : fees) {
            const QJsonValue value = bill[fee.key];
            if (value.isNull()) {
                theOut << "  " << fee.none << '\n';
                continue;
            }
            const QString model = value[QStringLiteral("model")].isString()
                                      ? QStringLiteral(", %1").arg(value[QStringLiteral("model")].toString())
                                      : QString();
            theOut << "  "
                   << fee.text.arg(value[QStringLiteral("article")].toInt())
                          .arg(model, amountText(value[QStringLiteral("price")]))
                   << '\n';
        }
        const QJsonValue salesTax = bill[QStringLiteral("salesTax")];
        const QJsonValue provincialSalesTax = bill[QStringLiteral("provincialSalesTax")];
        theOut << "  "
               << (salesTax.isNull() ? tr("Sales tax: none") : tr("Sales tax: %1").arg(amountText(salesTax)))
               << '\n'
               << "  "
               << (provincialSalesTax.isNull()
                       ? tr("Provincial sales tax: none")
                       : tr("Provincial sales tax: %1").arg(amountText(provincialSalesTax)))
               << '\n';
        for (const QJsonValue& item : bill[QStringLiteral("coupons")].toArray())
            theOut << "  "
                   << tr("Coupon %1: %2")
                          .arg(item[QStringLiteral("code")].toString().isEmpty()
                                   ? tr("(from the server)")
                                   : item[QStringLiteral("code")].toString(),
                               amountText(item[QStringLiteral("value")]))
                   << '\n';
        QStringList dates;
        for (const QJsonValue& item : bill[QStringLiteral("shippingDates")].toArray()) {
            const QString from = item[QStringLiteral("from")].toString();
            const QString to = item[QStringLiteral("to")].toString();
            dates.append(QStringLiteral("%1 %2").arg(expressText(item[QStringLiteral("express")].toString()),
                                                     from == to ? from : tr("%1 to %2").arg(from, to)));
        }
        theOut << "  "
               << tr("Shipping: %1").arg(dates.isEmpty() ? tr("no date") : dates.join(QStringLiteral(", ")))
               << '\n'
               << "  "
               << tr("Total: %1 (before taxes %2)")
                      .arg(amountText(bill[QStringLiteral("total")]),
                           amountText(bill[QStringLiteral("subTotal")]))
               << '\n';
    }

    QStringList coupons;
    for (const QJsonValue& item : theReport[QStringLiteral("coupons")].toArray())
        coupons.append(QStringLiteral("%1 %2").arg(item[QStringLiteral("code")].toString(),
                                                   amountText(item[QStringLiteral("value")])));
    QStringList expressTypes;
    for (const QJsonValue& item : theReport[QStringLiteral("expressTypes")].toArray())
        expressTypes.append(expressText(item.toString()));
    theOut << '\n'
           << tr("Coupons: %1").arg(coupons.isEmpty() ? tr("none") : coupons.join(QStringLiteral(", ")))
           << '\n'
           << tr("Express types of every bill: %1")
                  .arg(expressTypes.isEmpty() ? tr("none") : expressTypes.join(QStringLiteral(", ")))
           << '\n'
           << tr("Pay methods:") << '\n';
    for (const QJsonValue& item : theReport[QStringLiteral("payMethods")].toArray()) {
        QStringList names;
        for (const QJsonValue& name : item[QStringLiteral("names")].toArray())
            names.append(name.toString());
        QStringList shipments;
        for (const QJsonValue& shipment : item[QStringLiteral("shipmentMethods")].toArray())
            shipments.append(
                QStringLiteral("%1 %2%3")
                    .arg(shipment[QStringLiteral("id")].toInt())
                    .arg(shipment[QStringLiteral("name")].toString(),
                         shipment[QStringLiteral("express")].toBool() ? tr(" (express)") : QString()));
        theOut << "  "
               << QStringLiteral("%1 %2: %3")
                      .arg(item[QStringLiteral("id")].toInt())
                      .arg(names.isEmpty() ? tr("(unknown to the client)") : names.join(QStringLiteral(", ")),
                           shipments.isEmpty() ? tr("no shipment method")
                                               : shipments.join(QStringLiteral(", ")))
               << '\n';
    }
    if (theReport[QStringLiteral("declaration")].isString())
        theOut << tr("Declaration written to %1").arg(theReport[QStringLiteral("declaration")].toString())
               << '\n';

    const QJsonValue reconciliation = theReport[QStringLiteral("reconciliation")];
    if (!reconciliation.isObject())
        return;
    const QJsonArray differences = reconciliation[QStringLiteral("differences")].toArray();
    theOut << '\n'
           << tr("Local quote: %1; %2 line(s) compared, %3")
                  .arg(amountText(reconciliation[QStringLiteral("total")]))
                  .arg(reconciliation[QStringLiteral("compared")].toInt())
                  .arg(differences.isEmpty() ? tr("no difference")
                                             : tr("%1 difference(s):").arg(differences.size()))
           << '\n';
    for (const QJsonValue& item : differences) {
        const QJsonObject difference = item.toObject();
        const QJsonValue article = difference[QStringLiteral("article")];
        writeColumns(theOut,
                     {QString(),
                      difference[QStringLiteral("group")].isNull()
                          ? tr("order")
                          : tr("group %1").arg(groupText(difference[QStringLiteral("group")])),
                      kindText(difference[QStringLiteral("kind")].toString()),
                      article.isNull() ? QString() : QString::number(article.toInt()),
                      difference[QStringLiteral("name")].toString(),
                      tr("local %1").arg(sideText(difference, QStringLiteral("local"))),
                      tr("server %1").arg(sideText(difference, QStringLiteral("server")))},
                     {1, 8, 12, 6, 40, 28, 0});
    }
}
