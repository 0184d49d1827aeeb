#include "ZTAPMLadderCommand.h"

#include "ZTAPMArticlePriceInfo.h"
#include "ZTAPMLadderChart.h"
#include "ZTMoney.h"
#include "ZTOrderSource.h"
#include "ZTProductAbstract.h"

#include <QBuffer>
#include <QCommandLineParser>
#include <QImage>
#include <QSaveFile>
#include <QSvgGenerator>
#include <QTextStream>

QString ZTAPMLadderCommand::name() const
{
    return QStringLiteral("ladder");
}

QString ZTAPMLadderCommand::synopsis() const
{
    return QStringLiteral("ladder ID");
}

QString ZTAPMLadderCommand::summary() const
{
    return tr("a chart of the unit price by quantity, one line per order source\n"
              "--svg FILE | --png FILE [--source S]");
}

QList<QCommandLineOption> ZTAPMLadderCommand::options() const
{
    return {QCommandLineOption(QStringLiteral("source"),
                               tr("price, ladder: the order source (default %1; ladder: all).")
                                   .arg(orderSourceName(defaultOrderSource())),
                               QStringLiteral("S")),
            QCommandLineOption(QStringLiteral("svg"), tr("ladder: write the chart as SVG."),
                               QStringLiteral("FILE")),
            QCommandLineOption(QStringLiteral("png"), tr("ladder: write the chart as PNG."),
                               QStringLiteral("FILE"))};
}

bool ZTAPMLadderCommand::needsGuiApplication() const
{
    return true;
}

int ZTAPMLadderCommand::readArguments(const QStringList& theArguments, const QCommandLineParser& theParser)
{
    const QString usage = tr("usage: ladder ID --svg FILE | --png FILE [--source S]");
    if (theArguments.size() != 1)
        return fail(UsageError, usage);
    const bool svg = theParser.isSet(QStringLiteral("svg"));
    if (svg == theParser.isSet(QStringLiteral("png")))
        return fail(UsageError, usage);
    mySvg = svg;
    myFile = theParser.value(mySvg ? QStringLiteral("svg") : QStringLiteral("png"));

    myOrderSources = ZTOrderSource::all();
    if (theParser.isSet(QStringLiteral("source"))) {
        const QString sourceName = theParser.value(QStringLiteral("source"));
        const ZTOrderSource source = orderSourceNamed(sourceName);
        if (!source.isValid()) {
            QStringList names;
            for (const ZTOrderSource& each : std::as_const(myOrderSources))
                names.append(orderSourceName(each));
            return fail(UsageError,
                        tr("unknown order source '%1'; use %2").arg(sourceName, joined(names, tr("or"))));
        }
        myOrderSources = {source};
    }
    return readArticleId(theArguments.first(), &myArticleId);
}

int ZTAPMLadderCommand::run(QJsonObject& theReport)
{
    int status = Success;
    const ZTProductAbstract* product = findProduct(myArticleId, &status);
    if (!product)
        return status;

    const ZTAPMArticlePriceInfo priceInfo = product->priceInfo();
    QList<ZTAPMLadderChart::Line> lines;
    for (const ZTOrderSource& source : std::as_const(myOrderSources))
        lines.append({source, source.toLogString(), priceInfo.ladder(source)});
    const QString title = tr("Article %1 %2").arg(myArticleId).arg(product->name());
    // As every command writes amounts; an axis end beyond 32 bits in plain units.
    const ZTAPMLadderChart chart(title, lines, [](qint64 theAmount) {
        return ZTMoney::fits(theAmount) ? amountText(QJsonValue(theAmount))
                                        : QString::number(theAmount / 100);
    });

    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (mySvg) {
        QSvgGenerator generator;
        generator.setOutputDevice(&buffer);
        generator.setSize(ZTAPMLadderChart::size());
        generator.setViewBox(QRect(QPoint(0, 0), ZTAPMLadderChart::size()));
        generator.setTitle(tr("Price ladder of article %1").arg(myArticleId));
        generator.setDescription(tr("Unit price by quantity, one line per order source"));
        chart.paint(&generator);
    } else {
        QImage image(ZTAPMLadderChart::size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        chart.paint(&image);
        image.save(&buffer, "PNG");
    }
    QSaveFile file(myFile);
    if (!file.open(QIODevice::WriteOnly) || file.write(buffer.data()) != buffer.size() || !file.commit())
        return fail(UsageError, tr("cannot write '%1': %2").arg(myFile, file.errorString()));

    theReport = {{QStringLiteral("article"), myArticleId},
                 {QStringLiteral("file"), myFile},
                 {QStringLiteral("format"), mySvg ? QStringLiteral("svg") : QStringLiteral("png")},
                 {QStringLiteral("sources"), QJsonArray::fromStringList(chart.drawnSources())},
                 {QStringLiteral("quantityScale"),
                  chart.isLogarithmic() ? QStringLiteral("logarithmic") : QStringLiteral("linear")},
                 {QStringLiteral("quantityEnd"), chart.quantityEnd()},
                 {QStringLiteral("priceEnd"), chart.priceEnd()}};
    return Success;
}

void ZTAPMLadderCommand::writeText(const QJsonObject& theReport, QTextStream& theOut) const
{
    QStringList sources;
    for (const QJsonValue& source : theReport[QStringLiteral("sources")].toArray())
        sources.append(source.toString());
    // The scale's keyword stays in the JSON; the text says it in the reader's language.
    const bool logarithmic =
        theReport[QStringLiteral("quantityScale")].toString() == QLatin1String("logarithmic");
    theOut << tr("Article %1: %2, quantities up to %3 (%4 scale), prices up to %5, written to %6\n")
                  .arg(theReport[QStringLiteral("article")].toInt())
                  .arg(sources.isEmpty() ? tr("no prices") : sources.join(QStringLiteral(", ")))
                  .arg(theReport[QStringLiteral("quantityEnd")].toInteger())
                  .arg(logarithmic ? tr("logarithmic") : tr("linear"))
                  .arg(amountText(theReport[QStringLiteral("priceEnd")]))
                  .arg(theReport[QStringLiteral("file")].toString());
}
