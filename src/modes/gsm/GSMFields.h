// The layout of a GSM record, one row a field: raw offset, reader, divisor, member, parameter key. An upload
// frame has every field 13 bytes lower.
#pragma once

#include "formats/FieldTable.h"
#include "modes/gsm/GSMRecord.h"

#include <array>
#include <string_view>

namespace Traces {

/// A level is (raw - bias) / 250 dB. The bias goes by the firmware's text, compared character by character:
/// "10.0" ranks below "3.15".
inline constexpr double GSMLevelScale = 250;
constexpr double GSMLevelBias(std::string_view version)
{
    return version <= "3.15" ? 50'000 : 60'000;
}

// clang-format off

/// In the order of the parameter lines, which is the raw layout's.
constexpr auto GSMFields(double bias)
{
    const double base = -bias / GSMLevelScale;
    return std::to_array<Field<GSMRecord>>({
        {57, Read::I16, 1, At<&GSMRecord::ScaleDivisor>, "Scale Divisor:"},
        {59, Read::U32, 1'000'000, At<&GSMRecord::CenterFrequency>, "Center Frequency:"},
        {63, Read::U32, 1'000'000, At<&GSMRecord::ExternalRefFrequency>, "External Reference Frequency:"},
        // Frames carry the standard's code here. A raw trace is read by the name that follows at 90.
        {67, Read::I16, 1, At<&GSMRecord::SignalStandard>, "Signal Standard:", &SignalStandard},
        {69, Read::Byte, 1, At<&GSMRecord::DisplayType>, "Display Type:"},
        {70, Read::Byte, 1, At<&GSMRecord::DisplayUnits>, "Display Units:"},
        {71, Read::U32, 1000, At<&GSMRecord::PowerOffset>, "Power Offset:"},
        {75, Read::I16, 1, At<&GSMRecord::Channel>, "Channel:"},
        {77, Read::I32, 1, At<&GSMRecord::GpsLatitude>, "GPS Latitude:"},
        {81, Read::I32, 1, At<&GSMRecord::GpsLongitude>, "GPS Longitude:"},
        {85, Read::I16, 1, At<&GSMRecord::GpsAltitude>, "GPS Altitude:"},
        {114, Read::Byte, 1, At<&GSMRecord::RefLevelCalStatus>, "RefLelOffset CalStatus:"},
        {127, Read::U16, GSMLevelScale, At<&GSMRecord::ChannelPower>, "Measured Channel Power:", nullptr, base},
        {129, Read::U16, GSMLevelScale, At<&GSMRecord::BurstPower>, "Measured Burst Power:", nullptr, base},
        {131, Read::U32, 1, At<&GSMRecord::FreqError>, "Frequency Error:", nullptr, -1'000'000},
        {135, Read::U32, 1000, At<&GSMRecord::OccupiedBandwidth>, "Occupied Bandwidth:"},
        {139, Read::I16, 1, At<&GSMRecord::MeasuredTSC>, "Measured TSC:"},
    });
}
// clang-format on

static_assert(FieldsFit(GSMFields(50'000)));

/// The signal standard by name.
inline constexpr int GSMStandardName = 90, GSMStandardNameWidth = 24;

/// The curves, 2 bytes a point, in the order of a parameter line's values.
struct GSMCurveField {
    int Offset;
    GSMRecord::Curve GSMRecord::*Curve;
};
inline constexpr GSMCurveField GSMCurves[] = {
    {157, &GSMRecord::SpectrumCurve}, {959, &GSMRecord::FrameCurve}, {1761, &GSMRecord::SlotCurve}};

} // namespace Traces
