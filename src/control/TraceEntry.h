// The road of a raw trace into the control: header, length gate, decoder, curve, redraw. And what can be
// told of the trace on show.
#pragma once

#include "formats/RawBuffer.h"

#include <string>

namespace Traces {

struct Control;

/// A buffer longer than this is a spectrogram, told by its length alone.
inline constexpr std::size_t LongestPlainTrace = 30000;

/// Whether a raw trace of the header's length may be decoded: at least 100 bytes, and at most two more
/// than there are.
bool PassesLengthGate(const Control& control, const RawBuffer& buffer);

/// Decodes and shows a raw trace. False for one that the length gate refuses, with the picture left alone,
/// and for one of an unknown mode, with the chart cleared.
/// @throws HostFault Overflow for a spectrogram of more than 32767 bytes; what FillCurve throws.
bool ShowTrace(Control& control, const RawBuffer& buffer);

/// The trace as lines of key, tab, value, from the decoded state alone.
std::string TraceInfo(const Control& control);

/// Builds the parameter list anew from the header and the record of the header's mode.
void RebuildParameters(Control& control);

} // namespace Traces
