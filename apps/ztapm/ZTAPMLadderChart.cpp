#include "ZTAPMLadderChart.h"

#include <QFont>
#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

constexpr int theWidth = 800;
constexpr int theHeight = 500;
// The plot area inside the chart: room for the amounts on the left, the title above, and the
// quantities, the axis title and the legend below.
const QRectF thePlot(100, 60, theWidth - 100 - 40, theHeight - 60 - 110);
// From this last lower limit on, the quantity axis is logarithmic.
constexpr qint64 theLogarithmicFrom = 100;

// The smallest of 1, 2, 5, 10, 20, 50, ... that covers theSpan in at most five steps.
qint64 roundStep(qint64 theSpan)
{
    for (qint64 power = 1;; power *= 10) {
        for (const qint64 factor : {1, 2, 5}) {
            if (factor * power * 5 >= theSpan)
                return factor * power;
        }
    }
}

qint64 roundUp(qint64 theValue, qint64 theStep)
{
    return std::max<qint64>(theStep, (theValue + theStep - 1) / theStep * theStep);
}

// The amount a row's regular line shows: the price outside the offer while one runs.
qint32 regularAmount(const ZTAPMPriceValue& theRow)
{
    const ZTMoney nonOffer = theRow.nonOfferPrice();
    return theRow.isOfferPriceValid() && nonOffer.isValid() ? nonOffer.value() : theRow.price().value();
}

bool hasOffer(const ZTAPMPriceValue& theRow)
{
    return theRow.isOfferPriceValid() && theRow.nonOfferPrice().isValid();
}

QFont chartFont(int thePixelSize, bool theBold = false)
{
    // Named, not left to the platform, so that one machine's fonts give one output. Debian's
    // fontconfig brings it along with Qt's GUI library.
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(thePixelSize);
    font.setBold(theBold);
    return font;
}

} // namespace

ZTAPMLadderChart::ZTAPMLadderChart(const QString& theTitle, const QList<Line>& theLines,
                                   const std::function<QString(qint64)>& theAmountText)
    : myTitle(theTitle), myAmountText(theAmountText)
{
    qint64 lastLowerLimit = 1;
    qint32 highestPrice = 0;
    for (Line line : theLines) {
        QList<ZTAPMPriceValue> rows;
        for (const ZTAPMPriceValue& row : std::as_const(line.rows)) {
            if (row.isValid() && row.discountModel().boundsCountPieces())
                rows.append(row);
        }
        if (rows.isEmpty())
            continue;
        std::stable_sort(rows.begin(), rows.end(),
                         [](const ZTAPMPriceValue& theA, const ZTAPMPriceValue& theB) {
                             if (theA.discountModel() != theB.discountModel())
                                 return theA.discountModel().value() < theB.discountModel().value();
                             return theA.lowerLimit() < theB.lowerLimit();
                         });
        for (const ZTAPMPriceValue& row : std::as_const(rows)) {
            lastLowerLimit = std::max<qint64>(lastLowerLimit, row.lowerLimit());
            highestPrice = std::max(highestPrice, regularAmount(row));
        }
        line.rows = rows;
        myLines.append(line);
    }

    myLogarithmic = lastLowerLimit >= theLogarithmicFrom;
    if (myLogarithmic) {
        myQuantityEnd = 1;
        while (myQuantityEnd < 2 * lastLowerLimit)
            myQuantityEnd *= 10;
    } else {
        const qint64 target = lastLowerLimit + lastLowerLimit / 4 + 1;
        myQuantityStep = roundStep(target);
        myQuantityEnd = roundUp(target, myQuantityStep);
    }
    myPriceStep = roundStep(highestPrice);
    myPriceEnd = roundUp(highestPrice, myPriceStep);
}

QSize ZTAPMLadderChart::size()
{
    return QSize(theWidth, theHeight);
}

QColor ZTAPMLadderChart::colour(const ZTOrderSource& theSource)
{
    if (theSource.isOnlinePointOfSale())
        return QColor(0x1f, 0x77, 0xb4);
    if (theSource.isOnlineMailOrder())
        return QColor(0xd6, 0x27, 0x28);
    return QColor(0x2c, 0xa0, 0x2c);
}

QStringList ZTAPMLadderChart::drawnSources() const
{
    QStringList names;
    for (const Line& line : myLines)
        names.append(line.name);
    return names;
}

double ZTAPMLadderChart::lineWidth(int theIndex) const
{
    return 2.5 + 2 * (myLines.size() - 1 - theIndex);
}

QPointF ZTAPMLadderChart::point(qint64 theQuantity, qint64 thePrice) const
{
    const double share = myLogarithmic ? std::log10(double(std::max<qint64>(theQuantity, 1))) /
                                             std::log10(double(myQuantityEnd))
                                       : double(theQuantity) / double(myQuantityEnd);
    return QPointF(thePlot.left() + share * thePlot.width(),
                   thePlot.bottom() - double(thePrice) / double(myPriceEnd) * thePlot.height());
}

