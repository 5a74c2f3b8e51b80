// The layout of a line test's record in three tables, one row a field: raw offset, reader, divisor, member,
// parameter key. The lines of a trace walk them in the order told here; an upload frame has every field 13
// bytes lower.
#pragma once

#include "formats/FieldTable.h"
#include "formats/Numbers.h"
#include "modes/t1e1/E1T1Record.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace Traces {

/// "Data(1):", the key of the first slice's line.
inline constexpr std::string_view SliceStem = "Data(", SliceKeyEnd = "):";
inline std::string SliceKey(std::size_t slice)
{
    std::string key(SliceStem);
    AppendNumberText(key, static_cast<std::int32_t>(slice + 1));
    return key += SliceKeyEnd;
}

/// Flags and count of a slice's line. Nothing for one with another number of columns.
inline std::optional<std::pair<std::string_view, std::string_view>> SliceColumns(std::string_view value)
{
    const std::size_t tab = value.find('\t');
    if (tab == std::string_view::npos || value.find('\t', tab + 1) != std::string_view::npos)
        return std::nullopt;
    return std::pair{value.substr(0, tab), value.substr(tab + 1)};
}

inline constexpr int FirstSlice = 156, SliceBytes = 5;
inline constexpr double SendLevelBase = -30;
inline constexpr double ReceiveLevelScale = 10, ReceiveLevelBase = -40.1;
inline constexpr double VppScale = 10, DbdsxBias = 350;

// clang-format off

/// Settings, counters and times, in front of the slices. The seconds are listed behind "CRC Error Count:".
inline constexpr auto E1T1HeadFields = std::to_array<Field<E1T1Record>>({
    {57, Read::Byte, 1, At<&E1T1Record::ReceiveInput>, "Receive Input:", &TerminationMode},
    {58, Read::Byte, 1, At<&E1T1Record::FramingMode>, "Framing Mode:", &FramingMode},
    {59, Read::Byte, 1, At<&E1T1Record::LineCoding>, "Line Coding:", &LineCoding},
    {60, Read::Byte, 1, At<&E1T1Record::TxLevel>, "Tx Level:", &TxLevel},
    {61, Read::Byte, 1, At<&E1T1Record::ClockSource>, "Clock Source:", &ClockSource},
    {62, Read::Byte, 1, At<&E1T1Record::ErrorInsertType>, "Error Insert Type:", &ErrorInsertType},
    {63, Read::Byte, 1, At<&E1T1Record::LoopCode>, "Loop Code:"},
    {64, Read::Byte, 1, At<&E1T1Record::LoopType>, "Loop Type:"},
    {65, Read::Byte, 1, At<&E1T1Record::CrcMethod>, "CRC Method:", &CRCType},
    {66, Read::Byte, 1, At<&E1T1Record::DisplayType>, "Display Type:", &E1T1Display},
    {67, Read::Byte, 1, At<&E1T1Record::Impedance>, "Impedance:", &Impedance},
    {68, Read::Byte, 1, At<&E1T1Record::Pattern>, "Pattern:", &BERPattern},
    {69, Read::Byte, 1, At<&E1T1Record::PatternInvert>, "Pattern Invert Status:", &DataInversion},
    {70, Read::I16, 1, At<&E1T1Record::InsertBitError>, "Insert Bit Error:"},
    {72, Read::I16, 1, At<&E1T1Record::InsertBpvError>, "Insert BPV Error:"},
    {74, Read::I16, 1, At<&E1T1Record::InsertFrameError>, "Insert Frame Error:"},
    {76, Read::Byte, 1, At<&E1T1Record::MeasurementDuration>, "Measurement Duration:", &TestDuration},
    {77, Read::Byte, 1, At<&E1T1Record::HistogramResolution>, "Histogram Resolution:", &UpdateInterval},
    {78, Read::Byte, 1, At<&E1T1Record::FrameSyncStatus>, "Frame Sync Status:", &SyncState},
    {79, Read::Byte, 1, At<&E1T1Record::PatternSyncStatus>, "Pattern Sync Status:", &SyncState},
    {80, Read::Byte, 1, At<&E1T1Record::CarrierStatus>, "Carrier Status:", &SyncState},
    {81, Read::Byte, 1, At<&E1T1Record::RxAlarms>, "Rx Alarms:", &AlarmState},
    {82, Read::I32, 1, At<&E1T1Record::BpvErrorCount>, "BPV Error Count:"},
    {86, Read::I32, 1, At<&E1T1Record::CrcErrorCount>, "CRC Error Count:"},
    {90, Read::I32, 1, At<&E1T1Record::FrameErrorCount>, "Frame Error Count:"},
    {94, Read::I32, 1, At<&E1T1Record::LofErrorCount>, "LOF Error Count:"},
    {98, Read::I32, 1, At<&E1T1Record::EBitErrorCount>, "E_Bit Error Count:"},
    {102, Read::I32, 1, At<&E1T1Record::ErroredSeconds>, "Errored Seconds:"},
    {106, Read::I32, 1, At<&E1T1Record::BitCount>, "Bit Count:"},
    {110, Read::I32, 1, At<&E1T1Record::BitErrors>, "Bit Errors:"},
    {114, Read::I32, 1, At<&E1T1Record::UserPattern>, "User Defined Pattern:"},
    {118, Read::Chars, 1, At<&E1T1Record::StartTime>, "Measurement Start Time:", nullptr, 0, 8},
    {126, Read::Chars, 1, At<&E1T1Record::StopTime>, "Measurement Stop Time:", nullptr, 0, 11},
    {137, Read::Chars, 1, At<&E1T1Record::ElapsedTime>, "Elapsed Time:", nullptr, 0, 11},
    {148, Read::Chars, 1, At<&E1T1Record::BitErrorRate>, "Bit Error Rate:", nullptr, 0, 8},
});
static_assert(FieldsFit(E1T1HeadFields));

