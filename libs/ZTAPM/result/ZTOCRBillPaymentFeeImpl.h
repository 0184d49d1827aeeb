#ifndef ZTOCRBILLPAYMENTFEEIMPL_H
#define ZTOCRBILLPAYMENTFEEIMPL_H

#include "ZTArticleId.h"
#include "ZTMoney.h"

#include <QSharedData>

// Body of ZTOCRBillPaymentFee; private to the library.
class ZTOCRBillPaymentFeeImpl : public QSharedData
{
public:
    ZTArticleId myArticleId{0};
    ZTMoney myPrice{0};
};

#endif // ZTOCRBILLPAYMENTFEEIMPL_H
