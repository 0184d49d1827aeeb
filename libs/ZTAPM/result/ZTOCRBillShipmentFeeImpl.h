#ifndef ZTOCRBILLSHIPMENTFEEIMPL_H
#define ZTOCRBILLSHIPMENTFEEIMPL_H

#include "ZTArticleId.h"
#include "ZTMoney.h"

#include <QSharedData>

// Body of ZTOCRBillShipmentFee; private to the library.
class ZTOCRBillShipmentFeeImpl : public QSharedData
{
public:
    ZTArticleId myArticleId{0};
    ZTMoney myPrice{0};
};

#endif // ZTOCRBILLSHIPMENTFEEIMPL_H
