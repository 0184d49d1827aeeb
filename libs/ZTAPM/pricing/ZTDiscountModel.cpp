#include "ZTDiscountModel.h"

#include "ZTXMLParser.h"

#include <QDebug>
#include <QDomElement>

ZTDiscountModel::ZTDiscountModel(ZTDiscountModelEnum theValue) : ZTEnumWrapper<ZTDiscountModelEnum>(theValue)
{}

ZTDiscountModel::ZTDiscountModel(const QString& theKeyword)
{
    myValue = decodeOneElement(theKeyword);
}

ZTDiscountModel::ZTDiscountModel(const QDomElement& theElement, bool* thePackageFlag)
{
    const QString text =
        ZTXMLParser::attribute(theElement, QStringLiteral("discount_type"), QStringLiteral("*"), true);
    myValue = decodeOneElement(text);
    if (thePackageFlag)
        *thePackageFlag = !text.isEmpty() && text.at(0).isUpper() && isPackageModel();
}

bool ZTDiscountModel::usesTransferArticle() const
{
    switch (myValue) {
    case ZTDiscountModelBulkTransfer:
    case ZTDiscountModelBillingSumTransfer:
    case ZTDiscountModelBasketTransfer:
    case ZTDiscountModelExpressFee:
        return true;
    default:
        return false;
    }
}

void ZTDiscountModel::fillTable(ZTEnumToStringTable<ZTDiscountModelEnum>* theTable) const
{
    theTable->insert(QStringLiteral("-"), ZTDiscountModelNeverPriced);
    theTable->insert(QStringLiteral("b"), ZTDiscountModelBulk);
    theTable->insert(QStringLiteral("f"), ZTDiscountModelBulkTransfer);
    theTable->insert(QStringLiteral("z"), ZTDiscountModelBillingSumTransfer);
    theTable->insert(QStringLiteral("x"), ZTDiscountModelExpressFee);
    theTable->insert(QStringLiteral("I"), ZTDiscountModelInherited);
    theTable->insert(QStringLiteral("U"), ZTDiscountModelPackage);
    theTable->insert(QStringLiteral("*"), ZTDiscountModelNone);
    theTable->insert(QStringLiteral("w"), ZTDiscountModelFotoPackage);
    theTable->insert(QStringLiteral("y"), ZTDiscountModelFotoPackageBulk);
    theTable->setUnknownKeyword(QStringLiteral("unkown"));
}

QDebug operator<<(QDebug theDebug, const ZTDiscountModel& theModel)
{
    theDebug << theModel.encode();
    return theDebug;
}
