<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi_VN" sourcelanguage="de_DE">
<context>
    <name>DlgKeyboard</name>
    <message>
        <source>Z</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Hủy</translation>
    </message>
</context>
</TS>
