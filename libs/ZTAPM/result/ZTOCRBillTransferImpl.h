#ifndef ZTOCRBILLTRANSFERIMPL_H
#define ZTOCRBILLTRANSFERIMPL_H

#include "ZTArticleId.h"
#include "ZTDiscountModel.h"
#include "ZTMoney.h"
#include "ZTTransferModel.h"

#include <QSharedData>

// Body of ZTOCRBillTransfer; private to the library.
class ZTOCRBillTransferImpl : public QSharedData
{
public:
    ZTArticleId myArticleId{0};
    ZTTransferModel myTransferModel{ZTTransferModelNone};
    ZTMoney myPrice{0};
    ZTDiscountModel myDiscountModel;
    qint32 myDiscountLevel = 0;
};

#endif // ZTOCRBILLTRANSFERIMPL_H
