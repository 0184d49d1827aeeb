<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>ZTDiagnosticCollector</name>
    <message>
        <source>&quot;%1&quot; ist kein Schlüsselwort des Vokabulars &quot;%2&quot;</source>
        <translation>&quot;%1&quot; is no %2 keyword</translation>
    </message>
</context>
</TS>
