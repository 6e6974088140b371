<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="de_DE">
<context>
    <name>DlgEmptyDepot</name>
    <message>
        <source>Depot leeren</source>
        <translation>Empty storage</translation>
    </message>
    <message>
        <source>durch Anschluss &lt;b&gt;1&lt;/b&gt;</source>
        <translation>through port &lt;b&gt;1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>durch Anschluss &lt;b&gt;2&lt;/b&gt;</source>
        <translation>through port &lt;b&gt;2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>(max. %1 %2 abs.)</source>
        <translation>(max. %1 %2 abs.)</translation>
    </message>
    <message>
        <source>Externes Behältnis mit einbeziehen</source>
        <translation>Include external storage comp.</translation>
    </message>
    <message>
        <source>an Anschluss &lt;b&gt;3&lt;/b&gt;</source>
        <translation>at port &lt;b&gt;3&lt;/b&gt;</translation>
    </message>
    <message>
        <source>(drucklos)</source>
        <translation>(depressurised)</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
</context>
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
    <name>DlgEvacuation</name>
    <message>
        <source>System Evakuierung</source>
        <translation>Evacuate system</translation>
    </message>
    <message>
        <source>&lt;i&gt;Gerät nun bereit zur Evakuierung durch Anschluss 1&lt;/i&gt;</source>
        <translation>&lt;i&gt;Device ready for evacuation through port 1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Aktueller Druck: </source>
        <translation>Current pressure:</translation>
    </message>
    <message>
        <source>Beenden</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Die Druckverhältnisse im Inneren des Gerätes sind noch unausgeglichen.&lt;p&gt;&lt;b&gt;Evakuierung trozdem Abbrechen?&lt;/b&gt;</source>
        <translation>Internal pressure is not yet  equalised.&lt;p&gt;&lt;b&gt; Abort process anyhow?&lt;/b&gt;</translation>
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
    <name>DlgInnerPressWarning</name>
    <message>
        <source>&lt;i&gt;Betriebsdruck im Inneren des Systems ist unausgeglichen:&lt;/i&gt;</source>
        <translation>&lt;i&gt;Internal pressure is not equalised.&lt;/i&gt;</translation>
    </message>
    <message>
        <source> ... ungültig</source>
        <translation> ... invalid</translation>
    </message>
    <message>
        <source>(zu niedrig)</source>
        <translation>(too low)</translation>
    </message>
    <message>
        <source>(zu hoch)</source>
        <translation>(too high)</translation>
    </message>
    <message>
        <source>&lt;i&gt;Bitte mittels Anschluss 3 ausgleichen&lt;/i&gt;</source>
        <translation>&lt;i&gt;Please equalise through port 3&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Abschalten</source>
        <translation>Shut down</translation>
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
    <name>DlgMeaFollowUp</name>
    <message>
        <source>Weitere Aktion ...</source>
        <translation>Further action ...</translation>
    </message>
    <message>
        <source>Messung</source>
        <translation>Measurement</translation>
    </message>
    <message>
        <source>Weitere Messung starten ...</source>
        <translation>Start new measurement ...</translation>
    </message>
    <message>
        <source>Depot leeren</source>
        <translation>Empty storage</translation>
    </message>
    <message>
        <source>durch Anschluss &lt;b&gt;1&lt;/b&gt;</source>
        <translation>through port &lt;b&gt;1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>durch Anschluss &lt;b&gt;2&lt;/b&gt;</source>
        <translation>through port &lt;b&gt;2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>(max. %1 %2 abs.)</source>
        <translation>(max. %1 %2 abs.)</translation>
    </message>
    <message>
        <source>Beenden</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Keine weitere Aktion</source>
        <translation>No further action</translation>
    </message>
</context>
<context>
    <name>DlgMeaResult</name>
    <message>
        <source>Messung beendet</source>
        <translation>Measurement completed</translation>
    </message>
    <message>
        <source>Feuchte:</source>
        <translation>Humidity:</translation>
    </message>
    <message>
        <source>Ergebnis:</source>
        <translation>Result:</translation>
    </message>
    <message>
        <source>Bestanden</source>
        <translation>Passed</translation>
    </message>
    <message>
        <source>Nicht Bestanden</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>n.v.</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Schliessen</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>DlgMeaStart</name>
    <message>
        <source>Messung starten ...</source>
        <translation>Start measurement ...</translation>
    </message>
    <message>
        <source>&lt;b&gt;Messung mit internem SF&lt;sub&gt;6&lt;/sub&gt;-Depot&lt;/b&gt;</source>
        <translation>&lt;b&gt;Measurement with&lt;br&gt;internal SF&lt;sub&gt;6&lt;/sub&gt;-storage comp.&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Depotinhalt im Anschluss
