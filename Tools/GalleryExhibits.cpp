#include "Dialogs/DlgError.h"
#include "Dialogs/DlgFileList.h"
#include "Dialogs/DlgKeyboard.h"
#include "Dialogs/DlgLowBatt.h"
#include "Dialogs/DlgNameList.h"
#include "Dialogs/DlgPlugUsbDev.h"
#include "Dialogs/DlgQuestion.h"
#include "Dialogs/DlgShutdown.h"
#include "Dialogs/DlgStatement.h"
#include "Config.h"
#include "Gallery.h"
#include "RRx/RRFile.h"
#include "Robot.h"

#include <QStringList>

namespace Gallery {

namespace {

QString Paragraphs(int count)
{
    const QString paragraph = Said(
        "Die Druckverhältnisse im Inneren des Gerätes sind noch unausgeglichen, weil die Gasflussregelungseinheit "
        "den Sollwert nicht erreicht hat.<p>",
        "The pressures inside the device are still unbalanced since the flow control has not reached its set value.<p>");
    return paragraph.repeated(count);
}

QStringList FileNames(int count)
{
    QStringList names;
    for (int i = 1; i <= count; ++i) {
        names.append(QStringLiteral("MeaNameList-%1.csv").arg(i, 3, 10, QLatin1Char('0')));
    }
    return names;
}

QStringList HostileNames()
{
    return {QStringLiteral("<b>bold</b><img src=\"x\">.csv"), QStringLiteral("%1 %s %n 100 %.csv"), QStringLiteral("\"quotes\" & <p> 'more'.csv"),
            QString(40, 'W') + QStringLiteral(".csv"), QString(40, 'i') + QStringLiteral(".csv"), QStringLiteral("../../etc/passwd")};
}

QStringList MeasurementNames(int count)
{
    QStringList names;
    for (int i = 1; i <= count; ++i) {
        names.append(QStringLiteral("SCHALTFELD %1 SAMMELSCHIENE %2").arg(i, 3, 10, QLatin1Char('0')).arg(i % 3));
    }
    return names;
}

QStringList LongNames()
{
    return {QString(40, 'W'), QString(40, 'I'), QStringLiteral("STATION NORD FELD 12 SAMMELSCHIENE L1-L3"),
            QStringLiteral("<B>%1 \"QUOTED\" & 100 %<P>"), QString(100000, 'X')};
}

void ShowNames(QStringList names)
{
    QString chosen;
    DlgNameList::Show(names, chosen);
}

/// On a card that holds `names` from earlier measurements.
void ShowKeyboard(QString word, const QStringList& names)
{
    RR::DIR_Create(CFG::MeaNameListPath);
    DlgNameList::SaveNameList(RR::PATH_Merge(CFG::MeaNameListPath, CFG::MeaNameListFile), names);
    DlgKeyboard::Show(Said("Name der Messung oder Messstelle", "Name of measurement or measurement point"), word, 40);
}

void ShowFileList(const QStringList& names)
{
    QString chosen;
    DlgFileList::Show(Said("Verfügbare Dateien", "Available files"), names, chosen);
}

const char* const longWords = "Wartungsbenachrichtigungseinstellungsübersicht Hochspannungsschaltanlagenisoliergasanalysegerät "
                              "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW";

}

std::vector<Exhibit> Exhibits()
{
    const auto question = [](const char* german, const char* english, DlgQuestion::Option option) {
        return [=] { DlgQuestion::Show(Said(german, english), option, DlgQuestion::REJECT_20); };
    };
    const auto statement = [](const char* german, const char* english, bool center) {
        return [=] { DlgStatement::Show(Said(german, english), DlgStatement::CLOSE_60, center); };
    };
    return {
        {"DlgQuestion-delete", TYPICAL, question("Ausgewählte Messung löschen?", "Delete selected measurement?", DlgQuestion::YES_NO)},
        {"DlgQuestion-pressure", TYPICAL,
         question("Die Druckverhältnisse im Inneren des Gerätes sind noch unausgeglichen.<p><b>Evakuierung trozdem Abbrechen?</b>",
                  "Internal pressure is not yet  equalised.<p><b> Abort process anyhow?</b>", DlgQuestion::YES_NO)},
        {"DlgQuestion-key", TYPICAL,
         question("Zur Aktivierung der Inspektionsbetriebsart<br>bitte USB Schlüssel anschliessen.",
                  "To enter the inspection mode <br>please connect the USB key.", DlgQuestion::OK_CANCEL)},
        {"DlgQuestion-long", EXTREME, [] { DlgQuestion::Show(Paragraphs(12), DlgQuestion::OK_CANCEL, DlgQuestion::UNUSED); }},
        {"DlgQuestion-words", TYPICAL, question(longWords, longWords, DlgQuestion::YES_NO)},
        {"DlgStatement-capacity", TYPICAL,
         statement("Die Speicherkapazität von 500 Messungen ist erreicht.<p><i>Bitte Messungen löschen oder Option<br>"
                   "<b>Automatischen Löschung</b><br>aktivieren.</i>",
                   "The limit of 500 measurements is reached. <p><i>Please delete measurements or activate option <br>"
                   "<b>Automatic deletion</b>.</i>", true)},
        {"DlgStatement-error", TYPICAL,
         statement("<b>Fehler ...</b><br>Messung konnte nicht gespeichert werden.", "<b>Error ...</b><br>Measurement could not be saved.", true)},
        {"DlgStatement-left", TYPICAL,
         statement("Wartung empfohlen für folgenden Sensor:<p>SF<sub>6</sub>-Sensor<br>Feuchtesensor",
                   "Service recommended for the following Sensor:<p>SF<sub>6</sub> sensor<br>Humidity sensor", false)},
        {"DlgStatement-plain", TYPICAL,
         statement("Fehler ...\n\nKein Zugriff auf USB Wechseldatenträger", "Error ...\n\nNo access to USB storage device", true)},
        {"DlgStatement-short", TYPICAL, statement("Ok", "Ok", true)},
        {"DlgStatement-long", EXTREME, [] { DlgStatement::Show(Paragraphs(12), DlgStatement::UNUSED, false); }},
        {"DlgError-words", TYPICAL, [] { DlgError::Show(QString::fromUtf8(longWords), QStringLiteral("B04-08")); }},
        {"DlgLowBatt-words", TYPICAL,
         [] { DlgLowBatt::Show(QString::fromUtf8(longWords), DlgLowBatt::UNUSED, true); }},
        {"DlgError-stop", TYPICAL,
         [] {
             DlgError::Show(Said("Messung abgebrochen!\n\nDruck am Anschluss 1 zu niedrig.\nBitte Gasraum prüfen.",
                                 "Measurement aborted!\n\nPressure at port 1 too low.\nPlease check the gas compartment."),
                            QStringLiteral("B04-08"));
         }},
        {"DlgError-one-line", TYPICAL, [] { DlgError::Show(Said("Vorgang abgebrochen!", "Process canceled!"), QStringLiteral("Q21-57")); }},
        {"DlgError-long", EXTREME, [] { DlgError::Show(Paragraphs(8), QStringLiteral("Q21-57")); }},
        {"DlgError-tags", EXTREME,
         [] { DlgError::Show(Said("Vorgang\nabgebrochen!", "Process\ncanceled!"), QStringLiteral("<b>B04</b>&amp;")); }},
        {"DlgLowBatt", TYPICAL,
         [] { DlgLowBatt::Show(Said("Bitte Akku laden", "Please charge battery"), DlgLowBatt::CLOSE_300, true); }},
        {"DlgLowBatt-long", EXTREME, [] { DlgLowBatt::Show(Paragraphs(4), DlgLowBatt::UNUSED, false); }},
        {"DlgShutdown", TYPICAL, [] { DlgShutdown::Show(); }},
        {"DlgFileList", TYPICAL, [] { ShowFileList(FileNames(4)); }},
        {"DlgFileList-many", EXTREME, [] { ShowFileList(FileNames(100)); }},
        {"DlgFileList-hostile", EXTREME, [] { ShowFileList(HostileNames()); }},
        {"DlgFileList-empty", EXTREME, [] { ShowFileList({}); }},
        {"DlgKeyboard", TYPICAL, [] { ShowKeyboard(QStringLiteral("SCHALTFELD 7"), {}); }},
        {"DlgKeyboard-offers", TYPICAL, [] { ShowKeyboard(QString(), MeasurementNames(7)); }, [] { Robot::TypeOnScreen(QStringLiteral("SC")); }},
        {"DlgKeyboard-offers-long", EXTREME, [] { ShowKeyboard(QString(), LongNames()); }, [] { Robot::TypeOnScreen(QStringLiteral("W")); }},
        {"DlgKeyboard-long", EXTREME, [] { ShowKeyboard(LongNames().first(), {}); }},
        {"DlgNameList-empty", TYPICAL, [] { ShowNames({}); }},
        {"DlgNameList", TYPICAL, [] { ShowNames(MeasurementNames(7)); }, [] { Robot::ClickRow("nameList", MeasurementNames(7)[1]); }},
        {"DlgNameList-many", EXTREME, [] { ShowNames(MeasurementNames(500)); }},
        {"DlgNameList-long", EXTREME, [] { ShowNames(LongNames()); }},
        {"DlgNameList-delete", EXTREME, [] { ShowNames(LongNames()); },
         [] {
             Robot::ClickRow("nameList", LongNames()[3]);
             Robot::Click("deleteEntry");
             Robot::WaitForShown("body");
         }},
        {"DlgPlugUsbDev", TYPICAL,
         [] {
             RR::String mountPoint;
             DlgPlugUsbDev::Show(mountPoint);
         }},
    };
}

}
