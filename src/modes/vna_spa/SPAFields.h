// The layout of a spectrum's record, one row a field: raw offset, reader, divisor, member, parameter key, and
// for a level its bias. Points stand behind it, 4 bytes each. Decode, parameter lines, text load and upload
// all walk this table.
#pragma once

#include "formats/FieldTable.h"
#include "modes/vna_spa/SPARecord.h"

#include <array>

namespace Traces {

/// A level in dBm is raw / 1000 - 270.
inline constexpr double SPALevelScale = 1000;
inline constexpr double SPALevelBias = -270;

// clang-format off
inline constexpr auto SPAFields = std::to_array<Field<SPARecord>>({
    {57, Read::U32, 1'000'000, At<&SPARecord::StartFreq>, "Start Frequency:"},
    {61, Read::U32, 1'000'000, At<&SPARecord::StopFreq>, "Stop Frequency:"},
    {65, Read::U32, 1'000'000, At<&SPARecord::CenterFreq>, "Center Freq:"},
    {69, Read::U32, 1'000'000, At<&SPARecord::FreqSpan>, "Freq Span:"},
    {73, Read::U32, 1'000'000, At<&SPARecord::MinStepSize>, "Min Freq Step Size:"},
    {77, Read::U32, 1000, At<&SPARecord::RefLevel>, "Ref Level:", nullptr, SPALevelBias},
    {81, Read::U32, 1000, At<&SPARecord::ScaleDiv>, "Scale/Div:"},
    {85, Read::I16, 1, At<&SPARecord::FreqMarker, 0>, "Freq Marker 1:"},
    {87, Read::I16, 1, At<&SPARecord::FreqMarker, 1>, "Freq Marker 2:"},
    {89, Read::I16, 1, At<&SPARecord::FreqMarker, 2>, "Freq Marker 3:"},
    {91, Read::I16, 1, At<&SPARecord::FreqMarker, 3>, "Freq Marker 4:"},
    {93, Read::I16, 1, At<&SPARecord::FreqMarker, 4>, "Freq Marker 5:"},
    {95, Read::I16, 1, At<&SPARecord::FreqMarker, 5>, "Freq Marker 6:"},
    {97, Read::I32, 1000, At<&SPARecord::SingleLimit>, "Single Limit:", nullptr, SPALevelBias},
    {101, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 0>, "Mult Upper Limit 1 Start X:"},
    {105, Read::U32, 1000, At<&SPARecord::LimitPoints, 1>, "Mult Upper Limit 1 Start Y:", nullptr, SPALevelBias},
    {109, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 2>, "Mult Upper Limit 1 End X:"},
    {113, Read::U32, 1000, At<&SPARecord::LimitPoints, 3>, "Mult Upper Limit 1 End Y:", nullptr, SPALevelBias},
    {117, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 4>, "Mult Upper Limit 2 Start X:"},
    {121, Read::U32, 1000, At<&SPARecord::LimitPoints, 5>, "Mult Upper Limit 2 Start Y:", nullptr, SPALevelBias},
    {125, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 6>, "Mult Upper Limit 2 End X:"},
    {129, Read::U32, 1000, At<&SPARecord::LimitPoints, 7>, "Mult Upper Limit 2 End Y:", nullptr, SPALevelBias},
    {133, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 8>, "Mult Upper Limit 3 Start X:"},
    {137, Read::U32, 1000, At<&SPARecord::LimitPoints, 9>, "Mult Upper Limit 3 Start Y:", nullptr, SPALevelBias},
    {141, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 10>, "Mult Upper Limit 3 End X:"},
    {145, Read::U32, 1000, At<&SPARecord::LimitPoints, 11>, "Mult Upper Limit 3 End Y:", nullptr, SPALevelBias},
    {149, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 12>, "Mult Upper Limit 4 Start X:"},
    {153, Read::U32, 1000, At<&SPARecord::LimitPoints, 13>, "Mult Upper Limit 4 Start Y:", nullptr, SPALevelBias},
    {157, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 14>, "Mult Upper Limit 4 End X:"},
    {161, Read::U32, 1000, At<&SPARecord::LimitPoints, 15>, "Mult Upper Limit 4 End Y:", nullptr, SPALevelBias},
    {165, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 16>, "Mult Upper Limit 5 Start X:"},
    {169, Read::U32, 1000, At<&SPARecord::LimitPoints, 17>, "Mult Upper Limit 5 Start Y:", nullptr, SPALevelBias},
    {173, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 18>, "Mult Upper Limit 5 End X:"},
    {177, Read::U32, 1000, At<&SPARecord::LimitPoints, 19>, "Mult Upper Limit 5 End Y:", nullptr, SPALevelBias},
    {181, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 20>, "Mult Lower Limit 1 Start X:"},
    {185, Read::U32, 1000, At<&SPARecord::LimitPoints, 21>, "Mult Lower Limit 1 Start Y:", nullptr, SPALevelBias},
    {189, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 22>, "Mult Lower Limit 1 End X:"},
    {193, Read::U32, 1000, At<&SPARecord::LimitPoints, 23>, "Mult Lower Limit 1 End Y:", nullptr, SPALevelBias},
    {197, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 24>, "Mult Lower Limit 2 Start X:"},
    {201, Read::U32, 1000, At<&SPARecord::LimitPoints, 25>, "Mult Lower Limit 2 Start Y:", nullptr, SPALevelBias},
    {205, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 26>, "Mult Lower Limit 2 End X:"},
    {209, Read::U32, 1000, At<&SPARecord::LimitPoints, 27>, "Mult Lower Limit 2 End Y:", nullptr, SPALevelBias},
    {213, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 28>, "Mult Lower Limit 3 Start X:"},
    {217, Read::U32, 1000, At<&SPARecord::LimitPoints, 29>, "Mult Lower Limit 3 Start Y:", nullptr, SPALevelBias},
    {221, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 30>, "Mult Lower Limit 3 End X:"},
    {225, Read::U32, 1000, At<&SPARecord::LimitPoints, 31>, "Mult Lower Limit 3 End Y:", nullptr, SPALevelBias},
    {229, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 32>, "Mult Lower Limit 4 Start X:"},
    {233, Read::U32, 1000, At<&SPARecord::LimitPoints, 33>, "Mult Lower Limit 4 Start Y:", nullptr, SPALevelBias},
    {237, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 34>, "Mult Lower Limit 4 End X:"},
    {241, Read::U32, 1000, At<&SPARecord::LimitPoints, 35>, "Mult Lower Limit 4 End Y:", nullptr, SPALevelBias},
    {245, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 36>, "Mult Lower Limit 5 Start X:"},
    {249, Read::U32, 1000, At<&SPARecord::LimitPoints, 37>, "Mult Lower Limit 5 Start Y:", nullptr, SPALevelBias},
    {253, Read::U32, 1'000'000, At<&SPARecord::LimitPoints, 38>, "Mult Lower Limit 5 End X:"},
    {257, Read::U32, 1000, At<&SPARecord::LimitPoints, 39>, "Mult Lower Limit 5 End Y:", nullptr, SPALevelBias},
    {261, Read::I32, 1, At<&SPARecord::RBWSetting>, "RBW Setting:"},
    {265, Read::I32, 1, At<&SPARecord::VBWSetting>, "VBW Setting:"},
    {269, Read::Byte, 1, At<&SPARecord::OCCBWMethod>, "OCC BW Method:"},
    {270, Read::Byte, 1, At<&SPARecord::OCCBWPercent>, "OCC BW Percent:"},
    {271, Read::Byte, 1, At<&SPARecord::OCCBWdBc>, "OCC BW dBc:"},
    {272, Read::U32, 1000, At<&SPARecord::Attenuation>, "Attenuation:"},
    {276, Read::Chars, 1, At<&SPARecord::AntennaName>, "Antenna Name:", nullptr, 0, 16},
    {292, Read::Byte, 1, At<&SPARecord::StatusByte, 0>, "Status Byte 1:"},
    {293, Read::Byte, 1, At<&SPARecord::StatusByte, 1>, "Status Byte 2:"},
    {294, Read::Byte, 1, At<&SPARecord::StatusByte, 2>, "Status Byte 3:"},
    {295, Read::Byte, 1, At<&SPARecord::StatusByte, 3>, "Status Byte 4:"},
    {296, Read::Byte, 1, At<&SPARecord::StatusByte, 4>, "Status Byte 5:"},
    {297, Read::Byte, 1, At<&SPARecord::StatusByte, 5>, "Status Byte 6:"},
    {298, Read::Byte, 1, At<&SPARecord::StatusByte, 6>, "Status Byte 7:"},
    {299, Read::U32, 1000, At<&SPARecord::RefLevelOffset>, "Ref Level Offset:", nullptr, SPALevelBias},
    {303, Read::Byte, 1, At<&SPARecord::ExternalRefFreq>, "External Ref Freq:"},
    {304, Read::I16, 1, At<&SPARecord::SignalStandard>, "Signal Standard:", &SignalStandard},
    {306, Read::I16, 1, At<&SPARecord::ChannelSelection>, "Channel Selection:"},
    {308, Read::Byte, 1, At<&SPARecord::InterferenceStandard>, "Interference Analysis Cell Standard:", &InterferenceType},
    {309, Read::U32, 1'000'000, At<&SPARecord::InterferenceBandwidth>, "Interference Analysis Cell Bandwidth:"},
    {313, Read::U32, 1'000'000, At<&SPARecord::InterferenceFrequency>, "Interference Analysis Frequency:"},
    {321, Read::Byte, 1, At<&SPARecord::TriggerType>, "Trigger Type:", &SweepTrigger},
    {322, Read::Byte, 1, At<&SPARecord::TriggerPosition>, "Trigger Position:"},
    {323, Read::I32, 1, At<&SPARecord::MinSweepTime>, "Min Sweep Time:"},
    {327, Read::U32, 1000, At<&SPARecord::VideoTriggerLevel>, "Video Trigger Level:", nullptr, SPALevelBias},
    {331, Read::Byte, 1, At<&SPARecord::StatusByte8>, "Status Byte 8:"},
    {332, Read::Byte, 1, At<&SPARecord::Impedence>, "Impedence:"},
    {333, Read::I16, 1000, At<&SPARecord::ImpedenceLoss>, "Impedence Loss:"},
    {335, Read::I16, 1, At<&SPARecord::FreqScaleFactor>, "Freq Scale Factor:"},
    {337, Read::U32, 1'000'000, At<&SPARecord::FreqRangeMin>, "Freq Range Min:"},
    {341, Read::U32, 1'000'000, At<&SPARecord::FreqRangeMax>, "Freq Range Max:"},
    {345, Read::Byte, 1, At<&SPARecord::LinkedTraceNumber>, "Linked Trace Number:"},
    {346, Read::Byte, 1, At<&SPARecord::StatusByte9>, "Status Byte 9:"},
    {347, Read::U32, 1000, At<&SPARecord::CICalcPowerNB>, "CI Calc Power NB FHSS:", nullptr, SPALevelBias},
    {351, Read::U32, 1000, At<&SPARecord::CICalcPowerWB>, "CI Calc Power WB FHSS:", nullptr, SPALevelBias},
    {355, Read::U32, 1000, At<&SPARecord::CICalcPowerBroadband>, "CI Calc Power Broadband:", nullptr, SPALevelBias},
    {359, Read::U32, 1000, At<&SPARecord::OccupiedBandwidthPower>, "Occupied Bandwidth Power:", nullptr, SPALevelBias},
    {363, Read::Byte, 1, At<&SPARecord::MarkerType>, "Marker Type:"},
    {364, Read::I32, 1, At<&SPARecord::GpsLatitude>, "GPS Latitude:"},
    {368, Read::I32, 1, At<&SPARecord::GpsLongitude>, "GPS Longitude:"},
    {372, Read::I16, 1, At<&SPARecord::GpsAltitude>, "GPS Altitude:"},
});
// clang-format on
static_assert(FieldsFit(SPAFields));

/// Data points: 4 bytes of level, from here on.
inline constexpr int SPAFirstPoint = 432;
inline constexpr int SPAPointBytes = 4;

} // namespace Traces
