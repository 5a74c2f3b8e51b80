// The pictures of a line test: the histogram of its slices, a peak-to-peak level, a voice frequency channel.
#pragma once

namespace Traces {

struct Control;

/// Draws E1T1Holder: the title, then what the record's display type asks for. Anything but "Vpp" and
/// "VF Testor" is the histogram.
/// @throws HostFault Overflow for a curve point that isn't finite.
void DrawE1T1Trace(Control& control);

} // namespace Traces
