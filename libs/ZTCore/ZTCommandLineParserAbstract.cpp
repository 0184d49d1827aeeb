#include "ZTCommandLineParserAbstract.h"

ZTCommandLineParserAbstract::ZTCommandLineParserAbstract() = default;

ZTCommandLineParserAbstract::~ZTCommandLineParserAbstract() = default;
