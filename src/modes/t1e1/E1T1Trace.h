// The routes of a T1 or E1 line test: raw trace to record, record to parameter lines and curve, text file to
// record, and the three upload encoders.
#pragma once

#include "control/ModeRow.h"
#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"

#include <string>
#include <string_view>

namespace Traces {

struct Control;

/// Reads the record from a raw trace and lists it.
void DecodeE1T1(Control& control, const RawBuffer& buffer);

/// Appends the record's lines and one line a slice to a parameter list.
void E1T1Params(const Control& control, ParameterList& lines);

/// Curve slot 0: the hundred slices' bit errors over their numbers from 1.
void FillE1T1Curve(Control& control);

/// Loads the text of a trace file; shows the checksum message and changes nothing when it doesn't verify.
/// Words that the record keeps as codes, and decimals of levels, are lost on this way.
void LoadE1T1Text(Control& control, std::string_view text, const std::string& path);

/// Upload frames from the record on show, from a trace file's text, and from a raw file's bytes.
std::string EncodeE1T1Record(const Control& control);
std::string EncodeE1T1Text(std::string_view file);
std::string EncodeE1T1Raw(std::string_view file);

} // namespace Traces
