#include "ZTAPMDataBase.h"
#include "ZTPaymentMethod.h"
#include "ZTPaymentMethodList.h"
#include "ZTProductAbstract.h"

#include <QDomDocument>
#include <QRegularExpressionValidator>
#include <QTest>

#include <algorithm>
#include <memory>

using Attributes = ZTPaymentMethod::Attributes;
using Getter = bool (ZTPaymentMethod::*)() const;

// Payment methods as the ordering-details document describes them: the three groups, the
// families of credit cards and online transfers, their texts and the fragments of an order.
class tst_ZTPaymentMethod : public QObject
{
    Q_OBJECT

private:
    QDomDocument myDocument;

    // A method of theClass read from an element with the attributes "name=value;...".
    ZTPaymentMethod method(ZTPaymentClassEnum theClass, const QString& theAttributes)
    {
        QDomElement element = myDocument.createElement(QStringLiteral("any_tag"));
        for (const QString& attribute : theAttributes.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            const qsizetype equals = attribute.indexOf(QLatin1Char('='));
            element.setAttribute(attribute.left(equals), attribute.mid(equals + 1));
        }
        return ZTPaymentMethod(ZTPaymentClass(theClass), element);
    }

    // The attributes of a DOM element, sorted by name: what it holds, whatever its hash order.
    static Attributes sortedAttributes(const QDomElement& theElement)
    {
        Attributes result;
        const QDomNamedNodeMap map = theElement.attributes();
        for (int i = 0; i < map.count(); ++i)
            result.append({map.item(i).nodeName(), map.item(i).nodeValue()});
        std::sort(result.begin(), result.end());
        return result;
    }
    static Attributes sorted(Attributes theAttributes)
    {
        std::sort(theAttributes.begin(), theAttributes.end());
        return theAttributes;
    }

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void paymentClasses()
    {
        QCOMPARE(int(ZTPaymentClass(QStringLiteral("1")).value()), 1);
        QCOMPARE(int(ZTPaymentClass(QStringLiteral(" 9 ")).value()), 4);
        QCOMPARE(int(ZTPaymentClass(QStringLiteral("0")).value()), 2);
        QCOMPARE(int(ZTPaymentClass(QStringLiteral("7")).value()), 2);
        const QList<ZTPaymentClassEnum> classes{ZTPaymentClassNone, ZTPaymentClassCreditCard,
                                                ZTPaymentClassPayMethod, ZTPaymentClassOnlineTransfer};
        const QStringList nodes{"", "credit_cards", "pay_methods", "online_transfer_methods"};
        for (int i = 0; i < classes.size(); ++i) {
            QCOMPARE(ZTPaymentClass(classes.at(i)).xtciNodeName(), nodes.at(i));
            QCOMPARE(ZTPaymentClass(classes.at(i)).isMetaClass(), i == 1 || i == 3);
        }
    }

    void ids_data()
    {
        QTest::addColumn<int>("payClass");
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<int>("paymentId");
        QTest::addColumn<int>("id");
        QTest::addColumn<bool>("isPOS");
        QTest::addColumn<QString>("name");

        QTest::newRow("ordinary") << 2 << "id=3;name=Rechnung" << 3 << 3 << false << "3";
        QTest::newRow("ordinary without id: point of sale") << 2 << "" << 0 << 0 << true << "0";
        QTest::newRow("credit card") << 1 << "id=7;brand=VISA" << 1 << 7 << false << "1_7";
        QTest::newRow("another credit card") << 1 << "id=12;brand=AMEX" << 1 << 12 << false << "1_12";
        QTest::newRow("online transfer") << 4 << "id=91" << 9 << 91 << false << "9_91";
        QTest::newRow("family member without id") << 4 << "" << 9 << 0 << false << "9_0";
        QTest::newRow("no class") << 0 << "id=3" << -1 << 3 << false << "";
    }
    void ids()
    {
        QFETCH(int, payClass);
        QFETCH(QString, attributes);
        QFETCH(int, paymentId);
        QFETCH(int, id);
        QFETCH(bool, isPOS);
        QFETCH(QString, name);
        const ZTPaymentMethod m = method(ZTPaymentClassEnum(payClass), attributes);
        QCOMPARE(m.paymentId(), ZTPaymentId(paymentId));
        QCOMPARE(m.id(), id);
        QCOMPARE(m.isValid(), paymentId != -1);
        QCOMPARE(m.isPOS(), isPOS);
        QCOMPARE(m.toString(), name);
        QCOMPARE(m.logoFileName(), name + QStringLiteral(".svg"));
    }

