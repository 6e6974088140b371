<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi_FI" sourcelanguage="de_DE">
<context>
    <name>DlgKeyboard</name>
    <message>
        <source>Abbrechen</source>
        <translation>Peruuta</translation>
    </message>
</context>
</TS>
