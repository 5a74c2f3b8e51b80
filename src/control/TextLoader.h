// The frame that all text loaders share: verify the checksum, read the header, and at the end redraw. What
// stands between is the family's.
#pragma once

#include "formats/TraceText.h"

#include <optional>
#include <string>
#include <string_view>

namespace Traces {

struct Control;
class Platform;

/// A new temporary file's path; empty when there is none to be had.
std::string MakeTempName(Platform& platform);

/// Whether the checksum in a trace file's text is that of the text. Shows a message when it isn't. The
/// checksum library works on files, so a copy is written to a temporary one, or to `path` when none can be
/// made.
bool VerifyTraceChecksum(Platform& platform, std::string_view text, const std::string& path);

/// The header, the title and the beginning of the parameter list, from a text that has been verified.
void TakeTextHead(Control& control, const TraceText& text);

/// Verifies, reads the header and begins the parameter list. Nothing, and no change, when the checksum
/// fails. The result refers to the text.
std::optional<TraceText> BeginTextLoad(Control& control, std::string_view text, const std::string& path);

/// Makes the loaded trace the one on show.
void EndTextLoad(Control& control);

} // namespace Traces
