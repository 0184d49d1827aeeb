#include "ZTAPMArticleCommand.h"

#include "ZTAPMArticleDefinition.h"
#include "ZTAPMArticlePriceInfo.h"
#include "ZTAPMDeliveryTimes.h"
#include "ZTOrderSource.h"
#include "ZTProductAbstract.h"

#include <QTextStream>

QString ZTAPMArticleCommand::name() const
{
    return QStringLiteral("article");
}

QString ZTAPMArticleCommand::synopsis() const
{
    return QStringLiteral("article ID");
}

QString ZTAPMArticleCommand::summary() const
{
    return tr("an article's facts, price ladder and delivery times");
}

int ZTAPMArticleCommand::readArguments(const QStringList& theArguments, const QCommandLineParser&)
{
    if (theArguments.size() != 1)
        return fail(UsageError, tr("usage: article ID"));
    return readArticleId(theArguments.first(), &myArticleId);
}

int ZTAPMArticleCommand::run(QJsonObject& theReport)
{
    int status = Success;
    const ZTProductAbstract* product = findProduct(myArticleId, &status);
    if (!product)
        return status;

    const ZTAPMArticleDefinition definition = product->articleDefinition();
    const ZTAPMArticlePriceInfo priceInfo = product->priceInfo();
    const ZTPageCountOrganization pages = definition.pageCountOrganization();

    QJsonArray prices;
    for (const ZTOrderSource& source : ZTOrderSource::all()) {
        const QList<ZTAPMPriceValue> values = priceInfo.ladder(source);
        if (values.isEmpty())
            continue;
        QJsonArray ladder;
        for (const ZTAPMPriceValue& value : std::as_const(values)) {
            const bool offer = value.isOfferPriceValid();
            ladder.append(QJsonObject{
                {QStringLiteral("from"), value.lowerLimit()},
                {QStringLiteral("to"), value.upperLimit()},
                {QStringLiteral("model"), modelName(value.discountModel())},
                {QStringLiteral("level"), value.discountLevel()},
                {QStringLiteral("price"), amountJson(value.price())},
                {QStringLiteral("offer"), offer},
                {QStringLiteral("nonOfferPrice"), offer ? amountJson(value.nonOfferPrice()) : QJsonValue()}});
        }
        prices.append(
            QJsonObject{{QStringLiteral("source"), source.toLogString()}, {QStringLiteral("rows"), ladder}});
    }

    QJsonArray deliveryTimes;
    for (const ZTAPMDeliveryTime& time : product->deliveryTimes()) {
        deliveryTimes.append(
            QJsonObject{{QStringLiteral("deliveryType"), time.deliveryType().toLogString()},
                        {QStringLiteral("express"), time.expressType().matches(ZTExpressTypeExpress)
                                                        ? QStringLiteral("express")
                                                        : QStringLiteral("standard")},
                        {QStringLiteral("minDays"), time.minDays()},
                        {QStringLiteral("maxDays"), time.maxDays()}});
    }

    theReport = {{QStringLiteral("id"), product->articleId().id()},
                 {QStringLiteral("name"), product->name()},
                 {QStringLiteral("articleClass"), product->articleClass().encodeCSV()},
                 {QStringLiteral("shippingGroup"), groupJson(product->shippingGroupId())},
                 {QStringLiteral("productType"), definition.productType().name()},
                 {QStringLiteral("orderTxtHead"), definition.orderTxtHead()},
                 {QStringLiteral("pages"), QJsonObject{{QStringLiteral("min"), pages.minPages()},
                                                       {QStringLiteral("max"), pages.maxPages()},
                                                       {QStringLiteral("increment"), pages.pageIncrement()}}},
                 {QStringLiteral("linkedArticles"), idsJson(definition.linkedArticleIds())},
                 {QStringLiteral("requiredAddOns"), idsJson(definition.requiredAddOns())},
                 {QStringLiteral("deprecated"), product->isDeprecated()},
                 {QStringLiteral("prices"), prices},
                 {QStringLiteral("deliveryTimes"), deliveryTimes}};
    return Success;
}

