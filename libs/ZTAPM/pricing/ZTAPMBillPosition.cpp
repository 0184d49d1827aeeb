#include "ZTAPMBillPosition.h"

#include "ZTProductAbstract.h"

#include <QDebug>

ZTAPMBillPosition::ZTAPMBillPosition(ZTProductAbstract* theProduct, int theUnitCount, int theItemsPerUnit,
                                     const ZTDiscountLimit& theDiscountLimit, const ZTMoney& theUnitPrice,
                                     const ZTMoney& theNonOfferPrice)
    : ZTAPMBillPositionAbstract(theProduct)
    , myUnitCount(theUnitCount)
    , myItemsPerUnit(theItemsPerUnit)
    , myUnitPrice(theUnitPrice)
    , myNonOfferPrice(theNonOfferPrice)
    , myDiscountLimit(theDiscountLimit)
{}

ZTAPMBillPosition::ZTAPMBillPosition(const ZTAPMBillPosition& theOther) = default;
ZTAPMBillPosition::~ZTAPMBillPosition() = default;

ZTAPMBillPositionAbstract* ZTAPMBillPosition::clone() const
{
    return new ZTAPMBillPosition(*this);
}

namespace {
// The amount as the log shows it: with the symbol, plain text, primary currency.
QString moneyText(const ZTMoney& theMoney)
{
    return theMoney.fullText(true, false, false);
}
} // namespace

void ZTAPMBillPosition::dump() const
{
    qDebug().noquote() << log();
}

QString ZTAPMBillPosition::log() const
{
    return QStringLiteral("CART COUNT:%1 ").arg(myUnitCount) + logNew().first;
}

QPair<QString, int> ZTAPMBillPosition::logNew() const
{
    const QString articleId = product() ? product()->articleId().toString() : QString();
    const QString text =
        QStringLiteral("ARTICLEID:%1 PRODUCTNAME:%2 DISCOUNTMODEL:%3 UNITPRICE:%4 UNITCOUNT:%5 "
                       "DISCOUNTLEVEL:%6 NONOFFERPRICE:%7")
            .arg(articleId, productName(), myDiscountLimit.discountModel().encode(), moneyText(myUnitPrice))
            .arg(myItemsPerUnit)
            .arg(myDiscountLimit.discountLevel())
            .arg(moneyText(myNonOfferPrice));
    return qMakePair(text, myUnitCount);
}
