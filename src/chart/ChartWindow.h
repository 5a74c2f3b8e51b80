// What is on the axes of a curve chart: the data window and the routines that choose it.
#pragma once

namespace Traces {

struct Control;
struct TraceSlot;

/// In chart units. Xmax may equal Xmin, and Ymax Ymin: then there is no chart to draw.
struct ChartWindow {
    float Xmin = 0, Xmax = 0, Ymin = 0, Ymax = 0;
};

/// How much wider a chart's user system is than its window, so that the last point isn't on the border.
inline constexpr double ChartSliver = 1.005;

/// The extremes of a curve. False when it is empty or flat in X or in Y; the extremes are set all the same.
bool TraceExtent(const TraceSlot& slot, ChartWindow& window);

/// Rounds a range outwards to whole steps of its decade when `round` is set; in any case gives the step
/// of its labels. A range without a span becomes -1 to 1, step 2.
void NiceRange(float& ymin, float& ymax, float& step, bool round);

/// Widens a zoom rectangle that is narrower than 0.1 chart units, or lower than a hundredth of the manual
/// limits `top` and `bottom`.
void PadZoomRange(ChartWindow& zoom, float top, float bottom);

/// The window without a zoom: the data's extent in X with the manual limits, or the data's own in Y.
/// @throws HostFault Overflow when the curve isn't finite.
ChartWindow UnzoomedWindow(const Control& control);

/// The window of the current trace: the zoom rectangle, or that without a zoom.
/// @throws HostFault Overflow when the curve isn't finite.
ChartWindow ChooseWindow(const Control& control);

} // namespace Traces
