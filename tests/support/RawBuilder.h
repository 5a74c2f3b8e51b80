// Raw traces made by hand for tests: numbers and texts at offsets that count from 1.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Traces::Testing {

class RawBuilder {
public:
    explicit RawBuilder(std::size_t length, char fill = 0) : bytes(length, static_cast<std::uint8_t>(fill)) {}

    RawBuilder& Number(int offset, int width, std::int64_t value)
    {
        for (int i = width - 1; i >= 0; --i, value >>= 8)
            bytes.at(static_cast<std::size_t>(offset - 1 + i)) = static_cast<std::uint8_t>(value);
        return *this;
    }

    RawBuilder& Text(int offset, std::string_view text)
    {
        for (const char c : text)
            bytes.at(static_cast<std::size_t>(offset++ - 1)) = static_cast<std::uint8_t>(c);
        return *this;
    }

    std::span<const std::uint8_t> Bytes() const { return bytes; }
    std::string AsText() const { return std::string(bytes.begin(), bytes.end()); }

private:
    std::vector<std::uint8_t> bytes;
};

/// A common header with nothing odd in it.
inline RawBuilder RawHeader(std::size_t length, int mode, int points)
{
    RawBuilder raw(length);
    raw.Number(1, 2, static_cast<std::int64_t>(length)).Number(3, 1, 7).Text(5, "TRC-100").Text(12, "3.20");
    raw.Number(16, 1, mode).Number(17, 4, 0x01020304).Text(21, "11/22/2026").Text(31, "10:20:30");
    raw.Text(39, "TOWER7").Number(55, 2, points);
    return raw;
}

/// A sweep whose fields all differ, with the points' magnitudes given as raw numbers.
inline RawBuilder RawSweep(int mode, const std::vector<std::int32_t>& magnitudes)
{
    const auto points = static_cast<int>(magnitudes.size());
    RawBuilder raw = RawHeader(324 + 8 * magnitudes.size(), mode, points);
    raw.Number(57, 4, 824'000'000).Number(61, 4, 894'500'000).Number(65, 4, 12'500);
    raw.Number(69, 4, 1'500).Number(73, 4, 30'250);
    for (int k = 0; k < 6; ++k)
        raw.Number(77 + 2 * k, 2, 101 + k).Number(171 + 2 * k, 2, 201 + k);
    raw.Number(89, 4, -14);
    for (int s = 0; s < 5; ++s) {
        const int at = 93 + 14 * s;
        raw.Number(at, 1, s + 1).Number(at + 1, 1, s + 11).Number(at + 2, 4, 1000 + s);
        raw.Number(at + 6, 2, -10 - s).Number(at + 8, 4, 2000 + s).Number(at + 12, 2, -20 - s);
    }
    raw.Number(163, 4, 5)
        .Number(167, 4, 250)
        .Number(183, 4, 66'000)
        .Number(187, 4, 12'345)
        .Number(191, 4, 350);
    for (int k = 0; k < 5; ++k)
        raw.Number(195 + k, 1, 31 + k);
    raw.Number(200, 2, 49).Number(202, 4, 40'250'170).Number(206, 4, -3'422'250).Number(210, 2, -667);
    for (int i = 0; i < points; ++i)
        raw.Number(325 + 8 * i, 4, magnitudes[static_cast<std::size_t>(i)])
            .Number(329 + 8 * i, 4, 1321 - 2500 * i);
    return raw;
}

} // namespace Traces::Testing
