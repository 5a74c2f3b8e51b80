// The records of power meter, power monitor and high accuracy power meter as raw buffers, and the facts read
// back from such buffers.
#pragma once

#include "Sample.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Traces::Samples {

/// Power meter and power monitor; a monitor sends none of the frequencies, averaging, standard and channel.
struct PowerSettings {
    CommonHead Head;
    bool InWatts = false;
    std::uint32_t StartHz = 0, StopHz = 0;
    bool InTensOfHertz = false; ///< frequencies as sent by older firmware for high bands
    bool Offset = false, Relative = false, Zeroed = false, Calibrated = false, ExternalReference = false;
    double OffsetDb = 0, RelativeDbm = 0;
    std::uint8_t Averaging = 0; ///< 0 off, 1 low, 2 medium, 3 high
    std::int16_t SignalStd = 0; ///< code, for firmware before 3.15
    std::string StandardName;   ///< for firmware from 3.15 on
    std::int16_t Channel = -1;  ///< negative for none
    std::uint8_t Link = 0;      ///< 0 none, 1 uplink, 2 downlink, 3 both
    GpsFix Gps;
};

/// High accuracy power meter.
struct HighAccuracySettings {
    CommonHead Head;
    std::uint32_t CenterKiloHertz = 0;
    bool MaxHold = false, Offset = false, Relative = false, Zeroed = false, Limits = false;
    double OffsetDb = 0, RelativeDbm = 0, UpperDbm = 0, LowerDbm = 0;
    std::int16_t SignalStd = 0;
    std::uint8_t Error = 0; ///< a bit for each thing that is wrong
    std::string UtcTime;    ///< 8 characters
    GpsFix Gps;
};

Sample PowerMeterSample(const std::string& fileName, const std::string& shows, const PowerSettings& settings,
                        double dBm);
Sample PowerMonitorSample(const std::string& fileName, const std::string& shows,
                          const PowerSettings& settings, double dBm);
Sample HighAccuracySample(const std::string& fileName, const std::string& shows,
                          const HighAccuracySettings& settings, double dBm);

} // namespace Traces::Samples
