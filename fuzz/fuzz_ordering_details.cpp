#include "ZTAPMShippingGroupManager.h"
#include "ZTCurrencyConfig.h"
#include "ZTFuzzInput.h"
#include "ZTOrderingDetails.h"
#include "ZTResourceFile.h"
#include "ZTShippingGroupsTransferCalculationModel.h"
#include "ZTShippingGroupsTransmitModel.h"
#include "ZTXMLLoader.h"
#include "ZTXMLParser.h"

#include <QDomElement>

#include <climits>

// The ordering details document, read again as on a change of key accounts, then asked what the
// ordering dialogs and the ztapm ordering command ask: sources and their payments, shipment
// methods, shipping groups, discount texts, currencies and the account rules.
namespace {

// Groups that only the largest transfer pays for, sent as one combined order, end the process by
// design (the server cannot calculate such an order); such an input is not a finding.
bool endsTheProcess(const QFileInfo& theFile)
{
    const QDomElement groups =
        ZTXMLLoader::loadDocumentElement(theFile).firstChildElement(QStringLiteral("groups"));
    const ZTShippingGroupsTransferCalculationModel calculation(
        ZTXMLParser::attribute(groups, QStringLiteral("transfer_calculation"), QString(), true));
    const ZTShippingGroupsTransmitModel transmit(
        ZTXMLParser::attribute(groups, QStringLiteral("combination"), QString(), true));
    return calculation == ZTShippingGroupsTransferCalculationMaxOnly &&
           transmit == ZTShippingGroupsTransmitModelArticleGroupCombination;
}

void ask(const ZTOrderingDetails* theDetails)
{
    for (const ZTOrderSource& source : theDetails->availableOrderSources()) {
        (void)theDetails->orderSourceEnabled(source);
        for (const ZTPaymentMethod& method : theDetails->paymentMethods(source)) {
            (void)method.name();
            (void)method.isPOS();
            (void)method.needsAuthorization();
            (void)theDetails->paymentMethod(source, method.paymentId(), method.brand());
        }
        (void)theDetails->reasonableStartingPayment(source, ZTPaymentMethod());
        (void)theDetails->reasonableStartingShipmentMethod(source, ZTShipmentMethod());
    }
    (void)theDetails->canOnlyCdPointOfSale();
    (void)theDetails->keyAccountPermitsPOS();
    for (const ZTShipmentMethod& method : theDetails->shipmentMethods())
        (void)theDetails->shipmentMethods().value(method.id());

    const ZTAPMShippingGroupManager* groups = ZTSingleton<ZTAPMShippingGroupManager>::instance();
    (void)groups->sortedShippingGroups();
    for (const ZTAPMShippingGroup& group : groups->activeShippingGroups()) {
        (void)groups->fotoPaperTypes(group.id());
        (void)groups->defaultFotoPaperType(group.id());
        (void)groups->priceListTabPosition(group.id());
    }

    for (const ZTDiscountModel& model : theDetails->supportedDiscountModels()) {
        (void)theDetails->billPositionDescriptionEach(model);
        (void)theDetails->billPositionDescriptionPackage(model);
    }
    // The secondary currency's factor comes from this document; no currency file is present,
    // so only the conversion runs.
    const ZTCurrencyConfig* currencies = ZTSingleton<ZTCurrencyConfig>::instance();
    for (const int value : {0, 1, -1, 123456, INT_MAX, INT_MIN})
        (void)currencies->fullText(value, true, false, true);

    const ZTClientStrategyException strategy = theDetails->clientStrategyException();
    (void)strategy.isSSOLogin();
    (void)strategy.loginUrl();
    (void)strategy.redirectUrl();
    (void)theDetails->canModifyAccountData();
    (void)theDetails->passwordPolicy();
    (void)theDetails->maxNumberOfCoupons();
    (void)theDetails->maxNumberOfDiscountCoupons();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    const QFileInfo file = ZTFuzzInput::write(theData, theSize, QStringLiteral("orderingdetails.xml"));
    if (endsTheProcess(file))
        return 0;
    ZTOrderingDetails* details = ZTSingleton<ZTOrderingDetails>::instance();
    details->update();
    ask(details);
    return 0;
}
