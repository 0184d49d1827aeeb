#include "ZTRequiredAddOns.h"

#include "ZTXMLParser.h"

#include <QDomElement>

ZTRequiredAddOns::ZTRequiredAddOns() = default;

ZTRequiredAddOns::ZTRequiredAddOns(const QDomElement& theElement)
{
    const QString addOnTag = QStringLiteral("required_add_on");
    const QDomElement addOns = theElement.firstChildElement(QStringLiteral("required_add_ons"));
    for (QDomElement addOn = addOns.firstChildElement(addOnTag); !addOn.isNull();
         addOn = addOn.nextSiblingElement(addOnTag)) {
        const ZTArticleId id = ZTArticleId::fromIdAttribute(addOn);
        // On an add-on, "group" names an article class, not a shipping group.
        const ZTArticleClass articleClass(
            ZTXMLParser::attribute(addOn, QStringLiteral("group"), QString(), true));
        if (id.isValid() && !articleClass.isNull())
            myArticleIds[articleClass].insert(id);
    }
}

ZTRequiredAddOns::ZTRequiredAddOns(const ZTRequiredAddOns& other) = default;
ZTRequiredAddOns& ZTRequiredAddOns::operator=(const ZTRequiredAddOns& other) = default;
ZTRequiredAddOns::~ZTRequiredAddOns() = default;

bool ZTRequiredAddOns::operator==(const ZTRequiredAddOns& other) const
{
    return myArticleIds == other.myArticleIds;
}

bool ZTRequiredAddOns::operator!=(const ZTRequiredAddOns& other) const
{
    return !(*this == other);
}

ZTArticleIdSet ZTRequiredAddOns::articleIds() const
{
    ZTArticleIdSet result;
    for (const ZTArticleIdSet& ids : myArticleIds)
        result.unite(ids);
    return result;
}

ZTArticleIdSet ZTRequiredAddOns::articleIds(const ZTArticleClass& theArticleClass) const
{
    return myArticleIds.value(theArticleClass);
}
