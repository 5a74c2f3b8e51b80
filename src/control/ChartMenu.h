// The two popup menus: which items they show for the trace on show, and what each item does.
#pragma once

#include "control/Menu.h"

namespace Traces {

struct Control;
struct MarkerSet;

/// The chart menu as it stands now. With a marker set and for modes that have the Markers item, its check
/// marks are the set's; without one the markers part is hidden.
Menu ChartMenu(const Control& control, const MarkerSet* markers);

/// The short menu of the power modes.
Menu PowerMenu();

/// Opens the chart menu and carries out what is chosen. Without a set for the summary pane.
void ShowChartMenu(Control& control, const MarkerSet* markers);
void ShowPowerMenu(Control& control);

/// Carries out an item. `checked` is its check mark as it was shown. False for an unknown name.
/// @throws HostFault as the members that the items call.
bool RunMenuItem(Control& control, const MenuChoice& choice, bool checked);

} // namespace Traces
