#ifndef ZTPAYMENTMETHODLIST_H
#define ZTPAYMENTMETHODLIST_H

#include "ZTPaymentMethod.h"
#include "ztapm_export.h"

#include <QList>

#include <initializer_list>

class QDebug;

// Payment methods in the order of the document.
class ZTAPM_EXPORT ZTPaymentMethodList : public QList<ZTPaymentMethod>
{
public:
    ZTPaymentMethodList();
    ZTPaymentMethodList(const QList<ZTPaymentMethod>& theMethods);
    ZTPaymentMethodList(std::initializer_list<ZTPaymentMethod> theMethods);
    virtual ~ZTPaymentMethodList();

    // The first method of thePaymentId, else a default (invalid) method.
    ZTPaymentMethod paymentMethod(const ZTPaymentId& thePaymentId) const;
    bool containsBlockablePaymentMethod() const;
};

// One method per line.
ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTPaymentMethodList& theList);

#endif // ZTPAYMENTMETHODLIST_H
