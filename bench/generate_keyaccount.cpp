// generate_keyaccount: writes a synthetic key account of many articles (products, prices and
// delivery times documents) for the start-up benchmark. The documents look like the demo key
// account's, with every part an article may have, so that reading them costs what a real
// catalogue of that size costs.
//
// Two shapes: by default the products document is the big one (about 45 MB for 20,000 articles,
// with 13 MB of prices); with --prices-heavy the articles are lean (about 7 MB) and each carries
// a ladder of several rows per order source (about 30 MB of prices).
//
// usage: generate_keyaccount DIR [ARTICLES] [--prices-heavy]   (default 20000 articles)

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>

#include <cstdio>

namespace {

// Articles by shipping group: books and calendars in 1, prints in 16, wall art in 3.
struct Kind
{
    const char* arrangement;
    const char* cover;
    const char* head;
    int group;
};

const Kind theKinds[] = {
    {"book", "hardcover", "[BOOK]", 1}, {"book", "softcover", "[BOOK]", 1},
    {"book", "layflat", "[BOOK]", 1},   {"calendar", "calendar_monthly", "[CALENDAR]", 1},
    {"prints", "", "[PRINT]", 16},      {"single", "", "[WALLART]", 3},
    {"folded", "", "[CARD]", 1},
};

// Every tenth article is an add-on linked to the nine before it.
bool isAddOn(int theIndex)
{
    return theIndex % 10 == 9;
}

int articleId(int theIndex)
{
    return 100000 + theIndex;
}

// The shape of the key account being written.
bool thePricesHeavy = false;

void writeArticle(QTextStream& out, int theIndex)
{
    const Kind& kind = theKinds[theIndex % (sizeof(theKinds) / sizeof(theKinds[0]))];
    const int id = articleId(theIndex);
    const int width = 100 + theIndex % 200;
    const int height = 100 + (theIndex * 7) % 200;
    const bool addOn = isAddOn(theIndex);
    const char* element = addOn ? "add_on" : "article";
    out << "    <" << element << " id=\"" << id << "\" group=\"" << kind.group << "\" name=\""
        << (theIndex % 97) << " Artikel " << id << ' ' << kind.arrangement << "\" order_txt_type=\"TYPE_"
        << id << '"';
    if (addOn)
        out << " price_class=\"EXTRA_PAGES_" << theIndex % 13 << '"';
    else if (kind.arrangement != QLatin1String("prints"))
        out << " min_pages=\"" << 20 + theIndex % 10 << "\" max_pages=\"" << 100 + theIndex % 50
            << "\" page_increment=\"2\"";
    out << ">\n";
    if (!addOn) {
        out << "      <type arrangement=\"" << kind.arrangement << '"';
        if (*kind.cover)
            out << " cover=\"" << kind.cover << '"';
        out << " material=\"glossy\"/>\n";
    }
    if (!addOn && !thePricesHeavy) {
        out << "      <composition units=\"mm\">\n"
            << "        <page width=\"" << width << "\" height=\"" << height
            << "\" bleed_left_right=\"3\" bleed_top_bottom=\"3\" binding=\"left\"/>\n"
            << "        <cover width=\"" << 2 * width + 20 << "\" height=\"" << height + 13
            << "\" extra_width_left_right=\"15\" extra_height_top_bottom=\"15\"\n"
            << "               bleed_left_right=\"2\" bleed_top_bottom=\"2\"/>\n"
            << "        <panorama_page base_width=\"" << 2 * width << "\" wing_width=\"" << width << "\"/>\n"
            << "        <spine base_width=\"5\" page_thickness=\"0.12\" min_width=\"6\" text_margin=\"1\" "
               "min_font_height=\"3\"\n"
            << "               max_font_height=\"12\" cover_reduce_width=\"10\"/>\n"
            << "        <barcode><position x=\"" << width - 10 << "\" y=\"" << height - 7
            << "\" width=\"40\" height=\"12\"/></barcode>\n"
            << "      </composition>\n"
            << "      <print_quality dpi=\"300\" dpi_green=\"150\" dpi_yellow=\"90\" "
               "pt_minimum_fontsize=\"6\"/>\n";
    }
    out << "      <order_txt_lines head=\"" << (addOn ? "[PAGES]" : kind.head) << "\">";
    for (int line = 0; line < (thePricesHeavy ? 2 : 24); ++line)
        out << "<line>KEY" << line << '=' << id % (line + 7) << "</line>";
    out << "<line>BORDER=" << theIndex % 2 << "</line></order_txt_lines>\n";
    if (addOn) {
        out << "      <linked_articles>\n        ";
        for (int linked = theIndex - 9; linked < theIndex; ++linked)
            out << "<linked_article id=\"" << articleId(linked) << "\"/>";
        out << "\n      </linked_articles>\n";
    } else if (!thePricesHeavy) {
        out << "      <further_conditions>\n"
            << "        <further_condition condition=\"giftBoxAndGiftServiceNotAllowed\"/>\n"
            << "        <further_condition condition=\"memorabiliaPocketAndSlipcaseNotAllowed\"/>\n"
            << "      </further_conditions>\n"
            << "      <descriptions>\n"
            << "        <description lang=\"de\">Synthetisches Produkt " << id
            << " für den Lasttest: Format, Einband und Papier wie ein echtes Produkt des Katalogs, damit "
               "die Länge der Beschreibung der eines echten Dokuments entspricht.</description>\n"
            << "        <description lang=\"en\">Synthetic product " << id
            << " for the load test: size, cover and paper like a real product of the catalogue, so that "
               "the description is as long as that of a real document.</description>\n"
            << "        <description lang=\"fr\">Produit synthétique " << id
            << " pour le test de charge : format, couverture et papier comme un vrai produit du catalogue, "
               "pour que la description ait la longueur de celle d'un vrai document.</description>\n"
            << "      </descriptions>\n";
    }
    out << "    </" << element << ">\n";
}

// Four rows per order source: the base price with transfer prices and an offer, and three
// discount levels.
void writeLadder(QTextStream& out, int theIndex)
{
    const int base = 100 + theIndex % 5000;
    const char* element = isAddOn(theIndex) ? "add_on" : "article";
    const char* sources[] = {"input_source=\"0\" delivery_type=\"1\"",
                             "input_source=\"0\" delivery_type=\"0\"",
                             "input_source=\"1\" delivery_type=\"0\""};
    const int quantities[] = {1, 5, 10, 25};
    out << "    <" << element << " id=\"" << articleId(theIndex) << "\">\n      <base_prices>\n";
    for (const char* source : sources)
        out << "        <price " << source << " level=\"0\" quantity=\"1\" price=\"" << base
            << "\" non_offer_price=\"" << base + 100 << "\" end_offer_date=\"2030-12-31T23:59:59\" "
            << "transfer_unit_price=\"10\" transfer_base_price=\"495\"/>\n";
    out << "      </base_prices>\n      <discount_prices>\n";
    for (const char* source : sources) {
        for (int level = 1; level < 4; ++level)
            out << "        <price " << source << " level=\"" << level << "\" quantity=\""
                << quantities[level] << "\" price=\"" << base - 5 * level << "\" non_offer_price=\""
                << base + 100 - 5 * level << "\"/>\n";
    }
    out << "      </discount_prices>\n    </" << element << ">\n";
}

void writePrices(QTextStream& out, int theIndex)
{
    if (thePricesHeavy) {
        writeLadder(out, theIndex);
        return;
    }
    const int base = 100 + theIndex % 5000;
    out << "    <" << (isAddOn(theIndex) ? "add_on" : "article") << " id=\"" << articleId(theIndex) << "\">\n"
        << "      <base_prices>\n"
        << "        <price input_source=\"0\" delivery_type=\"1\" level=\"0\" quantity=\"1\" price=\"" << base
        << "\" non_offer_price=\"" << base + 100
        << "\" transfer_unit_price=\"10\" transfer_base_price=\"495\"/>\n"
        << "        <price input_source=\"0\" delivery_type=\"0\" level=\"0\" quantity=\"1\" price=\""
        << base + 50 << "\"/>\n"
        << "        <price input_source=\"1\" delivery_type=\"0\" level=\"0\" quantity=\"1\" price=\""
        << base + 50 << "\"/>\n"
        << "      </base_prices>\n"
        << "      <discount_prices>\n"
        << "        <price input_source=\"0\" delivery_type=\"1\" level=\"1\" quantity=\"10\" price=\""
        << base - 10 << "\"/>\n"
        << "        <price input_source=\"0\" delivery_type=\"1\" level=\"2\" quantity=\"50\" price=\""
        << base - 20 << "\"/>\n"
        << "      </discount_prices>\n"
        << "    </" << (isAddOn(theIndex) ? "add_on" : "article") << ">\n";
}

void writeDeliveryTimes(QTextStream& out, int theIndex)
{
    const char* element = isAddOn(theIndex) ? "add_on" : "article";
    out << "    <" << element << " id=\"" << articleId(theIndex) << "\"><delivery_times>\n"
        << "      <delivery_time days=\"7-9\" delivery_type=\"1\" express=\"0\"/>\n"
        << "      <delivery_time days=\"3-4\" delivery_type=\"1\" express=\"3\"/>\n"
        << "      <delivery_time days=\"8-10\" delivery_type=\"0\" express=\"0\"/>\n"
        << "    </delivery_times></" << element << ">\n";
}

const char* const theFees = R"(  <transfers>
    <transfer id="9001" group="1" name="Versand"/>
    <transfer id="9002" group="16" name="Versand"/>
    <transfer id="9003" group="3" name="Versand"/>
  </transfers>
  <express_fees>
    <express_fee id="9101" group="1" express_id="3" name="Expressversand"/>
    <express_fee id="9102" group="16" express_id="3" name="Expressversand"/>
    <express_fee id="9103" group="3" express_id="3" name="Expressversand"/>
  </express_fees>
  <pay_method_fees>
    <pay_method_fee id="9201" group="1" pay_method_id="1" name="Gebühr Rechnung"/>
  </pay_method_fees>
  <shipment_method_fees>
    <shipment_method_fee id="9301" group="1" shipment_method_id="1" name="Standardpaket"/>
  </shipment_method_fees>
)";

