// What an EV-DO trace lays into its charts, and which of its pages is on show. The menu and the arrow keys
// work through these.
#pragma once

#include "control/ModeRow.h"

#include <array>
#include <string>
#include <string_view>

namespace Traces {

struct Control;

/// The code domain: "MAC" for the codes of the MAC, "DATA" for those of the data, in any case; any other word
/// leaves the choice. Lays the MAC codes' powers into slot 0, 128 for that many points, else 64.
void SelectEvDOCDP(Control& control, std::string_view word);

/// The spectrum: "ACTIVE" for the active slot, "IDLE" for the idle one; any other word leaves the choice.
void SelectEvDORF(Control& control, std::string_view word);

/// The view that the record was stored with, and its curve.
void FillEvDOCurve(Control& control);

/// Takes the markers' places, states, boxes and texts from the record.
void TakeEvDOMarkers(Control& control);

/// Whether a marker has its place in a box: those of MAC codes in the first, those of data codes in the
/// second, which shows Q, each on its own page; none where the page has none.
bool EvDOMarkerStandsIn(const Control& control, const ChartSurface& box, std::size_t marker);

/// Of a MAC code "-12.34 dB,32,PAGE", of a data code "-3.21 dB,-3.40 dB,7" for I, Q and the code; "Off".
/// Folds the marker's state and place back into the record.
std::string EvDOMarkerText(Control& control, std::size_t marker);

/// The family's items of the chart menu.
extern const std::array<FamilyMenuItem, 5> EvDOMenuItems;

} // namespace Traces
