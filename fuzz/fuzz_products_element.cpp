#include "ZTAPMArticleDefinition.h"
#include "ZTFuzzInput.h"
#include "ZTXMLLoader.h"

#include <climits>

// Elements of a products document, streamed as the definitions store reads them, each made
// into an article definition that is then asked every question about its geometry and texts.
namespace {

void ask(const ZTAPMArticleDefinition& theDefinition)
{
    if (!theDefinition.isValid())
        return;
    (void)theDefinition.name();
    (void)theDefinition.productType();
    (void)theDefinition.numberOfPages();
    (void)theDefinition.toOrderTxt();
    (void)theDefinition.orderTxtValue(QStringLiteral("TYPE="));
    (void)theDefinition.requiredAddOns(theDefinition.articleClass());
    (void)theDefinition.borderWidthInPixel();
    (void)theDefinition.canHavePanoPages();
    (void)theDefinition.qualityScaleForPixelPerMM(11.8);
    (void)theDefinition.printSizeInPixel();
    (void)theDefinition.printSizeInMM();
    (void)theDefinition.printSizeRatio();
    (void)theDefinition.maxLengthInPixels();
    (void)theDefinition.defaultCropType();
    (void)theDefinition.spaceMagnitude();
    (void)theDefinition.frameWidth();
    for (const ZTCropType& cropType : theDefinition.supportedCropTypes()) {
        (void)theDefinition.printSizeInPixel(cropType);
        (void)theDefinition.length(cropType);
    }
    for (const unsigned pages : {0u, 1u, 26u, 1000u, unsigned(INT_MAX), UINT_MAX}) {
        (void)theDefinition.spineWidth(pages);
        (void)theDefinition.spineMaxFontHeight(pages, QStringLiteral("Titel\nUntertitel"));
    }
    const qint32 pageTypes[] = {0x1, 0x2, 0x8, 0x10, 0x20, 0x40, 0x10000, 0x20000, 0x408, 0x200008, 0x400008};
    for (const qint32 type : pageTypes) {
        for (const int pages : {1, 2, 26, -1, INT_MAX}) {
            const ZTPageSizeKey key(ZTPageType(ZTPageTypeEnum(type)), pages, ZTPageSizeKey::AlignmentLeft);
            (void)theDefinition.usablePrintSize(key);
            (void)theDefinition.bleedMargins(key);
            (void)theDefinition.pageSizeSpec(key);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    const QFileInfo file = ZTFuzzInput::write(theData, theSize, QStringLiteral("products.xml"));
    ZTXMLLoader::forEachSectionElement(
        file, ZTFuzzInput::articleSections(),
        [](qsizetype, const QDomElement& theElement) { ask(ZTAPMArticleDefinition(theElement)); });
    return 0;
}
