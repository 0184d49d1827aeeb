#include "ZTAPMBillPositionInvalid.h"

#include <QDebug>

ZTAPMBillPositionInvalid::ZTAPMBillPositionInvalid(ZTProductAbstract* theProduct)
    : ZTAPMBillPositionAbstract(theProduct)
{}

ZTAPMBillPositionInvalid::ZTAPMBillPositionInvalid(const ZTAPMBillPositionInvalid& theOther) = default;
ZTAPMBillPositionInvalid::~ZTAPMBillPositionInvalid() = default;

ZTAPMBillPositionAbstract* ZTAPMBillPositionInvalid::clone() const
{
    return new ZTAPMBillPositionInvalid(*this);
}

void ZTAPMBillPositionInvalid::dump() const
{
    qWarning().noquote() << log();
}

QString ZTAPMBillPositionInvalid::log() const
{
    return QStringLiteral("# %1, Nicht bestellbar").arg(productName());
}
