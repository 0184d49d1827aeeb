#include "ZTXMLBuilder.h"

#include <QDebug>
#include <QDomDocument>

QDomElement ZTXMLBuilder::buildDomElement(QDomNode& theParent, const QString& theName)
{
    QDomDocument document = theParent.isDocument() ? theParent.toDocument() : theParent.ownerDocument();
    if (theParent.isNull() || document.isNull()) {
        qWarning() << "cannot add element" << theName << "to a null node";
        return QDomElement();
    }
    QDomElement element = document.createElement(theName);
    theParent.appendChild(element);
    return element;
}

QDomElement ZTXMLBuilder::buildTextElement(QDomNode& theParent, const QString& theName,
                                           const QString& theText)
{
    QDomElement element = buildDomElement(theParent, theName);
    if (!element.isNull())
        element.appendChild(element.ownerDocument().createTextNode(theText));
    return element;
}

void ZTXMLBuilder::addAttribute(QDomElement& theElement, const QString& theName, const QString& theValue)
{
    theElement.setAttribute(theName, theValue);
}

void ZTXMLBuilder::addAttribute(QDomElement& theElement, const QString& theName, int theValue)
{
    theElement.setAttribute(theName, QString::number(theValue));
}
