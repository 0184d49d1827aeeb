#include "ZTAPMPriceKey.h"

#include "ZTAPMPriceKeyImpl.h"

#include <QDebug>
#include <QStringList>

ZTAPMPriceKey::ZTAPMPriceKey() : d(new ZTAPMPriceKeyImpl)
{}

ZTAPMPriceKey::ZTAPMPriceKey(const ZTOrderSource& theOrderSource, int theDiscountLevel,
                             const ZTDiscountModel& theModel)
    : d(new ZTAPMPriceKeyImpl)
{
    d->myOrderSource = theOrderSource;
    d->myDiscountLevel = theDiscountLevel;
    d->myDiscountModel = theModel;
}

ZTAPMPriceKey::ZTAPMPriceKey(const ZTOrderSource& theOrderSource) : d(new ZTAPMPriceKeyImpl)
{
    d->myOrderSource = theOrderSource;
}

ZTAPMPriceKey::ZTAPMPriceKey(const ZTAPMPriceKey& theOther, const ZTDiscountModel& theModel)
    : ZTAPMPriceKey(theOther.orderSource(), 0, theModel)
{}

ZTAPMPriceKey::ZTAPMPriceKey(const ZTAPMPriceKey& theOther) = default;
ZTAPMPriceKey::ZTAPMPriceKey(ZTAPMPriceKey&& theOther) noexcept = default;
ZTAPMPriceKey& ZTAPMPriceKey::operator=(const ZTAPMPriceKey& theOther) = default;
ZTAPMPriceKey& ZTAPMPriceKey::operator=(ZTAPMPriceKey&& theOther) noexcept = default;
ZTAPMPriceKey::~ZTAPMPriceKey() = default;

bool ZTAPMPriceKey::operator==(const ZTAPMPriceKey& theOther) const
{
    if (d.constData() == theOther.d.constData())
        return true;
    return d->myDiscountLevel == theOther.d->myDiscountLevel &&
           d->myOrderSource == theOther.d->myOrderSource && d->myDiscountModel == theOther.d->myDiscountModel;
}

bool ZTAPMPriceKey::operator!=(const ZTAPMPriceKey& theOther) const
{
    return !(*this == theOther);
}

bool ZTAPMPriceKey::operator<(const ZTAPMPriceKey& theOther) const
{
    return hashValue() < theOther.hashValue();
}

bool ZTAPMPriceKey::supercedes(const ZTAPMPriceKey& theOther) const
{
    if (inputSource() != ZTInputSourceInvalid && inputSource() != theOther.inputSource())
        return false;
    if (deliveryType() != ZTDeliveryTypeUndecodable && deliveryType() != theOther.deliveryType())
        return false;
    if (d->myDiscountLevel != -1 && d->myDiscountLevel != theOther.d->myDiscountLevel)
        return false;
    return d->myDiscountModel.isNull() || d->myDiscountModel == theOther.d->myDiscountModel;
}

uint ZTAPMPriceKey::hashValue() const
{
    if (d->myHashValue != 0)
        return d->myHashValue;
    quint32 hash = quint32(deliveryType().value()) * 16u + quint32(inputSource().value()) * 256u +
                   quint32(d->myDiscountModel.value()) + quint32(d->myDiscountLevel) * 4u;
    if (hash == 0)
        hash = 1;
    d->myHashValue = hash;
    return hash;
}

bool ZTAPMPriceKey::isValid() const
{
    return d->myOrderSource.isValid();
}

const ZTOrderSource& ZTAPMPriceKey::orderSource() const
{
    return d->myOrderSource;
}

const ZTInputSource& ZTAPMPriceKey::inputSource() const
{
    return d->myOrderSource.inputSource();
}

const ZTDeliveryType& ZTAPMPriceKey::deliveryType() const
{
    return d->myOrderSource.deliveryType();
}

int ZTAPMPriceKey::discountLevel() const
{
    return d->myDiscountLevel;
}

const ZTDiscountModel& ZTAPMPriceKey::discountModel() const
{
    return d->myDiscountModel;
}

void ZTAPMPriceKey::setDiscountModel(const ZTDiscountModel& theModel)
{
    d->myDiscountModel = theModel;
    d->myHashValue = 0;
}

void ZTAPMPriceKey::setDiscountLevel(int theDiscountLevel)
{
    d->myDiscountLevel = theDiscountLevel;
    d->myHashValue = 0;
}

QString ZTAPMPriceKey::dump() const
{
    return QStringList{QStringLiteral("Input Source : %1").arg(inputSource().encode()),
                       QStringLiteral("Delivery Type : %1").arg(deliveryType().encode()),
                       QStringLiteral("Discount Level : %1").arg(d->myDiscountLevel),
                       QStringLiteral("Discount Model : %1").arg(d->myDiscountModel.encode())}
        .join(QStringLiteral("; "));
}

bool ZTAPMPriceKey::isSharedWith(const ZTAPMPriceKey& theOther) const
{
    return d.constData() == theOther.d.constData();
}

QDebug operator<<(QDebug theDebug, const ZTAPMPriceKey& theKey)
{
    QDebugStateSaver saver(theDebug);
    theDebug.noquote() << theKey.dump();
    return theDebug;
}
