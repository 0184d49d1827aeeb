#ifndef ZTREGULAREXPRESSION_H
#define ZTREGULAREXPRESSION_H

#include "ztcore_export.h"

#include <QRegularExpression>

// A QRegularExpression that is compiled when it is made, so that one object can be shared by
// threads (file-level and function-local constants) and a bad pattern is reported where it is
// written, not at its first use. It answers exactly as QRegularExpression does.
class ZTCORE_EXPORT ZTRegularExpression
{
public:
    ZTRegularExpression();
    // An invalid pattern warns once, here; it then matches nothing.
    explicit ZTRegularExpression(const QString& thePattern, QRegularExpression::PatternOptions theOptions =
                                                                QRegularExpression::NoPatternOption);
    ZTRegularExpression(const ZTRegularExpression& other);
    ZTRegularExpression& operator=(const ZTRegularExpression& other);
    ~ZTRegularExpression();

    QRegularExpressionMatch
    match(const QString& theSubject, qsizetype theOffset = 0,
          QRegularExpression::MatchType theMatchType = QRegularExpression::NormalMatch,
          QRegularExpression::MatchOptions theMatchOptions = QRegularExpression::NoMatchOption) const;
    QRegularExpressionMatchIterator globalMatch(const QString& theSubject, qsizetype theOffset = 0) const;

    QString pattern() const;
    QRegularExpression::PatternOptions patternOptions() const;
    bool isValid() const;
    QString errorString() const;
    const QRegularExpression& regularExpression() const { return myExpression; }

private:
    QRegularExpression myExpression;
};

#endif // ZTREGULAREXPRESSION_H
