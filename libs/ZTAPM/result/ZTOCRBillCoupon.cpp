#include "ZTOCRBillCoupon.h"

#include "ZTOCRBillCouponImpl.h"
#include "ZTXMLParser.h"

#include <QDomElement>

#include <functional>

ZTOCRBillCoupon::ZTOCRBillCoupon() : d(new ZTOCRBillCouponImpl)
{}

ZTOCRBillCoupon::ZTOCRBillCoupon(const QString& theCode, const ZTMoney& theValue) : d(new ZTOCRBillCouponImpl)
{
    d->myCode = theCode;
    d->myValue = theValue;
}

ZTOCRBillCoupon::ZTOCRBillCoupon(const QDomElement& theElement) : d(new ZTOCRBillCouponImpl)
{
    if (theElement.isNull())
        return;
    d->myValue = ZTXMLParser::intValue(theElement, -1);
    d->myCode = ZTXMLParser::attribute(theElement, QStringLiteral("code"), QString(), true);
}

ZTOCRBillCoupon::ZTOCRBillCoupon(const ZTOCRBillCoupon& theOther) = default;
ZTOCRBillCoupon::ZTOCRBillCoupon(ZTOCRBillCoupon&& theOther) noexcept = default;
ZTOCRBillCoupon& ZTOCRBillCoupon::operator=(const ZTOCRBillCoupon& theOther) = default;
ZTOCRBillCoupon& ZTOCRBillCoupon::operator=(ZTOCRBillCoupon&& theOther) noexcept = default;
ZTOCRBillCoupon::~ZTOCRBillCoupon() = default;

bool ZTOCRBillCoupon::operator==(const ZTOCRBillCoupon& theOther) const
{
    return d == theOther.d || (d->myValue == theOther.d->myValue && d->myCode == theOther.d->myCode &&
                               d->myIsDefective == theOther.d->myIsDefective);
}

bool ZTOCRBillCoupon::operator<(const ZTOCRBillCoupon& theOther) const
{
    return std::less<const ZTOCRBillCouponImpl*>()(d.constData(), theOther.d.constData());
}

bool ZTOCRBillCoupon::isValid() const
{
    return d->myValue.isValid();
}

bool ZTOCRBillCoupon::isDefective() const
{
    return d->myIsDefective;
}

void ZTOCRBillCoupon::setDefective(bool theDefective)
{
    d->myIsDefective = theDefective;
}

ZTMoney ZTOCRBillCoupon::value() const
{
    return d->myValue;
}

void ZTOCRBillCoupon::setValue(const ZTMoney& theValue)
{
    d->myValue = theValue;
}

QString ZTOCRBillCoupon::code() const
{
    return d->myCode;
}

bool ZTOCRBillCoupon::isUserCoupon() const
{
    return !d->myCode.isEmpty();
}

QString ZTOCRBillCoupon::codeInQuotes() const
{
    if (d->myCode.isEmpty())
        return QString();
    return QStringLiteral("<b>%1</b>").arg(d->myCode);
}
