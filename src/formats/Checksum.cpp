#include "formats/Checksum.h"

#include "formats/Files.h"

#include <array>

namespace Traces {

namespace {

constexpr std::array<std::uint32_t, 256> MakeCrcTable()
{
    constexpr std::uint32_t reversedPolynomial = 0xEDB88320;
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < table.size(); ++i) {
        std::uint32_t crc = i;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) != 0 ? crc >> 1 ^ reversedPolynomial : crc >> 1;
        table[i] = crc;
    }
    return table;
}

std::uint32_t UpdateCrc(std::uint32_t crc, std::string_view bytes)
{
    static constexpr auto table = MakeCrcTable();
    for (const char byte : bytes)
        crc = crc >> 8 ^ table[(crc ^ static_cast<unsigned char>(byte)) & 0xFF];
    return crc;
}

} // namespace

std::size_t FindChecksumField(std::string_view text)
{
    const std::size_t key = text.find(ChecksumKey);
    if (key == std::string_view::npos || text.size() - key < ChecksumKey.size() + ChecksumWidth)
        return std::string_view::npos;
    return key + ChecksumKey.size();
}

std::string ReadChecksumField(std::string_view text)
{
    const std::size_t field = FindChecksumField(text);
    return field == std::string_view::npos ? std::string() : std::string(text.substr(field, ChecksumWidth));
}

std::string ComputeChecksum(std::string_view text, std::size_t field)
{
    std::uint32_t crc = 0xFFFFFFFF;
    crc = UpdateCrc(crc, text.substr(0, field));
    crc = UpdateCrc(crc, text.substr(field + ChecksumWidth));
    const std::string digits = std::to_string(crc ^ 0xFFFFFFFF);
    return std::string(ChecksumWidth - digits.size(), '0') + digits;
}

std::int32_t RewriteChecksum(const std::string& path, std::string_view key)
{
    const std::int32_t success = key == SaveChecksumKey ? 0 : 1;
    const std::int32_t failure = 1 - success;
    auto text = ReadWholeFile(path);
    if (!text)
        return failure;
    const std::size_t field = FindChecksumField(*text);
    if (field == std::string_view::npos)
        return failure;
    return OverwriteFileBytes(path, field, ComputeChecksum(*text, field)) ? success : failure;
}

} // namespace Traces
