#ifndef ZTOCRBILLPOSITIONIMPL_H
#define ZTOCRBILLPOSITIONIMPL_H

#include "ZTArticleId.h"
#include "ZTDiscountModel.h"
#include "ZTMoney.h"
#include "ZTOCRBillPositionPartList.h"

#include <QSharedData>

class QDomElement;

// Body of ZTOCRBillPosition; private to the library.
class ZTOCRBillPositionImpl : public QSharedData
{
public:
    ZTOCRBillPositionImpl();
    explicit ZTOCRBillPositionImpl(const QDomElement& theElement);
    ZTOCRBillPositionImpl(const ZTOCRBillPositionImpl& theOther);
    virtual ~ZTOCRBillPositionImpl();

    // All fields but the parts.
    bool operator==(const ZTOCRBillPositionImpl& theOther) const;
    // In the product order of the editor: by editor name, numbers in names compared as numbers,
    // and by the server's position id among equal names.
    bool operator<(const ZTOCRBillPositionImpl& theOther) const;

    qint32 myOrderPositionId = -1;
    ZTArticleId myArticleId{0};
    qint32 myQuantity = 0;
    qint32 myNumberOfFotos = 0;
    qint32 myMaxNumberOfFotos = 0;
    ZTMoney myPrice{0};
    ZTMoney myTotalPrice{-1};
    ZTDiscountModel myDiscountModel;
    qint32 myDiscountLevel = 0;
    ZTMoney myTransferBasePrice{-1};
    ZTMoney myTransferUnitPrice{-1};
    // The claims on this position. Changed through const handles and never detached, so that
    // every copy of the position counts the same claims; the result lives on the main thread
    // only.
    mutable qint32 myUsedQuantity = 0;
    ZTOCRBillPositionPartList myOrderParts;
};

#endif // ZTOCRBILLPOSITIONIMPL_H
