// The layout of a sweep's record, one row a field: raw offset, reader, divisor, member, parameter key. Points
// stand behind it, 8 bytes each. Decode, parameter lines, text load and upload all walk this table.
#pragma once

#include "formats/FieldTable.h"
#include "modes/vna_spa/VNARecord.h"

#include <array>

namespace Traces {

// clang-format off
inline constexpr auto VNAFields = std::to_array<Field<VNARecord>>({
    {57, Read::U32, 1'000'000, At<&VNARecord::StartFreq>, "Start Frequency:"},
    {61, Read::U32, 1'000'000, At<&VNARecord::StopFreq>, "Stop Frequency:"},
    {65, Read::U32, 1'000'000, At<&VNARecord::MinStepSize>, "Min Freq Step Size:"},
    {69, Read::U32, 1000, At<&VNARecord::ScaleTop>, "Scale Top:"},
    {73, Read::U32, 1000, At<&VNARecord::ScaleBottom>, "Scale Bottom:"},
    {77, Read::I16, 1, At<&VNARecord::FreqMarker, 0>, "Freq Marker 1:"},
    {79, Read::I16, 1, At<&VNARecord::FreqMarker, 1>, "Freq Marker 2:"},
    {81, Read::I16, 1, At<&VNARecord::FreqMarker, 2>, "Freq Marker 3:"},
    {83, Read::I16, 1, At<&VNARecord::FreqMarker, 3>, "Freq Marker 4:"},
    {85, Read::I16, 1, At<&VNARecord::FreqMarker, 4>, "Freq Marker 5:"},
    {87, Read::I16, 1, At<&VNARecord::FreqMarker, 5>, "Freq Marker 6:"},
    {89, Read::I32, 1, At<&VNARecord::SingleLimit>, "Single Limit:"},
    {93, Read::Byte, 1, At<&VNARecord::LimitSegment, 0, &VNALimitSegment::Seg>, "Mult Limit Seg 1:"},
    {94, Read::Byte, 1, At<&VNARecord::LimitSegment, 0, &VNALimitSegment::SegStatus>, "Mult Limit Seg Status 1:"},
    {95, Read::U32, 1, At<&VNARecord::LimitSegment, 0, &VNALimitSegment::StartX>, "Mult Limit Start X 1:"},
    {99, Read::I16, 1, At<&VNARecord::LimitSegment, 0, &VNALimitSegment::StartY>, "Mult Limit Start Y 1:"},
    {101, Read::U32, 1, At<&VNARecord::LimitSegment, 0, &VNALimitSegment::EndX>, "Mult Limit End X 1:"},
    {105, Read::I16, 1, At<&VNARecord::LimitSegment, 0, &VNALimitSegment::EndY>, "Mult Limit End Y 1:"},
    {107, Read::Byte, 1, At<&VNARecord::LimitSegment, 1, &VNALimitSegment::Seg>, "Mult Limit Seg 2:"},
    {108, Read::Byte, 1, At<&VNARecord::LimitSegment, 1, &VNALimitSegment::SegStatus>, "Mult Limit Seg Status 2:"},
    {109, Read::U32, 1, At<&VNARecord::LimitSegment, 1, &VNALimitSegment::StartX>, "Mult Limit Start X 2:"},
    {113, Read::I16, 1, At<&VNARecord::LimitSegment, 1, &VNALimitSegment::StartY>, "Mult Limit Start Y 2:"},
    {115, Read::U32, 1, At<&VNARecord::LimitSegment, 1, &VNALimitSegment::EndX>, "Mult Limit End X 2:"},
    {119, Read::I16, 1, At<&VNARecord::LimitSegment, 1, &VNALimitSegment::EndY>, "Mult Limit End Y 2:"},
    {121, Read::Byte, 1, At<&VNARecord::LimitSegment, 2, &VNALimitSegment::Seg>, "Mult Limit Seg 3:"},
    {122, Read::Byte, 1, At<&VNARecord::LimitSegment, 2, &VNALimitSegment::SegStatus>, "Mult Limit Seg Status 3:"},
    {123, Read::U32, 1, At<&VNARecord::LimitSegment, 2, &VNALimitSegment::StartX>, "Mult Limit Start X 3:"},
    {127, Read::I16, 1, At<&VNARecord::LimitSegment, 2, &VNALimitSegment::StartY>, "Mult Limit Start Y 3:"},
    {129, Read::U32, 1, At<&VNARecord::LimitSegment, 2, &VNALimitSegment::EndX>, "Mult Limit End X 3:"},
    {133, Read::I16, 1, At<&VNARecord::LimitSegment, 2, &VNALimitSegment::EndY>, "Mult Limit End Y 3:"},
    {135, Read::Byte, 1, At<&VNARecord::LimitSegment, 3, &VNALimitSegment::Seg>, "Mult Limit Seg 4:"},
    {136, Read::Byte, 1, At<&VNARecord::LimitSegment, 3, &VNALimitSegment::SegStatus>, "Mult Limit Seg Status 4:"},
    {137, Read::U32, 1, At<&VNARecord::LimitSegment, 3, &VNALimitSegment::StartX>, "Mult Limit Start X 4:"},
    {141, Read::I16, 1, At<&VNARecord::LimitSegment, 3, &VNALimitSegment::StartY>, "Mult Limit Start Y 4:"},
    {143, Read::U32, 1, At<&VNARecord::LimitSegment, 3, &VNALimitSegment::EndX>, "Mult Limit End X 4:"},
    {147, Read::I16, 1, At<&VNARecord::LimitSegment, 3, &VNALimitSegment::EndY>, "Mult Limit End Y 4:"},
    {149, Read::Byte, 1, At<&VNARecord::LimitSegment, 4, &VNALimitSegment::Seg>, "Mult Limit Seg 5:"},
    {150, Read::Byte, 1, At<&VNARecord::LimitSegment, 4, &VNALimitSegment::SegStatus>, "Mult Limit Seg Status 5:"},
    {151, Read::U32, 1, At<&VNARecord::LimitSegment, 4, &VNALimitSegment::StartX>, "Mult Limit Start X 5:"},
    {155, Read::I16, 1, At<&VNARecord::LimitSegment, 4, &VNALimitSegment::StartY>, "Mult Limit Start Y 5:"},
    {157, Read::U32, 1, At<&VNARecord::LimitSegment, 4, &VNALimitSegment::EndX>, "Mult Limit End X 5:"},
    {161, Read::I16, 1, At<&VNARecord::LimitSegment, 4, &VNALimitSegment::EndY>, "Mult Limit End Y 5:"},
    {163, Read::U32, 1, At<&VNARecord::StartDistance>, "Start Distance:"},
    {167, Read::U32, 1, At<&VNARecord::StopDistance>, "Stop Distance:"},
    {171, Read::I16, 1, At<&VNARecord::DistanceMarker, 0>, "Distance Marker 1:"},
    {173, Read::I16, 1, At<&VNARecord::DistanceMarker, 1>, "Distance Marker 2:"},
    {175, Read::I16, 1, At<&VNARecord::DistanceMarker, 2>, "Distance Marker 3:"},
    {177, Read::I16, 1, At<&VNARecord::DistanceMarker, 3>, "Distance Marker 4:"},
    {179, Read::I16, 1, At<&VNARecord::DistanceMarker, 4>, "Distance Marker 5:"},
    {181, Read::I16, 1, At<&VNARecord::DistanceMarker, 5>, "Distance Marker 6:"},
    {183, Read::U32, 100'000, At<&VNARecord::RelPropVelocity>, "Rel Prop Velocity:"},
    {187, Read::U32, 100'000, At<&VNARecord::CableLoss>, "Cable Loss:"},
    {191, Read::U32, 1000, At<&VNARecord::AveCableLoss>, "Ave Cable Loss:"},
    {195, Read::Byte, 1, At<&VNARecord::StatusByte, 0>, "Status Byte 1:"},
    {196, Read::Byte, 1, At<&VNARecord::StatusByte, 1>, "Status Byte 2:"},
    {197, Read::Byte, 1, At<&VNARecord::StatusByte, 2>, "Status Byte 3:"},
    {198, Read::Byte, 1, At<&VNARecord::StatusByte, 3>, "Status Byte 4:"},
    {199, Read::Byte, 1, At<&VNARecord::StatusByte, 4>, "Status Byte 5:"},
    {200, Read::I16, 1, At<&VNARecord::VNASignalStd>, "VNA Signal Std:", &SignalStandard},
    {202, Read::I32, 1, At<&VNARecord::GpsLatitude>, "GPS Latitude:"},
    {206, Read::I32, 1, At<&VNARecord::GpsLongitude>, "GPS Longitude:"},
    {210, Read::I16, 1, At<&VNARecord::GpsAltitude>, "GPS Altitude:"},
});
// clang-format on
static_assert(FieldsFit(VNAFields));

/// Data points: 4 bytes of magnitude and 4 of phase, from here on.
inline constexpr int VNAFirstPoint = 325;
inline constexpr int VNAPointBytes = 8;
inline constexpr double VNAMagnitudeScale = 10'000;
inline constexpr double VNAPhaseScale = 10;

} // namespace Traces
