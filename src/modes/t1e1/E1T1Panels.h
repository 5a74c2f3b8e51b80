// The two readings of a line test that stand on a panel, and what they share with the histogram.
#pragma once

#include <string>
#include <string_view>

namespace Traces {

struct Control;

/// A label in size `size` and a lamp behind it: red for a state that is "Out-of-Sync", green for any other.
void DrawStatus(Control& control, std::string_view label, int x, int y, int size, const std::string& state);

/// The level of a line between its peaks: caption, bar and scale, in volts or decibels.
void DrawVppView(Control& control);

/// Frequency and power of the tone on a voice channel.
void DrawVFView(Control& control);

} // namespace Traces
