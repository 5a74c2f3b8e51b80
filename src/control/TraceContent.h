// Traces from anywhere: what the bytes of a file hold, whatever the file is called, and why they can't be
// shown. For programs that open files for a user and tell him what is wrong before anything changes.
#pragma once

#include "control/ModeRow.h"

#include <string>
#include <string_view>

namespace Traces {

struct Control;

enum class TraceForm { Raw, Text };

/// A trace's text file has a checksum in its first line, or is mostly lines of key, tab, value.
TraceForm FormOf(std::string_view content);

/// Why a raw trace can't be shown or sent, in words that follow a file's name; empty when it can.
std::string RawProblem(const Families& families, std::string_view content);

/// How a text file is loaded, by its "Mode:" line. Null, with `problem` told, when no family reads it.
const FileKind* TextFileKind(const Families& families, std::string_view text, std::string& problem);

/// Why a raw or text trace can't be shown, a checksum that isn't that of its text among it; empty when it
/// can.
std::string ContentProblem(const Families& families, std::string_view content);

/// Shows a trace without a problem and lists its parameters, header and record. A raw one takes the title.
/// @throws HostFault where the numbers of a raw trace make its curve impossible; the record stands then.
void ShowContent(Control& control, std::string_view content, std::string_view title);

} // namespace Traces
