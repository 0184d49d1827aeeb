#include "ZTAPMArticlePriceInfo.h"
#include "ZTAPMPriceKey.h"
#include "ZTArticleId.h"
#include "ZTDiscountLimitSet.h"
#include "ZTFuzzInput.h"
#include "ZTOrderSource.h"
#include "ZTXMLLoader.h"

#include <climits>

// Elements of a prices document, streamed as the prices store reads them, each made into a price
// info that is then asked for its prices in every order source, at every level and for counts
// from one piece to the largest int.
namespace {

void ask(const ZTAPMArticlePriceInfo& thePriceInfo)
{
    if (!thePriceInfo.isValid())
        return;
    for (const ZTOrderSource& source : {ZTOrderSource::onlinePointOfSale(), ZTOrderSource::onlineMailOrder(),
                                        ZTOrderSource::cdPointOfSale()}) {
        const ZTAPMPriceKey key(source);
        (void)thePriceInfo.isOrderableThisWay(source);
        (void)thePriceInfo.fotoBasePackageLimit(source);
        (void)thePriceInfo.nonOfferPrice(key);
        (void)thePriceInfo.isOfferPriceValid(key);
        (void)thePriceInfo.baseTransferPrice(key);
        (void)thePriceInfo.unitTransferPrice(key);
        for (const int count : {0, 1, 2, 10, 100, 1000, 100000, INT_MAX})
            (void)thePriceInfo.bestDiscountLevel(key, count);
        const ZTDiscountLimitSet limits = thePriceInfo.discountLimits(key);
        for (const ZTDiscountLimit& limit : limits) {
            (void)thePriceInfo.pricesAtBound(key, limit);
            (void)thePriceInfo.priceAtBound(key, limit);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    const QFileInfo file = ZTFuzzInput::write(theData, theSize, QStringLiteral("prices.xml"));
    ZTXMLLoader::forEachSectionElement(file, ZTFuzzInput::articleSections(),
                                       [](qsizetype, const QDomElement& theElement) {
                                           const ZTArticleId id = ZTArticleId::fromIdAttribute(theElement);
                                           ask(ZTAPMArticlePriceInfo(id, theElement));
                                       });
    return 0;
}
