#include "ZTPageCountOrganization.h"

#include "ZTDiagnosticCollector.h"
#include "ZTXMLParser.h"

#include <QCoreApplication>
#include <QDomElement>

namespace {

const int cardWithInsertedFotoPages = 2;
const int adventCalendarDoors = 24;

// The attribute as a number; a missing one gives theDefault silently, a bad one theDefault and a
// note for the article's warning.
int readCount(const QDomElement& theArticle, const QString& theName, int theDefault,
              ZTProblemList* theProblems)
{
    const QString text = ZTXMLParser::attribute(theArticle, theName, QString(), true);
    if (text.isEmpty())
        return theDefault;
    bool ok = false;
    const int value = ZTXMLParser::fastDecodeInt(text, &ok);
    if (ok)
        return value;
    theProblems->append(QStringLiteral("%1=\"%2\" is no number").arg(theName, text),
                        QCoreApplication::translate("ZTPageCountOrganization", "%1=\"%2\" ist keine Zahl")
                            .arg(theName, text));
    return theDefault;
}

} // namespace

ZTPageCountOrganization::ZTPageCountOrganization() = default;

ZTPageCountOrganization::ZTPageCountOrganization(int theMinPages, int theMaxPages, int thePageIncrement)
    : myMinPages(theMinPages), myMaxPages(theMaxPages), myPageIncrement(thePageIncrement)
{}

ZTPageCountOrganization::ZTPageCountOrganization(const ZTPageCountOrganization& other) = default;
ZTPageCountOrganization& ZTPageCountOrganization::operator=(const ZTPageCountOrganization& other) = default;
ZTPageCountOrganization::~ZTPageCountOrganization() = default;

bool ZTPageCountOrganization::allowsPageCount(int thePages) const
{
    if (thePages < myMinPages || thePages > myMaxPages)
        return false;
    return myPageIncrement < 1 || (thePages - myMinPages) % myPageIncrement == 0;
}

ZTPageCountOrganization ZTPageCountOrganization::clone(bool onlyMinimumPages) const
{
    ZTPageCountOrganization copy(*this);
    if (onlyMinimumPages)
        copy.myMaxPages = copy.myMinPages;
    return copy;
}

bool ZTPageCountOrganization::operator==(const ZTPageCountOrganization& other) const
{
    return myMinPages == other.myMinPages && myMaxPages == other.myMaxPages &&
           myPageIncrement == other.myPageIncrement;
}

ZTPageCountOrganization ZTPageCountOrganization::createFromProductsXML(const QDomElement& theArticle)
{
    return read(theArticle, 1, ZTProblemList());
}

ZTPageCountOrganization
ZTPageCountOrganization::createFromProductsXMLForPictureBox(const QDomElement& theArticle)
{
    ZTProblemList problems;
    const int pictures = readCount(theArticle, QStringLiteral("pieces"), 1, &problems);
    return read(theArticle, pictures, problems);
}

ZTPageCountOrganization ZTPageCountOrganization::createForCardWithInsertedFoto()
{
    return ZTPageCountOrganization(cardWithInsertedFotoPages, cardWithInsertedFotoPages, 1);
}

ZTPageCountOrganization ZTPageCountOrganization::createForAdventCalendarWithDoorBackPrint()
{
    return ZTPageCountOrganization(1 + adventCalendarDoors, 1 + adventCalendarDoors, 1);
}

ZTPageCountOrganization ZTPageCountOrganization::read(const QDomElement& theArticle, int theDefaultMinPages,
                                                      ZTProblemList problems)
{
    ZTPageCountOrganization result;
    if (theArticle.isNull())
        return result;

    int minPages = readCount(theArticle, QStringLiteral("min_pages"), theDefaultMinPages, &problems);
    if (minPages < 1) {
        problems.append(
            QStringLiteral("min_pages %1 is below 1").arg(minPages),
            QCoreApplication::translate("ZTPageCountOrganization", "min_pages %1 ist kleiner als 1")
                .arg(minPages));
        minPages = 1;
    }
    int maxPages = readCount(theArticle, QStringLiteral("max_pages"), minPages, &problems);
    if (maxPages < minPages) {
        problems.append(QStringLiteral("max_pages %1 is below min_pages %2").arg(maxPages).arg(minPages),
                        QCoreApplication::translate("ZTPageCountOrganization",
                                                    "max_pages %1 ist kleiner als min_pages %2")
                            .arg(maxPages)
                            .arg(minPages));
        maxPages = minPages;
    }
    int increment = readCount(theArticle, QStringLiteral("page_increment"), 1, &problems);
    if (increment < 1) {
        problems.append(
            QStringLiteral("page_increment %1 is below 1").arg(increment),
            QCoreApplication::translate("ZTPageCountOrganization", "page_increment %1 ist kleiner als 1")
                .arg(increment));
        increment = 1;
    }
    // A maximum between two steps cannot be reached; the last reachable count is meant.
    const int unreachable = (maxPages - minPages) % increment;
    if (unreachable != 0) {
        problems.append(
            QStringLiteral("max_pages %1 is not reachable in steps of %2 from %3")
                .arg(maxPages)
                .arg(increment)
                .arg(minPages),
            QCoreApplication::translate("ZTPageCountOrganization",
                                        "max_pages %1 ist in Schritten von %2 ab %3 nicht erreichbar")
                .arg(maxPages)
                .arg(increment)
                .arg(minPages));
        maxPages -= unreachable;
    }
    if (!problems.isEmpty()) {
        qWarning().noquote() << "page counts of article" << theArticle.attribute(QStringLiteral("id")) << ":"
                             << problems.logText();
        ZTDiagnosticCollector::report(
            ZTDiagnostic::Note,
            QCoreApplication::translate("ZTPageCountOrganization", "Seitenzahlen von Artikel %1: %2")
                .arg(theArticle.attribute(QStringLiteral("id")), problems.text()));
    }

    result.myMinPages = minPages;
    result.myMaxPages = maxPages;
    result.myPageIncrement = increment;
    return result;
}

QDebug operator<<(QDebug debug, const ZTPageCountOrganization& theOrganization)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTPageCountOrganization(" << theOrganization.minPages() << ".."
                    << theOrganization.maxPages() << " step " << theOrganization.pageIncrement() << ')';
    return debug;
}
