#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

// "ztapm ladder" as a script runs it: the SVG holds one solid path per order source drawn and one
// dashed path per source with offers, nothing else as a path, and is the same on every run.
class TestZtapmLadder : public QObject
{
    Q_OBJECT

    struct Run
    {
        int exitCode = -1;
        QByteArray out;
        QByteArray err;
    };

    static Run ztapm(const QStringList& theArguments, bool theWithoutPlatform = false)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        if (theWithoutPlatform)
            environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(ZTAPM_PROGRAM),
                      QStringList{QStringLiteral("--data"), QStringLiteral(ZT_DEMO_DATA_DIR)} + theArguments);
        Run run;
        if (!process.waitForFinished(60000))
            return run;
        run.exitCode = process.exitCode();
        run.out = process.readAllStandardOutput();
        run.err = process.readAllStandardError();
        return run;
    }

    // Every path of the SVG as "SOURCE" or "SOURCE dashed", by the stroke of its groups; an
    // unknown stroke stays as it is. Empty, with theError set, for a document that is not
    // well-formed.
    static QStringList pathLines(const QByteArray& theSvg, QString* theError)
    {
        const QHash<QString, QString> sources{{QStringLiteral("#1f77b4"), QStringLiteral("FC")},
                                              {QStringLiteral("#d62728"), QStringLiteral("FM")},
                                              {QStringLiteral("#2ca02c"), QStringLiteral("CC")}};
        QStringList lines;
        QList<QPair<QString, bool>> groups{{QString(), false}};
        QXmlStreamReader reader(theSvg);
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isEndElement() && reader.name() == QLatin1String("g"))
                groups.removeLast();
            if (!reader.isStartElement())
                continue;
            const QXmlStreamAttributes attributes = reader.attributes();
            if (reader.name() == QLatin1String("g")) {
                QPair<QString, bool> group = groups.last();
                if (attributes.hasAttribute(QStringLiteral("stroke")))
                    group = {attributes.value(QStringLiteral("stroke")).toString(),
                             attributes.hasAttribute(QStringLiteral("stroke-dasharray"))};
                groups.append(group);
            } else if (reader.name() == QLatin1String("path")) {
                lines.append(sources.value(groups.last().first, groups.last().first) +
                             (groups.last().second ? QStringLiteral(" dashed") : QString()));
            }
        }
        if (reader.hasError()) {
            *theError = reader.errorString();
            return {};
        }
        lines.sort();
        return lines;
    }

private Q_SLOTS:
    void svg_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("scale");
        QTest::addColumn<int>("quantityEnd");

        QTest::newRow("offers in mail order") << QStringList{QStringLiteral("1001")}
                                              << QStringList{"CC", "FC", "FM", "FM dashed"} << "linear" << 15;
        QTest::newRow("no offer, limits over two decades")
            << QStringList{QStringLiteral("3001")} << QStringList{"CC", "FC", "FM"} << "logarithmic" << 1000;
        QTest::newRow("one source") << QStringList{"1001", "--source", "online-mail"}
                                    << QStringList{"FM", "FM dashed"} << "linear" << 15;
        QTest::newRow("one source without offer")
            << QStringList{"1001", "--source", "CC"} << QStringList{"CC"} << "linear" << 2;
        // The "z" rows start at goods' sums of 5000 and 10000: no quantities to draw.
        QTest::newRow("goods' sum bounds left out")
            << QStringList{QStringLiteral("9003")} << QStringList{"FM"} << "linear" << 2;
        QTest::newRow("source without rows")
            << QStringList{"9003", "--source", "FC"} << QStringList() << "linear" << 2;
    }
    void svg()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QStringList, lines);
        QFETCH(QString, scale);
        QFETCH(int, quantityEnd);
        QTemporaryDir directory;
        const QString first = directory.filePath(QStringLiteral("first.svg"));
        const QString second = directory.filePath(QStringLiteral("second.svg"));

        const Run run = ztapm(
            QStringList{QStringLiteral("ladder"), QStringLiteral("--json"), QStringLiteral("--svg"), first} +
            arguments);
        QCOMPARE(run.exitCode, 0);
        const QJsonObject report = QJsonDocument::fromJson(run.out).object();
        QCOMPARE(report[QStringLiteral("quantityScale")].toString(), scale);
        QCOMPARE(report[QStringLiteral("quantityEnd")].toInt(), quantityEnd);

        QFile file(first);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray svg = file.readAll();
        QString error;
        QCOMPARE(pathLines(svg, &error), lines);
        QVERIFY2(error.isEmpty(), qPrintable(error));

        // Same bytes on every run: no date, no hash order.
        QCOMPARE(ztapm(QStringList{QStringLiteral("ladder"), QStringLiteral("--svg"), second} + arguments)
                     .exitCode,
                 0);
        QFile again(second);
        QVERIFY(again.open(QIODevice::ReadOnly));
        QVERIFY(again.readAll() == svg);
    }

    // Without QT_QPA_PLATFORM the program picks the offscreen platform itself.
    void pngWithoutPlatform()
    {
        QTemporaryDir directory;
        const QString path = directory.filePath(QStringLiteral("ladder.png"));
        const Run run =
            ztapm({QStringLiteral("ladder"), QStringLiteral("1001"), QStringLiteral("--png"), path}, true);
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.out.contains(" written to "), run.out.constData());
        const QImage image(path);
        QCOMPARE(image.size(), QSize(800, 500));
        QCOMPARE(QColor(image.pixel(0, 0)), QColor(Qt::white));
    }

    void errors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");

        QTest::newRow("no output") << QStringList{"ladder", "1001"} << 2 << "usage: ladder ID";
        QTest::newRow("two outputs") << QStringList{"ladder", "1001", "--svg", "a.svg", "--png", "a.png"} << 2
                                     << "usage: ladder ID";
        QTest::newRow("bad source") << QStringList{"ladder", "1001", "--svg", "a.svg", "--source", "cd-mail"}
                                    << 2 << "unknown order source 'cd-mail'";
        QTest::newRow("unknown article")
            << QStringList{"ladder", "4711", "--svg", "a.svg"} << 3 << "article 4711 does not exist";
        QTest::newRow("unwritable file") << QStringList{"ladder", "1001", "--svg", "/nonexistent/a.svg"} << 2
                                         << "cannot write '/nonexistent/a.svg'";
        QTest::newRow("option of another command")
            << QStringList{"article", "1001", "--svg", "a.svg"} << 2 << "go with the command ladder";
    }
    void errors()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, message);
        const Run run = ztapm(arguments);
        QCOMPARE(run.exitCode, exitCode);
        QVERIFY2(QString::fromUtf8(run.err).contains(message), run.err.constData());
        QVERIFY(run.out.isEmpty());
        QVERIFY(!QFile::exists(QStringLiteral("a.svg")) && !QFile::exists(QStringLiteral("a.png")));
    }
};

QTEST_GUILESS_MAIN(TestZtapmLadder)
#include "tst_ztapmladder.moc"
