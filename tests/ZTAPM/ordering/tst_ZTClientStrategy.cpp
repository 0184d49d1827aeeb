#include "ZTAddressLayoutType.h"
#include "ZTClientStrategyException.h"
#include "ZTPasswordPolicy.h"

#include <QButtonGroup>
#include <QDomDocument>
#include <QRadioButton>
#include <QTest>
#include <QUrlQuery>
#include <QWidget>

// The account rules of the ordering-details document: the strategy vocabularies, the client
// strategy exception with its single sign-on addresses, the password policy and the address
// layouts with their radio button.
//
// The app ids are enciphered with the built-in key, e.g.
//   printf %s 'tarnquill-app-4711' |
//   openssl enc -des-ecb -provider legacy -provider default -K 5a5441504d2d3031 -nosalt -base64
class tst_ZTClientStrategy : public QObject
{
    Q_OBJECT

private:
    // An element of theTag with the attributes "name=value" given.
    static QDomElement element(const QString& theTag, const QStringList& theAttributes = {})
    {
        static QDomDocument document;
        QDomElement result = document.createElement(theTag);
        for (const QString& attribute : theAttributes) {
            const qsizetype equals = attribute.indexOf(QLatin1Char('='));
            result.setAttribute(attribute.left(equals), attribute.mid(equals + 1));
        }
        return result;
    }
    static ZTClientStrategyException read(const QStringList& theAttributes)
    {
        ZTClientStrategyException exception;
        exception.setValues(element(QStringLiteral("client_strategy_exception"), theAttributes));
        return exception;
    }

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void strategyKeywords_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<int>("userInsert");
        QTest::addColumn<int>("password");
        QTest::addColumn<int>("connect");
        QTest::addColumn<int>("myAccount");

