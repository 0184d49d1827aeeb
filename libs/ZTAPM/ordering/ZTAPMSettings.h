#ifndef ZTAPMSETTINGS_H
#define ZTAPMSETTINGS_H

#include "ZTConfigItem.h"
#include "ZTOrderSource.h"
#include "ZTSettings.h"
#include "ZTSingleton.h"
#include "ztapm_export.h"

#include <QMap>

class ZTPaymentMethod;

// The engine's persistent choices: per order source the payment the user chose last, in the
// settings group "selectedPayments" under the source's toString() key. The value is the payment
// id, for a credit card or an online transfer followed by "_" and the brand ("1_VISA").
class ZTAPM_EXPORT ZTAPMSettings : public ZTSettings, public ZTSingleton<ZTAPMSettings>
{
    Q_OBJECT

public:
    // The remembered method if the source still permits it; invalid otherwise.
    ZTPaymentMethod lastSelectedPayment(const ZTOrderSource& theOrderSource) const;
    // Remembers and saves at once; storing the value the source already has writes nothing.
    void setLastSelectedPayment(const ZTOrderSource& theOrderSource, const ZTPaymentMethod& theMethod);

    void loadSettings();
    // Writes the items changed since they were read, so that a choice another program stored in
    // the meantime under another source survives; removes the old entry "userPaymentType".
    void saveSettings();

private:
    friend class ZTSingleton<ZTAPMSettings>;
    ZTAPMSettings();
    ~ZTAPMSettings() override;

    void createPaymentItems();

    // Ordered, so that saving walks the sources in one order.
    QMap<ZTOrderSource, ZTConfigItem<QString>*> myPaymentItems;
};

#endif // ZTAPMSETTINGS_H