sofort zurückpumpen</source>
        <translation>Pump back directly
after measurement</translation>
    </message>
    <message>
        <source>Mehrfach-Messungen</source>
        <translation>Multiple measurement</translation>
    </message>
    <message>
        <source>Anzahl:</source>
        <translation>Number:</translation>
    </message>
    <message>
        <source>Zeitintervall:</source>
        <translation>Interval:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>&lt;b&gt;Messung mit externem SF&lt;sub&gt;6&lt;/sub&gt;-Behälter&lt;/b&gt;&lt;i&gt;&lt;br&gt;an Anschluss &lt;b&gt;3&lt;/b&gt; (drucklos)&lt;/i&gt;</source>
        <translation>&lt;b&gt;Measurement with&lt;br&gt;external SF&lt;sub&gt;6&lt;/sub&gt;-storage comp.&lt;/b&gt;&lt;i&gt;&lt;br&gt;at port &lt;b&gt;3&lt;/b&gt; (unpressurised)&lt;/i&gt;</translation>
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
    <name>DlgSaveAs</name>
    <message>
        <source>Speichern als Messung</source>
        <translation>Save as measurement</translation>
    </message>
    <message>
        <source>Exportieren im Format &quot;CSV&quot;</source>
        <translation>Export to &quot;CSV&quot; format</translation>
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
    <name>DlgTDFirmware</name>
    <message>
        <source>Firmware-Aktualisierung Sensoreinheit</source>
        <translation>Firmware upgrade sensor unit</translation>
    </message>
    <message>
        <source>Verbinden ...</source>
        <translation>Connecting ...</translation>
    </message>
    <message>
        <source>Programmierung ...</source>
        <translation>Programming ...</translation>
    </message>
    <message>
        <source>Keine Sensoreinheit gefunden</source>
        <translation>No sensor unit found</translation>
    </message>
    <message>
        <source>Falscher Boardtyp

Gefunden: 0x%1, Vorgesehen: 0x%2
</source>
        <translation>Sensor unit: Wrong board type

Found: 0x%1, needed: 0x%2
</translation>
    </message>
    <message>
        <source>Kein Programmlader-Modul gefunden</source>
        <translation>No program loading module found</translation>
    </message>
    <message>
        <source>Fehler bei Programmierung</source>
        <translation>Failure while programming</translation>
    </message>
    <message>
        <source>Verifizierung ...</source>
        <translation>Verify ...</translation>
    </message>
    <message>
        <source>Verifizierungsfehler</source>
        <translation>Verify failure</translation>
    </message>
    <message>
        <source>Abgeschlossen</source>
        <translation>Completed</translation>
    </message>
    <message>
        <source>
Aktualisierung erfolgreich
</source>
        <translation>
Upgrade successful
</translation>
    </message>
    <message>
        <source>Fehler bei Programmierung der Sensoreinheit</source>
        <translation>Failure while programming sensor unit</translation>
    </message>
</context>
<context>
    <name>JobStateMachine</name>
    <message>
        <source>Messwertaufnahme</source>
        <translation>Recording measured values</translation>
    </message>
    <message>
        <source>Ventil-Fehler</source>
        <translation>Valve failure</translation>
    </message>
    <message>
        <source>Kompressor-Fehler</source>
        <translation>Compressor failure</translation>
    </message>
    <message>
        <source>Drucksensor fehlerhaft</source>
        <translation>Pressure sensor failure</translation>
    </message>
    <message>
        <source>Fehler in Depot-Einheit</source>
        <translation>Failure in storage compartment unit</translation>
    </message>
    <message>
        <source>Gasdepot zu voll</source>
        <translation>No space left in storage compartment</translation>
    </message>
    <message>
        <source>Eingangsdruck zu niedrig</source>
        <translation>Low inlet pressure</translation>
    </message>
    <message>
        <source>Eingangsdruck zu hoch</source>
        <translation>High inlet pressure</translation>
    </message>
    <message>
        <source>Eingangsdruck zu hoch für Rückpumpvorgang</source>
        <translation>Inlet pressure too high for pump back procedure</translation>
    </message>
    <message>
        <source>Gegendruck zu niedrig</source>
        <translation>Low back pressure</translation>
    </message>
    <message>
        <source>Gegendruck zu hoch</source>
        <translation>High back pressure</translation>
    </message>
    <message>
        <source>Betriebsdruck zu niedrig</source>
        <translation>Low operation pressure</translation>
    </message>
    <message>
        <source>Betriebsdruck zu hoch</source>
        <translation>High operation pressure</translation>
    </message>
    <message>
        <source>Depotdruck zu niedrig</source>
        <translation>Low storage compartment pressure</translation>
    </message>
    <message>
        <source>Depotdruck zu hoch</source>
        <translation>High storage compartment pressure</translation>
    </message>
    <message>
        <source>Zeitüberschreitung bei Rückpumpvorgang</source>
        <translation>Pump back procedure timout</translation>
    </message>
    <message>
        <source>Zeitüberschreitung bei Druckausgleich</source>
        <translation>Pressure compensation timeout</translation>
    </message>
    <message>
        <source>k.a.</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Feuchtesensor fehlerhaft</source>
        <translation>Humidity sensor failure</translation>
    </message>
    <message>
        <source>Bereitstellung ist fehlgeschlagen</source>
        <translation>Preparation failure</translation>
    </message>
    <message>
        <source>Gas stark kontaminiert
