// The decoded record of a cable and antenna sweep: return loss, SWR and cable loss against frequency,
// return loss and SWR against distance. Its routes are in VNATrace.h, its picture in VNAView.h.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace Traces {

struct VNALimitSegment {
    std::uint8_t Seg = 0;
    std::uint8_t SegStatus = 0;
    float StartX = 0; ///< Hz, or millimetres against distance
    std::int16_t StartY = 0;
    float EndX = 0; ///< Hz, or millimetres against distance
    std::int16_t EndY = 0;
};

struct VNARecord {
    static constexpr std::size_t MaxPoints = 601;

    float StartFreq = 0, StopFreq = 0, MinStepSize = 0; ///< MHz
    float ScaleTop = 0, ScaleBottom = 0;                ///< chart scale in display units
    std::array<std::int16_t, 6> FreqMarker{};           ///< point numbers
    std::int32_t SingleLimit = 0;
    std::array<VNALimitSegment, 5> LimitSegment{};
    float StartDistance = 0, StopDistance = 0; ///< millimetres
    std::array<std::int16_t, 6> DistanceMarker{};
    float RelPropVelocity = 0; ///< of the speed of light
    float CableLoss = 0, AveCableLoss = 0;
    std::array<std::uint8_t, 5> StatusByte{}; ///< carried and listed, not interpreted
    std::string VNASignalStd;                 ///< name of the signal standard
    std::int32_t GpsLatitude = 0, GpsLongitude = 0;
    std::int16_t GpsAltitude = 0;
    std::array<float, MaxPoints> PointValue{}; ///< dB or SWR
    std::array<float, MaxPoints> PointPhase{}; ///< degrees
};

} // namespace Traces
