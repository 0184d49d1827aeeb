#include "ZTConfiguredArticleVariantRegistryAbstract.h"

ZTConfiguredArticleVariantRegistryAbstract::ZTConfiguredArticleVariantRegistryAbstract() = default;
ZTConfiguredArticleVariantRegistryAbstract::~ZTConfiguredArticleVariantRegistryAbstract() = default;
