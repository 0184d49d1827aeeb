#ifndef ZTCOMMANDLINEPARSERABSTRACT_H
#define ZTCOMMANDLINEPARSERABSTRACT_H

#include "ztcore_export.h"

#include <QCommandLineOption>
#include <QStringList>

#include <functional>

// The program's command line as the initialisers see it: each library adds the options it
// understands, with a handler that the program calls after parsing for every option given.
class ZTCORE_EXPORT ZTCommandLineParserAbstract
{
public:
    // Receives the option's values (empty for a flag).
    using Handler = std::function<void(const QStringList& theValues)>;

    ZTCommandLineParserAbstract();
    virtual ~ZTCommandLineParserAbstract();

    // False if the option cannot be added, for instance because a name is taken.
    virtual bool addOptionHandler(const QCommandLineOption& theOption, const Handler& theHandler) = 0;

private:
    Q_DISABLE_COPY(ZTCommandLineParserAbstract)
};

#endif // ZTCOMMANDLINEPARSERABSTRACT_H
