// The routes of a channel scan: raw trace to record, record to parameter lines and curve, text file to
// record, and the upload frame of the record on show.
#pragma once

#include "control/ModeRow.h"
#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"
#include "modes/channel_scanner/CSRecord.h"

#include <span>
#include <string>
#include <string_view>

namespace Traces {

struct Control;

/// Reads the record from a raw trace and lists it. The header's point count becomes the channel count.
void DecodeCSTrace(Control& control, const RawBuffer& buffer);

/// Appends the record's lines and one line a channel to a parameter list.
void CSParams(const Control& control, ParameterList& lines);

/// Curve slot 0 from the record, place of the channel (from 1) against its level, and the chart's limits. A
/// scan without channels makes an empty curve.
void FillCSCurve(Control& control);

/// Loads the text of a trace file; shows the checksum message and changes nothing when it doesn't verify.
void LoadCSText(Control& control, std::string_view text, const std::string& path);

/// Frame of 257 bytes from the record on show.
std::string EncodeCSRecord(const Control& control);

/// The channels that count.
std::span<const CSChannel> ChannelsOf(const CSRecord& record);

/// What the mouse is on, for the coordinate label: channel number, its frequency, the level under the mouse.
std::string CSCoordsText(const Control& control, float x, float y);

} // namespace Traces
