#ifndef ZTFUZZINPUT_H
#define ZTFUZZINPUT_H

#include "ZTProgramConfig.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

// What every fuzz target shares. The readers read files, so each input becomes the named file of
// a key-account directory of the process's own; the engine's warnings are the expected answer to
// bad input and would only slow the run down, so they are dropped.
namespace ZTFuzzInput {

inline void quietMessages(QtMsgType, const QMessageLogContext&, const QString&)
{}

// Once per process: no log, and the key account in a fresh directory.
inline const QTemporaryDir& keyAccount()
{
    static const QTemporaryDir directory = [] {
        qInstallMessageHandler(quietMessages);
        return QTemporaryDir();
    }();
    static const bool configured = [] {
        ZTProgramConfig::instance()->setKeyAccountDirectory(directory.path());
        return true;
    }();
    Q_UNUSED(configured);
    return directory;
}

inline QFileInfo write(const uint8_t* theData, size_t theSize, const QString& theName)
{
    QFile file(keyAccount().filePath(theName));
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(reinterpret_cast<const char*>(theData), qint64(theSize));
    return QFileInfo(file.fileName());
}

// The sections of the products and prices documents.
inline QStringList articleSections()
{
    return {QStringLiteral("articles"),        QStringLiteral("add_ons"),
            QStringLiteral("transfers"),       QStringLiteral("express_fees"),
            QStringLiteral("pay_method_fees"), QStringLiteral("shipment_method_fees")};
}

} // namespace ZTFuzzInput

#endif // ZTFUZZINPUT_H
