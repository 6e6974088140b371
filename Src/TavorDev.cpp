#include "TavorDev.h"

#include "RRx/RRService.h"
#include "TDFirmware.h"
#include "TDService.h"

#include <cstring>
#include <unistd.h>

using RR::Array;
using RR::SInt32;
using RR::UInt08;
using RR::UInt32;

TDService::TDService(Access acc, UInt32 loc, SInt32 siz)
    : access(acc), location(loc), size(siz < 0 ? 0 : static_cast<UInt32>(siz))
{
    data.SetSize(GetSize());
    data.Fill(0xFF);
}

namespace {

constexpr const char* TDSerialDevice = "/dev/ttySAC0";
constexpr useconds_t passPauseUs = 100000;
constexpr useconds_t settlingUs = 200000;
constexpr SInt32 eventAgilityPasses = 3;
constexpr UInt08 commandByte = 0x5E;

/// In ascending order of location; `ChooseServiceFor` depends on it.
TDService serviceTable[TD_SERVICE_NUM] = {
    {TDService::READ, 0x10000100, 4},
    {TDService::BOTH, 0x10000200, 7},
    {TDService::WRITE, 0x10000300, 1},
    {TDService::READ, 0x10000500, 4},
    {TDService::BOTH, 0x10000600, 6},
    {TDService::BOTH, 0x10000700, 1},
    {TDService::READ, 0x10000800, 20},
    {TDService::READ, 0x10000900, 1},
    {TDService::BOTH, 0x10000A00, 2},
    {TDService::BOTH, 0x10001100, 32},
    {TDService::BOTH, 0x10001200, 32},
    {TDService::BOTH, 0x10001300, 32},
    {TDService::BOTH, 0x10001400, 32},
    {TDService::BOTH, 0x10001500, 32},
    {TDService::BOTH, 0x10001600, 32},
    {TDService::BOTH, 0x10001700, 32},
    {TDService::BOTH, 0x10001800, 32},
    {TDService::BOTH, 0x10002000, 6},
    {TDService::READ, 0xFFFFFFF0, 4},
    {TDService::WRITE, 0xFFFFFFF8, 1},
    {TDService::WRITE, 0xFFFFFFF9, 1},
    {TDService::WRITE, 0xFFFFFFFA, 1},
};

/// The poll sequence, by index into the table. The pressures come three times as often as the rest.
constexpr UInt08 queryIndexTable[] = {0, 1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 6, 12, 13, 14, 15, 16, 17, 6};
constexpr SInt32 queryIndexNum = sizeof queryIndexTable;

}

const TDService& srvReadSupplyInfo = serviceTable[0];
const TDService& srvAccRTC = serviceTable[1];
const TDService& srvHomePositions = serviceTable[2];
const TDService& srvReadBoardClimate = serviceTable[3];
const TDService& srvAccValves = serviceTable[4];
const TDService& srvAccCompressor = serviceTable[5];
const TDService& srvReadPressureSensors = serviceTable[6];
const TDService& srvReadDepotFillingLevel = serviceTable[7];
const TDService& srvAccFans = serviceTable[8];
const TDService& srvAccSensorSF6 = serviceTable[9];
const TDService& srvAccSensorSO2 = serviceTable[10];
const TDService& srvAccSensorHum = serviceTable[11];
const TDService& srvAccSensorHF = serviceTable[12];
const TDService& srvAccSensorCO = serviceTable[13];
const TDService& srvAccSensor__ = serviceTable[14];
const TDService& srvAccSensorH2S = serviceTable[15];
const TDService& srvAccSensorP6 = serviceTable[16];
const TDService& srvAccStorings = serviceTable[17];
const TDService& srvReadDeviceInfo = serviceTable[18];
const TDService& srvEnterAppl = serviceTable[19];
const TDService& srvEnterPgmLdr = serviceTable[20];
const TDService& srvPowerdown = serviceTable[21];

const TDService& SensorService(int sensor)
{
    RR_ASSERT(sensor >= 0 && sensor < TavorDev::SENSOR_NUM);
    return serviceTable[9 + sensor];
}

// Stands behind the table, so that the link thread has ended before the table goes.
TavorDev tavorDev;
bool inspectionMode = false;

