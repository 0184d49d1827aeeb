#ifndef ZTCONFIGITEM_H
#define ZTCONFIGITEM_H

#include <QString>

// One settings entry: its key (relative to the settings group that is open when it is loaded or
// saved), its current value and its default. The modified flag tells whether the value was
// changed since it was last loaded.
template <typename T>
class ZTConfigItem
{
public:
    ZTConfigItem() = default;
    ZTConfigItem(const QString& theKey, const T& theValue, const T& theDefault)
        : myKey(theKey), myValue(theValue), myDefault(theDefault)
    {}
    explicit ZTConfigItem(const QString& theKey, const T& theDefault = T())
        : ZTConfigItem(theKey, theDefault, theDefault)
    {}

    QString key() const { return myKey; }
    T value() const { return myValue; }
    T defaultValue() const { return myDefault; }
    bool isModified() const { return myModified; }
    bool isDefault() const { return myValue == myDefault; }

    void setValue(const T& theValue)
    {
        if (myValue == theValue)
            return;
        myValue = theValue;
        myModified = true;
    }
    void setDefaultValue(const T& theDefault) { myDefault = theDefault; }
    void resetToDefault() { setValue(myDefault); }

    // The value as read from the store; clears the modified flag.
    void setLoadedValue(const T& theValue)
    {
        myValue = theValue;
        myModified = false;
    }

    bool operator==(const ZTConfigItem& other) const
    {
        return myKey == other.myKey && myValue == other.myValue && myDefault == other.myDefault;
    }

private:
    QString myKey;
    T myValue = T();
    T myDefault = T();
    bool myModified = false;
};

#endif // ZTCONFIGITEM_H
