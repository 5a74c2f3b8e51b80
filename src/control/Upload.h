// Upload frames: the three routes by which a trace goes back to an instrument, and their dispatch.
#pragma once

#include <string>
#include <string_view>

namespace Traces {

struct Control;
struct Families;

/// The frame of the record on show when the path is empty, else of the file. Empty for a mode or an
/// extension that has no upload.
/// @throws HostFault FileAccess for a file that can't be read; what the encoders throw.
std::string GetUpLoadTrace(Control& control, const std::string& path);

/// The frame of a raw file's bytes, by the mode byte in its header.
std::string EncodeRawFile(const Families& families, std::string_view file);

/// The frame of a text file, by its extension in upper case.
std::string EncodeTextFile(const Families& families, std::string_view extension, std::string_view text);

} // namespace Traces
