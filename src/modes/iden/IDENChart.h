// The four views of an iDEN analysis: what each lays into a chart, and the menu that chooses one.
#pragma once

#include "chart/ChartWindow.h"
#include "control/ModeRow.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace Traces {

struct Control;
struct IDENRecord;
struct TraceSlot;

/// The views, as IDENViewMode and the record's ViewMode tell them. Any other ViewMode shows the spectrum.
namespace IDENView {
inline constexpr std::int16_t Spectrum = 0, ACPR = 1, PowerTime = 2, Demod = 3;
inline constexpr std::int16_t All[] = {Spectrum, ACPR, PowerTime, Demod};
} // namespace IDENView

/// "iDEN-Spectrum View"
std::string_view IDENViewName(std::int16_t view);

/// A view's curve: X is the point's number from 0; the constellation has I as X and Q as Y.
TraceSlot IDENCurve(const IDENRecord& record, std::int16_t view);

/// Of a view's chart: ten divisions down from the reference level, flat when that is no number; for the
/// constellation the square around its points.
ChartWindow IDENWindow(const IDENRecord& record, std::int16_t view);

/// After a decode or load: slot 0 and the limits of the view that the record was saved in.
void FillIDENCurve(Control& control);

/// The family's items of the chart menu: the views, and all of them side by side.
extern const std::array<FamilyMenuItem, 5> IDENMenuItems;

} // namespace Traces
