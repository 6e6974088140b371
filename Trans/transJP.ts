<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="de_DE">
<context>
    <name>DlgKeyboard</name>
    <message>
        <source>Ü</source>
        <translation>(</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>キャンセル</translation>
    </message>
</context>
</TS>
