#include "ZTShippingGroupId.h"

#include "ZTDiagnosticCollector.h"
#include "ZTXMLParser.h"

#include <QCoreApplication>
#include <QDomElement>

ZTShippingGroupId::ZTShippingGroupId(const QDomElement& theGroup)
    : ZTShippingGroupId(theGroup, QStringLiteral("id"))
{}

ZTShippingGroupId::ZTShippingGroupId(const QDomElement& theElement, const QString& theAttribute)
{
    const QString text = theElement.attribute(theAttribute);
    if (text.trimmed().isEmpty())
        return;
    bool ok = false;
    const int id = ZTXMLParser::fastDecodeInt(text, &ok);
    if (ok)
        myId = id;
    else {
        qWarning() << "Invalid shipping group id" << text << "in attribute" << theAttribute << "of"
                   << theElement.tagName();
        ZTDiagnosticCollector::report(
            ZTDiagnostic::Warning,
            QCoreApplication::translate("ZTShippingGroupId",
                                        "ungültige Versandgruppen-ID \"%1\" im Attribut %2 von %3")
                .arg(text, theAttribute, theElement.tagName()));
    }
}

ZTShippingGroupId ZTShippingGroupId::createFrom(const QString& theText)
{
    bool ok = false;
    const int id = ZTXMLParser::fastDecodeInt(theText, &ok);
    return ok ? ZTShippingGroupId(id) : ZTShippingGroupId();
}

QString ZTShippingGroupId::toString() const
{
    return QString::number(myId);
}

QDebug operator<<(QDebug debug, const ZTShippingGroupId& theId)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTShippingGroupId(" << theId.id() << ')';
    return debug;
}
