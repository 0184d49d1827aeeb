#ifndef ZTOCRBILLFEEWRITER_P_H
#define ZTOCRBILLFEEWRITER_P_H

#include "ZTXMLOrderedElement.h"

class ZTArticleId;
class ZTDiscountModel;
class ZTMoney;

// The attributes that the small items of a bill share in the order declaration, written the same
// way for all of them; private to the library.
class ZTOCRBillFeeWriter
{
public:
    // An element theName whose first attribute is the article id, as the id's own writer names it.
    static ZTXMLOrderedElement withArticleId(const QString& theName, const ZTArticleId& theArticleId);
    // "discount_type" as the model's code in upper case, then "discount_level".
    static void addDiscount(ZTXMLOrderedElement& theElement, const ZTDiscountModel& theModel, int theLevel);
    // "price", in hundredths.
    static ZTXMLOrderedElement& addPrice(ZTXMLOrderedElement& theElement, const ZTMoney& thePrice);
};

#endif // ZTOCRBILLFEEWRITER_P_H
