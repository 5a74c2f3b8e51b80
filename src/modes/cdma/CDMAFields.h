// The layout of a CDMA record in its two versions, one row a field: raw offset, reader, divisor, member,
// parameter key. Firmware 3.15 changed how levels are stored, 3.20 moved what stands behind the pilot scan.
// An upload frame has every field 13 bytes lower.
#pragma once

#include "formats/FieldTable.h"
#include "modes/cdma/CDMARecord.h"

#include <array>

namespace Traces {

/// The firmware versions that changed the format.
inline constexpr double LevelVersion = 3.15, LayoutVersion = 3.2;

/// A level is (raw - bias) / 250 dB; the bias goes by the firmware.
inline constexpr double LevelScale = 250;
constexpr double PowerBias(double version)
{
    return LevelVersion <= version ? 50'000 : 60'000;
}
/// What a row adds to raw / 250.
constexpr double LevelBase(double version)
{
    return -PowerBias(version) / LevelScale;
}

/// A code's power is raw / 1000 - 270 dB, and so is PowerOffset.
inline constexpr double CodePowerScale = 1000, CodePowerBase = -270;

// clang-format off

/// Offsets 57 to 209, the same in both layouts.
constexpr auto CDMAHeadFields(double version)
{
    const double base = LevelBase(version);
    return std::to_array<Field<CDMARecord>>({
        {57, Read::I16, 1, At<&CDMARecord::ScaleDivision>, "Scale Division:"},
        {59, Read::U32, 1'000'000, At<&CDMARecord::CenterFrequency>, "Center Frequency:"},
        {63, Read::U32, 1, At<&CDMARecord::ExternalReferenceFrequency>, "External Reference Frequency:"},
        {67, Read::Byte, 1, At<&CDMARecord::MeasurementLength>, "Measurement Length:"},
        {68, Read::I16, 1, At<&CDMARecord::PNOffset0>, "PN Offset 0:"},
        {70, Read::Byte, 1, At<&CDMARecord::StatusByte1>, "Status Byte 1:"},
        {71, Read::Byte, 1, At<&CDMARecord::StatusByte2>, "Status Byte 2:"},
        {72, Read::Byte, 1, At<&CDMARecord::StatusByte3>, "Status Byte 3:"},
        {73, Read::Byte, 1, At<&CDMARecord::MarkerPosition, 0>, "Marker Position 1:"},
        {74, Read::Byte, 1, At<&CDMARecord::MarkerPosition, 1>, "Marker Position 2:"},
        {75, Read::Byte, 1, At<&CDMARecord::MarkerPosition, 2>, "Marker Position 3:"},
        {76, Read::Byte, 1, At<&CDMARecord::MarkerPosition, 3>, "Marker Position 4:"},
        {77, Read::Byte, 1, At<&CDMARecord::MarkerPosition, 4>, "Marker Position 5:"},
        {78, Read::Byte, 1, At<&CDMARecord::MarkerPosition, 5>, "Marker Position 6:"},
        {79, Read::I16, 1, At<&CDMARecord::SignalStandard>, "Signal Standard:", &SignalStandard},
        {81, Read::Byte, 1, At<&CDMARecord::DisplayType>, "Display Type:"},
        {82, Read::Byte, 1, At<&CDMARecord::DisplayUnits>, "Display Units:"},
        {83, Read::U32, CodePowerScale, At<&CDMARecord::PowerOffset>, "Power Offset:", nullptr, CodePowerBase},
        {87, Read::Byte, 1, At<&CDMARecord::PNIncrement>, "PN Increment:"},
        {88, Read::I16, 1, At<&CDMARecord::Channel>, "Channel:"},
        {90, Read::Byte, 1, At<&CDMARecord::SearchMode>, "Search Mode:", &TriggerMode},
        // The names of the two tables are those of the instruments' makers, the fields' ours.
        {91, Read::I16, 1, At<&CDMARecord::SignalStatus>, "Signal Status:", &MeasurementStatus},
        {93, Read::Byte, 1, At<&CDMARecord::MeasurementStatus>, "Measurement Status:", &ValidState},
        {154, Read::U32, 65535, At<&CDMARecord::MeasuredRho>, "Measured Rho:"},
        {158, Read::U32, 1, At<&CDMARecord::PNOffset>, "PN Offset:"},
        {162, Read::U32, 1, At<&CDMARecord::FrequencyError>, "Frequency Error:", nullptr, -1'000'000},
        {166, Read::U32, LevelScale, At<&CDMARecord::ChannelPowerRMS>, "Channel Power RMS:", nullptr, base},
        {170, Read::U32, LevelScale, At<&CDMARecord::PeakPowerRMS>, "Peak Power RMS:", nullptr, base},
        {174, Read::U32, LevelScale, At<&CDMARecord::CarrierFeedthrough>, "Carrier Feedthrough:", nullptr, -100},
        {178, Read::U32, 1000, At<&CDMARecord::OccupiedBandwidth>, "Occupied Bandwidth:"},
        {182, Read::U32, LevelScale, At<&CDMARecord::PilotScanPower, 0>, "Pilot Scan Power 1:", nullptr, base},
        {186, Read::U32, LevelScale, At<&CDMARecord::PilotScanPower, 1>, "Pilot Scan Power 2:", nullptr, base},
        {190, Read::U32, LevelScale, At<&CDMARecord::PilotScanPower, 2>, "Pilot Scan Power 3:", nullptr, base},
        {194, Read::U32, LevelScale, At<&CDMARecord::PilotScanPower, 3>, "Pilot Scan Power 4:", nullptr, base},
        {198, Read::U32, LevelScale, At<&CDMARecord::PilotScanPower, 4>, "Pilot Scan Power 5:", nullptr, base},
        {202, Read::U32, LevelScale, At<&CDMARecord::PilotScanPower, 5>, "Pilot Scan Power 6:", nullptr, base},
        {206, Read::U32, LevelScale, At<&CDMARecord::PilotScanPower, 6>, "Pilot Scan Power 7:", nullptr, base},
    });
}

/// Below 3.20: offsets 210 to 239.
constexpr auto CDMAScanFields(double version)
{
    const double base = LevelBase(version);
    return std::to_array<Field<CDMARecord>>({
        {210, Read::I16, 1, At<&CDMARecord::PilotScanPN, 0>, "Pilot Scan PN 1:"},
        {212, Read::I16, 1, At<&CDMARecord::PilotScanPN, 1>, "Pilot Scan PN 2:"},
        {214, Read::I16, 1, At<&CDMARecord::PilotScanPN, 2>, "Pilot Scan PN 3:"},
        {216, Read::I16, 1, At<&CDMARecord::PilotScanPN, 3>, "Pilot Scan PN 4:"},
        {218, Read::I16, 1, At<&CDMARecord::PilotScanPN, 4>, "Pilot Scan PN 5:"},
        {220, Read::I16, 1, At<&CDMARecord::PilotScanPN, 5>, "Pilot Scan PN 6:"},
        {222, Read::I16, 1, At<&CDMARecord::PilotScanPN, 6>, "Pilot Scan PN 7:"},
        {224, Read::U32, 10, At<&CDMARecord::Tau>, "Tau:", nullptr, -30},
        {228, Read::U32, LevelScale, At<&CDMARecord::NoiseFloor>, "Noise Floor:", nullptr, base},
        {232, Read::U32, LevelScale, At<&CDMARecord::PilotDominance>, "Pilot Dominance:", nullptr, base},
        {236, Read::U32, LevelScale, At<&CDMARecord::MultipathPower>, "Multipath Power:", nullptr, base},
    });
}

/// From 3.20: offsets 210 to 275.
constexpr auto CDMAScanFields_v320_above(double version)
{
    const double base = LevelBase(version);
    return std::to_array<Field<CDMARecord>>({
        {210, Read::U32, LevelScale, At<&CDMARecord::PilotScanPower, 7>, "Pilot Scan Power 8:", nullptr, base},
        {214, Read::U32, LevelScale, At<&CDMARecord::PilotScanPower, 8>, "Pilot Scan Power 9:", nullptr, base},
        {218, Read::I16, 1, At<&CDMARecord::PilotScanPN, 0>, "Pilot Scan PN 1:"},
        {220, Read::I16, 1, At<&CDMARecord::PilotScanPN, 1>, "Pilot Scan PN 2:"},
        {222, Read::I16, 1, At<&CDMARecord::PilotScanPN, 2>, "Pilot Scan PN 3:"},
        {224, Read::I16, 1, At<&CDMARecord::PilotScanPN, 3>, "Pilot Scan PN 4:"},
        {226, Read::I16, 1, At<&CDMARecord::PilotScanPN, 4>, "Pilot Scan PN 5:"},
        {228, Read::I16, 1, At<&CDMARecord::PilotScanPN, 5>, "Pilot Scan PN 6:"},
        {230, Read::I16, 1, At<&CDMARecord::PilotScanPN, 6>, "Pilot Scan PN 7:"},
        {232, Read::I16, 1, At<&CDMARecord::PilotScanPN, 7>, "Pilot Scan PN 8:"},
        {234, Read::I16, 1, At<&CDMARecord::PilotScanPN, 8>, "Pilot Scan PN 9:"},
        {236, Read::U32, 100, At<&CDMARecord::PilotTau, 0>, "Tau 1:", nullptr, -30},
        {240, Read::U32, 100, At<&CDMARecord::PilotTau, 1>, "Tau 2:", nullptr, -30},
        {244, Read::U32, 100, At<&CDMARecord::PilotTau, 2>, "Tau 3:", nullptr, -30},
        {248, Read::U32, 100, At<&CDMARecord::PilotTau, 3>, "Tau 4:", nullptr, -30},
        {252, Read::U32, 100, At<&CDMARecord::PilotTau, 4>, "Tau 5:", nullptr, -30},
        {256, Read::U32, 100, At<&CDMARecord::PilotTau, 5>, "Tau 6:", nullptr, -30},
        {260, Read::U32, 10, At<&CDMARecord::Tau>, "Tau:", nullptr, -30},
        {264, Read::U32, LevelScale, At<&CDMARecord::NoiseFloor>, "Noise Floor:", nullptr, base},
        {268, Read::U32, LevelScale, At<&CDMARecord::PilotDominance>, "Pilot Dominance:", nullptr, base},
        {272, Read::U32, LevelScale, At<&CDMARecord::MultipathPower>, "Multipath Power:", nullptr, base},
    });
}

/// Where the instrument stood, which text files of the older layout aren't read back from. The status of the
/// reference offset follows the position in the raw layout alone: its line stands behind the channel's.
inline constexpr auto CDMAPlaceFields = std::to_array<Field<CDMARecord>>({
    {240, Read::I32, 1, At<&CDMARecord::GpsLatitude>, "GPS Latitude:"},
    {244, Read::I32, 1, At<&CDMARecord::GpsLongitude>, "GPS Longitude:"},
    {248, Read::I16, 1, At<&CDMARecord::GpsAltitude>, "GPS Altitude:"},
});
inline constexpr auto CDMAPlaceFields_v320_above = std::to_array<Field<CDMARecord>>({
    {276, Read::I32, 1, At<&CDMARecord::GpsLatitude>, "GPS Latitude:"},
    {280, Read::I32, 1, At<&CDMARecord::GpsLongitude>, "GPS Longitude:"},
    {284, Read::I16, 1, At<&CDMARecord::GpsAltitude>, "GPS Altitude:"},
});
// clang-format on

inline constexpr RawForm CDMACalStatus = {250, Read::Byte}, CDMACalStatus_v320_above = {286, Read::Byte};
inline constexpr RawForm CDMAValidPilots = {297, Read::Byte};
inline constexpr int CDMAUTCTime = 287, UTCTimeWidth = 10;

static_assert(FieldsFit(CDMAHeadFields(LevelVersion)) && FieldsFit(CDMAScanFields(LevelVersion)) &&
              FieldsFit(CDMAScanFields_v320_above(LayoutVersion)) && FieldsFit(CDMAPlaceFields) &&
              FieldsFit(CDMAPlaceFields_v320_above));

/// The signal standard by name, from firmware 3.15 on.
inline constexpr int StandardName = 94, StandardNameWidth = 24;

/// One entry a Walsh code: 4 bytes of power, one of its link, one of its channel type; and 2 bytes a point of
/// the spectrum.
inline constexpr int CDMACodePowers = 304, CDMALinks = 816, CDMAChannelTypes = 944, CDMASpectrum = 1072;

} // namespace Traces
