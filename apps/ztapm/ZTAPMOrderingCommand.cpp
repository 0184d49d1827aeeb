#include "ZTAPMOrderingCommand.h"

#include "ZTAPMConfig.h"
#include "ZTAPMDataBase.h"
#include "ZTAPMGlobalStatus.h"
#include "ZTAPMPriceKey.h"
#include "ZTAPMQuoteArguments.h"
#include "ZTAPMShippingGroupManager.h"
#include "ZTCurrencyConfig.h"
#include "ZTOrderingDetails.h"
#include "ZTProductAbstract.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <algorithm>
#include <limits>

namespace {

// The sum every currency is shown with.
const int theSampleAmount = 1234;

// What a fee product costs under the key: 0 without a product, null where it has no price.
QJsonValue feeJson(const ZTProductAbstract* theFee, const ZTOrderSource& theSource)
{
    if (!theFee)
        return 0;
    const ZTMoney price = theFee->price(ZTAPMPriceKey(theSource), 1, ZTMoney(0));
    return price.isValid() ? QJsonValue(price.value()) : QJsonValue(QJsonValue::Null);
}

QJsonObject paymentJson(const ZTPaymentMethod& theMethod)
{
    return {{QStringLiteral("id"), theMethod.paymentId().id()}, {QStringLiteral("brand"), theMethod.brand()}};
}

QString yesNo(const QJsonValue& theValue)
{
    return theValue.toBool() ? ZTAPMOrderingCommand::tr("yes") : ZTAPMOrderingCommand::tr("no");
}

// "3", "1 VISA", or "none" for an invalid payment.
QString paymentText(const QJsonObject& thePayment)
{
    const int id = thePayment[QStringLiteral("id")].toInt();
    if (id < 0)
        return ZTAPMOrderingCommand::tr("none");
    const QString brand = thePayment[QStringLiteral("brand")].toString();
    return brand.isEmpty() ? QString::number(id) : QStringLiteral("%1 %2").arg(id).arg(brand);
}

} // namespace

QString ZTAPMOrderingCommand::name() const
{
    return QStringLiteral("ordering");
}

QString ZTAPMOrderingCommand::synopsis() const
{
    return QStringLiteral("ordering");
}

QString ZTAPMOrderingCommand::summary() const
{
    return tr("what the key account permits and how an order starts: order sources,\n"
              "payments and fees, shipment methods, currencies, shipping groups, rules") +
           QStringLiteral("\n[--source S]");
}

QList<QCommandLineOption> ZTAPMOrderingCommand::options() const
{
    return {ZTAPMQuoteArguments::sourceOption()};
}

int ZTAPMOrderingCommand::readArguments(const QStringList& theArguments, const QCommandLineParser& theParser)
{
    const int status = noArguments(theArguments);
    if (status != Success || !theParser.isSet(QStringLiteral("source")))
        return status;
    const QString sourceName = theParser.value(QStringLiteral("source"));
    myOrderSource = orderSourceNamed(sourceName);
    if (!myOrderSource.isValid()) {
        QStringList names;
        for (const ZTOrderSource& source : ZTOrderSource::all())
            names.append(orderSourceName(source));
        return fail(UsageError,
                    tr("unknown order source '%1'; use %2").arg(sourceName, joined(names, tr("or"))));
    }
    return Success;
}

