#include "Panel.h"

#include "Config.h"
#include "Dialogs/Look.h"

#include <QApplication>
#include <QFont>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace Panel {

void ChooseScreen()
{
    static const std::string screen =
        R"({"screens":[{"name":"panel","x":0,"y":0,"width":800,"height":480,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})";
    if (qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen") != QLatin1String("offscreen")) {
        return;
    }
    // The platform reads it from a file; this one goes with the process.
    const int fd = memfd_create("panel", 0);
    if (fd >= 0 && write(fd, screen.data(), screen.size()) == static_cast<ssize_t>(screen.size())) {
        setenv("QT_QPA_PLATFORM", ("offscreen:configfile=/proc/self/fd/" + std::to_string(fd)).c_str(), 1);
    }
}

void Dress()
{
    QFont font(CFG::FontFamily);
    font.setPixelSize(20);
    QApplication::setFont(font);
    DressApplication();
}

}
