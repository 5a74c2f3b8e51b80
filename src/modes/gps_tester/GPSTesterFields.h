// The layout of a GPS check's record, one row a field in the order of the parameter lines: raw offset,
// reader, divisor, member, parameter key. Fields of one byte are read as words, so that neighbours share a
// byte.
#pragma once

#include "formats/FieldTable.h"
#include "modes/gps_tester/GPSTesterRecord.h"

#include <array>

namespace Traces {

inline constexpr int GPSAutoSaveFlag = 57; ///< a word, True above 0
inline constexpr std::string_view GPSAutoSaveFlagKey = "Auto Save Flag:";

// clang-format off
inline constexpr auto GPSTesterFields = std::to_array<Field<GPSTesterRecord>>({
    {58, Read::I16, 1, At<&GPSTesterRecord::AutoSaveCount>, "Auto Save Count:"}, // the flag's line follows
    {73, Read::U32, 1, At<&GPSTesterRecord::CurrentDraw>, "Current Draw:"},
    {85, Read::I16, 1, At<&GPSTesterRecord::GpsAltitude>, "GPS Altitude:"},
    {77, Read::I32, 1, At<&GPSTesterRecord::GpsLatitude>, "GPS Latitude:"},
    {81, Read::I32, 1, At<&GPSTesterRecord::GpsLongitude>, "GPS Longitude:"},
    {87, Read::Chars, 1, At<&GPSTesterRecord::GpsFixTime>, "GPS Fix Time:", nullptr, 0, 9},
    {70, Read::I16, 1, At<&GPSTesterRecord::GpsQuality>, "GPS Quality:"},
    {119, Read::I16, 1, At<&GPSTesterRecord::HundredEventList>, "Hundred Event List:"},
    {117, Read::I16, 1, At<&GPSTesterRecord::EventCount>, "Length of Event List:"},
    {97, Read::Chars, 1, At<&GPSTesterRecord::LostGpsTime>, "Lost GPS Time:", nullptr, 0, 9},
    {69, Read::I16, 1, At<&GPSTesterRecord::MeasurementStatus>, "Measurement Status:"},
    {60, Read::U32, 1, At<&GPSTesterRecord::MeasurementDuration>, "Measurement Time Duration:"},
    {64, Read::U32, 1, At<&GPSTesterRecord::RemainingTime>, "Remaining Measure Time:"},
    {71, Read::I16, 1, At<&GPSTesterRecord::TrackedSatellites>, "Tracked GPS Satellites:"},
    {107, Read::Chars, 1, At<&GPSTesterRecord::UtcTime>, "UTC Time:", nullptr, 0, 9},
    {68, Read::I16, 1, At<&GPSTesterRecord::ViewMode>, "View Mode:"},
});
// clang-format on

/// An event's row, which begins on the word of the hundred events, and its fields' places in it.
namespace GPSEventRow {
inline constexpr int First = 119, Bytes = 28;
inline constexpr int Code = 0, Number = 2, Status = 4, Current = 6, Time = 10, SecondTime = 16;
inline constexpr int TimeWidth = 6, SecondTimeWidth = 12;
} // namespace GPSEventRow

} // namespace Traces
