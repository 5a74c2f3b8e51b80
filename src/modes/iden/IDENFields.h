// The layout of an iDEN record, one row a field in the order of the parameter lines: raw offset, reader,
// divisor, member, parameter key. The first fields of the raw trace share bytes with their neighbours.
#pragma once

#include "formats/FieldTable.h"
#include "modes/iden/IDENRecord.h"

#include <array>
#include <span>

namespace Traces {

/// The ratio of the main channel to itself stands in no raw trace.
inline constexpr int NoIDENOffset = 0;

// clang-format off
inline constexpr auto IDENFields = std::to_array<Field<IDENRecord>>({
    {57, Read::I16, 1, At<&IDENRecord::ViewMode>, "ViewMode:"},
    {58, Read::I16, 1, At<&IDENRecord::ExternalRefFreq>, "ExternalReferenceFrequency:", nullptr, -255},
    {59, Read::I32, 1, At<&IDENRecord::ExternalRefStatus>, "ExternalReferenceFrequencyStatus:"},
    {63, Read::U32, 1'000'000, At<&IDENRecord::CenterFrequency>, "CenterFrequency:"},
    {113, Read::I16, 1, At<&IDENRecord::GpsAltitude>, "GPS Altitude:"},
    {105, Read::I32, 1, At<&IDENRecord::GpsLatitude>, "GPS Latitude:"},
    {109, Read::I32, 1, At<&IDENRecord::GpsLongitude>, "GPS Longitude:"},
    {115, Read::Chars, 1, At<&IDENRecord::UtcTime>, "UTC Time:", nullptr, 0, 9},
    {67, Read::U32, 1000, At<&IDENRecord::ACPRFrequencySpan>, "ACPRFrequencySpan:"},
    {71, Read::U32, 1000, At<&IDENRecord::ReferenceLevel>, "ReferenceLevel:", nullptr, -270},
    {75, Read::U32, 1000, At<&IDENRecord::ScalePerDivision>, "ScalePerDivision:"},
    {79, Read::I16, 1, At<&IDENRecord::SignalStandardID>, "SignalStandardID:"},
    {81, Read::Chars, 1, At<&IDENRecord::SignalStandardName>, "SignalStandardName:", nullptr, 0, 23},
    {125, Read::I16, 1, At<&IDENRecord::SignalStatus>, "SignalStatus:"},
    {127, Read::I32, 1, At<&IDENRecord::FrequencyError>, "FrequencyError:"},
    {131, Read::U32, 10, At<&IDENRecord::PeakToAverageRatio>, "PeaktoaverageRatio:"},
    {135, Read::I32, 10, At<&IDENRecord::SubchannelPower, 0>, "SubchannelSlot1ChannelPower:"},
    {139, Read::I32, 10, At<&IDENRecord::SubchannelPower, 1>, "SubchannelSlot2ChannelPower:"},
    {143, Read::I32, 10, At<&IDENRecord::SubchannelPower, 2>, "SubchannelSlot3ChannelPower:"},
    {147, Read::I32, 10, At<&IDENRecord::SubchannelPower, 3>, "SubchannelSlot4ChannelPower:"},
    {151, Read::I32, 1000, At<&IDENRecord::OccupiedBandwidth>, "MainChannelOccupiedBandwidth:"},
    {155, Read::I32, 10, At<&IDENRecord::AdjacentPowerRatio, 0>, "AdjacentChannelPowerRatio1:"},
    {159, Read::I32, 10, At<&IDENRecord::AdjacentPowerRatio, 1>, "AdjacentChannelPowerRatio2:"},
    {163, Read::I32, 10, At<&IDENRecord::AdjacentPowerRatio, 2>, "AdjacentChannelPowerRatio3:"},
    {NoIDENOffset, Read::I32, 10, At<&IDENRecord::AdjacentPowerRatio, 3>, "AdjacentChannelPowerRatio4:"},
    {171, Read::I32, 10, At<&IDENRecord::AdjacentPowerRatio, 4>, "AdjacentChannelPowerRatio5:"},
    {175, Read::I32, 10, At<&IDENRecord::AdjacentPowerRatio, 5>, "AdjacentChannelPowerRatio6:"},
    {179, Read::I32, 10, At<&IDENRecord::AdjacentPowerRatio, 6>, "AdjacentChannelPowerRatio7:"},
    {183, Read::I32, 10, At<&IDENRecord::MainChannelPower>, "MainChannelPower:"},
    {187, Read::U32, 10, At<&IDENRecord::DemodSQE>, "DemodSQE:"},
    {191, Read::I32, 1, At<&IDENRecord::PhaseNoise>, "PhaseNoise:"},
    {195, Read::I16, 1, At<&IDENRecord::Rho>, "Rho:"},
    {199, Read::I32, 10, At<&IDENRecord::EVMAverage>, "EVMAverage:"},
    {203, Read::I32, 1, At<&IDENRecord::SubchannelEVM, 0>, "Subchannel1EVM:"},
    {207, Read::I32, 1, At<&IDENRecord::SubchannelEVM, 1>, "Subchannel2EVM:"},
    {211, Read::I32, 1, At<&IDENRecord::SubchannelEVM, 2>, "Subchannel3EVM:"},
    {215, Read::I32, 1, At<&IDENRecord::SubchannelEVM, 3>, "Subchannel4EVM:"},
    {219, Read::I32, 10, At<&IDENRecord::ActiveSlotPower>, "ActiveSlotPower:"},
    {223, Read::I32, 1, At<&IDENRecord::AverageDutyCycle>, "AverageDutyCycle:"},
    {227, Read::I16, 1, At<&IDENRecord::OnOffRatio>, "OnOffRatio:"},
    {3598, Read::I16, 1, At<&IDENRecord::ChannelNumber>, "channel:"},
    {3597, Read::Byte, 1, At<&IDENRecord::DemodStatus>, "DemodStatus:"},
});
// clang-format on

/// A curve: its raw place, 2 bytes a point; the name in front of a line's index; where a saved line's value
/// is looked for, behind the name's first character, and how wide it is there.
struct IDENCurveField {
    int Offset;
    double Divisor;
    std::string_view Name;
    std::size_t ValueSkip, ValueWidth;
    std::size_t Listed; ///< points that have a line
    std::span<float> (*Of)(IDENRecord& record);
    std::span<const float> (*In)(const IDENRecord& record);
};

template <auto Curve>
constexpr IDENCurveField IDENCurveOf(int offset, double divisor, std::string_view name, std::size_t skip,
                                     std::size_t width, std::size_t listed)
{
    return {offset,
            divisor,
            name,
            skip,
            width,
            listed,
            [](IDENRecord& record) { return std::span<float>(record.*Curve); },
            [](const IDENRecord& record) { return std::span<const float>(record.*Curve); }};
}

inline constexpr IDENCurveField IDENCurves[] = {
    IDENCurveOf<&IDENRecord::ACPRCurve>(231, 10, "ACPRSpectrumPower", 22, 6, IDENRecord::CurveRoom),
    IDENCurveOf<&IDENRecord::SpectrumCurve>(1033, 10, "PointsofSpectrumPower", 26, 6, IDENRecord::CurveRoom),
    IDENCurveOf<&IDENRecord::ConstellationPoints>(1835, 1, "PointsofDemodConstellation", 31, 5,
                                                  IDENRecord::ConstellationValues),
    IDENCurveOf<&IDENRecord::PowerTimeCurve>(2795, 10, "PointsofPowervsTime", 24, 8, IDENRecord::CurveRoom),
};

} // namespace Traces
