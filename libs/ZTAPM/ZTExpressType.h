#ifndef ZTEXPRESSTYPE_H
#define ZTEXPRESSTYPE_H

#include "ZTEnumToStringTable.h"
#include "ztapm_export.h"

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

    void fillTable(ZTEnumToStringTable<ZTExpressTypeEnum>* theTable) const override;
};

#endif // ZTEXPRESSTYPE_H
