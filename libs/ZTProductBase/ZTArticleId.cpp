#include "ZTArticleId.h"

#include "ZTDiagnosticCollector.h"
#include "ZTXMLParser.h"

#include <QCoreApplication>
#include <QDomElement>

namespace {
const QString theIdAttribute = QStringLiteral("id");
const QString theArticleIdAttribute = QStringLiteral("article_id");
} // namespace

ZTArticleId ZTArticleId::fromIdAttribute(const QDomElement& theElement)
{
    return fromAttribute(theElement, theIdAttribute);
}

ZTArticleId ZTArticleId::fromArtIdAttribute(const QDomElement& theElement)
{
    return fromAttribute(theElement, theArticleIdAttribute);
}

ZTArticleId ZTArticleId::fromAttribute(const QDomElement& theElement, const QString& theName)
{
    const QString text = theElement.attribute(theName);
    if (text.trimmed().isEmpty())
        return ZTArticleId();
    bool ok = false;
    const int id = ZTXMLParser::fastDecodeInt(text, &ok);
    if (!ok) {
        qWarning() << "Invalid article id" << text << "in attribute" << theName << "of"
                   << theElement.tagName();
        ZTDiagnosticCollector::report(
            ZTDiagnostic::Warning,
            QCoreApplication::translate("ZTArticleId", "ungültige Artikel-ID \"%1\" im Attribut %2 von %3")
                .arg(text, theName, theElement.tagName()));
        return ZTArticleId();
    }
    return ZTArticleId(id);
}

ZTArticleId ZTArticleId::fromString(const QString& theText)
{
    bool ok = false;
    const int id = ZTXMLParser::fastDecodeInt(theText, &ok);
    return ok ? ZTArticleId(id) : ZTArticleId();
}

void ZTArticleId::toIdAttribute(QDomElement& theElement) const
{
    theElement.setAttribute(theIdAttribute, myId);
}

void ZTArticleId::toArtIdAttribute(QDomElement& theElement) const
{
    theElement.setAttribute(theArticleIdAttribute, myId);
}

QString ZTArticleId::toString() const
{
    return QString::number(myId);
}

bool ZTArticleId::isCardWithInsertedFoto() const
{
    return myId >= CardWithInsertedFotoFirst && myId <= CardWithInsertedFotoLast;
}

bool ZTArticleId::isAdventCalendarWithDoorBackPrint() const
{
    return myId >= AdventCalendarWithDoorBackPrintFirst && myId <= AdventCalendarWithDoorBackPrintLast;
}

QDebug operator<<(QDebug debug, const ZTArticleId& theId)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTArticleId(" << theId.id() << ')';
    return debug;
}
