// The decoded record of a spectrum analyzer trace: the sweep's settings and one level a point. Its routes are
// in SPATrace.h, its picture in SPAView.h.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace Traces {

struct SPARecord {
    static constexpr std::size_t MaxPoints = 402;

    float StartFreq = 0, StopFreq = 0, CenterFreq = 0, FreqSpan = 0, MinStepSize = 0; ///< MHz
    float RefLevel = 0;                                                               ///< dBm
    float ScaleDiv = 0;                                                               ///< dB a division
    std::array<std::int16_t, 6> FreqMarker{};                                         ///< point numbers
    std::int32_t SingleLimit = 0;                                                     ///< dBm
    /// Pairs of X (MHz) and Y (dBm): start and end of the upper limits 1 to 5, then of the lower ones.
    std::array<float, 40> LimitPoints{};
    std::int32_t RBWSetting = 0, VBWSetting = 0; ///< resolution and video bandwidth, Hz
    std::uint8_t OCCBWMethod = 0, OCCBWPercent = 0, OCCBWdBc = 0;
    float Attenuation = 0;                    ///< dB
    std::string AntennaName;                  ///< 16 characters
    std::array<std::uint8_t, 7> StatusByte{}; ///< carried and listed, not interpreted
    float RefLevelOffset = 0;                 ///< dB
    std::uint8_t ExternalRefFreq = 0;
    std::string SignalStandard;
    std::int16_t ChannelSelection = 0; ///< negative is none
    std::string InterferenceStandard;
    float InterferenceBandwidth = 0, InterferenceFrequency = 0; ///< MHz
    std::string TriggerType;
    std::uint8_t TriggerPosition = 0;
    std::int32_t MinSweepTime = 0;
    float VideoTriggerLevel = 0; ///< dBm
    std::uint8_t StatusByte8 = 0;
    std::uint8_t Impedence = 0;
    std::int16_t ImpedenceLoss = 0;
    std::int16_t FreqScaleFactor = 0;
    float FreqRangeMin = 0, FreqRangeMax = 0; ///< MHz
    std::uint8_t LinkedTraceNumber = 0, StatusByte9 = 0;
    float CICalcPowerNB = 0, CICalcPowerWB = 0, CICalcPowerBroadband = 0; ///< dBm
    float OccupiedBandwidthPower = 0;                                     ///< dBm
    std::uint8_t MarkerType = 0;
    std::int32_t GpsLatitude = 0, GpsLongitude = 0;
    std::int16_t GpsAltitude = 0;
    std::array<float, MaxPoints> PointLevel{}; ///< dBm
};

} // namespace Traces
