#ifndef ZTBARCODEDEFINITION_H
#define ZTBARCODEDEFINITION_H

#include "ztproductbase_export.h"

#include <QDebug>
#include <QRect>
#include <QString>

// Where production prints a barcode on the cover, so that a finished product can be matched to
// its order: the area in pixels from the top left corner of the cover size, a rotation in
// degrees clockwise (0, 90, 180 or 270) and the symbology ("code128", "ean13", ...).
class ZTPRODUCTBASE_EXPORT ZTBarcodeDefinition
{
public:
    ZTBarcodeDefinition();
    ZTBarcodeDefinition(const QRect& theArea, int theRotation, const QString& theFormat);
    ZTBarcodeDefinition(const ZTBarcodeDefinition& other);
    ZTBarcodeDefinition& operator=(const ZTBarcodeDefinition& other);
    virtual ~ZTBarcodeDefinition();

    QRect area() const { return myArea; }
    int rotation() const { return myRotation; }
    QString format() const { return myFormat; }
    bool isValid() const { return !myArea.isEmpty(); }

    bool operator==(const ZTBarcodeDefinition& other) const;
    bool operator!=(const ZTBarcodeDefinition& other) const { return !(*this == other); }

private:
    QRect myArea;
    int myRotation = 0;
    QString myFormat;
};

ZTPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const ZTBarcodeDefinition& theDefinition);

#endif // ZTBARCODEDEFINITION_H
