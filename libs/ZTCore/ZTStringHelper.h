#ifndef ZTSTRINGHELPER_H
#define ZTSTRINGHELPER_H

#include "ztcore_export.h"

#include <QString>
#include <QStringView>

class ZTCORE_EXPORT ZTStringHelper
{
public:
    // Natural order of product names: runs of the digits 0-9 compare as whole numbers, so
    // "9 x" < "10 x" < "100 x", and the rest compares character by character without regard to
    // case. Names that are equal so ("Foto 7", "foto 007") are ordered by plain case-sensitive
    // comparison. A strict weak order, fit for std::sort; it allocates nothing.
    static bool numberAwareProductNameLessThan(const QString& theLeft, const QString& theRight);
    // <0, 0 or >0 in the first, case-insensitive step of that order.
    static int numberAwareCompare(QStringView theLeft, QStringView theRight);
};

#endif // ZTSTRINGHELPER_H
