#include "ZTPaymentMethodList.h"

#include <QDebug>

#include <algorithm>

ZTPaymentMethodList::ZTPaymentMethodList() = default;

ZTPaymentMethodList::ZTPaymentMethodList(const QList<ZTPaymentMethod>& theMethods)
    : QList<ZTPaymentMethod>(theMethods)
{}

ZTPaymentMethodList::ZTPaymentMethodList(std::initializer_list<ZTPaymentMethod> theMethods)
    : QList<ZTPaymentMethod>(theMethods)
{}

ZTPaymentMethodList::~ZTPaymentMethodList() = default;

ZTPaymentMethod ZTPaymentMethodList::paymentMethod(const ZTPaymentId& thePaymentId) const
{
    for (const ZTPaymentMethod& method : *this) {
        if (method.paymentId() == thePaymentId)
            return method;
    }
    return ZTPaymentMethod();
}

bool ZTPaymentMethodList::containsBlockablePaymentMethod() const
{
    return std::any_of(cbegin(), cend(),
                       [](const ZTPaymentMethod& theMethod) { return theMethod.isBlockable(); });
}

QDebug operator<<(QDebug theDebug, const ZTPaymentMethodList& theList)
{
    QDebugStateSaver saver(theDebug);
    theDebug.nospace() << "ZTPaymentMethodList(";
    for (const ZTPaymentMethod& method : theList)
        theDebug << '\n' << method;
    theDebug << ')';
    return theDebug;
}
