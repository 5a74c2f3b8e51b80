// The checksum line of a text trace file. The instruments' own algorithm is in a closed library; what
// stands here is the built-in replacement, which a platform can exchange.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Traces {

inline constexpr std::string_view ChecksumKey = "CHECKSUM=";
inline constexpr std::size_t ChecksumWidth = 10;

/// The first line of a file before its checksum is known.
inline constexpr std::string_view EmptyChecksumLine = "CHECKSUM=0000000000\r\n";

/// Texts that choose which result means success: 0 when saving, another when verifying.
inline constexpr std::string_view SaveChecksumKey = "Corvane#1";
inline constexpr std::string_view VerifyChecksumKey = "CORVANE#1";

/// CRC-32 (IEEE 802.3).
std::uint32_t Crc32(std::string_view bytes);

/// Place of the 10 characters behind "CHECKSUM=", npos when it is absent or fewer are left.
std::size_t FindChecksumField(std::string_view text);

/// Those 10 characters, or an empty text.
std::string ReadChecksumField(std::string_view text);

/// CRC-32 (IEEE 802.3) of the text without the 10 characters, as 10 decimal digits. The text has a field.
std::string ComputeChecksum(std::string_view text, std::size_t field);

/// Writes the checksum of a file over its field. Gives 0 for success with SaveChecksumKey, 1 for success
/// with VerifyChecksumKey; the other value for a failure.
std::int32_t RewriteChecksum(const std::string& path, std::string_view key);

} // namespace Traces
