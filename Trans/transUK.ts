<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="de_DE">
<context>
    <name>DlgKeyboard</name>
    <message>
        <source>ß</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Y</translation>
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
        <translation>=</translation>
    </message>
    <message>
        <source>Ä</source>
        <translation>@</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Ok</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>DlgNameList</name>
    <message>
        <source>Liste der Messungsnamen</source>
        <translation>List of measurement names</translation>
    </message>
    <message>
        <source>Entfernen</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Importieren</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Exportieren</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Alle löschen</source>
        <translation>Delete all</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Schliessen</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>Reject</translation>
    </message>
    <message>
        <source>Eintrag

%1

aus Liste entfernen?</source>
        <translation>Remove entry

%1

from list?</translation>
    </message>
    <message>
        <source>Liste der Messungsnamen komplett löschen?</source>
        <translation>Delete complete list of measurement names?</translation>
    </message>
    <message>
        <source>Liste der Messungsnamen exportieren?</source>
        <translation>Export list of measurement names?</translation>
    </message>
    <message>
        <source>Kopiervorgang abgeschlossen</source>
        <translation>Transmit completed</translation>
    </message>
    <message>
        <source>Kopiervorgang fehlgeschlagen</source>
        <translation>Transmission failed</translation>
    </message>
    <message>
        <source>Liste mit Messungsnamen importieren?</source>
        <translation>Import list of measurement names?</translation>
    </message>
    <message>
        <source>Fehler ...

Inhalt des USB Wechseldatenträgers
kann nicht gelesen werden</source>
        <translation>Error ...

Content of USB storage device
cannot be read</translation>
    </message>
    <message>
        <source>Keine Datei mit Endung &quot;.csv&quot; vorgefunden</source>
        <translation>No files with extension &quot;.csv&quot; found</translation>
    </message>
    <message>
        <source>Verfügbare Dateien</source>
        <translation>Available files</translation>
    </message>
    <message>
        <source>Datei &quot;%1&quot; kann nicht gelesen werden</source>
        <translation>File &quot;%1&quot; cannot be read</translation>
    </message>
    <message>
        <source>Keine Einträge gefunden</source>
        <translation>No entries found</translation>
    </message>
    <message>
        <source>%1 Einträge gefunden</source>
        <translation>%1 entries found</translation>
    </message>
    <message>
        <source>Liste der Namen wurde auf die
Höchstmenge von %1 Einträgen begrenzt.</source>
        <translation>List of measurement names
was limited to %1 entries.</translation>
    </message>
    <message>
        <source>Wechseldatenträger ist voll</source>
        <translation>No space left on storage device</translation>
    </message>
</context>
</TS>
