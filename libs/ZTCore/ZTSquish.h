#ifndef ZTSQUISH_H
#define ZTSQUISH_H

#include "ztcore_export.h"

#include <QString>

class QObject;

// Names widgets for the user-interface test robot, which finds them by object name.
class ZTCORE_EXPORT ZTSquish
{
public:
    // Sets theName as the object name. Blanks become underscores, so that test scripts can use
    // the name as an identifier; a null object warns and is ignored.
    static void setObjectName(QObject* theObject, const QString& theName);
};

#endif // ZTSQUISH_H
