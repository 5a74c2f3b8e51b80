// The layout of a high accuracy power meter's record, one row a field: raw offset, reader, divisor, member,
// parameter key. Decode, parameter lines and text load walk it; there is no upload.
#pragma once

#include "formats/FieldTable.h"
#include "modes/power/ZephraRecord.h"

#include <array>

namespace Traces {

// clang-format off
inline constexpr auto ZephraFields = std::to_array<Field<ZephraRecord>>({
    {57, Read::U32, 1000, At<&ZephraRecord::CenterFreq>, "Center Freq:"},
    {61, Read::I16, 100, At<&ZephraRecord::PowerReading>, "Power Meter Reading:"},
    {63, Read::Byte, 1, At<&ZephraRecord::MaxHold>, "MaxHold:", &OnOff},
    {64, Read::Byte, 1, At<&ZephraRecord::OffsetStatus>, "Power Offset Status:", &OnOff},
    {65, Read::I16, 100, At<&ZephraRecord::PowerOffset>, "Power Offset:"},
    {67, Read::Byte, 1, At<&ZephraRecord::MeasOffsetStatus>, "Meas Offset Status:", &OnOff},
    {68, Read::Byte, 1, At<&ZephraRecord::MeasOffset>, "Meas Offset:"},
    {70, Read::I16, 100, At<&ZephraRecord::PowerRelative>, "Power Relative:"},
    {72, Read::Byte, 1, At<&ZephraRecord::RelativeStatus>, "Power Relative Status:", &OnOff},
    // Scaled like a level before it is looked up: every byte is "OFF", as saved files have it.
    {73, Read::Byte, 1000, At<&ZephraRecord::RanValue>, "RAN Value:", &OnOff},
    {75, Read::I16, 1, At<&ZephraRecord::SignalStandard>, "Signal Standard:", &SignalStandard},
    {77, Read::I16, 1, At<&ZephraRecord::LinkType>, "Signal Standard Link Type:"},
    {101, Read::Byte, 1, At<&ZephraRecord::ZeroStatus>, "Power Zero Status:", &OnOff},
    {102, Read::Byte, 1, At<&ZephraRecord::LimitStatus>, "Limit Status Mask:", &OnOff},
    {103, Read::I16, 100, At<&ZephraRecord::UpperLimit>, "Upper Limit dBm:"},
    {105, Read::I16, 100, At<&ZephraRecord::LowerLimit>, "Lower Limit dBm:"},
    {107, Read::Byte, 1, At<&ZephraRecord::LimitUnitDisplay>, "Limit Unit Display:"},
    {108, Read::Byte, 1, At<&ZephraRecord::ErrorStatus>, "Error Mes Status:"},
    {109, Read::I32, 1, At<&ZephraRecord::GpsLatitude>, "GPS Latitude:"},
    {113, Read::I32, 1, At<&ZephraRecord::GpsLongitude>, "GPS Longitude:"},
    {117, Read::I16, 1, At<&ZephraRecord::GpsAltitude>, "GPS Altitude:"},
    {119, Read::Chars, 1, At<&ZephraRecord::UtcTime>, "UTC Time:", nullptr, 0, 8},
});
// clang-format on
static_assert(FieldsFit(ZephraFields));

} // namespace Traces
