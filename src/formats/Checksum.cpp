#include "formats/Checksum.h"

#include "formats/Files.h"

#include <array>

namespace Traces {

namespace {

using CrcTable = std::array<std::uint32_t, 256>;

/// Tables for eight bytes at a time: table k takes a byte that k more follow.
constexpr std::array<CrcTable, 8> MakeCrcTables()
{
    constexpr std::uint32_t reversedPolynomial = 0xEDB88320;
    std::array<CrcTable, 8> tables{};
    for (std::uint32_t i = 0; i < tables[0].size(); ++i) {
        std::uint32_t crc = i;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) != 0 ? crc >> 1 ^ reversedPolynomial : crc >> 1;
        tables[0][i] = crc;
    }
    for (std::size_t k = 1; k < tables.size(); ++k)
        for (std::size_t i = 0; i < tables[0].size(); ++i)
            tables[k][i] = tables[k - 1][i] >> 8 ^ tables[0][tables[k - 1][i] & 0xFF];
    return tables;
}

std::uint32_t UpdateCrc(std::uint32_t crc, std::string_view bytes)
{
    static constexpr auto tables = MakeCrcTables();
    const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    for (; bytes.size() >= tables.size(); bytes.remove_prefix(tables.size())) {
        std::uint32_t next = 0;
        for (std::size_t i = 0; i < tables.size(); ++i) {
            const std::uint32_t byte = i < 4 ? (crc >> (8 * i) & 0xFF) ^ at(i) : at(i);
            next ^= tables[tables.size() - 1 - i][byte];
        }
        crc = next;
    }
    for (std::size_t i = 0; i < bytes.size(); ++i)
        crc = crc >> 8 ^ tables[0][(crc ^ at(i)) & 0xFF];
    return crc;
}

} // namespace

std::uint32_t Crc32(std::string_view bytes)
{
    return UpdateCrc(0xFFFFFFFF, bytes) ^ 0xFFFFFFFF;
}

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
