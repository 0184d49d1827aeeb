#include "ZTXMLOrderedElement.h"

#include <QDomDocument>
#include <QTest>

// ZTXMLOrderedElement: attributes come out in the order in which they were added, in text and
// in the DOM alike.
class tst_ZTXMLOrderedElement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void writesInOrder_data()
    {
        QTest::addColumn<ZTXMLOrderedElement>("element");
        QTest::addColumn<QString>("text");

        ZTXMLOrderedElement fee(QStringLiteral("fee"));
        fee.addAttribute(QStringLiteral("z"), 1).addAttribute(QStringLiteral("a"), QStringLiteral("x"));
        fee.addAttribute(QStringLiteral("m"), -3);
        QTest::newRow("added order, not name order")
            << fee << QStringLiteral("<fee z=\"1\" a=\"x\" m=\"-3\"/>");

        ZTXMLOrderedElement again = fee;
        again.addAttribute(QStringLiteral("z"), 2);
        QTest::newRow("a name added again keeps its place")
            << again << QStringLiteral("<fee z=\"2\" a=\"x\" m=\"-3\"/>");

        ZTXMLOrderedElement escaped(QStringLiteral("coupon"));
        escaped.addAttribute(QStringLiteral("code"), QStringLiteral("<\"&'>"));
        QTest::newRow("escaped") << escaped << QStringLiteral("<coupon code=\"&lt;&quot;&amp;'&gt;\"/>");

        ZTXMLOrderedElement root(QStringLiteral("order"));
        root.addAttribute(QStringLiteral("id"), 7);
        root.appendChild(fee).appendChild(ZTXMLOrderedElement()).appendChild(escaped);
        QTest::newRow("children in order, null ones left out")
            << root
            << QStringLiteral("<order id=\"7\"><fee z=\"1\" a=\"x\" m=\"-3\"/><coupon "
                              "code=\"&lt;&quot;&amp;'&gt;\"/></order>");

        ZTXMLOrderedElement scratch(QStringLiteral("transfer"));
        scratch.addAttribute(QStringLiteral("b"), 0).addAttributesFrom([](QDomElement& theElement) {
            theElement.setAttribute(QStringLiteral("y"), 2);
            theElement.setAttribute(QStringLiteral("x"), 1);
            theElement.setAttribute(QStringLiteral("b"), 3);
        });
        QTest::newRow("taken from a DOM writer, by name")
            << scratch << QStringLiteral("<transfer b=\"3\" x=\"1\" y=\"2\"/>");

        QTest::newRow("null") << ZTXMLOrderedElement() << QString();
    }

    void writesInOrder()
    {
        QFETCH(ZTXMLOrderedElement, element);
        QFETCH(QString, text);
        QCOMPARE(element.toString(), text);

        // The DOM form holds the same attributes; their order there is the hash's business.
        QDomDocument document;
        QDomElement parent = document.createElement(QStringLiteral("parent"));
        document.appendChild(parent);
        const QDomElement built = element.appendTo(parent);
        QCOMPARE(built.isNull(), element.isNull());
        QCOMPARE(parent.childNodes().size(), element.isNull() ? 0 : 1);
        QCOMPARE(built.tagName(), element.name());
        QCOMPARE(built.attributes().count(), element.attributes().size());
        for (const ZTXMLOrderedElement::Attribute& attribute : element.attributes())
            QCOMPARE(built.attribute(attribute.first), attribute.second);
        QCOMPARE(built.childNodes().size(), element.children().size());
    }

    void indented()
    {
        ZTXMLOrderedElement root(QStringLiteral("declaration"));
        ZTXMLOrderedElement child(QStringLiteral("transfer"));
        child.addAttribute(QStringLiteral("price"), 0);
        root.appendChild(child).appendChild(child);
        QCOMPARE(root.toString(true), QStringLiteral("<declaration>\n  <transfer price=\"0\"/>\n"
                                                     "  <transfer price=\"0\"/>\n</declaration>\n"));
        QCOMPARE(root.attribute(QStringLiteral("none"), QStringLiteral("-")), QStringLiteral("-"));
        QCOMPARE(child.attribute(QStringLiteral("price")), QStringLiteral("0"));
    }
};

QTEST_GUILESS_MAIN(tst_ZTXMLOrderedElement)
#include "tst_ZTXMLOrderedElement.moc"
