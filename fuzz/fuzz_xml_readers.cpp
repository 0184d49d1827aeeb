#include "ZTFuzzInput.h"
#include "ZTXMLLoader.h"

#include <cstdlib>

// The two readers of a document, whole and streamed, must accept and refuse the same documents;
// a document that one takes and the other refuses is a finding.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    const QFileInfo file = ZTFuzzInput::write(theData, theSize, QStringLiteral("products.xml"));
    const bool whole = !ZTXMLLoader::loadDocument(file).isNull();
    const bool streamed = ZTXMLLoader::forEachSectionElement(file, ZTFuzzInput::articleSections(),
                                                             [](qsizetype, const QDomElement&) {});
    if (whole != streamed)
        std::abort();
    return 0;
}
