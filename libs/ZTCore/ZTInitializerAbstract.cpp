#include "ZTInitializerAbstract.h"

ZTInitializerAbstract::ZTInitializerAbstract() = default;

ZTInitializerAbstract::~ZTInitializerAbstract() = default;

void ZTInitializerAbstract::addCommandLineOptionHandlers(ZTCommandLineParserAbstract* theParser)
{
    Q_UNUSED(theParser)
}
