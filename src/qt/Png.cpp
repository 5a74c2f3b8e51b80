#include "qt/Png.h"

#include <algorithm>
#include <array>
#include <new>
#include <numeric>
#include <png.h>
#include <span>

namespace Traces {

namespace {

constexpr std::size_t PaletteSize = 256;

constexpr int CompressionLevel = 1;

constexpr std::uint32_t Channels = 0xFFFFFF; // the byte above them is undefined in RGB32

const std::uint32_t* RowOf(const QImage& image, int y)
{
    // Scan lines of 32-bit formats are aligned for their pixels.
    return static_cast<const std::uint32_t*>(static_cast<const void*>(image.constScanLine(y)));
}

/// The distinct colours of a picture in the order of their first pixels. An open hash table of fixed size:
/// with so few colours in so many places a look-up is one comparison, and nearly all are spared because a
/// pixel mostly has its left neighbour's colour.
class ColourCount {
public:
    static constexpr std::size_t Most = 1024;
    static constexpr std::size_t Full = Most; ///< Find's answer when there is no room for another colour

    struct Entry {
        std::uint32_t Colour;
        std::uint32_t Pixels;
    };
    std::vector<Entry> Entries;

    std::size_t Find(std::uint32_t colour)
    {
        constexpr std::uint32_t spread = 2654435761U; // Knuth's multiplicative hashing
        std::size_t slot = colour * spread >> (32U - SlotBits);
        while (slots[slot] != 0) {
            if (Entries[slots[slot] - 1U].Colour == colour)
                return slots[slot] - 1U;
            slot = (slot + 1) % slots.size();
        }
        if (Entries.size() == Most)
            return Full;
        Entries.push_back({colour, 0});
        slots[slot] = static_cast<std::uint16_t>(Entries.size());
        return Entries.size() - 1;
    }

private:
    static constexpr unsigned SlotBits = 12;
    std::array<std::uint16_t, 1U << SlotBits> slots{}; ///< an entry's number plus 1; 0 is free
};

/// The cell that a colour lies in when each channel is cut into pieces of `size` values. Colours of one cell
/// differ by less than `size` in each channel.
std::uint32_t CellOf(std::uint32_t colour, std::uint32_t size)
{
    std::uint32_t cell = 0;
    for (const unsigned shift : {0U, 8U, 16U})
        cell |= (colour >> shift & 0xFF) / size << shift;
    return cell;
}

/// Places in the palette by number of colour. With too many colours, those of a cell take the commonest one
/// of it, in the smallest cells that do. Empty when that would show.
std::vector<std::uint8_t> PalettePlaces(const std::vector<ColourCount::Entry>& entries,
                                        std::vector<std::uint32_t>& palette)
{
    std::vector<std::size_t> order(entries.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, [&](auto a, auto b) { return entries[a].Pixels > entries[b].Pixels; });

    std::vector<std::uint8_t> places(entries.size());
    for (std::uint32_t size = 1; size <= PaletteTolerance + 1; ++size) {
        ColourCount cells;
        palette.clear();
        for (const std::size_t number : order) {
            const std::size_t place = cells.Find(CellOf(entries[number].Colour, size));
            if (place == PaletteSize)
                break;
            if (place == palette.size())
                palette.push_back(entries[number].Colour);
            places[number] = static_cast<std::uint8_t>(place);
        }
        if (cells.Entries.size() <= PaletteSize)
            return places;
    }
    return {};
}

/// What the file holds, in a form that needs no destructor: libpng leaves by a long jump when it fails.
struct PngContent {
    const std::uint8_t* Rows;
    std::size_t RowBytes;
    std::uint32_t Width, Height;
    const png_color* Palette; ///< null for a true colour image
    int PaletteLength;
};

/// Everything that may jump: neither this function nor what it calls has an object to destroy by then.
bool Write(png_structp png, png_infop info, const PngContent& content)
{
    if (setjmp(png_jmpbuf(png)) != 0)
        return false;
    constexpr int channelBits = 8;
    png_set_IHDR(png, info, content.Width, content.Height, channelBits,
                 content.Palette != nullptr ? PNG_COLOR_TYPE_PALETTE : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_BASE, PNG_FILTER_TYPE_BASE);
    if (content.Palette != nullptr)
        png_set_PLTE(png, info, content.Palette, content.PaletteLength);
    // Filters pay off in photographs. Here they cost time and make files larger.
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_compression_level(png, CompressionLevel);
    png_write_info(png, info);
    for (std::size_t row = 0; row < content.Height; ++row)
        png_write_row(png, content.Rows + row * content.RowBytes);
    png_write_end(png, info);
    return true;
}

void Append(png_structp png, png_bytep bytes, std::size_t count)
{
    bool fits = true;
    try {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes as characters
        static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<const char*>(bytes), count);
    } catch (const std::bad_alloc&) {
        fits = false;
    }
    // C code can't be left by an exception, and a handler not by a jump.
    if (!fits)
        png_error(png, "out of memory");
}

[[noreturn]] void Fail(png_structp png, png_const_charp /*message*/)
{
    png_longjmp(png, 1);
}

void Ignore(png_structp /*png*/, png_const_charp /*message*/) {}

class PngStructs {
public:
    PngStructs() : Png(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, Fail, Ignore))
    {
        if (Png != nullptr)
            Info = png_create_info_struct(Png);
    }
    ~PngStructs() { png_destroy_write_struct(&Png, &Info); }
    PngStructs(const PngStructs&) = delete;
    PngStructs& operator=(const PngStructs&) = delete;

