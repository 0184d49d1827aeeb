#ifndef ZTPROBLEMLIST_H
#define ZTPROBLEMLIST_H

#include "ztcore_export.h"

#include <QString>
#include <QStringList>

// The problems a reader finds in one element, told together in one log line and one finding:
// each problem in the words of the log, which is never translated, and in the language of the
// finding, which a person reads. Both renderings join the problems with "; ".
class ZTCORE_EXPORT ZTProblemList
{
public:
    void append(const QString& theLogText, const QString& theText);
    bool isEmpty() const;
    qsizetype size() const;
    QString logTextAt(qsizetype theIndex) const;
    QString textAt(qsizetype theIndex) const;

    QString logText() const;
    QString text() const;

private:
    QStringList myLogTexts;
    QStringList myTexts;
};

#endif // ZTPROBLEMLIST_H
