#include "JobCourse.h"
#include "Globals.h"
#include "Settings.h"

#include <map>
#include <sstream>
#include <vector>

void StatusMsg(const QString& msg)
{
    scripted.Command("[" + msg.toStdString() + "]");
}

void JobCourse::Tick()
{
    QMetaObject::invokeMethod(&machine, "OnSecTimeout", Qt::DirectConnection);
}

static void Apply(const std::string& word, JobStateMachine& machine)
{
    const size_t equals = word.find('=');
    const std::string name = word.substr(0, equals);
    const bool none = word.back() == '-';
    const double value = equals == std::string::npos || none ? RR::INVALID_DOUBLE : std::stod(word.substr(equals + 1));
    const std::map<std::string, RR::SInt32*> numbers = {
        {"T", &settings.sensPassageTime}, {"Range", &scripted.profile[TavorDev::SENSOR_SO2].rangeMax},
        {"Air", &scripted.airPressure}, {"Depot", &scripted.depotLevel}, {"Count", &scripted.pumpBacks}};
    if (name[0] == '!') {
        scripted.failing.insert(name.substr(1));
    } else if (name == "stop") {
        machine.Stop();
    } else if (name == "insp") {
        inspectionMode = true;
    } else if (numbers.contains(name)) {
        *numbers.at(name) = none ? RR::INVALID : static_cast<RR::SInt32>(value);
    } else if (name == "Hum") {
        scripted.SetDewPoint(value);
    } else if (name == "SO2") {
        scripted.amount[TavorDev::SENSOR_SO2] = value;
    } else if (name == "C") {
        scripted.compressor = TavorDev::COMPRESSOR_FAILURE;
    } else if (name[0] == 'V') {
        scripted.valve[name[1] - '1'] = TavorDev::VALVE_FAILURE;
    } else if (name[0] == 'P' && name.size() == 2) {
        scripted.pressure[name[1] - '1'] = value;
    } else {
        ADD_FAILURE() << "unknown word " << word;
    }
}

std::string JobCourse::Run(char letter, const std::string& scenario)
{
    struct Event {
        char when;
        int at;
        std::string word;
    };
    std::vector<Event> events;
    std::istringstream words(scenario);
    Event event = {'@', 0, ""};
    while (words >> event.word) {
        if (event.word[0] == '@' || event.word[0] == 'p') {
            event = {event.word[0], std::stoi(event.word.substr(1)), ""};
        } else {
            events.push_back(event);
        }
    }

    testing::internal::CaptureStdout();
    machine.Stop();
    scripted.Reset();
    settings = Settings::def;
    settings.sensPassageTime = 60;
    trace.clear();
    int tick = 0;
    for (; tick == 0 || (machine.IsRunning() && tick < 5000); ++tick) {
        for (const Event& e : events) {
            if (e.at == (e.when == '@' ? tick : machine.GetPhase())) {
                Apply(e.word, machine);
            }
        }
        if (tick == 0) {
            machine.Start(static_cast<JobStateMachine::Type>(letter));
        } else {
            Tick();
        }
        if (const std::string commands = scripted.TakeCommands(); !commands.empty()) {
            trace += (trace.empty() ? "" : " ") + std::to_string(tick) + ":" + commands;
        }
    }
    log = testing::internal::GetCapturedStdout();
    const auto end = machine.GetSnapshot();
    const std::string tag = JobStateMachine::PrintStateTag(end.type, end.lastPhase, end.stopCause).toStdString();
    return (machine.IsRunning() ? letter + std::string(" runs on") : tag) + "@" + std::to_string(tick - 1);
}
