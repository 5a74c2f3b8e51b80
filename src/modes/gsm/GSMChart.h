// What a GSM trace lays into its chart: the sub view's curve in slot 0, and the menu that chooses it.
#pragma once

#include "control/ModeRow.h"

#include <array>
#include <cstdint>

namespace Traces {

struct Control;

/// Sub views, as DisplayType and GSMViewMode tell them. Any other DisplayType shows the spectrum.
namespace GSMView {
inline constexpr std::int16_t Spectrum = 0, Frame = 1, Slot = 2;
}

/// Chooses a sub view: its curve over the points that slot 0 has, the limits 10 and -90, no autoscale.
/// @throws HostFault Range when a host's curve has given the slot more points than the record holds; those
/// that it holds are filled.
void ShowGSMCurve(Control& control, std::int16_t view);

/// After a decode or load: sizes slot 0 and lays the curve of the view that the record was saved in.
void FillGSMCurve(Control& control);

/// The family's items of the chart menu.
extern const std::array<FamilyMenuItem, 3> GSMMenuItems;

} // namespace Traces
