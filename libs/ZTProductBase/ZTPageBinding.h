#ifndef ZTPAGEBINDING_H
#define ZTPAGEBINDING_H

#include "ZTEnumToStringTable.h"
#include "ztproductbase_export.h"

class QDomElement;

// The edge at which a product's pages are bound; a bit set, so that a design can allow several.
// 0 is no binding: loose sheets, single prints.
enum ZTPageBindingEnum : qint32 {
    ZTPageBindingNone = 0,
    ZTPageBindingLeft = 1,
    ZTPageBindingTop = 2,
    ZTPageBindingRight = 4,
    ZTPageBindingBottom = 8,
};

class ZTPRODUCTBASE_EXPORT ZTPageBinding : public ZTEnumWrapper<ZTPageBindingEnum>
{
public:
    ZTPageBinding(ZTPageBindingEnum theValue = ZTPageBindingNone);
    explicit ZTPageBinding(const QString& theText);
    ZTPageBinding(const ZTPageBinding& other);
    ZTPageBinding(ZTPageBinding&& other) noexcept;
    ZTPageBinding& operator=(const ZTPageBinding& other);
    ZTPageBinding& operator=(ZTPageBinding&& other) noexcept;
    ~ZTPageBinding() override;

    // Writes the edges as keywords into the attribute "binding"; nothing for 0.
    void toTemplates2Format(QDomElement& theElement) const;

    void fillTable(ZTEnumToStringTable<ZTPageBindingEnum>* theTable) const override;
};

#endif // ZTPAGEBINDING_H
