#include "output/Describe.h"

#include "control/Control.h"
#include "formats/Numbers.h"
#include "formats/TraceMode.h"

#include <algorithm>
#include <span>

namespace Traces {

namespace {

std::string CurveText(const TraceSlot& slot)
{
    const std::size_t points = UsedPoints(slot);
    if (points == 0)
        return ", no points";
    const auto [first, last] = std::ranges::minmax(std::span(slot.X).first(points));
    return ", " + std::to_string(points) + (points == 1 ? " point" : " points") + " from " +
           NumberText(first) + " to " + NumberText(last);
}

/// What stands in large letters on a holder: a reading that is no curve.
std::string ReadingText(const ChartSurface& holder)
{
    std::string text;
    for (const Label* label : holder.Labels())
        if (label->Visible && !label->Caption.empty())
            text += ", " + label->Caption;
    return text;
}

/// Two modes have no name in files.
std::string SpokenName(std::uint8_t mode)
{
    switch (mode) {
    case TraceMode::VNAUnnamed: return "Sweep";
    case TraceMode::SpectrogramSweep: return "Sweep of a spectrogram";
    default: return ModeName(mode);
    }
}

std::string MarkersText(const MarkerSet& markers, const TraceSlot& slot)
{
    std::string text;
    for (std::size_t k = 0; k < MarkerCount; ++k) {
        if (!markers.MarkerOn[k])
            continue;
        text += ", marker " + std::to_string(k + 1);
        const auto index = static_cast<std::size_t>(std::max<std::int16_t>(markers.MarkerIndex[k], 0));
        if (index < UsedPoints(slot))
            text += " at " + NumberText(slot.X[index]) + " reads " + NumberText(slot.Y[index]);
    }
    return text.empty() ? ", no markers" : text;
}

} // namespace

std::string DescribePlot(const Control& control)
{
    const ModeRow* row = CurrentRow(control);
    if (row == nullptr)
        return "No trace.";
    std::string text = SpokenName(row->Mode);
    if (!control.TraceName.empty())
        text += " \"" + control.TraceName + '"';
    const std::string reading = row->Holder != nullptr ? ReadingText(control.*row->Holder) : std::string();
    text += reading.empty() ? CurveText(control.TraceSlots[0]) : reading;
    if (row->Markers != nullptr)
        text += MarkersText(control.*row->Markers, control.TraceSlots[0]);
    return text + ".";
}

} // namespace Traces
