#include "ZTOCRBillPositionImpl.h"

#include "ZTAPMDataBase.h"
#include "ZTProductAbstract.h"
#include "ZTStringHelper.h"
#include "ZTXMLParser.h"

#include <QDomElement>

namespace {
QString editorNameOf(const ZTArticleId& theArticleId)
{
    const ZTProductAbstract* product = ZTAPMDataBase::instance()->productAbstract(theArticleId);
    return product ? product->editorName() : QString();
}
} // namespace

ZTOCRBillPositionImpl::ZTOCRBillPositionImpl() = default;

ZTOCRBillPositionImpl::ZTOCRBillPositionImpl(const QDomElement& theElement)
{
    if (theElement.isNull())
        return;
    const QDomElement parts = theElement.firstChildElement(QStringLiteral("parts"));
    for (QDomElement part = parts.firstChildElement(QStringLiteral("part")); !part.isNull();
         part = part.nextSiblingElement(QStringLiteral("part")))
        myOrderParts.append(ZTOCRBillPositionPart(part));
    myDiscountModel = ZTDiscountModel(theElement, nullptr);
    myDiscountLevel = ZTXMLParser::intAttribute(theElement, QStringLiteral("discount_level"), 0);
    myOrderPositionId = ZTXMLParser::intAttribute(theElement, QStringLiteral("pos"), -1);
    myArticleId = ZTArticleId::fromArtIdAttribute(theElement);
    myPrice = ZTMoney::fromXmlAttribute(theElement, QStringLiteral("price"), 0);
    myTransferBasePrice = ZTMoney::fromXmlAttribute(theElement, QStringLiteral("transfer_base_price"), -1);
    myTransferUnitPrice = ZTMoney::fromXmlAttribute(theElement, QStringLiteral("transfer_unit_price"), -1);
    myTotalPrice = ZTMoney::fromXmlAttribute(theElement, QStringLiteral("total_price"), -1);
    myNumberOfFotos = ZTXMLParser::intAttribute(theElement, QStringLiteral("number_of_photos"), 0);
    myMaxNumberOfFotos = ZTXMLParser::intAttribute(theElement, QStringLiteral("max_number_of_photos"), 0);
    myQuantity = ZTXMLParser::intAttribute(theElement, QStringLiteral("quantity"), 0);
}

ZTOCRBillPositionImpl::ZTOCRBillPositionImpl(const ZTOCRBillPositionImpl& theOther) = default;
ZTOCRBillPositionImpl::~ZTOCRBillPositionImpl() = default;

bool ZTOCRBillPositionImpl::operator==(const ZTOCRBillPositionImpl& theOther) const
{
    return myOrderPositionId == theOther.myOrderPositionId && myArticleId == theOther.myArticleId &&
           myQuantity == theOther.myQuantity && myNumberOfFotos == theOther.myNumberOfFotos &&
           myMaxNumberOfFotos == theOther.myMaxNumberOfFotos && myPrice == theOther.myPrice &&
           myTotalPrice == theOther.myTotalPrice && myDiscountModel == theOther.myDiscountModel &&
           myDiscountLevel == theOther.myDiscountLevel &&
           myTransferBasePrice == theOther.myTransferBasePrice &&
           myTransferUnitPrice == theOther.myTransferUnitPrice && myUsedQuantity == theOther.myUsedQuantity;
}

bool ZTOCRBillPositionImpl::operator<(const ZTOCRBillPositionImpl& theOther) const
{
    const QString myName = editorNameOf(myArticleId);
    const QString otherName = editorNameOf(theOther.myArticleId);
    if (myName == otherName)
        return myOrderPositionId < theOther.myOrderPositionId;
    return ZTStringHelper::numberAwareProductNameLessThan(myName, otherName);
}
