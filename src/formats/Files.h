// Whole files in and out. A trace is small; every file is read at once and written at once.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace Traces {

/// No trace is as large. A device can give bytes without an end.
inline constexpr std::size_t LargestFile = std::size_t{64} << 20;

/// A file's content, one character a byte; nothing when it can't be read or is larger than LargestFile.
std::optional<std::string> ReadWholeFile(const std::string& path);

/// Replaces or makes a file; false when any byte of it couldn't be written.
bool WriteWholeFile(const std::string& path, std::string_view content);

/// Writes over the bytes from a place on in an existing file.
bool OverwriteFileBytes(const std::string& path, std::size_t place, std::string_view bytes);

/// Makes an empty file whose name begins with a stem and is new. Its path; nothing when it can't be made.
std::optional<std::string> MakeNewFile(const std::string& stem);

/// Replaces a file so that at any moment either the old or the new content stands under its name: writes
/// in the same folder, lets `finish` work on the written file, and renames. `finish` gets the name of the
/// file as it stands then. Links and permissions stay. What isn't a regular file (a pipe, a device) can't
/// be replaced or worked on: it gets the finished content. False, with the old file as it was, when anything
/// fails or the file is write-protected.
bool ReplaceFile(const std::string& path, std::string_view content,
                 const std::function<void(const std::string& path)>& finish);

} // namespace Traces
