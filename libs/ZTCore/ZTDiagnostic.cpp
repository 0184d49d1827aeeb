#include "ZTDiagnostic.h"

#include "ZTDiagnosticImpl.h"

#include <tuple>

ZTDiagnostic::ZTDiagnostic() : d(new ZTDiagnosticImpl)
{}

ZTDiagnostic::ZTDiagnostic(Severity theSeverity, const QString& theFile, int theLine, int theColumn,
                           const QString& theMessage)
    : d(new ZTDiagnosticImpl)
{
    d->mySeverity = theSeverity;
    d->myFile = theFile;
    d->myLine = theLine;
    d->myColumn = theColumn;
    d->myMessage = theMessage;
}

ZTDiagnostic::ZTDiagnostic(const ZTDiagnostic& theOther) = default;
ZTDiagnostic& ZTDiagnostic::operator=(const ZTDiagnostic& theOther) = default;
ZTDiagnostic::~ZTDiagnostic() = default;

ZTDiagnostic::Severity ZTDiagnostic::severity() const
{
    return d->mySeverity;
}

QString ZTDiagnostic::file() const
{
    return d->myFile;
}

int ZTDiagnostic::line() const
{
    return d->myLine;
}

int ZTDiagnostic::column() const
{
    return d->myColumn;
}

QString ZTDiagnostic::message() const
{
    return d->myMessage;
}

QString ZTDiagnostic::severityName(Severity theSeverity)
{
    switch (theSeverity) {
    case Error:
        return QStringLiteral("error");
    case Warning:
        return QStringLiteral("warning");
    case Note:
        break;
    }
    return QStringLiteral("note");
}

bool ZTDiagnostic::operator==(const ZTDiagnostic& theOther) const
{
    return d == theOther.d || (d->mySeverity == theOther.d->mySeverity && d->myFile == theOther.d->myFile &&
                               d->myLine == theOther.d->myLine && d->myColumn == theOther.d->myColumn &&
                               d->myMessage == theOther.d->myMessage);
}

bool ZTDiagnostic::operator<(const ZTDiagnostic& theOther) const
{
    return std::tie(d->myFile, d->myLine, d->myColumn, d->mySeverity, d->myMessage) <
           std::tie(theOther.d->myFile, theOther.d->myLine, theOther.d->myColumn, theOther.d->mySeverity,
                    theOther.d->myMessage);
}
