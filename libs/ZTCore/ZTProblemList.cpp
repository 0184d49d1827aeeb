#include "ZTProblemList.h"

void ZTProblemList::append(const QString& theLogText, const QString& theText)
{
    myLogTexts.append(theLogText);
    myTexts.append(theText);
}

bool ZTProblemList::isEmpty() const
{
    return myLogTexts.isEmpty();
}

qsizetype ZTProblemList::size() const
{
    return myLogTexts.size();
}

QString ZTProblemList::logTextAt(qsizetype theIndex) const
{
    return myLogTexts.at(theIndex);
}

QString ZTProblemList::textAt(qsizetype theIndex) const
{
    return myTexts.at(theIndex);
}

QString ZTProblemList::logText() const
{
    return myLogTexts.join(QStringLiteral("; "));
}

QString ZTProblemList::text() const
{
    return myTexts.join(QStringLiteral("; "));
}
