<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="de_DE">
<context>
    <name>DlgKeyboard</name>
    <message>
        <source>ß</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Ü</source>
        <translation>地方</translation>
    </message>
    <message>
        <source>Ö</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Ä</source>
        <translation>操作者</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>取消</translation>
    </message>
</context>
</TS>
