<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ZTAPMArticleCommand</name>
    <message>
        <source>an article&apos;s facts, price ladder and delivery times</source>
        <translation>die Angaben eines Artikels, seine Preisstaffel und Lieferzeiten</translation>
    </message>
    <message>
        <source>usage: article ID</source>
        <translation>Aufruf: article ID</translation>
    </message>
    <message>
        <source>point of sale</source>
        <translation>Filiale</translation>
    </message>
    <message>
        <source>mail order</source>
        <translation>Postversand</translation>
    </message>
    <message>
        <source>not given</source>
        <translation>keine Angabe</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>express</source>
        <translation>Express</translation>
    </message>
    <message>
        <source>Article</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Shipping group</source>
        <translation>Versandgruppe</translation>
    </message>
    <message>
        <source>Product type</source>
        <translation>Produkttyp</translation>
    </message>
    <message>
        <source>Order text head</source>
        <translation>Auftragstext-Kopf</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>%1 to %2, in steps of %3</source>
        <translation>%1 bis %2, in Schritten von %3</translation>
    </message>
    <message>
        <source>Linked articles</source>
        <translation>Bezugsartikel</translation>
    </message>
    <message>
        <source>Required add-ons</source>
        <translation>Pflicht-Zusätze</translation>
    </message>
    <message>
        <source>Deprecated</source>
        <translation>Veraltet</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Prices:</source>
        <translation>Preise:</translation>
    </message>
    <message>
        <source>from</source>
        <translation>ab</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>unit price</source>
        <translation>Stückpreis</translation>
    </message>
    <message>
        <source>offer</source>
        <translation>Angebot</translation>
    </message>
    <message>
        <source>instead of %1</source>
        <translation>statt %1</translation>
    </message>
    <message>
        <source>Delivery times:</source>
        <translation>Lieferzeiten:</translation>
    </message>
    <message>
        <source>%1 to %2 days</source>
        <translation>%1 bis %2 Tage</translation>
    </message>
</context>
<context>
    <name>ZTAPMCatalogueCommand</name>
    <message>
        <source>every product with its lowest price per order source</source>
        <translation>jedes Produkt mit seinem niedrigsten Preis je Bestellweg</translation>
    </message>
    <message>
        <source>id</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>group</source>
        <translation>Grp.</translation>
    </message>
    <message>
        <source> [deprecated]</source>
        <translation> [veraltet]</translation>
    </message>
    <message>
        <source>%1 products</source>
        <translation>%1 Produkte</translation>
    </message>
</context>
<context>
    <name>ZTAPMCheckCommand</name>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>%1 error</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>%1 Warnung</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 Warnungen</translation>
    </message>
    <message>
        <source>%1 note</source>
        <translation>%1 Hinweis</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>%1 Hinweise</translation>
    </message>
    <message>
        <source>check the key account&apos;s documents: each problem with file, line,
column and severity; exit status 5 if one is an error</source>
        <translation>die Dokumente des Key Accounts prüfen: jedes Problem mit Datei, Zeile,
Spalte und Schweregrad; Exit-Status 5, wenn eines ein Fehler ist</translation>
    </message>
    <message>
        <source>%1: %2: %3</source>
        <translation>%1: %2: %3</translation>
    </message>
</context>
<context>
    <name>ZTAPMCommand</name>
    <message>
        <source>%1 (%2, default)</source>
        <translation>%1 (%2, Standard)</translation>
    </message>
    <message>
        <source>%1 takes no arguments</source>
        <translation>%1 nimmt keine Argumente</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no article id</source>
        <translation>&apos;%1&apos; ist keine Artikelnummer</translation>
    </message>
    <message>
        <source>article %1 does not exist in %2</source>
        <translation>Artikel %1 gibt es in %2 nicht</translation>
    </message>
    <message>
        <source>no price</source>
        <translation>kein Preis</translation>
    </message>
