#include "ZTResourceFileImpl.h"

ZTResourceFileImpl::ZTResourceFileImpl(ZTKeyAccountDataTypeEnum theDataType,
                                       ZTResourceFileTypeEnum theFileType, const QString& theFileName)
    : myDataType(theDataType), myFileType(theFileType), myFileName(theFileName)
{}
