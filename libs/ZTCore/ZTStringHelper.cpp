#include "ZTStringHelper.h"

namespace {

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

// Compares the digit runs starting at i and j and moves both past them. Leading zeros do not
// count, so numbers of any length compare without overflow: the longer significant run is the
// larger, runs of equal length compare digit by digit.
int compareNumbers(QStringView a, qsizetype& i, QStringView b, qsizetype& j)
{
    while (i < a.size() && a[i] == QLatin1Char('0') && i + 1 < a.size() && isDigit(a[i + 1]))
        ++i;
    while (j < b.size() && b[j] == QLatin1Char('0') && j + 1 < b.size() && isDigit(b[j + 1]))
        ++j;
    const qsizetype startA = i;
    const qsizetype startB = j;
    while (i < a.size() && isDigit(a[i]))
        ++i;
    while (j < b.size() && isDigit(b[j]))
        ++j;
    const qsizetype lengthA = i - startA;
    const qsizetype lengthB = j - startB;
    if (lengthA != lengthB)
        return lengthA < lengthB ? -1 : 1;
    for (qsizetype k = 0; k < lengthA; ++k) {
        if (a[startA + k] != b[startB + k])
            return a[startA + k] < b[startB + k] ? -1 : 1;
    }
    return 0;
}

} // namespace

int ZTStringHelper::numberAwareCompare(QStringView theLeft, QStringView theRight)
{
    // The names are sequences of symbols: a maximal digit run is one symbol (a number), any
    // other character is one symbol of its own, case-folded. Numbers compare by value; a number
    // against a character compares as its first digit would, which places all numbers in the
    // same spot among the characters. This is a total preorder on symbols, so the
    // lexicographic order of the sequences is a strict weak order.
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < theLeft.size() && j < theRight.size()) {
        const QChar a = theLeft[i];
        const QChar b = theRight[j];
        if (isDigit(a) && isDigit(b)) {
            if (const int result = compareNumbers(theLeft, i, theRight, j))
                return result;
            continue;
        }
        const char16_t foldedA = a.toCaseFolded().unicode();
        const char16_t foldedB = b.toCaseFolded().unicode();
        if (foldedA != foldedB)
            return foldedA < foldedB ? -1 : 1;
        ++i;
        ++j;
    }
    if (i < theLeft.size())
        return 1;
    if (j < theRight.size())
        return -1;
    return 0;
}

bool ZTStringHelper::numberAwareProductNameLessThan(const QString& theLeft, const QString& theRight)
{
    if (const int result = numberAwareCompare(theLeft, theRight))
        return result < 0;
    return QStringView(theLeft).compare(theRight, Qt::CaseSensitive) < 0;
}
