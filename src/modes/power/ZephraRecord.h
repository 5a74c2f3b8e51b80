// The decoded record of a high accuracy power meter: a reading of a power sensor with its limits and its
// status.
#pragma once

#include <cstdint>
#include <string>

namespace Traces {

/// Statuses are "ON" or "OFF", or a number's text from a file.
struct ZephraRecord {
    float CenterFreq = 0;   ///< MHz
    float PowerReading = 0; ///< dBm
    std::string MaxHold;
    std::string OffsetStatus;
    float PowerOffset = 0; ///< dB
    std::string MeasOffsetStatus;
    float MeasOffset = 0;
    float PowerRelative = 0; ///< dBm
    std::string RelativeStatus;
    std::string RanValue;
    std::string SignalStandard;
    std::string ZeroStatus;
    std::string LimitStatus;
    float UpperLimit = 0, LowerLimit = 0; ///< dBm
    float LimitUnitDisplay = 0;
    std::string ErrorStatus; ///< a number's text; "0" is no error
    std::int32_t GpsLatitude = 0, GpsLongitude = 0;
    std::int16_t GpsAltitude = 0;
    std::string LinkType; ///< a number's text
    std::string UtcTime;
};

} // namespace Traces
