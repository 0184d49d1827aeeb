<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>ZTXMLLoader</name>
    <message>
        <source>Die Datei ist nicht lesbar: %1</source>
        <translation>cannot read the file: %1</translation>
    </message>
    <message>
        <source>Das XML ist nicht wohlgeformt: %1</source>
        <translation>XML does not parse: %1</translation>
    </message>
</context>
</TS>
