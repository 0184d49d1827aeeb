#ifndef ZTRESOURCEFILEIMPL_H
#define ZTRESOURCEFILEIMPL_H

#include "ZTResourceFile.h"

#include <QSharedData>

class ZTResourceFileImpl : public QSharedData
{
public:
    ZTResourceFileImpl(ZTKeyAccountDataTypeEnum theDataType, ZTResourceFileTypeEnum theFileType,
                       const QString& theFileName);

    ZTKeyAccountDataTypeEnum myDataType;
    ZTResourceFileTypeEnum myFileType;
    QString myFileName;
};

#endif // ZTRESOURCEFILEIMPL_H
