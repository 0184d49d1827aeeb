#include "ZTKeyAccountFileTimeStampManager.h"

#include "ZTResourceFile.h"

#include <QDebug>
#include <QFile>

ZTKeyAccountFileTimeStampManager::ZTKeyAccountFileTimeStampManager() = default;

ZTKeyAccountFileTimeStampManager::~ZTKeyAccountFileTimeStampManager() = default;

QDateTime ZTKeyAccountFileTimeStampManager::pricesTimeStamp() const
{
    return timeStamp(ZTKeyAccountDataType(ZTKeyAccountDataTypePrices));
}

QDateTime ZTKeyAccountFileTimeStampManager::timeStamp(const ZTKeyAccountDataType& theDataType) const
{
    const ZTResourceFile file(theDataType);
    if (!file.isValid())
        return QDateTime();
    const QFileInfo info = file.fileInfo(false, QString());
    if (!info.isFile())
        return QDateTime();
    return info.lastModified().toUTC();
}

bool ZTKeyAccountFileTimeStampManager::setTimeStamp(const ZTKeyAccountDataType& theDataType,
                                                    const QDateTime& theTimeStamp) const
{
    const ZTResourceFile resource(theDataType);
    const QString path = resource.isValid() ? resource.fileInfo(false, QString()).filePath() : QString();
    QFile file(path);
    // Opening for writing would create a missing file, hence the test for existence first.
    if (path.isEmpty() || !theTimeStamp.isValid() || !file.exists() || !file.open(QIODevice::ReadWrite) ||
        !file.setFileTime(theTimeStamp, QFileDevice::FileModificationTime)) {
        qWarning() << "cannot stamp the key-account file of" << theDataType << "with" << theTimeStamp;
        return false;
    }
    return true;
}
