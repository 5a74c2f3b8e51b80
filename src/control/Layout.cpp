// Size logic and layout routine: where every child control stands, in the units of its parent.
#include "control/Control.h"
#include "control/Properties.h"
#include "formats/TraceMode.h"

#include <algorithm>
#include <array>

namespace Traces {

namespace {

constexpr float HolderWidth = DesignWidth;
constexpr float HolderHeight = DesignHeight;
constexpr float SpectroHolderHeight = 580;
constexpr float PaneLeft = 560;
constexpr float PaneWidth = 350;

struct Rectangle {
    float Left, Top, Width, Height;
};

struct BoxPlace {
    ChartSurface ChildControls::*Box;
    Rectangle Place;
};

struct LabelPlace {
    Label ChildControls::*Text;
    Rectangle Place;
    float FontSize = Font::UsualSize; ///< points at the control's design size
};

/// A level that is read across a room.
constexpr float LevelFontSize = 48;

/// Two levels on one panel.
constexpr float HalfLevelFontSize = 26;

/// In holder coordinates. Boxes that a view places itself aren't listed.
constexpr auto BoxPlaces = std::to_array<BoxPlace>({
    {&ChildControls::VNABox, {4, 42, 542, 380}},
    {&ChildControls::SPABox, {80, 42, 460, 380}},
    {&ChildControls::CSBox, {25, 42, 500, 290}},
    {&ChildControls::SpectroBox, {75, 42, 450, 290}},
    {&ChildControls::PowerBar, {50, 240, 220, 40}},
    {&ChildControls::ErrorsBox, {100, 42, 444, 126}},
    {&ChildControls::E1T1Box, {100, 170, 444, 190}},
    {&ChildControls::VppBar, {50, 240, 220, 40}},
    {&ChildControls::GSMBox, {80, 42, 450, 290}},
    {&ChildControls::CDMABox, {100, 42, 440, 310}},
    {&ChildControls::idenbox, {80, 42, 450, 290}},
    {&ChildControls::idenbox1, {300, 40, 220, 90}},
    {&ChildControls::idenbox2, {40, 300, 220, 90}},
    {&ChildControls::idenbox3, {300, 300, 220, 90}},
});

constexpr auto LabelPlaces = std::to_array<LabelPlace>({
    {&ChildControls::PowerLabel, {50, 100, 450, 100}, LevelFontSize},
    {&ChildControls::ZephraPowerLabel, {50, 100, 450, 100}, LevelFontSize},
    {&ChildControls::ZephraPowerLabelUnit, {50, 240, 450, 100}, LevelFontSize},
    {&ChildControls::VppLabel, {50, 100, 450, 100}, LevelFontSize},
    {&ChildControls::VFFreqLabel, {90, 150, 370, 50}, HalfLevelFontSize},
    {&ChildControls::VFPowerLabel, {90, 250, 370, 50}, HalfLevelFontSize},
});

template <class Child>
void Move(Child& child, const Rectangle& place)
{
    child.Left = place.Left;
    child.Top = place.Top;
    child.Width = place.Width;
    child.Height = place.Height;
}

/// The user size of the control: the chart, with the pane beside it or in iDEN's wide form, and the frame.
Rectangle UserSize(const Control& control)
{
    const float frame = control.BorderStyle > MyBorderStyles::pbflat ? 4 : 0;
    if (control.ShowParams)
        return {0, 0, WidthWithPane + frame, HolderHeight + frame};
    if (control.IDENWideLayout)
        return {0, 0, WideWidth + frame, WideHeight + frame};
    return {0, 0, HolderWidth + frame, HolderHeight + frame};
}

void LayOut(Control& control)
{
    const float margin = control.BorderStyle > MyBorderStyles::pbflat ? 2 : 0;
    for (ChartSurface* holder : control.Holders()) {
        const float height = holder == &control.SpectroHolder ? SpectroHolderHeight : HolderHeight;
        Move(*holder, {margin, margin, HolderWidth, height});
        holder->Scale(0, 0, HolderWidth, HolderHeight);
    }
    for (const auto& place : BoxPlaces)
        Move(control.*place.Box, place.Place);
    for (const auto& place : LabelPlaces) {
        Move(control.*place.Text, place.Place);
        (control.*place.Text).Font.Size = place.FontSize * control.ScreenFacts().FontScaleFactor;
    }
    Move(control.ParamBox, {PaneLeft + margin, margin, PaneWidth, HolderHeight});
    control.ParamBox.Scale(0, 0, PaneWidth, HolderHeight);
}

/// All that a size decides but the picture.
void Arrange(Control& control)
{
    const Rectangle size = UserSize(control);
    control.Surface.Scale(0, 0, size.Width, size.Height);
    control.ScreenFacts().FontScaleFactor =
        std::min(control.Surface.Width / size.Width, control.Surface.Height / size.Height);
    LayOut(control);
    DrawFrame(control);
}

} // namespace

bool IsLaidOutWide(const Control& control)
{
    return control.Surface.ScaleWidth >= WideWidth;
}

void SetCurrentMode(Control& control, std::int16_t mode)
{
    control.CurrentMode = mode;
    if (!control.IDENWideLayout || mode == TraceMode::IDEN)
        return;
    control.IDENWideLayout = false;
    Arrange(control);
}

void Resize(Control& control, int width, int height)
{
    control.Surface.Width = static_cast<float>(std::max(width, 1));
    control.Surface.Height = static_cast<float>(std::max(height, 1));
    Arrange(control);
    // A window system that resizes the control has no use for its trace's faults.
    TryRedrawTrace(control);
}

} // namespace Traces
