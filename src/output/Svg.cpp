#include "output/Svg.h"

#include "control/Control.h"
#include "output/CellImage.h"
#include "output/Replay.h"
#include "output/ScreenText.h"

#include <array>
#include <charconv>
#include <string_view>

namespace Traces {

namespace {

/// Ascent of the sans-serif in font sizes: texts are placed by their top, SVG places them by the base line.
constexpr double BaseLine = 0.905;

void AppendNumber(std::string& out, double value)
{
    // Two decimals are finer than any screen shows. A place beyond all sense is cut to what fits.
    constexpr double limit = 1E9;
    const double shown = value > -limit && value < limit ? value : (value < 0 ? -limit : limit);
    std::array<char, 32> digits; // NOLINT(cppcoreguidelines-pro-type-member-init): to_chars fills it
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), shown, std::chars_format::fixed, 2);
    std::string_view text(digits.data(), static_cast<std::size_t>(end.ptr - digits.data()));
    while (text.back() == '0')
        text.remove_suffix(1);
    if (text.back() == '.')
        text.remove_suffix(1);
    out += text == "-0" ? std::string_view("0") : text;
}

std::string ColourText(Colour colour)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "#";
    for (const int shift : {4, 0, 12, 8, 20, 16})
        text += digits[static_cast<std::size_t>(colour >> shift & 0xF)];
    return text;
}

std::string Escaped(std::string_view text)
{
    std::string out;
    for (const char c : text) {
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += "&quot;"; break;
        default: out += c;
        }
    }
    return out;
}

class SvgCanvas final : public Canvas {
public:
    explicit SvgCanvas(const TextMetrics& textMetrics) : metrics(textMetrics) {}

    std::string Body;

    void PushClip(const DeviceRect& rect) override
    {
        const std::string id = std::to_string(++clips);
        Body += "<clipPath id=\"c" + id + "\"><rect";
        AppendRect(rect);
        Body += "/></clipPath><g clip-path=\"url(#c" + id + ")\">\n";
    }

    void PopClip() override { Body += "</g>\n"; }

    void Fill(const DeviceRect& rect, Colour colour) override
    {
        Body += "<rect";
        AppendRect(rect);
        Body += " fill=\"" + ColourText(colour) + "\"/>\n";
    }

    void Outline(const DeviceRect& rect, const Pen& pen) override
    {
        Body += "<rect";
        AppendRect(rect);
        AppendPen(pen, true);
        Body += "/>\n";
    }

    void Polyline(std::span<const DevicePoint> points, const Pen& pen, bool crisp) override
    {
        Body += "<polyline points=\"";
        for (const DevicePoint& point : points) {
            AppendNumber(Body, point.X);
            Body += ',';
            AppendNumber(Body, point.Y);
            Body += ' ';
        }
        Body.back() = '"';
        AppendPen(pen, crisp);
        Body += "/>\n";
    }

    void Circle(DevicePoint centre, double radius, Colour ink, Colour fill) override
    {
        Body += "<circle";
        AppendAttribute("cx", centre.X);
        AppendAttribute("cy", centre.Y);
        AppendAttribute("r", radius);
        Body += " stroke=\"" + ColourText(ink) + "\" fill=\"" +
                (fill == NoColour ? "none" : ColourText(fill)) + "\"/>\n";
    }

    void Image(const DeviceRect& rect, const ColourCells& cells) override
    {
        Body += "<image";
        AppendRect(rect);
        Body += " preserveAspectRatio=\"none\" image-rendering=\"pixelated\""
                " xmlns:xlink=\"http://www.w3.org/1999/xlink\" xlink:href=\"data:image/png;base64," +
                Base64(PalettePng(cells)) + "\"/>\n";
    }

    void Text(DevicePoint topLeft, std::string_view text, const Font& font, double pixels,
              Colour ink) override
    {
        if (text.empty())
            return;
        Body += "<text";
        AppendAttribute("x", topLeft.X);
        AppendAttribute("y", topLeft.Y + BaseLine * pixels);
        AppendAttribute("font-size", pixels);
        AppendAttribute("textLength",
                        metrics.TextWidth(text, font) / static_cast<double>(font.Size) * pixels);
        Body += " lengthAdjust=\"spacingAndGlyphs\"";
        if (font.Bold)
            Body += " font-weight=\"bold\"";
        if (font.Underline)
            Body += " text-decoration=\"underline\"";
        Body += " fill=\"" + ColourText(ink) + "\">" + Escaped(ScreenText(text, font.Name)) + "</text>\n";
    }

private:
    void AppendAttribute(std::string_view name, double value)
    {
        Body += ' ';
        Body += name;
        Body += "=\"";
        AppendNumber(Body, value);
        Body += '"';
    }

    void AppendRect(const DeviceRect& rect)
    {
        AppendAttribute("x", rect.Left);
        AppendAttribute("y", rect.Top);
        AppendAttribute("width", rect.Right - rect.Left);
        AppendAttribute("height", rect.Bottom - rect.Top);
    }

    void AppendPen(const Pen& pen, bool crisp)
    {
        Body += " fill=\"none\" stroke=\"" + ColourText(pen.Ink) + "\"";
        if (pen.Width != 1)
            AppendAttribute("stroke-width", pen.Width);
        if (pen.Style == LineStyle::Dashed)
            Body += " stroke-dasharray=\"6,4\"";
        if (pen.Style == LineStyle::Dotted)
            Body += " stroke-dasharray=\"1,2\"";
        if (crisp)
            Body += " shape-rendering=\"crispEdges\"";
    }

    const TextMetrics& metrics;
    int clips = 0;
};

} // namespace

std::string SvgPicture(const Control& control)
{
    SvgCanvas canvas(*control.Surface.Screen().Metrics);
    ReplayControl(control, canvas);
    std::string width;
    std::string height;
    AppendNumber(width, control.Surface.DeviceWidth());
    AppendNumber(height, control.Surface.DeviceHeight());
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "\" height=\"" + height +
           "\" viewBox=\"0 0 " + width + " " + height + "\" font-family=\"'" + std::string(ScreenFontFamily) +
           "', Arial, Helvetica, sans-serif\" xml:space=\"preserve\">\n" + canvas.Body + "</svg>\n";
}

} // namespace Traces
