#include "Dialogs/DlgError.h"
#include "Dialogs/DlgFileList.h"
#include "Dialogs/DlgKeyboard.h"
#include "Dialogs/DlgLowBatt.h"
#include "Dialogs/DlgNameList.h"
#include "Dialogs/DlgPlugUsbDev.h"
#include "Dialogs/DlgQuestion.h"
#include "Dialogs/DlgShutdown.h"
#include "Dialogs/DlgStatement.h"
#include "Board/Board.h"
#include "Config.h"
#include "Gallery.h"
#include "Globals.h"
#include "QFixP3SpinBox.h"
#include "RRx/RRFile.h"
#include "Robot.h"

#include <QFormLayout>
#include <QStringList>
#include <filesystem>
#include <fstream>

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

/// Presses a button and answers yes to the question that follows.
bool Confirm(const char* button)
{
    return Robot::Click(button) && Robot::Click("buttonAccept");
}

/// A statement is open whose text holds `part`.
bool WaitForStatement(const QString& part)
{
    return Robot::WaitFor([&] { return Robot::IsShown("buttonClose") && Robot::TextOf("body").contains(part); });
}

bool ImportFile(const char* name, const QString& statement)
{
    return Confirm("importList") && Robot::ClickRow("fileNameList", QLatin1String(name)) && Robot::Click("buttonOk")
        && WaitForStatement(statement);
}

/// The list of names beside a stick with files to import, or one that can't be written.
void ShowNamesWithStick(bool writable)
{
    namespace fs = std::filesystem;
    std::error_code ignored;
    const fs::path stick = Board::Locate("/usb-stick");
    fs::remove_all(stick, ignored);
    fs::create_directories(stick, ignored);
    DlgNameList::SaveNameList("/usb-stick/Names.csv", MeasurementNames(20));
    std::ofstream names(stick / "Many.csv");
    for (int i = 0; i < 600; ++i) {
        names << "NAME " << i << '\n';
    }
    names.close();
    std::ofstream(stick / "Empty.csv").close();
    fs::create_symlink("/nowhere", stick / "Damaged.csv", ignored);
    if (!writable) {
        fs::create_symlink("/dev/full", stick / "MeaNameList.csv", ignored);
    }
    std::ofstream(Board::Locate("/dev/sda1")).close();
    ShowNames(MeasurementNames(7));
    fs::remove(Board::Locate("/dev/sda1"), ignored);
}

void ShowSpinBoxes()
{
    QDialog dialog(nullptr, Qt::FramelessWindowHint);
    // The box itself asks for less than both arrows and its text take; a form has to give it the width.
    dialog.setFixedWidth(480);
    QFormLayout* rows = new QFormLayout(&dialog);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    static const struct {
        RR::FixPnt::Type type;
        double raster;
        double max;
        const char* suffix;
    } boxes[] = {{RR::FixPnt::FixP0, 10, 10000, " ppm"}, {RR::FixPnt::FixP1, 0.1, 100, " Vol.-%"}, {RR::FixPnt::FixP3, 0.001, 20, " bar"}};
    for (const auto& box : boxes) {
        QFixP3SpinBox* spinBox = new QFixP3SpinBox(&dialog);
        spinBox->setObjectName(QStringLiteral("spinBox%1").arg(rows->rowCount()));
        spinBox->SetOutputType(box.type);
        spinBox->SetRaster(box.raster);
        spinBox->setRange(-box.max, box.max);
        spinBox->setSuffix(QLatin1String(box.suffix));
        spinBox->setValue(-box.max);
        rows->addRow(Said("Grenzwert:", "Limit:"), spinBox);
    }
    dialog.exec();
}

bool Dim(bool waiting)
{
    Robot::OnGui([waiting] {
        DsplHalfbright();
        if (waiting) {
            DsplShowHourglass();
        }
    });
    return true;
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
    const auto namesWithStick = [] { ShowNamesWithStick(true); };
    const auto ask = [](const char* button) {
        return [=] { return Robot::Click(button) && Robot::WaitForShown("buttonAccept"); };
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
        {"DlgKeyboard-offers", TYPICAL, [] { ShowKeyboard(QString(), MeasurementNames(7)); }, [] { return Robot::TypeOnScreen(QStringLiteral("SC")); }},
        {"DlgKeyboard-offers-long", EXTREME, [] { ShowKeyboard(QString(), LongNames()); }, [] { return Robot::TypeOnScreen(QStringLiteral("W")); }},
        {"DlgKeyboard-long", EXTREME, [] { ShowKeyboard(LongNames().first(), {}); }},
        {"DlgNameList-empty", TYPICAL, [] { ShowNames({}); }},
        {"DlgNameList", TYPICAL, [] { ShowNames(MeasurementNames(7)); }, [] { return Robot::ClickRow("nameList", MeasurementNames(7)[1]); }},
        {"DlgNameList-many", EXTREME, [] { ShowNames(MeasurementNames(500)); }},
        {"DlgNameList-long", EXTREME, [] { ShowNames(LongNames()); }},
        {"DlgNameList-delete", EXTREME, [] { ShowNames(LongNames()); },
         [] { return Robot::ClickRow("nameList", LongNames()[3]) && Robot::Click("deleteEntry") && Robot::WaitForShown("body"); }},
        {"DlgNameList-delete-list", TYPICAL, namesWithStick, ask("deleteList")},
        {"DlgNameList-import", TYPICAL, namesWithStick, ask("importList")},
        {"DlgNameList-import-files", TYPICAL, namesWithStick, [] { return Confirm("importList") && Robot::WaitForShown("fileNameList"); }},
        {"DlgNameList-imported", TYPICAL, namesWithStick, [] { return ImportFile("Names.csv", QStringLiteral("20")); }},
        {"DlgNameList-limited", TYPICAL, namesWithStick, [] { return ImportFile("Many.csv", QStringLiteral("500")); }},
        {"DlgNameList-none", TYPICAL, namesWithStick, [] { return ImportFile("Empty.csv", Said("Keine", "No entries")); }},
        {"DlgNameList-unreadable", TYPICAL, namesWithStick, [] { return ImportFile("Damaged.csv", QStringLiteral("Damaged.csv")); }},
        {"DlgNameList-export", TYPICAL, namesWithStick, ask("exportList")},
        {"DlgNameList-exported", TYPICAL, namesWithStick,
         [] { return Confirm("exportList") && WaitForStatement(Said("abgeschlossen", "completed")); }},
        {"DlgNameList-full", TYPICAL, [] { ShowNamesWithStick(false); },
         [] { return Confirm("exportList") && WaitForStatement(Said("voll", "No space")); }},
        {"DlgNameList-failed", TYPICAL, [] { ShowNamesWithStick(false); },
         [] {
             return Confirm("exportList") && WaitForStatement(Said("voll", "No space")) && Robot::Click("buttonClose")
                 && WaitForStatement(Said("fehlgeschlagen", "failed"));
         }},
        {"QFixP3SpinBox", TYPICAL, ShowSpinBoxes},
        {"Backdrop", TYPICAL, [] { ShowNames(MeasurementNames(7)); }, [] { return Dim(false); }},
        {"WaitingSign", TYPICAL, [] { ShowNames(MeasurementNames(7)); }, [] { return Dim(true); }},
        {"DlgPlugUsbDev", TYPICAL,
         [] {
             RR::String mountPoint;
             DlgPlugUsbDev::Show(mountPoint);
         }},
    };
}

}