namespace {

/// The service that holds all bytes of `msg` and allows its access, or null.
TDService* ChooseServiceFor(const TDMsg& msg)
{
    const UInt32 loc = msg.GetLoc();
    if (loc < serviceTable[0].GetLoc() || msg.GetNum() < 1) {
        return nullptr;
    }
    SInt32 low = 0;
    SInt32 high = TD_SERVICE_NUM - 1;
    while (low <= high) {
        const SInt32 middle = low + (high - low) / 2;
        if (loc == serviceTable[middle].GetLoc()) {
            high = middle;
            break;
        }
        if (loc > serviceTable[middle].GetLoc()) {
            low = middle + 1;
        } else {
            high = middle - 1;
        }
    }
    TDService& service = serviceTable[high];
    if (msg.GetType() == TDMsg::READ ? !service.IsReadable() : !service.IsWritable()) {
        return nullptr;
    }
    if (msg.GetNum() > service.GetSize()
        || loc - service.GetLoc() > static_cast<UInt32>(service.GetSize() - msg.GetNum())) {
        return nullptr;
    }
    return &service;
}

void PrintSM(const char* text, const TDMsg& msg)
{
    RR::Log("[ZARN] %s %s%08X.%02d\n", text, msg.GetType() == TDMsg::READ ? "R." : "W.", msg.GetLoc(), msg.GetNum());
}

void DisableAllServices()
{
    for (TDService& service : serviceTable) {
        service.Disable();
    }
}

/// Puts the bytes of `msg` into the cache of `service`; true if any of them differed.
bool UpdateCache(TDService& service, const TDMsg& msg)
{
    unsigned char* cached = service.Data().Adr() + (msg.GetLoc() - service.GetLoc());
    const size_t num = static_cast<size_t>(msg.GetNum());
    if (std::memcmp(cached, msg.Data(), num) == 0) {
        return false;
    }
    std::memcpy(cached, msg.Data(), num);
    return true;
}

}

TavorDev::TavorDev()
{
    if (!port.Open(TDSerialDevice)) {
        RR::Log("[ZARN] Error open serial device: \"%s\"\n", TDSerialDevice);
        return;
    }
    std::unique_lock lock(tdMutex);
    if (pthread_create(&tdThread, nullptr, TDThreadEntry, this) != 0) {
        RR::Log("[ZARN] Failed to start td thread\n");
        port.Close();
        return;
    }
    tdCondWait.wait(lock, [this] { return tdThreadAlive.load(); });
}

TavorDev::~TavorDev()
{
    if (port.IsOpen()) {
        {
            std::lock_guard lock(tdMutex);
            tdThreadAlive = false;
        }
        pthread_join(tdThread, nullptr);
    }
}

void* TavorDev::TDThreadEntry(void* tavorDev)
{
    static_cast<TavorDev*>(tavorDev)->TDThreadMain();
    return nullptr;
}

void TavorDev::TDThreadMain()
{
    RR::Log("[ZARN] Caching thread initiated\n");
    {
        std::lock_guard lock(tdMutex);
        tdEventAgility = eventAgilityPasses;
        rediscovery = false;
        tdChanged = false;
        tdCachingPause = false;
        tdSrvIndex = 0;
        tdThreadAlive = true;
        tdCondWait.notify_all();
    }
    while (tdThreadAlive) {
        if (tdCachingEnabled) {
            TDPollPass();
        }
        {
            std::lock_guard lock(tdMutex);
            tdCachingPause = true;
            tdCondWait.notify_all();
        }
        usleep(passPauseUs);
    }
    RR::Log("[ZARN] Caching thread terminated\n");
}

void TavorDev::TDPollPass()
{
    {
        // Held from the request to the cache: a command that waits for the line finds no answer still on its way.
        std::lock_guard lock(tdMutex);
        // Polling may have been switched off while this pass waited for a foreground exchange.
        if (!tdCachingEnabled) {
            return;
        }
        TDMsg msg;
        TDCreateReq(msg);
        port.Transceive(msg);
        TDDeliverRsp(msg);
    }
    if (tdEventAgility > 0) {
        --tdEventAgility;
    } else if (tdChanged) {
        tdChanged = false;
        tdEventAgility = eventAgilityPasses;
        emit Changed();
    }
}

void TavorDev::TDCreateReq(TDMsg& msg)
{
    if (++tdSrvIndex >= queryIndexNum) {
        tdSrvIndex = 0;
    }
    const TDService& service = serviceTable[queryIndexTable[tdSrvIndex]];
    msg.Setup(service.GetLoc(), service.GetSize());
}

void TavorDev::TDDeliverRsp(TDMsg& msg)
{
    TDService* service = ChooseServiceFor(msg);
    if (!service) {
        PrintSM("No service for message", msg);
    } else if (msg.IsDiscarded()) {
        PrintSM("No response for message", msg);
        if (service->IsEnabled()) {
            service->Disable();
            tdChanged = true;
            if (service == &srvReadDeviceInfo) {
                DisableAllServices();
                rediscovery = false;
                emit Lost();
            }
        }
    } else if (msg.GetType() == TDMsg::READ) {
        if (service == &srvReadDeviceInfo) {
            if (!service->IsEnabled()) {
                rediscovery = true;
            } else if (rediscovery) {
                rediscovery = false;
                tdChanged = true;
                emit Recovered();
            }
        }
        if (!service->IsEnabled()) {
            service->Enable();
            tdChanged = true;
        }
        if (UpdateCache(*service, msg)) {
            tdChanged = true;
        }
    }
    msg.Discard();
}

