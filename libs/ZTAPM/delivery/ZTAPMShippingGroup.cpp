#include "ZTAPMShippingGroup.h"

#include "ZTAPMShippingGroupImpl.h"
#include "ZTArticleClass.h"

#include <QDebug>

ZTAPMShippingGroup::ZTAPMShippingGroup() : d(new ZTAPMShippingGroupImpl)
{}

ZTAPMShippingGroup::ZTAPMShippingGroup(const QDomElement& theElement, int thePriceListTabPosition)
    : d(new ZTAPMShippingGroupImpl(theElement, thePriceListTabPosition))
{}

ZTAPMShippingGroup::ZTAPMShippingGroup(const ZTAPMShippingGroup& theOther) = default;
ZTAPMShippingGroup::ZTAPMShippingGroup(ZTAPMShippingGroup&& theOther) noexcept = default;
ZTAPMShippingGroup& ZTAPMShippingGroup::operator=(const ZTAPMShippingGroup& theOther) = default;
ZTAPMShippingGroup& ZTAPMShippingGroup::operator=(ZTAPMShippingGroup&& theOther) noexcept = default;
ZTAPMShippingGroup::~ZTAPMShippingGroup() = default;

bool ZTAPMShippingGroup::operator==(const ZTAPMShippingGroup& theOther) const
{
    return d == theOther.d || *d == *theOther.d;
}

ZTShippingGroupId ZTAPMShippingGroup::id() const
{
    return d->myId;
}

QDateTime ZTAPMShippingGroup::lastChange(const ZTKeyAccountDataType& theType) const
{
    return d->myLastChange.value(theType);
}

int ZTAPMShippingGroup::maxOrderItems() const
{
    return d->myMaxOrderItems;
}

QString ZTAPMShippingGroup::name() const
{
    return isValid() ? d->myName : QString();
}

ZTTransferModel ZTAPMShippingGroup::transferModel() const
{
    return d->myTransferModel;
}

int ZTAPMShippingGroup::priceListTabPosition() const
{
    return d->myPriceListTabPosition;
}

bool ZTAPMShippingGroup::isBrand() const
{
    return d->myIsBrand;
}

QList<ZTFotoPaperType> ZTAPMShippingGroup::fotoPaperTypes() const
{
    return d->myFotoPaperTypes;
}

ZTFotoPaperType ZTAPMShippingGroup::defaultFotoPaperType() const
{
    const QList<ZTFotoPaperType>& papers = d->myFotoPaperTypes;
    if (papers.size() == 1)
        return papers.first();
    if (papers.isEmpty())
        return ZTFotoPaperType();
    const ZTFotoPaperType classDefault =
        ZTFotoPaperType::defaultFor(ZTArticleClass::createFromShippingGroupId(d->myId));
    return papers.contains(classDefault) ? classDefault : papers.first();
}

bool ZTAPMShippingGroup::isValid() const
{
    return d->myId.isValid();
}

bool lessThanPriceListTabPosition(const ZTAPMShippingGroup& theFirst, const ZTAPMShippingGroup& theSecond)
{
    return lessThanPriceListTabPosition(theFirst.impl(), theSecond.impl());
}

bool lessThanPriceListTabPosition(const ZTAPMShippingGroupImpl* theFirst,
                                  const ZTAPMShippingGroupImpl* theSecond)
{
    return theFirst->myPriceListTabPosition < theSecond->myPriceListTabPosition;
}

QDebug operator<<(QDebug theDebug, const ZTAPMShippingGroup& theGroup)
{
    QDebugStateSaver saver(theDebug);
    theDebug.nospace() << "ZTAPMShippingGroup(" << theGroup.id().id() << ", " << theGroup.name() << ", tab "
                       << theGroup.priceListTabPosition() << ')';
    return theDebug;
}
