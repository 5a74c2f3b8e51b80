// What a CDMA trace lays into its chart: the codes in the order on show, the spectrum, the markers' texts.
// The menu and the arrow keys work through these.
#pragma once

#include "control/ModeRow.h"

#include <array>
#include <cstdint>
#include <string>

namespace Traces {

struct Control;

/// The Walsh code at a place of the chart: the place itself, or with CDMAIs128 its 6 or 7 bits reversed, by
/// the header's count of 64 or 128 points.
std::int16_t WalshDisplayIndex(const Control& control, std::int16_t position);

/// The codes' powers in slot 0, and the limits 0 and -50.
/// @throws HostFault Range for a point count below 1.
void PrepareCDMAHistogram(Control& control);

/// The spectrum in slot 0, and the same limits.
void PrepareCDMASpectrum(Control& control);

/// After a raw decode: repairs a point count of 0, takes the view from the record and lays its curve.
/// @throws HostFault as PrepareCDMAHistogram.
void FillCDMACurve(Control& control);

/// After a text load: the same without the repair; a count that makes no curve leaves the slot empty.
void TryFillCDMACurve(Control& control);

/// Takes the markers' places, states and texts from the record, and the order of the codes from the header.
void TakeCDMAMarkers(Control& control);

/// "-12.34 dB,32,SYNC", or "Off". Folds the marker's state and place back into the record, so that lines
/// written afterwards show the chart's.
std::string CDMAMarkerText(Control& control, std::size_t marker);

/// Whether markers stand in the chart on show: a spectrum has none.
bool CDMAChartHasMarkers(const Control& control);

/// The family's items of the chart menu.
extern const std::array<FamilyMenuItem, 3> CDMAMenuItems;

} // namespace Traces