QPainterPath ZTAPMLadderChart::steps(const QList<ZTAPMPriceValue>& theRows,
                                     const std::function<bool(const ZTAPMPriceValue&)>& theSelect,
                                     const std::function<qint32(const ZTAPMPriceValue&)>& theAmount) const
{
    QPainterPath path;
    bool open = false;
    for (int i = 0; i < theRows.size(); ++i) {
        const ZTAPMPriceValue& row = theRows.at(i);
        if (i > 0 && row.discountModel() != theRows.at(i - 1).discountModel())
            open = false;
        if (!theSelect(row)) {
            open = false;
            continue;
        }
        const bool lastOfModel =
            i + 1 == theRows.size() || theRows.at(i + 1).discountModel() != row.discountModel();
        const qint64 end = lastOfModel ? myQuantityEnd : theRows.at(i + 1).lowerLimit();
        const qint32 amount = theAmount(row);
        if (open)
            path.lineTo(point(row.lowerLimit(), amount));
        else
            path.moveTo(point(row.lowerLimit(), amount));
        path.lineTo(point(end, amount));
        open = true;
    }
    return path;
}

void ZTAPMLadderChart::paint(QPaintDevice* theDevice) const
{
    QPainter painter(theDevice);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::black);
    painter.setFont(chartFont(16, true));
    painter.drawText(QRectF(0, 12, theWidth, 24), Qt::AlignCenter, myTitle);
    paintAxes(painter);

    for (int i = 0; i < myLines.size(); ++i) {
        const Line& line = myLines.at(i);
        QPen pen(colour(line.source), lineWidth(i));
        pen.setJoinStyle(Qt::MiterJoin);
        painter.setPen(pen);
        painter.drawPath(steps(
            line.rows, [](const ZTAPMPriceValue&) { return true; }, &regularAmount));
        const QPainterPath offers =
            steps(line.rows, &hasOffer, [](const ZTAPMPriceValue& theRow) { return theRow.price().value(); });
        if (!offers.isEmpty()) {
            pen.setStyle(Qt::DashLine);
            painter.setPen(pen);
            painter.drawPath(offers);
        }
    }
    if (myLines.isEmpty()) {
        painter.setPen(Qt::black);
        painter.setFont(chartFont(14));
        painter.drawText(thePlot, Qt::AlignCenter, tr("no prices"));
    }
    paintLegend(painter);
}

void ZTAPMLadderChart::paintAxes(QPainter& thePainter) const
{
    const QPen grid(QColor(0xdd, 0xdd, 0xdd), 1);
    const QPen text(Qt::black);
    thePainter.setFont(chartFont(12));

    for (qint64 amount = 0; amount <= myPriceEnd; amount += myPriceStep) {
        const double y = point(0, amount).y();
        thePainter.setPen(grid);
        thePainter.drawLine(QLineF(thePlot.left(), y, thePlot.right(), y));
        thePainter.setPen(text);
        thePainter.drawText(QRectF(0, y - 8, thePlot.left() - 8, 16), Qt::AlignRight | Qt::AlignVCenter,
                            myAmountText(amount));
    }

    QList<qint64> quantities;
    if (myLogarithmic) {
        for (qint64 power = 1; power <= myQuantityEnd; power *= 10) {
            for (const qint64 factor : {1, 2, 5}) {
                if (factor * power <= myQuantityEnd)
                    quantities.append(factor * power);
            }
        }
    } else {
        for (qint64 quantity = 0; quantity <= myQuantityEnd; quantity += myQuantityStep)
            quantities.append(quantity);
    }
    for (const qint64 quantity : std::as_const(quantities)) {
        const double x = point(quantity, 0).x();
        thePainter.setPen(grid);
        thePainter.drawLine(QLineF(x, thePlot.top(), x, thePlot.bottom()));
        thePainter.setPen(text);
        thePainter.drawText(QRectF(x - 40, thePlot.bottom() + 6, 80, 16), Qt::AlignHCenter | Qt::AlignTop,
                            QString::number(quantity));
    }

    thePainter.setPen(QPen(Qt::black, 1));
    thePainter.drawLine(QLineF(thePlot.bottomLeft(), thePlot.bottomRight()));
    thePainter.drawLine(QLineF(thePlot.bottomLeft(), thePlot.topLeft()));
    thePainter.drawText(QRectF(thePlot.left(), thePlot.bottom() + 28, thePlot.width(), 18), Qt::AlignCenter,
                        myLogarithmic ? tr("quantity (pieces, logarithmic scale)") : tr("quantity (pieces)"));
    thePainter.drawText(QRectF(thePlot.left(), thePlot.top() - 22, thePlot.width(), 16),
                        Qt::AlignLeft | Qt::AlignVCenter, tr("unit price"));
}

void ZTAPMLadderChart::paintLegend(QPainter& thePainter) const
{
    thePainter.setFont(chartFont(12));
    const double y = theHeight - 30;
    double x = thePlot.left();
    const auto entry = [&](const QPen& thePen, const QString& theText) {
        thePainter.setPen(thePen);
        thePainter.drawLine(QLineF(x, y, x + 28, y));
        thePainter.setPen(Qt::black);
        thePainter.drawText(QRectF(x + 34, y - 9, 150, 18), Qt::AlignLeft | Qt::AlignVCenter, theText);
        x += 44 + thePainter.fontMetrics().horizontalAdvance(theText);
    };
    bool offers = false;
    for (int i = 0; i < myLines.size(); ++i) {
        const Line& line = myLines.at(i);
        entry(QPen(colour(line.source), lineWidth(i)), line.name);
        offers = offers || std::any_of(line.rows.cbegin(), line.rows.cend(), &hasOffer);
    }
    if (offers) {
        x += 20;
        entry(QPen(Qt::gray, 2.5, Qt::SolidLine), tr("regular price"));
        entry(QPen(Qt::gray, 2.5, Qt::DashLine), tr("offer price"));
    }
}
