#include "control/ChartSurface.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Traces {

Label::Label(std::string_view name, ChartSurface& parent) : Name(name), Parent(parent)
{
    parent.labels.push_back(this);
}

ChartSurface::ChartSurface(std::string_view name, ChartSurface* parent, const Traces::Screen& screenFacts)
    : Name(name), Parent(parent), screen(screenFacts)
{
    if (parent != nullptr)
        parent->children.push_back(this);
}

template <class Command>
void ChartSurface::Record(Command&& command)
{
    Layer& layer = AutoRedraw ? picture : overlay;
    if (layer.Commands.empty() || layer.LastScale != CurrentScale()) {
        layer.LastScale = CurrentScale();
        layer.Commands.emplace_back(layer.LastScale);
    }
    layer.Commands.emplace_back(std::forward<Command>(command));
    if (AutoRedraw)
        ++pictureRevision;
}

void ChartSurface::Cls()
{
    overlay.Clear();
    if (AutoRedraw) {
        picture.Clear();
        ++pictureRevision;
    }
    CurrentX = ScaleLeft;
    CurrentY = ScaleTop;
}

void ChartSurface::Erase()
{
    const bool kept = std::exchange(AutoRedraw, true);
    Cls();
    AutoRedraw = kept;
}

void ChartSurface::Line(float x1, float y1, float x2, float y2, Colour colour)
{
    Record(LineCommand{{x1, y1}, {x2, y2}, CurrentPen(colour)});
    CurrentX = x2;
    CurrentY = y2;
}

void ChartSurface::Box(float x1, float y1, float x2, float y2, Colour colour)
{
    Record(BoxCommand{{x1, y1}, {x2, y2}, CurrentPen(colour)});
    CurrentX = x2;
    CurrentY = y2;
}

void ChartSurface::FillBox(float x1, float y1, float x2, float y2, Colour colour)
{
    Record(FillCommand{{x1, y1}, {x2, y2}, colour});
    CurrentX = x2;
    CurrentY = y2;
}

void ChartSurface::Circle(float x, float y, float radius, Colour colour)
{
    Record(CircleCommand{{x, y}, radius, colour, FillTransparent ? NoColour : FillColor});
    CurrentX = x;
    CurrentY = y;
}

void ChartSurface::Image(float x1, float y1, float x2, float y2, ColourCells cells)
{
    Record(ImageCommand{{x1, y1}, {x2, y2}, std::move(cells)});
    CurrentX = x2;
    CurrentY = y2;
}

void ChartSurface::Print(std::string_view text)
{
    Record(TextCommand{{CurrentX, CurrentY}, std::string(text), Font, ForeColor});
    CurrentX += TextWidth(text);
}

void ChartSurface::Scale(float x1, float y1, float x2, float y2)
{
    ScaleLeft = x1;
    ScaleTop = y1;
    ScaleWidth = x2 - x1;
    ScaleHeight = y2 - y1;
}

void ChartSurface::ScaleReset()
{
    Scale(0, 0, static_cast<float>(DeviceWidth() * static_cast<double>(screen.TwipsPerPixelX)),
          static_cast<float>(DeviceHeight() * static_cast<double>(screen.TwipsPerPixelY)));
}

float ChartSurface::TextWidth(std::string_view text) const
{
    const double pixels =
        screen.Metrics->TextWidth(text, Font) * TwipsPerPoint / static_cast<double>(screen.TwipsPerPixelX);
    return static_cast<float>(Ratio(pixels, PixelsPerUnitX()));
}

float ChartSurface::TextHeight(std::string_view) const
{
    const double pixels =
        screen.Metrics->TextHeight(Font) * TwipsPerPoint / static_cast<double>(screen.TwipsPerPixelY);
    return static_cast<float>(Ratio(pixels, std::abs(PixelsPerUnitY())));
}

double ChartSurface::DeviceWidth() const
{
    const auto width = static_cast<double>(Width);
    return Parent == nullptr ? width : width * std::abs(Parent->PixelsPerUnitX());
}

double ChartSurface::DeviceHeight() const
{
    const auto height = static_cast<double>(Height);
    return Parent == nullptr ? height : height * std::abs(Parent->PixelsPerUnitY());
}

} // namespace Traces
