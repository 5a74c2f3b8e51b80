// The decoded record of a power reading, which power meter and power monitor share: a monitor sets some of
// its fields and leaves the others as the trace before left them.
#pragma once

#include <cstdint>
#include <string>

namespace Traces {

struct PowerRecord {
    std::uint8_t PowerMode = 0;
    std::uint8_t PowerUnit = 0;                                      ///< 1 shows dBm, any other watts
    float StartFreq = 0, StopFreq = 0, CenterFreq = 0, FreqSpan = 0; ///< MHz
    std::string OffsetStatus;                                        ///< "ON", "OFF", "CAL ON"
    std::string CalFlag;        ///< a number's text; raw traces alone have it
    float PowerOffset = 0;      ///< dB
    std::string RelativeStatus; ///< "ON", "OFF"
    float PowerRelative = 0;    ///< dB or dBm
    std::string RmsAveraging;
    std::string ZeroStatus;        ///< "ON", "OFF"
    std::string ExternalRefStatus; ///< "ON", "OFF"
    float ExternalRefFreq = 0;     ///< MHz
    std::string SignalStandard;
    std::int16_t ChannelSelection = 0; ///< negative for none
    std::int32_t GpsLatitude = 0, GpsLongitude = 0;
    std::int16_t GpsAltitude = 0;
    std::string LinkType;
    float PowerReading = 0; ///< dBm
};

} // namespace Traces
