#ifndef ZTORDERINGDETAILS_H
#define ZTORDERINGDETAILS_H

#include "ZTAPMPriceKey.h"
#include "ZTClientStrategyException.h"
#include "ZTDiscountModel.h"
#include "ZTKeyAccountDataType.h"
#include "ZTOrderSource.h"
#include "ZTPasswordPolicy.h"
#include "ZTPaymentClass.h"
#include "ZTPaymentId.h"
#include "ZTPaymentMethod.h"
#include "ZTPaymentMethodList.h"
#include "ZTShipmentMethod.h"
#include "ZTShipmentMethodList.h"
#include "ZTShippingGroupsTransferCalculationModel.h"
#include "ZTShippingGroupsTransmitModel.h"
#include "ZTSingleton.h"
#include "ztapm_export.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

class QDomElement;

// What the server permits for the current key account, from the ordering-details document:
// order sources and their payments, payment and shipment methods, discount texts, currencies,
// coupon limits, account rules and how shipping groups combine. Read again in whole whenever
// the key account changes. Main thread only; nothing is locked.
class ZTAPM_EXPORT ZTOrderingDetails : public QObject, public ZTSingleton<ZTOrderingDetails>
{
    Q_OBJECT

public:
    // Order sources: those the document lists, in ZTOrderSource order, also those that permit
    // no payment.
    QList<ZTOrderSource> availableOrderSources() const;
    QList<ZTAPMPriceKey> availablePriceKeys() const;
    int numberOfOrderWays() const;
    // The source permits some payment, and for CD this installation can hand over discs.
    bool orderSourceEnabled(const ZTOrderSource& theOrderSource) const;
    bool canCDPointOfSale() const;
    bool canOnlineMailOrder() const;
    bool canOnlinePointOfSale() const;
    bool canAnyOnlineOrder() const;
    bool canPointOfSale() const;
    bool canOnlyCdPointOfSale() const;
    bool keyAccountPermitsPOS() const;

    // Payments. The classes in reading order: ordinary methods, credit cards, online transfers.
    QList<ZTPaymentClass> payClasses() const;
    // The list of one class, owned here; null for an unknown class.
    const ZTPaymentMethodList* paymentMethods(const ZTPaymentClass& thePayClass) const;
    // The ordinary methods with the credit cards in place of method 1 and the online transfers
    // in place of method 9.
    ZTPaymentMethodList paymentMethods() const;
    // That list without what the source does not permit; a family is permitted as a whole.
    ZTPaymentMethodList paymentMethods(const ZTOrderSource& theOrderSource) const;
    // The first permitted method of the id (and, if given, of the brand); invalid if none.
    ZTPaymentMethod paymentMethod(const ZTOrderSource& theOrderSource, const ZTPaymentId& thePaymentId,
                                  const QString& theBrand) const;
    // In document order; empty for an unknown source.
    QList<ZTPaymentId> permittedPayments(const ZTOrderSource& theOrderSource) const;
    // theCurrent if the source permits it, else the payment last chosen for the source.
    ZTPaymentMethod reasonableStartingPayment(const ZTOrderSource& theOrderSource,
                                              const ZTPaymentMethod& theCurrent) const;

    const ZTShipmentMethodList& shipmentMethods() const;
    // theCurrent if it is one of the methods, else the default method.
    ZTShipmentMethod reasonableStartingShipmentMethod(const ZTOrderSource& theOrderSource,
                                                      const ZTShipmentMethod& theCurrent) const;

    // Discount models: those with texts, by value.
    QList<ZTDiscountModel> supportedDiscountModels() const;
    // Empty for a model without texts.
    QString billPositionDescriptionEach(const ZTDiscountModel& theModel) const;
    // The general package text for a model without texts.
    QString billPositionDescriptionPackage(const ZTDiscountModel& theModel) const;

    // The primary currency's ISO code; "EUR" when the document never named one.
    QString currency() const;
    bool hasSecondaryCurrency() const;
    QString secondaryCurrency() const;
    // What a sum in the primary currency is multiplied by to give the secondary one.
    double secondaryCurrencyFactor() const;

    bool requiresDOI() const;
    bool requiresSalesTaxCheck() const;
    bool requiresAddressCheck() const;
    int defaultSellingPages() const;
    ZTClientStrategyException clientStrategyException() const;
    bool canModifyAccountData() const;
    ZTPasswordPolicy passwordPolicy() const;
    // 2147483647 for no limit.
    int maxNumberOfCoupons() const;
    int maxNumberOfDiscountCoupons() const;

    ZTShippingGroupsTransferCalculationModel combinedGroupsTransfer() const;
    bool summarizedTransfers() const;
    bool maxTransferOnly() const;

    // Whether the local document of the type is older than the server's last change of any
    // shipping group, or missing.
    bool dataNeedsToBeUpdated(const ZTKeyAccountDataType& theType) const;
    bool priceListNeedsToBeUpdated() const;

    // Passes the news on; nothing is stored.
    void setOnlineServicesReady(bool theReady);

public Q_SLOTS:
    // Reads the document again. A document whose groups cannot be ordered under any transfer
    // rule of this client ends the process with exit status 1.
    void update();

Q_SIGNALS:
    void changed();
    void onlineServicesReady(bool theReady);

private:
    friend class ZTSingleton<ZTOrderingDetails>;
    ZTOrderingDetails();
    ~ZTOrderingDetails() override;

    void initPaymentTypes();
    void updatePaymentMethods(const QDomElement& theRoot);
    void updatePermittedPaymentMethods(const QDomElement& theElement);
    void updateDiscountLevelDescriptions(const QDomElement& theElement);
    void updateAvailableCurrencies(const QDomElement& theElement);
    void updateAvailableShippingGroups(const QDomElement& theElement);
    void updateClientStrategyExceptions(const QDomElement& theElement);
    void updateShipmentMethods(const QDomElement& theElement);
    void updateNumberOfCoupons(const QDomElement& theElement);
    void updatePasswordPolicy(const QDomElement& theElement);

    QMap<ZTPaymentClass, ZTPaymentMethodList*> myPaymentMethods;
    QMap<ZTOrderSource, QList<ZTPaymentId>> myPermittedPayments;
    QMap<ZTDiscountModel, QString> myEachDescriptions;
    QMap<ZTDiscountModel, QString> myPackageDescriptions;
    QString myCurrency;
    QString mySecondaryCurrency;
    double mySecondaryCurrencyFactor = 0.0;
    bool myRequiresDOI = false;
    bool myRequiresAddressCheck = false;
    bool myRequiresSalesTaxCheck = false;
    qint32 myDefaultSellingPages = 0;
    ZTClientStrategyException myClientStrategyException;
    ZTShipmentMethodList myShipmentMethods;
    ZTShippingGroupsTransferCalculationModel myTransferCalculationModel;
    ZTShippingGroupsTransmitModel myTransmitModel;
    qint32 myMaxCoupons = 0;
    qint32 myMaxDiscountCoupons = 0;
    ZTPasswordPolicy myPasswordPolicy;
};

#endif // ZTORDERINGDETAILS_H
