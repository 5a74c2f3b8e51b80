// The decoded record of an iDEN signal analysis: the results of all four views, and their curves.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace Traces {

struct IDENRecord {
    /// The readers run one point beyond a curve's 401: the last entry is the first of the block behind it.
    static constexpr std::size_t CurveRoom = 402, CurvePoints = 401;
    static constexpr std::size_t ConstellationRoom = 481, ConstellationValues = 480; ///< I and Q in turn
    using Curve = std::array<float, CurveRoom>;

    std::int16_t ViewMode = 0; ///< see IDENView; codes of no view pass as they are
    std::int16_t ExternalRefStatus = 0;
    float ExternalRefFreq = 0;
    float CenterFrequency = 0;          ///< MHz
    std::int16_t ACPRFrequencySpan = 0; ///< kHz
    float ReferenceLevel = 0;           ///< dBm
    float ScalePerDivision = 0;         ///< dB
    std::int16_t SignalStandardID = 0;
    std::string SignalStandardName;
    std::int32_t GpsLatitude = 0, GpsLongitude = 0;
    std::int16_t GpsAltitude = 0;
    std::string UtcTime;
    std::int16_t SignalStatus = 0;
    float FrequencyError = 0;               ///< Hz
    float PeakToAverageRatio = 0;           ///< dB
    std::array<float, 4> SubchannelPower{}; ///< dBm
    float OccupiedBandwidth = 0;            ///< kHz
    std::array<float, 7>
        AdjacentPowerRatio{};   ///< dB; the fourth is the channel itself, always 0 in raw traces
    float MainChannelPower = 0; ///< dBm
    float DemodSQE = 0;         ///< dB
    std::int16_t PhaseNoise = 0;
    std::int16_t Rho = 0;
    float EVMAverage = 0;                 ///< percent
    std::array<float, 4> SubchannelEVM{}; ///< percent
    float ActiveSlotPower = 0;            ///< dBm
    std::int16_t AverageDutyCycle = 0;    ///< percent
    std::int16_t OnOffRatio = 0;          ///< dB
    float ChannelNumber = 0;
    std::int16_t DemodStatus = 0;
    Curve ACPRCurve{}, SpectrumCurve{}; ///< dB
    std::array<float, ConstellationRoom> ConstellationPoints{};
    Curve PowerTimeCurve{}; ///< dB
};

} // namespace Traces
