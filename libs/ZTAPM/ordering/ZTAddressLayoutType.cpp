#include "ZTAddressLayoutType.h"

#include "ZTSquish.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QRadioButton>

namespace {

constexpr qint32 privateLayouts =
    ZTAddressLayoutTypeBillingPrivate | ZTAddressLayoutTypeShippingPrivate | ZTAddressLayoutTypePosPrivate;
constexpr qint32 companyLayouts =
    ZTAddressLayoutTypeBillingCompany | ZTAddressLayoutTypeShippingCompany | ZTAddressLayoutTypePosCompany;

} // namespace

ZTAddressLayoutType::ZTAddressLayoutType(ZTAddressLayoutTypeEnum theValue)
    : ZTEnumWrapper<ZTAddressLayoutTypeEnum>(theValue)
{}

ZTAddressLayoutType::ZTAddressLayoutType(const QString& theText)
{
    setValue(theText);
}

void ZTAddressLayoutType::fillTable(ZTEnumToStringTable<ZTAddressLayoutTypeEnum>* theTable) const
{
    // The short forms are the older keywords of the billing forms; they decode but are not written.
    theTable->insert(QStringLiteral("billingPrivate"), ZTAddressLayoutTypeBillingPrivate);
    theTable->insert(QStringLiteral("private"), ZTAddressLayoutTypeBillingPrivate);
    theTable->insert(QStringLiteral("billingCompany"), ZTAddressLayoutTypeBillingCompany);
    theTable->insert(QStringLiteral("company"), ZTAddressLayoutTypeBillingCompany);
    theTable->insert(QStringLiteral("shippingPrivate"), ZTAddressLayoutTypeShippingPrivate);
    theTable->insert(QStringLiteral("shippingCompany"), ZTAddressLayoutTypeShippingCompany);
    theTable->insert(QStringLiteral("posPrivate"), ZTAddressLayoutTypePosPrivate);
    theTable->insert(QStringLiteral("posCompany"), ZTAddressLayoutTypePosCompany);
    theTable->insert(QStringLiteral("registration"), ZTAddressLayoutTypeRegistration);
    theTable->setDefaultValue(ZTAddressLayoutTypeUnknown);
}

bool ZTAddressLayoutType::isPrivateLayout() const
{
    return hasExactlyOneBit() && matches(ZTAddressLayoutTypeEnum(privateLayouts));
}

bool ZTAddressLayoutType::isCompanyLayout() const
{
    return hasExactlyOneBit() && matches(ZTAddressLayoutTypeEnum(companyLayouts));
}

ZTAddressLayoutType ZTAddressLayoutType::convertToPrivate() const
{
    // Each company form stands one bit above its private form.
    return isCompanyLayout() ? ZTAddressLayoutType(ZTAddressLayoutTypeEnum(myValue >> 1)) : *this;
}

ZTAddressLayoutType ZTAddressLayoutType::convertToCompany() const
{
    return isPrivateLayout() ? ZTAddressLayoutType(ZTAddressLayoutTypeEnum(myValue << 1)) : *this;
}

QString ZTAddressLayoutType::encodeForXTCI() const
{
    if (isPrivateLayout())
        return QStringLiteral("private");
    if (isCompanyLayout())
        return QStringLiteral("company");
    return QString();
}

QString ZTAddressLayoutType::encodeForOrderTXT() const
{
    if (isPrivateLayout())
        return QStringLiteral("1");
    if (isCompanyLayout())
        return QStringLiteral("2");
    return QString();
}

QString ZTAddressLayoutType::squishButtonName() const
{
    if (isPrivateLayout())
        return QStringLiteral("PrivateRadioButton");
    if (isCompanyLayout())
        return QStringLiteral("CompanyRadioButton");
    return QString();
}

QString ZTAddressLayoutType::visibleName() const
{
    if (isPrivateLayout())
        return QCoreApplication::translate("ZTAddressLayoutType", "Privat", "RADIOBUTTON");
    if (isCompanyLayout())
        return QCoreApplication::translate("ZTAddressLayoutType", "Firma", "RADIOBUTTON");
    return QString();
}

QRadioButton* ZTAddressLayoutType::createRadioButton(QButtonGroup* theGroup, QWidget* theParent) const
{
    auto* button = new QRadioButton(visibleName(), theParent);
    if (theGroup)
        theGroup->addButton(button, int(myValue));
    ZTSquish::setObjectName(button, squishButtonName());
    return button;
}
