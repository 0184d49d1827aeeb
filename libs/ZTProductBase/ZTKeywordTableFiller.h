#ifndef ZTKEYWORDTABLEFILLER_H
#define ZTKEYWORDTABLEFILLER_H

#include "ZTEnumToStringTable.h"

#include <QString>

// Fills the keyword table of a product vocabulary. Every value is known by a readable keyword and
// by its decimal number, since servers write either; the readable keyword goes in first so that
// it is the one written back. Internal to this library.
template <typename ENUM>
class ZTKeywordTableFiller
{
public:
    explicit ZTKeywordTableFiller(ZTEnumToStringTable<ENUM>* theTable) : myTable(theTable) {}

    ZTKeywordTableFiller& add(const char* theKeyword, ENUM theValue)
    {
        myTable->insert(QLatin1String(theKeyword), theValue);
        myTable->insert(QString::number(typename ZTEnumToStringTable<ENUM>::Int(theValue)), theValue);
        return *this;
    }

    // A further spelling that decodes but is never written.
    ZTKeywordTableFiller& alias(const char* theKeyword, ENUM theValue)
    {
        myTable->insert(QLatin1String(theKeyword), theValue);
        return *this;
    }

private:
    ZTEnumToStringTable<ENUM>* myTable;
};

#endif // ZTKEYWORDTABLEFILLER_H
