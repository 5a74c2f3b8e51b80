// What all curve views do in the same way: open and close the drawing of a holder and its box, scale the
// box to the data window, draw curves, graticule and marker lines. Frame texts belong to the views.
#pragma once

#include "chart/ChartWindow.h"
#include "control/ChartSurface.h"
#include "control/MarkerSet.h"

namespace Traces {

struct Control;
struct TraceSlot;

/// Begins a view: both surfaces draw into their empty pictures.
void BeginView(ChartSurface& holder, ChartSurface& box);

/// Ends it: what is drawn from here on goes to the overlays.
void EndView(ChartSurface& holder, ChartSurface& box);

/// Gives the box the window as its user system, Y upwards.
void ScaleBox(ChartSurface& box, const ChartWindow& window);

/// @throws HostFault Overflow for a point that isn't finite.
void CheckCurvePoint(const TraceSlot& slot, std::size_t point);

/// The slots from `first` to 5, each in its colour. What lies outside of the box falls off the surface.
/// @throws HostFault Overflow at a point that isn't finite.
void DrawCurves(const Control& control, ChartSurface& box, std::size_t first = 0);

/// The points of a curve, or of every slot that has more than one, joined in yellow.
/// @throws HostFault Overflow at a point that isn't finite.
void DrawYellowCurve(const TraceSlot& curve, ChartSurface& box);
void DrawYellowCurves(const Control& control, ChartSurface& box);

/// Ten dotted divisions each way, whatever the range.
void DrawGraticule(const Control& control, ChartSurface& box, const ChartWindow& window);

/// The lines of the markers that are on; clamps every marker to the points of slot 0, for good.
void DrawMarkerLines(Control& control, ChartSurface& box, MarkerSet& markers);

/// Window, scale, curves, graticule, markers. False when the window has no span: then nothing of it is
/// drawn, and the view ends at once with both surfaces still open.
bool DrawChart(Control& control, ChartSurface& box, MarkerSet& markers);

} // namespace Traces
