#include "ZTAPMDataBase.h"
#include "ZTAPMObjects.h"
#include "ZTArticleClass.h"
#include "ZTFuzzInput.h"
#include "ZTInitializer.h"
#include "ZTProductAbstract.h"
#include "ZTProductList.h"

// A whole products document read as the engine reads it on a change of key accounts: into the
// registries of the data base and into the definitions store, then asked for its products.
extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    ZTFuzzInput::keyAccount();
    ZTSingleton<ZTInitializer>::instance()->setupAll(ZTInitializerOption());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    const QFileInfo file = ZTFuzzInput::write(theData, theSize, QStringLiteral("products.xml"));
    ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
    dataBase->loadAllProductsFrom(file);
    ZTAPMObjects::instance()->updateKeyAccountData(ZTKeyAccountDataType(ZTKeyAccountDataTypeProducts));

    const ZTProductList products = dataBase->productsForArticleClass(ZTArticleClass(ZTArticleClassAll));
    for (ZTProductAbstract* product : products) {
        (void)product->name();
        (void)product->isDeprecated();
        (void)dataBase->findDependentProducts(product->articleId(), ZTArticleClass(ZTArticleClassAll));
        (void)dataBase->productIsExpressable(product);
    }
    (void)dataBase->firstValidProductAbstract();
    return 0;
}
