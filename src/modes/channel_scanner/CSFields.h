// The layout of a channel scan's record, one row a field: raw offset, reader, divisor, member, parameter key,
// and for a level its bias. The channels stand behind it, 8 bytes each, and end where an upload frame ends.
#pragma once

#include "formats/FieldTable.h"
#include "modes/channel_scanner/CSRecord.h"

#include <array>

namespace Traces {

/// A setting in dBm is raw / 1000 - 270, as in a spectrum.
inline constexpr double CSLevelBias = -270;

// clang-format off
inline constexpr auto CSFields = std::to_array<Field<CSRecord>>({
    {57, Read::U32, 1'000'000, At<&CSRecord::StartFreq>, "Start Frequency:"},
    {61, Read::U32, 1'000'000, At<&CSRecord::StopFreq>, "Stop Frequency:"},
    {65, Read::U32, 1000, At<&CSRecord::RefLevel>, "Ref Level:", nullptr, CSLevelBias},
    {69, Read::U32, 1000, At<&CSRecord::ScaleDiv>, "Scale/Div:"},
    {73, Read::I32, 1, At<&CSRecord::RBWSetting>, "RBW Setting:"},
    {77, Read::I32, 1, At<&CSRecord::VBWSetting>, "VBW Setting:"},
    {81, Read::U32, 1'000'000, At<&CSRecord::ChannelBandwidth>, "Channel Bandwidth:"},
    {85, Read::U32, 1000, At<&CSRecord::Attenuation>, "Attenuation:"},
    {89, Read::I16, 1, At<&CSRecord::SignalStandard>, "Signal Standard:", &SignalStandard},
    {91, Read::Byte, 1, At<&CSRecord::LinkType>, "Signal Standard Link Type:", &LinkType},
    {92, Read::I32, 1000, At<&CSRecord::SingleLimit>, "Single Limit:", nullptr, CSLevelBias},
    {96, Read::I32, 1, At<&CSRecord::GpsLatitude>, "GPS Latitude:"},
    {100, Read::I32, 1, At<&CSRecord::GpsLongitude>, "GPS Longitude:"},
    {104, Read::I16, 1, At<&CSRecord::GpsAltitude>, "GPS Altitude:"},
    {106, Read::I16, 1, At<&CSRecord::ChannelCount>, "Channels:"},
});
// clang-format on
static_assert(FieldsFit(CSFields));

/// Channels: number (2 bytes), centre in Hz (4), level in hundredths of a dBm (2, signed).
inline constexpr int CSFirstChannel = 111;
inline constexpr int CSChannelBytes = 8;
inline constexpr double CSFrequencyScale = 1'000'000;
inline constexpr double CSChannelLevelScale = 100;

} // namespace Traces
