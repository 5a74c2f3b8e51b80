// The drawing contract of every picture box. A surface records what a view draws into two display lists:
// the persistent picture (AutoRedraw True) and the transient overlay on top of it (AutoRedraw False). It
// paints nothing: a back end replays the lists.
#pragma once

#include "control/DrawCommand.h"
#include "control/Screen.h"

#include <string>
#include <string_view>
#include <vector>

namespace Traces {

/// A quotient of extents, 0 where there is none: a surface may have no pixels yet, or no span.
constexpr double Ratio(double extent, double unit)
{
    return unit != 0 ? extent / unit : 0;
}

class ChartSurface;

/// A caption on a rectangle of its parent's user coordinates.
struct Label {
    Label(std::string_view name, ChartSurface& parent);
    Label(const Label&) = delete;
    Label& operator=(const Label&) = delete;

    const std::string Name;
    const ChartSurface& Parent;
    bool Visible = false;
    float Left = 0, Top = 0, Width = 0, Height = 0;
    std::string Caption;
    Colour BackColor = Black;
    Colour ForeColor = White;
    bool Centred = false; ///< in the middle of its rectangle, smaller where it is too wide for it
    Traces::Font Font;
};

/// Values of MousePointer that occur.
namespace MousePointers {
inline constexpr int Default = 0, Arrow = 1, Cross = 2, SizeWE = 9;
}

class ChartSurface {
public:
    /// A surface on a parent, which it registers with; without one it is the root, whose Width and Height
    /// are device pixels. The screen facts outlive the surface.
    ChartSurface(std::string_view name, ChartSurface* parent, const Traces::Screen& screen);
    ChartSurface(const ChartSurface&) = delete;
    ChartSurface& operator=(const ChartSurface&) = delete;

    const std::string Name;
    const ChartSurface* const Parent;

    bool AutoRedraw = false;
    bool Visible = true;
    float Left = 0, Top = 0, Width = 0, Height = 0; ///< in the parent's user coordinates
    float ScaleLeft = 0, ScaleTop = 0, ScaleWidth = 1, ScaleHeight = 1;
    float CurrentX = 0, CurrentY = 0;
    Colour ForeColor = Black;
    Colour BackColor = White;
    LineStyle DrawStyle = LineStyle::Solid;
    std::uint8_t DrawWidth = 1;  ///< pixels
    bool FillTransparent = true; ///< FillStyle 1; false is FillStyle 0, solid
    Colour FillColor = Black;
    Traces::Font Font;
    int MousePointer = MousePointers::Default;

    /// Erases the overlay, and the picture too when AutoRedraw is True; the pen goes to the top left.
    void Cls();

    /// Erases the overlay alone, whatever AutoRedraw says.
    void EraseOverlay() { overlay.Clear(); }

    /// Erases both layers whatever AutoRedraw says, as for a trace that is gone.
    void Erase();

    /// All in user coordinates, end points included, with DrawStyle and DrawWidth.
    void Line(float x1, float y1, float x2, float y2, Colour colour);
    void Box(float x1, float y1, float x2, float y2, Colour colour);
    void FillBox(float x1, float y1, float x2, float y2, Colour colour);
    void Circle(float x, float y, float radius, Colour colour);

    /// Lays a whole grid of cells over a rectangle, edge to edge: its first row begins at (x1, y1).
    void Image(float x1, float y1, float x2, float y2, ColourCells cells);

    /// Draws a text with its top left at the pen, which moves to the text's end.
    void Print(std::string_view text);

    /// Sets the user system by its corners. Neither span may be 0.
    void Scale(float x1, float y1, float x2, float y2);

    /// Back to device coordinates: twips, origin at the top left.
    void ScaleReset();

    /// Size of a text in the current font, in user units.
    float TextWidth(std::string_view text) const;
    float TextHeight(std::string_view text) const;

    /// The picture is to be shown now.
    void Refresh() { ++pictureRevision; }

    /// Device size in pixels, which follows from the parents' systems.
    double DeviceWidth() const;
    double DeviceHeight() const;
    double PixelsPerUnitX() const { return Ratio(DeviceWidth(), static_cast<double>(ScaleWidth)); }
    double PixelsPerUnitY() const { return Ratio(DeviceHeight(), static_cast<double>(ScaleHeight)); }

    /// Shown, with all that it lies in.
    bool IsShown() const { return Visible && (Parent == nullptr || Parent->IsShown()); }

    const Traces::Screen& Screen() const { return screen; }

    const DisplayList& Picture() const { return picture.Commands; }
    const DisplayList& Overlay() const { return overlay.Commands; }

    /// Changes whenever the picture does: a back end that keeps a painted picture compares it.
    unsigned PictureRevision() const { return pictureRevision; }

    const std::vector<ChartSurface*>& Children() const { return children; }
    const std::vector<const Label*>& Labels() const { return labels; }

private:
    friend struct Label;

    struct Layer {
        DisplayList Commands;
        UserScale LastScale;
        void Clear() { Commands.clear(); }
    };

    UserScale CurrentScale() const { return {ScaleLeft, ScaleTop, ScaleWidth, ScaleHeight}; }
    Traces::Pen CurrentPen(Colour colour) const { return {colour, DrawStyle, DrawWidth}; }

    template <class Command>
    void Record(Command&& command);

    const Traces::Screen& screen;
    Layer picture, overlay;
    unsigned pictureRevision = 0;
    std::vector<ChartSurface*> children;
    std::vector<const Label*> labels;
};

} // namespace Traces
