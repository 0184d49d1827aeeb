#ifndef ZTEXPRESSTYPE_H
#define ZTEXPRESSTYPE_H

#include "ZTEnumToStringTable.h"
#include "ztapm_export.h"

class ZTShippingGroupId;

// How fast the goods travel; a bit set. The keywords are the server's codes, so "3" stands for 2.
enum ZTExpressTypeEnum : qint32 {
    ZTExpressTypeNone = 0,
    ZTExpressTypeStandard = 1,
    ZTExpressTypeExpress = 2,
};

class ZTAPM_EXPORT ZTExpressType : public ZTEnumWrapper<ZTExpressTypeEnum>
{
public:
    ZTExpressType(ZTExpressTypeEnum theValue = ZTExpressTypeNone);
    explicit ZTExpressType(const QString& theText);

    // The checkout icon for any value that includes express shipping.
    QString iconName() const;
    // What the order dialogs call this kind of shipping in the group; express is named by the
    // group's express fee article, and empty when the group has none.
    QString humanReadableName(const ZTShippingGroupId& theShippingGroupId) const;

    void fillTable(ZTEnumToStringTable<ZTExpressTypeEnum>* theTable) const override;
};

#endif // ZTEXPRESSTYPE_H
