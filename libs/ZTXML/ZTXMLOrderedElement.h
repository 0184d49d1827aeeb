#ifndef ZTXMLORDEREDELEMENT_H
#define ZTXMLORDEREDELEMENT_H

#include "ztxml_export.h"

#include <QList>
#include <QPair>
#include <QString>

#include <functional>

class QDomElement;
class QDomNode;
class QXmlStreamWriter;

// An element that keeps its attributes and children in the order in which they were added, for
// the documents that go back to the server. A QDomElement holds its attributes in a hash that is
// seeded anew in every process, so a document written through QDomDocument lists them in a
// different order each time; what is written from here comes out the same, byte for byte.
//
// A default-made element is null: it is written nowhere, which lets a writer answer "nothing to
// declare" with the same type.
class ZTXML_EXPORT ZTXMLOrderedElement
{
public:
    using Attribute = QPair<QString, QString>;

    ZTXMLOrderedElement() = default;
    explicit ZTXMLOrderedElement(const QString& theName);

    bool isNull() const { return myName.isEmpty(); }
    QString name() const { return myName; }
    QList<Attribute> attributes() const { return myAttributes; }
    QList<ZTXMLOrderedElement> children() const { return myChildren; }
    // The value of the attribute, or theDefault if it has not been added.
    QString attribute(const QString& theName, const QString& theDefault = QString()) const;

    // A name added a second time keeps its place and takes the new value, as in a QDomElement.
    ZTXMLOrderedElement& addAttribute(const QString& theName, const QString& theValue);
    // Written in decimal.
    ZTXMLOrderedElement& addAttribute(const QString& theName, int theValue);
    // Takes the attributes that theWriter sets on a scratch element. This serves values whose
    // attribute name only their own DOM writer knows; several attributes set at once are taken
    // in the order of their names.
    ZTXMLOrderedElement& addAttributesFrom(const std::function<void(QDomElement&)>& theWriter);
    // A null child is not added.
    ZTXMLOrderedElement& appendChild(const ZTXMLOrderedElement& theChild);

    // Sets the attributes on theElement in their order, children left aside.
    void applyAttributesTo(QDomElement& theElement) const;
    // Appends the element and its children to theParent and returns it; a null element appends
    // nothing and gives a null element.
    QDomElement appendTo(QDomNode& theParent) const;
    // A null element writes nothing.
    void write(QXmlStreamWriter& theWriter) const;
    // The element alone, without an XML declaration; theIndented puts each element on a line of
    // its own, indented by two blanks per level, the last line ended too.
    QString toString(bool theIndented = false) const;

    bool operator==(const ZTXMLOrderedElement& theOther) const;
    bool operator!=(const ZTXMLOrderedElement& theOther) const { return !(*this == theOther); }

private:
    QString myName;
    QList<Attribute> myAttributes;
    QList<ZTXMLOrderedElement> myChildren;
};

#endif // ZTXMLORDEREDELEMENT_H
