#include "ZTResourceFile.h"

#include "ZTProgramConfig.h"
#include "ZTResourceFileImpl.h"

#include <QDebug>
#include <QDir>

ZTResourceFile::ZTResourceFile()
    : d(new ZTResourceFileImpl(ZTKeyAccountDataTypeNone, ZTResourceFileTypeNone, QString()))
{}

ZTResourceFile::ZTResourceFile(const ZTKeyAccountDataType& theDataType)
    : d(new ZTResourceFileImpl(theDataType.value(), ZTResourceFileTypeNone, fileNameFor(theDataType)))
{}

ZTResourceFile::ZTResourceFile(ZTResourceFileTypeEnum theFileType)
    : d(new ZTResourceFileImpl(ZTKeyAccountDataTypeNone, theFileType, fileNameFor(theFileType)))
{}

ZTResourceFile::ZTResourceFile(const ZTResourceFile& other) = default;

ZTResourceFile::ZTResourceFile(ZTResourceFile&& other) noexcept = default;

ZTResourceFile& ZTResourceFile::operator=(const ZTResourceFile& other) = default;

ZTResourceFile& ZTResourceFile::operator=(ZTResourceFile&& other) noexcept = default;

ZTResourceFile::~ZTResourceFile() = default;

bool ZTResourceFile::isValid() const
{
    return !d->myFileName.isEmpty();
}

QString ZTResourceFile::fileName() const
{
    return d->myFileName;
}

ZTKeyAccountDataType ZTResourceFile::dataType() const
{
    return d->myDataType;
}

ZTResourceFileTypeEnum ZTResourceFile::fileType() const
{
    return d->myFileType;
}

QFileInfo ZTResourceFile::fileInfo(bool theForWriting, const QString& theDirectory) const
{
    if (!isValid()) {
        qWarning() << "no file for" << *this;
        return QFileInfo();
    }
    const QString directory = theDirectory.isEmpty()
                                  ? ZTSingleton<ZTProgramConfig>::instance()->keyAccountDirectory()
                                  : theDirectory;
    if (theForWriting && !QDir().mkpath(directory))
        qWarning() << "cannot create the key-account directory" << directory;
    return QFileInfo(QDir(directory).filePath(d->myFileName));
}

bool ZTResourceFile::operator==(const ZTResourceFile& other) const
{
    return d == other.d || (d->myDataType == other.d->myDataType && d->myFileType == other.d->myFileType);
}

bool ZTResourceFile::operator!=(const ZTResourceFile& other) const
{
    return !(*this == other);
}

QString ZTResourceFile::fileNameFor(const ZTKeyAccountDataType& theDataType)
{
    switch (theDataType.value()) {
    case ZTKeyAccountDataTypeProducts:
        return QStringLiteral("products.xml");
    case ZTKeyAccountDataTypePrices:
        return QStringLiteral("prices.xml");
    case ZTKeyAccountDataTypeDeliveryTimes:
        return QStringLiteral("deliverytimes.xml");
    case ZTKeyAccountDataTypeNone:
        break;
    }
    return QString();
}

QString ZTResourceFile::fileNameFor(ZTResourceFileTypeEnum theFileType)
{
    switch (theFileType) {
    case ZTResourceFileTypeConfig:
        return QStringLiteral("config.xml");
    case ZTResourceFileTypeCurrencies:
        return QStringLiteral("currencies.xml");
    case ZTResourceFileTypeOrderingDetails:
        return QStringLiteral("orderingdetails.xml");
    case ZTResourceFileTypeProducts:
        return QStringLiteral("products.xml");
    case ZTResourceFileTypeNone:
        break;
    }
    return QString();
}

QDebug operator<<(QDebug debug, const ZTResourceFile& theFile)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTResourceFile(data type " << int(theFile.dataType().value()) << ", file type 0x"
                    << Qt::hex << int(theFile.fileType()) << Qt::dec << ", " << theFile.fileName() << ')';
    return debug;
}
