#include "SensorUnit/Commands.h"

#include <sstream>
#include <vector>

namespace SensorUnit {

std::string ExecuteCommand(Unit& unit, const std::string& line, Micros now)
{
    std::istringstream from(line);
    std::vector<std::string> words;
    for (std::string word; from >> word;) {
        words.push_back(word);
    }
    const std::string verb = words.empty() ? "" : words[0];
    if (verb == "unplug" || verb == "plug") {
        unit.line.SetPlugged(verb == "plug");
    } else if (verb == "reset") {
        unit.Reset(now);
    } else if (verb == "power" && words.size() == 2 && words[1] == "on") {
        unit.PowerOn(now);
    } else if (verb == "power" && words.size() == 2 && words[1] == "off") {
        unit.PowerOff();
    } else {
        return "error unknown command\n";
    }
    return "ok\n";
}

}
