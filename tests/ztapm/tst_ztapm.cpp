#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

// The ztapm program as a person or a script runs it: exit statuses, messages, the JSON it prints and,
// through golden files, every byte of its output.
class TestZtapm : public QObject
{
    Q_OBJECT

    struct Run
    {
        int exitCode = -1;
        QByteArray out;
        QByteArray err;
        QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
    };

    // Runs in English whatever the runner's locale, unless theLocale names another LANG.
    static Run ztapm(const QStringList& theArguments, const QString& theLocale = QStringLiteral("C.UTF-8"))
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("LC_ALL"));
        environment.remove(QStringLiteral("LC_MESSAGES"));
        environment.insert(QStringLiteral("LANG"), theLocale);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(ZTAPM_PROGRAM), theArguments);
        Run run;
        if (!process.waitForFinished(60000))
            return run;
        run.exitCode = process.exitCode();
        run.out = process.readAllStandardOutput();
        run.err = process.readAllStandardError();
        return run;
    }

    static QStringList onModels(QStringList theArguments)
    {
        return theArguments << QStringLiteral("--data") << QStringLiteral(ZT_TEST_DATA_DIR "/models")
                            << QStringLiteral("--json");
    }

private Q_SLOTS:
    // The worked price examples, one per line of the table the price model tests use too.
    void price_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("amount");

        QFile file(QStringLiteral(ZT_TEST_DATA_DIR "/models/pricefor.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        const QHash<QString, QString> sources{{QStringLiteral("mail"), QStringLiteral("online-mail")},
                                              {QStringLiteral("pos"), QStringLiteral("FC")},
                                              {QStringLiteral("cd"), QStringLiteral("cd-pos")}};
        while (!file.atEnd()) {
            const QString line = QString::fromUtf8(file.readLine()).trimmed();
            if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
                continue;
            const QStringList columns = line.split(QLatin1Char('|'));
            const QStringList request = columns.at(1).simplified().split(QLatin1Char(' '));
            QStringList arguments{QStringLiteral("price"),
                                  request.at(0),
                                  request.at(3),
                                  QStringLiteral("--source"),
                                  sources.value(request.at(1)),
                                  QStringLiteral("--sum"),
                                  request.at(4)};
            if (request.at(2) == QLatin1String("128"))
                arguments << QStringLiteral("--model") << QStringLiteral("x");
            QTest::newRow(qPrintable(columns.at(0).trimmed()))
                << arguments << columns.at(2).trimmed().toInt();
        }
    }
    void price()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, amount);
        const Run run = ztapm(onModels(arguments));
        QCOMPARE(run.exitCode, 0);
        const QJsonObject json = run.json();
        QCOMPARE(json[QStringLiteral("amount")].toInt(), amount);
        QCOMPARE(json[QStringLiteral("article")].toInt(), arguments.at(1).toInt());
        QCOMPARE(json[QStringLiteral("count")].toInt(), arguments.at(2).toInt());

        // The chosen model is one of the candidates and gives the amount, unless a basket-wide
        // transfer or nothing at all priced the article.
        const QString model = json[QStringLiteral("model")].toString();
        if (model.isEmpty() || model == QLatin1String("basket"))
            return;
        bool found = false;
        for (const QJsonValue& candidate : json[QStringLiteral("candidates")].toArray()) {
            if (candidate[QStringLiteral("model")].toString() == model) {
                found = true;
                QCOMPARE(candidate[QStringLiteral("amount")].toInt(), amount);
            }
        }
        QVERIFY2(found, run.out.constData());
    }

    void priceExplainsEveryModel()
    {
        // Two pieces of the flat-price article: "f" wins over the bulk total.
        const QJsonObject json =
            ztapm(onModels({QStringLiteral("price"), QStringLiteral("90002"), QStringLiteral("2")})).json();
        QCOMPARE(json[QStringLiteral("source")].toString(), QStringLiteral("FM"));
        QCOMPARE(json[QStringLiteral("model")].toString(), QStringLiteral("f"));
        QCOMPARE(json[QStringLiteral("candidates")].toArray(),
                 QJsonArray({QJsonObject{{QStringLiteral("model"), QStringLiteral("b")},
                                         {QStringLiteral("amount"), 1000}},
                             QJsonObject{{QStringLiteral("model"), QStringLiteral("f")},
                                         {QStringLiteral("amount"), 100}}}));
    }

    void errors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");

        QTest::newRow("unknown command")
            << QStringList{QStringLiteral("bill")} << 2 << "unknown command 'bill'";
        QTest::newRow("missing count")
            << QStringList{QStringLiteral("price"), QStringLiteral("90001")} << 2 << "usage: price ID COUNT";
        QTest::newRow("bad count") << QStringList{QStringLiteral("price"), QStringLiteral("90001"),
                                                  QStringLiteral("2.5")}
                                   << 2 << "no number of pieces";
        QTest::newRow("negative count")
            << QStringList{QStringLiteral("price"), QStringLiteral("90001"), QStringLiteral("-1")} << 2
            << "'-1' is no number of pieces";
        QTest::newRow("negative sum")
            << QStringList{QStringLiteral("price"), QStringLiteral("90001"), QStringLiteral("1"),
                           QStringLiteral("--sum"), QStringLiteral("-5")}
            << 2 << "'-5' is no goods' sum";
        QTest::newRow("bad source") << QStringList{QStringLiteral("price"), QStringLiteral("90001"),
                                                   QStringLiteral("1"), QStringLiteral("--source"),
                                                   QStringLiteral("cd-mail")}
                                    << 2 << "unknown order source 'cd-mail'";
        QTest::newRow("model chosen by the engine")
            << QStringList{QStringLiteral("price"), QStringLiteral("90001"), QStringLiteral("1"),
                           QStringLiteral("--model"), QStringLiteral("b")}
            << 2 << "--model takes only x";
        QTest::newRow("option of another command")
            << QStringList{QStringLiteral("catalogue"), QStringLiteral("--sum"), QStringLiteral("5")} << 2
            << "go with the command price";
        QTest::newRow("ordering takes no arguments")
            << QStringList{QStringLiteral("ordering"), QStringLiteral("FC")} << 2
            << "ordering takes no arguments";
        QTest::newRow("ordering: bad source")
            << QStringList{QStringLiteral("ordering"), QStringLiteral("--source"), QStringLiteral("cd-mail")}
            << 2 << "unknown order source 'cd-mail'";
        QTest::newRow("unknown language")
            << QStringList{QStringLiteral("--lang"), QStringLiteral("fr"), QStringLiteral("catalogue")} << 2
            << "--lang takes en or de, not 'fr'";
        QTest::newRow("unknown article") << QStringList{QStringLiteral("article"), QStringLiteral("4711")}
                                         << 3 << "article 4711 does not exist";
        QTest::newRow("result without a file")
            << QStringList{QStringLiteral("result")} << 2 << "usage: result FILE";
        QTest::newRow("result: items without --basket")
            << QStringList{QStringLiteral("result"), QStringLiteral(ZT_DEMO_DATA_DIR "/result.xml"),
                           QStringLiteral("1001:1")}
            << 2 << "usage: result FILE";
        QTest::newRow("result: missing file")
            << QStringList{QStringLiteral("result"), QStringLiteral("/nonexistent/result.xml")} << 3
            << "file '/nonexistent/result.xml' does not exist";
        QTest::newRow("result: total_parts does not match")
            << QStringList{QStringLiteral("result"),
                           QStringLiteral(ZT_TEST_DATA_DIR "/result-invalid/count.xml"),
                           QStringLiteral("--data"), QStringLiteral(ZT_DEMO_DATA_DIR)}
            << 4 << "no valid order calculation: 3 bill(s), but total_parts says 4";
        QTest::newRow("result: no bill")
            << QStringList{QStringLiteral("result"),
                           QStringLiteral(ZT_TEST_DATA_DIR "/result-invalid/empty.xml")}
            << 4 << "it holds no valid bill";
        QTest::newRow("result: not well-formed")
            << QStringList{QStringLiteral("result"),
                           QStringLiteral(ZT_TEST_DATA_DIR "/result-invalid/broken.xml")}
            << 4 << "it cannot be read";
        QTest::newRow("missing directory")
            << QStringList{QStringLiteral("catalogue"), QStringLiteral("--data"),
                           QStringLiteral("/nonexistent/key-account")}
            << 3 << "data directory '/nonexistent/key-account' does not exist";
    }
    void errors()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, message);
        if (!arguments.contains(QStringLiteral("--data")))
            arguments << QStringLiteral("--data") << QStringLiteral(ZT_TEST_DATA_DIR "/models");
        const Run run = ztapm(arguments);
        QCOMPARE(run.exitCode, exitCode);
        // The message is the last line; the engine's warnings may come before it.
        QVERIFY2(run.err.trimmed().split('\n').last().startsWith("ztapm: "), run.err.constData());
        QVERIFY2(QString::fromUtf8(run.err).contains(message), run.err.constData());
        QVERIFY(run.out.isEmpty());
    }

    void hostilePrices_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("amount");
        QTest::addColumn<bool>("warns");

        QTest::newRow("total beyond 32 bits") << QStringList{"price", "91001", "1000000"} << -1 << true;
        QTest::newRow("level just below the largest") << QStringList{"price", "91002", "60"} << 4800 << false;
        QTest::newRow("the largest level") << QStringList{"price", "91003", "60"} << 4800 << false;
        QTest::newRow("bound of the smallest integer") << QStringList{"price", "91004", "1"} << 90 << false;
        QTest::newRow("photos beyond that bound") << QStringList{"price", "91005", "5"} << -1 << true;
        QTest::newRow("only a level far up") << QStringList{"price", "91006", "1"} << 70 << false;
        QTest::newRow("the catalogue walks the ladders") << QStringList{"catalogue"} << 0 << false;
    }
    // Answers at once, no wrapped amount: a total that does not fit is no price, with the
    // engine's warning on stderr and the exit status of any other missing price.
    void hostilePrices()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, amount);
        QFETCH(bool, warns);
        const Run run =
            ztapm(arguments << QStringLiteral("--data") << QStringLiteral(ZT_TEST_DATA_DIR "/hostile-prices")
                            << QStringLiteral("--json"));
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.err.contains("does not fit in 32 bits: no price"), warns);
        if (arguments.first() == QLatin1String("price"))
            QCOMPARE(run.json()[QStringLiteral("amount")].toInt(), amount);
    }

    // The language: --lang wins, else a German LANG gives German and anything else English. The
    // engine's texts are German in its code, the command's English; each is translated into the
    // other language, JSON is the same in both.
    void languages_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("headLine");
        QTest::addColumn<QString>("photoPackText");

        const QString english = QStringLiteral("Article 1001, 3 piece(s), order source FM");
        const QString german = QStringLiteral("Artikel 1001, 3 Stück, Bestellweg FM");
        QTest::newRow("--lang en") << "de_DE.UTF-8" << QStringList{"--lang", "en"} << english
                                   << "%1 photo pack";
        QTest::newRow("--lang de") << "C" << QStringList{"--lang", "de"} << german << "%1 Fotopack";
        QTest::newRow("--lang=de") << "en_US.UTF-8" << QStringList{"--lang=de"} << german << "%1 Fotopack";
        QTest::newRow("German LANG") << "de_DE.UTF-8" << QStringList() << german << "%1 Fotopack";
        QTest::newRow("C") << "C" << QStringList() << english << "%1 photo pack";
        QTest::newRow("French LANG") << "fr_FR.UTF-8" << QStringList() << english << "%1 photo pack";
    }
    void languages()
    {
        QFETCH(QString, locale);
        QFETCH(QStringList, options);
        QFETCH(QString, headLine);
        QFETCH(QString, photoPackText);
        const Run price = ztapm(options + QStringList{"price", "1001", "3"}, locale);
        QCOMPARE(price.exitCode, 0);
        QVERIFY2(QString::fromUtf8(price.out).split(QLatin1Char('\n')).contains(headLine),
                 price.out.constData());

        // A default text of the engine, with the same JSON keys in every language.
        const Run ordering = ztapm(options + QStringList{"ordering", "--json"}, locale);
        QCOMPARE(ordering.exitCode, 0);
        const QJsonArray texts = ordering.json()[QStringLiteral("discountTexts")].toArray();
        QVERIFY(!texts.isEmpty());
        const auto photoPack = std::find_if(texts.begin(), texts.end(), [](const QJsonValue& theText) {
            return theText[QStringLiteral("model")].toString() == QLatin1String("U");
        });
        QVERIFY(photoPack != texts.end());
        QCOMPARE((*photoPack)[QStringLiteral("package")].toString(), photoPackText);
    }

    // The command's texts in German: whole lines, with the keywords of JSON translated where the
    // text shows them; the JSON and the exit status are the same as in English.
    void commandsInGerman_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("line");
        const QStringList result{
            QStringLiteral("result"),     QStringLiteral(ZT_TEST_DATA_DIR "/result-changed/result.xml"),
            QStringLiteral("--shipment"), QStringLiteral("2"),
            QStringLiteral("--basket"),   QStringLiteral("1001:3"),
            QStringLiteral("7003:4"),     QStringLiteral("3002:120"),
            QStringLiteral("4001:1"),     QStringLiteral("5003:1")};
        QTest::newRow("result head") << result << 0
                                     << "Bestellberechnung " ZT_TEST_DATA_DIR
                                        "/result-changed/result.xml, Bestellweg FM, Zahlart 3";
        QTest::newRow("result fee without article") << result << 0 << "  Expressgebühr: keine";
        QTest::newRow("result fee with article") << result << 0 << "  Zahlungsgebühr (Artikel 9202): 1,50 €";
        QTest::newRow("result shipping dates")
            << result << 0 << "  Versandtermine: Standard 2026-12-07 bis 2026-12-09, Express 2026-12-03";
        QTest::newRow("result express types") << result << 0 << "Expressarten aller Rechnungen: Standard";
        QTest::newRow("result difference") << result << 0
                                           << "  Gruppe 16 Position     3002   Abzug 10x15                   "
                                              "           lokal 18,00 € (b:2)          "
                                              "Server 19,20 € (b:2)";
    }
    void commandsInGerman()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, line);
        const QStringList german{QStringLiteral("--lang"), QStringLiteral("de")};
        const Run text = ztapm(german + arguments);
        QCOMPARE(text.exitCode, exitCode);
        // Amounts keep their no-break space before the currency; the rows write a plain one.
        const QString out = QString::fromUtf8(text.out).replace(QChar(0xa0), QLatin1Char(' '));
        QVERIFY2(out.split(QLatin1Char('\n')).contains(line), text.out.constData());
        const Run json = ztapm(german + arguments << QStringLiteral("--json"));
        QCOMPARE(json.exitCode, exitCode);
        QCOMPARE(json.json(), ztapm(arguments << QStringLiteral("--json")).json());
    }

    // The findings of check in the language of the output, the engine's and the host libraries'
    // alike, in the text and in the JSON; the places and severities are the same in both.
    void checkInBothLanguages_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("line");
        QTest::newRow("engine, de")
            << "de"
            << "deliverytimes.xml:10:5: Warnung: Lieferzeiten für Artikel 8889, den das "
               "Produktdokument nicht hat";
        QTest::newRow("engine, en")
            << "en"
            << "deliverytimes.xml:10:5: warning: delivery times for article 8889, which "
               "the products document does not have";
        QTest::newRow("ZTCore, de")
            << "de"
            << "products.xml:55:5: Warnung: \"furlong\" ist kein Schlüsselwort des Vokabulars "
               "\"distance unit\"";
        QTest::newRow("ZTCore, en") << "en"
                                    << "products.xml:55:5: warning: \"furlong\" is no distance unit keyword";
        QTest::newRow("ZTXML, de")
            << "de"
            << "currencies.xml:35:35: Fehler: Das XML ist nicht wohlgeformt: Opening and "
               "ending tag mismatch.";
        QTest::newRow("ZTXML, en")
            << "en"
            << "currencies.xml:35:35: error: XML does not parse: Opening and ending tag "
               "mismatch.";
        QTest::newRow("counts, de") << "de"
                                    << "3 Fehler, 9 Warnungen, 3 Hinweise";
    }
    void checkInBothLanguages()
    {
        QFETCH(QString, language);
        QFETCH(QString, line);
        const QStringList check{QStringLiteral("--lang"), language, QStringLiteral("check"),
                                QStringLiteral("--data"), QStringLiteral(ZT_TEST_DATA_DIR "/check-broken")};
        const Run text = ztapm(check);
        QCOMPARE(text.exitCode, 5);
        QVERIFY2(QString::fromUtf8(text.out).split(QLatin1Char('\n')).contains(line), text.out.constData());

        const auto withoutMessages = [](const Run& theRun) {
            QJsonArray findings = theRun.json()[QStringLiteral("findings")].toArray();
            for (QJsonValueRef finding : findings) {
                QJsonObject object = finding.toObject();
                object.remove(QStringLiteral("message"));
                finding = object;
            }
            return findings;
        };
        const Run json = ztapm(check + QStringList{QStringLiteral("--json")});
        QCOMPARE(json.exitCode, 5);
        const QString message = line.section(QStringLiteral(": "), 2);
        const QJsonArray findings = json.json()[QStringLiteral("findings")].toArray();
        QVERIFY(message.isEmpty() ||
                std::any_of(findings.begin(), findings.end(), [&](const QJsonValue& theFinding) {
                    return theFinding[QStringLiteral("message")].toString() == message;
                }));
        QCOMPARE(withoutMessages(json),
                 withoutMessages(
                     ztapm({QStringLiteral("check"), QStringLiteral("--data"),
                            QStringLiteral(ZT_TEST_DATA_DIR "/check-broken"), QStringLiteral("--json")})));
    }

    void demoMillionPiecesHaveNoPrice()
    {
        const Run run = ztapm({QStringLiteral("price"), QStringLiteral("1001"), QStringLiteral("1000000")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.out.contains("Amount: no price"), run.out.constData());
        QVERIFY2(run.err.contains("The amount of article 1001 for 1000000 piece(s) does not fit in 32 bits"),
                 run.err.constData());
    }

    // Every command's output, text and JSON, against the golden files under tests/data/ztapm-*/.
    // The commands.txt of each folder names a file and the command line that prints it. On a
    // mismatch the output is left in the build tree as <file>.actual, for `diff -u`. After a
    // deliberate change of output, run `ZTAPM_UPDATE_GOLDEN=1 build/bin/tst_ztapm golden`: it
    // rewrites the golden files, and the diff in review shows what changed.
    void golden_data()
    {
        QTest::addColumn<QString>("keyAccount");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");

        // A folder may hold its own key account beside the golden files.
        const QList<QPair<QString, QString>> cases{
            {QStringLiteral("ztapm-demo"), QStringLiteral(ZT_DEMO_DATA_DIR)},
            {QStringLiteral("ztapm-models"), QStringLiteral(ZT_TEST_DATA_DIR "/models")},
            {QStringLiteral("check-broken"), QStringLiteral(ZT_TEST_DATA_DIR "/check-broken")}};
        for (const auto& [folder, keyAccount] : cases) {
            QFile list(QStringLiteral(ZT_TEST_DATA_DIR "/") + folder + QStringLiteral("/commands.txt"));
            QVERIFY2(list.open(QIODevice::ReadOnly | QIODevice::Text), qPrintable(list.fileName()));
            while (!list.atEnd()) {
                const QString line = QString::fromUtf8(list.readLine()).simplified();
                if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
                    continue;
                QStringList arguments = line.split(QLatin1Char(' '));
                const QString file = arguments.takeFirst();
                // "exit:5" after the file: the status the command line ends with, 0 if not given.
                int exitCode = 0;
                if (arguments.value(0).startsWith(QLatin1String("exit:")))
                    exitCode = arguments.takeFirst().mid(5).toInt();
                QTest::newRow(qPrintable(folder + QLatin1Char('/') + file))
                    << QDir(keyAccount).absolutePath() << folder << file << arguments << exitCode;
            }
        }
    }
    void golden()
    {
        QFETCH(QString, keyAccount);
        QFETCH(QString, folder);
        QFETCH(QString, file);
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        arguments << QStringLiteral("--data") << keyAccount;
        // Paths in a command line: $KEY_ACCOUNT and $TEST_DATA are directories, $OUTPUT a file the
        // command writes, which is then the output compared instead of stdout.
        const QString testData = QDir(QStringLiteral(ZT_TEST_DATA_DIR)).absolutePath();
        QTemporaryDir outputDir;
        const QString outputPath = outputDir.filePath(QStringLiteral("output"));
        const bool writesFile = arguments.contains(QStringLiteral("$OUTPUT"));
        for (QString& argument : arguments)
            argument.replace(QStringLiteral("$KEY_ACCOUNT"), keyAccount)
                .replace(QStringLiteral("$TEST_DATA"), testData)
                .replace(QStringLiteral("$OUTPUT"), outputPath);

        const Run run = ztapm(arguments);
        QCOMPARE(run.exitCode, exitCode);
        QByteArray written;
        if (writesFile) {
            QFile file(outputPath);
            QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(outputPath));
            written = file.readAll();
        }
        // Nothing may depend on the run: hash order is seeded per process.
        const Run again = ztapm(arguments);
        QVERIFY2(again.out == run.out && again.err == run.err, "a second run printed something else");
        if (writesFile) {
            QFile file(outputPath);
            QVERIFY(file.open(QIODevice::ReadOnly));
            QVERIFY2(file.readAll() == written, "a second run wrote something else");
        }

        QByteArray actual = writesFile ? written : run.out;
        actual.replace(keyAccount.toUtf8(), "$KEY_ACCOUNT");
        actual.replace(testData.toUtf8(), "$TEST_DATA");
        const QString goldenPath = QStringLiteral(ZT_TEST_DATA_DIR "/") + folder + QLatin1Char('/') + file;
        const QString actualPath = QStringLiteral(ZTAPM_GOLDEN_ACTUAL_DIR "/") + folder + QLatin1Char('/') +
                                   file + QStringLiteral(".actual");
        if (qEnvironmentVariableIntValue("ZTAPM_UPDATE_GOLDEN") == 1) {
            QFile golden(goldenPath);
            QVERIFY(golden.open(QIODevice::WriteOnly | QIODevice::Truncate));
            QCOMPARE(golden.write(actual), qint64(actual.size()));
            qInfo("rewrote %s", qPrintable(goldenPath));
            return;
        }

        QFile golden(goldenPath);
        QVERIFY2(golden.open(QIODevice::ReadOnly),
                 qPrintable(goldenPath + QStringLiteral(" is missing; ZTAPM_UPDATE_GOLDEN=1 writes it")));
        const QByteArray expected = golden.readAll();
        if (actual == expected) {
            QFile::remove(actualPath);
            return;
        }
        QDir().mkpath(QFileInfo(actualPath).absolutePath());
        QFile output(actualPath);
        QVERIFY(output.open(QIODevice::WriteOnly | QIODevice::Truncate));
        output.write(actual);
        const QList<QByteArray> expectedLines = expected.split('\n');
        const QList<QByteArray> actualLines = actual.split('\n');
        int line = 0;
        while (line < expectedLines.size() && line < actualLines.size() &&
               expectedLines.at(line) == actualLines.at(line))
            ++line;
        QFAIL(qPrintable(QStringLiteral("output differs from the golden file at line %1\n"
                                        "   expected: %2\n   actual:   %3\n"
                                        "   diff -u %4 %5\n"
                                        "   ZTAPM_UPDATE_GOLDEN=1 accepts the new output")
                             .arg(line + 1)
                             .arg(QString::fromUtf8(expectedLines.value(line, "<end of file>")),
                                  QString::fromUtf8(actualLines.value(line, "<end of file>")), goldenPath,
                                  actualPath)));
    }

    void catalogueAndArticle()
    {
        const Run catalogue = ztapm(onModels({QStringLiteral("catalogue")}));
        QCOMPARE(catalogue.exitCode, 0);
        QVERIFY2(catalogue.err.isEmpty(), catalogue.err.constData());
        const QJsonArray products = catalogue.json()[QStringLiteral("products")].toArray();
        QCOMPARE(products.size(), 14);
        // By id, fees included; the bulk article's lowest mail-order price is its first step.
        QCOMPARE(products.first()[QStringLiteral("id")].toInt(), 90001);
        QCOMPARE(products.first()[QStringLiteral("lowestPrices")][QStringLiteral("FM")].toInt(), 299);
        QVERIFY(products.first()[QStringLiteral("lowestPrices")][QStringLiteral("CC")].isNull());
        QCOMPARE(products.last()[QStringLiteral("id")].toInt(), 90023);

        const QJsonObject article =
            ztapm(onModels({QStringLiteral("article"), QStringLiteral("90001")})).json();
        QCOMPARE(article[QStringLiteral("shippingGroup")].toInt(), 16);
        const QJsonArray rows = article[QStringLiteral("prices")][0][QStringLiteral("rows")].toArray();
        QCOMPARE(article[QStringLiteral("prices")][0][QStringLiteral("source")].toString(),
                 QStringLiteral("FM"));
        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows.at(1)[QStringLiteral("from")].toInt(), 10);
        QCOMPARE(rows.at(1)[QStringLiteral("price")].toInt(), 249);
        QCOMPARE(rows.at(2)[QStringLiteral("to")].toInt(), -1);
    }
    // Switching the order source as a user would: point of sale permits neither payment 3 nor
    // anything remembered in a fresh settings directory, so no payment is chosen.
    void orderingSwitchesTheSource()
    {
        QTemporaryDir settings;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), settings.path());
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(ZTAPM_PROGRAM),
                      {QStringLiteral("ordering"), QStringLiteral("--source"), QStringLiteral("online-pos"),
                       QStringLiteral("--json"), QStringLiteral("--data"), QStringLiteral(ZT_DEMO_DATA_DIR)});
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), 0);
        const QJsonObject json = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
        QCOMPARE(json[QStringLiteral("defaultSource")].toString(), QStringLiteral("FM"));
        QCOMPARE(json[QStringLiteral("currentSource")].toString(), QStringLiteral("FC"));
        QCOMPARE(json[QStringLiteral("startingPayment")].toObject(),
                 (QJsonObject{{QStringLiteral("id"), -1}, {QStringLiteral("brand"), QString()}}));

        // Every source, in order; the credit cards in place of their meta method, with the fee of
        // the source.
        QStringList sources;
        for (const QJsonValue& value : json[QStringLiteral("orderSources")].toArray())
            sources.append(value[QStringLiteral("source")].toString() +
                           (value[QStringLiteral("enabled")].toBool() ? QString() : QStringLiteral(" off")));
        QCOMPARE(sources,
                 (QStringList{QStringLiteral("FC"), QStringLiteral("FM"), QStringLiteral("CC off")}));
        const QJsonArray pointOfSale =
            json[QStringLiteral("orderSources")][0][QStringLiteral("payments")].toArray();
        QCOMPARE(pointOfSale.size(), 4);
        QCOMPARE(pointOfSale.first().toObject(),
                 (QJsonObject{{QStringLiteral("id"), 1},
                              {QStringLiteral("brand"), QStringLiteral("VISA")},
                              {QStringLiteral("name"), QStringLiteral("Visa")},
                              {QStringLiteral("fee"), 250}}));
        QCOMPARE(pointOfSale.last()[QStringLiteral("id")].toInt(), 0);
        const QJsonArray mailOrder =
            json[QStringLiteral("orderSources")][1][QStringLiteral("payments")].toArray();
        QCOMPARE(mailOrder.at(1)[QStringLiteral("fee")].toInt(), 150);
        // Shipment fees under the current source: point of sale has none priced.
        QVERIFY(json[QStringLiteral("shipmentMethods")][1][QStringLiteral("fee")].isNull());
    }
};

QTEST_GUILESS_MAIN(TestZtapm)
#include "tst_ztapm.moc"
