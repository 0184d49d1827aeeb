#ifndef ZTPRODUCTADDONCONFIG_H
#define ZTPRODUCTADDONCONFIG_H

#include "ztapm_export.h"

#include <QRegularExpression>

class QDomElement;
class ZTPriceClass;

// A pattern over price classes that the host reads from its own configuration, to say which
// add-ons belong to a group of options and whether the group is chosen by default.
class ZTAPM_EXPORT ZTProductAddOnConfig
{
public:
    ZTProductAddOnConfig();
    // The element's text is the pattern; the attribute "default" the group default.
    explicit ZTProductAddOnConfig(const QDomElement& theElement);
    ZTProductAddOnConfig(const ZTProductAddOnConfig& other);
    ZTProductAddOnConfig& operator=(const ZTProductAddOnConfig& other);
    ~ZTProductAddOnConfig();

    bool isValid() const;
    bool isGroupDefault() const;
    // The pattern is found anywhere in the class's keyword.
    bool matches(const ZTPriceClass& thePriceClass) const;

private:
    QRegularExpression myExpression;
    bool myGroupDefault = false;
};

#endif // ZTPRODUCTADDONCONFIG_H
