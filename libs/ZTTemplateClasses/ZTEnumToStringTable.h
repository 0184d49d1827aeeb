#ifndef ZTENUMTOSTRINGTABLE_H
#define ZTENUMTOSTRINGTABLE_H

#include "ZTTemplateExport.h"

#include <QDebug>
#include <QHash>
#include <QList>
#include <QMutex>
#include <QSet>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <atomic>
#include <type_traits>
#include <typeinfo>

// Where keywords that decode to nothing are told: a host that checks documents sets a receiver,
// which then learns of each such keyword with the mangled name of its enumeration. Without one,
// telling costs one atomic load. One receiver exists per process, as one table per enumeration.
class ZT_TEMPLATE_EXPORT ZTUnknownKeywords
{
public:
    using Receiver = void (*)(const QString& theKeyword, const char* theEnumeration);

    static void setReceiver(Receiver theReceiver) { receiver().store(theReceiver); }
    static void tell(const QString& theKeyword, const char* theEnumeration)
    {
        if (const Receiver current = receiver().load(std::memory_order_relaxed))
            current(theKeyword, theEnumeration);
    }

private:
    static std::atomic<Receiver>& receiver()
    {
        static std::atomic<Receiver> theReceiver{nullptr};
        return theReceiver;
    }
};

// The keyword table of one enumeration: keywords decode without regard to case and surrounding
// blanks, a value encodes as the keyword that was inserted first for it. One table exists per
// enumeration and process; it is filled once and read without a lock afterwards.
template <typename ENUM>
class ZT_TEMPLATE_EXPORT ZTEnumToStringTable
{
    static_assert(std::is_enum_v<ENUM>, "ZTEnumToStringTable needs an enumeration");

public:
    using Int = std::underlying_type_t<ENUM>;

    // Marks a failed lookup inside the table; never returned and never a table value.
    static constexpr Int notFoundMarker = -260570;

    void insert(const QString& theKeyword, ENUM theValue)
    {
        Q_ASSERT(Int(theValue) != notFoundMarker);
        myDecodeTable.insert(theKeyword.toLower(), theValue);
        if (!myEncodeTable.contains(Int(theValue)))
            myEncodeTable.insert(Int(theValue), theKeyword);
    }

    void setDefaultValue(ENUM theValue) { myDefaultValue = theValue; }
    // Whether a keyword that decodes to nothing is told to ZTUnknownKeywords: by default it is.
    // A table whose decoding of a text is one guess among others says no.
    void setTellsUnknownKeywords(bool theTells) { myTellsUnknownKeywords = theTells; }
    ENUM defaultValue() const { return myDefaultValue; }
    void setUnknownKeyword(const QString& theKeyword) { myUnknownKeyword = theKeyword; }
    QString unknownKeyword() const { return myUnknownKeyword; }

    ENUM decode(const QString& text, ENUM fallback) const
    {
        return myDecodeTable.value(text.trimmed().toLower(), fallback);
    }

    ENUM decodeOneElement(const QString& text, bool warn) const
    {
        const ENUM found = decode(text, ENUM(notFoundMarker));
        if (Int(found) != notFoundMarker)
            return found;
        tellUnknown(text);
        if (warn && !text.isEmpty())
            qWarning() << "undecodable:" << text << "(using default in" << typeid(ENUM).name() << ")";
        return myDefaultValue;
    }

    ENUM decodeCSV(const QString& text) const
    {
        Int result = 0;
        for (const QString& part : text.split(QLatin1Char(','))) {
            const ENUM found = decode(part, ENUM(notFoundMarker));
            if (Int(found) == notFoundMarker)
                tellUnknown(part);
            result |= Int(found) != notFoundMarker ? Int(found) : Int(myDefaultValue);
        }
        return ENUM(result);
    }

    QString encode(ENUM theValue) const { return myEncodeTable.value(Int(theValue), myUnknownKeyword); }

    QStringList encodeAsList(ENUM theValue) const
    {
        QStringList result;
        for (ENUM bit : splitToBitsSorted(theValue))
            result.append(encode(bit));
        return result;
    }

    QString encodeCSV(ENUM theValue) const
    {
        const QStringList keywords = encodeAsList(theValue);
        return keywords.isEmpty() ? myUnknownKeyword : keywords.join(QStringLiteral(", "));
    }

