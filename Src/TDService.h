#pragma once

#include "RRx/RRArray.h"
#include "RRx/RRTypeDefs.h"

class TDMsg;

/// One service of the sensor unit: a run of bytes in its address map, and the cached copy of them.
class TDService {
public:
    /// Tested as a bit mask.
    enum Access { READ = 1, WRITE = 2, BOTH = 3 };

    TDService() = default;
    /// A disabled service of `siz` bytes at location `loc`; a negative size counts as 0.
    TDService(Access acc, RR::UInt32 loc, RR::SInt32 siz);

    /// The cache is valid: the last exchange on this service succeeded.
    bool IsEnabled() const { return enabled; }
    void Enable() { enabled = true; }
    void Disable() { enabled = false; }

    bool IsReadable() const { return (access & READ) != 0; }
    bool IsWritable() const { return (access & WRITE) != 0; }
    RR::UInt32 GetLoc() const { return location; }
    RR::SInt32 GetSize() const { return static_cast<RR::SInt32>(size); }

    RR::Array<unsigned char>& Data() { return data; }
    const RR::Array<unsigned char>& Data() const { return data; }

private:
    bool enabled = false;
    Access access = BOTH;
    RR::UInt32 location = 0;
    RR::UInt32 size = 0;
    RR::Array<unsigned char> data;
};

constexpr int TD_SERVICE_NUM = 22;

// The services of the unit, in ascending order of location. All multi-byte fields are big-endian.
extern const TDService& srvReadSupplyInfo;
extern const TDService& srvAccRTC;
extern const TDService& srvHomePositions;
extern const TDService& srvReadBoardClimate;
extern const TDService& srvAccValves;
extern const TDService& srvAccCompressor;
extern const TDService& srvReadPressureSensors;
extern const TDService& srvReadDepotFillingLevel;
extern const TDService& srvAccFans;
extern const TDService& srvAccSensorSF6;
extern const TDService& srvAccSensorSO2;
extern const TDService& srvAccSensorHum;
extern const TDService& srvAccSensorHF;
extern const TDService& srvAccSensorCO;
extern const TDService& srvAccSensor__;
extern const TDService& srvAccSensorH2S;
extern const TDService& srvAccSensorP6;
extern const TDService& srvAccStorings;
extern const TDService& srvReadDeviceInfo;
extern const TDService& srvEnterAppl;
extern const TDService& srvEnterPgmLdr;
extern const TDService& srvPowerdown;

/// The service of a gas sensor, 0 to 7.
const TDService& SensorService(int sensor);