    void flags_data()
    {
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<int>("getter");
        QTest::addColumn<bool>("whenMissing");
        int i = 0;
        QTest::newRow("blockable") << "blockable" << i++ << false;
        QTest::newRow("form_based") << "form_based" << i++ << false;
        QTest::newRow("two_factor_hint") << "two_factor_hint" << i++ << false;
        QTest::newRow("repeatable") << "repeatable" << i++ << true;
        QTest::newRow("allows_shipping_address") << "allows_shipping_address" << i++ << false;
        QTest::newRow("needs_password") << "needs_password" << i++ << false;
        QTest::newRow("e_wallet") << "e_wallet" << i++ << false;
        QTest::newRow("show_billing_address") << "show_billing_address" << i++ << false;
    }
    void flags()
    {
        static const Getter getters[] = {&ZTPaymentMethod::isBlockable,
                                         &ZTPaymentMethod::isFormBasedPayment,
                                         &ZTPaymentMethod::show2FactorHint,
                                         &ZTPaymentMethod::allowsFormBasedPaymentRetry,
                                         &ZTPaymentMethod::allowsDifferentShippingAddress,
                                         &ZTPaymentMethod::needsPassword,
                                         &ZTPaymentMethod::isEWallet,
                                         &ZTPaymentMethod::showBillingAddressOnPaymentAndShippingScreen};
        QFETCH(QString, attribute);
        QFETCH(int, getter);
        QFETCH(bool, whenMissing);
        const Getter get = getters[getter];
        QCOMPARE((method(ZTPaymentClassPayMethod, QStringLiteral("id=3")).*get)(), whenMissing);
        QCOMPARE((method(ZTPaymentClassPayMethod, attribute + QStringLiteral("=yes")).*get)(), true);
        QCOMPARE((method(ZTPaymentClassPayMethod, attribute + QStringLiteral("=false")).*get)(), false);
        // Only this attribute moves this flag.
        for (int other = 0; other < int(std::size(getters)); ++other) {
            if (other != getter)
                QCOMPARE(
                    (method(ZTPaymentClassPayMethod, attribute + QStringLiteral("=true")).*getters[other])(),
                    other == 3);
        }
    }

    void authorizations_data()
    {
        QTest::addColumn<QString>("fields");
        QTest::addColumn<QString>("privateField");
        QTest::addColumn<QString>("companyField");
        QTest::newRow("two") << "personal_number,company_number"
                             << "personal_number"
                             << "company_number";
        QTest::newRow("empty parts dropped") << "personal_number,,company_number,"
                                             << "personal_number"
                                             << "company_number";
        QTest::newRow("one") << "personal_number"
                             << ""
                             << "";
        QTest::newRow("three") << "a,b,c"
                               << ""
                               << "";
    }
    void authorizations()
    {
        QFETCH(QString, fields);
        QFETCH(QString, privateField);
        QFETCH(QString, companyField);
        const ZTPaymentMethod m =
            method(ZTPaymentClassPayMethod, QStringLiteral("id=25;billing_address_fields=") + fields);
        QCOMPARE(m.needsAuthorization(), !privateField.isEmpty());
        QCOMPARE(m.authorization(ZTAddressLayoutTypeBillingPrivate), privateField);
        QCOMPARE(m.authorization(ZTAddressLayoutTypeBillingCompany), companyField);
        QCOMPARE(m.authorization(ZTAddressLayoutTypeShippingPrivate), QString());
    }

