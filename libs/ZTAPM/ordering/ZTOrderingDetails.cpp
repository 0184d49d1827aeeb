#include "ZTOrderingDetails.h"

#include "ZTAPMSettings.h"
#include "ZTAPMShippingGroupManager.h"
#include "ZTDiagnosticCollector.h"
#include "ZTKeyAccount.h"
#include "ZTKeyAccountFileTimeStampManager.h"
#include "ZTPlatformIndependent.h"
#include "ZTResourceFile.h"
#include "ZTXMLLoader.h"
#include "ZTXMLParser.h"

#include <QDebug>
#include <QDomElement>

#include <cstdio>
#include <cstdlib>
#include <limits>

namespace {
const ZTPaymentId theCreditCardMetaId(1);
const ZTPaymentId theOnlineTransferMetaId(9);
} // namespace

ZTOrderingDetails::ZTOrderingDetails()
{
    qInfo() << "Creating...";
    initPaymentTypes();
    update();
    connect(ZTSingleton<ZTKeyAccount>::instance(), &ZTKeyAccount::applicationKeyAccountChanged, this,
            &ZTOrderingDetails::update);
    qInfo() << "Created.";
}

ZTOrderingDetails::~ZTOrderingDetails() = default;

void ZTOrderingDetails::initPaymentTypes()
{
    for (const ZTPaymentClass& payClass : payClasses())
        myPaymentMethods.insert(payClass, new ZTPaymentMethodList);
}

void ZTOrderingDetails::update()
{
    const QFileInfo file = ZTResourceFile(ZTResourceFileTypeOrderingDetails).fileInfo(false, QString());
    const QDomElement root = ZTXMLLoader::loadDocumentElement(file);
    // Findings of the reading name the document.
    const ZTDiagnosticCollector::Location location(file.filePath());

    myRequiresDOI = ZTXMLParser::boolText(root, QStringLiteral("doi"), false);
    myRequiresAddressCheck = ZTXMLParser::boolText(root, QStringLiteral("address_check"), false);
    myRequiresSalesTaxCheck = ZTXMLParser::boolText(root, QStringLiteral("sales_tax"), false);
    myDefaultSellingPages = ZTXMLParser::intText(root, QStringLiteral("default_selling_pages"), 0);

    const QDomElement groups = root.firstChildElement(QStringLiteral("groups"));
    myTransferCalculationModel = ZTShippingGroupsTransferCalculationModel(
        ZTXMLParser::attribute(groups, QStringLiteral("transfer_calculation"), QString(), true));
    myTransmitModel = ZTShippingGroupsTransmitModel(
        ZTXMLParser::attribute(groups, QStringLiteral("combination"), QString(), true));

    updatePaymentMethods(root);
    updatePermittedPaymentMethods(root.firstChildElement(QStringLiteral("order_sources")));
    updateDiscountLevelDescriptions(root.firstChildElement(QStringLiteral("discount_types")));
    updateAvailableCurrencies(root.firstChildElement(QStringLiteral("currencies")));
    updateAvailableShippingGroups(groups);
    updateClientStrategyExceptions(root.firstChildElement(QStringLiteral("client_strategy_exceptions")));
    updateShipmentMethods(root.firstChildElement(QStringLiteral("shipment_methods")));
    updateNumberOfCoupons(root.firstChildElement(QStringLiteral("allowed_coupon_entries")));
    updatePasswordPolicy(root.firstChildElement(QStringLiteral("password_policy")));

    // Only the largest transfer, with groups sent as one combined order: the server cannot
    // calculate such an order, so this client must not take one.
    if (myTransferCalculationModel == ZTShippingGroupsTransferCalculationMaxOnly &&
        myTransmitModel == ZTShippingGroupsTransmitModelArticleGroupCombination) {
        qWarning() << "Misconfigured client! This client is not able to order! [ARTGRP_COMBINATION (0) & "
                      "ARTGRP_TRANSFER_CALC (1)]";
        std::fflush(nullptr);
        std::exit(1);
    }
    Q_EMIT changed();
}

void ZTOrderingDetails::updatePaymentMethods(const QDomElement& theRoot)
{
    // Ordinary methods come first: the families take over properties of their meta method.
    for (const ZTPaymentClass& payClass : payClasses()) {
        ZTPaymentMethodList* list = myPaymentMethods.value(payClass);
        list->clear();
        const QDomElement group = theRoot.firstChildElement(payClass.xtciNodeName());
        if (group.isNull())
            continue;
        const ZTPaymentMethodList* ordinary = myPaymentMethods.value(ZTPaymentClass(ZTPaymentClassPayMethod));
        for (QDomElement element = group.firstChildElement(); !element.isNull();
             element = element.nextSiblingElement()) {
            ZTPaymentMethod method(payClass, element);
            if (payClass == ZTPaymentClassCreditCard)
                method.setPaymentProperties(ordinary->paymentMethod(theCreditCardMetaId));
            else if (payClass == ZTPaymentClassOnlineTransfer)
                method.setPaymentProperties(ordinary->paymentMethod(theOnlineTransferMetaId));
            list->append(method);
        }
    }
}

