#include "SensorUnit/Commands.h"

#include "SensorUnit/CommandWords.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <sstream>

namespace SensorUnit {

namespace {

constexpr const char* help =
    "get [NAME]                  all values, or one\n"
    "set NAME VALUE...           changes a value, see below\n"
    "flush                       the whole gas path and the sensors at once on the compartment's gas\n"
    "cap                         ports 1 and 2 capped, as for self-tests\n"
    "profile SENSOR [FIELD VALUE...]  memory of a sensor: version M.N, tag N, unit N, range MIN MAX,\n"
    "                            manufactured DATE, calibrated DATE (2024-05-31), serial TEXT,\n"
    "                            expectancy DAYS, validity DAYS (none: no value)\n"
    "image VERSION               installs another program version, as 5.9, and starts it; 6.0 is the factory's\n"
    "image damage                spoils the program; the next start ends in the loader\n"
    "unplug, plug                cuts the line, joins it\n"
    "reset                       restarts the controller\n"
    "power on, power off         switches the unit\n"
    "stats                       what came over the line and what became of it\n"
    "fault [WORD...]             lists the faults, or brings one about, see below\n"
    "clear [WORD]                clears all faults, or those of one kind\n";

std::string Stats(const Unit& unit)
{
    const RequestCounters& requests = unit.Counters();
    const LineCounters& line = unit.line.Counters();
    const std::pair<const char*, std::uint64_t> rows[] = {
        {"answered", requests.answered}, {"malformed", requests.malformed}, {"unserved", requests.unserved},
        {"withheld", requests.withheld}, {"overlong", line.overlong}, {"half", line.half}, {"bytes-in", line.bytesIn},
        {"bytes-out", line.bytesOut}, {"vanished-in", line.vanishedIn}, {"vanished-out", line.vanishedOut}};
    std::string text;
    for (const auto& [name, count] : rows) {
        text += std::string(name) + " " + std::to_string(count) + "\n";
    }
    return text;
}

bool Execute(Unit& unit, const std::string& verb, Words& words, std::string& answer, Micros now)
{
    if (verb == "get") {
        return CommandGet(unit, words, answer);
    }
    if (verb == "set") {
        return CommandSet(unit, words, answer);
    }
    if (verb == "profile") {
        return CommandProfile(unit, words, answer);
    }
    if (verb == "image") {
        return CommandImage(unit, words, now);
    }
    if (verb == "fault") {
        return CommandFault(unit, words, answer);
    }
    if (verb == "clear") {
        return CommandClear(unit, words);
    }
    const std::optional<int> power = verb == "power" ? words.Choice({"off", "on"}) : 0;
    if (!power || !words.Finish()) {
        return false;
    }
    if (verb == "power") {
        *power ? unit.PowerOn(now) : unit.PowerOff();
    } else if (verb == "help") {
        answer += std::string(help) + HelpOnSettings() + HelpOnFaults();
    } else if (verb == "flush") {
        unit.machine.Flush();
    } else if (verb == "cap") {
        unit.machine.SetPort1(PORT_CAPPED);
        unit.machine.SetPort2(PORT_CAPPED, 0);
    } else if (verb == "unplug" || verb == "plug") {
        unit.line.SetPlugged(verb == "plug");
    } else if (verb == "reset") {
        unit.Reset(now);
    } else if (verb == "stats") {
        answer += Stats(unit);
    } else {
        return words.Fail("unknown command " + verb + ", try help");
    }
    return true;
}

}

bool Words::TakeIf(const std::string& word)
{
    const bool fits = !AtEnd() && words[next] == word;
    next += fits;
    return fits;
}

std::optional<double> Words::Number(double low, double high)
{
    const std::string word = Take();
    double value = 0;
    const auto [end, failed] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (failed != std::errc() || end != word.data() + word.size() || !(value >= low && value <= high)) {
        Fail("a number from " + Text(low) + " to " + Text(high) + " is wanted" + (word.empty() ? "" : ", not " + word));
        return std::nullopt;
    }
    return value;
}

std::optional<int> Words::Whole(int low, int high)
{
    const std::optional<double> value = Number(low, high);
    if (value && *value != std::floor(*value)) {
        Fail("a whole number is wanted");
        return std::nullopt;
    }
    return value ? std::optional<int>(int(*value)) : std::nullopt;
}

std::optional<int> Words::Choice(const std::vector<std::string>& choices)
{
    const std::string word = Take();
    const auto found = std::find(choices.begin(), choices.end(), word);
    if (found != choices.end()) {
        return int(found - choices.begin());
    }
    std::string text = "one of";
    for (const std::string& choice : choices) {
        text += " " + choice;
    }
    Fail(text + " is wanted" + (word.empty() ? "" : ", not " + word));
    return std::nullopt;
}

bool Words::Finish()
{
    return AtEnd() || Fail("too many words, from " + words[next] + " on");
}

bool Words::Fail(const std::string& text)
{
    if (error.empty()) {
        error = text;
    }
    return false;
}

std::string Text(double value)
{
    char text[400];
    std::snprintf(text, sizeof text, "%.3f", value);
    std::string result = text;
    result.erase(result.find_last_not_of('0') + 1);
    if (result.back() == '.') {
        result.pop_back();
    }
    return result == "-0" ? "0" : result;
}

const std::vector<std::string>& SensorNames()
{
    static const std::vector<std::string> names = {"sf6", "so2", "hum", "hf", "co", "spare", "h2s", "p6"};
    return names;
}

const std::vector<std::string>& NodeNames()
{
    static const std::vector<std::string> names = {"c1", "n1", "e2", "s", "t", "l", "j", "d", "x"};
    return names;
}

const std::vector<std::string>& ValveNames()
{
    static const std::vector<std::string> names = {"1", "2", "3", "4", "5", "6", "l"};
    return names;
}

std::string ExecuteCommand(Unit& unit, const std::string& line, Micros now)
{
    std::istringstream from(line);
    std::string verb;
    from >> verb;
    std::vector<std::string> rest;
    for (std::string word; from >> word;) {
        rest.push_back(word);
    }
    Words words(std::move(rest));
    std::string answer;
    if (!Execute(unit, verb, words, answer, now)) {
        return "error " + Printable(words.Error(), 400) + "\n";
    }
    if (verb != "get" && verb != "help" && verb != "stats") {
        unit.Touch(now);
    }
    return answer + "ok\n";
}

}
