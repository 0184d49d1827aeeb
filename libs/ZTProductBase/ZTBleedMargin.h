#ifndef ZTBLEEDMARGIN_H
#define ZTBLEEDMARGIN_H

#include "ztproductbase_export.h"

#include <QDebug>

// The bleed of a page in pixels: what the printer cuts away on each side, left and right
// (horizontal) and top and bottom (vertical).
class ZTPRODUCTBASE_EXPORT ZTBleedMargin
{
public:
    ZTBleedMargin();
    ZTBleedMargin(int theHorizontal, int theVertical);
    ZTBleedMargin(const ZTBleedMargin& other);
    ZTBleedMargin& operator=(const ZTBleedMargin& other);
    virtual ~ZTBleedMargin();

    int horizontal() const { return myHorizontal; }
    int vertical() const { return myVertical; }
    void setHorizontal(int theHorizontal) { myHorizontal = theHorizontal; }
    void setVertical(int theVertical) { myVertical = theVertical; }

    bool isNull() const { return myHorizontal == 0 && myVertical == 0; }

    bool operator==(const ZTBleedMargin& other) const;
    bool operator!=(const ZTBleedMargin& other) const { return !(*this == other); }

private:
    int myHorizontal = 0;
    int myVertical = 0;
};

ZTPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const ZTBleedMargin& theMargin);

#endif // ZTBLEEDMARGIN_H