    static QList<ENUM> splitToBitsSorted(ENUM theValue)
    {
        QList<ENUM> result;
        if (Int(theValue) < 1)
            return result;
        using UInt = std::make_unsigned_t<Int>;
        for (UInt rest = UInt(theValue); rest != 0; rest &= rest - 1)
            result.append(ENUM(Int(rest & (~rest + 1))));
        return result;
    }

    static QSet<ENUM> splitToBits(ENUM theValue)
    {
        const QList<ENUM> bits = splitToBitsSorted(theValue);
        return QSet<ENUM>(bits.cbegin(), bits.cend());
    }

    // Every keyword (lower case) that decodes to exactly this value, sorted.
    QStringList allPossibleKeywordsOneElement(ENUM theValue) const
    {
        QStringList result;
        for (auto it = myDecodeTable.cbegin(); it != myDecodeTable.cend(); ++it) {
            if (it.value() == theValue)
                result.append(it.key());
        }
        std::sort(result.begin(), result.end());
        return result;
    }

    // For each bit of the value, lowest first, the keywords of that bit, each group sorted.
    QStringList allPossibleKeywords(ENUM theValue) const
    {
        QStringList result;
        for (ENUM bit : splitToBitsSorted(theValue))
            result += allPossibleKeywordsOneElement(bit);
        return result;
    }

    QStringList allKnownKeywords() const { return myDecodeTable.keys(); }

    QList<ENUM> allKnownEnumValues() const
    {
        QList<ENUM> result;
        result.reserve(myEncodeTable.size());
        for (auto it = myEncodeTable.cbegin(); it != myEncodeTable.cend(); ++it)
            result.append(ENUM(it.key()));
        return result;
    }

private:
    void tellUnknown(const QString& theText) const
    {
        if (myTellsUnknownKeywords && !theText.trimmed().isEmpty())
            ZTUnknownKeywords::tell(theText.trimmed(), typeid(ENUM).name());
    }

    QHash<QString, ENUM> myDecodeTable;
    QHash<Int, QString> myEncodeTable;
    QString myUnknownKeyword;
    ENUM myDefaultValue = ENUM(0);
    bool myTellsUnknownKeywords = true;
};

// A typed value of one keyword vocabulary. Used as a plain enumeration or as a bit set; the
// values of the table and the callers decide which. A derived vocabulary class only fills the
// table.
template <typename ENUM>
class ZT_TEMPLATE_EXPORT ZTEnumWrapper
{
public:
    using Table = ZTEnumToStringTable<ENUM>;
    using Int = typename Table::Int;

    ZTEnumWrapper(ENUM theValue = ENUM(0)) : myValue(theValue) {}
    ZTEnumWrapper(const ZTEnumWrapper&) = default;
    ZTEnumWrapper& operator=(const ZTEnumWrapper&) = default;
    virtual ~ZTEnumWrapper() = default;

    virtual bool operator<(const ZTEnumWrapper& other) const { return Int(myValue) < Int(other.myValue); }
    virtual bool operator<=(const ZTEnumWrapper& other) const { return Int(myValue) <= Int(other.myValue); }
    virtual bool operator>(const ZTEnumWrapper& other) const { return Int(myValue) > Int(other.myValue); }
    virtual bool operator==(const ZTEnumWrapper& other) const { return myValue == other.myValue; }
    virtual bool operator==(ENUM other) const { return myValue == other; }
    virtual bool operator!=(const ZTEnumWrapper& other) const { return myValue != other.myValue; }
    virtual bool operator!=(ENUM other) const { return myValue != other; }
    virtual ZTEnumWrapper& operator|=(const ZTEnumWrapper& other) { return *this |= other.myValue; }
    virtual ZTEnumWrapper& operator|=(ENUM other)
    {
        myValue = ENUM(Int(myValue) | Int(other));
        return *this;
    }
    virtual ZTEnumWrapper& operator&=(const ZTEnumWrapper& other) { return *this &= other.myValue; }
    virtual ZTEnumWrapper& operator&=(ENUM other)
    {
        myValue = ENUM(Int(myValue) & Int(other));
        return *this;
    }
    virtual ENUM operator&(const ZTEnumWrapper& other) const
    {
        return ENUM(Int(myValue) & Int(other.myValue));
    }
    virtual ENUM operator|(const ZTEnumWrapper& other) const
    {
        return ENUM(Int(myValue) | Int(other.myValue));
    }
    virtual ZTEnumWrapper& exclude(const ZTEnumWrapper& other) { return exclude(other.myValue); }
    virtual ZTEnumWrapper& exclude(ENUM other)
    {
        myValue = ENUM(Int(myValue) & ~Int(other));
        return *this;
    }
    virtual ZTEnumWrapper& expandTo(const ZTEnumWrapper& other) { return expandTo(other.myValue); }
    virtual ZTEnumWrapper& expandTo(ENUM other) { return *this |= other; }
    virtual ZTEnumWrapper& reduceTo(ENUM other) { return *this &= other; }
    virtual ENUM reducedTo(ENUM other) const { return ENUM(Int(myValue) & Int(other)); }
    virtual bool isValid() const { return Int(myValue) != 0; }
    virtual void fillTable(Table* theTable) const = 0;

