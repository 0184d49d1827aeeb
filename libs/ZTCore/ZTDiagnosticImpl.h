#ifndef ZTDIAGNOSTICIMPL_H
#define ZTDIAGNOSTICIMPL_H

#include "ZTDiagnostic.h"

#include <QSharedData>

class ZTDiagnosticImpl : public QSharedData
{
public:
    ZTDiagnostic::Severity mySeverity = ZTDiagnostic::Note;
    QString myFile;
    int myLine = 0;
    int myColumn = 0;
    QString myMessage;
};

#endif // ZTDIAGNOSTICIMPL_H
