#ifndef ZTBARCODEDEFINITIONLIST_H
#define ZTBARCODEDEFINITIONLIST_H

#include "ZTBarcodeDefinition.h"
#include "ztproductbase_export.h"

#include <QList>

class QDomElement;
class ZTDistanceUnit;

// The barcodes of one article, in document order. Read from the "barcode" child of the
// article's "composition", one "position" child per barcode:
//   <barcode>
//     <position x="10" y="280" width="40" height="12" rotation="0" format="code128"/>
//   </barcode>
// x, y (default 0), width and height (no default) are lengths in the composition's unit;
// rotation is 0, 90, 180 or 270 (default 0), format a symbology name (default "code128").
// A position without a positive width and height, or outside the cover (negative x or y), is
// skipped; a bad rotation becomes 0. One warning per article names all of it.
class ZTPRODUCTBASE_EXPORT ZTBarcodeDefinitionList : public QList<ZTBarcodeDefinition>
{
public:
    ZTBarcodeDefinitionList();
    ZTBarcodeDefinitionList(const ZTBarcodeDefinitionList& other);
    ZTBarcodeDefinitionList& operator=(const ZTBarcodeDefinitionList& other);
    virtual ~ZTBarcodeDefinitionList();

    // theBarcode is the "barcode" element itself; a null element gives an empty list.
    static ZTBarcodeDefinitionList createFromXTCI(const QDomElement& theBarcode,
                                                  const ZTDistanceUnit& theUnit);
};

#endif // ZTBARCODEDEFINITIONLIST_H
