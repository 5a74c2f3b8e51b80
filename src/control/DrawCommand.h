// What a surface records and a back end replays: small plain commands in the user coordinates that held
// when they were made. A Scale command opens each list and stands wherever the coordinate system changes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Traces {

/// 32-bit colour with red in the low byte. -1, all ones, means none or "as it is" where a call says so.
using Colour = std::int32_t;

inline constexpr Colour NoColour = -1;
inline constexpr Colour Black = 0;
inline constexpr Colour White = 0xFFFFFF;

constexpr Colour RGB(int red, int green, int blue)
{
    return red | green << 8 | blue << 16;
}

inline constexpr Colour Red = RGB(255, 0, 0), Blue = RGB(0, 0, 255), Yellow = RGB(255, 255, 0);
inline constexpr Colour Grey = RGB(128, 128, 128);       ///< behind the charts
inline constexpr Colour PaleYellow = RGB(255, 255, 200); ///< behind results and values

struct Point {
    float X, Y;
    bool operator==(const Point&) const = default;
};

/// A system of user coordinates: the point (Left, Top) is the surface's top left. Height may be negative.
struct UserScale {
    static constexpr std::string_view Name = "Scale";
    float Left = 0, Top = 0, Width = 1, Height = 1;
    bool operator==(const UserScale&) const = default;
};

enum class LineStyle : std::uint8_t { Solid, Dashed, Dotted };

struct Pen {
    Colour Ink = Black;
    LineStyle Style = LineStyle::Solid;
    std::uint8_t Width = 1; ///< pixels
    bool operator==(const Pen&) const = default;
};

struct Font {
    static constexpr float UsualSize = 8.25F;

    std::string Name = "MS Sans Serif";
    float Size = UsualSize; ///< points
    bool Bold = false;
    bool Underline = false;
    bool operator==(const Font&) const = default;
};

struct LineCommand {
    static constexpr std::string_view Name = "Line";
    Point From, To;
    Traces::Pen Pen;
    bool operator==(const LineCommand&) const = default;
};

/// The outline of a box, both corners included.
struct BoxCommand {
    static constexpr std::string_view Name = "Box";
    Point From, To;
    Traces::Pen Pen;
    bool operator==(const BoxCommand&) const = default;
};

struct FillCommand {
    static constexpr std::string_view Name = "Fill";
    Point From, To;
    Colour Ink;
    bool operator==(const FillCommand&) const = default;
};

/// A circle whose radius is measured in horizontal units.
struct CircleCommand {
    static constexpr std::string_view Name = "Circle";
    Point Centre;
    float Radius;
    Colour Ink;
    Colour Fill; ///< NoColour when transparent
    bool operator==(const CircleCommand&) const = default;
};

/// A text with its top left at a point.
struct TextCommand {
    static constexpr std::string_view Name = "Text";
    Point At;
    std::string Text; ///< Windows-1252
    Traces::Font Font;
    Colour Ink;
    bool operator==(const TextCommand&) const = default;
};

/// A grid of coloured cells, row after row, each cell a place in the palette.
struct ColourCells {
    int Columns = 0, Rows = 0;
    std::vector<std::uint8_t> Places; ///< one beyond the palette takes its last colour
    std::vector<Colour> Palette;      ///< 256 colours at most

    /// Every row has all its cells, and there is a colour for them.
    bool IsWhole() const
    {
        return Columns > 0 && Rows > 0 && !Palette.empty() && Palette.size() <= 256 &&
               Places.size() == static_cast<std::size_t>(Columns) * static_cast<std::size_t>(Rows);
    }
    bool operator==(const ColourCells&) const = default;
};

/// A grid laid over a rectangle: its first row begins at From, its last one ends at To.
struct ImageCommand {
    static constexpr std::string_view Name = "Image";
    Point From, To;
    ColourCells Cells;
    bool operator==(const ImageCommand&) const = default;
};

using DrawCommand =
    std::variant<UserScale, LineCommand, BoxCommand, FillCommand, CircleCommand, TextCommand, ImageCommand>;

using DisplayList = std::vector<DrawCommand>;

} // namespace Traces
