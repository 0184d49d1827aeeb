#include "ZTAPMOrderStatistic.h"
#include "ZTAPMStatus.h"
#include "ZTArticleId.h"
#include "ZTFuzzInput.h"
#include "ZTOCRBill.h"
#include "ZTOCRBillPosition.h"
#include "ZTOCRBillPositionPart.h"
#include "ZTOrderCalculationResult.h"
#include "ZTPaymentMethod.h"
#include "ZTProgramConfig.h"
#include "ZTXMLLoader.h"

#include <QDomElement>
#include <QFile>
#include <QTemporaryDir>

// The server's order calculation, read as `ztapm result` reads it, against the demo key account
// (the bills look up their articles there), then claimed by a small basket as a client claims
// positions for its order items, and written back as the order declaration.
namespace {

const QTemporaryDir& answers()
{
    static const QTemporaryDir directory = [] {
        qInstallMessageHandler(ZTFuzzInput::quietMessages);
        ZTProgramConfig::instance()->setKeyAccountDirectory(QStringLiteral(ZT_DEMO_DATA_DIR));
        return QTemporaryDir();
    }();
    return directory;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    const QString path = answers().filePath(QStringLiteral("result.xml"));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return 0;
        file.write(reinterpret_cast<const char*>(theData), qint64(theSize));
    }
    const ZTOrderCalculationResult result(ZTAPMStatus(), ZTXMLLoader::loadDocumentElement(QFileInfo(path)));
    (void)result.isValid();
    (void)result.possibleExpressTypes();
    (void)result.coupons();
    for (const ZTPaymentMethod& method : result.availablePayMethods())
        (void)result.availableShipmentMethods(method);

    ZTAPMOrderStatistic item;
    item.add(ZTArticleId(1001), 3);
    item.add(ZTArticleId(7003), 4);
    for (const ZTOCRBill& bill : result.billsInDeclarationOrder()) {
        (void)bill.shippingGroupIds();
        (void)bill.subTotalValue();
        (void)bill.checkIntegrity();
        (void)bill.expressType();
        const ZTOCRBillPosition position = bill.positionByStatistic(item);
        position.reduceFreeQuantity(3);
        for (const ZTOCRBillPosition& other : bill.positions()) {
            const ZTOCRBillPosition claimed = bill.positionByArticleId(other.articleId());
            claimed.reduceFreeQuantity(claimed.freeQuantity());
            for (const ZTOCRBillPositionPart& part : other.orderParts()) {
                QDomDocument document;
                QDomElement element = document.createElement(QStringLiteral("part"));
                part.buildPriceInformation(element, part.freeQuantity());
            }
        }
    }
    (void)result.orderDeclaration();
    result.initForXTCI();
    return 0;
}
