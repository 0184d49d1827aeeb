#include "ZTAPMConfig.h"

#include "ZTDiscountModel.h"
#include "ZTOrderSource.h"

#include <algorithm>

ZTAPMConfig::ZTAPMConfig() : ZTXMLConfig(ZTResourceFile(ZTResourceFileTypeConfig), true)
{
    // Makes the discount models' keyword table before anything else needs it.
    supportedDiscountTypes();
}

ZTAPMConfig::~ZTAPMConfig() = default;

ZTOrderSource ZTAPMConfig::defaultOrderSource() const
{
    const QString node = QStringLiteral("defaultOrderSource");
    const int inputSource = getIntAttributeOfNode(node, QStringLiteral("inputSource"), -1);
    const int deliveryType = getIntAttributeOfNode(node, QStringLiteral("deliveryType"), -1);
    return ZTOrderSource(ZTInputSource(ZTInputSourceEnum(inputSource)),
                         ZTDeliveryType(ZTDeliveryTypeEnum(deliveryType)));
}

QStringList ZTAPMConfig::supportedDiscountTypes() const
{
    QList<ZTDiscountModelEnum> models = ZTDiscountModel().allKnownEnumValues();
    std::sort(models.begin(), models.end());
    QStringList result;
    for (ZTDiscountModelEnum model : std::as_const(models)) {
        if (model != ZTDiscountModelNone)
            result.append(ZTDiscountModel(model).encode().toUpper());
    }
    return result;
}
