#ifndef ZTXMLBUILDER_H
#define ZTXMLBUILDER_H

#include "ztxml_export.h"

#include <QDomElement>

// Writes elements and attributes of the documents that go back to the server.
class ZTXML_EXPORT ZTXMLBuilder
{
public:
    // Appends a new element theName to theParent (an element or a document) and returns it. A
    // null parent gives a null element and a warning.
    static QDomElement buildDomElement(QDomNode& theParent, const QString& theName);
    // Like buildDomElement, with theText as the element's text.
    static QDomElement buildTextElement(QDomNode& theParent, const QString& theName, const QString& theText);
    static void addAttribute(QDomElement& theElement, const QString& theName, const QString& theValue);
    // Written in decimal.
    static void addAttribute(QDomElement& theElement, const QString& theName, int theValue);
};

#endif // ZTXMLBUILDER_H
