#ifndef ZTRESOURCEFILE_H
#define ZTRESOURCEFILE_H

#include "ZTKeyAccountDataType.h"
#include "ztcore_export.h"

#include <QFileInfo>
#include <QSharedDataPointer>
#include <QString>

class ZTResourceFileImpl;

// Files of a key account that are not downloaded by data type. The numbers are fixed by the
// engine's callers.
enum ZTResourceFileTypeEnum : qint32 {
    ZTResourceFileTypeNone = 0,
    ZTResourceFileTypeConfig = 1,
    ZTResourceFileTypeCurrencies = 4,
    ZTResourceFileTypeOrderingDetails = 0x40000,
    ZTResourceFileTypeProducts = 0x200000,
};

// One data file of the current key account, named by its data type or its file type. All files
// lie side by side in the key-account directory (ZTProgramConfig::keyAccountDirectory()):
//
//   data type 2, file type 0x200000   products.xml
//   data type 4                       prices.xml
//   data type 8                       deliverytimes.xml
//   file type 0x40000                 orderingdetails.xml
//   file type 4                       currencies.xml
//   file type 1                       config.xml
class ZTCORE_EXPORT ZTResourceFile
{
public:
    ZTResourceFile();
    // Exactly one data type; anything else names no file.
    ZTResourceFile(const ZTKeyAccountDataType& theDataType);
    ZTResourceFile(ZTResourceFileTypeEnum theFileType);
    ZTResourceFile(const ZTResourceFile& other);
    ZTResourceFile(ZTResourceFile&& other) noexcept;
    ZTResourceFile& operator=(const ZTResourceFile& other);
    ZTResourceFile& operator=(ZTResourceFile&& other) noexcept;
    ~ZTResourceFile();

    bool isValid() const;
    // The bare file name, empty for an unknown type.
    QString fileName() const;
    ZTKeyAccountDataType dataType() const;
    ZTResourceFileTypeEnum fileType() const;

    // The file in theDirectory, or in the current key-account directory when theDirectory is
    // empty; the file need not exist. With theForWriting the directory is created if missing, so
    // that a downloaded file can be stored at once. An unknown type warns and gives an empty
    // QFileInfo.
    QFileInfo fileInfo(bool theForWriting = false, const QString& theDirectory = QString()) const;

    bool operator==(const ZTResourceFile& other) const;
    bool operator!=(const ZTResourceFile& other) const;

    static QString fileNameFor(const ZTKeyAccountDataType& theDataType);
    static QString fileNameFor(ZTResourceFileTypeEnum theFileType);

private:
    QSharedDataPointer<ZTResourceFileImpl> d;
};

ZTCORE_EXPORT QDebug operator<<(QDebug debug, const ZTResourceFile& theFile);

#endif // ZTRESOURCEFILE_H
