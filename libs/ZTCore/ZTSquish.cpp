#include "ZTSquish.h"

#include <QDebug>
#include <QObject>

void ZTSquish::setObjectName(QObject* theObject, const QString& theName)
{
    if (!theObject) {
        qWarning() << "cannot name a null object" << theName;
        return;
    }
    QString name = theName.simplified();
    name.replace(QLatin1Char(' '), QLatin1Char('_'));
    theObject->setObjectName(name);
}
