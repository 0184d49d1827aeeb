#include "ZTProductExpressFee.h"

#include <QDomElement>

ZTProductExpressFee::ZTProductExpressFee(const QDomElement& theElement)
    : ZTProductAbstract(theElement), myExpressType(theElement.attribute(QStringLiteral("express_id")))
{}

ZTProductExpressFee::~ZTProductExpressFee() = default;

ZTExpressType ZTProductExpressFee::expressType() const
{
    return myExpressType;
}
