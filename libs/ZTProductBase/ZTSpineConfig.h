#ifndef ZTSPINECONFIG_H
#define ZTSPINECONFIG_H

#include "ZTDistance.h"
#include "ztproductbase_export.h"

#include <QSharedDataPointer>
#include <QSize>
#include <QString>

class QDomElement;
class ZTSpineConfigImpl;

// The spine of a bound product: how wide it gets with the pages inside, how large a text on it
// may be, and how much of the cover the document's cover size gives to it.
//
// Read from the child "spine" of the article's "composition", with the lengths in the unit of
// the composition's "units" ("mm" if missing):
//   base_width           the spine without pages: boards, glue, cover material; default 0
//   page_thickness       what each page adds; default 0
//   min_width            the spine is never narrower; default 0
//   text_margin          kept free on both sides of a spine text; default 0
//   min_font_height      a text smaller than this is not printed at all; default 0
//   max_font_height      the largest text, however wide the spine; default 0, no limit
//   cover_reduce_width   taken off the width of the cover size; default 0
//   cover_reduce_height  taken off the height of the cover size; default 0
// A missing element gives the default: no spine at all. A length that is not a number, or is
// negative, gives its default, with one warning per article.
class ZTPRODUCTBASE_EXPORT ZTSpineConfig
{
public:
    ZTSpineConfig();
    ZTSpineConfig(const ZTSpineConfig& other);
    ZTSpineConfig(ZTSpineConfig&& other) noexcept;
    ZTSpineConfig& operator=(const ZTSpineConfig& other);
    ZTSpineConfig& operator=(ZTSpineConfig&& other) noexcept;
    virtual ~ZTSpineConfig();

    static ZTSpineConfig createFromProductsXML(const QDomElement& theArticle);

    // Whether the product has a spine that grows or stands out at all.
    bool hasSpine() const;

    // base_width + pages x page_thickness, at least min_width.
    ZTDistance spineWidth(unsigned int thePages) const;
    // The largest font height for theText on the spine of a product with thePages pages. The
    // lines of the text stand side by side across the spine, so they share its width less the
    // margins; the result is limited by max_font_height, and is 0 where it would fall below
    // min_font_height or below nothing: then the spine stays without text.
    ZTDistance spineMaxFontHeigth(unsigned int thePages, const QString& theText) const;
    // What the cover size of the document has more than the cover itself, in pixels.
    QSize coverReduceSize() const;

    ZTDistance baseWidth() const;
    ZTDistance pageThickness() const;
    ZTDistance minWidth() const;
    ZTDistance textMargin() const;
    ZTDistance minFontHeight() const;
    ZTDistance maxFontHeight() const;

    void setBaseWidth(const ZTDistance& theWidth);
    void setPageThickness(const ZTDistance& theThickness);
    void setMinWidth(const ZTDistance& theWidth);
    void setTextMargin(const ZTDistance& theMargin);
    void setFontHeightLimits(const ZTDistance& theMinimum, const ZTDistance& theMaximum);
    void setCoverReduceSize(const QSize& theSize);

    bool operator==(const ZTSpineConfig& other) const;
    bool operator!=(const ZTSpineConfig& other) const { return !(*this == other); }

private:
    QSharedDataPointer<ZTSpineConfigImpl> myImpl;
};

#endif // ZTSPINECONFIG_H
