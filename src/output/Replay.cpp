#include "output/Replay.h"

#include "control/Control.h"
#include "output/CellImage.h"

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <vector>

namespace Traces {

namespace {

/// A surface's place on the device.
struct Place {
    double Left, Top, Width, Height;
};

/// Replays one layer of one surface.
class LayerReplay {
public:
    LayerReplay(Canvas& target, const Place& surfacePlace, double pixelsPerPoint)
        : canvas(target), place(surfacePlace), pointSize(pixelsPerPoint)
    {
    }

    void Run(const DisplayList& commands)
    {
        for (const DrawCommand& command : commands)
            std::visit(*this, command);
        FlushLines();
    }

    void operator()(const UserScale& command)
    {
        FlushLines();
        scale = command;
        stretchX = Ratio(place.Width, static_cast<double>(command.Width));
        stretchY = Ratio(place.Height, static_cast<double>(command.Height));
    }

    void operator()(const LineCommand& command)
    {
        // A chain of lines in one pen is one polyline.
        if (chain.empty() || !(chainPen == command.Pen) || !(chainEnd == command.From)) {
            FlushLines();
            chainPen = command.Pen;
            chain.push_back(Map(command.From));
        }
        chain.push_back(Map(command.To));
        chainEnd = command.To;
    }

    void operator()(const BoxCommand& command)
    {
        FlushLines();
        const DeviceRect rect = Between(command.From, command.To);
        canvas.Outline({SnapX(rect.Left), SnapY(rect.Top), SnapX(rect.Right), SnapY(rect.Bottom)},
                       command.Pen);
    }

    void operator()(const FillCommand& command)
    {
        FlushLines();
        // Both corners are part of the box.
        const DeviceRect rect = Between(command.From, command.To);
        canvas.Fill({std::floor(rect.Left), std::floor(rect.Top), std::floor(rect.Right) + 1,
                     std::floor(rect.Bottom) + 1},
                    command.Ink);
    }

    void operator()(const CircleCommand& command)
    {
        FlushLines();
        canvas.Circle(Map(command.Centre), static_cast<double>(command.Radius) * std::abs(stretchX),
                      command.Ink, command.Fill);
    }

    void operator()(const ImageCommand& command)
    {
        FlushLines();
        const DeviceRect visible = {place.Left, place.Top, place.Left + place.Width,
                                    place.Top + place.Height};
        const ShownCells shown = CellsWithin(visible, command.Cells, Map(command.From), Map(command.To));
        if (shown.Cells.IsWhole())
            canvas.Image(shown.Place, shown.Cells);
    }

    void operator()(const TextCommand& command)
    {
        FlushLines();
        const auto size = static_cast<double>(command.Font.Size) * pointSize;
        canvas.Text(Map(command.At), command.Text, command.Font, size, command.Ink);
    }

private:
    DevicePoint Map(Point point) const
    {
        return {place.Left + static_cast<double>(point.X - scale.Left) * stretchX,
                place.Top + static_cast<double>(point.Y - scale.Top) * stretchY};
    }

    DeviceRect Between(Point a, Point b) const
    {
        const DevicePoint from = Map(a);
        const DevicePoint to = Map(b);
        return {std::min(from.X, to.X), std::min(from.Y, to.Y), std::max(from.X, to.X),
                std::max(from.Y, to.Y)};
    }

    /// The centre of the pixel that a coordinate falls into. The far edge belongs to the last pixel, so that
    /// a line along it isn't lost.
    static double Snap(double value, double edge)
    {
        constexpr double tolerance = 0.01;
        return std::floor(std::abs(value - edge) < tolerance ? edge - 1 : value) + 0.5;
    }
    double SnapX(double x) const { return Snap(x, place.Left + place.Width); }
    double SnapY(double y) const { return Snap(y, place.Top + place.Height); }

