<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="de_DE">
<context>
    <name>DlgKeyboard</name>
    <message>
        <source>ß</source>
        <translation>Ç</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Ü</source>
        <translation>É</translation>
    </message>
    <message>
        <source>Ö</source>
        <translation>Ã</translation>
    </message>
    <message>
        <source>Ä</source>
        <translation>Õ</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
</context>
</TS>
