#include "ZTPageBinding.h"

#include "ZTKeywordTableFiller.h"

#include <QDomElement>

ZTPageBinding::ZTPageBinding(ZTPageBindingEnum theValue) : ZTEnumWrapper<ZTPageBindingEnum>(theValue)
{}

ZTPageBinding::ZTPageBinding(const QString& theText)
{
    setValue(theText);
}

ZTPageBinding::ZTPageBinding(const ZTPageBinding& other) : ZTEnumWrapper<ZTPageBindingEnum>(other)
{}

ZTPageBinding::ZTPageBinding(ZTPageBinding&& other) noexcept : ZTEnumWrapper<ZTPageBindingEnum>(other)
{}

ZTPageBinding& ZTPageBinding::operator=(const ZTPageBinding& other)
{
    myValue = other.myValue;
    return *this;
}

ZTPageBinding& ZTPageBinding::operator=(ZTPageBinding&& other) noexcept
{
    myValue = other.myValue;
    return *this;
}

ZTPageBinding::~ZTPageBinding() = default;

void ZTPageBinding::toTemplates2Format(QDomElement& theElement) const
{
    if (!isNull())
        theElement.setAttribute(QStringLiteral("binding"), encodeCSV());
}

void ZTPageBinding::fillTable(ZTEnumToStringTable<ZTPageBindingEnum>* theTable) const
{
    ZTKeywordTableFiller<ZTPageBindingEnum>(theTable)
        .add("left", ZTPageBindingLeft)
        .add("top", ZTPageBindingTop)
        .add("right", ZTPageBindingRight)
        .add("bottom", ZTPageBindingBottom);
}
