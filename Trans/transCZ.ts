<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="de_DE">
<context>
    <name>DlgKeyboard</name>
    <message>
        <source>ß</source>
        <translation>ú</translation>
    </message>
    <message>
        <source>Ü</source>
        <translation>Ú</translation>
    </message>
    <message>
        <source>Ö</source>
        <translation>Ů</translation>
    </message>
    <message>
        <source>_</source>
        <translation>,</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Zrušit</translation>
    </message>
</context>
</TS>
