#include "modes/channel_scanner/CSTrace.h"

#include "control/Control.h"
#include "control/TextLoader.h"
#include "formats/FormatValue.h"
#include "formats/Numbers.h"
#include "formats/TraceMode.h"
#include "formats/UploadFrame.h"
#include "modes/channel_scanner/CSFields.h"

#include <algorithm>
#include <cmath>

namespace Traces {

namespace {

constexpr int FrameLength = 257;

/// Keeps the count within the record's room. The header counts points, and a channel is one.
void SettleChannelCount(Control& control)
{
    std::int16_t& count = control.CS.ChannelCount;
    count = std::clamp<std::int16_t>(count, 0, CSRecord::MaxChannels);
    control.Header.DataPoints = count;
}

void DecodeChannel(const RawBuffer& buffer, int offset, CSChannel& channel)
{
    if (const auto number = ReadI16(buffer, offset))
        channel.Number = *number;
    if (const auto hertz = ReadU32(buffer, offset + 2))
        channel.Frequency = static_cast<float>(*hertz / CSFrequencyScale);
    if (const auto level = ReadI16(buffer, offset + 6))
        channel.Level = static_cast<float>(*level / CSChannelLevelScale);
}

/// "Channel 1:"
std::string ChannelKey(std::size_t channel)
{
    return "Channel " + std::to_string(channel + 1) + ":";
}

void LoadChannels(CSRecord& record, const TraceText& text)
{
    const auto channels = static_cast<std::size_t>(
        std::clamp<int>(record.ChannelCount, 0, static_cast<int>(CSRecord::MaxChannels)));
    for (std::size_t i = 0; i < channels; ++i) {
        // A channel without a line of three fields keeps what it held.
        LineFields fields;
        if (!text.ParamFields(ChannelKey(i), fields) || fields.UpperIndex != 2)
            continue;
        LoadField(fields.Parts[0], &record.Channel[i].Number, Through::FieldType);
        LoadField(fields.Parts[1], &record.Channel[i].Frequency, Through::FieldType);
        LoadField(fields.Parts[2], &record.Channel[i].Level, Through::FieldType);
    }
}

} // namespace

std::span<const CSChannel> ChannelsOf(const CSRecord& record)
{
    return std::span(record.Channel)
        .first(static_cast<std::size_t>(std::clamp<int>(record.ChannelCount, 0, CSRecord::MaxChannels)));
}

void DecodeCSTrace(Control& control, const RawBuffer& buffer)
{
    CSRecord& record = control.CS;
    DecodeFields(buffer, record, CSFields);
    SettleChannelCount(control);
    for (int i = 0; i < record.ChannelCount; ++i)
        DecodeChannel(buffer, CSFirstChannel + CSChannelBytes * i,
                      record.Channel[static_cast<std::size_t>(i)]);
    // The header's lines, with the count that it now has.
    HeaderParams(control.Header, control.lstParameters);
    CSParams(control, control.lstParameters);
    control.TraceSaved = false;
}

void CSParams(const Control& control, ParameterList& lines)
{
    AddParamLines(lines, control.CS, CSFields);
    const auto channels = ChannelsOf(control.CS);
    for (std::size_t i = 0; i < channels.size(); ++i) {
        std::string& line = lines.BeginLine();
        line += ChannelKey(i);
        line += '\t';
        line += NumberText(channels[i].Number);
        for (const float value : {channels[i].Frequency, channels[i].Level}) {
            line += '\t';
            AppendNumberText(line, value);
        }
        lines.EndLine();
    }
}

void FillCSCurve(Control& control)
{
    const auto channels = ChannelsOf(control.CS);
    TraceSlot& slot = control.TraceSlots[0];
    slot.Length = static_cast<std::int16_t>(channels.size());
    slot.X.resize(channels.size());
    slot.Y.resize(channels.size());
    for (std::size_t i = 0; i < channels.size(); ++i) {
        slot.X[i] = static_cast<float>(i + 1);
        slot.Y[i] = channels[i].Level;
    }
    control.YScaleTop = 20;
    control.YScaleBottom = -100;
}

void LoadCSText(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    // The mode's name in the file leads to no code.
    control.Header.Mode = TraceMode::ChannelScanner;
    CSRecord& record = control.CS;
    const CSRecord before = record;
    LoadFields(*traceText, record, CSFields, Through::FieldType);
    // A text without a value keeps what it held, as a number does.
    if (record.SignalStandard.empty())
        record.SignalStandard = before.SignalStandard;
    if (record.LinkType.empty())
        record.LinkType = before.LinkType;
    SettleChannelCount(control);
    LoadChannels(record, *traceText);
    FillCSCurve(control);
    HeaderParams(control.Header, control.lstParameters);
    CSParams(control, control.lstParameters);
    EndTextLoad(control);
}

std::string EncodeCSRecord(const Control& control)
{
    UploadFrame frame(FrameLength);
    PutFrameHead(frame, control.Header);
    EncodeFields(frame, control.CS, CSFields, FrameShift);
    int position = CSFirstChannel - FrameShift;
    for (const CSChannel& channel : ChannelsOf(control.CS)) {
        frame.Put(position, PutI16(channel.Number));
        frame.Put(position + 2, PutU32(channel.Frequency, CSFrequencyScale, 0));
        frame.Put(position + 6, PutI16(static_cast<double>(channel.Level) * CSChannelLevelScale));
        position += CSChannelBytes;
    }
    return frame.Bytes();
}

std::string CSCoordsText(const Control& control, float x, float y)
{
    const auto channels = ChannelsOf(control.CS);
    std::string text;
    const float place = std::nearbyint(x);
    if (place >= 1 && place <= static_cast<float>(channels.size())) {
        const CSChannel& channel = channels[static_cast<std::size_t>(place) - 1];
        text =
            "Ch " + NumberText(channel.Number) + ", " + FormatValue(channel.Frequency, "#0.000 MHz") + ", ";
    }
    return text + FormatValue(y, "#0.0 dBm");
}

} // namespace Traces
