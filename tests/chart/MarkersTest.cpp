#include "chart/Markers.h"

#include "chart/ChartMouse.h"
#include "control/ChartMenu.h"
#include "control/Input.h"
#include "formats/HostFault.h"
#include "support/RawBuilder.h"
#include "support/ShownTrace.h"

namespace Traces {
namespace {

using Testing::RawSweep;

struct Listener : PlotEvents {
    std::vector<std::pair<int, bool>> Changes;
    std::function<void()> Handler;
    void MarkerChanged(std::int16_t index, bool value) override
    {
        Changes.emplace_back(index, value);
        if (Handler)
            Handler();
    }
};

class Markers : public Testing::ShownTrace {
protected:
    Markers()
    {
        plot.Listen(&listener);
        plot.ShowTrace(RawSweep(0, {1000, 3162, 500, 800, 900}).Bytes());
    }

    Listener listener;
    ChartSurface& box = state.VNABox;
    MarkerSet& set = state.VNAMarkers;
    float x(std::size_t point) const { return state.TraceSlots[0].X[point]; }

    void Drag(float from, float to, int button = MouseButton::Left)
    {
        MouseDown(state, box, button, 0, from, -10);
        MouseMove(state, box, button, 0, to, -12);
        MouseUp(state, box, button, 0, to, -12);
    }
};

TEST_F(Markers, SwitchingOneTellsTheHostOnceBeforeTheRedraw)
{
    plot.DisplayMarkerValues(false);
    std::size_t linesAtEvent = 0;
    const std::size_t before = box.Picture().size();
    listener.Handler = [&] { linesAtEvent = box.Picture().size(); };
    plot.MarkerOn(2);
    EXPECT_EQ(listener.Changes, (std::vector<std::pair<int, bool>>{{2, true}}));
    EXPECT_EQ(linesAtEvent, before);
    EXPECT_EQ(box.Picture().size(), before + 1);
    EXPECT_TRUE(plot.DisplayMarkerValues());
    EXPECT_TRUE(plot.MarkerState(2));
    plot.ClearMarkers();
    EXPECT_FALSE(plot.DisplayMarkerValues());
    EXPECT_FALSE(plot.MarkerState(2));
    EXPECT_EQ(listener.Changes.size(), 1U) << "clearing fires nothing";
}

TEST_F(Markers, OddIndexesFaultOrDoNothing)
{
    EXPECT_THROW(plot.MarkerOn(6), HostFault);
    EXPECT_THROW(plot.MarkerOff(8), HostFault);
    for (const std::int16_t index : {std::int16_t{-1}, std::int16_t{10}, std::int16_t{32767}}) {
        plot.MarkerOn(index);
        EXPECT_FALSE(plot.MarkerState(index)) << index;
    }
    plot.MarkerOn(9);
    EXPECT_FALSE(plot.DisplayMarkerValues()) << "toggled";
    EXPECT_TRUE(listener.Changes.empty());
    state.CurrentMode = 148;
    plot.MarkerOn(3);
    EXPECT_FALSE(plot.MarkerState(3)) << "a mode without markers";
}

TEST_F(Markers, AHandlerMayCallBackIntoTheControl)
{
    listener.Handler = [&] {
        listener.Handler = nullptr;
        plot.MarkerOn(4);
        plot.ClearMarkers();
    };
    plot.MarkerOn(1);
    EXPECT_FALSE(plot.MarkerState(1));
    EXPECT_EQ(listener.Changes.size(), 2U);
}

TEST_F(Markers, AHandlerMayDestroyTheControlOrThrow)
{
    auto dying = std::make_unique<Plot>(platform);
    dying->Listen(&listener);
    dying->ShowTrace(RawSweep(0, {1000, 3162, 500}).Bytes());
    listener.Handler = [&] { dying.reset(); };
    platform.Choices = {{"menuMarkers", 2}};
    ShowChartMenu(dying->Instance(), &dying->Instance().VNAMarkers);
    EXPECT_EQ(dying, nullptr);

    listener.Handler = [] { throw std::runtime_error("of the host"); };
    EXPECT_THROW(plot.MarkerOn(1), std::runtime_error);
    listener.Handler = nullptr;
    plot.RedrawTrace();
    EXPECT_TRUE(plot.MarkerState(1));
}

TEST_F(Markers, ADragMovesTheOverlayAloneAndDropsOnTheNextPoint)
{
    plot.MarkerOn(0);
    const unsigned revision = box.PictureRevision();
    MouseDown(state, box, MouseButton::Left, 0, x(0), -10);
    EXPECT_EQ(set.DraggedMarker, 0);
    for (int i = 0; i < 50; ++i)
        MouseMove(state, box, MouseButton::Left, 0, x(1) + static_cast<float>(i) / 10, -12);
    EXPECT_EQ(box.PictureRevision(), revision) << "the persistent picture is left alone";
    EXPECT_EQ(box.Overlay().size(), 2U) << "a scale and the line";
    EXPECT_EQ(state.VNAHolder.Overlay().size(), 8U) << "the block of readouts, once";
    MouseUp(state, box, MouseButton::Left, 0, x(1), -12);
    EXPECT_EQ(set.MarkerIndex[0], 2) << "on a point exactly it goes to the next, by its last move";
    EXPECT_EQ(set.DraggedMarker, -1);
    EXPECT_TRUE(box.Overlay().empty());
    EXPECT_TRUE(state.VNAHolder.Overlay().empty());
}

TEST_F(Markers, DropsRightOfTheLastPointOrWithoutAMoveStay)
{
    plot.MarkerOn(0);
    Drag(x(0), x(2) - 1);
    ASSERT_EQ(set.MarkerIndex[0], 2);
    Drag(x(2), x(4) + 1);
    EXPECT_EQ(set.MarkerIndex[0], 2) << "right of the last point";
    set.MarkerX[0] = x(0);
    MouseDown(state, box, MouseButton::Left, 0, x(2), -10);
    MouseUp(state, box, MouseButton::Left, 0, x(2), -10);
    EXPECT_EQ(set.MarkerIndex[0], 2) << "an older drag's X counts for nothing";
}

TEST_F(Markers, OverlappingOnesAreGrabbedFromTheLowestAndOnlyWhenNear)
{
    plot.MarkerOn(3);
    plot.MarkerOn(1);
    MouseDown(state, box, MouseButton::Left, 0, x(0), -10);
    EXPECT_EQ(set.SelectedMarker, 1);
    MouseUp(state, box, MouseButton::Left, 0, x(0), -10);
    const float pixel = box.ScaleWidth / box.Width;
    MouseDown(state, box, MouseButton::Left, 0, x(0) + 3.1F * pixel, -10);
    EXPECT_EQ(set.SelectedMarker, -1);
    EXPECT_TRUE(state.VNACoords.Visible);
    EXPECT_EQ(box.MousePointer, MousePointers::Cross);
    MouseMove(state, box, MouseButton::Left, 0, x(1), -10.5F);
    EXPECT_EQ(state.VNACoords.Caption, "841.625, -10.500");
    MouseUp(state, box, MouseButton::Left, 0, x(1), -10);
    EXPECT_FALSE(state.VNACoords.Visible);
    MouseMove(state, box, 0, 0, x(0) + 2 * pixel, -10);
    EXPECT_EQ(box.MousePointer, MousePointers::SizeWE);
}

TEST_F(Markers, AZoomBoxGivesTheSameWindowWhicheverWayItIsDragged)
{
    DblClick(state, box);
    EXPECT_TRUE(state.ZoomActive);
    EXPECT_EQ(box.MousePointer, MousePointers::Cross);
    MouseDown(state, box, MouseButton::Left, 0, 880, -5);
    MouseMove(state, box, MouseButton::Left, 0, 850, -20);
    ASSERT_EQ(box.Overlay().size(), 2U);
    EXPECT_EQ(std::get<BoxCommand>(box.Overlay()[1]).To, (Point{850, -20}));
    MouseUp(state, box, MouseButton::Left, 0, 850, -20);
    EXPECT_EQ(box.ScaleLeft, 850);
    EXPECT_EQ(box.ScaleTop, -5);
    EXPECT_EQ(box.ScaleHeight, -15);
    EXPECT_TRUE(state.ZoomActive) << "and stays, for the next box";
    Drag(860, 860);
    EXPECT_EQ(box.ScaleLeft, 824) << "a click alone gives the full view";
    Drag(850, 870);
    platform.Choices = {{"menuUndoZoom"}};
    MouseDown(state, box, MouseButton::Right, 0, 855, -7);
    EXPECT_EQ(box.ScaleLeft, 824);
    EXPECT_FALSE(state.ZoomActive);
    EXPECT_EQ(state.ZoomX1, 855) << "each press begins a rectangle";
}

TEST_F(Markers, TheMenuShowsAndDoesWhatTheModeAllows)
{
    const auto shown = [&] {
        std::string names;
        for (const MenuItem& item : platform.Menus.back().Items)
            if (item.Visible && item.Caption != "-")
                names += std::string(item.Name) + (item.Enabled ? " " : "(off) ");
        return names;
    };
    platform.Choices = {{"menuMarkers", 2}};
    MouseDown(state, box, MouseButton::Right, 0, 850, -7);
    EXPECT_EQ(shown(), "menuAutoScale menuUndoZoom(off) menuSubTitle menuTraceInfo menuSave2File "
                       "menuClipboardCopy menuGPSCoords menuMarkerHead ");
    EXPECT_TRUE(plot.MarkerState(2));
    platform.Choices = {{"menuMarkers", 2}, {"menuUndoZoom"}, {"menuMarkers", 6}};
    MouseDown(state, box, MouseButton::Right, 0, 850, -7);
    EXPECT_FALSE(plot.MarkerState(2)) << "checked before, so switched off";
    MouseDown(state, box, MouseButton::Right, 0, 850, -7);
    MouseDown(state, box, MouseButton::Right, 0, 850, -7);
    EXPECT_EQ(listener.Changes.size(), 2U) << "a disabled item and a separator can't be chosen";
    MouseDown(state, state.ParamBox, MouseButton::Right, 0, 10, 10);
    EXPECT_EQ(shown(), "menuSubTitle menuTraceInfo menuSave2File menuClipboardCopy menuGPSCoords ");
    plot.AllowPopupMenu(false);
    const std::size_t opened = platform.Menus.size();
    plot.MarkerOn(0);
    MouseDown(state, box, MouseButton::Right, 0, x(0), -7);
    EXPECT_EQ(platform.Menus.size(), opened);
    EXPECT_EQ(set.DraggedMarker, 0) << "then it is a press as any other";
}

TEST_F(Markers, DeviceEventsReachTheSurfaceUnderThemUntilTheRelease)
{
    EXPECT_EQ(&SurfaceAt(state, 300, 200), &box);
    EXPECT_EQ(&SurfaceAt(state, 300, 10), &state.VNAHolder);
    EXPECT_EQ(&SurfaceAt(state, 5000, 10), &state.Surface);
    const Point at = UserPoint(box, 4, 42);
    EXPECT_EQ(at, (Point{box.ScaleLeft, box.ScaleTop}));
    plot.MarkerOn(0);
    DevicePress(state, MouseButton::Left, 0, 4, 200);
    DeviceMove(state, MouseButton::Left, 0, -300, 2000);
    EXPECT_LT(set.MarkerX[0], 824) << "the press captured the mouse";
    DeviceRelease(state, MouseButton::Left, 0, -300, 2000);
    EXPECT_EQ(set.DraggedMarker, -1);
    EXPECT_EQ(set.MarkerIndex[0], 0);

    // The second press of a double click begins a drag, too; another button's release doesn't end it.
    DeviceDoubleClick(state, 200, 200);
    DevicePress(state, MouseButton::Right, 0, 200, 200);
    EXPECT_EQ(state.Captured, nullptr) << "the menu has the mouse";
    DeviceDoubleClick(state, 200, 200);
    DevicePress(state, MouseButton::Middle, 0, 200, 200);
    DeviceRelease(state, MouseButton::Middle, 0, 200, 200);
    EXPECT_EQ(state.Captured, &box);
    DeviceMove(state, 0, 0, 300, 10);
    EXPECT_EQ(state.Captured, nullptr) << "no button is down any more";
}

TEST_F(Markers, ADragOverABrokenViewLeavesItsFrame)
{
    plot.MarkerOn(0);
    const std::vector<float> same = {5, 5}, levels = {1, 2};
    plot.PlotCurve(2, same, levels);
    const std::size_t frame = state.VNAHolder.Picture().size();
    ASSERT_TRUE(state.VNAHolder.AutoRedraw) << "the view has stopped before its end";
    MouseDown(state, box, MouseButton::Left, 0, 5, 0);
    MouseMove(state, box, MouseButton::Left, 0, 6, 0);
    EXPECT_GE(state.VNAHolder.Picture().size(), frame);
}

} // namespace
} // namespace Traces
