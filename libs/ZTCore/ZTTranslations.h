#ifndef ZTTRANSLATIONS_H
#define ZTTRANSLATIONS_H

#include "ztcore_export.h"

#include <QString>
#include <QStringList>

// The language of the texts a program shows. Each library and program has a catalogue of its own
// (the engine's is "ZTAPM", whose code holds German texts), compiled to NAME_LANGUAGE.qm. A program
// installs the catalogues of its language once a QCoreApplication exists and before the engine
// starts, since the engine translates some texts while it reads its documents.
class ZTCORE_EXPORT ZTTranslations
{
public:
    // The language of messages the environment asks for, looked up as POSIX does: LC_ALL, then
    // LC_MESSAGES, then LANG, the first one set and not empty. Its language part in lower case
    // ("de" for "de_DE.UTF-8"); "en" for "C", "POSIX" (with or without a code set) and for nothing.
    static QString languageFromEnvironment();

    // Removes the catalogues an earlier call installed, then installs into the application each
    // catalogue NAME_theLanguage.qm of theNames that exists in theDirectory (empty: the one of
    // ZTProgramConfig::translationsDirectory()). Returns the names it installed, in the order of
    // theNames. A missing catalogue is no error: the texts of the code then stand as they are,
    // such as the engine's German ones for German.
    static QStringList install(const QString& theLanguage, const QStringList& theNames,
                               const QString& theDirectory = QString());
};

#endif // ZTTRANSLATIONS_H