    void texts_data()
    {
        QTest::addColumn<int>("payClass");
        QTest::addColumn<int>("id");
        QTest::addColumn<int>("layout");
        QTest::addColumn<QString>("authorizationText");
        QTest::addColumn<bool>("validator");
        QTest::addColumn<QString>("valueName");
        QTest::addColumn<QString>("confirmationHint");

        const QString debit = QStringLiteral("Die Belastung Ihres Kontos erfolgt mit Versand der Ware.");
        const QString klarnaHint =
            QStringLiteral("Die Klarna-Rechnung wird im Rahmen der Auftragsbearbeitung "
                           "erstellt und Ihnen per E-Mail zugesandt.");
        QTest::newRow("klarna private")
            << 2 << 25 << 1 << "Bitte geben Sie bei der Bezahlung mit Klarna die Personennummer an:" << true
            << "additional_authorization_id" << klarnaHint;
        QTest::newRow("klarna company")
            << 2 << 25 << 2
            << "Bitte geben Sie bei der Bezahlung mit Klarna die Handelsregisternummer an:" << true
            << "additional_authorization_id" << klarnaHint;
        QTest::newRow("klarna shipping")
            << 2 << 25 << 4 << "" << false << "additional_authorization_id" << klarnaHint;
        QTest::newRow("credit card of raw id 25 is no klarna") << 1 << 25 << 1 << "" << false << "" << debit;
        QTest::newRow("point of sale") << 2 << 0 << 1 << "" << false << ""
                                       << "";
        QTest::newRow("cash on delivery") << 2 << 8 << 1 << "" << false << ""
                                          << "";
        QTest::newRow("direct debit") << 2 << 5 << 1 << "" << false << "" << debit;
        QTest::newRow("no class: invalid") << 0 << 0 << 1 << "" << false << "" << debit;
    }
    void texts()
    {
        QFETCH(int, payClass);
        QFETCH(int, id);
        QFETCH(int, layout);
        QFETCH(QString, authorizationText);
        QFETCH(bool, validator);
        QFETCH(QString, valueName);
        QFETCH(QString, confirmationHint);
        // No "billing_address_fields": the texts do not depend on them.
        const ZTPaymentMethod m = method(ZTPaymentClassEnum(payClass), QStringLiteral("id=%1").arg(id));
        const ZTAddressLayoutType theLayout{ZTAddressLayoutTypeEnum(layout)};
        QVERIFY(!m.needsAuthorization());
        QCOMPARE(m.authorizationText(theLayout), authorizationText);
        QCOMPARE(m.authorizationValueName(), valueName);
        QCOMPARE(m.orderConfirmationHint(), confirmationHint);
        const std::unique_ptr<QRegularExpressionValidator> check(m.authorizationValidator(theLayout));
        QCOMPARE(bool(check), validator);
        if (check) {
            QCOMPARE(check->parent(), nullptr);
            QString text = QStringLiteral("19800101-1234");
            int position = 0;
            QCOMPARE(check->validate(text, position), QValidator::Acceptable);
            text = QStringLiteral("1980 0101");
            QCOMPARE(check->validate(text, position), QValidator::Invalid);
        }
    }

    void setPaymentProperties()
    {
        const ZTPaymentMethod meta =
            method(ZTPaymentClassPayMethod, "id=1;form_based=1;two_factor_hint=1;repeatable=0;"
                                            "allows_shipping_address=1;needs_password=1;e_wallet=1;"
                                            "blockable=1;show_billing_address=1;name=Kreditkarte");
        const ZTPaymentMethod card = method(ZTPaymentClassCreditCard, "id=11;brand=VISA;name=Visa");
        ZTPaymentMethod member = card;
        member.setPaymentProperties(meta);
        QVERIFY(member.isFormBasedPayment());
        QVERIFY(member.show2FactorHint());
        QVERIFY(!member.allowsFormBasedPaymentRetry());
        QVERIFY(member.allowsDifferentShippingAddress());
        QVERIFY(member.needsPassword());
        QVERIFY(member.isEWallet());
        // Its own: blockable, billing address, names and ids.
        QVERIFY(!member.isBlockable());
        QVERIFY(!member.showBillingAddressOnPaymentAndShippingScreen());
        QCOMPARE(member.name(), QStringLiteral("Visa"));
        QCOMPARE(member.brand(), QStringLiteral("VISA"));
        QCOMPARE(member.id(), 11);
        // The copy it was made from stays as it was.
        QVERIFY(!card.isFormBasedPayment());
        QVERIFY(member != card);
    }

