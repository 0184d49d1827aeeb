#include "ZTDiscountLimit.h"

#include "ZTDiscountLimitImpl.h"
#include "ZTXMLParser.h"

#include <QDebug>
#include <QDomElement>
#include <QStringList>

ZTDiscountLimit::ZTDiscountLimit() : d(new ZTDiscountLimitImpl)
{}

ZTDiscountLimit::ZTDiscountLimit(const ZTDiscountModel& theModel, int theLevel, int theLowerLimit,
                                 int theUpperLimit)
    : d(new ZTDiscountLimitImpl)
{
    d->myDiscountModel = theModel;
    d->myDiscountLevel = theLevel;
    d->myLowerLimit = theLowerLimit;
    d->myUpperLimit = theUpperLimit;
}

ZTDiscountLimit::ZTDiscountLimit(const ZTDiscountLimit& theOther, const ZTDiscountModel& theModel)
    : d(theOther.d)
{
    if (!theModel.isNull())
        d->myDiscountModel = theModel;
}

ZTDiscountLimit::ZTDiscountLimit(const QDomElement& theElement) : d(new ZTDiscountLimitImpl)
{
    if (theElement.isNull())
        return;
    d->myDiscountLevel = ZTXMLParser::intAttribute(theElement, QStringLiteral("level"), 0);
    d->myLowerLimit = ZTXMLParser::intAttribute(theElement, QStringLiteral("quantity"), 1);
    QString keyword = ZTXMLParser::attribute(theElement, QStringLiteral("type"), QString(), true);
    if (keyword.isEmpty()) {
        // The row stands in base_prices or discount_prices of the article's node.
        const QString nodeName = theElement.parentNode().parentNode().nodeName();
        if (nodeName == QLatin1String("transfer"))
            keyword = QStringLiteral("F");
        else if (nodeName == QLatin1String("express_fee"))
            keyword = QStringLiteral("X");
        else
            keyword = QStringLiteral("B");
    }
    d->myDiscountModel = ZTDiscountModel(keyword);
}

ZTDiscountLimit::ZTDiscountLimit(const ZTDiscountLimit& theOther) = default;
ZTDiscountLimit::ZTDiscountLimit(ZTDiscountLimit&& theOther) noexcept = default;
ZTDiscountLimit& ZTDiscountLimit::operator=(const ZTDiscountLimit& theOther) = default;
ZTDiscountLimit& ZTDiscountLimit::operator=(ZTDiscountLimit&& theOther) noexcept = default;
ZTDiscountLimit::~ZTDiscountLimit() = default;

const ZTDiscountModel& ZTDiscountLimit::discountModel() const
{
    return d->myDiscountModel;
}

int ZTDiscountLimit::discountLevel() const
{
    return d->myDiscountLevel;
}

int ZTDiscountLimit::lowerLimit() const
{
    return d->myLowerLimit;
}

int ZTDiscountLimit::upperLimit() const
{
    return d->myUpperLimit;
}

bool ZTDiscountLimit::wasBulkModel() const
{
    return d->myWasBulkModel;
}

bool ZTDiscountLimit::isBulkModel() const
{
    return d->myDiscountModel.matches(ZTDiscountModelBulk);
}

bool ZTDiscountLimit::isFotoBasePackageLimit() const
{
    return d->myDiscountModel == ZTDiscountModelFotoPackage && d->myDiscountLevel == 1;
}

bool ZTDiscountLimit::isFotoBasePackageCombiLimmit() const
{
    return d->myDiscountModel == ZTDiscountModelFotoPackage && d->myDiscountLevel >= 2 && !d->myWasBulkModel;
}

bool ZTDiscountLimit::isFotoBasePackageBulkLimit() const
{
    return d->myDiscountModel == ZTDiscountModelFotoPackage && d->myWasBulkModel;
}

bool ZTDiscountLimit::isValid() const
{
    return !d->myDiscountModel.isNull();
}

bool ZTDiscountLimit::operator==(const ZTDiscountLimit& theOther) const
{
    if (d.constData() == theOther.d.constData())
        return true;
    return d->myDiscountModel == theOther.d->myDiscountModel &&
           d->myDiscountLevel == theOther.d->myDiscountLevel && d->myLowerLimit == theOther.d->myLowerLimit &&
           d->myUpperLimit == theOther.d->myUpperLimit && d->myWasBulkModel == theOther.d->myWasBulkModel;
}

bool ZTDiscountLimit::operator!=(const ZTDiscountLimit& theOther) const
{
    return !(*this == theOther);
}

bool ZTDiscountLimit::operator<(const ZTDiscountLimit& theOther) const
{
    if (d->myDiscountModel != theOther.d->myDiscountModel)
        return d->myDiscountModel < theOther.d->myDiscountModel;
    if (d->myLowerLimit != theOther.d->myLowerLimit)
        return d->myLowerLimit < theOther.d->myLowerLimit;
    return d->myUpperLimit < theOther.d->myUpperLimit;
}

uint ZTDiscountLimit::createHash() const
{
    return (uint(d->myLowerLimit) << 8) ^ uint(d->myDiscountModel.value());
}

void ZTDiscountLimit::setUpperLimit(int theUpperLimit)
{
    d->myUpperLimit = theUpperLimit;
}

void ZTDiscountLimit::setDiscountModel(const ZTDiscountModel& theModel)
{
    d->myWasBulkModel = d->myDiscountModel == ZTDiscountModelFotoPackageBulk;
    d->myDiscountModel = theModel;
}

QString ZTDiscountLimit::dump() const
{
    return QStringList{QStringLiteral("Discount Model: %1 was bulk %2")
                           .arg(d->myDiscountModel.encode())
                           .arg(d->myWasBulkModel ? 1 : 0),
                       QStringLiteral("Discount Level: %1").arg(d->myDiscountLevel),
                       QStringLiteral("Lower Limit: %1").arg(d->myLowerLimit),
                       QStringLiteral("Upper Limit: %1").arg(d->myUpperLimit)}
        .join(QStringLiteral("; "));
}

bool ZTDiscountLimit::isSharedWith(const ZTDiscountLimit& theOther) const
{
    return d.constData() == theOther.d.constData();
}

QDebug operator<<(QDebug theDebug, const ZTDiscountLimit& theLimit)
{
    QDebugStateSaver saver(theDebug);
    theDebug.noquote() << theLimit.dump();
    return theDebug;
}