void ZTOrderingDetails::updatePermittedPaymentMethods(const QDomElement& theElement)
{
    myPermittedPayments.clear();
    for (QDomElement element = theElement.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        const ZTOrderSource source(element);
        if (!source.isValid())
            continue;
        QList<ZTPaymentId> ids;
        for (QDomElement permitted = element.firstChildElement(QStringLiteral("permitted_pay_method"));
             !permitted.isNull();
             permitted = permitted.nextSiblingElement(QStringLiteral("permitted_pay_method")))
            ids.append(ZTPaymentId(permitted.attribute(QStringLiteral("id"))));
        myPermittedPayments.insert(source, ids);
    }
}

void ZTOrderingDetails::updateDiscountLevelDescriptions(const QDomElement& theElement)
{
    const QString eachDefault = tr("%1 Stück");
    const QString packageDefault = tr("%1-Stück-Paket %2");
    // Not cleared: a model the document no longer names keeps its texts.
    for (QDomElement element = theElement.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        const ZTDiscountModel model(element.attribute(QStringLiteral("id")));
        myEachDescriptions.insert(
            model, ZTXMLParser::attribute(element, QStringLiteral("single_description"), eachDefault));
        myPackageDescriptions.insert(
            model, ZTXMLParser::attribute(element, QStringLiteral("group_description"), packageDefault));
    }
    const ZTDiscountModel photoPack(ZTDiscountModelPackage);
    const auto found = myPackageDescriptions.find(photoPack);
    if (found != myPackageDescriptions.end() && found.value() == packageDefault)
        found.value() = tr("%1 Fotopack");
}

void ZTOrderingDetails::updateAvailableCurrencies(const QDomElement& theElement)
{
    for (QDomElement element = theElement.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        const QString factor = ZTXMLParser::attribute(element, QStringLiteral("factor"));
        if (!factor.isEmpty()) {
            mySecondaryCurrency = ZTXMLParser::attribute(element, QStringLiteral("id"));
            bool ok = false;
            const double number = factor.toDouble(&ok);
            if (!ok) {
                qWarning().noquote() << QStringLiteral("Fehlerhafter Umrechnungsfaktor %1").arg(factor);
                ZTDiagnosticCollector::report(ZTDiagnostic::Warning,
                                              tr("Umrechnungsfaktor \"%1\" ist keine Zahl").arg(factor));
            }
            // The document gives what one unit of the secondary currency costs; sums are
            // multiplied by the reciprocal. A broken factor gives 0 and so an infinite one.
            mySecondaryCurrencyFactor = 1.0 / (ok ? number : 0.0);
        } else {
            // The primary currency resets the secondary one: it must come first.
            myCurrency = ZTXMLParser::attribute(element, QStringLiteral("id"));
            mySecondaryCurrency = QString();
            mySecondaryCurrencyFactor = 1.0;
        }
    }
    if (myCurrency.isEmpty())
        myCurrency = QStringLiteral("EUR");
}

void ZTOrderingDetails::updateAvailableShippingGroups(const QDomElement& theElement)
{
    ZTSingleton<ZTAPMShippingGroupManager>::instance()->update(theElement);
}

void ZTOrderingDetails::updateClientStrategyExceptions(const QDomElement& theElement)
{
    if (theElement.tagName() == QLatin1String("client_strategy_exceptions"))
        myClientStrategyException.setValues(
            theElement.firstChildElement(QStringLiteral("client_strategy_exception")));
    else
        myClientStrategyException = ZTClientStrategyException();
}

void ZTOrderingDetails::updateShipmentMethods(const QDomElement& theElement)
{
    myShipmentMethods.update(theElement);
}

void ZTOrderingDetails::updateNumberOfCoupons(const QDomElement& theElement)
{
    const QString total = theElement.attribute(QStringLiteral("total"));
    if (total == QLatin1String("n"))
        myMaxCoupons = std::numeric_limits<qint32>::max();
    else if (total == QLatin1String("1"))
        myMaxCoupons = 1;
    else
        myMaxCoupons = 0;
    myMaxDiscountCoupons = ZTXMLParser::intAttribute(theElement, QStringLiteral("discount"), 0);
}