int ZTAPMOrderingCommand::run(QJsonObject& theReport)
{
    const ZTOrderingDetails* details = ZTSingleton<ZTOrderingDetails>::instance();
    const ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
    ZTAPMGlobalStatus* status = ZTSingleton<ZTAPMGlobalStatus>::instance();
    // The status as a session starts, then switched as a user would switch.
    if (myOrderSource.isValid())
        status->setOrderSource(myOrderSource);
    const ZTAPMStatus current = status->status();

    QJsonArray orderSources;
    for (const ZTOrderSource& source : details->availableOrderSources()) {
        QJsonArray payments;
        for (const ZTPaymentMethod& method : details->paymentMethods(source)) {
            QJsonObject payment = paymentJson(method);
            payment.insert(QStringLiteral("name"), method.name());
            payment.insert(QStringLiteral("fee"), feeJson(dataBase->paymentFeeProduct(method), source));
            payments.append(payment);
        }
        orderSources.append(QJsonObject{{QStringLiteral("source"), source.toLogString()},
                                        {QStringLiteral("name"), orderSourceName(source)},
                                        {QStringLiteral("enabled"), details->orderSourceEnabled(source)},
                                        {QStringLiteral("payments"), payments}});
    }

    QJsonArray shipmentMethods;
    for (const ZTShipmentMethod& method : details->shipmentMethods()) {
        const QJsonValue field =
            method.additionalFieldIsRequired()
                ? QJsonValue(method.additionalFieldName().isEmpty() ? method.additionalFieldKey()
                                                                    : method.additionalFieldName())
                : QJsonValue(QJsonValue::Null);
        shipmentMethods.append(
            QJsonObject{{QStringLiteral("id"), method.id()},
                        {QStringLiteral("name"), method.name()},
                        {QStringLiteral("default"), method.isDefault()},
                        {QStringLiteral("fee"),
                         feeJson(dataBase->shipmentMethodFeeProduct(method.id()), current.orderSource())},
                        {QStringLiteral("additionalField"), field}});
    }

    // Every group, in price-list order.
    const ZTAPMShippingGroupManager* groups = ZTSingleton<ZTAPMShippingGroupManager>::instance();
    QList<ZTAPMShippingGroup> allGroups = groups->shippingGroups();
    std::stable_sort(allGroups.begin(), allGroups.end(),
                     [](const ZTAPMShippingGroup& theFirst, const ZTAPMShippingGroup& theSecond) {
                         return lessThanPriceListTabPosition(theFirst, theSecond);
                     });
    QList<ZTShippingGroupId> active;
    for (const ZTAPMShippingGroup& group : groups->activeShippingGroups())
        active.append(group.id());
    QJsonArray shippingGroups;
    for (const ZTAPMShippingGroup& group : std::as_const(allGroups)) {
        QJsonArray papers;
        for (const ZTFotoPaperType& paper : group.fotoPaperTypes())
            papers.append(paper.encode());
        shippingGroups.append(
            QJsonObject{{QStringLiteral("id"), groupJson(group.id())},
                        {QStringLiteral("name"), group.name()},
                        {QStringLiteral("active"), active.contains(group.id())},
                        {QStringLiteral("tabPosition"), group.priceListTabPosition()},
                        {QStringLiteral("transferModel"), int(group.transferModel().value())},
                        {QStringLiteral("maxOrderItems"), group.maxOrderItems()},
                        {QStringLiteral("brand"), group.isBrand()},
                        {QStringLiteral("papers"), papers},
                        {QStringLiteral("defaultPaper"), group.defaultFotoPaperType().encode()}});
    }

    QJsonArray discountTexts;
    for (const ZTDiscountModel& model : details->supportedDiscountModels())
        discountTexts.append(
            QJsonObject{{QStringLiteral("model"), model.encode()},
                        {QStringLiteral("each"), details->billPositionDescriptionEach(model)},
                        {QStringLiteral("package"), details->billPositionDescriptionPackage(model)}});

    const ZTClientStrategyException strategy = details->clientStrategyException();
    const ZTPasswordPolicy policy = details->passwordPolicy();
    const QJsonObject rules{{QStringLiteral("singleSignOn"), strategy.isSSOLogin()},
                            {QStringLiteral("connectStrategy"), strategy.connectStrategy().encode()},
                            {QStringLiteral("loginUrl"), strategy.loginUrl().toString()},
                            {QStringLiteral("canModifyAccountData"), details->canModifyAccountData()},
                            {QStringLiteral("passwordPolicy"),
                             QJsonObject{{QStringLiteral("minLength"), policy.minPasswordLength()},
                                         {QStringLiteral("yellow"), policy.pointsForYellow()},
                                         {QStringLiteral("green"), policy.pointsForGreen()}}},
                            {QStringLiteral("maxCoupons"), details->maxNumberOfCoupons()},
                            {QStringLiteral("maxDiscountCoupons"), details->maxNumberOfDiscountCoupons()},
                            {QStringLiteral("doubleOptIn"), details->requiresDOI()},
                            {QStringLiteral("addressCheck"), details->requiresAddressCheck()},
                            {QStringLiteral("salesTaxCheck"), details->requiresSalesTaxCheck()},
                            {QStringLiteral("defaultSellingPages"), details->defaultSellingPages()}};

    const ZTMoney sample(theSampleAmount);
    theReport = {{QStringLiteral("defaultSource"),
                  ZTSingleton<ZTAPMConfig>::instance()->defaultOrderSource().toLogString()},
                 {QStringLiteral("currentSource"), current.orderSource().toLogString()},
                 {QStringLiteral("orderSources"), orderSources},
                 {QStringLiteral("startingPayment"), paymentJson(current.paymentMethod())},
                 {QStringLiteral("startingShipmentMethod"), current.shipmentMethod().id()},
                 {QStringLiteral("shipmentMethods"), shipmentMethods},
                 {QStringLiteral("shippingGroups"), shippingGroups},
                 {QStringLiteral("currency"), details->currency()},
                 {QStringLiteral("secondaryCurrency"), details->hasSecondaryCurrency()
                                                           ? QJsonValue(details->secondaryCurrency())
                                                           : QJsonValue(QJsonValue::Null)},
                 {QStringLiteral("secondaryCurrencyFactor"), details->secondaryCurrencyFactor()},
                 {QStringLiteral("sample"), sample.fullText()},
                 {QStringLiteral("secondarySample"), details->hasSecondaryCurrency()
                                                         ? QJsonValue(sample.fullText(true, false, true))
                                                         : QJsonValue(QJsonValue::Null)},
                 {QStringLiteral("discountTexts"), discountTexts},
                 {QStringLiteral("rules"), rules}};
    return Success;
}

