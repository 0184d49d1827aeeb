#include "ZTProductElementSkeleton.h"

#include <QDomNamedNodeMap>

namespace {

const QString& typeTag()
{
    static const QString theTag = QStringLiteral("type");
    return theTag;
}

} // namespace

ZTProductElementSkeleton::ZTProductElementSkeleton(const QDomElement& theElement)
    : myTagName(theElement.tagName()), myAttributes(attributesOf(theElement))
{
    const QDomElement type = theElement.firstChildElement(typeTag());
    myHasType = !type.isNull();
    if (myHasType)
        myTypeAttributes = attributesOf(type);
}

QDomElement ZTProductElementSkeleton::toElement(QDomDocument& theDocument) const
{
    QDomElement element = theDocument.createElement(myTagName);
    setAttributes(element, myAttributes);
    if (myHasType) {
        QDomElement type = theDocument.createElement(typeTag());
        setAttributes(type, myTypeAttributes);
        element.appendChild(type);
    }
    return element;
}

QStringList ZTProductElementSkeleton::attributesOf(const QDomElement& theElement)
{
    const QDomNamedNodeMap attributes = theElement.attributes();
    QStringList result;
    result.reserve(attributes.size() * 2);
    for (int i = 0; i < attributes.size(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        result << attribute.name() << attribute.value();
    }
    return result;
}

void ZTProductElementSkeleton::setAttributes(QDomElement& theElement, const QStringList& theAttributes)
{
    for (qsizetype i = 0; i + 1 < theAttributes.size(); i += 2)
        theElement.setAttribute(theAttributes.at(i), theAttributes.at(i + 1));
}
