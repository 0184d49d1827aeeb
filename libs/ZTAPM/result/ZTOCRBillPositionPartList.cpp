#include "ZTOCRBillPositionPartList.h"

#include <algorithm>

ZTOCRBillPositionPart ZTOCRBillPositionPartList::orderPart(const ZTArticleId& theArticleId) const
{
    for (const ZTOCRBillPositionPart& part : *this) {
        if (part.articleId() == theArticleId)
            return part;
    }
    return ZTOCRBillPositionPart();
}

bool ZTOCRBillPositionPartList::replace(const ZTArticleId& theArticleId, const ZTOCRBillPositionPart& thePart)
{
    removeIf([&theArticleId](const ZTOCRBillPositionPart& thePresent) {
        return thePresent.articleId() == theArticleId;
    });
    append(thePart);
    return true;
}

ZTOCRBillPositionPartList ZTOCRBillPositionPartList::unified() const
{
    ZTOCRBillPositionPartList result;
    for (const ZTOCRBillPositionPart& part : *this) {
        const ZTArticleId article = part.articleId();
        const bool present =
            std::any_of(result.cbegin(), result.cend(), [&article](const ZTOCRBillPositionPart& theOther) {
                return theOther.articleId() == article;
            });
        if (!present) {
            result.append(part);
            continue;
        }
        ZTOCRBillPositionPart merged = part;
        merged.setQuantity(result.orderPart(article).quantity() + part.quantity());
        result.replace(article, merged);
    }
    return result;
}