    png_structp Png;
    png_infop Info = nullptr;
};

std::string FileOf(const PngContent& content)
{
    std::string file;
    PngStructs structs;
    if (structs.Info == nullptr)
        return {};
    png_set_write_fn(structs.Png, &file, Append, nullptr);
    if (!Write(structs.Png, structs.Info, content))
        file.clear();
    return file;
}

std::uint8_t Channel(std::uint32_t colour, unsigned shift)
{
    return static_cast<std::uint8_t>(colour >> shift & 0xFF);
}

} // namespace

std::optional<PaletteImage> ReduceToPalette(const QImage& image)
{
    ColourCount count;
    const auto width = static_cast<std::size_t>(image.width());
    std::vector<std::uint16_t> numbers(width * static_cast<std::size_t>(image.height()));
    auto out = numbers.begin();
    std::uint32_t last = 0;
    std::size_t number = ColourCount::Full;
    for (int y = 0; y < image.height(); ++y) {
        for (const std::uint32_t pixel : std::span(RowOf(image, y), width)) {
            const std::uint32_t colour = pixel & Channels;
            if (colour != last || number == ColourCount::Full) {
                number = count.Find(colour);
                if (number == ColourCount::Full)
                    return std::nullopt;
                last = colour;
            }
            ++count.Entries[number].Pixels;
            *out++ = static_cast<std::uint16_t>(number);
        }
    }

    PaletteImage reduced;
    const std::vector<std::uint8_t> places = PalettePlaces(count.Entries, reduced.Colours);
    if (places.empty())
        return std::nullopt;
    reduced.Pixels.resize(numbers.size());
    std::ranges::transform(numbers, reduced.Pixels.begin(), [&](std::uint16_t n) { return places[n]; });
    return reduced;
}

std::string PngBytes(const QImage& image)
{
    if (image.isNull())
        return {};
    PngContent content{};
    content.Width = static_cast<std::uint32_t>(image.width());
    content.Height = static_cast<std::uint32_t>(image.height());
    if (const auto reduced = ReduceToPalette(image)) {
        std::vector<png_color> palette;
        for (const std::uint32_t colour : reduced->Colours)
            palette.push_back({Channel(colour, 16), Channel(colour, 8), Channel(colour, 0)});
        content.Rows = reduced->Pixels.data();
        content.RowBytes = content.Width;
        content.Palette = palette.data();
        content.PaletteLength = static_cast<int>(palette.size());
        return FileOf(content);
    }
    const QImage channels = image.convertToFormat(QImage::Format_RGB888);
    content.Rows = channels.constBits();
    content.RowBytes = static_cast<std::size_t>(channels.bytesPerLine());
    return channels.isNull() ? std::string() : FileOf(content);
}

} // namespace Traces