        QTest::newRow("missing: defaults") << "" << 0 << 0 << 0 << 1;
        QTest::newRow("every keyword, any case and blanks")
            << "userinsert_strategy=GOTO_URL;password_strategy= singleuse ;connect_strategy=Ombo-OpenConnect;"
               "my_account_strategy=goto_url"
            << 2 << 32 << 4 << 2;
        QTest::newRow("more keywords")
            << "userinsert_strategy=just_press_button;password_strategy=contact_email;"
               "connect_strategy=tarnquill-oauth2;my_account_strategy=default"
            << 4 << 8 << 2 << 1;
        QTest::newRow("none and send_email") << "userinsert_strategy=none;password_strategy=send_email;"
                                                "connect_strategy=velmorat-oauth2"
                                             << 16 << 1 << 1 << 1;
        QTest::newRow("unknown: 0, also for my account") << "userinsert_strategy=mail;password_strategy=url;"
                                                            "connect_strategy=oauth2;my_account_strategy=url"
                                                         << 0 << 0 << 0 << 0;
        QTest::newRow("empty my account is unknown") << "my_account_strategy=" << 0 << 0 << 0 << 0;
    }
    void strategyKeywords()
    {
        QFETCH(QString, attributes);
        QFETCH(int, userInsert);
        QFETCH(int, password);
        QFETCH(int, connect);
        QFETCH(int, myAccount);
        const ZTClientStrategyException exception =
            read(attributes.split(QLatin1Char(';'), Qt::SkipEmptyParts));
        QCOMPARE(int(exception.userInsertStrategy().value()), userInsert);
        QCOMPARE(int(exception.passwordStrategy().value()), password);
        QCOMPARE(int(exception.connectStrategy().value()), connect);
        QCOMPARE(int(exception.myAccountStrategy().value()), myAccount);
        QCOMPARE(exception.isSSOLogin(), connect != 0);
    }

    void readsEveryFieldAndResets()
    {
        const ZTClientStrategyException fresh;
        QVERIFY(fresh.isDefault());
        QCOMPARE(fresh.loginPattern(), QStringLiteral(".+@.+\\..+"));
        QVERIFY(fresh.showAGBCheckbox());
        QVERIFY(read({}).isDefault());

        ZTClientStrategyException exception =
            read({QStringLiteral("userinsert_target=https://sso.example/auth"),
                  QStringLiteral("password_target=pw"),
                  QStringLiteral("connect_target=https://sso.example/connect"),
                  QStringLiteral("my_account_target=https://shop.example/account"),
                  QStringLiteral("show_agb_checkbox=no"), QStringLiteral("app_id=abc"),
                  QStringLiteral("app_sec=secret"), QStringLiteral("login_pattern=\\d+")});
        QCOMPARE(exception.userInsertTarget(), QStringLiteral("https://sso.example/auth"));
        QCOMPARE(exception.passwordTarget(), QStringLiteral("pw"));
        QCOMPARE(exception.connectTarget(), QUrl(QStringLiteral("https://sso.example/connect")));
        QCOMPARE(exception.myAccountUrl(), QUrl(QStringLiteral("https://shop.example/account")));
        QVERIFY(!exception.showAGBCheckbox());
        QCOMPARE(exception.appId(), QStringLiteral("abc"));
        QCOMPARE(exception.appSecret(), QStringLiteral("secret"));
        QCOMPARE(exception.loginPattern(), QStringLiteral("\\d+"));
        QVERIFY(!exception.isDefault());

        const ZTClientStrategyException copy = exception;
        QVERIFY(read({QStringLiteral("app_sec=x")}) != fresh);
        // Another tag, or a null element, changes nothing; a second reading starts afresh.
        exception.setValues(element(QStringLiteral("client_strategy_exceptions")));
        exception.setValues(QDomElement());
        QCOMPARE(exception, copy);
        exception.setValues(element(QStringLiteral("client_strategy_exception"), {"app_id=abc"}));
        QVERIFY(exception != copy);
        QCOMPARE(exception.userInsertTarget(), QString());
        QVERIFY(exception.showAGBCheckbox());
        // An empty pattern counts as missing.
        QCOMPARE(read({QStringLiteral("login_pattern=")}).loginPattern(), fresh.loginPattern());
    }

    void canModifyAccountData_data()
    {
        QTest::addColumn<QString>("strategy");
        QTest::addColumn<QString>("target");
        QTest::addColumn<bool>("expected");
        QTest::newRow("own dialog") << "default"
                                    << "" << true;
        QTest::newRow("page of the key account") << "goto_url"
                                                 << "https://shop.example/account" << true;
        QTest::newRow("page without target") << "goto_url"
                                             << "" << false;
        QTest::newRow("page with broken target") << "goto_url"
                                                 << "http://[::1" << false;
        QTest::newRow("unknown strategy") << "elsewhere"
                                          << "https://shop.example/account" << false;
    }
    void canModifyAccountData()
    {
        QFETCH(QString, strategy);
        QFETCH(QString, target);
        QFETCH(bool, expected);
        const ZTClientStrategyException exception = read({QStringLiteral("my_account_strategy=") + strategy,
                                                          QStringLiteral("my_account_target=") + target});
        QCOMPARE(exception.canModifyAccountData(), expected);
    }

    void loginAndRedirectUrls_data()
    {
        QTest::addColumn<QString>("connect");
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("appId");
        QTest::addColumn<QString>("loginUrl");
        QTest::addColumn<QString>("redirectUrl");
        QTest::addColumn<QString>("clientId");

        const QString target = QStringLiteral("https://login.tarnquill.example/oauth2/"
                                              "authorize?response_type=code&redirect_uri=https%3A%2F%2Fapp."
                                              "example%2Fcallback");
        const QString tarnquillId = QStringLiteral("FowpFSS4FTPzWSiyUtWGio1hjl3JZg67");
        QTest::newRow("tarnquill: deciphered client id")
            << "tarnquill-oauth2" << target << tarnquillId
            << target + QStringLiteral("&client_id=tarnquill-app-4711") << "https://app.example/callback"
            << "tarnquill-app-4711";
        QTest::newRow("ombo: the same operation")
            << "ombo-openconnect" << target << tarnquillId
            << target + QStringLiteral("&client_id=tarnquill-app-4711") << "https://app.example/callback"
            << "tarnquill-app-4711";
        QTest::newRow("ombo: id with blank and slash, no redirect")
            << "ombo-openconnect"
            << "https://id.ombo.example/connect"
            << "/ocTzQ4mTlaKQ337u5XRww=="
            << "https://id.ombo.example/connect?client_id=ombo%20client/1"
            << ""
            << "ombo client/1";
        QTest::newRow("velmorat: no url from the engine") << "velmorat-oauth2" << target << tarnquillId << ""
                                                          << ""
                                                          << "tarnquill-app-4711";
        QTest::newRow("own login: none") << "default" << target << tarnquillId << ""
                                         << ""
                                         << "tarnquill-app-4711";
    }
    void loginAndRedirectUrls()
    {
        QFETCH(QString, connect);
        QFETCH(QString, target);
        QFETCH(QString, appId);
        QFETCH(QString, loginUrl);
        QFETCH(QString, redirectUrl);
        QFETCH(QString, clientId);
        const ZTClientStrategyException exception =
            read({QStringLiteral("connect_strategy=") + connect,
                  QStringLiteral("userinsert_target=") + target, QStringLiteral("app_id=") + appId});
        QCOMPARE(exception.loginUrl().toString(QUrl::FullyEncoded),
                 QUrl(loginUrl).toString(QUrl::FullyEncoded));
        QCOMPARE(exception.loginUrl().isEmpty(), loginUrl.isEmpty());
        QCOMPARE(exception.redirectUrl(), QUrl(redirectUrl));
        // The login URL of each retailer exists whatever the strategy; the strategy only picks.
        QCOMPARE(QUrlQuery(exception.omboLoginUrl())
                     .queryItemValue(QStringLiteral("client_id"), QUrl::FullyDecoded),
                 clientId);
    }

    void passwordPolicy()
    {
        const auto values = [](const ZTPasswordPolicy& thePolicy) {
            return QList<int>{thePolicy.minPasswordLength(), thePolicy.pointsForYellow(),
                              thePolicy.pointsForGreen()};
        };
        QCOMPARE(values(ZTPasswordPolicy(QDomElement())), (QList<int>{8, 4, 8}));
        QCOMPARE(values(ZTPasswordPolicy(element(QStringLiteral("password_policy"),
                                                 {"min_characters=10", "yellow_word=5", "green_word=12"}))),
                 (QList<int>{10, 5, 12}));
        // A malformed value keeps its default.
        QCOMPARE(values(ZTPasswordPolicy(
                     element(QStringLiteral("password_policy"), {"min_characters=ten", "green_word=9"}))),
                 (QList<int>{8, 4, 9}));
    }

    void addressLayouts_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("toPrivate");
        QTest::addColumn<int>("toCompany");
        QTest::addColumn<QString>("kind");
        QTest::newRow("billingPrivate") << "billingPrivate" << 1 << 1 << 2 << "private";
        QTest::newRow("old private") << " PRIVATE " << 1 << 1 << 2 << "private";
        QTest::newRow("old company") << "company" << 2 << 1 << 2 << "company";
        QTest::newRow("shippingPrivate") << "shippingPrivate" << 4 << 4 << 8 << "private";
        QTest::newRow("shippingCompany") << "shippingCompany" << 8 << 4 << 8 << "company";
        QTest::newRow("posPrivate") << "posPrivate" << 16 << 16 << 32 << "private";
        QTest::newRow("posCompany") << "posCompany" << 32 << 16 << 32 << "company";
        QTest::newRow("registration is neither") << "registration" << 64 << 64 << 64 << "";
        QTest::newRow("unknown") << "billing" << 0 << 0 << 0 << "";
        QTest::newRow("joined bits are neither") << "billingPrivate,shippingPrivate" << 5 << 5 << 5 << "";
    }
    void addressLayouts()
    {
        QFETCH(QString, keyword);
        QFETCH(int, value);
        QFETCH(int, toPrivate);
        QFETCH(int, toCompany);
        QFETCH(QString, kind);
        // Order text code, radio button name and label of each kind.
        const QHash<QString, QStringList> texts{{"private", {"1", "PrivateRadioButton", "Privat"}},
                                                {"company", {"2", "CompanyRadioButton", "Firma"}},
                                                {"", {"", "", ""}}};
        const ZTAddressLayoutType layout(keyword);
        QCOMPARE(int(layout.value()), value);
        QCOMPARE(int(layout.convertToPrivate().value()), toPrivate);
        QCOMPARE(int(layout.convertToCompany().value()), toCompany);
        QCOMPARE(layout.isPrivateLayout(), kind == QLatin1String("private"));
        QCOMPARE(layout.isCompanyLayout(), kind == QLatin1String("company"));
        QCOMPARE(layout.encodeForXTCI(), kind);
        QCOMPARE((QStringList{layout.encodeForOrderTXT(), layout.squishButtonName(), layout.visibleName()}),
                 texts.value(kind));
    }

    void addressLayoutEncodesFirstKeyword()
    {
        QCOMPARE(ZTAddressLayoutType(ZTAddressLayoutTypeBillingPrivate).encode(),
                 QStringLiteral("billingPrivate"));
        QCOMPARE(ZTAddressLayoutType(ZTAddressLayoutTypeBillingCompany).encode(),
                 QStringLiteral("billingCompany"));
    }

    void radioButton()
    {
        QWidget parent;
        QButtonGroup group;
        QRadioButton* button =
            ZTAddressLayoutType(ZTAddressLayoutTypeShippingCompany).createRadioButton(&group, &parent);
        QCOMPARE(button->parent(), &parent);
        QCOMPARE(button->text(), QStringLiteral("Firma"));
        QCOMPARE(button->objectName(), QStringLiteral("CompanyRadioButton"));
        QCOMPARE(group.id(button), 8);
        QRadioButton* alone =
            ZTAddressLayoutType(ZTAddressLayoutTypePosPrivate).createRadioButton(nullptr, &parent);
        QCOMPARE(alone->objectName(), QStringLiteral("PrivateRadioButton"));
        QCOMPARE(alone->group(), nullptr);
    }
};

QTEST_MAIN(tst_ZTClientStrategy)
#include "tst_ZTClientStrategy.moc"