</context>
<context>
    <name>ZTAPMCommandLine</name>
    <message>
        <source>Runs the ZTAPM engine on a key account.</source>
        <translation>Führt die ZTAPM-Engine auf einem Key Account aus.</translation>
    </message>
    <message>
        <source>Key-account directory (default: the demo key account).</source>
        <translation>Verzeichnis des Key Accounts (Standard: der Demo-Key-Account).</translation>
    </message>
    <message>
        <source>Print one JSON document.</source>
        <translation>Ein JSON-Dokument ausgeben.</translation>
    </message>
    <message>
        <source>Show the engine&apos;s log.</source>
        <translation>Das Protokoll der Engine zeigen.</translation>
    </message>
    <message>
        <source>Language of the output, %1 (default: from LC_ALL, LC_MESSAGES or LANG, English unless German).</source>
        <translation>Sprache der Ausgabe, %1 (Standard: aus LC_ALL, LC_MESSAGES oder LANG, Englisch außer bei Deutsch).</translation>
    </message>
    <message>
        <source>or</source>
        <translation>oder</translation>
    </message>
    <message>
        <source>What to do (see above).</source>
        <translation>Was zu tun ist (siehe oben).</translation>
    </message>
    <message>
        <source>--lang takes %1, not &apos;%2&apos;</source>
        <translation>--lang nimmt %1, nicht &apos;%2&apos;</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;; see --help</source>
        <translation>unbekannter Befehl &apos;%1&apos;; siehe --help</translation>
    </message>
    <message>
        <source>data directory &apos;%1&apos; does not exist</source>
        <translation>Datenverzeichnis &apos;%1&apos; existiert nicht</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source> (default)</source>
        <translation> (Standard)</translation>
    </message>
    <message>
        <source>%1 goes with the commands %2</source>
        <translation>%1 gehört zu den Befehlen %2</translation>
    </message>
    <message>
        <source>%1 goes with the command %2</source>
        <translation>%1 gehört zum Befehl %2</translation>
    </message>
    <message>
        <source>%1 go with the command %2</source>
        <translation>%1 gehören zum Befehl %2</translation>
    </message>
    <message>
        <source>and</source>
        <translation>und</translation>
    </message>
    <message>
        <source>Order sources (--source): %1.
Exit status: 0 done, 2 usage error, 3 data directory, file or article not found,
4 the file is no valid order calculation, 5 check found errors.</source>
        <translation>Bestellwege (--source): %1.
Exit-Status: 0 erledigt, 2 Aufruffehler, 3 Datenverzeichnis, Datei oder Artikel nicht gefunden,
4 die Datei ist keine gültige Bestellberechnung, 5 check hat Fehler gefunden.</translation>
    </message>
</context>
<context>
    <name>ZTAPMLadderChart</name>
    <message>
        <source>no prices</source>
        <translation>keine Preise</translation>
    </message>
    <message>
        <source>quantity (pieces, logarithmic scale)</source>
        <translation>Menge (Stück, logarithmische Skala)</translation>
    </message>
    <message>
        <source>quantity (pieces)</source>
        <translation>Menge (Stück)</translation>
    </message>
    <message>
        <source>unit price</source>
        <translation>Stückpreis</translation>
    </message>
    <message>
        <source>regular price</source>
        <translation>regulärer Preis</translation>
    </message>
    <message>
        <source>offer price</source>
        <translation>Angebotspreis</translation>
    </message>
</context>
<context>
    <name>ZTAPMLadderCommand</name>
    <message>
        <source>a chart of the unit price by quantity, one line per order source
--svg FILE | --png FILE [--source S]</source>
        <translation>ein Diagramm des Stückpreises nach Menge, eine Linie je Bestellweg
