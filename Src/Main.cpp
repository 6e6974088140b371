#include "Board/Board.h"
#include "Config.h"
#include "Globals.h"
#include "JobStateMachine.h"
#include "Settings.h"
#include "TavorDev.h"
#include "WndMain.h"

#include <QApplication>
#include <QFont>
#include <cstring>
#include <string>
#include <vector>

namespace {

/// Hides the cursor at the start; powers the sensor unit down and halts the board at the end.
bool HasOptionR(int argc, char** argv)
{
    for (int i = 0; i < argc; ++i) {
        if (std::strcmp(argv[i], "-r") == 0) {
            return true;
        }
    }
    return false;
}

void PrintBanner()
{
    RR::Log("\nZARN Control\n"
            "------------------------------\n"
            "ZARN\n"
            "Gas analysis\n"
            "for switchgear\n"
            "\n"
            "Appl-Type:  %s\n"
            "Appl-Vers:  %s\n"
            "Board-Type: %s\n"
            "\n",
        CFG::ApplType, CFG::ApplVers, CFG::BoardType);
}

/// The program's arguments with those of the window system behind its name. Qt refers to them for as
/// long as the application lives.
struct Arguments {
    Arguments(int argc, char** argv) : extra(Board::WindowSystemArgs())
    {
        list.assign(argv, argv + argc);
        for (std::string& arg : extra) {
            list.insert(list.begin() + 1 + (&arg - extra.data()), arg.data());
        }
        count = static_cast<int>(list.size());
        list.push_back(nullptr);
    }

    std::vector<std::string> extra;
    std::vector<char*> list;
    int count = 0;
};

}

int main(int argc, char** argv)
{
    QFont font(CFG::FontFamily);
    PrintBanner();
    const bool optionR = HasOptionR(argc, argv);
    RR::Log("[ZARN] Application started\n");

    Arguments arguments(argc, argv);
    QApplication application(arguments.count, arguments.list.data());
    // The window system's part is loaded. All pictures are PNG, which needs no further one, and a search for the others takes time.
    QApplication::setLibraryPaths({});
    if (optionR) {
        QApplication::setOverrideCursor(Qt::BlankCursor);
    }
    font.setPixelSize(20);
    QApplication::setFont(font);

    settings.Load();
    Unmount(CFG::UsbMountPoint);
    wndMain = new WndMain(nullptr, Qt::FramelessWindowHint);
    wndMain->show();
    SelectLanguage(settings.applLanguage);
    QApplication::setQuitOnLastWindowClosed(true);
    QApplication::exec();

    tavorDev.HomePositions();
    settings.Save();
    delete wndMain;
    wndMain = nullptr;
    if (optionR) {
        tavorDev.PowerDown();
    }
    RR::Log("[ZARN] Application terminated\n");
    if (optionR) {
        Board::Shell("halt");
    }
    return 0;
}