    ENUM value() const { return myValue; }
    void setValue(ENUM theValue) { myValue = theValue; }
    ENUM setValue(const QString& text)
    {
        myValue = decodeCSV(text);
        return myValue;
    }
    bool hasValue(ENUM theValue) const { return myValue == theValue; }
    bool isNull() const { return Int(myValue) == 0; }

    bool matches(ENUM other) const { return (Int(myValue) & Int(other)) != 0; }
    bool matches(const ZTEnumWrapper& other) const { return matches(other.myValue); }
    bool containsAll(ENUM other) const { return (Int(myValue) & Int(other)) == Int(other); }
    bool containsAll(const ZTEnumWrapper& other) const { return containsAll(other.myValue); }

    void setBit(ENUM bit, bool on)
    {
        if (on)
            expandTo(bit);
        else
            exclude(bit);
    }
    void toggleBits(const ZTEnumWrapper& bits)
    {
        for (ENUM bit : Table::splitToBitsSorted(bits.myValue))
            setBit(bit, !matches(bit));
    }

    int countBits() const { return int(Table::splitToBitsSorted(myValue).size()); }
    bool hasExactlyOneBit() const { return countBits() == 1; }
    bool isConglumerate() const { return countBits() > 1; }
    QSet<ENUM> splitToBits() const { return Table::splitToBits(myValue); }
    QList<ENUM> splitToBitsSorted() const { return Table::splitToBitsSorted(myValue); }

    QString encode() const { return enumToStringTable()->encode(myValue); }
    QStringList encodeBits() const { return enumToStringTable()->encodeAsList(myValue); }
    QString encodeCSV() const { return enumToStringTable()->encodeCSV(myValue); }
    ENUM decodeOneElement(const QString& text) const
    {
        return enumToStringTable()->decodeOneElement(text, true);
    }
    ENUM decodeCSV(const QString& text) const { return enumToStringTable()->decodeCSV(text); }

    QStringList allKnownKeywords() const { return enumToStringTable()->allKnownKeywords(); }
    QList<ENUM> allKnownEnumValues() const { return enumToStringTable()->allKnownEnumValues(); }
    QStringList allPossibleKeywordsOneElement() const
    {
        return enumToStringTable()->allPossibleKeywordsOneElement(myValue);
    }
    QStringList allPossibleKeywords() const { return enumToStringTable()->allPossibleKeywords(myValue); }

    // The one table of this enumeration, filled by the first object that asks. That object must
    // be of the derived vocabulary class and fully constructed, since fillTable is virtual.
    const Table* enumToStringTable() const
    {
        static std::atomic<Table*> myTable{nullptr};
        static QMutex theMutex;
        if (Table* table = myTable.load(std::memory_order_acquire))
            return table;
        QMutexLocker locker(&theMutex);
        Table* table = myTable.load(std::memory_order_relaxed);
        if (!table) {
            table = new Table;
            fillTable(table);
            myTable.store(table, std::memory_order_release);
        }
        return table;
    }

protected:
    ENUM myValue;
};

template <typename ENUM>
inline size_t qHash(const ZTEnumWrapper<ENUM>& theWrapper, size_t seed = 0) noexcept
{
    return qHash(typename ZTEnumWrapper<ENUM>::Int(theWrapper.value()), seed);
}

template <typename ENUM>
inline QDebug operator<<(QDebug debug, const ZTEnumWrapper<ENUM>& theWrapper)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << theWrapper.encodeCSV() << '(' << qint64(theWrapper.value()) << ')';
    return debug;
}

#endif // ZTENUMTOSTRINGTABLE_H
