#include "ZTEmptyMeansAllSet.h"
#include "ZTEnumToStringTable.h"

#include <QTest>
#include <QThread>

#include <atomic>
#include <thread>
#include <vector>

namespace {

enum TestBitsEnum : qint32 { BitNone = 0, BitA = 1, BitB = 2, BitC = 4, BitUnknown = 64 };

// A bit set whose table counts how often it is filled, and sleeps while doing so, so that
// concurrent first uses really overlap.
std::atomic<int> theFillCount{0};

class TestBits : public ZTEnumWrapper<TestBitsEnum>
{
public:
    TestBits(TestBitsEnum theValue = BitNone) : ZTEnumWrapper<TestBitsEnum>(theValue) {}
    explicit TestBits(const QString& theText) { setValue(theText); }
    void fillTable(ZTEnumToStringTable<TestBitsEnum>* theTable) const override
    {
        ++theFillCount;
        QThread::msleep(50);
        theTable->insert(QStringLiteral("billingPrivate"), BitA);
        theTable->insert(QStringLiteral("private"), BitA);
        theTable->insert(QStringLiteral("b"), BitB);
        theTable->insert(QStringLiteral("c"), BitC);
        theTable->insert(QStringLiteral("Both"), TestBitsEnum(BitA | BitB));
        theTable->setUnknownKeyword(QStringLiteral("UNKNOWN"));
    }
};

enum TestPlainEnum : qint32 { PlainBad = -2, PlainEmpty = -1, PlainZero = 0, PlainOne = 1 };

class TestPlain : public ZTEnumWrapper<TestPlainEnum>
{
public:
    TestPlain(TestPlainEnum theValue = PlainZero) : ZTEnumWrapper<TestPlainEnum>(theValue) {}
    explicit TestPlain(const QString& theText) { setValue(theText); }
    void fillTable(ZTEnumToStringTable<TestPlainEnum>* theTable) const override
    {
        theTable->insert(QString(), PlainEmpty);
        theTable->insert(QStringLiteral("0"), PlainZero);
        theTable->insert(QStringLiteral("1"), PlainOne);
        theTable->setDefaultValue(PlainBad);
    }
};

enum TestWideEnum : qint64 { WideLow = 1, WideHigh = qint64(1) << 40 };

class TestWide : public ZTEnumWrapper<TestWideEnum>
{
public:
    TestWide(TestWideEnum theValue = TestWideEnum(0)) : ZTEnumWrapper<TestWideEnum>(theValue) {}
    explicit TestWide(const QString& theText) { setValue(theText); }
    void fillTable(ZTEnumToStringTable<TestWideEnum>* theTable) const override
    {
        theTable->insert(QStringLiteral("low"), WideLow);
        theTable->insert(QStringLiteral("high"), WideHigh);
    }
};

} // namespace

class TestEnumToStringTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableIsBuiltOnceUnderConcurrentFirstUse()
    {
        QStringList results(8);
        std::vector<std::thread> threads;
        for (int i = 0; i < 8; ++i)
            threads.emplace_back([&results, i] { results[i] = TestBits(BitB).encode(); });
        for (auto& thread : threads)
            thread.join();
        QCOMPARE(results, QStringList(8, QStringLiteral("b")));
        QCOMPARE(theFillCount.load(), 1);
    }

    void decodeCSV_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("expected");
        QTest::newRow("blanks and case") << " PRIVATE " << int(BitA);
        QTest::newRow("later insert decodes too") << "billingprivate" << int(BitA);
        QTest::newRow("joined") << "b,c" << int(BitB | BitC);
        QTest::newRow("joined with blanks") << "b , c" << int(BitB | BitC);
        QTest::newRow("unknown is default 0") << "nonsense" << 0;
        QTest::newRow("empty text is no keyword") << "" << 0;
        QTest::newRow("trailing comma adds default") << "c," << int(BitC);
        QTest::newRow("case of parts respected only by lower-casing") << "B,C" << int(BitB | BitC);
    }
    void decodeCSV()
    {
        QFETCH(QString, text);
        QFETCH(int, expected);
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QCOMPARE(int(TestBits(text).value()), expected);
    }

    void plainTableWithNegativeDefault()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QCOMPARE(TestPlain(QStringLiteral("x")).value(), PlainBad);
        QCOMPARE(TestPlain(QString()).value(), PlainEmpty);
        QCOMPARE(TestPlain(QStringLiteral(" 1 ")).value(), PlainOne);
        // One bad part turns the whole result into the default's bit pattern.
        QCOMPARE(TestPlain(QStringLiteral("x,0")).value(), PlainBad);
        QCOMPARE(TestPlain(QStringLiteral("x,1")).value(), TestPlainEnum(PlainBad | PlainOne));
    }

    void decodeOneElementWarnsOnce()
    {
        const TestPlain plain;
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral(
                                 "^undecodable: \"nine\" \\(using default in .*TestPlainEnum.* \\)$")));
        QCOMPARE(plain.decodeOneElement(QStringLiteral("nine")), PlainBad);
        // Known keywords and an empty text on a table without the empty keyword stay silent.
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QCOMPARE(plain.decodeOneElement(QStringLiteral("1")), PlainOne);
        QCOMPARE(TestBits().decodeOneElement(QString()), BitNone);
        QCOMPARE(plain.enumToStringTable()->decodeOneElement(QStringLiteral("nine"), false), PlainBad);
    }

    void encode()
    {
        // The first insert wins when encoding and keeps its case; decoding stores lower case.
        QCOMPARE(TestBits(BitA).encode(), QStringLiteral("billingPrivate"));
        QVERIFY(TestBits().allKnownKeywords().contains(QStringLiteral("billingprivate")));
        QVERIFY(!TestBits().allKnownKeywords().contains(QStringLiteral("billingPrivate")));

        // A joined value has its own keyword for encode(), but encodeCSV goes bit by bit.
        QCOMPARE(TestBits(TestBitsEnum(BitA | BitB)).encode(), QStringLiteral("Both"));
        QCOMPARE(TestBits(TestBitsEnum(BitA | BitB)).encodeCSV(), QStringLiteral("billingPrivate, b"));
        QCOMPARE(TestBits(TestBitsEnum(BitB | BitC)).encode(), QStringLiteral("UNKNOWN"));
        QCOMPARE(TestBits(TestBitsEnum(BitA | BitUnknown)).encodeBits(),
                 QStringList({QStringLiteral("billingPrivate"), QStringLiteral("UNKNOWN")}));
        QCOMPARE(TestBits(BitNone).encodeCSV(), QStringLiteral("UNKNOWN"));
        QVERIFY(TestBits(BitNone).encodeBits().isEmpty());
        // What encodeCSV writes, decodeCSV reads back.
        const TestBits joined(TestBitsEnum(BitA | BitC));
        QCOMPARE(TestBits(joined.encodeCSV()), joined);

        QCOMPARE(TestPlain(PlainEmpty).encode(), QString());
        QCOMPARE(TestPlain(PlainBad).encode(), QString());
    }

    void possibleKeywords()
    {
        QCOMPARE(TestBits(BitA).allPossibleKeywordsOneElement(),
                 QStringList({QStringLiteral("billingprivate"), QStringLiteral("private")}));
        QCOMPARE(
            TestBits(TestBitsEnum(BitA | BitC)).allPossibleKeywords(),
            QStringList({QStringLiteral("billingprivate"), QStringLiteral("private"), QStringLiteral("c")}));
        QCOMPARE(TestBits(TestBitsEnum(BitA | BitB)).allPossibleKeywordsOneElement(),
                 QStringList({QStringLiteral("both")}));
    }

    void bitOperations()
    {
        TestBits bits(TestBitsEnum(BitA | BitC));
        QCOMPARE(bits.countBits(), 2);
        QVERIFY(bits.isConglumerate());
        QVERIFY(!bits.hasExactlyOneBit());
        QCOMPARE(bits.splitToBitsSorted(), QList<TestBitsEnum>({BitA, BitC}));
        QVERIFY(bits.matches(BitC));
        QVERIFY(!bits.matches(BitB));
        QVERIFY(bits.containsAll(TestBitsEnum(BitA | BitC)));
        QVERIFY(bits.containsAll(BitNone));
        QVERIFY(!bits.containsAll(TestBitsEnum(BitA | BitB)));

        bits.toggleBits(TestBits(TestBitsEnum(BitA | BitB)));
        QCOMPARE(bits.value(), TestBitsEnum(BitB | BitC));
        QCOMPARE(bits.reducedTo(BitB), BitB);
        QCOMPARE(bits.value(), TestBitsEnum(BitB | BitC));
        bits.exclude(BitC);
        QCOMPARE(bits.value(), BitB);
        bits.setBit(BitA, true);
        QCOMPARE(bits.value(), TestBitsEnum(BitA | BitB));

        // Negative values have no bits.
        const TestPlain negative(PlainBad);
        QCOMPARE(negative.countBits(), 0);
        QVERIFY(!negative.hasExactlyOneBit());
        QVERIFY(!negative.isConglumerate());
        QVERIFY(negative.splitToBits().isEmpty());
        QVERIFY(TestPlain(PlainOne) > negative);

        // 64-bit values keep their high bits through encoding.
        const TestWide wide(TestWideEnum(WideLow | WideHigh));
        QCOMPARE(wide.countBits(), 2);
        QCOMPARE(wide.encodeCSV(), QStringLiteral("low, high"));
        QCOMPARE(TestWide(QStringLiteral("high")).value(), WideHigh);
    }

    void emptyMeansAllSet()
    {
        using Set = ZTEmptyMeansAllSet<TestBits>;
        const Set decomposed = Set::decompose(TestBits(TestBitsEnum(BitA | BitC)));
        QCOMPARE(decomposed, Set({TestBits(BitA), TestBits(BitC)}));
        QVERIFY(Set::decompose(TestBits(BitNone)).isEmpty());
        QCOMPARE(decomposed.compose().value(), TestBitsEnum(BitA | BitC));
        QCOMPARE(Set().compose().value(), BitNone);

        QVERIFY(decomposed.sharesRealKeysWith(Set({TestBits(BitC)})));
        QVERIFY(!decomposed.sharesRealKeysWith(Set({TestBits(BitB)})));
        QVERIFY(!decomposed.sharesRealKeysWith(Set()));
        QVERIFY(!Set().sharesRealKeysWith(decomposed));
    }
};

QTEST_GUILESS_MAIN(TestEnumToStringTable)
#include "tst_ZTEnumToStringTable.moc"
