#include "ZTProductChecker.h"

ZTProductChecker::ZTProductChecker() = default;
ZTProductChecker::~ZTProductChecker() = default;
