// What the charts and pages of the code domain families have in common: scale, bars, level lines, the page of
// a measurement that is none.
#pragma once

#include "chart/ChartWindow.h"
#include "control/ChartSurface.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace Traces {

struct Control;

/// The pages of the two families, as their view modes and the records' display types tell them. Below
/// OverTheAir all show codes.
namespace CodeView {
inline constexpr std::int16_t Codes = 0, OverTheAir = 3, Spectrum = 4;
}

/// The bit of a marker in a record's second status byte: marker 1 is bit 7, marker 6 bit 2.
constexpr unsigned MarkerBit(std::size_t marker)
{
    return 1U << (7 - marker);
}

/// Sets or clears the bits of a mask.
constexpr void SetBits(std::uint8_t& byte, unsigned mask, bool on)
{
    byte = static_cast<std::uint8_t>(on ? byte | mask : byte & ~mask);
}

/// The limits of all curves: 0 and -50.
void SetCodeLimits(Control& control);

/// Scales a chart to a window, a hundredth wider at both sides, and stores the window as the zoom's. False,
/// with nothing changed, for one without a span.
bool ScaleCodeChart(Control& control, ChartSurface& box, const ChartWindow& window);

/// Half of what each point of slot 0 has of the chart's width.
float HalfBarWidth(const Control& control, const ChartSurface& box);

/// A bar from the window's foot to the point, in the colour of a channel's type, and black above it.
void DrawCodeBar(ChartSurface& box, Point top, float half, const ChartWindow& window, std::uint8_t type);

/// Ten dotted divisions of the levels.
void DrawLevelLines(const Control& control, ChartSurface& box, const ChartWindow& window);

/// The heavy rule above the readouts of markers, which take the place of the results.
void DrawReadoutRule(ChartSurface& holder);

/// The two statuses of a bad measurement, alone in the chart.
void DrawBadMeasurement(ChartSurface& box, const std::string& signal, const std::string& measurement);

/// A text centred in a chart whose system is 100 by 100.
void DrawCentredInChart(ChartSurface& box, const std::string& text, int y, int size);

} // namespace Traces
