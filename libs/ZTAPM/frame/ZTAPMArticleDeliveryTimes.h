#ifndef ZTAPMARTICLEDELIVERYTIMES_H
#define ZTAPMARTICLEDELIVERYTIMES_H

#include "ZTAPMArticleData.h"
#include "ZTAPMDeliveryTimes.h"
#include "ztapm_export.h"

// The delivery times of the delivery times document, by article id. Only articles and add-ons
// have them; an article without times has no entry. An id that occurs twice keeps its later
// element.
class ZTAPM_EXPORT ZTAPMArticleDeliveryTimes : public ZTAPMArticleData<ZTAPMDeliveryTimes>
{
public:
    ZTAPMArticleDeliveryTimes();
    ~ZTAPMArticleDeliveryTimes() override;

    QList<QString> articleNodes() const override;
    ZTKeyAccountDataType dataType() const override;
    bool parseElement(const QDomElement& theElement) const override;
    bool readsElementsOnDemand() const override;

    ZTAPMDeliveryTimes deliveryTimes(const ZTArticleId& theId) const;
};

#endif // ZTAPMARTICLEDELIVERYTIMES_H
