#include "ZTInputSource.h"

ZTInputSource::ZTInputSource(ZTInputSourceEnum theValue) : ZTEnumWrapper<ZTInputSourceEnum>(theValue)
{}

ZTInputSource::ZTInputSource(const QString& theText)
{
    setValue(theText);
}

void ZTInputSource::fillTable(ZTEnumToStringTable<ZTInputSourceEnum>* theTable) const
{
    theTable->insert(QStringLiteral("0"), ZTInputSourceOnline);
    theTable->insert(QStringLiteral("1"), ZTInputSourceCD);
    theTable->setDefaultValue(ZTInputSourceInvalid);
}
