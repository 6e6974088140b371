<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="de">
<context>
    <name>PrintIt</name>
    <message>
        <source>n.v.</source>
        <translation>n.d.</translation>
    </message>
</context>
</TS>