void ZTOrderingDetails::updatePasswordPolicy(const QDomElement& theElement)
{
    myPasswordPolicy = ZTPasswordPolicy(theElement);
}

QList<ZTOrderSource> ZTOrderingDetails::availableOrderSources() const
{
    return myPermittedPayments.keys();
}

QList<ZTAPMPriceKey> ZTOrderingDetails::availablePriceKeys() const
{
    QList<ZTAPMPriceKey> result;
    for (const ZTOrderSource& source : availableOrderSources())
        result.append(ZTAPMPriceKey(source));
    return result;
}

int ZTOrderingDetails::numberOfOrderWays() const
{
    return int(myPermittedPayments.size());
}

bool ZTOrderingDetails::orderSourceEnabled(const ZTOrderSource& theOrderSource) const
{
    if (ZTSingleton<ZTPlatformIndependent>::instance()->discOrdersUnavailable() &&
        theOrderSource.inputSource() == ZTInputSourceCD)
        return false;
    if (theOrderSource.deliveryType() == ZTDeliveryTypeUndecodable) {
        const ZTInputSource input = theOrderSource.inputSource();
        return !(permittedPayments(ZTOrderSource(input, ZTDeliveryTypeMailOrder)) +
                 permittedPayments(ZTOrderSource(input, ZTDeliveryTypePointOfSale)))
                    .isEmpty();
    }
    return !permittedPayments(theOrderSource).isEmpty();
}

bool ZTOrderingDetails::canCDPointOfSale() const
{
    return orderSourceEnabled(ZTOrderSource::cdPointOfSale());
}

bool ZTOrderingDetails::canOnlineMailOrder() const
{
    return orderSourceEnabled(ZTOrderSource::onlineMailOrder());
}

bool ZTOrderingDetails::canOnlinePointOfSale() const
{
    return orderSourceEnabled(ZTOrderSource::onlinePointOfSale());
}

bool ZTOrderingDetails::canAnyOnlineOrder() const
{
    return canOnlineMailOrder() || canOnlinePointOfSale();
}

bool ZTOrderingDetails::canPointOfSale() const
{
    return canOnlinePointOfSale() || canCDPointOfSale();
}

bool ZTOrderingDetails::canOnlyCdPointOfSale() const
{
    return canCDPointOfSale() && !canOnlinePointOfSale() && !canOnlineMailOrder();
}

bool ZTOrderingDetails::keyAccountPermitsPOS() const
{
    for (const ZTOrderSource& source : myPermittedPayments.keys()) {
        if (source.deliveryType() == ZTDeliveryTypePointOfSale)
            return true;
    }
    return false;
}

QList<ZTPaymentClass> ZTOrderingDetails::payClasses() const
{
    return {ZTPaymentClass(ZTPaymentClassPayMethod), ZTPaymentClass(ZTPaymentClassCreditCard),
            ZTPaymentClass(ZTPaymentClassOnlineTransfer)};
}

const ZTPaymentMethodList* ZTOrderingDetails::paymentMethods(const ZTPaymentClass& thePayClass) const
{
    return myPaymentMethods.value(thePayClass, nullptr);
}

ZTPaymentMethodList ZTOrderingDetails::paymentMethods() const
{
    ZTPaymentMethodList result;
    for (const ZTPaymentMethod& method : *paymentMethods(ZTPaymentClass(ZTPaymentClassPayMethod))) {
        if (method.paymentId() == theCreditCardMetaId)
            result += *paymentMethods(ZTPaymentClass(ZTPaymentClassCreditCard));
        else if (method.paymentId() == theOnlineTransferMetaId)
            result += *paymentMethods(ZTPaymentClass(ZTPaymentClassOnlineTransfer));
        else
            result.append(method);
    }
    return result;
}

ZTPaymentMethodList ZTOrderingDetails::paymentMethods(const ZTOrderSource& theOrderSource) const
{
    const QList<ZTPaymentId> permitted = permittedPayments(theOrderSource);
    ZTPaymentMethodList result = paymentMethods();
    result.removeIf([&permitted](const ZTPaymentMethod& theMethod) {
        return !permitted.contains(theMethod.paymentId());
    });
    return result;
}

ZTPaymentMethod ZTOrderingDetails::paymentMethod(const ZTOrderSource& theOrderSource,
                                                 const ZTPaymentId& thePaymentId,
                                                 const QString& theBrand) const
{
    for (const ZTPaymentMethod& method : paymentMethods(theOrderSource)) {
        if (method.paymentId() == thePaymentId && (theBrand.isEmpty() || method.brand() == theBrand))
            return method;
    }
    return ZTPaymentMethod();
}

