#include "chart/ChartWindow.h"

#include "chart/ChartView.h"
#include "formats/HostFault.h"
#include "support/ShownTrace.h"

#include <limits>

namespace Traces {
namespace {

TEST(NiceRanges, RoundOutwardsAndStepByTheirDecade)
{
    const struct {
        float ymin, ymax, low, high, step;
        bool round = true;
    } cases[] = {
        {-13.2F, -4.7F, -14, -4, 2},
        {0.021F, 0.094F, 0.02F, 0.1F, 0.02F},
        {0, 1, 0, 1, 0.2F},
        {0, 2, 0, 2, 0.25F},
        {0, 3, 0, 3, 0.5F},
        {0, 4, 0, 4, 0.5F},
        {0, 5, 0, 5, 1},
        {0.5F, 7.5F, 0, 8, 2},
        {0, 9, 0, 9, 1},
        {0.5F, 10.2F, 0, 11, 2},
        {0, 30, 0, 30, 5},
        {-120, 100, -200, 100, 50},
        {0.1F, 0.6F, 0.1F, 0.6F, 0.1F},
        {5, 5, -1, 1, 2},
        {5, 3, -1, 1, 2},
        {-0.001F, 0.0005F, -0.001F, 0.001F, 0.00025F},
        {1E-37F, 2E-37F, 1E-37F, 2E-37F, 2E-38F},
        {-13.2F, -4.7F, -13.2F, -4.7F, 2, false},
    };
    for (const auto& c : cases) {
        float ymin = c.ymin;
        float ymax = c.ymax;
        float step = 0;
        NiceRange(ymin, ymax, step, c.round);
        EXPECT_EQ(ymin, c.low) << c.ymin << " to " << c.ymax;
        EXPECT_EQ(ymax, c.high) << c.ymin << " to " << c.ymax;
        EXPECT_FLOAT_EQ(step, c.step) << c.ymin << " to " << c.ymax;
    }
}

class ChartWindows : public Testing::ShownTrace {
protected:
    ChartWindows() { box.AutoRedraw = true; }

    ChartSurface& box = state.VNABox;

    void Curve(std::vector<float> x, std::vector<float> y)
    {
        SetSlotLength(state, 0, static_cast<std::int16_t>(x.size()));
        state.TraceSlots[0].X = std::move(x);
        state.TraceSlots[0].Y = std::move(y);
    }

