// The routes of an EV-DO trace: raw trace to record, record to parameter lines, text file to record, and the
// three upload encoders. What goes by the firmware goes by LibraryValues' TraceVersionValue.
#pragma once

#include "control/ModeRow.h"
#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Traces {

struct Control;

/// @name Raw traces
/// Read the record, take over the markers and list the record. Unlike CDMA's they don't warn.
/// @{
void DecodeEvDOTrace(Control& control, const RawBuffer& buffer); ///< below firmware 3.20
void DecodeEvDOTrace_v320_above(Control& control, const RawBuffer& buffer);
void DecodeEvDOTraceByVersion(Control& control, const RawBuffer& buffer); ///< the one for its header
/// @}

/// Append the record's lines, its codes and its curves.
/// @{
void EvDOParams(const Control& control, ParameterList& lines);
void EvDOParams_v320_above(const Control& control, ParameterList& lines);
void EvDOParamsByVersion(const Control& control, ParameterList& lines);
/// @}

/// Load the text of a trace file; show the checksum message and change nothing when it doesn't verify, and
/// warn of a bad measurement. The first hands a file of firmware 3.20 or above on to the second.
/// @{
void LoadEvDOText(Control& control, std::string_view text, const std::string& path);
void LoadEvDOText_v320_above(Control& control, std::string_view text, const std::string& path);
/// @}

/// The bits of the data markers, "0000 0010" for 2, and back.
/// @{
std::string DataMarkersText(std::uint8_t value);
std::uint8_t DataMarkersValue(std::string_view text);
/// @}

/// Whether the record's statuses are those of a measurement that can be shown.
bool IsGoodEvDOMeasurement(const Control& control);

/// Frames of 3139 bytes, always in the older layout; the bias is that of the firmware that was decoded or
/// loaded last.
/// @throws HostFault Overflow for a byte out of 0 to 255.
/// @{
std::string EncodeEvDORecord(const Control& control);
std::string EncodeEvDOText(std::string_view text);
/// @}

/// The same from a raw file's bytes.
std::string EncodeEvDORaw(std::string_view file);

} // namespace Traces