bool writeDocument(const QDir& theDir, const QString& theName, int theCount,
                   void (*theWriter)(QTextStream&, int), const char* theRoot, bool withFees)
{
    QFile file(theDir.filePath(theName));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(file.fileName()));
        return false;
    }
    QTextStream out(&file);
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<" << theRoot << ">\n";
    for (const bool addOns : {false, true}) {
        out << (addOns ? "  <add_ons>\n" : "  <articles>\n");
        for (int i = 0; i < theCount; ++i) {
            if (isAddOn(i) == addOns)
                theWriter(out, i);
        }
        out << (addOns ? "  </add_ons>\n" : "  </articles>\n");
    }
    if (withFees)
        out << theFees;
    out << "</" << theRoot << ">\n";
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    thePricesHeavy = arguments.removeAll(QStringLiteral("--prices-heavy")) > 0;
    if (arguments.size() < 2 || arguments.size() > 3) {
        std::fprintf(stderr, "usage: generate_keyaccount DIR [ARTICLES] [--prices-heavy]\n");
        return 2;
    }
    const int count = arguments.size() > 2 ? arguments.at(2).toInt() : 20000;
    QDir dir(arguments.at(1));
    if (count <= 0 || !dir.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "bad directory or article count\n");
        return 2;
    }
    const bool ok =
        writeDocument(dir, QStringLiteral("products.xml"), count, writeArticle, "xtci", true) &&
        writeDocument(dir, QStringLiteral("prices.xml"), count, writePrices, "prices", false) &&
        writeDocument(dir, QStringLiteral("deliverytimes.xml"), count, writeDeliveryTimes, "xtci", false);
    return ok ? 0 : 1;
}
