#ifndef ZTOCRBILLEXPRESSFEEIMPL_H
#define ZTOCRBILLEXPRESSFEEIMPL_H

#include "ZTArticleId.h"
#include "ZTDiscountModel.h"
#include "ZTMoney.h"

#include <QSharedData>

// Body of ZTOCRBillExpressFee; private to the library.
class ZTOCRBillExpressFeeImpl : public QSharedData
{
public:
    ZTArticleId myArticleId{0};
    ZTMoney myPrice{0};
    ZTDiscountModel myDiscountModel;
    qint32 myDiscountLevel = 0;
};

#endif // ZTOCRBILLEXPRESSFEEIMPL_H