    void FlushLines()
    {
        if (chain.empty())
            return;
        const auto isLevel = [this](double DevicePoint::*coordinate) {
            return std::ranges::all_of(chain, [&](const DevicePoint& point) {
                return point.*coordinate == chain.front().*coordinate;
            });
        };
        // A flat curve is one, too: between two rows of pixels it would blur, and along the chart's edge half
        // of it would be cut off.
        const bool alongAxis = isLevel(&DevicePoint::X) || isLevel(&DevicePoint::Y);
        if (alongAxis) {
            for (DevicePoint& point : chain)
                point = {SnapX(point.X), SnapY(point.Y)};
        }
        canvas.Polyline(chain, chainPen, alongAxis);
        chain.clear();
    }

    Canvas& canvas;
    const Place place;
    const double pointSize;
    UserScale scale;
    double stretchX = 1, stretchY = 1;
    std::vector<DevicePoint> chain;
    Pen chainPen;
    Point chainEnd{};
};

class ControlReplay {
public:
    ControlReplay(Canvas& target, double twipsPerPixel, double pixelRatio)
        : canvas(target), pointSize(TwipsPerPoint / twipsPerPixel * pixelRatio)
    {
    }

    void Draw(const ChartSurface& surface, const Place& place)
    {
        if (!surface.Visible)
            return;
        const DeviceRect rect = {place.Left, place.Top, place.Left + place.Width, place.Top + place.Height};
        canvas.PushClip(rect);
        if (canvas.BeginPicture(surface, rect)) {
            canvas.Fill(rect, surface.BackColor);
            LayerReplay(canvas, place, pointSize).Run(surface.Picture());
            canvas.EndPicture();
        }
        LayerReplay(canvas, place, pointSize).Run(surface.Overlay());
        for (const ChartSurface* child : surface.Children())
            Draw(*child, PlaceOf(*child, surface, place));
        for (const Label* label : surface.Labels())
            if (label->Visible)
                DrawLabel(*label, PlaceOf(*label, surface, place));
        canvas.PopClip();
    }

private:
    template <class Child>
    static Place PlaceOf(const Child& child, const ChartSurface& parent, const Place& place)
    {
        const double unitX = Ratio(place.Width, static_cast<double>(parent.ScaleWidth));
        const double unitY = Ratio(place.Height, static_cast<double>(parent.ScaleHeight));
        return {place.Left + static_cast<double>(child.Left - parent.ScaleLeft) * unitX,
                place.Top + static_cast<double>(child.Top - parent.ScaleTop) * unitY,
                static_cast<double>(child.Width) * std::abs(unitX),
                static_cast<double>(child.Height) * std::abs(unitY)};
    }

    void DrawLabel(const Label& label, const Place& place)
    {
        const DeviceRect rect = {place.Left, place.Top, place.Left + place.Width, place.Top + place.Height};
        canvas.PushClip(rect);
        canvas.Fill(rect, label.BackColor);
        const CaptionPlace caption =
            label.Centred ? CentredCaption(label, place) : CaptionPlace{{place.Left, place.Top}, label.Font};
        canvas.Text(caption.TopLeft, label.Caption, caption.Font,
                    static_cast<double>(caption.Font.Size) * pointSize, label.ForeColor);
        canvas.PopClip();
    }

    struct CaptionPlace {
        DevicePoint TopLeft;
        Traces::Font Font;
    };

    CaptionPlace CentredCaption(const Label& label, const Place& place) const
    {
        const TextMetrics& metrics = *label.Parent.Screen().Metrics;
        Font font = label.Font;
        const double tooWide = Ratio(metrics.TextWidth(label.Caption, font) * pointSize, place.Width);
        if (tooWide > 1)
            font.Size = static_cast<float>(static_cast<double>(font.Size) / tooWide);
        const double width = metrics.TextWidth(label.Caption, font) * pointSize;
        const double height = metrics.TextHeight(font) * pointSize;
        return {{place.Left + (place.Width - width) / 2, place.Top + (place.Height - height) / 2}, font};
    }

    Canvas& canvas;
    const double pointSize;
};

} // namespace

void ReplayControl(const Control& control, Canvas& canvas, double pixelRatio)
{
    const ChartSurface& root = control.Surface;
    ControlReplay(canvas, static_cast<double>(root.Screen().TwipsPerPixelX), pixelRatio)
        .Draw(root, {0, 0, root.DeviceWidth() * pixelRatio, root.DeviceHeight() * pixelRatio});
}

} // namespace Traces
