#ifndef ZTOCRBILLPOSITIONPARTLIST_H
#define ZTOCRBILLPOSITIONPARTLIST_H

#include "ZTOCRBillPositionPart.h"
#include "ztapm_export.h"

#include <QList>

// The parts of one position of the server's order calculation.
class ZTAPM_EXPORT ZTOCRBillPositionPartList : public QList<ZTOCRBillPositionPart>
{
public:
    using QList<ZTOCRBillPositionPart>::QList;

    // The first part of the article, claimed or not; a default part if there is none.
    ZTOCRBillPositionPart orderPart(const ZTArticleId& theArticleId) const;
    // Removes every part of the article and appends thePart at the end.
    bool replace(const ZTArticleId& theArticleId, const ZTOCRBillPositionPart& thePart);
    // One part per article with the summed quantity. A merged part stands where the last of its
    // article stood relative to the others and bears that part's ids and price.
    ZTOCRBillPositionPartList unified() const;
};

#endif // ZTOCRBILLPOSITIONPARTLIST_H
