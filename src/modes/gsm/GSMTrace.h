// The routes of a GSM trace: raw trace to record, record to parameter lines, text file to record, and the
// three upload encoders.
#pragma once

#include "control/ModeRow.h"
#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"

#include <string>
#include <string_view>

namespace Traces {

struct Control;

/// Reads the record and lists it.
void DecodeGSMTrace(Control& control, const RawBuffer& buffer);

/// Appends the record's lines, and a line a point of the three curves.
void GSMParams(const Control& control, ParameterList& lines);

/// Loads the text of a trace file; shows the checksum message and changes nothing when it doesn't verify.
/// The burst's power stays as it was: files have never been asked for the key that it is saved under.
void LoadGSMText(Control& control, std::string_view text, const std::string& path);

/// Frames of 2562 bytes. Levels go by the bias of the header's firmware, in the text route of the file's. A
/// number that no byte holds leaves its place blank.
/// @{
std::string EncodeGSMRecord(const Control& control);
std::string EncodeGSMText(std::string_view text);
/// @}

/// The same from a raw file's bytes, without the standard's name and what follows it.
std::string EncodeGSMRaw(std::string_view file);

} // namespace Traces
