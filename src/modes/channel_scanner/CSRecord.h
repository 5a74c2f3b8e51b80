// The decoded record of a channel scan: the power in each of up to 20 channels. Its routes are in CSTrace.h,
// its picture in CSView.h.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace Traces {

struct CSChannel {
    std::int16_t Number = 0; ///< in the signal standard
    float Frequency = 0;     ///< centre, MHz
    float Level = 0;         ///< dBm
};

struct CSRecord {
    static constexpr std::size_t MaxChannels = 20;

    float StartFreq = 0, StopFreq = 0; ///< MHz
    float RefLevel = 0;                ///< dBm
    float ScaleDiv = 0;                ///< dB a division
    std::int32_t RBWSetting = 0;       ///< Hz
    std::int32_t VBWSetting = 0;       ///< Hz
    float ChannelBandwidth = 0;        ///< MHz that a channel's power is summed over
    float Attenuation = 0;             ///< dB
    std::string SignalStandard, LinkType;
    std::int32_t SingleLimit = 0; ///< dBm
    std::int32_t GpsLatitude = 0, GpsLongitude = 0;
    std::int16_t GpsAltitude = 0;
    std::int16_t ChannelCount = 0;
    std::array<CSChannel, MaxChannels> Channel{};
};

} // namespace Traces
