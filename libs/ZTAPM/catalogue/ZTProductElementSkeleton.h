#ifndef ZTPRODUCTELEMENTSKELETON_H
#define ZTPRODUCTELEMENTSKELETON_H

#include <QDomDocument>
#include <QDomElement>
#include <QStringList>

// What the registries and their products read of an element of the products document: its name,
// its attributes and the attributes of its "type" child (which decides an article's class of
// product). A streamed reading keeps this much of each element until the registries take them,
// a small part of the whole element, whose facts the definitions store keeps.
class ZTProductElementSkeleton
{
public:
    explicit ZTProductElementSkeleton(const QDomElement& theElement);

    // The element again, made in theDocument, with just that much.
    QDomElement toElement(QDomDocument& theDocument) const;

private:
    static QStringList attributesOf(const QDomElement& theElement);
    static void setAttributes(QDomElement& theElement, const QStringList& theAttributes);

    QString myTagName;
    QStringList myAttributes;     // name, value, name, value...
    QStringList myTypeAttributes; // of the first "type" child, likewise
    bool myHasType = false;
};

#endif // ZTPRODUCTELEMENTSKELETON_H