--svg FILE | --png FILE [--source S]</translation>
    </message>
    <message>
        <source>price, ladder: the order source (default %1; ladder: all).</source>
        <translation>price, ladder: der Bestellweg (Standard %1; ladder: alle).</translation>
    </message>
    <message>
        <source>ladder: write the chart as SVG.</source>
        <translation>ladder: das Diagramm als SVG schreiben.</translation>
    </message>
    <message>
        <source>ladder: write the chart as PNG.</source>
        <translation>ladder: das Diagramm als PNG schreiben.</translation>
    </message>
    <message>
        <source>usage: ladder ID --svg FILE | --png FILE [--source S]</source>
        <translation>Aufruf: ladder ID --svg FILE | --png FILE [--source S]</translation>
    </message>
    <message>
        <source>unknown order source &apos;%1&apos;; use %2</source>
        <translation>unbekannter Bestellweg &apos;%1&apos;; möglich sind %2</translation>
    </message>
    <message>
        <source>or</source>
        <translation>oder</translation>
    </message>
    <message>
        <source>Article %1 %2</source>
        <translation>Artikel %1 %2</translation>
    </message>
    <message>
        <source>Price ladder of article %1</source>
        <translation>Preisstaffel von Artikel %1</translation>
    </message>
    <message>
        <source>Unit price by quantity, one line per order source</source>
        <translation>Stückpreis nach Menge, eine Linie je Bestellweg</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;: %2</source>
        <translation>&apos;%1&apos; kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Article %1: %2, quantities up to %3 (%4 scale), prices up to %5, written to %6
</source>
        <translation>Artikel %1: %2, Mengen bis %3 (Skala: %4), Preise bis %5, geschrieben nach %6
</translation>
    </message>
    <message>
        <source>no prices</source>
        <translation>keine Preise</translation>
    </message>
    <message>
        <source>logarithmic</source>
        <translation>logarithmisch</translation>
    </message>
    <message>
        <source>linear</source>
        <translation>linear</translation>
    </message>
</context>
<context>
    <name>ZTAPMOrderingCommand</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>what the key account permits and how an order starts: order sources,
payments and fees, shipment methods, currencies, shipping groups, rules</source>
        <translation>was der Key Account erlaubt und wie eine Bestellung beginnt: Bestellwege,
Zahlarten und Gebühren, Versandarten, Währungen, Versandgruppen, Regeln</translation>
    </message>
    <message>
        <source>unknown order source &apos;%1&apos;; use %2</source>
        <translation>unbekannter Bestellweg &apos;%1&apos;; möglich sind %2</translation>
    </message>
    <message>
        <source>or</source>
        <translation>oder</translation>
    </message>
    <message>
        <source>Order sources (default %1, current %2):</source>
        <translation>Bestellwege (Standard %1, aktuell %2):</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>freigegeben</translation>
    </message>
    <message>
        <source>not enabled</source>
        <translation>nicht freigegeben</translation>
    </message>
    <message>
        <source>no payment</source>
        <translation>keine Zahlart</translation>
    </message>
    <message>
        <source>Starting payment: %1</source>
        <translation>Anfängliche Zahlart: %1</translation>
    </message>
    <message>
        <source>Starting shipment method: %1</source>
        <translation>Anfängliche Versandart: %1</translation>
    </message>
    <message>
        <source>Shipment methods:</source>
        <translation>Versandarten:</translation>
    </message>
    <message>
        <source> (default)</source>
        <translation> (Standard)</translation>
    </message>
    <message>
        <source>asks for: %1</source>
        <translation>fragt nach: %1</translation>
    </message>
    <message>
        <source>Shipping groups, in price-list order:</source>
        <translation>Versandgruppen, in der Reihenfolge der Preisliste:</translation>
    </message>
    <message>
        <source>transfer model %1</source>
        <translation>Versandmodell %1</translation>
    </message>
    <message>
        <source>papers %1</source>
        <translation>Papiere %1</translation>
    </message>
    <message>
        <source>(* active: named and with articles)</source>
        <translation>(* aktiv: benannt und mit Artikeln)</translation>
    </message>
    <message>
        <source>Currency: %1, %2</source>
        <translation>Währung: %1, %2</translation>
    </message>
    <message>
        <source>; secondary %1, %2 (factor %3)</source>
        <translation>; Zweitwährung %1, %2 (Faktor %3)</translation>
    </message>
    <message>
        <source>Discount texts:</source>
        <translation>Rabatttexte:</translation>
    </message>
    <message>
        <source>Rules:</source>
        <translation>Regeln:</translation>
    </message>
    <message>
        <source>single sign-on</source>
        <translation>Single Sign-on</translation>
    </message>
    <message>
        <source>login URL</source>
        <translation>Anmelde-URL</translation>
    </message>
    <message>
        <source>account data</source>
        <translation>Kontodaten</translation>
    </message>
    <message>
        <source>can be changed</source>
        <translation>änderbar</translation>
    </message>
    <message>
        <source>cannot be changed</source>
        <translation>nicht änderbar</translation>
    </message>
    <message>
        <source>password policy</source>
        <translation>Passwortregeln</translation>
    </message>
    <message>
        <source>at least %1 characters; %2 points fair, %3 good</source>
        <translation>mindestens %1 Zeichen; %2 Punkte mittel, %3 gut</translation>
    </message>
    <message>
        <source>coupons</source>
        <translation>Gutscheine</translation>
    </message>
    <message>
        <source>%1, discount coupons %2</source>
        <translation>%1, Rabattgutscheine %2</translation>
    </message>
    <message>
        <source>any number</source>
        <translation>beliebig viele</translation>
    </message>
    <message>
        <source>double opt-in</source>
        <translation>Double-Opt-in</translation>
    </message>
    <message>
        <source>address check</source>
        <translation>Adressprüfung</translation>
    </message>
    <message>
        <source>sales tax check</source>
        <translation>Umsatzsteuerprüfung</translation>
    </message>
    <message>
        <source>default selling pages</source>
        <translation>Standard-Seitenzahl</translation>
    </message>
