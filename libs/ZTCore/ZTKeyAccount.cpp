#include "ZTKeyAccount.h"

#include "ZTProgramConfig.h"

#include <QDebug>
#include <QFileInfo>

ZTKeyAccount::ZTKeyAccount() = default;

ZTKeyAccount::~ZTKeyAccount() = default;

QString ZTKeyAccount::directory() const
{
    return ZTSingleton<ZTProgramConfig>::instance()->keyAccountDirectory();
}

bool ZTKeyAccount::switchTo(const QString& theDirectory)
{
    if (theDirectory.isEmpty() || !QFileInfo(theDirectory).isDir()) {
        qWarning() << "key account not switched: no directory" << theDirectory;
        return false;
    }
    ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(theDirectory);
    qInfo() << "key account is now" << directory();
    Q_EMIT applicationKeyAccountChanged();
    return true;
}

void ZTKeyAccount::announceDataChanged()
{
    Q_EMIT applicationKeyAccountChanged();
}
