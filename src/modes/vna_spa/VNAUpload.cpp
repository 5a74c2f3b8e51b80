// The upload frames of a sweep. A field stands 13 bytes below its raw offset.
#include "control/Control.h"
#include "formats/HostFault.h"
#include "formats/TraceMode.h"
#include "formats/UploadFrame.h"
#include "modes/vna_spa/SPATrace.h"
#include "modes/vna_spa/VNAFields.h"
#include "modes/vna_spa/VNATrace.h"

namespace Traces {

namespace {

constexpr int FirstPointPosition = 315;

/// The frame of the record route leaves out the bytes that the common head has more of.
constexpr int RecordFrameShortfall = 10;
constexpr int TextFrameLength = 2004;
constexpr int RawFrameLength = 4450;

/// Writes the top byte of the two coordinates alone: the rest of each stays blank, as instruments have
/// got it from this route.
void PutCoordinateTopBytes(UploadFrame& frame, const VNARecord& record)
{
    constexpr int latitude = 202 - FrameShift;
    constexpr int longitude = 206 - FrameShift;
    constexpr std::string_view blanks = "    ";
    frame.Put(latitude, blanks);
    frame.Put(latitude, PutU32FromI32(record.GpsLatitude, 1, 0).substr(0, 1));
    frame.Put(longitude, blanks);
    frame.Put(longitude, PutU32FromI32(record.GpsLongitude, 1, 0).substr(0, 1));
}

} // namespace

std::string EncodeVNARecord(const Control& control)
{
    const VNARecord& record = control.VNA;
    UploadFrame frame(control.Header.TraceLength - RecordFrameShortfall);
    PutFrameHead(frame, control.Header);
    EncodeFields(frame, record, VNAFields, FrameShift);
    PutCoordinateTopBytes(frame, record);
    for (int i = 0; i < control.Header.DataPoints; ++i) {
        const auto point = static_cast<std::size_t>(i);
        if (point >= VNARecord::MaxPoints)
            throw HostFault(FaultKind::Range, "the sweep has more points than its record holds");
        const int position = FirstPointPosition + VNAPointBytes * i;
        frame.Put(position, PutU32(record.PointValue[point], VNAMagnitudeScale, 0));
        frame.Put(position + 4, PutU32(record.PointPhase[point], VNAPhaseScale, 0));
    }
    return frame.Bytes();
}

std::string EncodeVNAText(std::string_view file)
{
    // The mode byte of this route is a constant, another than the sweep's own mode.
    constexpr std::uint8_t modeByte = 48;
    const TraceText text(file);
    UploadFrame frame(TextFrameLength);
    PutFrameHeadFromText(frame, modeByte, text);
    frame.Put(4, std::string(4, '\0'));
    EncodeFieldTexts(frame, text, VNAFields, FrameShift);
    // Under keys that only instruments' own files hold. A file of this program sends the offset for each
    // point.
    PutNumberedPoints(frame, text);
    return frame.Bytes();
}

std::string EncodeVNARaw(std::string_view file)
{
    UploadFrame frame(RawFrameLength);
    const int points = PutFrameHeadFromRaw(frame, file);
    CopyFileBytes(file, frame, 57, 44, 171);
    CopyFileBytes(file, frame, VNAFirstPoint, FirstPointPosition, points * VNAPointBytes);
    return frame.Bytes();
}

} // namespace Traces