    void ExpectWindow(float xmin, float xmax, float ymin, float ymax, const char* name)
    {
        const ChartWindow window = ChooseWindow(state);
        EXPECT_FLOAT_EQ(window.Xmin, xmin) << name;
        EXPECT_FLOAT_EQ(window.Xmax, xmax) << name;
        EXPECT_FLOAT_EQ(window.Ymin, ymin) << name;
        EXPECT_FLOAT_EQ(window.Ymax, ymax) << name;
    }
};

TEST_F(ChartWindows, ManualLimitsWinUnlessAutoscaledOrUnusable)
{
    Curve({100, 150, 200}, {-13.2F, -8, -4.7F});
    state.YScaleTop = 0;
    state.YScaleBottom = -30;
    ExpectWindow(100, 200, -30, 0, "manual");
    state.AutoScaleY = true;
    ExpectWindow(100, 200, -14, -4, "autoscaled");
    state.AutoScaleY = false;
    state.YScaleBottom = 0;
    ExpectWindow(100, 200, -13.2F, -4.7F, "limits unusable");
    state.AutoScaleY = true;
    state.YScaleBottom = -30;
    Curve({100, 150, 200}, {-5, -5, -5});
    ExpectWindow(100, 200, -30, 0, "flat curve");
}

TEST_F(ChartWindows, ZoomReplacesTheWindowAndIsKeptFromCollapsing)
{
    Curve({100, 150, 200}, {-13.2F, -8, -4.7F});
    state.YScaleTop = 0;
    state.YScaleBottom = -30;
    state.AutoScaleY = true;
    state.ZoomActive = true;
    state.ZoomX1 = state.ZoomX2 = 120;
    ExpectWindow(100, 200, -14, -4, "empty rectangle");
    state.ZoomX1 = 120;
    state.ZoomX2 = 130;
    state.ZoomY1 = -10;
    state.ZoomY2 = -5;
    ExpectWindow(120, 130, -10, -5, "zoomed");
    state.ZoomX2 = 120.01F;
    state.ZoomY2 = -9.9F;
    ExpectWindow(119.95F, 120.06F, -10.15F, -9.75F, "padded");
}

TEST_F(ChartWindows, CurvesThatNoAxisHoldsAreFaults)
{
    Curve({100, 200}, {-3E38F, 3E38F});
    EXPECT_THROW(ChooseWindow(state), HostFault);
    Curve({-1.7E38F, 1.7E38F}, {0, 1});
    EXPECT_THROW(ChooseWindow(state), HostFault) << "only the sliver at the right is too much";
    Curve({100, std::numeric_limits<float>::infinity()}, {0, 1});
    EXPECT_THROW(ChooseWindow(state), HostFault);
}

TEST_F(ChartWindows, ChartsWithoutASpanDrawNothing)
{
    Curve({100, 100}, {1, 2});
    state.YScaleTop = 1;
    EXPECT_FALSE(DrawChart(state, box, state.VNAMarkers));
    state.YScaleTop = 0;
    Curve({100, 200}, {0, 0});
    EXPECT_FALSE(DrawChart(state, box, state.VNAMarkers)) << "equal limits";
    EXPECT_TRUE(box.Picture().empty());
}

TEST_F(ChartWindows, TheGridHasTenDivisionsEvenWhereFloatsAreCoarse)
{
    for (const float start : {0.0F, 100.0F, 4E9F}) {
        box.AutoRedraw = true;
        box.Cls();
        Curve({start, start * 1.0000002F + 1}, {0, 1});
        state.AutoScaleY = true;
        ASSERT_TRUE(DrawChart(state, box, state.VNAMarkers));
        const auto lines = box.Picture().size() - 2; // a scale and the curve's one line
        EXPECT_GE(lines, 20U) << start;
        EXPECT_LE(lines, 22U) << start;
    }
}

TEST_F(ChartWindows, TheGridHasTenDivisionsUnderReversedLimitsToo)
{
    Curve({100, 200}, {-110, -110});
    state.YScaleTop = -120;
    state.YScaleBottom = -100;
    ASSERT_TRUE(DrawChart(state, box, state.VNAMarkers));
    ASSERT_EQ(box.Picture().size(), 2U + 11U + 11U);
    const auto& last = std::get<LineCommand>(box.Picture().back());
    EXPECT_EQ(last.From.Y, -120) << "the last line is the box's top";
}

TEST_F(ChartWindows, MarkersAreClampedForGoodAndDrawnWhereTheyStand)
{
    Curve({100, 150, 200}, {0, 1, 2});
    box.Scale(100, 2, 200, 0);
    state.VNAMarkers.MarkerIndex = {500, -2, 1, 0, 0, 0};
    state.VNAMarkers.MarkerOn[0] = state.VNAMarkers.MarkerOn[2] = true;
    state.VNAMarkers.DraggedMarker = 2;
    state.VNAMarkers.MarkerX[2] = 133;
    DrawMarkerLines(state, box, state.VNAMarkers);
    EXPECT_EQ(state.VNAMarkers.MarkerIndex[0], 2);
    EXPECT_EQ(state.VNAMarkers.MarkerIndex[1], 0) << "a marker that is off is clamped too";
    const DisplayList expected = {
        UserScale{100, 2, 100, -2},
        // the highlight follows the CDMA family's selection, the first marker by default
        LineCommand{{200, 2}, {200, 0}, {RGB(255, 185, 185), LineStyle::Dashed, 1}},
        LineCommand{{133, 2}, {133, 0}, {RGB(255, 150, 150), LineStyle::Dashed, 1}},
    };
    EXPECT_EQ(box.Picture(), expected);
    EXPECT_EQ(box.DrawStyle, LineStyle::Solid);
}

} // namespace
} // namespace Traces
