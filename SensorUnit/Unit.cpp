#include "SensorUnit/Unit.h"

#include "SensorUnit/Calendar.h"
#include "SensorUnit/Log.h"
#include "SensorUnit/State.h"

#include <algorithm>

namespace SensorUnit {

namespace {

using std::chrono::milliseconds;

constexpr std::uint8_t loaderType = 1; ///< below 15, so that the program starts the application
constexpr std::uint8_t loaderVersion = 0x10;
constexpr std::uint8_t boardVersion = 0x20;

constexpr std::uint8_t goCommand = 0x5E;
constexpr std::uint8_t offCommand = 0x05;

constexpr Micros thinkingTime = milliseconds(1);
constexpr Micros startTime = milliseconds(300);
constexpr Micros saveDelay = milliseconds(500);
constexpr Micros saveInterval = std::chrono::seconds(30); ///< while gas moves
constexpr Micros idleTurn = milliseconds(100);
constexpr Micros fullLineTurn = milliseconds(10);

}

Unit::Unit(bool paced, std::string file)
    : line(paced)
    , machine(WallClock)
    , registers(machine)
    , stateFile(std::move(file))
{
    if (!stateFile.empty()) {
        LoadState(stateFile, machine, loader);
    }
    StartImage();
}

Unit::~Unit()
{
    Save();
}

void Unit::StartImage()
{
    running = loader.Application(machine.boardType);
    mode = running ? MODE_APPLICATION : MODE_LOADER;
    Log("starts in the %s", mode == MODE_APPLICATION ? "application" : "program loader");
}

void Unit::Reset(Micros now)
{
    line.Drop();
    machine.GoHome();
    previousAnswer.clear();
    silentUntil = now + startTime;
    StartImage();
}

void Unit::PowerOff()
{
    Log("powered down");
    machine.GoHome();
    mode = MODE_OFF;
}

void Unit::PowerOn(Micros now)
{
    if (mode == MODE_OFF) {
        Reset(now);
    }
}

void Unit::Touch(Micros now)
{
    saveAt = std::min(saveAt.value_or(Micros::max()), now + saveDelay);
}

void Unit::Save()
{
    saveAt.reset();
    if (!stateFile.empty()) {
        SaveState(stateFile, machine, loader);
    }
}

void Unit::Turn(Micros now)
{
    machine.Advance(std::chrono::duration<double>(now - machineTime).count());
    machineTime = now;
    line.Receive(now);
    while (const std::optional<std::string> text = line.TakeLine(now)) {
        Handle(*text, now);
    }
    line.Transmit(now);
    if (!saveAt && machine.IsMoving()) {
        saveAt = now + saveInterval;
    }
    if (saveAt && *saveAt <= now) {
        Save();
    }
}

Micros Unit::NextDue(Micros now) const
{
    Micros due = now + (line.WantsInput(now) ? idleTurn : fullLineTurn);
    if (const std::optional<Micros> lineDue = line.NextDue()) {
        due = std::min(due, *lineDue);
    }
    return due;
}

void Unit::Handle(const std::string& text, Micros now)
{
    const std::optional<Request> request = ParseRequest(text);
    if (!request) {
        Log("malformed: %s", Printable(text).c_str());
        counters.malformed++;
        return;
    }
    const Service service = ServiceFor(*request);
    const bool kept = service < SERVICE_NUM && machine.faults.silentServices.count(EntryOf(service).location) > 0;
    if (mode == MODE_OFF || machine.faults.silent || kept || now < silentUntil) {
        counters.withheld++;
        return;
    }
    if (const std::optional<std::string> response = Serve(*request, now)) {
        counters.answered++;
        Answer(*response, now);
    } else {
        Log("unserved: %s", Printable(text).c_str());
        counters.unserved++;
    }
}

std::vector<std::uint8_t> Unit::DeviceInfo() const
{
    if (mode == MODE_APPLICATION && running) {
        return {running->type, running->version, machine.boardType, boardVersion};
    }
    return {loaderType, loaderVersion, machine.boardType, boardVersion};
}

std::optional<std::string> Unit::Serve(const Request& request, Micros now)
{
    const Service service = ServiceFor(request);
    switch (service) {
    case SERVICE_NUM:
        return ServeMemory(request, now);
    case SERVICE_DEVICE_INFO:
        return FormatResponse(request, DeviceInfo().data() + (request.location - EntryOf(service).location));
    case SERVICE_ENTER_APPLICATION:
    case SERVICE_ENTER_LOADER:
        if (request.data[0] != goCommand) {
            return std::nullopt;
        }
        if (service == SERVICE_ENTER_APPLICATION && mode == MODE_LOADER) {
            StartImage();
        } else if (service == SERVICE_ENTER_LOADER && mode == MODE_APPLICATION) {
            Log("enters the program loader");
            machine.GoHome();
            mode = MODE_LOADER;
        }
        return FormatResponse(request, nullptr);
    default:
        break;
    }
    if (service == SERVICE_POWERDOWN) {
        if (request.data[0] != offCommand) {
            return std::nullopt;
        }
        PowerOff();
        return FormatResponse(request, nullptr);
    }
    if (mode != MODE_APPLICATION) {
        return std::nullopt;
    }
    if (!request.write) {
        return FormatResponse(request, registers.Read(service).data() + (request.location - EntryOf(service).location));
    }
    if (!registers.Write(service, request)) {
        return std::nullopt;
    }
    Touch(now);
    return FormatResponse(request, nullptr);
}

std::optional<std::string> Unit::ServeMemory(const Request& request, Micros now)
{
    if (mode != MODE_LOADER || !Loader::Covers(request.location, request.count)) {
        return std::nullopt;
    }
    if (request.write) {
        loader.Write(request.location, request.data.data(), request.count);
        Touch(now);
        return FormatResponse(request, nullptr);
    }
    return FormatResponse(request, loader.At(request.location));
}

std::string Unit::Garbled(std::string text)
{
    std::uniform_real_distribution<double> chance(0, 1);
    if (machine.faults.garble > 0 && chance(random) < machine.faults.garble) {
        const std::size_t place = std::uniform_int_distribution<std::size_t>(0, text.size() - 2)(random);
        text[place] = char(text[place] ^ (1 << std::uniform_int_distribution<int>(0, 6)(random)));
    }
    return text;
}

void Unit::Answer(const std::string& response, Micros now)
{
    const Micros start = now + thinkingTime + milliseconds(machine.faults.slowMs);
    if (machine.faults.stale && !previousAnswer.empty()) {
        line.Send(previousAnswer, start);
    }
    line.Send(Garbled(response), start);
    if (machine.faults.duplicate) {
        line.Send(response, start);
    }
    previousAnswer = response;
}

}
