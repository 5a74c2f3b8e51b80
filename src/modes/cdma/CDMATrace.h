// The routes of a CDMA trace: raw trace to record, record to parameter lines, text file to record, and the
// three upload encoders. What goes by the firmware goes by LibraryValues' TraceVersionValue.
#pragma once

#include "control/ModeRow.h"
#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"

#include <string>
#include <string_view>

namespace Traces {

struct Control;

/// @name Raw traces
/// Read the record, take over the markers, warn of a bad measurement and list the record.
/// @{
void DecodeCDMATrace(Control& control, const RawBuffer& buffer); ///< below firmware 3.20
void DecodeCDMATrace_v320_above(Control& control, const RawBuffer& buffer);
void DecodeCDMATraceByVersion(Control& control, const RawBuffer& buffer); ///< the one for its header
/// @}

/// Append the record's lines, a line a code and a line a point of the spectrum.
/// @{
void CDMAParams(const Control& control, ParameterList& lines);
void CDMAParams_v320_above(const Control& control, ParameterList& lines);
void CDMAParamsByVersion(const Control& control, ParameterList& lines);
/// With the display in words.
void CDMAReport(const Control& control, ParameterList& lines);
/// @}

/// Load the text of a trace file; show the checksum message and change nothing when it doesn't verify. The
/// first hands a file of firmware 3.20 or above on to the second.
/// @{
void LoadCDMAText(Control& control, std::string_view text, const std::string& path);
void LoadCDMAText_v320_above(Control& control, std::string_view text, const std::string& path);
/// @}

/// Tells the user when the measurement on show isn't one. The control may be gone afterwards.
void CDMAStatusMessage(Control& control);

/// Whether the record's statuses are those of a measurement that can be shown. An empty status is good.
bool IsGoodCDMAMeasurement(const Control& control);

GpsFix CDMAPosition(const Control& control);

/// Moves the paths' delays on by 30 microseconds, in the record: what a frame from firmware 3.20 on carries
/// instead of the delays. A second upload of the same record therefore sends 30 more, and instruments' own
/// software does the same.
void AdvanceCDMATau(Control& control);

/// Frames of 1826 bytes, in the layout of the firmware that was decoded or loaded last.
/// @throws HostFault Overflow for a byte out of 0 to 255.
/// @{
std::string EncodeCDMARecord(const Control& control);
std::string EncodeCDMAText(std::string_view text);
/// @}

/// The same from a raw file's bytes, by the older layout: later fields are cut off.
std::string EncodeCDMARaw(std::string_view file);

} // namespace Traces
