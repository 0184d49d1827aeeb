#include "ZTAPMShippingGroupImpl.h"

#include "ZTArticleClass.h"
#include "ZTDiagnosticCollector.h"
#include "ZTXMLParser.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDomElement>

namespace {
// Deliberately not the epoch: a group without stamps still has a valid date, older than anything
// the server writes, so comparing stamps needs no case for a missing one.
QDateTime defaultStamp()
{
    static const QDateTime stamp = QDateTime::fromString(QStringLiteral("1970-05-26T09:30:00"), Qt::ISODate);
    return stamp;
}
} // namespace

ZTAPMShippingGroupImpl::ZTAPMShippingGroupImpl() = default;

ZTAPMShippingGroupImpl::ZTAPMShippingGroupImpl(const QDomElement& theElement, int thePriceListTabPosition)
    : myPriceListTabPosition(thePriceListTabPosition)
{
    parseShippingGroup(theElement);
}

ZTAPMShippingGroupImpl::~ZTAPMShippingGroupImpl() = default;

bool ZTAPMShippingGroupImpl::operator==(const ZTAPMShippingGroupImpl& theOther) const
{
    return myId == theOther.myId && myLastChange == theOther.myLastChange &&
           myMaxOrderItems == theOther.myMaxOrderItems && myName == theOther.myName &&
           myTransferModel == theOther.myTransferModel && myIsBrand == theOther.myIsBrand &&
           myPriceListTabPosition == theOther.myPriceListTabPosition &&
           myFotoPaperTypes == theOther.myFotoPaperTypes;
}

void ZTAPMShippingGroupImpl::parseShippingGroup(const QDomElement& theElement)
{
    if (theElement.tagName() != QLatin1String("group")) {
        qWarning() << "Tag name is not group";
        ZTDiagnosticCollector::report(
            ZTDiagnostic::Warning,
            QCoreApplication::translate("ZTAPMShippingGroupImpl", "Element %1 verworfen: keine Gruppe")
                .arg(theElement.tagName()));
        return;
    }
    myId = ZTShippingGroupId(theElement);
    myName = ZTXMLParser::attribute(theElement, QStringLiteral("name"));
    myTransferModel = ZTTransferModel(ZTXMLParser::attribute(theElement, QStringLiteral("transfer_model")));
    myMaxOrderItems = ZTXMLParser::intAttribute(theElement, QStringLiteral("max_order_items"), 0);
    myIsBrand = ZTXMLParser::boolAttribute(theElement, QStringLiteral("brand_policy"), false);

    myLastChange.clear();
    const QList<QPair<ZTKeyAccountDataTypeEnum, QString>> stamps{
        {ZTKeyAccountDataTypeProducts, QStringLiteral("products_last_change")},
        {ZTKeyAccountDataTypePrices, QStringLiteral("prices_last_change")},
        {ZTKeyAccountDataTypeDeliveryTimes, QStringLiteral("delivery_times_last_change")},
    };
    for (const auto& [type, attribute] : stamps)
        myLastChange.insert(
            ZTKeyAccountDataType(type),
            ZTXMLParser::dateTimeAttribute(theElement, attribute, Qt::ISODate, defaultStamp()));

    parseFotoPaperTypes(theElement);
}

void ZTAPMShippingGroupImpl::parseFotoPaperTypes(const QDomElement& theElement)
{
    myFotoPaperTypes =
        ZTFotoPaperType::createFromXTCI(ZTXMLParser::attribute(theElement, QStringLiteral("paper_type")));
    // Every group offers some paper: the usual one of its class when the document names none.
    if (myFotoPaperTypes.isEmpty())
        myFotoPaperTypes.append(ZTFotoPaperType::defaultFor(ZTArticleClass::createFromShippingGroupId(myId)));
}