</context>
<context>
    <name>ZTAPMPriceCommand</name>
    <message>
        <source>the amount for COUNT pieces, with every model&apos;s amount</source>
        <translation>der Betrag für COUNT Stück, mit dem Betrag jedes Modells</translation>
    </message>
    <message>
        <source>price: the goods&apos; sum in hundredths, for &quot;z&quot; rows.</source>
        <translation>price: der Warenwert in Hundertsteln, für &quot;z&quot;-Zeilen.</translation>
    </message>
    <message>
        <source>price: &quot;x&quot; to price an express fee.</source>
        <translation>price: &quot;x&quot; für den Preis einer Expressgebühr.</translation>
    </message>
    <message>
        <source>usage: price ID COUNT [--source S] [--sum CENTS] [--model x]</source>
        <translation>Aufruf: price ID COUNT [--source S] [--sum CENTS] [--model x]</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number of pieces</source>
        <translation>&apos;%1&apos; ist keine Stückzahl</translation>
    </message>
    <message>
        <source>unknown order source &apos;%1&apos;; use %2</source>
        <translation>unbekannter Bestellweg &apos;%1&apos;; möglich sind %2</translation>
    </message>
    <message>
        <source>or</source>
        <translation>oder</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no goods&apos; sum in hundredths</source>
        <translation>&apos;%1&apos; ist kein Warenwert in Hundertsteln</translation>
    </message>
    <message>
        <source>--model takes only x (an express fee); the engine chooses every other model</source>
        <translation>--model nimmt nur x (eine Expressgebühr); jedes andere Modell wählt die Engine</translation>
    </message>
    <message>
        <source>Article %1, %2 piece(s), order source %3</source>
        <translation>Artikel %1, %2 Stück, Bestellweg %3</translation>
    </message>
    <message>
        <source>model %1</source>
        <translation>Modell %1</translation>
    </message>
    <message>
        <source>  &lt;- chosen</source>
        <translation>  &lt;- gewählt</translation>
    </message>
    <message>
        <source>Amount: %1</source>
        <translation>Betrag: %1</translation>
    </message>
    <message>
        <source>Amount: %1 (model %2)</source>
        <translation>Betrag: %1 (Modell %2)</translation>
    </message>
