#include "ZTOCRBillExpressFee.h"
#include "ZTOCRBillPaymentFee.h"
#include "ZTOCRBillShipmentFee.h"
#include "ZTOCRBillTransfer.h"

#include <QDomDocument>
#include <QFile>
#include <QTest>

// The small items of a bill: how they are read and how they are declared back.
class tst_ZTOCRBillFees : public QObject
{
    Q_OBJECT

private:
    static QDomElement parse(const QString& theXml)
    {
        QDomDocument document;
        document.setContent(theXml);
        return document.documentElement();
    }

    static QString readFile(const QString& theName)
    {
        QFile file(QStringLiteral(ZT_TEST_DATA_DIR "/result/") + theName);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    // The attributes of each element in the stated order, every time: compared with the golden
    // file, whose lines a random attribute order would not match.
    void declaration()
    {
        QDomDocument document;
        QVERIFY(document.setContent(readFile(QStringLiteral("orders.xml"))));
        const QStringList expected = readFile(QStringLiteral("declaration.ref")).split(QLatin1Char('\n'));
        QStringList written;
        for (QDomElement order = document.documentElement().firstChildElement(QStringLiteral("order"));
             !order.isNull(); order = order.nextSiblingElement(QStringLiteral("order"))) {
            const ZTOCRBillTransfer transfer(order.firstChildElement(QStringLiteral("transfer")));
            const ZTOCRBillExpressFee express(order.firstChildElement(QStringLiteral("express_fee")));
            const ZTOCRBillPaymentFee payment(order.firstChildElement(QStringLiteral("paymethod_fee")));
            const ZTOCRBillShipmentFee shipment(
                order.firstChildElement(QStringLiteral("shipment_method_fee")));
            ZTXMLOrderedElement declaration(QStringLiteral("declaration"));
            declaration.appendChild(transfer.orderDeclarationElement())
                .appendChild(express.orderDeclarationElement())
                .appendChild(payment.orderDeclarationElement())
                .appendChild(shipment.orderDeclarationElement());
            written.append(declaration.toString());

            // The DOM form carries the same elements and attributes.
            QDomDocument out;
            QDomElement parent = out.createElement(QStringLiteral("declaration"));
            out.appendChild(parent);
            transfer.buildOrderDeclarationElement(parent);
            express.buildOrderDeclarationElement(parent);
            payment.buildOrderDeclarationElement(parent);
            shipment.buildOrderDeclarationElement(parent);
            QCOMPARE(parent.childNodes().size(), declaration.children().size());
            for (int i = 0; i < declaration.children().size(); ++i) {
                const ZTXMLOrderedElement child = declaration.children().at(i);
                const QDomElement built = parent.childNodes().at(i).toElement();
                QCOMPARE(built.tagName(), child.name());
                QCOMPARE(built.attributes().count(), child.attributes().size());
                for (const ZTXMLOrderedElement::Attribute& attribute : child.attributes())
                    QCOMPARE(built.attribute(attribute.first), attribute.second);
            }
        }
        written.append(QString());
        QCOMPARE(written, expected);
    }

    void readTransfer_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<int>("articleId");
        QTest::addColumn<int>("transferModel");
        QTest::addColumn<int>("price");
        QTest::addColumn<int>("discountModel");
        QTest::addColumn<int>("discountLevel");

        QTest::newRow("all")
            << "<transfer id='9001' model='2' price='495' discount_type='z' discount_level='3'/>" << QString()
            << 9001 << 2 << 495 << 32 << 3;
        QTest::newRow("nothing: article -1, not the empty transfer's 0")
            << "<transfer/>" << QString() << -1 << -1 << 0 << 0 << 0;
        QTest::newRow("bad numbers") << "<transfer id='9001' price='4.95' discount_level='x' model='two'/>"
                                     << QString() << 9001 << -1 << 0 << 0 << 0;
        QTest::newRow("bad article id")
            << "<transfer id='abc' price='5'/>"
            << "Invalid article id \"abc\" in attribute \"id\" of \"transfer\"" << -1 << -1 << 5 << 0 << 0;
        QTest::newRow("unknown discount code")
            << "<transfer id='9001' discount_type='q'/>"
            << "undecodable: \"q\" (using default in 19ZTDiscountModelEnum )" << 9001 << -1 << 0 << 0 << 0;
    }

    void readTransfer()
    {
        QFETCH(QString, xml);
        QFETCH(QString, warning);
        QFETCH(int, articleId);
        QFETCH(int, transferModel);
        QFETCH(int, price);
        QFETCH(int, discountModel);
        QFETCH(int, discountLevel);
        if (!warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        const QDomElement element = parse(xml);
        const ZTOCRBillTransfer transfer(element);
        QCOMPARE(transfer.articleId(), ZTArticleId(articleId));
        QCOMPARE(int(transfer.transferModel().value()), transferModel);
        QCOMPARE(transfer.price(), ZTMoney(price));
        QCOMPARE(int(transfer.discountModel().value()), discountModel);
        QCOMPARE(transfer.discountLevel(), discountLevel);

        // The express fee reads the same attributes but the model.
        if (!warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        const ZTOCRBillExpressFee express(element);
        QCOMPARE(express.articleId(), transfer.articleId());
        QCOMPARE(express.price(), transfer.price());
        QCOMPARE(express.discountModel(), transfer.discountModel());
        QCOMPARE(express.discountLevel(), transfer.discountLevel());
    }

    void emptyAndEqual()
    {
        // A null element and no element at all give the same empty fee.
        QCOMPARE(ZTOCRBillTransfer(QDomElement()), ZTOCRBillTransfer());
        QCOMPARE(ZTOCRBillTransfer().articleId(), ZTArticleId(0));
        QCOMPARE(ZTOCRBillPaymentFee(QDomElement()).price(), ZTMoney(0));
        QVERIFY(ZTOCRBillShipmentFee().orderDeclarationElement().isNull());

        const QString xml =
            QStringLiteral("<f id='9001' price='5' model='1' discount_type='x' discount_level='1'/>");
        QCOMPARE(ZTOCRBillTransfer(parse(xml)), ZTOCRBillTransfer(parse(xml)));
        QVERIFY(ZTOCRBillTransfer(parse(xml)) !=
                ZTOCRBillTransfer(parse(QString(xml).replace("'1'/", "'2'/"))));
        QVERIFY(ZTOCRBillTransfer(parse(xml)) !=
                ZTOCRBillTransfer(parse(QString(xml).replace("l='1'", "l='2'"))));
        QCOMPARE(ZTOCRBillExpressFee(parse(xml)), ZTOCRBillExpressFee(parse(xml)));
        QVERIFY(ZTOCRBillExpressFee(parse(xml)) !=
                ZTOCRBillExpressFee(parse(QString(xml).replace("'x'", "'b'"))));
        QVERIFY(ZTOCRBillPaymentFee(parse(xml)) !=
                ZTOCRBillPaymentFee(parse(QString(xml).replace("'5'", "'6'"))));
        QVERIFY(ZTOCRBillShipmentFee(parse(xml)) !=
                ZTOCRBillShipmentFee(parse(QString(xml).replace("9001", "9002"))));
    }
};

QTEST_GUILESS_MAIN(tst_ZTOCRBillFees)
#include "tst_ZTOCRBillFees.moc"
