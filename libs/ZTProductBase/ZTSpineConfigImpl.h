#ifndef ZTSPINECONFIGIMPL_H
#define ZTSPINECONFIGIMPL_H

#include "ZTDistance.h"

#include <QSharedData>
#include <QSize>

// The body of ZTSpineConfig; every length in pixels.
class ZTSpineConfigImpl : public QSharedData
{
public:
    ZTSpineConfigImpl();
    ZTSpineConfigImpl(const ZTSpineConfigImpl& other);
    virtual ~ZTSpineConfigImpl();

    bool operator==(const ZTSpineConfigImpl& other) const;

    ZTDistance myBaseWidth;
    ZTDistance myPageThickness;
    ZTDistance myMinWidth;
    ZTDistance myTextMargin;
    ZTDistance myMinFontHeight;
    ZTDistance myMaxFontHeight;
    QSize myCoverReduceSize = QSize(0, 0);
};

#endif // ZTSPINECONFIGIMPL_H