Selbstreinigung wurde eingeleitet</source>
        <translation>Gas heavily contaminated
Self-purification process was initiated</translation>
    </message>
    <message>
        <source>Druckausgleich</source>
        <translation>Compensating pressure</translation>
    </message>
</context>
<context>
    <name>Mea</name>
    <message>
        <source>MESSUNG %1</source>
        <translation>MEASUREMENT %1</translation>
    </message>
    <message>
        <source>Allgemein</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Temperatur</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <source>Luftfeuchte</source>
        <translation>Air humidity</translation>
    </message>
    <message>
        <source>Luftdruck</source>
        <translation>Air pressure</translation>
    </message>
    <message>
        <source>Durchflussdauer</source>
        <translation>Flow duration</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Auswertung</source>
        <translation>Analysis</translation>
    </message>
    <message>
        <source>Feuchte</source>
        <translation>Humidity</translation>
    </message>
    <message>
        <source>Ergebnis</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>Sens.werte</source>
        <translation>Sens. values</translation>
    </message>
    <message>
        <source>Sensorwerte</source>
        <translation>Sensor values</translation>
    </message>
    <message>
        <source>Druck</source>
        <translation>Pressure</translation>
    </message>
    <message>
        <source>Gasraum</source>
        <translation>Compartment</translation>
    </message>
    <message>
        <source>Einlass</source>
        <translation>Inlet</translation>
    </message>
    <message>
        <source>Gegen</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Betrieb</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>Depot</source>
        <translation>Storage comp.</translation>
    </message>
    <message>
        <source>Grenzen</source>
        <translation>Limits</translation>
    </message>
    <message>
        <source>Min.</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>Max.</source>
        <translation>Max.</translation>
    </message>
    <message>
        <source>Max. Feuchte</source>
        <translation>Max. humidity</translation>
    </message>
    <message>
        <source>Sonstige</source>
        <translation>Miscellaneous</translation>
    </message>
    <message>
        <source>HMI-Anw.</source>
        <translation>HMI-application</translation>
    </message>
    <message>
        <source>HMI-Board</source>
        <translation>HMI-board</translation>
    </message>
    <message>
        <source>TDev-Anw.</source>
        <translation>TDev-Appl.</translation>
    </message>
    <message>
        <source>TDev-Board</source>
        <translation>TDev-Board</translation>
    </message>
    <message>
        <source>Sektion</source>
        <translation>Section</translation>
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
<context>
    <name>PrintIt</name>
    <message>
        <source>Bestanden</source>
        <translation>Passed</translation>
    </message>
    <message>
        <source>Nicht bestanden</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>n.v.</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>&gt; Max.</source>
        <translation>&gt; Max.</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>&lt; Min.</source>
        <translation>&lt; Min.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>&gt; Max.</source>
        <translation>&gt; Max.</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>&lt; Min.</source>
        <translation>&lt; Min.</translation>
    </message>
    <message>
        <source>n.v.</source>
        <translation>n/a</translation>
    </message>
