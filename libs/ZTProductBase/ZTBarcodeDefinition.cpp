#include "ZTBarcodeDefinition.h"

ZTBarcodeDefinition::ZTBarcodeDefinition() = default;

ZTBarcodeDefinition::ZTBarcodeDefinition(const QRect& theArea, int theRotation, const QString& theFormat)
    : myArea(theArea), myRotation(theRotation), myFormat(theFormat)
{}

ZTBarcodeDefinition::ZTBarcodeDefinition(const ZTBarcodeDefinition& other) = default;
ZTBarcodeDefinition& ZTBarcodeDefinition::operator=(const ZTBarcodeDefinition& other) = default;
ZTBarcodeDefinition::~ZTBarcodeDefinition() = default;

bool ZTBarcodeDefinition::operator==(const ZTBarcodeDefinition& other) const
{
    return myArea == other.myArea && myRotation == other.myRotation && myFormat == other.myFormat;
}

QDebug operator<<(QDebug debug, const ZTBarcodeDefinition& theDefinition)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTBarcodeDefinition(" << theDefinition.area() << ", " << theDefinition.rotation()
                    << "°, " << theDefinition.format() << ')';
    return debug;
}
