#ifndef ZTPERMITTEDPAYMETHODLIST_H
#define ZTPERMITTEDPAYMETHODLIST_H

#include "ZTPaymentMethodList.h"
#include "ZTPermittedPayMethod.h"
#include "ztapm_export.h"

#include <QList>

class QDomElement;

// The pay methods that the server permits for one order, in document order.
class ZTAPM_EXPORT ZTPermittedPayMethodList : public QList<ZTPermittedPayMethod>
{
public:
    ZTPermittedPayMethodList();
    ZTPermittedPayMethodList(std::initializer_list<ZTPermittedPayMethod> theMethods);
    // The "permitted_pay_method" elements in the child "permitted_pay_methods" of theElement;
    // one without a valid "id" is dropped.
    explicit ZTPermittedPayMethodList(const QDomElement& theElement);
    virtual ~ZTPermittedPayMethodList();

    bool contains(const ZTPaymentId& theId) const;
    // The first method of the id; a default, invalid method if there is none.
    ZTPermittedPayMethod value(const ZTPaymentId& theId) const;
    // The client's payment methods that are listed here, in the order of the ordering details.
    // Every credit card passes through id 1 and every online transfer through id 9; ids that
    // the client does not know are lost.
    ZTPaymentMethodList toPaymentMethodList() const;
};

#endif // ZTPERMITTEDPAYMETHODLIST_H
