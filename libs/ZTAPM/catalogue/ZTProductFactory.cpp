#include "ZTProductFactory.h"

#include "ZTArticleClass.h"
#include "ZTProduct.h"
#include "ZTProductAddOn.h"
#include "ZTProductArrangement.h"
#include "ZTProductExpressFee.h"
#include "ZTProductPaymentMethodFee.h"
#include "ZTProductPrintFun.h"
#include "ZTProductShipmentMethodFee.h"
#include "ZTProductTransferFee.h"

#include <QDomElement>

ZTProductFactory::ZTProductFactory() = default;
ZTProductFactory::~ZTProductFactory() = default;

ZTProductAbstract* ZTProductFactory::build(const QDomElement& theElement) const
{
    // The element names are keywords of the article class vocabulary.
    switch (ZTArticleClass(theElement.tagName()).value()) {
    case ZTArticleClassAllArticles:
        return buildIndependentProduct(theElement);
    case ZTArticleClassAllAddOns:
        return buildAddOn(theElement);
    case ZTArticleClassExpressFee:
        return new ZTProductExpressFee(theElement);
    case ZTArticleClassTransfer:
        return new ZTProductTransferFee(theElement);
    case ZTArticleClassPayMethodFee:
        return new ZTProductPaymentMethodFee(theElement);
    case ZTArticleClassShipmentMethodFee:
        return new ZTProductShipmentMethodFee(theElement);
    default:
        return nullptr;
    }
}

ZTProductAbstract* ZTProductFactory::buildAddOn(const QDomElement& theElement) const
{
    return new ZTProductAddOn(theElement);
}

ZTProductAbstract* ZTProductFactory::buildFoto(const QDomElement& theElement) const
{
    return new ZTProduct(theElement);
}

ZTProductAbstract* ZTProductFactory::buildPrintFun(const QDomElement& theElement) const
{
    return new ZTProductPrintFun(theElement);
}

ZTProductAbstract* ZTProductFactory::buildIndependentProduct(const QDomElement& theElement) const
{
    const ZTProductArrangement arrangement(
        theElement.firstChildElement(QStringLiteral("type")).attribute(QStringLiteral("arrangement")));
    switch (arrangement.value()) {
    case ZTProductArrangementPrints:
        return buildFoto(theElement);
    case ZTProductArrangementSingle:
    case ZTProductArrangementFolded:
    case ZTProductArrangementCalendar:
    case ZTProductArrangementBook:
        return buildPrintFun(theElement);
    default:
        return nullptr;
    }
}
