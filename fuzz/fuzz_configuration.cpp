#include "ZTFuzzInput.h"
#include "ZTOrderSource.h"
#include "ZTResourceFile.h"
#include "ZTXMLConfig.h"

#include <QDomElement>

// The configuration file of a key account, read whole as the engine's configuration reads it,
// with the default order source that a session starts with.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    ZTFuzzInput::write(theData, theSize, QStringLiteral("config.xml"));
    const ZTXMLConfig config(ZTResourceFile(ZTResourceFileTypeConfig), false);
    (void)config.getIntAttributeOfNode(QStringLiteral("defaultOrderSource"), QStringLiteral("inputSource"),
                                       -1);
    (void)config.getAttributeOfNode(QStringLiteral("defaultOrderSource"), QStringLiteral("deliveryType"),
                                    QString());
    const ZTOrderSource source(
        config.documentElement().firstChildElement(QStringLiteral("defaultOrderSource")));
    (void)source.isValid();
    return 0;
}
