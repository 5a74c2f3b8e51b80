// Trace files: saving the parameter text with its checksum, loading raw and text files by extension.
#pragma once

#include <string>
#include <string_view>

namespace Traces {

struct Control;

/// Writes the trace on show as a text file. Opens the save dialog when there is no name, or when the trace
/// hasn't been saved under one yet; the name that was used is handed back. Without a point in the name the
/// mode's extension is appended. The old file stays whole until the new one is. A checksum that can't be made
/// is told to the user, and the file stays without a right one. False when cancelled or not written.
bool SaveTrace(Control& control, std::string& filename);

/// Asks for a file name with the filters of a mode. False when cancelled, with an empty name.
bool AskSaveName(Control& control, std::string_view title, std::string& filename, int mode);

/// How SaveRawTrace and SaveRawTraceB differ: the first sends spectrograms to the channel scanner's
/// decoder, and hosts' archives hold what that gives.
enum class RawTextForm { Characters, Bytes };

/// Decodes a raw trace and saves it as a text file, without showing it.
bool SaveRawTrace(Control& control, std::string_view trace, std::string& filename, RawTextForm form);

/// Loads a raw file and shows it. False for one of less than 2 bytes, and as ShowTrace.
/// @throws HostFault FileAccess when it can't be read.
bool LoadRawTrace(Control& control, const std::string& filename);

/// Loads a raw or text file by what stands behind the first point of its path; nothing happens for an
/// extension that no family has.
/// @throws HostFault FileAccess when it can't be read.
void LoadTextFile(Control& control, const std::string& path);

/// A file's content.
/// @throws HostFault FileAccess.
std::string ReadWholeFileOrFault(const std::string& path);

} // namespace Traces
