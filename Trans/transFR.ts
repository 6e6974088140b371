<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="de_DE">
<context>
    <name>DlgKeyboard</name>
    <message>
        <source>ß</source>
        <translation>=</translation>
    </message>
    <message>
        <source>Ü</source>
        <translation>(</translation>
    </message>
    <message>
        <source>+</source>
        <translation>)</translation>
    </message>
    <message>
        <source>Ö</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Ä</source>
        <translation>@</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Annuler</translation>
    </message>
</context>
</TS>
