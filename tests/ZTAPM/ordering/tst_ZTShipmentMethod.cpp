#include "ZTShipmentMethod.h"
#include "ZTShipmentMethodList.h"

#include <QDomDocument>
#include <QRegularExpressionValidator>
#include <QTest>

#include <memory>

// Shipment methods of the ordering-details document: reading, the list and its default, the
// validator of the additional value and the texts around it.
class tst_ZTShipmentMethod : public QObject
{
    Q_OBJECT

private:
    QDomDocument myDocument;

    QDomElement element(const QString& theTag, const QString& theAttributes)
    {
        QDomElement result = myDocument.createElement(theTag);
        for (const QString& attribute : theAttributes.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            const qsizetype equals = attribute.indexOf(QLatin1Char('='));
            result.setAttribute(attribute.left(equals), attribute.mid(equals + 1));
        }
        return result;
    }
    ZTShipmentMethod method(const QString& theAttributes)
    {
        return ZTShipmentMethod(element(QStringLiteral("shipment_method"), theAttributes));
    }

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void reading()
    {
        // The attributes themselves are proven by the equality test: each one read changes the
        // method.
        const ZTShipmentMethod packstation =
            method("id=96;name=DHL Packstation;pickup_points_available=true;additional_field_required=yes;"
                   "registration_url=https://www.dhl.example/register");
        QVERIFY(packstation.isValid() && !packstation.isDefault());
        QVERIFY(packstation.pickupPointsAvailable() && packstation.additionalFieldIsRequired());
        QVERIFY(packstation.registrationIsPossible());
        QVERIFY(method(QStringLiteral("id=0")).isDefault());
        QVERIFY(!method(QStringLiteral("name=no id")).isValid());
        QVERIFY(!method(QStringLiteral("id=x")).isValid());
        QVERIFY(!ZTShipmentMethod().isValid());
        QVERIFY(!method(QStringLiteral("id=2;registration_url=http://[::1")).registrationIsPossible());
    }

    void equality()
    {
        const QString base = QStringLiteral("id=2;name=Paket;additional_field_pattern=\\d+");
        const ZTShipmentMethod parcel = method(base);
        ZTShipmentMethod copy = parcel;
        QVERIFY(copy == parcel);
        QVERIFY(parcel == method(base));
        const QStringList differences{"pickup_points_available=true",
                                      "additional_field_required=true",
                                      "additional_field_pattern=\\w+",
                                      "additional_field_key=k",
                                      "additional_field_key_name=n",
                                      "registration_url=https://x.example",
                                      "name=Brief",
                                      "id=3"};
        for (const QString& difference : differences)
            QVERIFY2(parcel != method(base + QLatin1Char(';') + difference), qPrintable(difference));
    }

    void validator()
    {
        const std::unique_ptr<QRegularExpressionValidator> check(
            method(QStringLiteral("id=96;additional_field_pattern=\\d{6,10}")).additionalFieldValidator());
        QVERIFY(check);
        QCOMPARE(check->parent(), nullptr);
        QString text = QStringLiteral("12345678");
        int position = 0;
        QCOMPARE(check->validate(text, position), QValidator::Acceptable);
        text = QStringLiteral("12a");
        QCOMPARE(check->validate(text, position), QValidator::Invalid);
        // A broken pattern leaves the value unchecked.
        QVERIFY(!method(QStringLiteral("id=96;additional_field_pattern=(\\d+")).additionalFieldValidator());
    }

    void texts_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QString>("intro");
        QTest::addColumn<QString>("valueIntro");