    void fragments_data()
    {
        QTest::addColumn<int>("payClass");
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<Attributes>("header");
        QTest::addColumn<Attributes>("extended");

        QTest::newRow("credit card") << 1 << "id=11;brand=VISA;form_based=true" << Attributes{{"id", "1"}}
                                     << Attributes{{"paymethod_id", "1"},
                                                   {"template", "no"},
                                                   {"force_server_side_url_calculation", "yes"},
                                                   {"cc_brand", "VISA"}};
        QTest::newRow("online transfer with password")
            << 4 << "id=91;brand=SOFORT;form_based=true;needs_password=true"
            << Attributes{{"id", "9"}, {"password", "larkham"}}
            << Attributes{{"paymethod_id", "9"},
                          {"template", "no"},
                          {"force_server_side_url_calculation", "yes"},
                          {"otf_brand", "SOFORT"}};
        QTest::newRow("ordinary form-based: no brand")
            << 2 << "id=5;brand=X;form_based=true" << Attributes{{"id", "5"}}
            << Attributes{
                   {"paymethod_id", "5"}, {"template", "no"}, {"force_server_side_url_calculation", "yes"}};
        QTest::newRow("apple pay, not form-based")
            << 2 << "id=40;e_wallet=true" << Attributes{{"id", "40"}} << Attributes();
        QTest::newRow("invalid method") << 0 << "" << Attributes{{"id", "-1"}} << Attributes();
    }
    void fragments()
    {
        QFETCH(int, payClass);
        QFETCH(QString, attributes);
        QFETCH(Attributes, header);
        QFETCH(Attributes, extended);
        const ZTPaymentMethod m = method(ZTPaymentClassEnum(payClass), attributes);
        const QString token = QStringLiteral("tok=+/");
        const Attributes apple{{"paymethod_id", m.paymentId().toString()},
                               {"force_server_side_url_calculation", "yes"},
                               {"e_wallet_payment_token", token}};
        // In writing order...
        QCOMPARE(m.orderHeaderPaymentAttributes(), header);
        QCOMPARE(m.extendedPaymentInfoAttributes(), extended);
        QCOMPARE(m.applePaymentInfoAttributes(token), apple);

        // ...and in the DOM, one child each, with exactly these attributes.
        QDomDocument document;
        QDomElement order = document.createElement(QStringLiteral("order"));
        document.appendChild(order);
        const QDomElement payMethod = m.buildOrderHeaderPayment(order);
        m.buildExtendedPaymentInfo(order);
        m.buildAppplePaymentInfo(order, token);
        QCOMPARE(payMethod.parentNode(), QDomNode(order));
        QStringList tags;
        for (QDomElement child = order.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement())
            tags.append(child.tagName());
        QStringList expectedTags{"pay_method", "form_based_payment_info", "e_wallet_payment_info"};
        if (extended.isEmpty())
            expectedTags.removeAt(1);
        QCOMPARE(tags, expectedTags);
        QCOMPARE(sortedAttributes(payMethod), sorted(header));
        QCOMPARE(sortedAttributes(order.firstChildElement(QStringLiteral("form_based_payment_info"))),
                 sorted(extended));
        QCOMPARE(sortedAttributes(order.firstChildElement(QStringLiteral("e_wallet_payment_info"))),
                 sorted(apple));
    }

    void equality()
    {
        const ZTPaymentMethod visa = method(ZTPaymentClassCreditCard, "id=11;brand=VISA");
        QVERIFY(visa == method(ZTPaymentClassCreditCard, "id=11;brand=VISA"));
        QVERIFY(visa != method(ZTPaymentClassCreditCard, "id=12;brand=VISA"));
        QVERIFY(visa != method(ZTPaymentClassCreditCard, "id=11;brand=AMEX"));
        QVERIFY(visa != method(ZTPaymentClassOnlineTransfer, "id=11;brand=VISA"));
        QVERIFY(visa != method(ZTPaymentClassCreditCard, "id=11;brand=VISA;name=Visa"));
        QVERIFY(visa != method(ZTPaymentClassCreditCard, "id=11;brand=VISA;billing_address_fields=a,b"));
        QVERIFY(method(ZTPaymentClassPayMethod, "id=25;billing_address_fields=a,b") !=
                method(ZTPaymentClassPayMethod, "id=25;billing_address_fields=b,a"));
        QVERIFY(visa.isApplePay() == false);
        QVERIFY(method(ZTPaymentClassPayMethod, "id=40").isApplePay());
        QVERIFY(method(ZTPaymentClassCreditCard, "id=40").isApplePay());
    }

    void list()
    {
        const ZTPaymentMethodList methods{method(ZTPaymentClassPayMethod, "id=3;name=first"),
                                          method(ZTPaymentClassCreditCard, "id=11;brand=VISA"),
                                          method(ZTPaymentClassCreditCard, "id=12;brand=AMEX;blockable=1"),
                                          method(ZTPaymentClassPayMethod, "id=3;name=second")};
        QCOMPARE(methods.paymentMethod(ZTPaymentId(3)).name(), QStringLiteral("first"));
        QCOMPARE(methods.paymentMethod(ZTPaymentId(1)).brand(), QStringLiteral("VISA"));
        QVERIFY(!methods.paymentMethod(ZTPaymentId(11)).isValid());
        QVERIFY(methods.containsBlockablePaymentMethod());
        QVERIFY(!ZTPaymentMethodList(methods.mid(0, 2)).containsBlockablePaymentMethod());
        QVERIFY(!ZTPaymentMethodList().paymentMethod(ZTPaymentId(3)).isValid());
    }

    void feeProductOfThePaymentId()
    {
        // The demo key account has a fee for the credit cards (payment id 1).
        const ZTProductAbstract* fee = method(ZTPaymentClassCreditCard, "id=12").paymentFeeProduct();
        QVERIFY(fee);
        QCOMPARE(fee, ZTAPMDataBase::instance()->paymentFeeProduct(ZTPaymentId(1)));
        QCOMPARE(method(ZTPaymentClassPayMethod, "id=4711").paymentFeeProduct(), nullptr);
        QCOMPARE(ZTPaymentMethod().paymentFeeProduct(), nullptr);
    }
};

QTEST_GUILESS_MAIN(tst_ZTPaymentMethod)
#include "tst_ZTPaymentMethod.moc"
