#include "ZTAPMDeliveryTime.h"
#include "ZTAPMDeliveryTimes.h"
#include "ZTDeliveryType.h"
#include "ZTExpressType.h"
#include "ZTFuzzInput.h"
#include "ZTXMLLoader.h"

// Elements of a delivery times document, streamed as the delivery times store reads them, each
// made into its delivery times and asked whether and how fast it can come.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    const QFileInfo file = ZTFuzzInput::write(theData, theSize, QStringLiteral("deliverytimes.xml"));
    ZTXMLLoader::forEachSectionElement(
        file, {QStringLiteral("articles"), QStringLiteral("add_ons")},
        [](qsizetype, const QDomElement& theElement) {
            const ZTAPMDeliveryTimes times(theElement.firstChildElement(QStringLiteral("delivery_times")));
            (void)times.isExpressable();
            for (const ZTAPMDeliveryTime& time : times) {
                (void)time.latencyInDays();
                (void)time.hasValidDayRange();
                (void)time.varies();
                (void)times.isExpressable(time.deliveryType(), time.expressType());
            }
        });
    return 0;
}
