#include "ZTAPMPriceValue.h"

#include "ZTAPMPriceValueImpl.h"
#include "ZTXMLParser.h"

#include <QDateTime>
#include <QDebug>
#include <QDomElement>
#include <QHash>
#include <QStringList>

namespace {

// An offer's end as seconds since the epoch. A document's offers end on a handful of dates, and
// each conversion from local time asks the C library for the time zone, which reads its file
// again: the seconds of each text are kept, per thread, so that readers on two threads take no
// lock. A document of unusually many dates stops the keeping at a bound, not the reading.
qint64 endOfferEpoch(const QString& theText)
{
    constexpr qsizetype mostDates = 1024;
    thread_local QHash<QString, qint64> theEpochs;
    const auto found = theEpochs.constFind(theText);
    if (found != theEpochs.cend())
        return *found;
    const qint64 epoch = QDateTime::fromString(theText, Qt::ISODate).toSecsSinceEpoch();
    if (theEpochs.size() < mostDates)
        theEpochs.insert(theText, epoch);
    return epoch;
}

} // namespace

ZTAPMPriceValue::ZTAPMPriceValue() : d(new ZTAPMPriceValueImpl)
{}

ZTAPMPriceValue::ZTAPMPriceValue(const QDomElement& theElement) : d(new ZTAPMPriceValueImpl)
{
    d->myPrice = ZTMoney::fromXmlAttribute(theElement, QStringLiteral("price"), -1);
    d->myDiscountLimit = ZTDiscountLimit(theElement);
    d->myUnitTransferPrice = ZTMoney::fromXmlAttribute(theElement, QStringLiteral("transfer_unit_price"), 0);
    d->myBaseTransferPrice = ZTMoney::fromXmlAttribute(theElement, QStringLiteral("transfer_base_price"), 0);
    d->myNonOfferPrice = ZTMoney::fromXmlAttribute(theElement, QStringLiteral("non_offer_price"), -1);
    const QString endOfferDate =
        ZTXMLParser::attribute(theElement, QStringLiteral("end_offer_date"), QString(), true);
    if (!endOfferDate.isEmpty())
        d->myEndOfferDateEpoch = endOfferEpoch(endOfferDate);
}

ZTAPMPriceValue::ZTAPMPriceValue(const ZTAPMPriceValue& theOther) = default;
ZTAPMPriceValue::ZTAPMPriceValue(ZTAPMPriceValue&& theOther) noexcept = default;
ZTAPMPriceValue& ZTAPMPriceValue::operator=(const ZTAPMPriceValue& theOther) = default;
ZTAPMPriceValue& ZTAPMPriceValue::operator=(ZTAPMPriceValue&& theOther) noexcept = default;
ZTAPMPriceValue::~ZTAPMPriceValue() = default;

const ZTAPMPriceValue& ZTAPMPriceValue::invalidPrice()
{
    // Never released, so references stay good until the process ends.
    static const ZTAPMPriceValue* const theInvalidPrice = new ZTAPMPriceValue;
    return *theInvalidPrice;
}

bool ZTAPMPriceValue::operator==(const ZTAPMPriceValue& theOther) const
{
    if (d.constData() == theOther.d.constData())
        return true;
    return d->myPrice == theOther.d->myPrice && d->myDiscountLimit == theOther.d->myDiscountLimit &&
           d->myUnitTransferPrice == theOther.d->myUnitTransferPrice &&
           d->myBaseTransferPrice == theOther.d->myBaseTransferPrice &&
           d->myNonOfferPrice == theOther.d->myNonOfferPrice &&
           d->myEndOfferDateEpoch == theOther.d->myEndOfferDateEpoch;
}

bool ZTAPMPriceValue::operator!=(const ZTAPMPriceValue& theOther) const
{
    return !(*this == theOther);
}

bool ZTAPMPriceValue::operator==(const ZTAPMPriceValue* theOther) const
{
    return theOther && *this == *theOther;
}

bool ZTAPMPriceValue::operator!=(const ZTAPMPriceValue* theOther) const
{
    return !(*this == theOther);
}

const ZTDiscountLimit& ZTAPMPriceValue::discountLimit() const
{
    return d->myDiscountLimit;
}

int ZTAPMPriceValue::lowerLimit() const
{
    return d->myDiscountLimit.lowerLimit();
}

int ZTAPMPriceValue::upperLimit() const
{
    return d->myDiscountLimit.upperLimit();
}

int ZTAPMPriceValue::discountLevel() const
{
    return d->myDiscountLimit.discountLevel();
}

const ZTDiscountModel& ZTAPMPriceValue::discountModel() const
{
    return d->myDiscountLimit.discountModel();
}

const ZTMoney& ZTAPMPriceValue::price() const
{
    return d->myPrice;
}

const ZTMoney& ZTAPMPriceValue::baseTransferPrice() const
{
    return d->myBaseTransferPrice;
}

const ZTMoney& ZTAPMPriceValue::unitTransferPrice() const
{
    return d->myUnitTransferPrice;
}

ZTMoney ZTAPMPriceValue::nonOfferPrice() const
{
    return isOfferPriceValid() ? d->myNonOfferPrice : ZTMoney(-1);
}

bool ZTAPMPriceValue::isOfferPriceValid() const
{
    return d->myEndOfferDateEpoch > QDateTime::currentSecsSinceEpoch();
}

qint64 ZTAPMPriceValue::endOfferDateEpoch() const
{
    return d->myEndOfferDateEpoch;
}

bool ZTAPMPriceValue::isValid() const
{
    return d->myPrice.isValid() && d->myDiscountLimit.isValid();
}

void ZTAPMPriceValue::setDiscountModel(const ZTDiscountModel& theModel)
{
    d->myDiscountLimit.setDiscountModel(theModel);
}

void ZTAPMPriceValue::setUpperLimit(int theUpperLimit)
{
    d->myDiscountLimit.setUpperLimit(theUpperLimit);
}

QString ZTAPMPriceValue::dump() const
{
    // The seconds go in as milliseconds, so the date reads near 1970; tools that compare these
    // dumps expect exactly this line.
    return QStringList{QStringLiteral("price: %1").arg(d->myPrice.toString()),
                       QStringLiteral("discount limit: (%1)").arg(d->myDiscountLimit.dump()),
                       QStringLiteral("transfer unit price: %1").arg(d->myUnitTransferPrice.toString()),
                       QStringLiteral("transfer base price: %1").arg(d->myBaseTransferPrice.toString()),
                       QStringLiteral("non offer price: %1").arg(d->myNonOfferPrice.toString()),
                       QStringLiteral("end offer date: %1")
                           .arg(QDateTime::fromMSecsSinceEpoch(d->myEndOfferDateEpoch).toString(Qt::ISODate))}
        .join(QStringLiteral("; "));
}

bool ZTAPMPriceValue::isSharedWith(const ZTAPMPriceValue& theOther) const
{
    return d.constData() == theOther.d.constData();
}

QDebug operator<<(QDebug theDebug, const ZTAPMPriceValue& theValue)
{
    QDebugStateSaver saver(theDebug);
    theDebug.noquote() << theValue.dump();
    return theDebug;
}
