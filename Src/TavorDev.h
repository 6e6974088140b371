#pragma once

#include "RRx/RRArray.h"
#include "RRx/RRDateTime.h"
#include "RRx/RRFixPnt.h"
#include "RRx/RRString.h"
#include "SLVersion.h"
#include "TDPort.h"
#include "Types.h"

#include <QObject>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <pthread.h>

class TDService;

/// The sensor unit as the program sees it: a cache of its services that a thread of its own keeps up to
/// date over the serial line, getters on that cache, and commands that go over the line at once.
/// All public operations run on the event loop's thread. A reading that the unit didn't deliver, or that
/// lies outside its valid range, comes as the invalid value of its type. Commands return whether the
/// unit answered.
class TavorDev : public QObject {
    Q_OBJECT

public:
    enum Mode { MODE_APPL = 0, MODE_PGMLDR = 1, MODE_NONE = 2 };

    /// The places for gas sensors; `SENSOR___` is a place with no gas named for it.
    enum Sensor : RR::SInt32 {
        SENSOR_SF6 = 0, SENSOR_SO2 = 1, SENSOR_HUM = 2, SENSOR_HF = 3, SENSOR_CO = 4, SENSOR___ = 5,
        SENSOR_H2S = 6, SENSOR_P6 = 7, SENSOR_NUM = 8
    };
    enum Valve {
        VALVE_V1 = 0, VALVE_V2 = 1, VALVE_V3 = 2, VALVE_V4 = 3, VALVE_V5 = 4, VALVE_V6 = 5, VALVE_NUM = 6,
        VALVE_MAIN = VALVE_V1, VALVE_INLET = VALVE_V2, VALVE_OUTLET = VALVE_V3, VALVE_DEPOT = VALVE_V4,
        VALVE_PR_OUTLET = VALVE_V5, VALVE_FREERUN = VALVE_V6
    };
    enum PressureSensor {
        PRESSENS_P1 = 0, PRESSENS_P2 = 1, PRESSENS_P3 = 2, PRESSENS_P4 = 3, PRESSENS_P5 = 4, PRESSENS_NUM = 5,
        PRESSENS_INLET = PRESSENS_P1, PRESSENS_BACK = PRESSENS_P2, PRESSENS_OPERATION = PRESSENS_P3,
        PRESSENS_DEPOT = PRESSENS_P4
    };
    enum ValveState : RR::SInt32 { VALVE_CLOSE = 0, VALVE_OPEN = 1, VALVE_FAILURE = RR::INVALID };
    enum CompressorState : RR::SInt32 { COMPRESSOR_OFF = 0, COMPRESSOR_ON = 1, COMPRESSOR_FAILURE = RR::INVALID };
    enum FanState : RR::SInt32 { FAN_OFF = 0, FAN_ON = 1, FAN_FAILURE = RR::INVALID };
    enum SupplySource {
        SUPSRC_BATTERY = 0, SUPSRC_LINE_AND_CHARGING = 1, SUPSRC_LINE_AND_CHARGING_COMPLETE = 2, SUPSRC_UNKNOWN = 3
    };

    /// What runs in the unit. An `applType` up to 15 is a program loader, from 16 on an application.
    struct Info {
        RR::SInt32 applType = RR::INVALID;
        SVersion applVers;
        RR::SInt32 boardType = RR::INVALID;
        SVersion boardVers;
    };

    struct SupplyInfo {
        SupplySource source = SUPSRC_UNKNOWN;
        RR::FixPnt1 voltage = RR::FixPnt1(RR::INVALID); ///< of the battery, volts
        bool powerKey = false;                          ///< pressed
    };

    /// Describes one plugged sensor; the default stands for none.
    struct SensorProfile {
        Sensor type = static_cast<Sensor>(128);
        SVersion version;
        RR::UInt08 tag = 255;                   ///< for SENSOR_SF6 the calibration gas: 0 nitrogen, 1 CF4
        RR::SInt32 unit = 128;                  ///< of the range: 0 °C, 1 °F, 2 ppmv, 3 ppmw, 4 Vol.-%, 5 bar, 6 psi
        RR::SInt32 rangeMin = RR::INVALID;      ///< whole units
        RR::SInt32 rangeMax = RR::INVALID;      ///< whole units
        RR::Date manfDate;
        RR::String serial;                      ///< up to 8 characters
        RR::SInt32 expectancy = RR::INVALID;    ///< expected life, days
        RR::Date calDate;
        RR::SInt32 calValidity = RR::INVALID;   ///< of a calibration, days

        bool operator==(const SensorProfile& other) const;
        bool operator!=(const SensorProfile& other) const { return !(*this == other); }
    };

    /// Opens the serial line and starts the link thread, which polls nothing before `Connect`.
    /// Without the line there is no thread and `Connect` fails.
    TavorDev();
    ~TavorDev() override;

    /// Identifies the unit, brings it into `setMode` and, for MODE_APPL, fills the cache and starts polling.
    /// Blocks for some seconds at most. After a failure the mode is MODE_NONE.
    bool Connect(Mode setMode);
    /// Stops polling and invalidates the cache.
    void Disconnect();
    Mode GetMode() const { return mode; }