/// Counted by the instrument alone: no frame has them.
inline constexpr auto E1T1SecondsFields = std::to_array<Field<E1T1Record>>({
    {690, Read::I32, 1, At<&E1T1Record::SeverelyErroredSeconds>, "Severely Error Seconds:"},
    {694, Read::I32, 1, At<&E1T1Record::UnavailableSeconds>, "Unavailable Seconds:"},
    {688, Read::I16, 1, At<&E1T1Record::DegradedMinutes>, "Degraded Minutes:"},
});

/// What stands behind the slices, in the order of the lines.
inline constexpr auto E1T1TailFields = std::to_array<Field<E1T1Record>>({
    // In decibels with a bias: E1T1Trace.cpp.
    {656, Read::I16, VppScale, At<&E1T1Record::VppLevel>, "VPP/dBdsx:"},
    {684, Read::Byte, 1, At<&E1T1Record::VppScaling>, "VPP Scaling:"},
    {685, Read::Byte, 1, At<&E1T1Record::VppRxConfig>, "VPP Rx Config:", &VFTermination},
    {686, Read::Byte, 1, At<&E1T1Record::VppImpedance>, "VPP Impedance:", &VFImpedance},
    {658, Read::U32, 1'000'000, At<&E1T1Record::ReceiveFreq>, "T1E1 Receive Freq:"},
    {662, Read::I32, 1, At<&E1T1Record::GpsLatitude>, "GPS Latitude:"},
    {666, Read::I32, 1, At<&E1T1Record::GpsLongitude>, "GPS Longitude:"},
    {670, Read::I16, 1, At<&E1T1Record::GpsAltitude>, "GPS Altitude:"},
    {672, Read::Byte, 1, At<&E1T1Record::ChannelInsertState>, "DS0/E0 Channel Insert State:"},
    {673, Read::Byte, 1, At<&E1T1Record::ChannelNumber>, "DS0/E0 Channel Number:"},
    {674, Read::I16, 1, At<&E1T1Record::AudioVolume>, "DS0/E0 Audio Monitor Volume:"},
    {676, Read::I16, 1, At<&E1T1Record::SendLevel>, "DS0/E0 Send Level:", nullptr, SendLevelBase},
    {678, Read::I16, 1, At<&E1T1Record::SendFreq>, "DS0/E0 Send Frequency:"},
    {680, Read::I16, ReceiveLevelScale, At<&E1T1Record::ReceiveLevel>, "DS0/E0 Receive Level:", nullptr, ReceiveLevelBase},
    {682, Read::I16, 1, At<&E1T1Record::ReceiveToneFreq>, "DS0/E0 Receive Frequency:"},
});
// clang-format on

} // namespace Traces
