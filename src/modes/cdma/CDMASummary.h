// The summary pane of a CDMA trace: the pilots of the scan, the multipath, and the results as a list.
#pragma once

namespace Traces {

struct Control;

/// Writes ParamBox. Below firmware 3.20 the scan has seven pilots, from 3.20 nine, the first six with the
/// delay of their path; what wasn't measured over the air reads "N/A". A bar, that of the multipath as well,
/// ends at the right edge of its cell for what is as strong as the strongest pilot and has no length at
/// -40 dB. "Ec/lo" is that of the first pilot, and the occupied bandwidth needs the RF option.
void DrawCDMASummary(Control& control);

} // namespace Traces
