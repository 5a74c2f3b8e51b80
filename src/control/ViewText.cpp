#include "control/ViewText.h"

#include <cmath>

namespace Traces {

namespace {

/// Points for a size that a view asks for: it follows the screen's density and the control's scale.
float ScaledFontSize(const Screen& screen, float size)
{
    constexpr float TwipsPerPixelAt96Dpi = 15;
    return screen.TwipsPerPixelX / TwipsPerPixelAt96Dpi * size * screen.FontScaleFactor;
}

} // namespace

std::string TitleOfPath(std::string_view traceName)
{
    if (traceName.starts_with("C:\\"))
        traceName.remove_prefix(traceName.rfind('\\') + 1);
    return std::string(traceName);
}

int WholeUnits(double value)
{
    constexpr double limit = 1E9;
    return std::abs(value) < limit ? static_cast<int>(std::nearbyint(value)) : 0;
}

void DrawTextAt(ChartSurface& surface, std::string_view text, int x, int y, int size, bool boxed,
                Colour foreColour, Colour fillColour)
{
    const auto left = static_cast<float>(x);
    const auto top = static_cast<float>(y);
    if (fillColour > NoColour) {
        const int width = WholeUnits(surface.TextWidth(text));
        const int height = WholeUnits(surface.TextHeight(text));
        surface.FillBox(left, top, static_cast<float>(x + width), static_cast<float>(y + height), fillColour);
    }
    if (foreColour != NoColour)
        surface.ForeColor = foreColour;
    surface.CurrentX = left;
    surface.CurrentY = top;
    surface.Font.Size = ScaledFontSize(surface.Screen(), static_cast<float>(size));
    surface.Print(text);
    if (boxed) {
        const int blank = WholeUnits(surface.TextWidth(" "));
        const int width = WholeUnits(surface.TextWidth(" " + std::string(text) + " "));
        const int height = WholeUnits(surface.TextHeight(text));
        surface.Box(static_cast<float>(x - blank), top, static_cast<float>(x + width),
                    static_cast<float>(y + height), Black);
    }
}

void SetBoxFont(ChartSurface& surface, float size, bool underline)
{
    surface.Font.Size = ScaledFontSize(surface.Screen(), size);
    surface.Font.Underline = underline;
}

void DrawLed(ChartSurface& label, ChartSurface& box, int& x, int& y, bool on)
{
    constexpr double radiusOfWidth = 0.6;
    const int width = WholeUnits(label.TextWidth("H"));
    if (x == -1)
        x = WholeUnits(label.CurrentX + static_cast<float>(width));
    if (y == -1)
        y = WholeUnits(label.CurrentY + label.TextHeight("H") / 2);
    const auto radius = static_cast<float>(std::floor(width * radiusOfWidth));
    box.FillTransparent = false;
    box.FillColor = on ? RGB(0, 255, 0) : RGB(255, 0, 0);
    box.Circle(static_cast<float>(x), static_cast<float>(y), radius, box.FillColor);
    box.FillTransparent = true;
    box.Circle(static_cast<float>(x), static_cast<float>(y), radius, Black);
}

} // namespace Traces
