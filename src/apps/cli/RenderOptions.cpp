#include "apps/cli/RenderOptions.h"

#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace Traces::Cli {

namespace {

struct FormatName {
    PictureFormat Format;
    std::string_view Name;
};

constexpr FormatName FormatNames[] = {
    {PictureFormat::Svg, "svg"},
    {PictureFormat::Png, "png"},
    {PictureFormat::Pdf, "pdf"},
};

template <class T>
std::optional<T> WholeNumber(std::string_view text)
{
    T value{};
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size())
        return std::nullopt;
    return value;
}

std::optional<float> FiniteNumber(std::string_view text)
{
    const auto value = WholeNumber<float>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

} // namespace

std::optional<PictureFormat> PictureFormatOf(std::string_view name)
{
    for (const auto& each : FormatNames)
        if (each.Name == name)
            return each.Format;
    return std::nullopt;
}

std::string_view NameOf(PictureFormat format)
{
    for (const auto& each : FormatNames)
        if (each.Format == format)
            return each.Name;
    return {};
}

std::optional<PictureSize> ParseSize(std::string_view text)
{
    constexpr int largest = 16384;
    const std::size_t cross = text.find('x');
    if (cross == std::string_view::npos)
        return std::nullopt;
    const auto width = WholeNumber<int>(text.substr(0, cross));
    const auto height = WholeNumber<int>(text.substr(cross + 1));
    const auto fits = [](const std::optional<int>& side) { return side && *side >= 1 && *side <= largest; };
    if (!fits(width) || !fits(height))
        return std::nullopt;
    return PictureSize{*width, *height};
}

std::optional<MarkerRequest> ParseMarker(std::string_view text)
{
    constexpr int markers = 6;
    const std::size_t at = text.find('@');
    if (at == std::string_view::npos)
        return std::nullopt;
    const auto marker = WholeNumber<int>(text.substr(0, at));
    const auto x = FiniteNumber(text.substr(at + 1));
    if (!marker || *marker < 1 || *marker > markers || !x)
        return std::nullopt;
    return MarkerRequest{*marker, *x};
}

std::optional<ZoomRequest> ParseZoom(std::string_view text)
{
    std::array<float, 4> ends{};
    for (std::size_t i = 0; i < ends.size(); ++i) {
        const std::size_t comma = text.find(',');
        const auto end = FiniteNumber(text.substr(0, comma));
        const bool isLast = i + 1 == ends.size();
        if (!end || isLast != (comma == std::string_view::npos))
            return std::nullopt;
        ends[i] = *end;
        if (!isLast)
            text.remove_prefix(comma + 1);
    }
    ZoomRequest zoom{ends[0], ends[1], ends[2], ends[3]};
    if (zoom.X1 > zoom.X2)
        std::swap(zoom.X1, zoom.X2);
    if (zoom.Y1 > zoom.Y2)
        std::swap(zoom.Y1, zoom.Y2);
    if (zoom.X1 == zoom.X2 || zoom.Y1 == zoom.Y2)
        return std::nullopt;
    return zoom;
}

} // namespace Traces::Cli
