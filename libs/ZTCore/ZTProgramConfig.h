#ifndef ZTPROGRAMCONFIG_H
#define ZTPROGRAMCONFIG_H

#include "ZTSingleton.h"
#include "ztcore_export.h"

#include <QByteArray>
#include <QMutex>
#include <QString>

// What this installation is and where its data live. Each value is looked up in this order: a
// value set by the program (from its command line, say), then an environment variable, then a
// built-in default. The environment is read at each question, so a changed variable takes effect
// without a restart.
//
// - programID(): ZTAPM_PROGRAM_ID, default 1.
// - keyAccountDirectory(): ZTAPM_DATA_DIR, default the demo key account: the installed
//   share/ztapm/demo, found relative to the program's binary, to this library or at the configured
//   prefix, in this order; the source tree's data/demo when none of them exists.
// - desKey(): ZTAPM_DES_KEY as 16 hex digits, default defaultDesKey().
class ZTCORE_EXPORT ZTProgramConfig : public ZTSingleton<ZTProgramConfig>
{
public:
    static constexpr int defaultProgramID = 1;

    // The variant of the program; a bad environment value warns and gives the default.
    int programID() const;
    // A value below 1 removes what was set, so that the environment counts again.
    void setProgramID(int theProgramID);

    // The absolute directory of the current key account's files.
    QString keyAccountDirectory() const;
    // An empty text removes what was set. Usually called through ZTKeyAccount::switchTo, which
    // also tells the engine.
    void setKeyAccountDirectory(const QString& theDirectory);
    static QString defaultKeyAccountDirectory();
    // The compiled translation catalogues (*.qm): the installed share/ztapm/translations, found
    // like the demo key account, else the build tree's translations directory.
    static QString translationsDirectory();

    // The 8 bytes of the DES key of ZTCrypto.
    QByteArray desKey() const;
    // Exactly 8 bytes, or empty to remove what was set; anything else warns and changes nothing.
    void setDesKey(const QByteArray& theKey);
    // The built-in key, "ZTAPM-01" in ASCII (hex 5a5441504d2d3031).
    static QByteArray defaultDesKey();

private:
    friend class ZTSingleton<ZTProgramConfig>;
    ZTProgramConfig();
    ~ZTProgramConfig() override;

    mutable QMutex myMutex;
    int myProgramID = 0;
    QString myKeyAccountDirectory;
    QByteArray myDesKey;
};

#endif // ZTPROGRAMCONFIG_H
