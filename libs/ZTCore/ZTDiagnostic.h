#ifndef ZTDIAGNOSTIC_H
#define ZTDIAGNOSTIC_H

#include "ztcore_export.h"

#include <QSharedDataPointer>
#include <QString>

class ZTDiagnosticImpl;

// One finding about a document: where it stands (file, line and column, 1-based; 0 where the
// place is not known) and how bad it is. Findings order by file, line, column, severity (errors
// first) and message, so that a list of them reads the same in every run.
class ZTCORE_EXPORT ZTDiagnostic
{
public:
    // Error: the document or an element is lost. Warning: the engine drops an element. Note: it
    // repairs one and goes on.
    enum Severity { Error = 0, Warning = 1, Note = 2 };

    ZTDiagnostic();
    ZTDiagnostic(Severity theSeverity, const QString& theFile, int theLine, int theColumn,
                 const QString& theMessage);
    ZTDiagnostic(const ZTDiagnostic& theOther);
    ZTDiagnostic& operator=(const ZTDiagnostic& theOther);
    ~ZTDiagnostic();

    Severity severity() const;
    QString file() const;
    int line() const;
    int column() const;
    QString message() const;

    // "error", "warning", "note".
    static QString severityName(Severity theSeverity);

    bool operator==(const ZTDiagnostic& theOther) const;
    bool operator!=(const ZTDiagnostic& theOther) const { return !(*this == theOther); }
    bool operator<(const ZTDiagnostic& theOther) const;

private:
    QSharedDataPointer<ZTDiagnosticImpl> d;
};

#endif // ZTDIAGNOSTIC_H
