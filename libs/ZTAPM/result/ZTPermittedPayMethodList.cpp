#include "ZTPermittedPayMethodList.h"

#include "ZTOrderingDetails.h"

#include <QDomElement>

#include <algorithm>

ZTPermittedPayMethodList::ZTPermittedPayMethodList() = default;

ZTPermittedPayMethodList::ZTPermittedPayMethodList(std::initializer_list<ZTPermittedPayMethod> theMethods)
    : QList<ZTPermittedPayMethod>(theMethods)
{}

ZTPermittedPayMethodList::ZTPermittedPayMethodList(const QDomElement& theElement)
{
    const QDomElement list = theElement.firstChildElement(QStringLiteral("permitted_pay_methods"));
    const QString name = QStringLiteral("permitted_pay_method");
    for (QDomElement child = list.firstChildElement(name); !child.isNull();
         child = child.nextSiblingElement(name)) {
        const ZTPermittedPayMethod method(child);
        if (method.isValid())
            append(method);
    }
}

ZTPermittedPayMethodList::~ZTPermittedPayMethodList() = default;

bool ZTPermittedPayMethodList::contains(const ZTPaymentId& theId) const
{
    return std::any_of(cbegin(), cend(),
                       [&theId](const ZTPermittedPayMethod& theMethod) { return theMethod.type() == theId; });
}

ZTPermittedPayMethod ZTPermittedPayMethodList::value(const ZTPaymentId& theId) const
{
    for (const ZTPermittedPayMethod& method : *this) {
        if (method.type() == theId)
            return method;
    }
    return ZTPermittedPayMethod();
}

ZTPaymentMethodList ZTPermittedPayMethodList::toPaymentMethodList() const
{
    ZTPaymentMethodList result;
    for (const ZTPaymentMethod& method : ZTOrderingDetails::instance()->paymentMethods()) {
        if (contains(method.paymentId()))
            result.append(method);
    }
    return result;
}
