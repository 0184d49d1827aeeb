#include "ZTProductCheckerType.h"

ZTProductCheckerType::ZTProductCheckerType(ZTProductCheckerTypeEnum theValue)
    : ZTEnumWrapper<ZTProductCheckerTypeEnum>(theValue)
{}

ZTProductCheckerType::ZTProductCheckerType(const QString& theText)
{
    setValue(theText);
}

void ZTProductCheckerType::fillTable(ZTEnumToStringTable<ZTProductCheckerTypeEnum>* theTable) const
{
    theTable->insert(QStringLiteral("none"), ZTProductCheckerTypeNone);
    theTable->insert(QStringLiteral("saleable"), ZTProductCheckerTypeSaleable);
    theTable->insert(QStringLiteral("editor"), ZTProductCheckerTypeEditor);
    theTable->insert(QStringLiteral("accessory"), ZTProductCheckerTypeAccessory);
    theTable->insert(QStringLiteral("all"), ZTProductCheckerTypeAll);
    theTable->setDefaultValue(ZTProductCheckerTypeNone);
    theTable->setUnknownKeyword(QStringLiteral("ProductCheckerType_UNKNOWN"));
}
