#ifndef ZTAPMLADDERCHART_H
#define ZTAPMLADDERCHART_H

#include "ZTAPMPriceValue.h"
#include "ZTOrderSource.h"

#include <QColor>
#include <QCoreApplication>
#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>

class QPaintDevice;
class QPainter;
class QPainterPath;
class QPointF;

// An article's price ladders as a chart of the unit price against the quantity, one step line per
// order source, painted onto any QPaintDevice (an SVG generator or an image), so that every output
// shows the same drawing.
//
// What is drawn:
// - A source's rows are those of its ladder that have a price and whose bounds count pieces. A
//   row's price holds from its lower limit to the next row's lower limit, so the line steps at
//   each lower limit; the last row runs to the end of the axis. A ladder of several models draws
//   one run of steps per model, each in the order of the lower limits.
// - Each source's regular price (the price outside an offer where one runs, else the row's price)
//   is ONE path in the source's colour, solid; its offer prices, if any row has one, are one more
//   path in the same colour, dashed. Axes, ticks, grid and legend are drawn as lines and
//   rectangles, never as paths, so in an SVG the path elements are exactly the ladders' lines.
// - Quantity axis: linear from 0 to a round number a quarter beyond the last lower limit; when the
//   last lower limit reaches 100 (limits spanning two decades and more) it is logarithmic from 1
//   to the first power of ten at or above twice that limit.
// - Price axis: linear from 0 to the first round amount (1, 2 or 5 times a power of ten, in
//   hundredths) at or above the highest price, labelled through the amount text given.
// Size, fonts and colours are fixed, so that equal ladders give equal output.
class ZTAPMLadderChart
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMLadderChart)

public:
    struct Line
    {
        ZTOrderSource source;
        QString name;
        QList<ZTAPMPriceValue> rows;
    };

    // theLines in the legend's order; theAmountText writes an amount in hundredths for a person.
    ZTAPMLadderChart(const QString& theTitle, const QList<Line>& theLines,
                     const std::function<QString(qint64)>& theAmountText);

    static QSize size();
    // The colour of a source's lines: fixed per source, whichever sources are drawn.
    static QColor colour(const ZTOrderSource& theSource);

    // The names of the sources with a row to draw, in the legend's order.
    QStringList drawnSources() const;
    bool isLogarithmic() const { return myLogarithmic; }
    qint64 quantityEnd() const { return myQuantityEnd; }
    qint64 priceEnd() const { return myPriceEnd; }

    // Paints the chart in size() device pixels on the device as it is: no background, which
    // would be one more path in an SVG.
    void paint(QPaintDevice* theDevice) const;

private:
    // Each line is narrower than the one before and drawn over it, so that sources of equal
    // prices show as nested bands instead of hiding each other.
    double lineWidth(int theIndex) const;
    QPointF point(qint64 theQuantity, qint64 thePrice) const;
    // One run of steps per model for the rows that theSelect accepts; theAmount gives a row's
    // height. A row theSelect refuses breaks the run.
    QPainterPath steps(const QList<ZTAPMPriceValue>& theRows,
                       const std::function<bool(const ZTAPMPriceValue&)>& theSelect,
                       const std::function<qint32(const ZTAPMPriceValue&)>& theAmount) const;
    void paintAxes(QPainter& thePainter) const;
    void paintLegend(QPainter& thePainter) const;

    QString myTitle;
    QList<Line> myLines;
    std::function<QString(qint64)> myAmountText;
    bool myLogarithmic = false;
    qint64 myQuantityEnd = 1;
    qint64 myQuantityStep = 1;
    qint64 myPriceEnd = 1;
    qint64 myPriceStep = 1;
};

#endif // ZTAPMLADDERCHART_H
