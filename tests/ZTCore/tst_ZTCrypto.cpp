#include "ZTCrypto.h"
#include "ZTProgramConfig.h"

#include <QTest>

// The vectors come from the openssl command line, e.g.
//   printf %s 'client-4711' |
//   openssl enc -des-ecb -provider legacy -provider default -K 5a5441504d2d3031 -nosalt -base64
// and, for a block without valid padding, the same over 'abcdefgh' with -nopad.
class tst_ZTCrypto : public QObject
{
    Q_OBJECT

private:
    const QByteArray myKey = QByteArray::fromHex("0123456789abcdef");

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void decryptsOpensslOutput_data()
    {
        QTest::addColumn<QString>("cipherText");
        QTest::addColumn<QString>("plainText");
        QTest::newRow("one block and padding") << "j7H2S7sWiBAIb5oddMlNTg=="
                                               << "abcdefgh";
        QTest::newRow("utf-8") << "X1X0KMf/n49WmLEC4se4m+do0gPCVJvua93OQRO1Xm4="
                               << QString::fromUtf8("Fotobuch für Oma – 12 × 3");
        QTest::newRow("line breaks as openssl writes them")
            << "X1X0KMf/n49WmLEC4se4m+do0gPC\nVJvua93OQRO1Xm4=\n"
            << QString::fromUtf8("Fotobuch für Oma – 12 × 3");
        QTest::newRow("empty stays empty") << ""
                                           << "";
    }
    void decryptsOpensslOutput()
    {
        QFETCH(QString, cipherText);
        QFETCH(QString, plainText);
        const ZTCrypto crypto(myKey);
        QCOMPARE(crypto.decryptDES(cipherText), plainText);
        if (!plainText.isEmpty())
            QCOMPARE(crypto.decryptDES(crypto.encryptDES(plainText)), plainText);
    }

    void usesTheConfiguredKey()
    {
        QCOMPARE(ZTProgramConfig::instance()->desKey(), QByteArray("ZTAPM-01"));
        QCOMPARE(ZTCrypto().decryptDES(QStringLiteral("ueBxuP6DDl2OcL/oKbBJPg==")),
                 QStringLiteral("client-4711"));
        qputenv("ZTAPM_DES_KEY", "0123456789ABCDEF");
        QCOMPARE(ZTCrypto().encryptDES(QStringLiteral("abcdefgh")),
                 QStringLiteral("j7H2S7sWiBAIb5oddMlNTg=="));
        qputenv("ZTAPM_DES_KEY", "0123");
        QTest::ignoreMessage(QtWarningMsg, "ZTAPM_DES_KEY must be 16 hex digits; using the built-in key");
        QCOMPARE(ZTProgramConfig::instance()->desKey(), ZTProgramConfig::defaultDesKey());
        qunsetenv("ZTAPM_DES_KEY");
    }

    void badInputGivesEmptyText_data()
    {
        QTest::addColumn<QString>("cipherText");
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QString>("warning");
        const QByteArray key = QByteArray::fromHex("0123456789abcdef");
        const QString notBase64 = QStringLiteral("cannot decrypt: not the base64 of whole DES blocks");
        const QString damaged = QStringLiteral("cannot decrypt: wrong key or damaged text");
        QTest::newRow("not base64") << "client-4711" << key << notBase64;
        QTest::newRow("not whole blocks") << "j7H2S7sWiA==" << key << notBase64;
        QTest::newRow("no valid padding") << "j7H2S7sWiBA=" << key << damaged;
        QTest::newRow("wrong key") << "X1X0KMf/n49WmLEC4se4m+do0gPCVJvua93OQRO1Xm4=" << QByteArray("ZTAPM-01")
                                   << damaged;
    }
    void badInputGivesEmptyText()
    {
        QFETCH(QString, cipherText);
        QFETCH(QByteArray, key);
        QFETCH(QString, warning);
        QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        QCOMPARE(ZTCrypto(key).decryptDES(cipherText), QString());
    }
};

QTEST_GUILESS_MAIN(tst_ZTCrypto)
#include "tst_ZTCrypto.moc"