void TavorDev::AwaitEndOfPass(std::unique_lock<std::mutex>& lock) const
{
    tdCachingPause = false;
    tdCondWait.wait(lock, [this] { return tdCachingPause; });
}

void TavorDev::Transceive(TDMsg& msg) const
{
    std::unique_lock lock(tdMutex);
    if (tdThreadAlive && tdCachingEnabled) {
        AwaitEndOfPass(lock);
    }
    port.Transceive(msg);
}

void TavorDev::PopulateService(const TDMsg& msg) const
{
    TDService* service = mode == MODE_APPL ? ChooseServiceFor(msg) : nullptr;
    if (!service) {
        return;
    }
    std::lock_guard lock(tdMutex);
    if (msg.IsDiscarded()) {
        service->Disable();
    } else {
        service->Enable();
        UpdateCache(*service, msg);
    }
}

bool TavorDev::ReadService(const TDService& service, Array<unsigned char>& data) const
{
    if (mode != MODE_APPL) {
        return false;
    }
    data.SetSize(service.GetSize());
    std::lock_guard lock(tdMutex);
    if (!service.IsEnabled()) {
        return false;
    }
    data = service.Data();
    return true;
}

bool TavorDev::Read(UInt32 loc, Array<unsigned char>& data) const
{
    RR_ASSERT(!data.IsEmpty());
    if (!port.IsOpen()) {
        return false;
    }
    TDMsg msg;
    msg.Setup(loc, data.GetSize());
    Transceive(msg);
    PopulateService(msg);
    if (msg.IsDiscarded()) {
        return false;
    }
    std::memcpy(data.Adr(), msg.Data(), static_cast<size_t>(msg.GetNum()));
    return true;
}

bool TavorDev::Write(UInt32 loc, const Array<unsigned char>& data)
{
    RR_ASSERT(!data.IsEmpty());
    if (!port.IsOpen()) {
        return false;
    }
    TDMsg msg;
    msg.Setup(loc, data.GetSize(), data.Adr());
    Transceive(msg);
    PopulateService(msg);
    return !msg.IsDiscarded();
}

bool TavorDev::WriteByte(UInt32 loc, UInt08 value)
{
    Array<unsigned char> data(1);
    data[0] = value;
    return Write(loc, data);
}

bool TavorDev::Connect(Mode setMode)
{
    Disconnect();
    if (!port.IsOpen() || (setMode != MODE_APPL && setMode != MODE_PGMLDR) || !EnterMode(setMode)) {
        return false;
    }
    mode = setMode;
    if (setMode == MODE_APPL) {
        FillCache();
        {
            std::lock_guard lock(tdMutex);
            tdCachingEnabled = true;
        }
        RR::Log("[ZARN] Tavor device connected: APPL\n");
    } else {
        RR::Log("[ZARN] Tavor device connected: PGMLDR\n");
    }
    emit Connected();
    return true;
}

bool TavorDev::EnterMode(Mode setMode)
{
    Array<unsigned char> info(srvReadDeviceInfo.GetSize());
    if (!Read(srvReadDeviceInfo.GetLoc(), info)) {
        usleep(settlingUs);
        if (!Read(srvReadDeviceInfo.GetLoc(), info)) {
            return false;
        }
    }
    if (info[2] != TDFW_INFO.boardType) {
        return false;
    }
    if (setMode == MODE_PGMLDR) {
        if (!WriteByte(srvEnterPgmLdr.GetLoc(), commandByte)) {
            return false;
        }
    } else if (info[0] <= 14 && !WriteByte(srvEnterAppl.GetLoc(), commandByte)) {
        return false;
    }
    usleep(settlingUs);
    port.Flush();
    if (!Read(srvReadDeviceInfo.GetLoc(), info)) {
        return false;
    }
    return setMode == MODE_PGMLDR ? info[0] <= 15 : info[0] >= 16;
}

void TavorDev::FillCache() const
{
    for (const TDService& service : serviceTable) {
        if (service.IsReadable()) {
            Array<unsigned char> data(service.GetSize());
            if (!Read(service.GetLoc(), data)) {
                RR::Log("[ZARN] On connect TD: Failed to read: %08X.%02d\n", service.GetLoc(), service.GetSize());
            }
        }
    }
}

void TavorDev::Disconnect()
{
    if (!port.IsOpen()) {
        return;
    }
    {
        std::unique_lock lock(tdMutex);
        if (tdCachingEnabled) {
            AwaitEndOfPass(lock);
            tdCachingEnabled = false;
        }
        DisableAllServices();
    }
    if (mode != MODE_NONE) {
        mode = MODE_NONE;
        RR::Log("[ZARN] Tavor device disconnected\n");
        emit Disconnected();
    }
}