void ZTAPMOrderingCommand::writeText(const QJsonObject& theReport, QTextStream& theOut) const
{
    const auto amount = [](const QJsonValue& theFee) { return amountText(theFee); };
    theOut << tr("Order sources (default %1, current %2):")
                  .arg(theReport[QStringLiteral("defaultSource")].toString(),
                       theReport[QStringLiteral("currentSource")].toString())
           << '\n';
    for (const QJsonValue& value : theReport[QStringLiteral("orderSources")].toArray()) {
        const QJsonObject source = value.toObject();
        theOut << "  " << source[QStringLiteral("source")].toString() << ' '
               << source[QStringLiteral("name")].toString() << ", "
               << (source[QStringLiteral("enabled")].toBool() ? tr("enabled") : tr("not enabled")) << '\n';
        const QJsonArray payments = source[QStringLiteral("payments")].toArray();
        if (payments.isEmpty())
            theOut << "    " << tr("no payment") << '\n';
        for (const QJsonValue& paymentValue : payments) {
            const QJsonObject payment = paymentValue.toObject();
            writeColumns(theOut,
                         {QString(), paymentText(payment), payment[QStringLiteral("name")].toString(),
                          amount(payment[QStringLiteral("fee")])},
                         {3, 14, 26});
        }
    }
    theOut
        << tr("Starting payment: %1")
               .arg(paymentText(theReport[QStringLiteral("startingPayment")].toObject()))
        << '\n'
        << tr("Starting shipment method: %1").arg(theReport[QStringLiteral("startingShipmentMethod")].toInt())
        << '\n'
        << tr("Shipment methods:") << '\n';
    for (const QJsonValue& value : theReport[QStringLiteral("shipmentMethods")].toArray()) {
        const QJsonObject method = value.toObject();
        const QJsonValue field = method[QStringLiteral("additionalField")];
        QStringList cells{QString(), QString::number(method[QStringLiteral("id")].toInt()),
                          method[QStringLiteral("name")].toString() +
                              (method[QStringLiteral("default")].toBool() ? tr(" (default)") : QString()),
                          amount(method[QStringLiteral("fee")])};
        // The fee is padded only when the field follows it.
        QList<int> widths{1, 4, 40};
        if (!field.isNull()) {
            cells.append(tr("asks for: %1").arg(field.toString()));
            widths.append(10);
        }
        writeColumns(theOut, cells, widths);
    }
    theOut << tr("Shipping groups, in price-list order:") << '\n';
    for (const QJsonValue& value : theReport[QStringLiteral("shippingGroups")].toArray()) {
        const QJsonObject group = value.toObject();
        QStringList papers;
        for (const QJsonValue& paper : group[QStringLiteral("papers")].toArray())
            papers.append(paper.toString());
        writeColumns(theOut,
                     {group[QStringLiteral("active")].toBool() ? QStringLiteral("*") : QString(),
                      groupText(group[QStringLiteral("id")]), group[QStringLiteral("name")].toString(),
                      tr("transfer model %1").arg(group[QStringLiteral("transferModel")].toInt()),
                      tr("papers %1").arg(papers.join(QLatin1Char(',')))},
                     {1, 4, 34, 17});
    }
    theOut << "  " << tr("(* active: named and with articles)") << '\n';
    theOut << tr("Currency: %1, %2")
                  .arg(theReport[QStringLiteral("currency")].toString(),
                       theReport[QStringLiteral("sample")].toString());
    const QJsonValue secondary = theReport[QStringLiteral("secondaryCurrency")];
    if (!secondary.isNull()) {
        // The factor as QTextStream writes a double: shortest form, C locale.
        QString factor;
        QTextStream(&factor) << theReport[QStringLiteral("secondaryCurrencyFactor")].toDouble();
        theOut << tr("; secondary %1, %2 (factor %3)")
                      .arg(secondary.toString(), theReport[QStringLiteral("secondarySample")].toString(),
                           factor);
    }
    theOut << '\n' << tr("Discount texts:") << '\n';
    for (const QJsonValue& value : theReport[QStringLiteral("discountTexts")].toArray()) {
        const QJsonObject text = value.toObject();
        writeColumns(theOut,
                     {QString(), text[QStringLiteral("model")].toString(),
                      text[QStringLiteral("each")].toString(), text[QStringLiteral("package")].toString()},
                     {1, 2, 22});
    }
    const QJsonObject rules = theReport[QStringLiteral("rules")].toObject();
    const QJsonObject policy = rules[QStringLiteral("passwordPolicy")].toObject();
    const int coupons = rules[QStringLiteral("maxCoupons")].toInt();
    // One rule a line, its name in a column of 22.
    const auto rule = [&theOut](const QString& theName, const QString& theValue) {
        theOut << "  " << theName.leftJustified(21) << ' ' << theValue << '\n';
    };
    theOut << tr("Rules:") << '\n';
    rule(tr("single sign-on"),
         QStringLiteral("%1 (%2)").arg(yesNo(rules[QStringLiteral("singleSignOn")]),
                                       rules[QStringLiteral("connectStrategy")].toString()));
    rule(tr("login URL"), rules[QStringLiteral("loginUrl")].toString());
    rule(tr("account data"), rules[QStringLiteral("canModifyAccountData")].toBool()
                                 ? tr("can be changed")
                                 : tr("cannot be changed"));
    rule(tr("password policy"), tr("at least %1 characters; %2 points fair, %3 good")
                                    .arg(policy[QStringLiteral("minLength")].toInt())
                                    .arg(policy[QStringLiteral("yellow")].toInt())
                                    .arg(policy[QStringLiteral("green")].toInt()));
    rule(tr("coupons"),
         tr("%1, discount coupons %2")
             .arg(coupons == std::numeric_limits<qint32>::max() ? tr("any number") : QString::number(coupons),
                  QString::number(rules[QStringLiteral("maxDiscountCoupons")].toInt())));
    rule(tr("double opt-in"), yesNo(rules[QStringLiteral("doubleOptIn")]));
    rule(tr("address check"), yesNo(rules[QStringLiteral("addressCheck")]));
    rule(tr("sales tax check"), yesNo(rules[QStringLiteral("salesTaxCheck")]));
    rule(tr("default selling pages"), QString::number(rules[QStringLiteral("defaultSellingPages")].toInt()));
}
