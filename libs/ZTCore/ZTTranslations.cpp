#include "ZTTranslations.h"

#include "ZTProgramConfig.h"

#include "ZTMutexLocker.h"
#include <QCoreApplication>
#include <QFileInfo>
#include <QList>
#include <QMutex>
#include <QRegularExpression>
#include <QTranslator>

namespace {

QMutex theInstalledMutex;
QList<QTranslator*> theInstalled;

} // namespace

QString ZTTranslations::languageFromEnvironment()
{
    QString locale;
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        locale = qEnvironmentVariable(variable);
        if (!locale.isEmpty())
            break;
    }
    // "de_DE.UTF-8@euro": the language is what stands before territory, code set and modifier.
    static const QRegularExpression separators(QStringLiteral("[_.@]"));
    const QString language = locale.section(separators, 0, 0).toLower();
    if (language.isEmpty() || language == QLatin1String("c") || language == QLatin1String("posix"))
        return QStringLiteral("en");
    return language;
}

QStringList ZTTranslations::install(const QString& theLanguage, const QStringList& theNames,
                                    const QString& theDirectory)
{
    const QString directory =
        theDirectory.isEmpty() ? ZTProgramConfig::translationsDirectory() : theDirectory;
    ZTMutexLocker<QMutex> locker(&theInstalledMutex);
    for (QTranslator* translator : std::as_const(theInstalled)) {
        QCoreApplication::removeTranslator(translator);
        delete translator;
    }
    theInstalled.clear();

    QStringList installed;
    for (const QString& name : theNames) {
        // The file by its exact name: QTranslator would otherwise fall back to shorter ones.
        const QString file =
            directory + QLatin1Char('/') + name + QLatin1Char('_') + theLanguage + QStringLiteral(".qm");
        if (!QFileInfo::exists(file))
            continue;
        auto* translator = new QTranslator(QCoreApplication::instance());
        if (!translator->load(file) || !QCoreApplication::installTranslator(translator)) {
            delete translator;
            continue;
        }
        theInstalled.append(translator);
        installed.append(name);
    }
    return installed;
}
