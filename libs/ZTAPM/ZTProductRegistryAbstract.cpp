#include "ZTProductRegistryAbstract.h"

ZTProductRegistryAbstract::~ZTProductRegistryAbstract() = default;