QList<ZTPaymentId> ZTOrderingDetails::permittedPayments(const ZTOrderSource& theOrderSource) const
{
    return myPermittedPayments.value(theOrderSource);
}

ZTPaymentMethod ZTOrderingDetails::reasonableStartingPayment(const ZTOrderSource& theOrderSource,
                                                             const ZTPaymentMethod& theCurrent) const
{
    if (theCurrent.isValid() && permittedPayments(theOrderSource).contains(theCurrent.paymentId()))
        return theCurrent;
    return ZTSingleton<ZTAPMSettings>::instance()->lastSelectedPayment(theOrderSource);
}

const ZTShipmentMethodList& ZTOrderingDetails::shipmentMethods() const
{
    return myShipmentMethods;
}

ZTShipmentMethod ZTOrderingDetails::reasonableStartingShipmentMethod(const ZTOrderSource&,
                                                                     const ZTShipmentMethod& theCurrent) const
{
    if (myShipmentMethods.contains(theCurrent))
        return theCurrent;
    return myShipmentMethods.defaultShipmentMethod();
}

QList<ZTDiscountModel> ZTOrderingDetails::supportedDiscountModels() const
{
    return myEachDescriptions.keys();
}

QString ZTOrderingDetails::billPositionDescriptionEach(const ZTDiscountModel& theModel) const
{
    return myEachDescriptions.value(theModel);
}

QString ZTOrderingDetails::billPositionDescriptionPackage(const ZTDiscountModel& theModel) const
{
    const auto found = myPackageDescriptions.constFind(theModel);
    return found == myPackageDescriptions.cend() ? tr("%1-Stück-Paket %2") : found.value();
}

QString ZTOrderingDetails::currency() const
{
    return myCurrency;
}

bool ZTOrderingDetails::hasSecondaryCurrency() const
{
    return !mySecondaryCurrency.isNull();
}

QString ZTOrderingDetails::secondaryCurrency() const
{
    return mySecondaryCurrency;
}

double ZTOrderingDetails::secondaryCurrencyFactor() const
{
    return mySecondaryCurrencyFactor;
}

bool ZTOrderingDetails::requiresDOI() const
{
    return myRequiresDOI;
}

bool ZTOrderingDetails::requiresSalesTaxCheck() const
{
    return myRequiresSalesTaxCheck;
}

bool ZTOrderingDetails::requiresAddressCheck() const
{
    return myRequiresAddressCheck;
}

int ZTOrderingDetails::defaultSellingPages() const
{
    return myDefaultSellingPages;
}

ZTClientStrategyException ZTOrderingDetails::clientStrategyException() const
{
    return myClientStrategyException;
}

bool ZTOrderingDetails::canModifyAccountData() const
{
    return myClientStrategyException.canModifyAccountData();
}

ZTPasswordPolicy ZTOrderingDetails::passwordPolicy() const
{
    return myPasswordPolicy;
}

int ZTOrderingDetails::maxNumberOfCoupons() const
{
    return myMaxCoupons;
}

int ZTOrderingDetails::maxNumberOfDiscountCoupons() const
{
    return myMaxDiscountCoupons;
}

ZTShippingGroupsTransferCalculationModel ZTOrderingDetails::combinedGroupsTransfer() const
{
    return myTransferCalculationModel;
}

bool ZTOrderingDetails::summarizedTransfers() const
{
    return (qint32(myTransferCalculationModel.value()) & 1) != 0;
}

bool ZTOrderingDetails::maxTransferOnly() const
{
    return (qint32(myTransferCalculationModel.value()) & 2) != 0;
}

bool ZTOrderingDetails::dataNeedsToBeUpdated(const ZTKeyAccountDataType& theType) const
{
    const QDateTime stamp = ZTSingleton<ZTKeyAccountFileTimeStampManager>::instance()->timeStamp(theType);
    if (!stamp.isValid())
        return true;
    return ZTSingleton<ZTAPMShippingGroupManager>::instance()->lastChange(theType) > stamp;
}

bool ZTOrderingDetails::priceListNeedsToBeUpdated() const
{
    const QDateTime stamp = ZTSingleton<ZTKeyAccountFileTimeStampManager>::instance()->pricesTimeStamp();
    if (!stamp.isValid())
        return true;
    return ZTSingleton<ZTAPMShippingGroupManager>::instance()->lastChange(
               ZTKeyAccountDataType(ZTKeyAccountDataTypePrices)) > stamp;
}

void ZTOrderingDetails::setOnlineServicesReady(bool theReady)
{
    Q_EMIT onlineServicesReady(theReady);
}
