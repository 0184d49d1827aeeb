#ifndef ZTPRODUCTCHECKERTYPE_H
#define ZTPRODUCTCHECKERTYPE_H

#include "ZTEnumToStringTable.h"
#include "ztproductbase_export.h"

// What a product checker looks at; a bit set. A checker has one type, a question to
// ZTProductCheckerRegistry names a mask of the checkers whose answer counts.
enum ZTProductCheckerTypeEnum : qint32 {
    ZTProductCheckerTypeNone = 0,
    // The product can be sold: it is in the catalogue and has a price.
    ZTProductCheckerTypeSaleable = 1,
    // The editor has what it needs to design the product.
    ZTProductCheckerTypeEditor = 2,
    // A product that goes with another one (a slipcase, a box) can be offered with it.
    ZTProductCheckerTypeAccessory = 4,
    ZTProductCheckerTypeAll = 7,
};

class ZTPRODUCTBASE_EXPORT ZTProductCheckerType : public ZTEnumWrapper<ZTProductCheckerTypeEnum>
{
public:
    ZTProductCheckerType(ZTProductCheckerTypeEnum theValue = ZTProductCheckerTypeNone);
    explicit ZTProductCheckerType(const QString& theText);

    void fillTable(ZTEnumToStringTable<ZTProductCheckerTypeEnum>* theTable) const override;
};

#endif // ZTPRODUCTCHECKERTYPE_H
