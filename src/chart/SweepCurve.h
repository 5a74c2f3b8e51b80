// The curve of a frequency sweep in slot 0: the record's values against evenly spaced frequencies.
#pragma once

#include <cstdint>
#include <span>

namespace Traces {

struct Control;

/// Sizes slot 0 to the header's point count and fills it, for a raw trace.
/// @throws HostFault Range for a count below 1 (nothing filled) or above the values (those filled),
/// DivisionByZero for a single point.
void FillSweepCurve(Control& control, float start, float stop, std::span<const float> values);

/// The same for a text file's trace: what can't be sized, computed or copied is left as it is.
void FillWhatFits(Control& control, float start, float stop, std::span<const float> values);

/// Lays a curve into a slot and redraws, for a host. False, with the slot empty, when the length is below 1
/// or an array is shorter.
bool PlotCurve(Control& control, std::int16_t length, std::span<const float> x, std::span<const float> y);

} // namespace Traces
