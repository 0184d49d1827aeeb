#ifndef ZTPRICECLASSSET_H
#define ZTPRICECLASSSET_H

#include "ZTPriceClass.h"
#include "ztproductbase_export.h"

#include <QSet>

// A set of price classes, and the fixed families of add-on price classes that tell an add-on's
// kind. The families do not overlap, so an add-on belongs to at most one of them. Each family is
// built once and shared.
class ZTPRODUCTBASE_EXPORT ZTPriceClassSet : public QSet<ZTPriceClass>
{
public:
    ZTPriceClassSet();
    ZTPriceClassSet(std::initializer_list<ZTPriceClass> theClasses);
    // Keywords, each made a class by ZTPriceClass::create.
    ZTPriceClassSet(std::initializer_list<const char*> theKeywords);
    ZTPriceClassSet(const ZTPriceClassSet& other);
    ZTPriceClassSet& operator=(const ZTPriceClassSet& other);
    virtual ~ZTPriceClassSet();

    static const ZTPriceClassSet& frameGlasses();
    static const ZTPriceClassSet& spotColorAll();
    static const ZTPriceClassSet& bookGiftBoxes();
    static const ZTPriceClassSet& calendarStrips();
    static const ZTPriceClassSet& bookGiftService();
    static const ZTPriceClassSet& calendarGiftBoxes();
    // One class only, so that "contains" and "equals" agree.
    static const ZTPriceClassSet& framePassepartout();
    static const ZTPriceClassSet& designPriceClasses();
    static const ZTPriceClassSet& posterWoodenStrips();
    static const ZTPriceClassSet& calendarGiftService();
    static const ZTPriceClassSet& mattCoverPriceClasses();
    static const ZTPriceClassSet& linenCoverPriceClasses();
    static const ZTPriceClassSet& wallholderPriceClasses();
    static const ZTPriceClassSet& artPrintBoxPriceClasses();
    static const ZTPriceClassSet& bookPanoPagesPriceClasses();
    static const ZTPriceClassSet& calendarStandPriceClasses();
    static const ZTPriceClassSet& memorabiliaPocketPriceClass();
    static const ZTPriceClassSet& flyleafAndInsideCoverPriceClasses();
    static const ZTPriceClassSet& maps();
    static const ZTPriceClassSet& envelops();
};

#endif // ZTPRICECLASSSET_H
