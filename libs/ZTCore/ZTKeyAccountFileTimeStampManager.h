#ifndef ZTKEYACCOUNTFILETIMESTAMPMANAGER_H
#define ZTKEYACCOUNTFILETIMESTAMPMANAGER_H

#include "ZTKeyAccountDataType.h"
#include "ZTSingleton.h"
#include "ztcore_export.h"

#include <QDateTime>

// How old the local copy of each key-account document is: the modification time of its file,
// which the downloader sets to the server's change stamp. Nothing is cached, so a replaced file
// is seen at the next question.
class ZTCORE_EXPORT ZTKeyAccountFileTimeStampManager : public ZTSingleton<ZTKeyAccountFileTimeStampManager>
{
public:
    // The stamp of the prices file; invalid when it is missing.
    QDateTime pricesTimeStamp() const;
    // The stamp of the file of one data type, in UTC; invalid when the file is missing or the
    // type names no single file.
    QDateTime timeStamp(const ZTKeyAccountDataType& theDataType) const;
    // Stamps the file of theDataType, so that a downloaded file carries the server's change
    // time. False (with a warning) if the file is missing or cannot be touched.
    bool setTimeStamp(const ZTKeyAccountDataType& theDataType, const QDateTime& theTimeStamp) const;

private:
    friend class ZTSingleton<ZTKeyAccountFileTimeStampManager>;
    ZTKeyAccountFileTimeStampManager();
    ~ZTKeyAccountFileTimeStampManager() override;
};

#endif // ZTKEYACCOUNTFILETIMESTAMPMANAGER_H
