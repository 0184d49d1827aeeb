#ifndef ZTADDRESSLAYOUTTYPE_H
#define ZTADDRESSLAYOUTTYPE_H

#include "ZTEnumToStringTable.h"
#include "ztapm_export.h"

class QButtonGroup;
class QRadioButton;
class QWidget;

// The form of an address: private or company, for billing, shipping, point of sale or
// registration. The registration form is neither private nor company.
enum ZTAddressLayoutTypeEnum : qint32 {
    ZTAddressLayoutTypeUnknown = 0,
    ZTAddressLayoutTypeBillingPrivate = 1,
    ZTAddressLayoutTypeBillingCompany = 2,
    ZTAddressLayoutTypeShippingPrivate = 4,
    ZTAddressLayoutTypeShippingCompany = 8,
    ZTAddressLayoutTypePosPrivate = 16,
    ZTAddressLayoutTypePosCompany = 32,
    ZTAddressLayoutTypeRegistration = 64,
};

class ZTAPM_EXPORT ZTAddressLayoutType : public ZTEnumWrapper<ZTAddressLayoutTypeEnum>
{
public:
    ZTAddressLayoutType(ZTAddressLayoutTypeEnum theValue = ZTAddressLayoutTypeUnknown);
    explicit ZTAddressLayoutType(const QString& theText);

    bool isPrivateLayout() const;
    bool isCompanyLayout() const;
    // The private resp. company form of the same use; other values stay as they are.
    ZTAddressLayoutType convertToPrivate() const;
    ZTAddressLayoutType convertToCompany() const;

    // "private" or "company"; empty for any other layout.
    QString encodeForXTCI() const;
    // "1" for a private, "2" for a company layout; empty otherwise.
    QString encodeForOrderTXT() const;
    // The object name of the layout's radio button, for the user-interface test robot.
    QString squishButtonName() const;
    // The translated label of the radio button; empty for a layout that is neither.
    QString visibleName() const;

    // A radio button labelled visibleName(), child of theParent, added to theGroup (if any)
    // with the layout's value as its id. The caller (or theParent) owns it.
    QRadioButton* createRadioButton(QButtonGroup* theGroup, QWidget* theParent) const;

    void fillTable(ZTEnumToStringTable<ZTAddressLayoutTypeEnum>* theTable) const override;
};

#endif // ZTADDRESSLAYOUTTYPE_H
