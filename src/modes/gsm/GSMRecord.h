// A GSM burst measurement as its fields are shown and saved.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace Traces {

struct GSMRecord {
    static constexpr std::size_t Points = 401; ///< of each curve
    using Curve = std::array<float, Points>;

    double VersionNumber = 0;
    std::int16_t ScaleDivisor = 0;  ///< carried
    float CenterFrequency = 0;      ///< MHz
    float ExternalRefFrequency = 0; ///< MHz
    std::string SignalStandard;
    std::uint8_t DisplayType = 0;  ///< 0 spectrum, 1 frame, 2 slot
    std::uint8_t DisplayUnits = 0; ///< see GSMUnits
    float PowerOffset = 0;         ///< dB
    std::int16_t Channel = 0;      ///< negative is none
    std::int32_t GpsLatitude = 0, GpsLongitude = 0;
    std::int16_t GpsAltitude = 0;
    std::string RefLevelCalStatus;          ///< "1" while a cable's offset is in force
    float ChannelPower = 0, BurstPower = 0; ///< dBm
    float FreqError = 0;                    ///< Hz
    float OccupiedBandwidth = 0;            ///< kHz, 0 when it wasn't measured
    std::int16_t MeasuredTSC = 0;           ///< training sequence code, NoTSC when it wasn't measured
    Curve SpectrumCurve{}, FrameCurve{}, SlotCurve{}; ///< dB

    static constexpr std::int16_t NoTSC = -1;
};

} // namespace Traces
