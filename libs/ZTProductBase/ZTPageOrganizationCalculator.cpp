#include "ZTPageOrganizationCalculator.h"

ZTPageOrganizationCalculator::ZTPageOrganizationCalculator() = default;
ZTPageOrganizationCalculator::~ZTPageOrganizationCalculator() = default;
