<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>ZTArticleId</name>
    <message>
        <source>ungültige Artikel-ID &quot;%1&quot; im Attribut %2 von %3</source>
        <translation>invalid article id &quot;%1&quot; in attribute %2 of %3</translation>
    </message>
</context>
<context>
    <name>ZTBarcodeDefinitionList</name>
    <message>
        <source>%1=&quot;%2&quot; ist keine Länge</source>
        <translation>%1=&quot;%2&quot; is no length</translation>
    </message>
    <message>
        <source>rotation=&quot;%1&quot; ist nicht 0, 90, 180 oder 270</source>
        <translation>rotation=&quot;%1&quot; is not 0, 90, 180 or 270</translation>
    </message>
    <message>
        <source>die Fläche %1,%2 %3x%4 px ist leer oder liegt außerhalb des Umschlags, übergangen</source>
        <translation>the area %1,%2 %3x%4 px is empty or off the cover, skipped</translation>
    </message>
    <message>
        <source>Position %1: %2</source>
        <translation>position %1: %2</translation>
    </message>
    <message>
        <source>Barcodes von Artikel %1: %2</source>
        <translation>barcodes of article %1: %2</translation>
    </message>
</context>
<context>
    <name>ZTConfiguredArticleVariantList</name>
    <message>
        <source>ID &quot;%1&quot; ist keine positive Zahl</source>
        <translation>id &quot;%1&quot; is no positive number</translation>
    </message>
    <message>
        <source>ID %1 steht zweimal in der Liste</source>
        <translation>id %1 is listed twice</translation>
    </message>
    <message>
        <source>Varianten von Artikel %1 verworfen: %2</source>
        <translation>variants of article %1 dropped: %2</translation>
    </message>
</context>
<context>
    <name>ZTFotoPaperType</name>
    <message>
        <source>unbekannte Fotopapierarten übergangen: %1</source>
        <translation>unknown photo paper types ignored: %1</translation>
    </message>
</context>
<context>
    <name>ZTPageCountOrganization</name>
    <message>
        <source>%1=&quot;%2&quot; ist keine Zahl</source>
        <translation>%1=&quot;%2&quot; is no number</translation>
    </message>
    <message>
        <source>min_pages %1 ist kleiner als 1</source>
        <translation>min_pages %1 is below 1</translation>
    </message>
    <message>
        <source>max_pages %1 ist kleiner als min_pages %2</source>
        <translation>max_pages %1 is below min_pages %2</translation>
    </message>
    <message>
        <source>page_increment %1 ist kleiner als 1</source>
        <translation>page_increment %1 is below 1</translation>
    </message>
    <message>
        <source>max_pages %1 ist in Schritten von %2 ab %3 nicht erreichbar</source>
        <translation>max_pages %1 is not reachable in steps of %2 from %3</translation>
    </message>
    <message>
        <source>Seitenzahlen von Artikel %1: %2</source>
        <translation>page counts of article %1: %2</translation>
    </message>
</context>
<context>
    <name>ZTShippingGroupId</name>
    <message>
        <source>ungültige Versandgruppen-ID &quot;%1&quot; im Attribut %2 von %3</source>
        <translation>invalid shipping group id &quot;%1&quot; in attribute %2 of %3</translation>
    </message>
</context>
<context>
    <name>ZTSpineConfig</name>
    <message>
        <source>%1=&quot;%2&quot; ist keine Länge</source>
        <translation>%1=&quot;%2&quot; is no length</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; ist negativ</source>
        <translation>%1=&quot;%2&quot; is negative</translation>
    </message>
    <message>
        <source>Buchrücken von Artikel %1: %2</source>
        <translation>spine of article %1: %2</translation>
    </message>
</context>
</TS>
