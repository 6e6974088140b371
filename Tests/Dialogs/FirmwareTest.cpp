#include "BoardFiles.h"
#include "Dialogs/DlgTDFirmware.h"
#include "ProcessTesting.h"
#include "SensorUnit/Loader.h"
#include "TDFirmware.h"

#include <QProgressBar>

namespace {

constexpr RR::UInt32 last = 0x5500;

struct Course {
    const char* what;
    std::function<void()> faults;
    QString message;
    bool accepted;
    std::string log;  ///< behind the program's name, with its line ends
    int writes;       ///< to the unit's memory
    std::string end;  ///< the last commands to the unit
};

std::vector<unsigned char> MemoryOfUnit()
{
    std::vector<unsigned char> all;
    for (const auto& [location, bytes] : scripted.memory) {
        EXPECT_EQ(location, all.size());
        all.insert(all.end(), bytes.begin(), bytes.end());
    }
    return all;
}

}

using FirmwareDialog = ProcessDialogTest;

TEST_F(FirmwareDialog, EveryCourseOfAnUpgradeEndsAsItShould)
{
    const std::string programming = "Tavor device: Programming ...", verifying = "\n[ZARN] Tavor device: Verifying   ...";
    const std::string refused = "Tavor device: Entering program loader mode ... failed ";
    const QString good = "\nAktualisierung erfolgreich\n";
    const auto noLoader = [](RR::SInt32 applType, RR::SInt32 boardType) {
        scripted.failing = {"connect1"};
        scripted.info.applType = applType;
        scripted.info.boardType = boardType;
    };
    const Course courses[] = {
        {"healthy", [] {}, good, true, programming + " done" + verifying + " done\n", 341, "connect0"},
        {"a record fails nine times, and so does the next", [] { scripted.badWrites = {{64, 9}, {128, 9}}; }, good, true,
         programming + std::string(18, '.') + " done" + verifying + " done\n", 359, "connect0"},
        {"one bad read costs nothing, two a repair, eighteen nine repairs",
         [] { scripted.badReads = {{0, 1}, {64, 2}, {last, 18}}; }, good, true,
         programming + " done" + verifying + std::string(10, '.') + " done\n", 351, "connect0"},
        {"the last record can't be written", [] { scripted.badWrites = {{last, 10}}; }, "Fehler bei Programmierung", false,
         programming + std::string(10, '.') + " failed\n", 350, "connect1"},
        {"the first record reads wrong", [] { scripted.badReads = {{0, 20}}; }, "Verifizierungsfehler", false,
         programming + " done" + verifying + std::string(10, '.') + " failed\n", 351, "connect1"},
        {"the application doesn't start",
         [] { scripted.failing = {"connect0"}; }, "Fehler bei Programmierung der Sensoreinheit", true,
         programming + " done" + verifying + " done\n[ZARN] Enter application ... failed\n", 341, "connect0"},
        {"silence", [&] { noLoader(RR::INVALID, 17); }, "Keine Sensoreinheit gefunden", false,
         refused + "(device not found)\n", 0, "disconnect connect1 connect0"},
        {"another board", [&] { noLoader(55, 2); }, "Falscher Boardtyp\n\nGefunden: 0x02, Vorgesehen: 0x11\n", false,
         refused + "(incompatible board type)\n", 0, "disconnect connect1 connect0"},
        {"no loader", [&] { noLoader(55, 17); }, "Kein Programmlader-Modul gefunden", false,
         refused + "(no program loader module)\n", 0, "disconnect connect1 connect0"}};
    for (const Course& course : courses) {
        SCOPED_TRACE(course.what);
        scripted.Reset();
        course.faults();
        bool accepted = false;
        EXPECT_EQ(LogOf([&] { accepted = Use(DlgTDFirmware::Show, [&] { Dismiss(course.message); }); }), "[ZARN] " + course.log);
        EXPECT_EQ(accepted, course.accepted);
        const std::string commands = scripted.TakeCommands();
        EXPECT_EQ(QByteArray::fromStdString(commands).count("write"), course.writes);
        EXPECT_TRUE(commands.ends_with(course.end)) << commands;
        if (course.accepted) {
            EXPECT_TRUE(MemoryOfUnit() == SensorUnit::MakeImage({})) << "not what the unit comes with";
        }
    }
}

TEST_F(FirmwareDialog, TheBarRunsTwiceAndNoKeyEndsIt)
{
    QList<int> values;
    QStringList texts;
    // By a timer of the event loop: a thread might come too late.
    Robot::When([] { return QApplication::activeModalWidget() != nullptr; }, [&] {
        auto* bar = QApplication::activeModalWidget()->findChild<QProgressBar*>("progress");
        EXPECT_EQ(bar->maximum(), 341);
        QObject::connect(bar, &QProgressBar::valueChanged, [&](int value) {
            values += value;
            texts += Robot::TextOf("infoText");
        });
        QTest::keyClick(bar, Qt::Key_Escape);
    });
    EXPECT_TRUE(Use(DlgTDFirmware::Show, [] { Dismiss("\nAktualisierung erfolgreich\n"); }));
    ASSERT_EQ(values.count(340), 2);
    EXPECT_EQ(values.count(0), 2);
    EXPECT_EQ(texts[values.indexOf(340)], "Programmierung ...");
    EXPECT_EQ(texts[values.lastIndexOf(340)], "Verifizierung ...");
    EXPECT_EQ(texts.last(), "Abgeschlossen");
}
