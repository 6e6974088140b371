<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="de_DE">
<context>
    <name>DlgKeyboard</name>
    <message>
        <source>Abbrechen</source>
        <translation>Anuluj</translation>
    </message>
</context>
</TS>
