#include "ZTRegularExpression.h"

#include <QDebug>

ZTRegularExpression::ZTRegularExpression() = default;

ZTRegularExpression::ZTRegularExpression(const QString& thePattern,
                                         QRegularExpression::PatternOptions theOptions)
    : myExpression(thePattern, theOptions)
{
    if (!myExpression.isValid()) {
        qWarning().noquote() << QStringLiteral("invalid regular expression \"%1\" at offset %2: %3")
                                    .arg(thePattern)
                                    .arg(myExpression.patternErrorOffset())
                                    .arg(myExpression.errorString());
        return;
    }
    myExpression.optimize();
}

ZTRegularExpression::ZTRegularExpression(const ZTRegularExpression& other) = default;

ZTRegularExpression& ZTRegularExpression::operator=(const ZTRegularExpression& other) = default;

ZTRegularExpression::~ZTRegularExpression() = default;

QRegularExpressionMatch ZTRegularExpression::match(const QString& theSubject, qsizetype theOffset,
                                                   QRegularExpression::MatchType theMatchType,
                                                   QRegularExpression::MatchOptions theMatchOptions) const
{
    return myExpression.match(theSubject, theOffset, theMatchType, theMatchOptions);
}

QRegularExpressionMatchIterator ZTRegularExpression::globalMatch(const QString& theSubject,
                                                                 qsizetype theOffset) const
{
    return myExpression.globalMatch(theSubject, theOffset);
}

QString ZTRegularExpression::pattern() const
{
    return myExpression.pattern();
}

QRegularExpression::PatternOptions ZTRegularExpression::patternOptions() const
{
    return myExpression.patternOptions();
}

bool ZTRegularExpression::isValid() const
{
    return myExpression.isValid();
}

QString ZTRegularExpression::errorString() const
{
    return myExpression.errorString();
}
