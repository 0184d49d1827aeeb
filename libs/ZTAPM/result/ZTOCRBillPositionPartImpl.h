#ifndef ZTOCRBILLPOSITIONPARTIMPL_H
#define ZTOCRBILLPOSITIONPARTIMPL_H

#include "ZTArticleId.h"
#include "ZTMoney.h"

#include <QSharedData>

// Body of ZTOCRBillPositionPart; private to the library.
class ZTOCRBillPositionPartImpl : public QSharedData
{
public:
    qint32 myOrderPartId = -1;
    ZTArticleId myArticleId{0};
    qint32 myQuantity = 0;
    ZTMoney myPrice{0};
    // The claims on this part. Changed through const handles and never detached, so that every
    // copy of the part counts the same claims; the result lives on the main thread only.
    mutable qint32 myUsedQuantity = 0;
};

#endif // ZTOCRBILLPOSITIONPARTIMPL_H
