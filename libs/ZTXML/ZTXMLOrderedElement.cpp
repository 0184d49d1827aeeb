#include "ZTXMLOrderedElement.h"

#include "ZTXMLBuilder.h"

#include <QDomDocument>
#include <QDomNamedNodeMap>
#include <QXmlStreamWriter>

#include <algorithm>

ZTXMLOrderedElement::ZTXMLOrderedElement(const QString& theName) : myName(theName)
{}

QString ZTXMLOrderedElement::attribute(const QString& theName, const QString& theDefault) const
{
    for (const Attribute& attribute : myAttributes) {
        if (attribute.first == theName)
            return attribute.second;
    }
    return theDefault;
}

ZTXMLOrderedElement& ZTXMLOrderedElement::addAttribute(const QString& theName, const QString& theValue)
{
    for (Attribute& attribute : myAttributes) {
        if (attribute.first == theName) {
            attribute.second = theValue;
            return *this;
        }
    }
    myAttributes.append(Attribute(theName, theValue));
    return *this;
}

ZTXMLOrderedElement& ZTXMLOrderedElement::addAttribute(const QString& theName, int theValue)
{
    return addAttribute(theName, QString::number(theValue));
}

ZTXMLOrderedElement&
ZTXMLOrderedElement::addAttributesFrom(const std::function<void(QDomElement&)>& theWriter)
{
    QDomDocument scratch;
    QDomElement element = scratch.createElement(QStringLiteral("scratch"));
    theWriter(element);
    const QDomNamedNodeMap map = element.attributes();
    QList<Attribute> written;
    for (int i = 0; i < map.count(); ++i) {
        const QDomAttr attribute = map.item(i).toAttr();
        written.append(Attribute(attribute.name(), attribute.value()));
    }
    // The map's order is the hash's; the names give one that holds in every process.
    std::sort(written.begin(), written.end());
    for (const Attribute& attribute : std::as_const(written))
        addAttribute(attribute.first, attribute.second);
    return *this;
}

ZTXMLOrderedElement& ZTXMLOrderedElement::appendChild(const ZTXMLOrderedElement& theChild)
{
    if (!theChild.isNull())
        myChildren.append(theChild);
    return *this;
}

void ZTXMLOrderedElement::applyAttributesTo(QDomElement& theElement) const
{
    for (const Attribute& attribute : myAttributes)
        ZTXMLBuilder::addAttribute(theElement, attribute.first, attribute.second);
}

QDomElement ZTXMLOrderedElement::appendTo(QDomNode& theParent) const
{
    if (isNull())
        return QDomElement();
    QDomElement element = ZTXMLBuilder::buildDomElement(theParent, myName);
    if (element.isNull())
        return element;
    applyAttributesTo(element);
    for (const ZTXMLOrderedElement& child : myChildren)
        child.appendTo(element);
    return element;
}

void ZTXMLOrderedElement::write(QXmlStreamWriter& theWriter) const
{
    if (isNull())
        return;
    theWriter.writeStartElement(myName);
    for (const Attribute& attribute : myAttributes)
        theWriter.writeAttribute(attribute.first, attribute.second);
    for (const ZTXMLOrderedElement& child : myChildren)
        child.write(theWriter);
    theWriter.writeEndElement();
}

QString ZTXMLOrderedElement::toString(bool theIndented) const
{
    QString text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(theIndented);
    writer.setAutoFormattingIndent(2);
    write(writer);
    // The writer starts an indented element on a line of its own, also the first one.
    if (theIndented && !text.isEmpty()) {
        if (text.startsWith(QLatin1Char('\n')))
            text.remove(0, 1);
        text.append(QLatin1Char('\n'));
    }
    return text;
}

bool ZTXMLOrderedElement::operator==(const ZTXMLOrderedElement& theOther) const
{
    return myName == theOther.myName && myAttributes == theOther.myAttributes &&
           myChildren == theOther.myChildren;
}