</context>
<context>
    <name>WndMain</name>
    <message>
        <source>Feuchte</source>
        <translation>Humidity</translation>
    </message>
    <message>
        <source>Messung</source>
        <translation>Measurement</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Interne Speicherkarte fehlt oder ist fehlerhaft</source>
        <translation>Internal memory card missing or damaged</translation>
    </message>
    <message>
        <source>UNBENANNT</source>
        <translation>UNNAMED</translation>
    </message>
    <message>
        <source>Messung gestartet</source>
        <translation>Measurement initiated</translation>
    </message>
    <message>
        <source>Rückpumpvorgang gestartet</source>
        <translation>Pump back process started</translation>
    </message>
    <message>
        <source>Depotleerung gestartet</source>
        <translation>Storage emptying started</translation>
    </message>
    <message>
        <source>Bereitschaft herstellen</source>
        <translation>Prepare for use</translation>
    </message>
    <message>
        <source>Messung abgeschlossen</source>
        <translation>Measurement completed</translation>
    </message>
    <message>
        <source>Messung abgebrochen</source>
        <translation>Measurement aborted</translation>
    </message>
    <message>
        <source>Messung abgebrochen!

</source>
        <translation>Measurement aborted!

</translation>
    </message>
    <message>
        <source>Messung gespeichert</source>
        <translation>Measurement saved</translation>
    </message>
    <message>
        <source>&lt;b&gt;Fehler ...&lt;/b&gt;&lt;br&gt;Messung konnte nicht gespeichert werden.</source>
        <translation>&lt;b&gt;Error ...&lt;/b&gt;&lt;br&gt;Measurement could not be saved.</translation>
    </message>
    <message>
        <source>Rückpumpvorgang abgeschlossen</source>
        <translation>Pump back process completed</translation>
    </message>
    <message>
        <source>Depotleerung abgeschlossen</source>
        <translation>Storage emptying completed</translation>
    </message>
    <message>
        <source>Rückpumpvorgang abgebrochen</source>
        <translation>Pump back process aborted</translation>
    </message>
    <message>
        <source>Depotleerung abgebrochen</source>
        <translation>Storage emptying aborted</translation>
    </message>
    <message>
        <source>Gerät nur eingeschränkt betriebsbereit</source>
        <translation>Device operation restricted</translation>
    </message>
    <message>
        <source>Gerät betriebsbereit</source>
        <translation>Device ready for use</translation>
    </message>
    <message>
        <source>Gerät nicht betriebsbereit</source>
        <translation>Device inoperable</translation>
    </message>
    <message>
        <source>Sensoreinheit ausgefallen</source>
        <translation>Sensor unit failed</translation>
    </message>
    <message>
        <source>Sensoreinheit wieder in Betrieb</source>
        <translation>Sensor unit recovered</translation>
    </message>
    <message>
        <source>Druck an &lt;b&gt;1&lt;/b&gt;:</source>
        <translation>Pressure at port &lt;b&gt;1&lt;/b&gt;:</translation>
    </message>
    <message>
        <source>&lt;sub&gt;Abs.&lt;/sub&gt;</source>
        <translation>&lt;sub&gt;Abs.&lt;/sub&gt;</translation>
    </message>
    <message>
        <source>Depot leeren</source>
        <translation>Empty storage</translation>
    </message>
    <message>
        <source>Messungen:</source>
        <translation>Measurements:</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Druck</source>
        <translation>Pressure</translation>
    </message>
    <message>
        <source>Temperatur</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <source>SF&lt;sub&gt;6&lt;/sub&gt;-Vol% in</source>
        <translation>SF&lt;sub&gt;6&lt;/sub&gt;-Vol% in</translation>
    </message>
    <message>
        <source>Liste der
Messungsnamen</source>
        <translation>List of
measurement
names</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>System
Info</source>
        <translation>System
Info</translation>
    </message>
    <message>
        <source>Sensor
Info</source>
        <translation>Sensor
info</translation>
    </message>
    <message>
        <source>Selbsttest</source>
        <translation>Selftest</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; 
Zeit</source>
        <translation>Date &amp;&amp; Time</translation>
    </message>
    <message>
        <source>Sprache</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Werks-
einstellungen</source>
        <translation>Factory
settings</translation>
    </message>
    <message>
        <source>System
Evakuierung </source>
        <translation>System
evacuation </translation>
    </message>
    <message>
        <source>Inspektions-
betriebsart</source>
        <translation>Inspection
