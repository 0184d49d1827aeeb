#ifndef ZTKEYACCOUNT_H
#define ZTKEYACCOUNT_H

#include "ZTSingleton.h"
#include "ztcore_export.h"

#include <QObject>
#include <QString>

// The key account the application works with: a directory of data files. The engine listens to
// applicationKeyAccountChanged() and reads its documents again. The object lives in the thread
// that first asked for it; receivers on direct connections run in the thread that switches.
class ZTCORE_EXPORT ZTKeyAccount : public QObject, public ZTSingleton<ZTKeyAccount>
{
    Q_OBJECT

public:
    // The current key-account directory (ZTProgramConfig::keyAccountDirectory()).
    QString directory() const;

    // Makes theDirectory the application's key account and announces it. A directory that does
    // not exist is refused with a warning and nothing changes. Switching to the current
    // directory announces again, since its files may have been replaced.
    bool switchTo(const QString& theDirectory);
    // Announces that the files of the current key account were replaced (after a download).
    void announceDataChanged();

Q_SIGNALS:
    void applicationKeyAccountChanged();

private:
    friend class ZTSingleton<ZTKeyAccount>;
    ZTKeyAccount();
    ~ZTKeyAccount() override;
};

#endif // ZTKEYACCOUNT_H
