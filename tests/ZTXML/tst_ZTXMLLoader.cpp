#include "ZTXMLLoader.h"

#include <QFileInfo>
#include <QTest>

class tst_ZTXMLLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void loadsAWellFormedFile()
    {
        const QFileInfo file(QStringLiteral(ZT_TEST_DATA_DIR "/xml-loader/config.xml"));
        const QDomElement root = ZTXMLLoader::loadDocumentElement(file);
        QCOMPARE(root.tagName(), QStringLiteral("config"));
        QCOMPARE(root.firstChildElement().attribute(QStringLiteral("inputSource")), QStringLiteral("2"));
    }

    // A broken file costs one warning with its position, and the caller sees a null result.
    void brokenFileGivesNullAndOneWarning()
    {
        const QString path = QStringLiteral(ZT_TEST_DATA_DIR "/xml-loader/broken.xml");
        const QRegularExpression message(QStringLiteral("^XML error in %1 at line 5, column \\d+: .+")
                                             .arg(QRegularExpression::escape(path)));
        QTest::ignoreMessage(QtWarningMsg, message);
        QVERIFY(ZTXMLLoader::loadDocument(QFileInfo(path)).isNull());
        QTest::ignoreMessage(QtWarningMsg, message);
        QVERIFY(ZTXMLLoader::loadDocumentElement(QFileInfo(path)).isNull());
    }

    void missingFileGivesNullAndOneWarning()
    {
        const QString path = QStringLiteral(ZT_TEST_DATA_DIR "/xml-loader/nothing-here.xml");
        QTest::ignoreMessage(
            QtWarningMsg, QRegularExpression(QStringLiteral("^cannot load XML file .*nothing-here\\.xml: ")));
        QVERIFY(ZTXMLLoader::loadDocumentElement(QFileInfo(path)).isNull());
        QTest::ignoreMessage(QtWarningMsg, "cannot load XML: no file given");
        QVERIFY(ZTXMLLoader::loadDocument(QFileInfo()).isNull());
    }
};

QTEST_GUILESS_MAIN(tst_ZTXMLLoader)
#include "tst_ZTXMLLoader.moc"
