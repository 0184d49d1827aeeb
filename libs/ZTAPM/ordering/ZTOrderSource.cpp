#include "ZTOrderSource.h"

#include <QDebug>
#include <QDomElement>

ZTOrderSource::ZTOrderSource()
    : myInputSource(ZTInputSourceInvalid), myDeliveryType(ZTDeliveryTypeUndecodable)
{}

ZTOrderSource::ZTOrderSource(const ZTInputSource& theInputSource, const ZTDeliveryType& theDeliveryType)
    : myInputSource(theInputSource), myDeliveryType(theDeliveryType)
{}

ZTOrderSource::ZTOrderSource(const QDomElement& theElement)
    : myInputSource(theElement.attribute(QStringLiteral("input_source")))
    , myDeliveryType(theElement.attribute(QStringLiteral("delivery_type")))
{}

ZTOrderSource ZTOrderSource::onlinePointOfSale()
{
    return ZTOrderSource(ZTInputSourceOnline, ZTDeliveryTypePointOfSale);
}

ZTOrderSource ZTOrderSource::onlineMailOrder()
{
    return ZTOrderSource(ZTInputSourceOnline, ZTDeliveryTypeMailOrder);
}

ZTOrderSource ZTOrderSource::cdPointOfSale()
{
    return ZTOrderSource(ZTInputSourceCD, ZTDeliveryTypePointOfSale);
}

QList<ZTOrderSource> ZTOrderSource::all()
{
    return {onlinePointOfSale(), onlineMailOrder(), cdPointOfSale()};
}

QList<ZTOrderSource> ZTOrderSource::orderSources(const ZTInputSource& theInputSource)
{
    QList<ZTOrderSource> result;
    for (const ZTOrderSource& source : all()) {
        if (source.inputSource().value() == theInputSource.value())
            result.append(source);
    }
    return result;
}

bool ZTOrderSource::isOnlinePointOfSale() const
{
    return *this == onlinePointOfSale();
}

bool ZTOrderSource::isOnlineMailOrder() const
{
    return *this == onlineMailOrder();
}

bool ZTOrderSource::isCDPointOfSale() const
{
    return *this == cdPointOfSale();
}

bool ZTOrderSource::isMailOrder() const
{
    return myDeliveryType == ZTDeliveryTypeMailOrder;
}

bool ZTOrderSource::isPointOfSale() const
{
    return myDeliveryType == ZTDeliveryTypePointOfSale;
}

bool ZTOrderSource::isValid() const
{
    switch (myInputSource.value()) {
    case ZTInputSourceCD:
        return myDeliveryType == ZTDeliveryTypePointOfSale;
    case ZTInputSourceOnline:
        return myDeliveryType == ZTDeliveryTypePointOfSale || myDeliveryType == ZTDeliveryTypeMailOrder;
    default:
        return false;
    }
}

QString ZTOrderSource::toLogString() const
{
    if (isOnlinePointOfSale())
        return QStringLiteral("FC");
    if (isOnlineMailOrder())
        return QStringLiteral("FM");
    if (isCDPointOfSale())
        return QStringLiteral("CC");
    return QStringLiteral("UNKNOWN");
}

QString ZTOrderSource::toString() const
{
    return myInputSource.encode() + QLatin1Char('_') + myDeliveryType.encode();
}

bool ZTOrderSource::operator==(const ZTOrderSource& theOther) const
{
    return myInputSource.value() == theOther.myInputSource.value() &&
           myDeliveryType.value() == theOther.myDeliveryType.value();
}

bool ZTOrderSource::operator!=(const ZTOrderSource& theOther) const
{
    return !(*this == theOther);
}

bool ZTOrderSource::operator<(const ZTOrderSource& theOther) const
{
    if (myInputSource.value() != theOther.myInputSource.value())
        return myInputSource.value() < theOther.myInputSource.value();
    return myDeliveryType.value() < theOther.myDeliveryType.value();
}

size_t qHash(const ZTOrderSource& theSource, size_t theSeed) noexcept
{
    return size_t(quint32(theSource.inputSource().value() ^ theSource.deliveryType().value())) ^ theSeed;
}

QDebug operator<<(QDebug theDebug, const ZTOrderSource& theSource)
{
    QDebugStateSaver saver(theDebug);
    theDebug.noquote() << theSource.inputSource().encode() << theSource.deliveryType().encode();
    return theDebug;
}
