<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="de_DE">
<context>
    <name>DlgError</name>
    <message>
        <source>Nr:</source>
        <translation>No:</translation>
    </message>
    <message>
        <source>Schliessen</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>DlgFileList</name>
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
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>9</source>
        <translation>9</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Q</source>
        <translation>Q</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>E</source>
        <translation>E</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>T</source>
        <translation>T</translation>
    </message>
    <message>
        <source>U</source>
        <translation>U</translation>
    </message>
    <message>
        <source>I</source>
        <translation>I</translation>
    </message>
    <message>
        <source>O</source>
        <translation>O</translation>
    </message>
    <message>
        <source>P</source>
        <translation>P</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>F</source>
        <translation>F</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>J</source>
        <translation>J</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>_</source>
        <translation>_</translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
</context>
<context>
    <name>DlgLowBatt</name>
    <message>
        <source>Schliessen</source>
        <translation>Close</translation>
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
<context>
    <name>DlgPlugUsbDev</name>
    <message>
        <source>Bitte Wechseldatenträger anschliessen</source>
        <translation>Please connect USB storage device</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Kein USB Wechseldatenträger gefunden</source>
        <translation>No USB storage device found</translation>
    </message>
    <message>
        <source>Fehler ...

Kein Zugriff auf USB Wechseldatenträger</source>
        <translation>Error ...

No access to USB storage device</translation>
    </message>
</context>
<context>
    <name>DlgQuestion</name>
    <message>
        <source>Ja</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Ok</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>DlgShutdown</name>
    <message>
        <source>Gerät wird abgeschaltet&lt;p&gt;in</source>
        <translation>Unit will be shut down&lt;p&gt;in</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>DlgStatement</name>
    <message>
        <source>Schliessen</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>MeaTable</name>
    <message>
        <source>heute</source>
        <translation>today</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
</context>
</TS>
