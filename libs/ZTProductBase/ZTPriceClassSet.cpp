#include "ZTPriceClassSet.h"

ZTPriceClassSet::ZTPriceClassSet() = default;

ZTPriceClassSet::ZTPriceClassSet(std::initializer_list<ZTPriceClass> theClasses)
    : QSet<ZTPriceClass>(theClasses)
{}

ZTPriceClassSet::ZTPriceClassSet(std::initializer_list<const char*> theKeywords)
{
    reserve(qsizetype(theKeywords.size()));
    for (const char* keyword : theKeywords)
        insert(ZTPriceClass::create(QLatin1String(keyword)));
}

ZTPriceClassSet::ZTPriceClassSet(const ZTPriceClassSet& other) = default;

ZTPriceClassSet& ZTPriceClassSet::operator=(const ZTPriceClassSet& other) = default;

ZTPriceClassSet::~ZTPriceClassSet() = default;

// The keywords are those of the server's price lists; the reference for key-account authors is
// the host platform documentation, which must be kept in step with this list.

const ZTPriceClassSet& ZTPriceClassSet::frameGlasses()
{
    static const ZTPriceClassSet theSet{"FRAME_GLASS", "FRAME_GLASS_ANTIREFLEX", "FRAME_ACRYLIC_GLASS"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::spotColorAll()
{
    static const ZTPriceClassSet theSet{"SPOT_COLOR_GOLD", "SPOT_COLOR_SILVER", "SPOT_COLOR_ROSEGOLD",
                                        "SPOT_COLOR_GLOSS"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::bookGiftBoxes()
{
    static const ZTPriceClassSet theSet{"BOOK_GIFT_BOX", "BOOK_GIFT_BOX_PREMIUM"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::calendarStrips()
{
    static const ZTPriceClassSet theSet{"CALENDAR_STRIP", "CALENDAR_STRIP_WOOD"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::bookGiftService()
{
    static const ZTPriceClassSet theSet{"BOOK_GIFT_SERVICE"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::calendarGiftBoxes()
{
    static const ZTPriceClassSet theSet{"CALENDAR_GIFT_BOX"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::framePassepartout()
{
    static const ZTPriceClassSet theSet{"FRAME_PASSEPARTOUT"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::designPriceClasses()
{
    static const ZTPriceClassSet theSet{"DESIGN", "DESIGN_PREMIUM"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::posterWoodenStrips()
{
    static const ZTPriceClassSet theSet{"POSTER_WOODEN_STRIP", "POSTER_WOODEN_STRIP_OAK"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::calendarGiftService()
{
    static const ZTPriceClassSet theSet{"CALENDAR_GIFT_SERVICE"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::mattCoverPriceClasses()
{
    static const ZTPriceClassSet theSet{"MATT_COVER"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::linenCoverPriceClasses()
{
    static const ZTPriceClassSet theSet{"LINEN_COVER", "LINEN_COVER_PREMIUM"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::wallholderPriceClasses()
{
    static const ZTPriceClassSet theSet{"WALL_HOLDER", "WALL_HOLDER_ALU", "WALL_HOLDER_SUSPENSION"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::artPrintBoxPriceClasses()
{
    static const ZTPriceClassSet theSet{"ART_PRINT_BOX"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::bookPanoPagesPriceClasses()
{
    static const ZTPriceClassSet theSet{"BOOK_PANO_PAGES"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::calendarStandPriceClasses()
{
    static const ZTPriceClassSet theSet{"CALENDAR_STAND", "CALENDAR_STAND_ACRYLIC"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::memorabiliaPocketPriceClass()
{
    static const ZTPriceClassSet theSet{"MEMORABILIA_POCKET"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::flyleafAndInsideCoverPriceClasses()
{
    static const ZTPriceClassSet theSet{"FLYLEAF", "INSIDE_COVER", "FLYLEAF_AND_INSIDE_COVER"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::maps()
{
    static const ZTPriceClassSet theSet{"MAPS", "MAPS_ROUTE"};
    return theSet;
}

const ZTPriceClassSet& ZTPriceClassSet::envelops()
{
    static const ZTPriceClassSet theSet{"ENVELOPE", "ENVELOPE_PREMIUM"};
    return theSet;
}