mode</translation>
    </message>
    <message>
        <source>Untergrenze SF&lt;sub&gt;6&lt;/sub&gt;</source>
        <translation>Lower limit SF&lt;sub&gt;6&lt;/sub&gt;</translation>
    </message>
    <message>
        <source>Obergrenze SO&lt;sub&gt;2&lt;/sub&gt;</source>
        <translation>Upper limit SO&lt;sub&gt;2&lt;/sub&gt;</translation>
    </message>
    <message>
        <source>Obergrenze HF</source>
        <translation>Upper limit HF</translation>
    </message>
    <message>
        <source>Aus</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Obergrenze Feuchte</source>
        <translation>Upper limit humidity</translation>
    </message>
    <message>
        <source>Durchflussdauer</source>
        <translation>Flow duration</translation>
    </message>
    <message>
        <source>Minimaler Einlassdruck</source>
        <translation>Minimal inlet pressure</translation>
    </message>
    <message>
        <source>Maximaler Einlassdruck</source>
        <translation>Maximum inlet pressure</translation>
    </message>
    <message>
        <source>Maximaler Gegendruck</source>
        <translation>Maximum back pressure</translation>
    </message>
    <message>
        <source>Anzeige der Sensorwerte</source>
        <translation>Display sensor values</translation>
    </message>
    <message>
        <source>nach</source>
        <translation>after</translation>
    </message>
    <message>
        <source>Rückpumpvorgang</source>
        <translation>Pump back process</translation>
    </message>
    <message>
        <source>Depotleerung</source>
        <translation>Empty storage process</translation>
    </message>
    <message>
        <source>Bereitstellung</source>
        <translation>Preparation</translation>
    </message>
    <message>
        <source>Interne Speicherkarte: Zugriffsfehler&lt;p&gt;&lt;i&gt;(System bitte neu starten)&lt;/i&gt;</source>
        <translation>Internal memory card: access error &lt;p&gt;&lt;i&gt;(please reboot the system)&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Keine Sensoreinheit gefunden</source>
        <translation>No sensor unit found</translation>
    </message>
    <message>
        <source> (läuft in %1 Tagen ab)</source>
        <translation> (expires in %1 days)</translation>
    </message>
    <message>
        <source> (%1 Tage überfällig)</source>
        <translation> (%1 days overdue)</translation>
    </message>
    <message>
        <source>Wartung empfohlen für folgenden Sensor:</source>
        <translation>Service recommended for the following Sensor:</translation>
    </message>
    <message>
        <source>Wartung empfohlen für folgende Sensoren:</source>
        <translation>Service recommended for the following Sensors:</translation>
    </message>
    <message>
        <source>Gehäuseinnentemperatur übersteigt die zulässige Grenze von %1!&lt;p&gt;&lt;i&gt;Gerät wird abgeschaltet.&lt;/i&gt;</source>
        <translation>Internal temperature exceeds the permitted limit of %1!&lt;p&gt;&lt;i&gt;Device will shut down.&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Gerät wieder betriebsbereit</source>
        <translation>Device ready for use</translation>
    </message>
    <message>
        <source>Keine Sensoren</source>
        <translation>No sensors</translation>
    </message>
    <message>
        <source>Anzeige Flussplan</source>
        <translation>Display flowsheet</translation>
    </message>
    <message>
        <source>Anzeige Sensorwerte</source>
        <translation>Display sensor values</translation>
    </message>
    <message>
        <source>Nur bestückte Sensoren anzeigen</source>
        <translation>Show available sensors only</translation>
    </message>
    <message>
        <source>Alle unterstützten Sensoren anzeigen</source>
        <translation>Show all supported sensors</translation>
    </message>
    <message>
        <source>Hauptventil</source>
        <translation>Main valve</translation>
    </message>
    <message>
        <source>Einlassventil</source>
        <translation>Inlet valve</translation>
    </message>
    <message>
        <source>Auslassventil</source>
        <translation>Outlet valve</translation>
    </message>
    <message>
        <source>Depot Ventil</source>
        <translation>Storage compartment valve</translation>
    </message>
    <message>
        <source>Druckausgangsventil</source>
        <translation>Pressure outlet valve</translation>
    </message>
    <message>
        <source>Freilauf Ventil</source>
        <translation>Freerun valve</translation>
    </message>
    <message>
        <source> geöffnet</source>
        <translation> opened</translation>
    </message>
    <message>
        <source> geschlossen</source>
        <translation> closed</translation>
    </message>
    <message>
        <source>Kompressor ein</source>
        <translation>Compressor on</translation>
    </message>
    <message>
        <source>Kompressor aus</source>
        <translation>Compressor off</translation>
    </message>
    <message>
        <source>Bitte Akku laden</source>
        <translation>Please charge battery</translation>
    </message>
    <message>
        <source>Kalibrierungseinstellung
