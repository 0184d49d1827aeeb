<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>ZTAPMArticleDefinitionImpl</name>
    <message>
        <source>&quot;%1&quot; ist kein Schlüsselwort für Papier- oder Materialarten</source>
        <translation>&quot;%1&quot; is no paper type or material type keyword</translation>
    </message>
    <message>
        <source>Größen von Artikel %1: keine Länge von höchstens 1 km: %2</source>
        <translation>sizes of article %1: no length of at most 1 km: %2</translation>
    </message>
</context>
<context>
    <name>ZTAPMArticleDefinitions</name>
    <message>
        <source>Element %1 verworfen: es braucht eine ID, eine bekannte Klasse und eine Versandgruppe</source>
        <translation>%1 dropped: it needs an id, a known class and a shipping group</translation>
    </message>
</context>
<context>
    <name>ZTAPMArticleDeliveryTimes</name>
    <message>
        <source>Lieferzeiten von %1 %2 verworfen: keine gültige Lieferzeit</source>
        <translation>delivery times of %1 %2 dropped: no valid delivery time</translation>
    </message>
</context>
<context>
    <name>ZTAPMArticlePriceInfo</name>
    <message>
        <source>Preiszeile verworfen: Typ &quot;%1&quot; ist kein Rabattmodell</source>
        <translation>price row dropped: type &quot;%1&quot; is no discount model</translation>
    </message>
    <message>
        <source>&quot;y&quot;-Zeilen des Bestellwegs %1 werden als &quot;w&quot; gelesen: der Bestellweg hat ein Fotopaket</source>
        <translation>&quot;y&quot; rows of order source %1 are read as &quot;w&quot;: the source has a photo package</translation>
    </message>
</context>
<context>
    <name>ZTAPMArticlePrices</name>
    <message>
        <source>Preise von %1 %2 verworfen: keine brauchbare Preiszeile</source>
        <translation>prices of %1 %2 dropped: no usable price row</translation>
    </message>
    <message>
        <source>Preise von %1 verworfen: keine ID</source>
        <translation>prices of %1 dropped: no id</translation>
    </message>
</context>
<context>
    <name>ZTAPMCatalogueCheck</name>
    <message>
        <source>Preise für Artikel %1, den das Produktdokument nicht hat</source>
        <translation>prices for article %1, which the products document does not have</translation>
    </message>
    <message>
        <source>Lieferzeiten für Artikel %1, den das Produktdokument nicht hat</source>
        <translation>delivery times for article %1, which the products document does not have</translation>
    </message>
    <message>
        <source>Artikel %1 hat für keinen Bestellweg einen Preis</source>
        <translation>article %1 has no price for any order source</translation>
    </message>
    <message>
        <source>Zusatzartikel %1 ist mit Artikel %2 verknüpft, den das Produktdokument nicht hat</source>
        <translation>add-on %1 is linked to article %2, which the products document does not have</translation>
    </message>
    <message>
        <source>Artikel %1 ist mit Artikel %2 verknüpft, den das Produktdokument nicht hat</source>
        <translation>article %1 is linked to article %2, which the products document does not have</translation>
    </message>
    <message>
        <source>erlaubte Zahlart %1 (Bestellweg %2): keine Zahlart hat diese ID</source>
        <translation>permitted payment %1 (order source %2): no payment method has this id</translation>
    </message>
    <message>
        <source>Versandgruppe %1 hat Produkte (Artikel %2 ist eines), aber keinen Versandkostenartikel</source>
        <translation>shipping group %1 has products (article %2 is one) but no transfer article</translation>
    </message>
    <message>
        <source>Versandgruppe %1 &quot;%2&quot; hat keine Produkte</source>
        <translation>shipping group %1 &quot;%2&quot; has no products</translation>
    </message>
</context>
<context>
    <name>ZTAPMDeliveryTimes</name>
    <message>
        <source>ungültiges Element %1 verworfen</source>
        <translation>invalid %1 dropped</translation>
    </message>
</context>
<context>
    <name>ZTAPMShippingDate</name>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Voraussichtliches Lieferdatum:</source>
        <translation>Expected delivery date:</translation>
    </message>
</context>
<context>
    <name>ZTAPMShippingGroupImpl</name>
    <message>
        <source>Element %1 verworfen: keine Gruppe</source>
        <translation>%1 dropped: not a group</translation>
    </message>
