<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
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
