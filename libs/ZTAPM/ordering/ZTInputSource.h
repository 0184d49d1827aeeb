#ifndef ZTINPUTSOURCE_H
#define ZTINPUTSOURCE_H

#include "ZTEnumToStringTable.h"
#include "ztapm_export.h"

// How the order data travel to the manufacturer. The codes are those of the documents and of the
// settings keys. Note that the inherited isValid() is false for "online" (value 0): ask the
// ZTOrderSource whether a way of ordering is valid.
enum ZTInputSourceEnum : qint32 {
    ZTInputSourceInvalid = -1,
    ZTInputSourceOnline = 0,
    ZTInputSourceCD = 1,
};

class ZTAPM_EXPORT ZTInputSource : public ZTEnumWrapper<ZTInputSourceEnum>
{
public:
    ZTInputSource(ZTInputSourceEnum theValue = ZTInputSourceInvalid);
    explicit ZTInputSource(const QString& theText);

    void fillTable(ZTEnumToStringTable<ZTInputSourceEnum>* theTable) const override;
};

#endif // ZTINPUTSOURCE_H