SF&lt;sub&gt;6&lt;/sub&gt; in %1
wird nicht unterstützt.</source>
        <translation>Calibration setup
SF&lt;sub&gt;6&lt;/sub&gt; in %1
not supported.</translation>
    </message>
    <message>
        <source>Bei mehr als %1
Messungen:
Älteste löschen</source>
        <translation>In case of more than
%1 measurements:
Delete oldest</translation>
    </message>
    <message>
        <source>Rückpumpvorgang abgebrochen!

</source>
        <translation>Pump back process aborted!

</translation>
    </message>
    <message>
        <source>Depotleerung abgebrochen!

</source>
        <translation>Storage emptying aborted!

</translation>
    </message>
    <message>
        <source>Bereitstellung abgebrochen!

</source>
        <translation>Preparation aborted!

</translation>
    </message>
    <message>
        <source>Vorgang abgebrochen</source>
        <translation>Process canceled</translation>
    </message>
    <message>
        <source>%1 Messungen durchgeführt.
</source>
        <translation>%1 Measurements completed.</translation>
    </message>
    <message>
        <source>Gerät Betriebsbereit</source>
        <translation>Device ready for use</translation>
    </message>
    <message>
        <source>Nächste Messung in ...</source>
        <translation>Next measurement in ...</translation>
    </message>
    <message>
        <source>Vorgang abgebrochen!

</source>
        <translation>Process canceled!

</translation>
    </message>
    <message>
        <source>Warnung!

</source>
        <translation>Warning!

</translation>
    </message>
    <message>
        <source>Die Speicherkapazität von %1 Messungen ist erreicht.&lt;p&gt;&lt;i&gt;Bitte Messungen löschen oder Option&lt;br&gt;&lt;b&gt;Automatischen Löschung&lt;/b&gt;&lt;br&gt;aktivieren.&lt;/i&gt;</source>
        <translation>The limit of %1 measurements is reached. &lt;p&gt;&lt;i&gt;Please delete measurements or activate option &lt;br&gt;&lt;b&gt;&quot;automatic cancellation&quot;.&lt;/b&gt;&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Die Speicherkapazität von %1 Messungen wird bei Durchführung der geplanten %2 Messungen überschritten.&lt;p&gt;&lt;i&gt;Bitte Messungen löschen oder Option&lt;br&gt;&lt;b&gt;Automatischen Löschung&lt;/b&gt;&lt;br&gt;aktivieren.&lt;/i&gt;</source>
        <translation>The limit of %1 measurements will be reached with the planned %2 mesurements &lt;p&gt;&lt;i&gt;Please delete measurements or activate option &lt;br&gt;&lt;b&gt;&quot;automatic cancellation&quot;.&lt;/b&gt;&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Name der Messung oder Messstelle</source>
        <translation>Name of measurement or measurement point</translation>
    </message>
    <message>
        <source>System evakuieren?</source>
        <translation>Evacuate system?</translation>
    </message>
    <message>
        <source>Evakuierung eingeleitet</source>
        <translation>Evacuation initiated</translation>
    </message>
    <message>
        <source>Evakuierung beendet</source>
        <translation>Evacuation completed</translation>
    </message>
    <message>
        <source>Mehrfachmessung abbrechen?</source>
        <translation>Abort multiple measurement?</translation>
    </message>
    <message>
        <source>Laufende Messung abbrechen?</source>
        <translation>Stop current measurement?</translation>
    </message>
    <message>
        <source>Rückpumpvorgang abbrechen?</source>
        <translation>Cancel pump back process?</translation>
    </message>
    <message>
        <source>Depotleerung abbrechen?</source>
        <translation>Cancel storage emptying?</translation>
    </message>
    <message>
        <source>Bereitstellung abbrechen?</source>
        <translation>Abort preparation?</translation>
    </message>
    <message>
        <source>Vorgang abbrechen?</source>
        <translation>Cancel procedure?</translation>
    </message>
    <message>
        <source>Mehrfachmessung abgebrochen</source>
        <translation>Multiple measurement aborted</translation>
    </message>
    <message>
        <source>Messung %1 von %2 gestartet</source>
        <translation>Measurement %1 of %2 initiated</translation>
    </message>
    <message>
        <source>Rückpumpvorgang %1 von %2 gestartet</source>
        <translation>Pump back process %1 of %2 initiated</translation>
    </message>
</context>
</TS>
