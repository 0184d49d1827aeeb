#include "ZTOCRBillFeeWriter_p.h"

#include "ZTArticleId.h"
#include "ZTDiscountModel.h"
#include "ZTMoney.h"

#include <QDomElement>

ZTXMLOrderedElement ZTOCRBillFeeWriter::withArticleId(const QString& theName, const ZTArticleId& theArticleId)
{
    ZTXMLOrderedElement element(theName);
    element.addAttributesFrom(
        [&theArticleId](QDomElement& theElement) { theArticleId.toIdAttribute(theElement); });
    return element;
}

void ZTOCRBillFeeWriter::addDiscount(ZTXMLOrderedElement& theElement, const ZTDiscountModel& theModel,
                                     int theLevel)
{
    theElement.addAttribute(QStringLiteral("discount_type"), theModel.encode().toUpper());
    theElement.addAttribute(QStringLiteral("discount_level"), theLevel);
}

ZTXMLOrderedElement& ZTOCRBillFeeWriter::addPrice(ZTXMLOrderedElement& theElement, const ZTMoney& thePrice)
{
    return theElement.addAttribute(QStringLiteral("price"), thePrice.value());
}
