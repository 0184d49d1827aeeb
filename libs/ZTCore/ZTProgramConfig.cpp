#include "ZTProgramConfig.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QMutexLocker>

#include <cctype>

namespace {

const char programIdVariable[] = "ZTAPM_PROGRAM_ID";
const char dataDirVariable[] = "ZTAPM_DATA_DIR";
const char desKeyVariable[] = "ZTAPM_DES_KEY";

QString absoluteClean(const QString& thePath)
{
    return QDir::cleanPath(QFileInfo(thePath).absoluteFilePath());
}

} // namespace

ZTProgramConfig::ZTProgramConfig() = default;

ZTProgramConfig::~ZTProgramConfig() = default;

int ZTProgramConfig::programID() const
{
    {
        QMutexLocker locker(&myMutex);
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
    QMutexLocker locker(&myMutex);
    myProgramID = theProgramID > 0 ? theProgramID : 0;
}

QString ZTProgramConfig::keyAccountDirectory() const
{
    {
        QMutexLocker locker(&myMutex);
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
    QMutexLocker locker(&myMutex);
    myKeyAccountDirectory = directory;
}

QString ZTProgramConfig::defaultKeyAccountDirectory()
{
    // Both paths come from the build: an installed program finds its own copy, a program run
    // from the build tree the sources'.
    const QString installed = QStringLiteral(ZT_INSTALLED_DEMO_DIR);
    if (QFileInfo(installed).isDir())
        return absoluteClean(installed);
    return absoluteClean(QStringLiteral(ZT_SOURCE_DEMO_DIR));
}

QByteArray ZTProgramConfig::desKey() const
{
    {
        QMutexLocker locker(&myMutex);
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
    QMutexLocker locker(&myMutex);
    myDesKey = theKey;
}

QByteArray ZTProgramConfig::defaultDesKey()
{
    return QByteArrayLiteral("ZTAPM-01");
}
