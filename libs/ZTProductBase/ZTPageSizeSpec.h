#ifndef ZTPAGESIZESPEC_H
#define ZTPAGESIZESPEC_H

#include "ZTMargins.h"
#include "ztproductbase_export.h"

#include <QSize>

// What the editor needs to lay out one page: its size in pixels as the article defines it, and
// the bleed on each of its four sides.
class ZTPRODUCTBASE_EXPORT ZTPageSizeSpec
{
public:
    ZTPageSizeSpec();
    ZTPageSizeSpec(const QSize& theSize, const ZTMargins& theBleed);
    ZTPageSizeSpec(const ZTPageSizeSpec& other);
    ZTPageSizeSpec& operator=(const ZTPageSizeSpec& other);
    virtual ~ZTPageSizeSpec();

    QSize size() const { return mySize; }
    ZTMargins bleed() const { return myBleed; }

    bool operator==(const ZTPageSizeSpec& other) const;
    bool operator!=(const ZTPageSizeSpec& other) const { return !(*this == other); }

private:
    QSize mySize;
    ZTMargins myBleed;
};

#endif // ZTPAGESIZESPEC_H
