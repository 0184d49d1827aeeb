#include "ZTDiagnosticCollector.h"

#include "ZTEnumToStringTable.h"
#include "ZTMutexLocker.h"

#include <QCoreApplication>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cxxabi.h>
#include <utility>

namespace {

std::atomic<ZTDiagnosticCollector*> theInstalled{nullptr};

struct CurrentLocation
{
    QString file;
    int line = 0;
    int column = 0;
    // Elements noted in the file, kept on the reading thread until it leaves the file: two
    // threads that read documents at once would otherwise take turns at the collector's lock for
    // every element.
    QList<ZTDiagnosticCollector::ElementPlace> pending;
};

thread_local CurrentLocation theCurrent;

QString elementKey(const QString& theTag, const QString& theId)
{
    return theTag + QLatin1Char('\n') + theId;
}

void handOverPending()
{
    if (theCurrent.pending.isEmpty())
        return;
    QList<ZTDiagnosticCollector::ElementPlace> places = std::exchange(theCurrent.pending, {});
    if (ZTDiagnosticCollector* collector = theInstalled.load())
        collector->noteElements(theCurrent.file, std::move(places));
}

// "18ZTArticleClassEnum" becomes "article class": the vocabulary as a document's author knows it,
// by the same name in every language.
QString vocabularyName(const char* theEnumeration)
{
    int status = -1;
    char* demangled = abi::__cxa_demangle(theEnumeration, nullptr, nullptr, &status);
    QString name = QString::fromLatin1(status == 0 && demangled ? demangled : theEnumeration);
    std::free(demangled);
    if (name.startsWith(QLatin1String("ZT")))
        name.remove(0, 2);
    if (name.endsWith(QLatin1String("Enum")))
        name.chop(4);
    QString words;
    for (const QChar c : std::as_const(name)) {
        if (c.isUpper() && !words.isEmpty())
            words += QLatin1Char(' ');
        words += c.toLower();
    }
    return words;
}

void reportUnknownKeyword(const QString& theKeyword, const char* theEnumeration)
{
    // Only a keyword of a document being read has a place to point at.
    if (theCurrent.file.isEmpty())
        return;
    ZTDiagnosticCollector::report(
        ZTDiagnostic::Warning,
        QCoreApplication::translate("ZTDiagnosticCollector",
                                    "\"%1\" ist kein Schlüsselwort des Vokabulars \"%2\"")
            .arg(theKeyword, vocabularyName(theEnumeration)));
}

} // namespace

ZTDiagnosticCollector::ZTDiagnosticCollector() = default;

ZTDiagnosticCollector::~ZTDiagnosticCollector()
{
    uninstall();
}

void ZTDiagnosticCollector::install()
{
    theInstalled.store(this);
    ZTUnknownKeywords::setReceiver(reportUnknownKeyword);
}

void ZTDiagnosticCollector::uninstall()
{
    ZTDiagnosticCollector* expected = this;
    if (theInstalled.compare_exchange_strong(expected, nullptr))
        ZTUnknownKeywords::setReceiver(nullptr);
}

void ZTDiagnosticCollector::add(const ZTDiagnostic& theDiagnostic)
{
    ZTMutexLocker<QMutex> locker(&myMutex);
    myDiagnostics.append(theDiagnostic);
}

QList<ZTDiagnostic> ZTDiagnosticCollector::diagnostics() const
{
    QList<ZTDiagnostic> result;
    {
        ZTMutexLocker<QMutex> locker(&myMutex);
        result = myDiagnostics;
    }
    std::sort(result.begin(), result.end());
    result.erase(std::unique(result.begin(), result.end()), result.end());
    return result;
}

void ZTDiagnosticCollector::noteElements(const QString& theFile, QList<ElementPlace> thePlaces)
{
    ZTMutexLocker<QMutex> locker(&myMutex);
    ElementsOfFile& elements = myElements[theFile];
    if (elements.places.isEmpty())
        elements.places = std::move(thePlaces);
    else
        elements.places += thePlaces;
    elements.index.clear();
}

bool ZTDiagnosticCollector::elementPosition(const QString& theFile, const QString& theTag,
                                            const QString& theId, int* theLine, int* theColumn) const
{
    ZTMutexLocker<QMutex> locker(&myMutex);
    const auto file = myElements.find(theFile);
    if (file == myElements.end())
        return false;
    // Most checks ask nothing; a check that asks builds the index of the file once.
    QHash<QString, QPair<int, int>>& index = file->index;
    if (index.isEmpty()) {
        for (const ElementPlace& place : std::as_const(file->places)) {
            const QString key = elementKey(place.tag, place.id);
            if (!index.contains(key))
                index.insert(key, qMakePair(place.line, place.column));
        }
    }
    const auto found = index.constFind(elementKey(theTag, theId));
    if (found == index.cend())
        return false;
    *theLine = found->first;
    *theColumn = found->second;
    return true;
}

bool ZTDiagnosticCollector::isCollecting()
{
    return theInstalled.load(std::memory_order_relaxed) != nullptr;
}

void ZTDiagnosticCollector::report(ZTDiagnostic::Severity theSeverity, const QString& theMessage)
{
    reportAt(theSeverity, 0, 0, theMessage);
}

void ZTDiagnosticCollector::reportAt(ZTDiagnostic::Severity theSeverity, int theLine, int theColumn,
                                     const QString& theMessage)
{
    if (ZTDiagnosticCollector* collector = theInstalled.load()) {
        const bool here = theLine < 1;
        collector->add(ZTDiagnostic(theSeverity, theCurrent.file, here ? theCurrent.line : theLine,
                                    here ? theCurrent.column : theColumn, theMessage));
    }
}

void ZTDiagnosticCollector::noteElementHere(const QString& theTag, const QString& theId)
{
    if (!theInstalled.load())
        return;
    theCurrent.pending.append(ElementPlace{theTag, theId, theCurrent.line, theCurrent.column});
    if (theCurrent.file.isEmpty())
        handOverPending();
}

ZTDiagnosticCollector::Location::Location(const QString& theFile, int theLine, int theColumn)
    : myPreviousFile(theCurrent.file), myPreviousLine(theCurrent.line), myPreviousColumn(theCurrent.column)
{
    if (theFile != theCurrent.file)
        handOverPending();
    theCurrent.file = theFile;
    theCurrent.line = theLine;
    theCurrent.column = theColumn;
}

ZTDiagnosticCollector::Location::~Location()
{
    if (myPreviousFile != theCurrent.file)
        handOverPending();
    theCurrent.file = myPreviousFile;
    theCurrent.line = myPreviousLine;
    theCurrent.column = myPreviousColumn;
}

QString ZTDiagnosticCollector::Location::file()
{
    return theCurrent.file;
}

int ZTDiagnosticCollector::Location::line()
{
    return theCurrent.line;
}

int ZTDiagnosticCollector::Location::column()
{
    return theCurrent.column;
}
