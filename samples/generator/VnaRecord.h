// The cable and antenna record: a sweep's settings and points as a raw buffer, and the facts read back
// from such a buffer.
#pragma once

#include "Physics.h"
#include "Sample.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace Traces::Samples {

/// Modes of the family, as the head carries them.
enum class VnaMode : std::uint8_t {
    ReturnLoss = 0,
    Swr = 1,
    CableLoss = 2,
    ReturnLossDistance = 16,
    SwrDistance = 17,
};

/// X in Hz or millimetres as the mode has it, Y in whole display units.
struct LimitSegment {
    std::uint8_t Seg = 0;
    std::uint8_t SegStatus = 0;
    std::uint32_t StartX = 0;
    std::int16_t StartY = 0;
    std::uint32_t EndX = 0;
    std::int16_t EndY = 0;
};

struct VnaSettings {
    CommonHead Head;
    VnaMode Mode = VnaMode::ReturnLoss;
    std::uint32_t StartHz = 0;
    std::uint32_t StopHz = 0;
    std::uint32_t StepHz = 0;      ///< Smallest step of the sweep.
    std::uint32_t ScaleTop = 0;    ///< Thousandths of the display unit.
    std::uint32_t ScaleBottom = 0; ///< Thousandths of the display unit below zero.
    std::int32_t SingleLimit = 0;  ///< Whole display units.
    std::array<LimitSegment, 5> LimitSegments{};
    std::uint32_t StartMillimetres = 0;
    std::uint32_t StopMillimetres = 0;
    std::array<std::int16_t, 6> Markers{}; ///< Point numbers, on frequency or distance as the mode has it.
    std::uint32_t RelPropVelocity = 0;     ///< Share of the speed of light x 100,000.
    std::uint32_t CableLoss = 0;           ///< dB a metre x 100,000.
    double AveCableLoss = 0;               ///< dB, one way, mean over the sweep.
    std::array<std::uint8_t, 5> StatusBytes{};
    std::int16_t SignalStd = 0; ///< Code of the signal standard, 0 for none.
    GpsFix Gps;
};

bool IsDistanceMode(VnaMode mode);

/// The sample of a measurement: the raw buffer of settings and points with the facts read off it. Points
/// are reflection coefficients in every mode; whoever reads the trace converts them.
Sample VnaSample(const std::string& fileName, const std::string& shows, const VnaSettings& settings,
                 const std::vector<Complex>& points);

/// Number of the point with the smallest reflection as the trace carries it, the first of equals.
std::int16_t DeepestPoint(const std::vector<Complex>& points);

/// Numbers of the points where reflection peaks above least, at least apart points from any higher one;
/// the highest first.
std::vector<std::int16_t> Peaks(const std::vector<Complex>& points, double least, std::size_t apart);

} // namespace Traces::Samples