</context>
<context>
    <name>ZTAPMQuoteArguments</name>
    <message>
        <source>%1: the payment method, ID or ID_BRAND (default the order source&apos;s starting payment).</source>
        <translation>%1: die Zahlart, ID oder ID_BRAND (Standard die anfängliche Zahlart des Bestellwegs).</translation>
    </message>
    <message>
        <source>%1: the shipment method id.</source>
        <translation>%1: die Nummer der Versandart.</translation>
    </message>
    <message>
        <source>%1: the express wish, standard or express (default none).</source>
        <translation>%1: der Expresswunsch, standard oder express (Standard keiner).</translation>
    </message>
    <message>
        <source>price, quote, ordering, result: the order source (default %1).</source>
        <translation>price, quote, ordering, result: der Bestellweg (Standard %1).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no item ID:COUNT</source>
        <translation>&apos;%1&apos; ist keine Position ID:COUNT</translation>
    </message>
    <message>
        <source>unknown order source &apos;%1&apos;; see --help</source>
        <translation>unbekannter Bestellweg &apos;%1&apos;; siehe --help</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no shipment method id</source>
        <translation>&apos;%1&apos; ist keine Nummer einer Versandart</translation>
    </message>
    <message>
        <source>--express takes standard or express, not &apos;%1&apos;</source>
        <translation>--express nimmt standard oder express, nicht &apos;%1&apos;</translation>
    </message>
    <message>
        <source>no payment method &apos;%1&apos; for %2</source>
        <translation>keine Zahlart &apos;%1&apos; für %2</translation>
    </message>
    <message>
        <source>no shipment method %1</source>
        <translation>keine Versandart %1</translation>
    </message>
</context>
<context>
    <name>ZTAPMQuoteCommand</name>
    <message>
        <source>one bill per shipping group of the basket, with fees and the total</source>
        <translation>eine Rechnung je Versandgruppe des Warenkorbs, mit Gebühren und Summe</translation>
    </message>
    <message>
        <source>usage: quote ID:COUNT [ID:COUNT ...] [--source S] [--payment ID[_BRAND]] [--shipment ID] [--express standard|express]</source>
        <translation>Aufruf: quote ID:COUNT [ID:COUNT ...] [--source S] [--payment ID[_BRAND]] [--shipment ID] [--express standard|express]</translation>
    </message>
    <message>
        <source>express</source>
        <translation>Express</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Quote, order source %1, payment %2, shipment %3, express %4</source>
        <translation>Kostenvoranschlag, Bestellweg %1, Zahlart %2, Versandart %3, Express %4</translation>
    </message>
    <message>
        <source>Shipping group %1 %2</source>
        <translation>Versandgruppe %1 %2</translation>
    </message>
    <message>
        <source>Shipping group %1 %2 (not valid)</source>
        <translation>Versandgruppe %1 %2 (nicht gültig)</translation>
    </message>
    <message>
        <source>not orderable</source>
        <translation>nicht bestellbar</translation>
    </message>
    <message>
        <source> (instead of %1)</source>
        <translation> (statt %1)</translation>
    </message>
    <message>
        <source>Transfer (article %1): %2 (unit %3, base %4)</source>
        <translation>Versand (Artikel %1): %2 (Einheit %3, Grundbetrag %4)</translation>
    </message>
    <message>
        <source>Transfer: none</source>
        <translation>Versand: keiner</translation>
    </message>
    <message>
        <source>Payment fee: %1</source>
        <translation>Zahlungsgebühr: %1</translation>
    </message>
    <message>
        <source>Express fee: %1</source>
        <translation>Expressgebühr: %1</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Summe: %1</translation>
    </message>
    <message>
        <source>Shipment fee: %1</source>
        <translation>Versandartgebühr: %1</translation>
    </message>
</context>
<context>
    <name>ZTAPMResultCommand</name>
    <message>
        <source>position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>transfer</source>
        <translation>Versand</translation>
    </message>
    <message>
        <source>express fee</source>
        <translation>Expressgebühr</translation>
    </message>
    <message>
        <source>payment fee</source>
        <translation>Zahlungsgebühr</translation>
    </message>
    <message>
        <source>bill total</source>
        <translation>Rechnungssumme</translation>
    </message>
    <message>
        <source>shipment fee</source>
        <translation>Versandartgebühr</translation>
    </message>
    <message>
        <source>products</source>
        <translation>Produkte</translation>
    </message>
    <message>
        <source>transfers</source>
        <translation>Versand gesamt</translation>
    </message>
    <message>
        <source>total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>express</source>
        <translation>Express</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>the server&apos;s order calculation in FILE: sums, bills, fees, taxes, coupons,