        const QString general =
            QStringLiteral("<i>Für diesen Dienstleister werden weitere Angaben benötigt.</i>");
        const QString packstation = QStringLiteral(
            "<b>Wichtiger Hinweis zur Packstation</b><ul><li>Um Ihr Paket abholen zu können, benötigten Sie "
            "Ihre "
            "%1.</li><li>Der hinterlegte Name in Ihrem DHL Konto muss mit dem Namen in der Rechnungsadresse "
            "übereinstimmen.</li><li>Nur Produkte bis zu einer Größe von 60x35x35 cm können an die "
            "Packstation "
            "geliefert werden.</li></ul>");
        QTest::newRow("packstation with name")
            << "id=96;additional_field_required=1;additional_field_key_name=Postnummer"
            << packstation.arg(QStringLiteral("Postnummer")) << "Postnummer:";
        QTest::newRow("packstation without name") << "id=96" << packstation.arg(QString()) << "";
        QTest::newRow("not required: no label")
            << "id=5;additional_field_key_name=Kundennummer" << general << "";
        QTest::newRow("mobile phone") << "id=5;additional_field_required=1;additional_field_key=mobile_phone"
                                      << general << "Telefonnummer:";
        QTest::newRow("user id with the method's name")
            << "id=7;name=Hermes;additional_field_required=1;additional_field_key=user_id" << general
            << "persöhnliche Hermes Kennnummer:";
        QTest::newRow("name wins over key")
            << "id=7;name=Hermes;additional_field_required=1;additional_field_key=user_id;"
               "additional_field_key_name=Hermes-ID"
            << general << "Hermes-ID:";
        QTest::newRow("unknown key: pattern left as it is")
            << "id=7;additional_field_required=1;additional_field_key=locker" << general << "%1:";
    }
    void texts()
    {
        QFETCH(QString, attributes);
        QFETCH(QString, intro);
        QFETCH(QString, valueIntro);
        const ZTShipmentMethod m = method(attributes);
        QCOMPARE(m.intro(), intro);
        QCOMPARE(m.valueIntro(), valueIntro);
        QCOMPARE(m.registrationText(), QStringLiteral("Noch kein Kunde?"));
        QCOMPARE(m.registrationLinkText(), QStringLiteral("Hier registrieren."));
    }

    void list_data()
    {
        QTest::addColumn<QStringList>("methods");
        QTest::addColumn<QList<int>>("ids");
        QTest::addColumn<QString>("defaultName");
        QTest::newRow("default in the middle")
            << QStringList{"id=2;name=a", "id=0;name=b", "id=0;name=c"} << QList<int>{2, 0, 0} << "b";
        QTest::newRow("no default: invalid") << QStringList{"id=2", "id=96"} << QList<int>{2, 96} << "";
        QTest::newRow("invalid ones dropped")
            << QStringList{"name=no id", "id=3", "id=-1", "id=0;name=d"} << QList<int>{3, 0} << "d";
    }
    void list()
    {
        QFETCH(QStringList, methods);
        QFETCH(QList<int>, ids);
        QFETCH(QString, defaultName);
        QDomElement root = myDocument.createElement(QStringLiteral("shipment_methods"));
        for (const QString& attributes : methods) {
            root.appendChild(element(QStringLiteral("shipment_method"), attributes));
            // Only "shipment_method" children count.
            root.appendChild(element(QStringLiteral("other_method"), QStringLiteral("id=5")));
        }
        ZTShipmentMethodList list;
        list.append(method(QStringLiteral("id=77")));
        list.update(root);
        QList<int> read;
        for (const ZTShipmentMethod& m : list)
            read.append(m.id());
        QCOMPARE(read, ids);
        const ZTShipmentMethod defaultMethod = list.defaultShipmentMethod();
        QCOMPARE(defaultMethod.isValid(), !defaultName.isEmpty());
        QCOMPARE(defaultMethod.name(), defaultName);
        QCOMPARE(list.value(ids.first()).id(), ids.first());
        QVERIFY(!list.value(77).isValid());

        list.update(QDomElement());
        QVERIFY(list.isEmpty());
    }

    void feeArticle()
    {
        // The demo key account has a fee for method 2 and none for method 4711.
        QCOMPARE(method(QStringLiteral("id=2")).articleId(), ZTArticleId(9302));
        QVERIFY(!method(QStringLiteral("id=4711")).articleId().isValid());
    }
};

QTEST_GUILESS_MAIN(tst_ZTShipmentMethod)
#include "tst_ZTShipmentMethod.moc"
