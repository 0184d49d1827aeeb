#ifndef ZTDIAGNOSTICCOLLECTOR_H
#define ZTDIAGNOSTICCOLLECTOR_H

#include "ZTDiagnostic.h"
#include "ztcore_export.h"

#include <QHash>
#include <QList>
#include <QMutex>
#include <QPair>
#include <QString>

// Gathers the findings of document readers while a host wants them (a checker for catalogue
// authors), besides the log lines that the readers write anyway. One collector at a time is
// installed for the process; readers on any thread report into it through the static operations,
// which cost one atomic load while none is installed. A finding takes its place from the
// reader's current Location on the calling thread.
//
// The collector also keeps an index of where elements with an id stand, fed by the document
// loader while it is installed, so that checks across documents can point at an element after
// the reading is over.
class ZTCORE_EXPORT ZTDiagnosticCollector
{
public:
    ZTDiagnosticCollector();
    // Uninstalls the collector if it is installed.
    ~ZTDiagnosticCollector();
    Q_DISABLE_COPY(ZTDiagnosticCollector)

    // From now on, readings report here; an installed collector is replaced.
    void install();
    void uninstall();

    void add(const ZTDiagnostic& theDiagnostic);
    // Sorted (see ZTDiagnostic), each finding once: a document read by two readers reports a
    // problem of an element once.
    QList<ZTDiagnostic> diagnostics() const;

    // Where an element with an id stands in its file.
    struct ElementPlace
    {
        QString tag;
        QString id;
        int line;
        int column;
    };
    // Under one lock for a whole reading; a place noted earlier for the same key stays.
    void noteElements(const QString& theFile, QList<ElementPlace> thePlaces);
    // The place of the first element noted with that tag and id in the file; false if none.
    bool elementPosition(const QString& theFile, const QString& theTag, const QString& theId, int* theLine,
                         int* theColumn) const;

    // A collector is installed.
    static bool isCollecting();
    // At the calling thread's current location.
    static void report(ZTDiagnostic::Severity theSeverity, const QString& theMessage);
    // In the current file at the given place; a line below 1 keeps the current place.
    static void reportAt(ZTDiagnostic::Severity theSeverity, int theLine, int theColumn,
                         const QString& theMessage);
    // The element at the current location, for the index. The calling thread keeps it until it
    // leaves the current file (a Location of another file begins or ends).
    static void noteElementHere(const QString& theTag, const QString& theId);

    // Where a reader of the calling thread stands: a file, and the line and column of the element
    // it reads (0 for the file as a whole). Set for a scope; the previous location returns at its end.
    class ZTCORE_EXPORT Location
    {
    public:
        explicit Location(const QString& theFile, int theLine = 0, int theColumn = 0);
        ~Location();
        Q_DISABLE_COPY(Location)

        static QString file();
        static int line();
        static int column();

    private:
        QString myPreviousFile;
        int myPreviousLine;
        int myPreviousColumn;
    };

private:
    mutable QMutex myMutex;
    QList<ZTDiagnostic> myDiagnostics;
    struct ElementsOfFile
    {
        QList<ElementPlace> places;            // in the order noted
        QHash<QString, QPair<int, int>> index; // "tag\nid" to the first place, made at the first question
    };
    // Made by queries too, which are const.
    mutable QHash<QString, ElementsOfFile> myElements;
};

#endif // ZTDIAGNOSTICCOLLECTOR_H
