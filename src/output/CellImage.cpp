#include "output/CellImage.h"

#include "formats/Checksum.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace Traces {

namespace {

/// The cells of one direction that show, from the lower device place to the higher.
struct ShownRun {
    std::vector<std::size_t> Cells;
    double From = 0, To = 0;
};

ShownRun RunWithin(double low, double high, double from, double to, int count)
{
    constexpr double largestCell = 64;
    constexpr double widestDevice = 16384;
    const double cell = (to - from) / count;
    low = std::max(low, std::min(from, to));
    high = std::min(high, std::max(from, to));
    if (!std::isfinite(cell) || cell == 0 || !(low < high))
        return {};
    const auto indexAt = [&](double place) {
        return std::clamp(static_cast<int>(std::floor((place - from) / cell)), 0, count - 1);
    };
    ShownRun run;
    if (std::abs(cell) > largestCell && high - low < widestDevice) {
        run.From = std::floor(low);
        run.To = std::ceil(high);
        for (double pixel = run.From; pixel < run.To; ++pixel)
            run.Cells.push_back(static_cast<std::size_t>(indexAt(pixel + 0.5)));
        return run;
    }
    const int first = indexAt(low);
    const int last = indexAt(high);
    const int step = cell > 0 ? 1 : -1;
    for (int index = first; index != last + step; index += step)
        run.Cells.push_back(static_cast<std::size_t>(index));
    run.From = from + cell * (cell > 0 ? first : first + 1);
    run.To = from + cell * (cell > 0 ? last + 1 : last);
    return run;
}

void AppendU32(std::string& out, std::uint32_t value)
{
    for (const int shift : {24, 16, 8, 0})
        out += static_cast<char>(value >> shift & 0xFF);
}

void AppendChunk(std::string& file, std::string_view type, std::string_view content)
{
    AppendU32(file, static_cast<std::uint32_t>(content.size()));
    const std::size_t start = file.size();
    file += type;
    file += content;
    AppendU32(file, Crc32(std::string_view(file).substr(start)));
}

std::uint32_t Adler32(std::string_view bytes)
{
    constexpr std::uint32_t modulus = 65521;
    std::uint32_t low = 1;
    std::uint32_t high = 0;
    for (const char byte : bytes) {
        low = (low + static_cast<unsigned char>(byte)) % modulus;
        high = (high + low) % modulus;
    }
    return high << 16 | low;
}

/// A zlib stream of stored blocks.
std::string Stored(std::string_view bytes)
{
    constexpr std::size_t longestBlock = 65535;
    std::string stream = "\x78\x01";
    std::string_view rest = bytes;
    do {
        const std::string_view block = rest.substr(0, longestBlock);
        rest.remove_prefix(block.size());
        stream += rest.empty() ? '\1' : '\0';
        for (const std::size_t length : {block.size(), ~block.size()}) {
            stream += static_cast<char>(length & 0xFF);
            stream += static_cast<char>(length >> 8 & 0xFF);
        }
        stream += block;
    } while (!rest.empty());
    AppendU32(stream, Adler32(bytes));
    return stream;
}

} // namespace

ShownCells CellsWithin(const DeviceRect& visible, const ColourCells& cells, DevicePoint from, DevicePoint to)
{
    if (!cells.IsWhole())
        return {};
    const ShownRun across = RunWithin(visible.Left, visible.Right, from.X, to.X, cells.Columns);
    const ShownRun down = RunWithin(visible.Top, visible.Bottom, from.Y, to.Y, cells.Rows);
    ShownCells shown;
    if (across.Cells.empty() || down.Cells.empty())
        return shown;
    shown.Place = {across.From, down.From, across.To, down.To};
    shown.Cells.Columns = static_cast<int>(across.Cells.size());
    shown.Cells.Rows = static_cast<int>(down.Cells.size());
    shown.Cells.Palette = cells.Palette;
    shown.Cells.Places.reserve(across.Cells.size() * down.Cells.size());
    for (const std::size_t row : down.Cells) {
        const std::uint8_t* places = &cells.Places[row * static_cast<std::size_t>(cells.Columns)];
        for (const std::size_t column : across.Cells)
            shown.Cells.Places.push_back(places[column]);
    }
    return shown;
}

std::string PalettePng(const ColourCells& cells)
{
    if (!cells.IsWhole())
        return {};
    const auto columns = static_cast<std::size_t>(cells.Columns);
    std::string head;
    AppendU32(head, static_cast<std::uint32_t>(cells.Columns));
    AppendU32(head, static_cast<std::uint32_t>(cells.Rows));
    head +=
        std::string_view("\x08\x03\x00\x00\x00", 5); // 8 bits, palette, deflate, no filter, not interlaced
    std::string palette;
    for (const Colour colour : cells.Palette)
        for (const int shift : {0, 8, 16})
            palette += static_cast<char>(colour >> shift & 0xFF);
    std::string rows;
    rows.reserve((columns + 1) * static_cast<std::size_t>(cells.Rows));
    const auto lastColour = static_cast<std::uint8_t>(cells.Palette.size() - 1);
    for (std::size_t i = 0; i < cells.Places.size(); ++i) {
        if (i % columns == 0)
            rows += '\0';
        rows += static_cast<char>(std::min(cells.Places[i], lastColour));
    }
    std::string file = "\x89PNG\r\n\x1A\n";
    AppendChunk(file, "IHDR", head);
    AppendChunk(file, "PLTE", palette);
    AppendChunk(file, "IDAT", Stored(rows));
    AppendChunk(file, "IEND", {});
    return file;
}

std::string Base64(std::string_view bytes)
{
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (; !bytes.empty(); bytes.remove_prefix(std::min<std::size_t>(bytes.size(), 3))) {
        std::uint32_t group = 0;
        for (std::size_t i = 0; i < 3; ++i)
            group = group << 8 | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U);
        for (std::size_t i = 0; i < 4; ++i)
            text += i <= bytes.size() ? digits[group >> (18 - 6 * i) & 0x3F] : '=';
    }
    return text;
}

} // namespace Traces
