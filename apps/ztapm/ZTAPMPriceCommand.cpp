#include "ZTAPMPriceCommand.h"

#include "ZTAPMPriceExplanation.h"
#include "ZTAPMPriceKey.h"
#include "ZTAPMQuoteArguments.h"
#include "ZTProductAbstract.h"

#include <QCommandLineParser>
#include <QTextStream>

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
    return tr("the amount for COUNT pieces, with every model's amount") +
           QStringLiteral("\n[--source S] [--sum CENTS] [--model x]");
}

QList<QCommandLineOption> ZTAPMPriceCommand::options() const
{
    return {ZTAPMQuoteArguments::sourceOption(),
            QCommandLineOption(QStringLiteral("sum"),
                               tr("price: the goods' sum in hundredths, for \"z\" rows."),
                               QStringLiteral("CENTS"), QStringLiteral("0")),
            QCommandLineOption(QStringLiteral("model"), tr("price: \"x\" to price an express fee."),
                               QStringLiteral("M"))};
}

int ZTAPMPriceCommand::readArguments(const QStringList& theArguments, const QCommandLineParser& theParser)
{
    if (theArguments.size() != 2)
        return fail(UsageError, tr("usage: price ID COUNT [--source S] [--sum CENTS] [--model x]"));
    bool countOk = false;
    myCount = theArguments.at(1).toInt(&countOk);
    if (!countOk || myCount < 0)
        return fail(UsageError, tr("'%1' is no number of pieces").arg(theArguments.at(1)));

    const QString sourceName = theParser.value(QStringLiteral("source"));
    myOrderSource = orderSourceNamed(sourceName);
    if (!myOrderSource.isValid()) {
        QStringList names;
        for (const ZTOrderSource& source : ZTOrderSource::all())
            names.append(orderSourceName(source));
        return fail(UsageError,
                    tr("unknown order source '%1'; use %2").arg(sourceName, joined(names, tr("or"))));
    }
    bool sumOk = false;
    myBillingSum = theParser.value(QStringLiteral("sum")).toInt(&sumOk);
    if (!sumOk || myBillingSum < 0)
        return fail(UsageError,
                    tr("'%1' is no goods' sum in hundredths").arg(theParser.value(QStringLiteral("sum"))));
    myExpress = theParser.isSet(QStringLiteral("model"));
    if (myExpress && theParser.value(QStringLiteral("model")) != QLatin1String("x"))
        return fail(UsageError,
                    tr("--model takes only x (an express fee); the engine chooses every other model"));
    return readArticleId(theArguments.first(), &myArticleId);
}

int ZTAPMPriceCommand::run(QJsonObject& theReport)
{
    int status = Success;
    const ZTProductAbstract* product = findProduct(myArticleId, &status);
    if (!product)
        return status;

    const ZTAPMPriceKey key(myOrderSource, 0,
                            myExpress ? ZTDiscountModel(ZTDiscountModelExpressFee) : ZTDiscountModel());
    const ZTAPMPriceExplanation explanation =
        product->explainPrice(key, myCount, ZTMoney(myBillingSum), nullptr);
    QJsonArray candidates;
    for (const ZTAPMPriceExplanation::Candidate& candidate : explanation.candidates())
        candidates.append(QJsonObject{{QStringLiteral("model"), modelName(candidate.first)},
                                      {QStringLiteral("amount"), amountJson(candidate.second)}});

    theReport = {{QStringLiteral("article"), product->articleId().id()},
                 {QStringLiteral("count"), myCount},
                 {QStringLiteral("source"), myOrderSource.toLogString()},
                 {QStringLiteral("model"),
                  explanation.chosenModel().isNull() ? QString() : modelName(explanation.chosenModel())},
                 {QStringLiteral("amount"), amountJson(explanation.amount())},
                 {QStringLiteral("candidates"), candidates}};
    return Success;
}

void ZTAPMPriceCommand::writeText(const QJsonObject& theReport, QTextStream& theOut) const
{
    theOut << tr("Article %1, %2 piece(s), order source %3")
                  .arg(theReport[QStringLiteral("article")].toInt())
                  .arg(theReport[QStringLiteral("count")].toInt())
                  .arg(theReport[QStringLiteral("source")].toString())
           << '\n';
    const QString winner = theReport[QStringLiteral("model")].toString();
    for (const QJsonValue& value : theReport[QStringLiteral("candidates")].toArray()) {
        const QJsonObject candidate = value.toObject();
        const QString model = candidate[QStringLiteral("model")].toString();
        theOut << "  " << tr("model %1").arg(model.leftJustified(7))
               << amountText(candidate[QStringLiteral("amount")])
               << (model == winner ? tr("  <- chosen") : QString()) << '\n';
    }
    const QString amount = amountText(theReport[QStringLiteral("amount")]);
    theOut << (winner.isEmpty() ? tr("Amount: %1").arg(amount)
                                : tr("Amount: %1 (model %2)").arg(amount, winner))
           << '\n';
}
