#ifndef ZTORIENTATION_H
#define ZTORIENTATION_H

#include "ZTEnumToStringTable.h"
#include "ztproductbase_export.h"

class QDomElement;

// The shape of a product's page; a bit set, so that a design can allow several shapes.
enum ZTOrientationEnum : qint32 {
    ZTOrientationNone = 0,
    ZTOrientationPortrait = 1,
    ZTOrientationLandscape = 2,
    ZTOrientationSquare = 4,
    // Landscape of 2:1 or wider.
    ZTOrientationPanorama = 8,
    // Portrait of 1:2 or narrower.
    ZTOrientationVerticalPanorama = 16,
    ZTOrientationAll = 31,
};

class ZTPRODUCTBASE_EXPORT ZTOrientation : public ZTEnumWrapper<ZTOrientationEnum>
{
public:
    ZTOrientation(ZTOrientationEnum theValue = ZTOrientationNone);
    explicit ZTOrientation(const QString& theText);

    // Width divided by height of a typical page of this shape: 3:4, 4:3, 1:1, 2:1 and 1:2. For
    // several shapes the geometric mean of theirs, so that portrait and landscape together, or
    // all shapes, give a square; 1.0 for no shape.
    double defaultWidthHeightRatio() const;

    // Writes the shapes as keywords into the attribute "orientation"; nothing for 0.
    void toTemplates2Format(QDomElement& theElement) const;

    void fillTable(ZTEnumToStringTable<ZTOrientationEnum>* theTable) const override;
};

#endif // ZTORIENTATION_H
