#include "SensorUnit/CommandWords.h"

#include <algorithm>

namespace SensorUnit {

namespace {

/// One kind of fault: what may stand behind its name, how it is brought about, listed and cleared.
struct Kind {
    const char* name;
    const char* words;
    const char* help;
    bool (*set)(Faults& faults, Words& words, const Machine& machine);
    void (*list)(const Faults& faults, std::string& answer);
    void (*clear)(Faults& faults);
};

void Add(std::string& answer, const std::string& line)
{
    answer += line + "\n";
}

bool SetValve(Faults& faults, Words& words, const Machine& machine)
{
    const std::optional<int> valve = words.Choice(ValveNames());
    const std::optional<int> how = valve ? words.Choice({"stuck", "stuck-open", "stuck-shut", "failing", "sound"}) : std::nullopt;
    if (!how || !words.Finish()) {
        return false;
    }
    const std::size_t way = std::size_t(*valve);
    faults.stuckOpen[way] = *how == 0 ? machine.path.IsOpen(Way(way)) : *how == 1;
    faults.valve[way] = *how == 4 ? VALVE_SOUND : *how == 3 ? VALVE_FAILING : VALVE_STUCK;
    return true;
}

void ListValves(const Faults& faults, std::string& answer)
{
    for (std::size_t way = 0; way < WAY_NUM; way++) {
        if (faults.valve[way] != VALVE_SOUND) {
            Add(answer, "valve " + ValveNames()[way] + (faults.valve[way] == VALVE_FAILING ? " failing" : faults.stuckOpen[way] ? " stuck-open" : " stuck-shut"));
        }
    }
}

bool SetCompressor(Faults& faults, Words& words, const Machine&)
{
    const std::optional<int> how = words.Choice({"dead", "weak", "failing", "sound"});
    const std::optional<double> percent = how == 1 ? words.Number(0, 100) : 0;
    if (!how || !percent || !words.Finish()) {
        return false;
    }
    faults.compressor = *how == 3 ? COMPRESSOR_SOUND : *how == 2 ? COMPRESSOR_FAILING : COMPRESSOR_WEAK;
    faults.compressorShare = *percent / 100;
    return true;
}

void ListCompressor(const Faults& faults, std::string& answer)
{
    if (faults.compressor == COMPRESSOR_FAILING) {
        Add(answer, "compressor failing");
    } else if (faults.compressor == COMPRESSOR_WEAK) {
        Add(answer, "compressor weak " + Text(faults.compressorShare * 100));
    }
}

bool SetLeak(Faults& faults, Words& words, const Machine&)
{
    const std::optional<int> node = words.Choice(NodeNames());
    const std::optional<double> rate = node ? words.Number(0, 1000) : std::nullopt;
    if (!rate || !words.Finish()) {
        return false;
    }
    faults.leak[std::size_t(*node)] = *rate;
    return true;
}

void ListLeaks(const Faults& faults, std::string& answer)
{
    for (std::size_t node = 0; node < NODE_NUM; node++) {
        if (faults.leak[node] > 0) {
            Add(answer, "leak " + NodeNames()[node] + " " + Text(faults.leak[node]));
        }
    }
}

bool SetPressure(Faults& faults, Words& words, const Machine&)
{
    const std::optional<int> sensor = words.Choice({"1", "2", "3", "4", "5"});
    const bool failing = sensor && words.AtEnd();
    const std::optional<double> offset = sensor && !failing ? words.Number(-100, 100) : std::nullopt;
    if (!(failing || offset) || !words.Finish()) {
        return false;
    }
    faults.pressureFailing[std::size_t(*sensor)] = failing;
    faults.pressureOffset[std::size_t(*sensor)] = offset.value_or(0);
    return true;
}

void ListPressures(const Faults& faults, std::string& answer)
{
    for (std::size_t sensor = 0; sensor < PRESSURE_NUM; sensor++) {
        if (faults.pressureFailing[sensor]) {
            Add(answer, "pressure " + std::to_string(sensor + 1));
        } else if (faults.pressureOffset[sensor] != 0) {
            Add(answer, "pressure " + std::to_string(sensor + 1) + " " + Text(faults.pressureOffset[sensor]));
        }
    }
}

bool SetSensor(Faults& faults, Words& words, const Machine&)
{
    const std::optional<int> sensor = words.Choice(SensorNames());
    const std::optional<int> how = sensor ? words.Choice({"unplugged", "failing", "sound"}) : std::nullopt;
    if (!how || !words.Finish()) {
        return false;
    }
    faults.sensorUnplugged[std::size_t(*sensor)] = *how == 0;
    faults.sensorFailing[std::size_t(*sensor)] = *how == 1;
    return true;
}

void ListSensors(const Faults& faults, std::string& answer)
{
    for (std::size_t sensor = 0; sensor < SENSOR_NUM; sensor++) {
        if (faults.sensorUnplugged[sensor] || faults.sensorFailing[sensor]) {
            Add(answer, "sensor " + SensorNames()[sensor] + (faults.sensorUnplugged[sensor] ? " unplugged" : " failing"));
        }
    }
}

std::vector<std::string> ServiceNames()
{
    std::vector<std::string> names;
    for (int service = 0; service < SERVICE_NUM; service++) {
        names.push_back(EntryOf(Service(service)).name);
    }
    return names;
}

bool SetService(Faults& faults, Words& words, const Machine&)
{
    const std::optional<int> service = words.Choice(ServiceNames());
    if (!service || !words.Finish()) {
        return false;
    }
    faults.silentServices.insert(EntryOf(Service(*service)).location);
    return true;
}

void ListServices(const Faults& faults, std::string& answer)
{
    for (int service = 0; service < SERVICE_NUM; service++) {
        if (faults.silentServices.count(EntryOf(Service(service)).location) > 0) {
            Add(answer, std::string("service ") + EntryOf(Service(service)).name);
        }
    }
}

bool SetWet(Faults& faults, Words& words, const Machine&)
{
    const std::optional<double> dewPoint = words.Number(-80, 40);
    if (!dewPoint || !words.Finish()) {
        return false;
    }
    faults.wetDewPoint = *dewPoint;
    return true;
}

/// A fault that is one number; 0 is none.
template <auto member, int most>
bool SetNumber(Faults& faults, Words& words, const Machine&)
{
    const std::optional<double> value = words.Number(0, most);
    if (!value || !words.Finish()) {
        return false;
    }
    faults.*member = static_cast<std::remove_reference_t<decltype(faults.*member)>>(*value);
    return true;
}

/// A fault that is there or not.
template <auto member>
bool SetFlag(Faults& faults, Words& words, const Machine&)
{
    if (!words.Finish()) {
        return false;
    }
    faults.*member = true;
    return true;
}

template <auto member>
void Clear(Faults& faults)
{
    faults.*member = Faults().*member;
}

template <auto first, auto second>
void ClearBoth(Faults& faults)
{
    Clear<first>(faults);
    Clear<second>(faults);
}

#define FLAG(name, member, help) \
    {name, "", help, SetFlag<&Faults::member>, [](const Faults& f, std::string& a) { if (f.member) Add(a, name); }, Clear<&Faults::member>}
#define NUMBER(name, member, most, words, help) \
    {name, words, help, SetNumber<&Faults::member, most>, \
     [](const Faults& f, std::string& a) { if (f.member > 0) Add(a, std::string(name) + " " + Text(f.member)); }, Clear<&Faults::member>}

constexpr Kind kinds[] = {
    {"valve", "1..6|l stuck|stuck-open|stuck-shut|failing|sound", "a stuck valve reads as commanded, a failing one reads 2", SetValve, ListValves, ClearBoth<&Faults::valve, &Faults::stuckOpen>},
    {"compressor", "dead|weak PERCENT|failing|sound", "a failing one stands still and reads 2", SetCompressor, ListCompressor, ClearBoth<&Faults::compressor, &Faults::compressorShare>},
    {"leak", "c1|n1|e2|s|t|l|j|d|x RATE", "a hole to ambient, ml/s per bar", SetLeak, ListLeaks, Clear<&Faults::leak>},
    {"wet", "DEWPOINT", "the sensor path never gets drier, °C", SetWet, [](const Faults& f, std::string& a) { if (f.wetDewPoint) Add(a, "wet " + Text(*f.wetDewPoint)); }, Clear<&Faults::wetDewPoint>},
    {"pressure", "1..5 [OFFSET]", "a pressure sensor without value, or one that reads so much more, bar", SetPressure, ListPressures, ClearBoth<&Faults::pressureFailing, &Faults::pressureOffset>},
    {"sensor", "sf6|so2|hum|hf|co|spare|h2s|p6 unplugged|failing|sound", "a failing sensor has no value", SetSensor, ListSensors, ClearBoth<&Faults::sensorUnplugged, &Faults::sensorFailing>},
    FLAG("depot", depotFailing, "the depot's level has no value"),
    FLAG("climate", climateFailing, "temperature, humidity and air pressure have no value"),
    NUMBER("battery", batteryDrain, 100, "RATE", "the voltage falls, V per minute"),
    NUMBER("heat", heating, 100, "RATE", "the board gets hotter, °C per minute"),
    {"service", "NAME", "one service stays silent: supply clock home climate valves ...", SetService, ListServices, Clear<&Faults::silentServices>},
    FLAG("silent", silent, "no request is answered"),
    NUMBER("slow", slowMs, 60000, "MS", "every answer comes later, milliseconds"),
    NUMBER("garble", garble, 1, "PROBABILITY", "a character of an answer is spoilt, 0 to 1"),
    FLAG("stale", stale, "every answer comes behind the previous one"),
    FLAG("duplicate", duplicate, "every answer comes twice"),
};

#undef FLAG
#undef NUMBER

const Kind* FindKind(Words& words)
{
    std::vector<std::string> names;
    for (const Kind& kind : kinds) {
        names.push_back(kind.name);
    }
    const std::optional<int> kind = words.Choice(names);
    return kind ? &kinds[*kind] : nullptr;
}

}

bool CommandFault(Unit& unit, Words& words, std::string& answer)
{
    if (words.AtEnd()) {
        for (const Kind& kind : kinds) {
            kind.list(unit.machine.faults, answer);
        }
        return true;
    }
    const Kind* kind = FindKind(words);
    if (!kind || !kind->set(unit.machine.faults, words, unit.machine)) {
        return false;
    }
    unit.machine.Apply();
    return true;
}

bool CommandClear(Unit& unit, Words& words)
{
    if (words.AtEnd()) {
        unit.machine.faults = Faults();
    } else {
        const Kind* kind = FindKind(words);
        if (!kind || !words.Finish()) {
            return false;
        }
        kind->clear(unit.machine.faults);
    }
    unit.machine.Apply();
    return true;
}

std::string HelpOnFaults()
{
    std::string text;
    for (const Kind& kind : kinds) {
        text += std::string("fault ") + kind.name + (*kind.words ? " " : "") + kind.words + ": " + kind.help + "\n";
    }
    return text;
}

}
