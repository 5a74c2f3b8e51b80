// The layout of an EV-DO record in its two versions, one row a field, in the order of the parameter lines.
// The firmware's biases are CDMA's. An upload frame has every field of the older layout 13 bytes lower.
#pragma once

#include "formats/FieldTable.h"
#include "modes/cdma/CDMAFields.h"
#include "modes/evdo/EvDORecord.h"

#include <algorithm>
#include <array>

namespace Traces {

// clang-format off

/// Offsets 57 to 185, the same in both layouts.
constexpr auto EvDOHeadFields(double version)
{
    const double base = LevelBase(version);
    return std::to_array<Field<EvDORecord>>({
        {57, Read::I16, 1000, At<&EvDORecord::ScaleDivision>, "Scale Division:"},
        {59, Read::U32, 1'000'000, At<&EvDORecord::CenterFrequency>, "Center Frequency:"},
        {63, Read::U32, 1, At<&EvDORecord::ExternalReferenceFrequency>, "External Reference Frequency:"},
        {67, Read::Byte, 1, At<&EvDORecord::MeasurementSpeed>, "Measurement Speed:"},
        {68, Read::I16, 1, At<&EvDORecord::PNOffset0>, "PN Offset 0:"},
        {70, Read::Byte, 1, At<&EvDORecord::StatusByte1>, "Status Byte 1:"},
        {71, Read::Byte, 1, At<&EvDORecord::StatusByte2>, "Status Byte 2:"},
        {72, Read::Byte, 1, At<&EvDORecord::StatusByte3>, "Status Byte 3:"},
        {73, Read::Byte, 1, At<&EvDORecord::MarkerPosition, 0>, "Marker Position 1:"},
        {74, Read::Byte, 1, At<&EvDORecord::MarkerPosition, 1>, "Marker Position 2:"},
        {75, Read::Byte, 1, At<&EvDORecord::MarkerPosition, 2>, "Marker Position 3:"},
        {76, Read::Byte, 1, At<&EvDORecord::MarkerPosition, 3>, "Marker Position 4:"},
        {77, Read::Byte, 1, At<&EvDORecord::MarkerPosition, 4>, "Marker Position 5:"},
        {78, Read::Byte, 1, At<&EvDORecord::MarkerPosition, 5>, "Marker Position 6:"},
        {79, Read::I16, 1, At<&EvDORecord::SignalStandard>, "Signal Standard:", &SignalStandard},
        {81, Read::Byte, 1, At<&EvDORecord::DisplayType>, "Display Type:"},
        {82, Read::Byte, 1, At<&EvDORecord::DisplayUnits>, "Display Units:"},
        {83, Read::U32, CodePowerScale, At<&EvDORecord::PowerOffset>, "Power Offset:", nullptr, CodePowerBase},
        {87, Read::Byte, 1, At<&EvDORecord::DataModulation>, "Data Modulation:"},
        {88, Read::I16, 1, At<&EvDORecord::Channel>, "Channel:"},
        {90, Read::Byte, 1, At<&EvDORecord::SearchMode>, "Search Mode:"},
        {91, Read::I16, 1, At<&EvDORecord::SignalStatus>, "Signal Status:"},
        {93, Read::Byte, 1, At<&EvDORecord::MeasurementStatus>, "Measurement Status:"},
        {118, Read::Byte, 1, At<&EvDORecord::DataMarkers>, "Data Markers:"},
        {154, Read::U32, 65535, At<&EvDORecord::RhoPilot>, "Rho Pilot:"},
        {158, Read::U32, 65535, At<&EvDORecord::RhoOverall1>, "Rho Overall 1:"},
        {162, Read::U32, 65535, At<&EvDORecord::RhoOverall2>, "Rho Overall 2:"},
        {166, Read::U32, 1, At<&EvDORecord::PNOffset>, "PN Offset:"},
        {170, Read::U32, 1, At<&EvDORecord::FrequencyError>, "Frequency Error:", nullptr, -1'000'000},
        {174, Read::U32, LevelScale, At<&EvDORecord::ChannelPowerRMS>, "Channel Power RMS:", nullptr, base},
        {178, Read::U32, LevelScale, At<&EvDORecord::CarrierFeedthrough>, "Carrier Feedthrough:", nullptr, -100},
        {182, Read::U32, 1000, At<&EvDORecord::OccupiedBandwidth>, "Occupied Bandwidth:"},
    });
}

/// Below 3.20: offsets 186 to 227.
constexpr auto EvDOScanFields(double version)
{
    const double base = LevelBase(version);
    return std::to_array<Field<EvDORecord>>({
        {186, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 0>, "Pilot Scan Power 1:", nullptr, base},
        {190, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 1>, "Pilot Scan Power 2:", nullptr, base},
        {194, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 2>, "Pilot Scan Power 3:", nullptr, base},
        {198, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 3>, "Pilot Scan Power 4:", nullptr, base},
        {202, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 4>, "Pilot Scan Power 5:", nullptr, base},
        {206, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 5>, "Pilot Scan Power 6:", nullptr, base},
        {210, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 6>, "Pilot Scan Power 7:", nullptr, base},
        {214, Read::I16, 1, At<&EvDORecord::PilotScanPN, 0>, "Pilot Scan PN 1:"},
        {216, Read::I16, 1, At<&EvDORecord::PilotScanPN, 1>, "Pilot Scan PN 2:"},
        {218, Read::I16, 1, At<&EvDORecord::PilotScanPN, 2>, "Pilot Scan PN 3:"},
        {220, Read::I16, 1, At<&EvDORecord::PilotScanPN, 3>, "Pilot Scan PN 4:"},
        {222, Read::I16, 1, At<&EvDORecord::PilotScanPN, 4>, "Pilot Scan PN 5:"},
        {224, Read::I16, 1, At<&EvDORecord::PilotScanPN, 5>, "Pilot Scan PN 6:"},
        {226, Read::I16, 1, At<&EvDORecord::PilotScanPN, 6>, "Pilot Scan PN 7:"},
    });
}

/// From 3.20: offsets 186 to 239. The raw trace has pilots 7 to 9 in front of the others.
constexpr auto EvDOScanFields_v320_above(double version)
{
    const double base = LevelBase(version);
    return std::to_array<Field<EvDORecord>>({
        {198, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 0>, "Pilot Scan Power 1:", nullptr, base},
        {202, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 1>, "Pilot Scan Power 2:", nullptr, base},
        {206, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 2>, "Pilot Scan Power 3:", nullptr, base},
        {210, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 3>, "Pilot Scan Power 4:", nullptr, base},
        {214, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 4>, "Pilot Scan Power 5:", nullptr, base},
        {218, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 5>, "Pilot Scan Power 6:", nullptr, base},
        {186, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 6>, "Pilot Scan Power 7:", nullptr, base},
        {190, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 7>, "Pilot Scan Power 8:", nullptr, base},
        {194, Read::U32, LevelScale, At<&EvDORecord::PilotScanPower, 8>, "Pilot Scan Power 9:", nullptr, base},
        {228, Read::I16, 1, At<&EvDORecord::PilotScanPN, 0>, "Pilot Scan PN 1:"},
        {230, Read::I16, 1, At<&EvDORecord::PilotScanPN, 1>, "Pilot Scan PN 2:"},
        {232, Read::I16, 1, At<&EvDORecord::PilotScanPN, 2>, "Pilot Scan PN 3:"},
        {234, Read::I16, 1, At<&EvDORecord::PilotScanPN, 3>, "Pilot Scan PN 4:"},
        {236, Read::I16, 1, At<&EvDORecord::PilotScanPN, 4>, "Pilot Scan PN 5:"},
        {238, Read::I16, 1, At<&EvDORecord::PilotScanPN, 5>, "Pilot Scan PN 6:"},
        {222, Read::I16, 1, At<&EvDORecord::PilotScanPN, 6>, "Pilot Scan PN 7:"},
        {224, Read::I16, 1, At<&EvDORecord::PilotScanPN, 7>, "Pilot Scan PN 8:"},
        {226, Read::I16, 1, At<&EvDORecord::PilotScanPN, 8>, "Pilot Scan PN 9:"},
    });
}

/// Below 3.20: offsets 228 to 300.
constexpr auto EvDOTailFields(double version)
{
    const double base = LevelBase(version);
    return std::to_array<Field<EvDORecord>>({
        {228, Read::U32, 10, At<&EvDORecord::Tau>, "Tau:", nullptr, -30},
        {232, Read::U32, LevelScale, At<&EvDORecord::NoiseFloor>, "Noise Floor:", nullptr, base},
        {236, Read::U32, LevelScale, At<&EvDORecord::PilotDominance>, "Pilot Dominance:", nullptr, base},
        {240, Read::U32, LevelScale, At<&EvDORecord::MultipathPower>, "Multipath Power:", nullptr, base},
        {244, Read::U32, LevelScale, At<&EvDORecord::PilotMACPowerAverage>, "Pilot MAC Power Average:", nullptr, base},
        {248, Read::U32, LevelScale, At<&EvDORecord::PilotMACPowerActive>, "Pilot MAC Power Active:", nullptr, base},
        {252, Read::U32, LevelScale, At<&EvDORecord::PilotMACPowerIdle>, "Pilot MAC Power Idle:", nullptr, base},
        {256, Read::U32, LevelScale, At<&EvDORecord::PilotPowerAverage>, "Pilot Power Average:", nullptr, base},
        {260, Read::U32, LevelScale, At<&EvDORecord::PilotPowerActive>, "Pilot Power Active:", nullptr, base},
        {264, Read::U32, LevelScale, At<&EvDORecord::PilotPowerIdle>, "Pilot Power Idle:", nullptr, base},
        {268, Read::U32, LevelScale, At<&EvDORecord::DataPowerAverage>, "Data Power Average:", nullptr, base},
        {272, Read::U32, LevelScale, At<&EvDORecord::DataPowerActive>, "Data Power Active:", nullptr, base},
        {276, Read::U32, LevelScale, At<&EvDORecord::DataPowerIdle>, "Data Power Idle:", nullptr, base},
        {280, Read::I16, 100, At<&EvDORecord::EVM>, "EVM:"},
        {282, Read::Byte, 1, At<&EvDORecord::MeasuredDataModulationType>, "Measured Data Modulation Type:"},
        {283, Read::I16, 10, At<&EvDORecord::IdleActivity>, "Idle Activity:"},
        {285, Read::I16, 10, At<&EvDORecord::ActiveActivity>, "Active Activity:"},
        {287, Read::U32, LevelScale, At<&EvDORecord::CDPThreshold>, "CDP Threshold:", nullptr, base},
        {291, Read::I32, 1, At<&EvDORecord::GpsLatitude>, "GPS Latitude:"},
        {295, Read::I32, 1, At<&EvDORecord::GpsLongitude>, "GPS Longitude:"},
        {299, Read::I16, 1, At<&EvDORecord::GpsAltitude>, "GPS Altitude:"},
    });
}

/// From 3.20: offsets 264 to 336, behind the paths' delays.
constexpr auto EvDOTailFields_v320_above(double version)
{
    const double base = LevelBase(version);
    return std::to_array<Field<EvDORecord>>({
        {264, Read::U32, 10, At<&EvDORecord::Tau>, "Tau:", nullptr, -30},
        {268, Read::U32, LevelScale, At<&EvDORecord::NoiseFloor>, "Noise Floor:", nullptr, base},
        {272, Read::U32, LevelScale, At<&EvDORecord::PilotDominance>, "Pilot Dominance:", nullptr, base},
        {276, Read::U32, LevelScale, At<&EvDORecord::MultipathPower>, "Multipath Power:", nullptr, base},
        {280, Read::U32, LevelScale, At<&EvDORecord::PilotMACPowerAverage>, "Pilot MAC Power Average:", nullptr, base},
        {284, Read::U32, LevelScale, At<&EvDORecord::PilotMACPowerActive>, "Pilot MAC Power Active:", nullptr, base},
        {288, Read::U32, LevelScale, At<&EvDORecord::PilotMACPowerIdle>, "Pilot MAC Power Idle:", nullptr, base},
        {292, Read::U32, LevelScale, At<&EvDORecord::PilotPowerAverage>, "Pilot Power Average:", nullptr, base},
        {296, Read::U32, LevelScale, At<&EvDORecord::PilotPowerActive>, "Pilot Power Active:", nullptr, base},
        {300, Read::U32, LevelScale, At<&EvDORecord::PilotPowerIdle>, "Pilot Power Idle:", nullptr, base},
        {304, Read::U32, LevelScale, At<&EvDORecord::DataPowerAverage>, "Data Power Average:", nullptr, base},
        {308, Read::U32, LevelScale, At<&EvDORecord::DataPowerActive>, "Data Power Active:", nullptr, base},
        {312, Read::U32, LevelScale, At<&EvDORecord::DataPowerIdle>, "Data Power Idle:", nullptr, base},
        {316, Read::I16, 100, At<&EvDORecord::EVM>, "EVM:"},
        {318, Read::Byte, 1, At<&EvDORecord::MeasuredDataModulationType>, "Measured Data Modulation Type:"},
        {319, Read::I16, 10, At<&EvDORecord::IdleActivity>, "Idle Activity:"},
        {321, Read::I16, 10, At<&EvDORecord::ActiveActivity>, "Active Activity:"},
        {323, Read::U32, LevelScale, At<&EvDORecord::CDPThreshold>, "CDP Threshold:", nullptr, base},
        {327, Read::I32, 1, At<&EvDORecord::GpsLatitude>, "GPS Latitude:"},
        {331, Read::I32, 1, At<&EvDORecord::GpsLongitude>, "GPS Longitude:"},
        {335, Read::I16, 1, At<&EvDORecord::GpsAltitude>, "GPS Altitude:"},
    });
}

// clang-format on

/// A table of rows in the order of the raw trace.
template <std::size_t Count>
constexpr auto InRawOrder(std::array<Field<EvDORecord>, Count> fields)
{
    std::sort(fields.begin(), fields.end(), [](const auto& a, const auto& b) { return a.Offset < b.Offset; });
    return fields;
}
static_assert(FieldsFit(EvDOHeadFields(LevelVersion)) && FieldsFit(EvDOScanFields(LevelVersion)) &&
              FieldsFit(InRawOrder(EvDOScanFields_v320_above(LayoutVersion))) &&
              FieldsFit(EvDOTailFields(LevelVersion)) && FieldsFit(EvDOTailFields_v320_above(LayoutVersion)));

/// Where the values of codes and curves begin. A code of the MAC has 5 bytes, type and power, a data code
/// 4, a point of a curve 2.
struct EvDOBlocks {
    std::size_t MACCodes;
    int MAC, DataI, DataQ, Spectrum, IdleTime, ActiveTime, CalStatus;
};
inline constexpr EvDOBlocks EvDOOlderBlocks = {64, 401, 721, 785, 849, 1617, 2385, 301};
inline constexpr EvDOBlocks EvDOBlocks_v320_above = {128, 1079, 1719, 1783, 1847, 2615, 3383, 337};

/// From 3.20 alone.
inline constexpr int EvDOPathDelays = 240, EvDOUTCTime = 338, EvDOValidPilots = 348;

/// A field that the record has as a code and a parameter line as a text.
struct EvDOCodedKey {
    std::string_view Key;
    const CodeTable& Table;
};
inline const EvDOCodedKey EvDOCodedKeys[] = {
    {"Display Type:", MeasurementType},  {"Data Modulation:", Modulation},
    {"Search Mode:", TriggerMode},       {"Signal Status:", MeasurementStatus},
    {"Measurement Status:", ValidState}, {"Measured Data Modulation Type:", Modulation},
};

/// Null for a field that is listed as it is.
inline const CodeTable* EvDOTableOf(std::string_view key)
{
    const auto* found = std::ranges::find(EvDOCodedKeys, key, &EvDOCodedKey::Key);
    return found == std::end(EvDOCodedKeys) ? nullptr : &found->Table;
}

} // namespace Traces
