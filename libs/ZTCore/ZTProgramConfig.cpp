#include "ZTProgramConfig.h"

#include "ZTMutexLocker.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <cctype>

#include <dlfcn.h>

namespace {

const char programIdVariable[] = "ZTAPM_PROGRAM_ID";
const char dataDirVariable[] = "ZTAPM_DATA_DIR";
const char desKeyVariable[] = "ZTAPM_DES_KEY";

QString absoluteClean(const QString& thePath)
{
    return QDir::cleanPath(QFileInfo(thePath).absoluteFilePath());
}

// The directory of the file this library was loaded from.
QString libraryDirectory()
{
    static const char anchor = 0;
    Dl_info info;
    if (dladdr(&anchor, &info) == 0 || info.dli_fname == nullptr)
        return QString();
    return QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath();
}

// An installed program finds what was installed with it, first beside its own binary, then beside
// this library, then where the build meant to install it; a program run from the build tree
// normally finds none of these and takes theUninstalled, the copy of the source or build tree.
QString installedOrBuildDirectory(const QString& theFromBinDir, const QString& theFromLibDir,
                                  const QString& theInstalled, const QString& theUninstalled)
{
    QStringList installed;
    if (QCoreApplication::instance() != nullptr)
        installed << QCoreApplication::applicationDirPath() + QLatin1Char('/') + theFromBinDir;
    const QString library = libraryDirectory();
    if (!library.isEmpty())
        installed << library + QLatin1Char('/') + theFromLibDir;
    installed << theInstalled;
    for (const QString& directory : std::as_const(installed)) {
        if (QFileInfo(directory).isDir())
            return absoluteClean(directory);
    }
    return absoluteClean(theUninstalled);
}

} // namespace

ZTProgramConfig::ZTProgramConfig() = default;

ZTProgramConfig::~ZTProgramConfig() = default;

int ZTProgramConfig::programID() const
{
    {
        ZTMutexLocker locker(&myMutex);
        if (myProgramID > 0)
            return myProgramID;
    }
    const QString text = qEnvironmentVariable(programIdVariable).trimmed();
    if (text.isEmpty())
        return defaultProgramID;
    bool ok = false;
    const int value = text.toInt(&ok);
    if (!ok || value < 1) {
        qWarning().noquote() << QStringLiteral("%1=%2 is no program id; using %3")
                                    .arg(QLatin1String(programIdVariable), text)
                                    .arg(defaultProgramID);
        return defaultProgramID;
    }
    return value;
}

void ZTProgramConfig::setProgramID(int theProgramID)
{
    ZTMutexLocker locker(&myMutex);
    myProgramID = theProgramID > 0 ? theProgramID : 0;
}

QString ZTProgramConfig::keyAccountDirectory() const
{
    {
        ZTMutexLocker locker(&myMutex);
        if (!myKeyAccountDirectory.isEmpty())
            return myKeyAccountDirectory;
    }
    const QString fromEnvironment = qEnvironmentVariable(dataDirVariable);
    if (!fromEnvironment.isEmpty())
        return absoluteClean(fromEnvironment);
    return defaultKeyAccountDirectory();
}

void ZTProgramConfig::setKeyAccountDirectory(const QString& theDirectory)
{
    const QString directory = theDirectory.isEmpty() ? QString() : absoluteClean(theDirectory);
    ZTMutexLocker locker(&myMutex);
    myKeyAccountDirectory = directory;
}

QString ZTProgramConfig::defaultKeyAccountDirectory()
{
    return installedOrBuildDirectory(
        QStringLiteral(ZT_DEMO_DIR_FROM_BINDIR), QStringLiteral(ZT_DEMO_DIR_FROM_LIBDIR),
        QStringLiteral(ZT_INSTALLED_DEMO_DIR), QStringLiteral(ZT_SOURCE_DEMO_DIR));
}

QString ZTProgramConfig::translationsDirectory()
{
    return installedOrBuildDirectory(
        QStringLiteral(ZT_TRANSLATIONS_DIR_FROM_BINDIR), QStringLiteral(ZT_TRANSLATIONS_DIR_FROM_LIBDIR),
        QStringLiteral(ZT_INSTALLED_TRANSLATIONS_DIR), QStringLiteral(ZT_BUILD_TRANSLATIONS_DIR));
}

QByteArray ZTProgramConfig::desKey() const
{
    {
        ZTMutexLocker locker(&myMutex);
        if (!myDesKey.isEmpty())
            return myDesKey;
    }
    const QByteArray hex = qgetenv(desKeyVariable).trimmed();
    if (hex.isEmpty())
        return defaultDesKey();
    bool valid = hex.size() == 16;
    for (char c : hex)
        valid = valid && std::isxdigit(static_cast<unsigned char>(c));
    if (!valid) {
        qWarning().noquote() << QStringLiteral("%1 must be 16 hex digits; using the built-in key")
                                    .arg(QLatin1String(desKeyVariable));
        return defaultDesKey();
    }
    return QByteArray::fromHex(hex);
}

void ZTProgramConfig::setDesKey(const QByteArray& theKey)
{
    if (!theKey.isEmpty() && theKey.size() != 8) {
        qWarning() << "a DES key has 8 bytes, not" << theKey.size() << "- key unchanged";
        return;
    }
    ZTMutexLocker locker(&myMutex);
    myDesKey = theKey;
}

QByteArray ZTProgramConfig::defaultDesKey()
{
    return QByteArrayLiteral("ZTAPM-01");
}