shipping dates and the pay methods it permits</source>
        <translation>die Bestellberechnung des Servers in FILE: Summen, Rechnungen, Gebühren, Steuern, Gutscheine,
Versandtermine und die Zahlarten, die sie erlaubt</translation>
    </message>
    <message>
        <source>result: writes the order declaration of the bills to OUT.</source>
        <translation>result: schreibt die Bestellerklärung der Rechnungen nach OUT.</translation>
    </message>
    <message>
        <source>result: compares with the local quote of the basket; further items ID:COUNT follow FILE.</source>
        <translation>result: vergleicht mit dem lokalen Kostenvoranschlag des Warenkorbs; weitere Positionen ID:COUNT folgen auf FILE.</translation>
    </message>
    <message>
        <source>usage: result FILE [--source S] [--payment ID[_BRAND]] [--declaration OUT] [--basket ID:COUNT ...]</source>
        <translation>Aufruf: result FILE [--source S] [--payment ID[_BRAND]] [--declaration OUT] [--basket ID:COUNT ...]</translation>
    </message>
    <message>
        <source>file &apos;%1&apos; does not exist</source>
        <translation>Datei &apos;%1&apos; existiert nicht</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no order calculation: it cannot be read</source>
        <translation>&apos;%1&apos; ist keine Bestellberechnung: sie kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no valid order calculation: it holds no valid bill</source>
        <translation>&apos;%1&apos; ist keine gültige Bestellberechnung: sie enthält keine gültige Rechnung</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no valid order calculation: %2 bill(s), but total_parts says %3</source>
        <translation>&apos;%1&apos; ist keine gültige Bestellberechnung: %2 Rechnung(en), aber total_parts nennt %3</translation>
    </message>
    <message>
        <source>cannot write &apos;%1&apos;</source>
        <translation>&apos;%1&apos; kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Order calculation %1, order source %2, payment %3</source>
        <translation>Bestellberechnung %1, Bestellweg %2, Zahlart %3</translation>
    </message>
    <message>
        <source>%1 product(s) for %2, transfers %3, coupons %4, total %5</source>
        <translation>%1 Produkt(e) für %2, Versand %3, Gutscheine %4, Summe %5</translation>
    </message>
    <message>
        <source>Shipping group %1 %2</source>
        <translation>Versandgruppe %1 %2</translation>
    </message>
    <message>
        <source>pos %1</source>
        <translation>Pos. %1</translation>
    </message>
    <message>
        <source>%1 photo(s), at most %2 per piece; transfer base %3, unit %4</source>
        <translation>%1 Foto(s), höchstens %2 je Stück; Versand Grundbetrag %3, Einheit %4</translation>
    </message>
    <message>
        <source>part %1: %2 %3, %4 x %5 per piece</source>
        <translation>Teil %1: %2 %3, %4 x %5 je Stück</translation>
    </message>
    <message>
        <source>Transfer (article %1, transfer model %2, %3): %4</source>
        <translation>Versand (Artikel %1, Versandmodell %2, %3): %4</translation>
    </message>
    <message>
        <source>Express fee: none</source>
        <translation>Expressgebühr: keine</translation>
    </message>
    <message>
        <source>Express fee (article %1%2): %3</source>
        <translation>Expressgebühr (Artikel %1%2): %3</translation>
    </message>
    <message>
        <source>Payment fee: none</source>
        <translation>Zahlungsgebühr: keine</translation>
    </message>
    <message>
        <source>Payment fee (article %1%2): %3</source>
        <translation>Zahlungsgebühr (Artikel %1%2): %3</translation>
    </message>
    <message>
        <source>Shipment fee: none</source>
        <translation>Versandartgebühr: keine</translation>
    </message>
    <message>
        <source>Shipment fee (article %1%2): %3</source>
        <translation>Versandartgebühr (Artikel %1%2): %3</translation>
    </message>
    <message>
        <source>Sales tax: none</source>
        <translation>Umsatzsteuer: keine</translation>
    </message>
    <message>
        <source>Sales tax: %1</source>
        <translation>Umsatzsteuer: %1</translation>
    </message>
    <message>
        <source>Provincial sales tax: none</source>
        <translation>Provinz-Umsatzsteuer: keine</translation>
    </message>
    <message>
        <source>Provincial sales tax: %1</source>
        <translation>Provinz-Umsatzsteuer: %1</translation>
    </message>
    <message>
        <source>Coupon %1: %2</source>
        <translation>Gutschein %1: %2</translation>
    </message>
    <message>
        <source>(from the server)</source>
        <translation>(vom Server)</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Shipping: %1</source>
        <translation>Versandtermine: %1</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>kein Termin</translation>
    </message>
    <message>
        <source>Total: %1 (before taxes %2)</source>
        <translation>Summe: %1 (vor Steuern %2)</translation>
    </message>
    <message>
        <source>Coupons: %1</source>
        <translation>Gutscheine: %1</translation>
    </message>
    <message>
        <source>Express types of every bill: %1</source>
        <translation>Expressarten aller Rechnungen: %1</translation>
    </message>
    <message>
        <source>Pay methods:</source>
        <translation>Zahlarten:</translation>
    </message>
    <message>
        <source> (express)</source>
        <translation> (Express)</translation>
    </message>
    <message>
        <source>(unknown to the client)</source>
        <translation>(dem Client unbekannt)</translation>
    </message>
    <message>
        <source>no shipment method</source>
        <translation>keine Versandart</translation>
    </message>
    <message>
        <source>Declaration written to %1</source>
        <translation>Bestellerklärung geschrieben nach %1</translation>
    </message>
    <message>
        <source>Local quote: %1; %2 line(s) compared, %3</source>
        <translation>Lokaler Kostenvoranschlag: %1; %2 Zeile(n) verglichen, %3</translation>
    </message>
    <message>
        <source>no difference</source>
        <translation>kein Unterschied</translation>
    </message>
    <message>
        <source>%1 difference(s):</source>
        <translation>%1 Unterschied(e):</translation>
    </message>
    <message>
        <source>order</source>
        <translation>Bestellung</translation>
    </message>
    <message>
        <source>group %1</source>
        <translation>Gruppe %1</translation>
    </message>
    <message>
        <source>local %1</source>
        <translation>lokal %1</translation>
    </message>
    <message>
        <source>server %1</source>
        <translation>Server %1</translation>
    </message>
