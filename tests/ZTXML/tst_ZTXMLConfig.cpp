#include "ZTKeyAccount.h"
#include "ZTProgramConfig.h"
#include "ZTXMLConfig.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class tst_ZTXMLConfig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void readsAttributesOfNodes()
    {
        ZTProgramConfig::instance()->setKeyAccountDirectory(QStringLiteral(ZT_TEST_DATA_DIR "/xml-loader"));
        const ZTXMLConfig config(ZTResourceFile(ZTResourceFileTypeConfig), false);
        QCOMPARE(config.documentElement().tagName(), QStringLiteral("config"));
        QCOMPARE(config.getIntAttributeOfNode(QStringLiteral("defaultOrderSource"),
                                              QStringLiteral("inputSource"), -1),
                 2);
        QCOMPARE(config.getIntAttributeOfNode(QStringLiteral("limits"), QStringLiteral("max"), -1), 12);
        QCOMPARE(config.getIntAttributeOfNode(QStringLiteral("limits"), QStringLiteral("bad"), -1), -1);
        QCOMPARE(config.getIntAttributeOfNode(QStringLiteral("limits"), QStringLiteral("missing"), -1), -1);
        QCOMPARE(config.getIntAttributeOfNode(QStringLiteral("nowhere"), QStringLiteral("max"), -1), -1);
        QCOMPARE(config.getAttributeOfNode(QStringLiteral("limits"), QStringLiteral("bad")),
                 QStringLiteral("12x"));
    }

    // With the flag the document follows the key account; a missing file costs one warning and
    // leaves every question at its default.
    void followsKeyAccountSwitches()
    {
        QTemporaryDir other;
        QFile file(other.filePath(QStringLiteral("config.xml")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<config><defaultOrderSource inputSource=\"0\"/></config>");
        file.close();

        ZTProgramConfig::instance()->setKeyAccountDirectory(QStringLiteral(ZT_TEST_DATA_DIR "/xml-loader"));
        ZTXMLConfig following(ZTResourceFile(ZTResourceFileTypeConfig), true);
        const ZTXMLConfig staying(ZTResourceFile(ZTResourceFileTypeConfig), false);
        QSignalSpy reloaded(&following, &ZTXMLConfig::reloaded);

        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(QStringLiteral("^key account is now")));
        QVERIFY(ZTKeyAccount::instance()->switchTo(other.path()));
        QCOMPARE(reloaded.count(), 1);
        const QString node = QStringLiteral("defaultOrderSource");
        const QString attribute = QStringLiteral("inputSource");
        QCOMPARE(following.getIntAttributeOfNode(node, attribute, -1), 0);
        QCOMPARE(staying.getIntAttributeOfNode(node, attribute, -1), 2);

        QVERIFY(QFile::remove(file.fileName()));
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("^cannot load XML file .*config\\.xml")));
        following.reload();
        QVERIFY(following.documentElement().isNull());
        QCOMPARE(following.getIntAttributeOfNode(node, attribute, -1), -1);
    }
};

QTEST_GUILESS_MAIN(tst_ZTXMLConfig)
#include "tst_ZTXMLConfig.moc"
