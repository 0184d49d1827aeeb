#include "ZTAPMSettings.h"

#include "ZTOrderingDetails.h"
#include "ZTPaymentMethod.h"
#include "ZTSettingsLock.h"
#include "ZTXMLParser.h"

namespace {
const QString theGroup = QStringLiteral("selectedPayments");
} // namespace

ZTAPMSettings::ZTAPMSettings()
{
    createPaymentItems();
    loadSettings();
}

ZTAPMSettings::~ZTAPMSettings()
{
    qDeleteAll(myPaymentItems);
}

void ZTAPMSettings::createPaymentItems()
{
    const QString none = ZTPaymentId().toString();
    for (const ZTOrderSource& source : ZTSingleton<ZTOrderingDetails>::instance()->availableOrderSources())
        myPaymentItems.insert(source, new ZTConfigItem<QString>(source.toString(), none, none));
}

void ZTAPMSettings::loadSettings()
{
    ZTSettingsLock lock;
    // Takes in what other programs stored since this one last read the file.
    sync();
    beginGroup(theGroup);
    for (ZTConfigItem<QString>* item : std::as_const(myPaymentItems))
        load(item);
    endGroup();
}

void ZTAPMSettings::saveSettings()
{
    ZTSettingsLock lock;
    beginGroup(theGroup);
    for (ZTConfigItem<QString>* item : std::as_const(myPaymentItems)) {
        if (!item->isModified())
            continue;
        save(*item);
        item->setLoadedValue(item->value());
    }
    endGroup();
    deleteEntry(QStringLiteral("userPaymentType"));
}

ZTPaymentMethod ZTAPMSettings::lastSelectedPayment(const ZTOrderSource& theOrderSource) const
{
    const ZTConfigItem<QString>* item = myPaymentItems.value(theOrderSource, nullptr);
    const QStringList parts = (item ? item->value() : QString()).split(QLatin1Char('_'), Qt::KeepEmptyParts);
    if (parts.isEmpty())
        return ZTPaymentMethod();
    // Not a number, or beyond 32 bits: id 0.
    const ZTPaymentId id(ZTXMLParser::fastDecodeInt(parts.first()));
    const QString brand = parts.size() > 1 ? parts.at(1) : QString();
    return ZTSingleton<ZTOrderingDetails>::instance()->paymentMethod(theOrderSource, id, brand);
}

void ZTAPMSettings::setLastSelectedPayment(const ZTOrderSource& theOrderSource,
                                           const ZTPaymentMethod& theMethod)
{
    QString value = theMethod.paymentId().toString();
    if (theMethod.payClass().isMetaClass())
        value += QLatin1Char('_') + theMethod.brand();
    ZTConfigItem<QString>*& item = myPaymentItems[theOrderSource];
    if (!item)
        item = new ZTConfigItem<QString>(theOrderSource.toString(), QString(), QString());
    if (item->value() == value)
        return;
    item->setValue(value);
    saveSettings();
}
