#include "ZTAPMPriceCommand.h"

#include "ZTAPMArticlePriceInfo.h"
#include "ZTAPMPriceKey.h"
#include "ZTProductAbstract.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <algorithm>

QString ZTAPMPriceCommand::name() const
{
    return QStringLiteral("price");
}

QString ZTAPMPriceCommand::synopsis() const
{
    return QStringLiteral("price ID COUNT");
}

QString ZTAPMPriceCommand::summary() const
{
    return QStringLiteral("the amount for COUNT pieces, with every model's amount\n"
                          "[--source S] [--sum CENTS] [--model x]");
}

QList<QCommandLineOption> ZTAPMPriceCommand::options() const
{
    return {QCommandLineOption(QStringLiteral("source"),
                               QStringLiteral("price: the order source (default %1).")
                                   .arg(orderSourceName(defaultOrderSource())),
                               QStringLiteral("S"), orderSourceName(defaultOrderSource())),
            QCommandLineOption(QStringLiteral("sum"),
                               QStringLiteral("price: the goods' sum in hundredths, for \"z\" rows."),
                               QStringLiteral("CENTS"), QStringLiteral("0")),
            QCommandLineOption(QStringLiteral("model"),
                               QStringLiteral("price: \"x\" to price an express fee."), QStringLiteral("M"))};
}

int ZTAPMPriceCommand::readArguments(const QStringList& theArguments, const QCommandLineParser& theParser)
{
    if (theArguments.size() != 2)
        return fail(UsageError,
                    QStringLiteral("usage: price ID COUNT [--source S] [--sum CENTS] [--model x]"));
    bool countOk = false;
    myCount = theArguments.at(1).toInt(&countOk);
    if (!countOk || myCount < 0)
        return fail(UsageError, QStringLiteral("'%1' is no number of pieces").arg(theArguments.at(1)));

    const QString sourceName = theParser.value(QStringLiteral("source"));
    myOrderSource = orderSourceNamed(sourceName);
    if (!myOrderSource.isValid()) {
        QStringList names;
        for (const ZTOrderSource& source : ZTOrderSource::all())
            names.append(orderSourceName(source));
        return fail(UsageError, QStringLiteral("unknown order source '%1'; use %2")
                                    .arg(sourceName, joined(names, QStringLiteral("or"))));
    }
    bool sumOk = false;
    myBillingSum = theParser.value(QStringLiteral("sum")).toInt(&sumOk);
    if (!sumOk || myBillingSum < 0)
        return fail(UsageError, QStringLiteral("'%1' is no goods' sum in hundredths")
                                    .arg(theParser.value(QStringLiteral("sum"))));
    myExpress = theParser.isSet(QStringLiteral("model"));
    if (myExpress && theParser.value(QStringLiteral("model")) != QLatin1String("x"))
        return fail(
            UsageError,
            QStringLiteral("--model takes only x (an express fee); the engine chooses every other model"));
    return readArticleId(theArguments.first(), &myArticleId);
}

int ZTAPMPriceCommand::run(QJsonObject& theReport)
{
    int status = Success;
    const ZTProductAbstract* product = findProduct(myArticleId, &status);
    if (!product)
        return status;

    const ZTAPMArticlePriceInfo priceInfo = product->priceInfo();
    const ZTMoney billingSum(myBillingSum);
    const ZTAPMPriceKey key(myOrderSource, 0,
                            myExpress ? ZTDiscountModel(ZTDiscountModelExpressFee) : ZTDiscountModel());
    const ZTMoney amount = product->priceFor(key, myCount, billingSum, nullptr, nullptr);

    // What each model of the article would give, in the order of the models' values.
    QList<ZTDiscountModel> models(priceInfo.discountModels().cbegin(), priceInfo.discountModels().cend());
    std::sort(models.begin(), models.end(),
              [](const ZTDiscountModel& a, const ZTDiscountModel& b) { return a.value() < b.value(); });
    QJsonArray candidates;
    for (const ZTDiscountModel& model : std::as_const(models)) {
        if (myExpress && model.value() != ZTDiscountModelExpressFee)
            continue;
        const ZTMoney candidate =
            priceInfo.priceInModel(ZTAPMPriceKey(key, model), myCount, billingSum, nullptr);
        candidates.append(QJsonObject{{QStringLiteral("model"), modelName(model)},
                                      {QStringLiteral("amount"), amountJson(candidate)}});
    }

    ZTDiscountModel chosen;
    if (priceInfo.transferModel() == ZTTransferModelPerBasket)
        chosen = ZTDiscountModel(ZTDiscountModelBasketTransfer);
    else if (myExpress)
        chosen = ZTDiscountModel(ZTDiscountModelExpressFee);
    else
        chosen = priceInfo.bestDiscountModel(key, myCount, billingSum, 0);

    theReport = {
        {QStringLiteral("article"), product->articleId().id()},
        {QStringLiteral("count"), myCount},
        {QStringLiteral("source"), myOrderSource.toLogString()},
        {QStringLiteral("model"), amount.value() == ZTMoney::noPrice ? QString() : modelName(chosen)},
        {QStringLiteral("amount"), amountJson(amount)},
        {QStringLiteral("candidates"), candidates}};
    return Success;
}

void ZTAPMPriceCommand::writeText(const QJsonObject& theReport, QTextStream& theOut) const
{
    theOut << QStringLiteral("Article %1, %2 piece(s), order source %3")
                  .arg(theReport[QStringLiteral("article")].toInt())
                  .arg(theReport[QStringLiteral("count")].toInt())
                  .arg(theReport[QStringLiteral("source")].toString())
           << '\n';
    const QString winner = theReport[QStringLiteral("model")].toString();
    for (const QJsonValue& value : theReport[QStringLiteral("candidates")].toArray()) {
        const QJsonObject candidate = value.toObject();
        const QString model = candidate[QStringLiteral("model")].toString();
        theOut << "  model " << model.leftJustified(7) << amountText(candidate[QStringLiteral("amount")])
               << (model == winner ? QStringLiteral("  <- chosen") : QString()) << '\n';
    }
    theOut << "Amount: " << amountText(theReport[QStringLiteral("amount")]);
    if (!winner.isEmpty())
        theOut << " (model " << winner << ')';
    theOut << '\n';
}
