// The layouts of power meter and power monitor, one row a field: raw offset, reader, divisor, member,
// parameter key. Two tables on one record. Decode, parameter lines, text load and upload walk them.
#pragma once

#include "formats/FieldTable.h"
#include "modes/power/PowerRecord.h"

#include <array>

namespace Traces {

/// Frequencies come in hertz and are kept in megahertz.
inline constexpr double HzPerMHz = 1'000'000;

// clang-format off
inline constexpr auto PowerMeterFields = std::to_array<Field<PowerRecord>>({
    {57, Read::Byte, 1, At<&PowerRecord::PowerMode>, "Power Meter Mode:"},
    {58, Read::Byte, 1, At<&PowerRecord::PowerUnit>, "Power Meter Unit:"},
    // A scale selector can make these four's divisor a tenth: PowerMeterTrace.cpp.
    {59, Read::U32, HzPerMHz, At<&PowerRecord::StartFreq>, "Start Frequency:"},
    {63, Read::U32, HzPerMHz, At<&PowerRecord::StopFreq>, "Stop Frequency:"},
    {67, Read::U32, HzPerMHz, At<&PowerRecord::CenterFreq>, "Center Freq:"},
    {71, Read::U32, HzPerMHz, At<&PowerRecord::FreqSpan>, "Freq Span:"},
    {75, Read::Byte, 1, At<&PowerRecord::OffsetStatus>, "Power Offset Status:", &OnOff},
    {76, Read::U32, 1000, At<&PowerRecord::PowerOffset>, "Power Offset:"},
    {80, Read::Byte, 1, At<&PowerRecord::RelativeStatus>, "Power Relative Status:", &OnOff},
    {81, Read::I32, 1000, At<&PowerRecord::PowerRelative>, "Power Relative:"},
    {85, Read::Byte, 1, At<&PowerRecord::RmsAveraging>, "RMS Averaging Level:", &AveragingLevel},
    {86, Read::Byte, 1, At<&PowerRecord::ZeroStatus>, "Power Zero Status:", &OnOff},
    {87, Read::Byte, 1, At<&PowerRecord::ExternalRefStatus>, "External Ref Status:", &OnOff},
    {88, Read::U32, HzPerMHz, At<&PowerRecord::ExternalRefFreq>, "External Ref Freq:"},
    // Newer firmware sends a name instead of this code: PowerMeterTrace.cpp.
    {92, Read::I16, 1, At<&PowerRecord::SignalStandard>, "Signal Standard:", &SignalStandard},
    {94, Read::I16, 1, At<&PowerRecord::ChannelSelection>, "Channel Selection:"},
    {106, Read::I32, 1, At<&PowerRecord::GpsLatitude>, "GPS Latitude:"},
    {110, Read::I32, 1, At<&PowerRecord::GpsLongitude>, "GPS Longitude:"},
    {114, Read::I16, 1, At<&PowerRecord::GpsAltitude>, "GPS Altitude:"},
    {116, Read::Byte, 1, At<&PowerRecord::LinkType>, "Signal Standard Link Type:", &LinkType},
    {151, Read::I32, 1000, At<&PowerRecord::PowerReading>, "Power Meter Reading:"},
});
static_assert(FieldsFit(PowerMeterFields));

inline constexpr auto PowerMonitorFields = std::to_array<Field<PowerRecord>>({
    {57, Read::Byte, 1, At<&PowerRecord::PowerMode>, "Power Monitor Mode:"},
    {58, Read::Byte, 1, At<&PowerRecord::PowerUnit>, "Power Monitor Unit:"},
    {75, Read::Byte, 1, At<&PowerRecord::OffsetStatus>, "Power Offset Status:", &OnOff},
    {76, Read::U32, 1000, At<&PowerRecord::PowerOffset>, "Power Offset:"},
    {80, Read::Byte, 1, At<&PowerRecord::RelativeStatus>, "Power Relative Status:", &OnOff},
    {81, Read::I32, 1000, At<&PowerRecord::PowerRelative>, "Power Relative:"},
    {86, Read::Byte, 1, At<&PowerRecord::ZeroStatus>, "Power Zero Status:", &OnOff},
    {106, Read::I32, 1, At<&PowerRecord::GpsLatitude>, "GPS Latitude:"},
    {110, Read::I32, 1, At<&PowerRecord::GpsLongitude>, "GPS Longitude:"},
    {114, Read::I16, 1, At<&PowerRecord::GpsAltitude>, "GPS Altitude:"},
    {151, Read::I32, 1000, At<&PowerRecord::PowerReading>, "Power Monitor Reading:"},
});
// clang-format on
static_assert(FieldsFit(PowerMonitorFields));

} // namespace Traces