    /// Reads as many bytes as `data` holds, 1 to 64, from the unit's location `loc`.
    bool Read(RR::UInt32 loc, RR::Array<unsigned char>& data) const;
    /// Writes `data`, 1 to 64 bytes, to the unit's location `loc`.
    bool Write(RR::UInt32 loc, const RR::Array<unsigned char>& data);

    SupplyInfo GetSupplyInfo() const;
    RR::DateTime GetRTC() const;
    Temperature GetBoardTemperature() const;
    RR::SInt32 GetRelHumidity() const;                  ///< inside the instrument, percent
    RR::SInt32 GetAirPressure() const;                  ///< ambient, hPa
    ValveState GetValve(Valve valve) const;
    CompressorState GetCompressor() const;
    FanState GetFan1() const;
    FanState GetFan2() const;
    RR::SInt32 GetCompressorOperatingTime() const;      ///< minutes
    RR::SInt32 GetPumpBackProcesses() const;
    RR::SInt32 GetDepotFillingLevel() const;            ///< percent
    Pressure GetPressure(PressureSensor sensor) const;  ///< P1, P3 absolute; P2, P4, P5 relative to ambient

    RR::FixPnt1 GetAmountSF6() const;                   ///< percent by volume
    RR::FixPnt3 GetAmountSO2() const;                   ///< ppmv, like the others
    RR::FixPnt3 GetAmountHF() const;
    RR::FixPnt3 GetAmountCO() const;
    RR::FixPnt3 GetAmount__() const;
    RR::FixPnt3 GetAmountH2S() const;                   ///< a drift of up to 10 below the range shows in inspection mode only
    Humidity GetHumidity() const;
    Pressure GetPressureComp() const;                   ///< in the gas compartment, absolute

    /// Works in every mode. False, with `info` at its default, if the unit doesn't answer.
    bool GetDevInfo(Info& info) const;
    /// The default profile if the sensor isn't plugged.
    SensorProfile GetSensorProfile(Sensor sensor) const;
    bool HasSensor(Sensor sensor) const;
    bool HasSensors() const;
    /// Stores the profile in the sensor that its `type` names; false for any other type.
    bool SetSensorProfile(const SensorProfile& profile);

    /// An invalid time is sent as such, and the unit ignores it.
    bool SetRTC(const RR::DateTime& dateTime);
    bool HomePositions();
    bool PowerDown();
    bool SetValve(Valve valve, bool open);
    bool SetCompressor(bool on);
    bool SetFan1(bool open);
    bool SetFan2(bool open);
    /// A number outside 0 to 30000 makes the count invalid.
    bool SetPumpBackProcesses(RR::SInt32 num);
    void ZeroizeCompressorOperatingTime();

signals:
    // The last three come from the link thread: connect all of them queued.
    void Connected();
    void Disconnected();
    void Lost();
    void Recovered();
    void Changed();

private:
    static void* TDThreadEntry(void* tavorDev);
    void TDThreadMain();
    void TDPollPass();
    void TDCreateReq(TDMsg& msg);  ///< under `tdMutex`
    void TDDeliverRsp(TDMsg& msg); ///< under `tdMutex`
    void AwaitEndOfPass(std::unique_lock<std::mutex>& lock) const;
    void Transceive(TDMsg& msg) const;
    void PopulateService(const TDMsg& msg) const;
    bool ReadService(const TDService& service, RR::Array<unsigned char>& data) const;
    bool EnterMode(Mode setMode);
    void FillCache() const;
    bool WriteByte(RR::UInt32 loc, RR::UInt08 value);
    FanState GetFan(int index) const;
    bool GetSensorData(Sensor sensor, RR::Array<unsigned char>& data) const;
    bool SetSensorData(Sensor sensor, const RR::Array<unsigned char>& data);
    RR::FixPnt3 GetSensorValue(Sensor sensor, RR::SInt32 driftBelowRange = 0) const;

    Mode mode = MODE_NONE;
    TDPort port;
    pthread_t tdThread = {};
    std::atomic<bool> tdThreadAlive = false;
    mutable std::mutex tdMutex;                  ///< guards the port, the services and the handshake
    mutable std::condition_variable tdCondWait;  ///< signalled at the thread's start and at the end of every pass
    RR::SInt32 tdSrvIndex = 0;                   ///< position in the poll sequence
    bool rediscovery = false;                    ///< the unit was lost and answers again
    bool tdChanged = false;                      ///< the cache changed since the last `Changed`
    RR::SInt32 tdEventAgility = 3;               ///< passes to go before `Changed` may be sent
    mutable bool tdCachingPause = false;         ///< the link thread has completed a pass
    std::atomic<bool> tdCachingEnabled = false;  ///< the link thread polls
};

/// The one sensor unit.
extern TavorDev tavorDev;

/// Service staff operates the instrument: some readings and checks differ. Lives in memory only.
extern bool inspectionMode;

/// The stored text form of a profile: eleven fields separated by ",".
RR::String BiC(const TavorDev::SensorProfile& value);
/// Reads it; anything but eleven fields gives the default profile, and each unreadable field its default.
void BiC(const RR::String& text, TavorDev::SensorProfile& value);
