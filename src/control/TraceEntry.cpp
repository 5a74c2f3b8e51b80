#include "control/TraceEntry.h"

#include "control/Control.h"
#include "formats/FormatValue.h"
#include "formats/HostFault.h"
#include "formats/TraceMode.h"

#include <limits>

namespace Traces {

namespace {

/// A spectrogram has no header: its length is all that is known of it before it is decoded.
void BeginSpectrogram(Control& control, const RawBuffer& buffer)
{
    control.Header.Mode = TraceMode::Spectrogram;
    if (buffer.UpperBound() > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
        throw HostFault(FaultKind::Overflow, "the trace is longer than 32767 bytes");
    control.Header.TraceLength = static_cast<std::int16_t>(buffer.UpperBound());
}

} // namespace

bool PassesLengthGate(const Control& control, const RawBuffer& buffer)
{
    constexpr std::int16_t shortest = 100;
    // Instruments count up to two bytes more than they send.
    constexpr std::size_t tolerance = 2;
    const std::int16_t length = control.Header.TraceLength;
    return length >= shortest && static_cast<std::size_t>(length) <= buffer.UpperBound() + tolerance;
}

bool ShowTrace(Control& control, const RawBuffer& buffer)
{
    if (buffer.UpperBound() > LongestPlainTrace)
        BeginSpectrogram(control, buffer);
    else
        DecodeHeader(buffer, control.Header, control.lstParameters);
    if (!PassesLengthGate(control, buffer))
        return false;
    SetCurrentMode(control, control.Header.Mode);
    control.AutoScaleY = false;
    Clear(control);
    const ModeRow* row = CurrentRow(control);
    if (row == nullptr || row->Decode == nullptr)
        return false;
    // A decoder may warn of a bad measurement, and whoever reads that may close the window.
    const LifeWatch life(control);
    row->Decode(control, buffer);
    if (life.Gone())
        return true;
    if (row->FillCurve != nullptr)
        row->FillCurve(control);
    RedrawTrace(control);
    return true;
}

std::string TraceInfo(const Control& control)
{
    const TraceHeader& header = control.Header;
    ParameterList lines;
    lines.AddLine("Trace Type:", ModeName(header.Mode));
    lines.AddLine("Designator:", control.TraceName);
    lines.AddLine("Model:", header.Model);
    lines.AddLine("Firmware version:", header.Version);
    lines.AddLine("Date:", header.Date);
    lines.AddLine("Time:", header.Time);
    lines.AddItem("");
    lines.AddLine("Data points:", FormatValue(std::int32_t{header.DataPoints}, "#0"));

    const ModeRow* row = control.Families.FindMode(header.Mode);
    const auto list = row == nullptr ? nullptr : row->Report != nullptr ? row->Report : row->Params;
    if (list != nullptr)
        list(control, lines);
    return lines.Text();
}

void RebuildParameters(Control& control)
{
    // A spectrogram's own lines begin with the header's.
    if (control.Header.Mode == TraceMode::Spectrogram)
        control.lstParameters.Clear();
    else
        HeaderParams(control.Header, control.lstParameters);
    // A trace of a mode without a name is saved as its header alone.
    const ModeRow* row = control.Families.FindMode(control.Header.Mode);
    if (row != nullptr && row->Params != nullptr && IsNamedMode(control.Header.Mode))
        row->Params(control, control.lstParameters);
}

} // namespace Traces