void ZTAPMArticleCommand::writeText(const QJsonObject& theReport, QTextStream& theOut) const
{
    const auto line = [&theOut](const QString& theLabel, const QString& theText) {
        theOut << theLabel.leftJustified(18) << theText << '\n';
    };
    const auto ids = [](const QJsonValue& theIds) {
        QStringList texts;
        for (const QJsonValue& id : theIds.toArray())
            texts.append(QString::number(id.toInt()));
        return texts.isEmpty() ? QStringLiteral("-") : texts.join(QStringLiteral(", "));
    };
    // The keywords of delivery type and express wish stand in JSON as they are.
    const auto keyword = [](const QJsonValue& theKeyword) {
        const QString text = theKeyword.toString();
        for (const char* known : {QT_TR_NOOP("point of sale"), QT_TR_NOOP("mail order"),
                                  QT_TR_NOOP("not given"), QT_TR_NOOP("standard"), QT_TR_NOOP("express")}) {
            if (text == QLatin1String(known))
                return tr(known);
        }
        return text;
    };
    const QJsonObject pages = theReport[QStringLiteral("pages")].toObject();
    line(tr("Article"), QStringLiteral("%1 %2")
                            .arg(theReport[QStringLiteral("id")].toInt())
                            .arg(theReport[QStringLiteral("name")].toString()));
    line(tr("Class"), theReport[QStringLiteral("articleClass")].toString());
    line(tr("Shipping group"), groupText(theReport[QStringLiteral("shippingGroup")]));
    line(tr("Product type"), theReport[QStringLiteral("productType")].toString());
    line(tr("Order text head"), theReport[QStringLiteral("orderTxtHead")].toString());
    line(tr("Pages"), tr("%1 to %2, in steps of %3")
                          .arg(pages[QStringLiteral("min")].toInt())
                          .arg(pages[QStringLiteral("max")].toInt())
                          .arg(pages[QStringLiteral("increment")].toInt()));
    line(tr("Linked articles"), ids(theReport[QStringLiteral("linkedArticles")]));
    line(tr("Required add-ons"), ids(theReport[QStringLiteral("requiredAddOns")]));
    line(tr("Deprecated"), theReport[QStringLiteral("deprecated")].toBool() ? tr("yes") : tr("no"));

    theOut << tr("Prices:") << '\n';
    const QList<int> widths{2, 4, 8, 8, 6, 5, 10};
    for (const QJsonValue& value : theReport[QStringLiteral("prices")].toArray()) {
        const QJsonObject source = value.toObject();
        theOut << "  " << source[QStringLiteral("source")].toString() << '\n';
        writeColumns(theOut,
                     {QString(), QString(), tr("from"), tr("to"), tr("model"), tr("level"), tr("unit price"),
                      tr("offer")},
                     widths);
        for (const QJsonValue& rowValue : source[QStringLiteral("rows")].toArray()) {
            const QJsonObject row = rowValue.toObject();
            const int to = row[QStringLiteral("to")].toInt();
            writeColumns(theOut,
                         {QString(), QString(), QString::number(row[QStringLiteral("from")].toInt()),
                          to < 0 ? QStringLiteral("-") : QString::number(to),
                          row[QStringLiteral("model")].toString(),
                          QString::number(row[QStringLiteral("level")].toInt()),
                          amountText(row[QStringLiteral("price")]),
                          row[QStringLiteral("offer")].toBool()
                              ? tr("instead of %1").arg(amountText(row[QStringLiteral("nonOfferPrice")]))
                              : QString()},
                         widths);
        }
    }
    theOut << tr("Delivery times:") << '\n';
    const QJsonArray times = theReport[QStringLiteral("deliveryTimes")].toArray();
    if (times.isEmpty())
        theOut << "  -\n";
    for (const QJsonValue& value : times) {
        const QJsonObject time = value.toObject();
        theOut << "  " << keyword(time[QStringLiteral("deliveryType")]).leftJustified(14)
               << keyword(time[QStringLiteral("express")]).leftJustified(10)
               << tr("%1 to %2 days")
                      .arg(time[QStringLiteral("minDays")].toInt())
                      .arg(time[QStringLiteral("maxDays")].toInt())
               << '\n';
    }
}