</context>
<context>
    <name>ZTAddressLayoutType</name>
    <message>
        <source>Privat</source>
        <comment>RADIOBUTTON</comment>
        <translation>Private</translation>
    </message>
    <message>
        <source>Firma</source>
        <comment>RADIOBUTTON</comment>
        <translation>Company</translation>
    </message>
</context>
<context>
    <name>ZTCurrency</name>
    <message>
        <source>Währung ohne isocode</source>
        <translation>currency without isocode</translation>
    </message>
</context>
<context>
    <name>ZTExpressType</name>
    <message>
        <source>Standardversand</source>
        <translation>Standard shipping</translation>
    </message>
</context>
<context>
    <name>ZTOrderingDetails</name>
    <message>
        <source>%1 Stück</source>
        <translation>%1 pieces</translation>
    </message>
    <message>
        <source>%1-Stück-Paket %2</source>
        <translation>%1-piece pack %2</translation>
    </message>
    <message>
        <source>%1 Fotopack</source>
        <translation>%1 photo pack</translation>
    </message>
    <message>
        <source>Umrechnungsfaktor &quot;%1&quot; ist keine Zahl</source>
        <translation>currency factor &quot;%1&quot; is no number</translation>
    </message>
</context>
<context>
    <name>ZTPaymentMethod</name>
    <message>
        <source>Bitte geben Sie bei der Bezahlung mit Klarna die Personennummer an:</source>
        <translation>To pay with Klarna, please enter your personal identity number:</translation>
    </message>
    <message>
        <source>Bitte geben Sie bei der Bezahlung mit Klarna die Handelsregisternummer an:</source>
        <translation>To pay with Klarna, please enter your company registration number:</translation>
    </message>
    <message>
        <source>Die Klarna-Rechnung wird im Rahmen der Auftragsbearbeitung erstellt und Ihnen per E-Mail zugesandt.</source>
        <translation>The Klarna invoice is created while your order is processed and sent to you by e-mail.</translation>
    </message>
    <message>
        <source>Die Belastung Ihres Kontos erfolgt mit Versand der Ware.</source>
        <translation>Your account will be charged when the goods are shipped.</translation>
    </message>
</context>
<context>
    <name>ZTProductAbstract</name>
    <message>
        <source> (nicht mehr lieferbar)</source>
        <translation> (no longer available)</translation>
    </message>
</context>
<context>
    <name>ZTProductRegistryAbstract</name>
    <message>
        <source>%1 %2 verworfen: kein Produkt dieser Art</source>
        <translation>%1 %2 dropped: no product of this kind</translation>
    </message>
</context>
<context>
    <name>ZTShipmentMethod</name>
    <message>
        <source>Noch kein Kunde?</source>
        <translation>Not a customer yet?</translation>
    </message>
    <message>
        <source>Hier registrieren.</source>
        <translation>Register here.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Wichtiger Hinweis zur Packstation&lt;/b&gt;&lt;ul&gt;&lt;li&gt;Um Ihr Paket abholen zu können, benötigten Sie Ihre %1.&lt;/li&gt;&lt;li&gt;Der hinterlegte Name in Ihrem DHL Konto muss mit dem Namen in der Rechnungsadresse übereinstimmen.&lt;/li&gt;&lt;li&gt;Nur Produkte bis zu einer Größe von 60x35x35 cm können an die Packstation geliefert werden.&lt;/li&gt;&lt;/ul&gt;</source>
        <translation>&lt;b&gt;Important note on the Packstation&lt;/b&gt;&lt;ul&gt;&lt;li&gt;To collect your parcel you need your %1.&lt;/li&gt;&lt;li&gt;The name stored in your DHL account must match the name in the billing address.&lt;/li&gt;&lt;li&gt;Only products up to a size of 60x35x35 cm can be delivered to a Packstation.&lt;/li&gt;&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>Für diesen Dienstleister werden weitere Angaben benötigt.</source>
        <translation>This carrier needs further details.</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Telefonnummer</source>
        <translation>Phone number</translation>
    </message>
    <message>
        <source>persöhnliche %1 Kennnummer</source>
        <translation>personal %1 ID number</translation>
    </message>
</context>
</TS>
