// The layout of a spectrogram's record, one row a field: raw offset, reader, divisor, member, parameter key,
// and for a level its bias. In front of it stands a head as all traces have it, behind it the sweeps.
#pragma once

#include "formats/FieldTable.h"
#include "modes/spectrogram/SpectroRecord.h"

#include <array>

namespace Traces {

/// A setting in dBm is raw / 1000 - 270, as in a spectrum.
inline constexpr double SpectroLevelBias = -270;

// clang-format off
inline constexpr auto SpectroFields = std::to_array<Field<SpectroRecord>>({
    {57, Read::U32, 1'000'000, At<&SpectroRecord::StartFreq>, "Start Frequency:"},
    {61, Read::U32, 1'000'000, At<&SpectroRecord::StopFreq>, "Stop Frequency:"},
    {65, Read::U32, 1000, At<&SpectroRecord::RefLevel>, "Ref Level:", nullptr, SpectroLevelBias},
    {69, Read::U32, 1000, At<&SpectroRecord::ScaleDiv>, "Scale/Div:"},
    {73, Read::I32, 1, At<&SpectroRecord::RBWSetting>, "RBW Setting:"},
    {77, Read::I32, 1, At<&SpectroRecord::VBWSetting>, "VBW Setting:"},
    {81, Read::U32, 1000, At<&SpectroRecord::Attenuation>, "Attenuation:"},
    {85, Read::Chars, 1, At<&SpectroRecord::AntennaName>, "Antenna Name:", nullptr, 0, 16},
    {101, Read::I16, 1, At<&SpectroRecord::SignalStandard>, "Signal Standard:", &SignalStandard},
    {103, Read::I32, 1, At<&SpectroRecord::GpsLatitude>, "GPS Latitude:"},
    {107, Read::I32, 1, At<&SpectroRecord::GpsLongitude>, "GPS Longitude:"},
    {111, Read::I16, 1, At<&SpectroRecord::GpsAltitude>, "GPS Altitude:"},
    {113, Read::I16, 1, At<&SpectroRecord::SweepCount>, "Sweeps:"},
});
// clang-format on
static_assert(FieldsFit(SpectroFields));

/// Sweeps: time since the first in hundredths of a second (4 bytes), then a byte a point: half decibels above
/// the lowest level, which is 127.5 dB below the reference. So a byte that is missing is dark.
inline constexpr int SpectroFirstSweep = 129;
inline constexpr int SpectroSweepBytes = 405;
inline constexpr double SpectroTimeScale = 100;
inline constexpr double SpectroLevelsPerDecibel = 2;
inline constexpr double SpectroRange = 127.5;

} // namespace Traces