</context>
<context>
    <name>ZTAPMStartupCommand</name>
    <message>
        <source>run the engine&apos;s start-up and report what it loaded</source>
        <translation>den Start der Engine ausführen und berichten, was sie geladen hat</translation>
    </message>
    <message>
        <source>products</source>
        <translation>Produkte</translation>
    </message>
    <message>
        <source>prices</source>
        <translation>Preise</translation>
    </message>
    <message>
        <source>delivery times</source>
        <translation>Lieferzeiten</translation>
    </message>
    <message>
        <source>ordering details</source>
        <translation>Bestelldetails</translation>
    </message>
    <message>
        <source>currencies</source>
        <translation>Währungen</translation>
    </message>
    <message>
        <source>configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>payment fees</source>
        <translation>Zahlungsgebühren</translation>
    </message>
    <message>
        <source>transfer fees</source>
        <translation>Versandkosten</translation>
    </message>
    <message>
        <source>express fees</source>
        <translation>Expressgebühren</translation>
    </message>
    <message>
        <source>shipment method fees</source>
        <translation>Versandartgebühren</translation>
    </message>
    <message>
        <source>Key account: %1</source>
        <translation>Key Account: %1</translation>
    </message>
    <message>
        <source>Documents:</source>
        <translation>Dokumente:</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Products document read into the registries: %1 time(s)</source>
        <translation>Produktdokument in die Register gelesen: %1 Mal</translation>
    </message>
    <message>
        <source>Registries:</source>
        <translation>Register:</translation>
    </message>
    <message>
        <source>Warnings: %1</source>
        <translation>Warnungen: %1</translation>
    </message>
</context>
</TS>
