#include "ZTBarcodeDefinitionList.h"

#include "ZTDiagnosticCollector.h"
#include "ZTProblemList.h"
#include "ZTXMLParser.h"

#include <QCoreApplication>
#include <QDomElement>

namespace {

// A length in pixels, rounded; theDefault (in pixels) when missing, and also when malformed,
// with a note. The parser gives its default for a malformed value without a word, so two reads
// with different defaults tell a malformed value from a good one.
int readPixels(const QDomElement& thePosition, const QString& theName, int theDefault,
               const ZTDistanceUnit& theUnit, ZTProblemList* theProblems)
{
    if (!thePosition.hasAttribute(theName))
        return theDefault;
    const ZTDistance length = ZTXMLParser::readDistance(thePosition, theName, 0.0, theUnit);
    if (length != ZTXMLParser::readDistance(thePosition, theName, -1.0, theUnit)) {
        theProblems->append(
            QStringLiteral("%1=\"%2\" is no length").arg(theName, thePosition.attribute(theName)),
            QCoreApplication::translate("ZTBarcodeDefinitionList", "%1=\"%2\" ist keine Länge")
                .arg(theName, thePosition.attribute(theName)));
        return theDefault;
    }
    return length.roundedPixels();
}

} // namespace

ZTBarcodeDefinitionList::ZTBarcodeDefinitionList() = default;
ZTBarcodeDefinitionList::ZTBarcodeDefinitionList(const ZTBarcodeDefinitionList& other) = default;
ZTBarcodeDefinitionList& ZTBarcodeDefinitionList::operator=(const ZTBarcodeDefinitionList& other) = default;
ZTBarcodeDefinitionList::~ZTBarcodeDefinitionList() = default;

ZTBarcodeDefinitionList ZTBarcodeDefinitionList::createFromXTCI(const QDomElement& theBarcode,
                                                                const ZTDistanceUnit& theUnit)
{
    ZTBarcodeDefinitionList result;
    ZTProblemList problems;
    int number = 0;
    for (QDomElement position = theBarcode.firstChildElement(QStringLiteral("position")); !position.isNull();
         position = position.nextSiblingElement(QStringLiteral("position"))) {
        ++number;
        ZTProblemList own;
        const int x = readPixels(position, QStringLiteral("x"), 0, theUnit, &own);
        const int y = readPixels(position, QStringLiteral("y"), 0, theUnit, &own);
        const int width = readPixels(position, QStringLiteral("width"), 0, theUnit, &own);
        const int height = readPixels(position, QStringLiteral("height"), 0, theUnit, &own);
        bool rotationOk = true;
        int rotation = ZTXMLParser::fastDecodeInt(
            ZTXMLParser::attribute(position, QStringLiteral("rotation"), QStringLiteral("0"), true),
            &rotationOk);
        if (!rotationOk || rotation < 0 || rotation >= 360 || rotation % 90 != 0) {
            own.append(QStringLiteral("rotation=\"%1\" is not 0, 90, 180 or 270")
                           .arg(position.attribute(QStringLiteral("rotation"))),
                       QCoreApplication::translate("ZTBarcodeDefinitionList",
                                                   "rotation=\"%1\" ist nicht 0, 90, 180 oder 270")
                           .arg(position.attribute(QStringLiteral("rotation"))));
            rotation = 0;
        }
        const QString format =
            ZTXMLParser::attribute(position, QStringLiteral("format"), QStringLiteral("code128"), true)
                .trimmed();

        const bool usable = width > 0 && height > 0 && x >= 0 && y >= 0;
        if (!usable)
            own.append(
                QStringLiteral("the area %1,%2 %3x%4 px is empty or off the cover, skipped")
                    .arg(x)
                    .arg(y)
                    .arg(width)
                    .arg(height),
                QCoreApplication::translate(
                    "ZTBarcodeDefinitionList",
                    "die Fläche %1,%2 %3x%4 px ist leer oder liegt außerhalb des Umschlags, übergangen")
                    .arg(x)
                    .arg(y)
                    .arg(width)
                    .arg(height));
        for (qsizetype i = 0; i < own.size(); ++i)
            problems.append(QStringLiteral("position %1: %2").arg(number).arg(own.logTextAt(i)),
                            QCoreApplication::translate("ZTBarcodeDefinitionList", "Position %1: %2")
                                .arg(number)
                                .arg(own.textAt(i)));
        if (usable)
            result.append(ZTBarcodeDefinition(QRect(x, y, width, height), rotation, format));
    }
    if (!problems.isEmpty()) {
        const QDomElement article = theBarcode.parentNode().parentNode().toElement();
        qWarning().noquote() << "barcodes of article" << article.attribute(QStringLiteral("id")) << ":"
                             << problems.logText();
        ZTDiagnosticCollector::report(
            ZTDiagnostic::Note,
            QCoreApplication::translate("ZTBarcodeDefinitionList", "Barcodes von Artikel %1: %2")
                .arg(article.attribute(QStringLiteral("id")), problems.text()));
    }
    return result;
}
