#ifndef ZTPAGECOUNTORGANIZATION_H
#define ZTPAGECOUNTORGANIZATION_H

#include "ZTProblemList.h"
#include "ztproductbase_export.h"

#include <QDebug>
#include <QStringList>

class QDomElement;

// How many pages a product may have: from minPages() to maxPages() in steps of pageIncrement().
// The minimum is what the base price includes; every further step is bought as a page package.
// The default is a single page, as for a print.
//
// Read from the article element of the products document:
//   min_pages       integer >= 1, default 1
//   max_pages       integer >= min_pages, default min_pages
//   page_increment  integer >= 1, default 1
// Bad values are corrected, with one warning per article (see createFromProductsXML).
class ZTPRODUCTBASE_EXPORT ZTPageCountOrganization
{
public:
    ZTPageCountOrganization();
    // Taken as given, without corrections.
    ZTPageCountOrganization(int theMinPages, int theMaxPages, int thePageIncrement);
    ZTPageCountOrganization(const ZTPageCountOrganization& other);
    ZTPageCountOrganization& operator=(const ZTPageCountOrganization& other);
    virtual ~ZTPageCountOrganization();

    int minPages() const { return myMinPages; }
    int maxPages() const { return myMaxPages; }
    int pageIncrement() const { return myPageIncrement; }

    // The page count cannot be changed.
    bool isFixed() const { return myMinPages == myMaxPages; }
    // Whether a product may have this many pages: within the range and reachable from the
    // minimum in whole increments.
    bool allowsPageCount(int thePages) const;

    // A copy. With onlyMinimumPages the copy allows the minimum alone: a product for which no
    // page package is on sale cannot have more pages than its price includes, whatever the
    // document says.
    ZTPageCountOrganization clone(bool onlyMinimumPages) const;

    bool operator==(const ZTPageCountOrganization& other) const;
    bool operator!=(const ZTPageCountOrganization& other) const { return !(*this == other); }

    static ZTPageCountOrganization createFromProductsXML(const QDomElement& theArticle);
    // A picture box counts one page per picture. Without min_pages the box holds a fixed number
    // of pictures, its "pieces" (default 1).
    static ZTPageCountOrganization createFromProductsXMLForPictureBox(const QDomElement& theArticle);
    // Fixed 2 pages: the card itself and the photo inserted into it.
    static ZTPageCountOrganization createForCardWithInsertedFoto();
    // Fixed 25 pages: the front and the back print of each of the 24 doors.
    static ZTPageCountOrganization createForAdventCalendarWithDoorBackPrint();

private:
    // Warns once for all problems, those found by the caller included.
    static ZTPageCountOrganization read(const QDomElement& theArticle, int theDefaultMinPages,
                                        ZTProblemList problems);

    int myMinPages = 1;
    int myMaxPages = 1;
    int myPageIncrement = 1;
};

ZTPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const ZTPageCountOrganization& theOrganization);

#endif // ZTPAGECOUNTORGANIZATION_H
