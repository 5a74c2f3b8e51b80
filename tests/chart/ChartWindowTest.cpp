#include "chart/ChartWindow.h"

#include "chart/ChartView.h"
#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "control/ModeTable.h"
#include "formats/HostFault.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace Traces {
namespace {

TEST(NiceRanges, RoundOutwardsAndStepByTheirDecade)
{
    struct Case {
        float ymin, ymax, low, high, step;
    };
    static constexpr Case cases[] = {
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
    };
    for (const auto& c : cases) {
        float ymin = c.ymin;
        float ymax = c.ymax;
        float step = 0;
        NiceRange(ymin, ymax, step, true);
        EXPECT_FLOAT_EQ(ymin, c.low) << c.ymin << " to " << c.ymax;
        EXPECT_FLOAT_EQ(ymax, c.high) << c.ymin << " to " << c.ymax;
        EXPECT_FLOAT_EQ(step, c.step) << c.ymin << " to " << c.ymax;
    }
    float ymin = -13.2F;
    float ymax = -4.7F;
    float step = 0;
    NiceRange(ymin, ymax, step, false);
    EXPECT_EQ(ymin, -13.2F);
    EXPECT_EQ(ymax, -4.7F);
    EXPECT_EQ(step, 2);
}

class ChartWindows : public testing::Test {
protected:
    HeadlessPlatform platform;
    Control control{platform, AllFamilies};

    void Curve(std::vector<float> x, std::vector<float> y)
    {
        SetSlotLength(control, 0, static_cast<std::int16_t>(x.size()));
        control.TraceSlots[0].X = std::move(x);
        control.TraceSlots[0].Y = std::move(y);
    }

    void ExpectWindow(float xmin, float xmax, float ymin, float ymax, const char* name)
    {
        const ChartWindow window = ChooseWindow(control);
        EXPECT_FLOAT_EQ(window.Xmin, xmin) << name;
        EXPECT_FLOAT_EQ(window.Xmax, xmax) << name;
        EXPECT_FLOAT_EQ(window.Ymin, ymin) << name;
        EXPECT_FLOAT_EQ(window.Ymax, ymax) << name;
    }
};

TEST_F(ChartWindows, ManualLimitsWinUnlessAutoscaledOrUnusable)
{
    Curve({100, 150, 200}, {-13.2F, -8, -4.7F});
    control.YScaleTop = 0;
    control.YScaleBottom = -30;
    ExpectWindow(100, 200, -30, 0, "manual");
    control.AutoScaleY = true;
    ExpectWindow(100, 200, -14, -4, "autoscaled");
    control.AutoScaleY = false;
    control.YScaleBottom = 0;
    ExpectWindow(100, 200, -13.2F, -4.7F, "limits unusable");
    control.AutoScaleY = true;
    control.YScaleBottom = -30;
    Curve({100, 150, 200}, {-5, -5, -5});
    ExpectWindow(100, 200, -30, 0, "flat curve");
}

TEST_F(ChartWindows, ZoomReplacesTheWindowAndIsKeptFromCollapsing)
{
    Curve({100, 150, 200}, {-13.2F, -8, -4.7F});
    control.YScaleTop = 0;
    control.YScaleBottom = -30;
    control.AutoScaleY = true;
    control.ZoomActive = true;
    control.ZoomX1 = control.ZoomX2 = 120;
    ExpectWindow(100, 200, -14, -4, "empty rectangle");
    control.ZoomX1 = 120;
    control.ZoomX2 = 130;
    control.ZoomY1 = -10;
    control.ZoomY2 = -5;
    ExpectWindow(120, 130, -10, -5, "zoomed");
    control.ZoomX2 = 120.01F;
    control.ZoomY2 = -9.9F;
    ExpectWindow(119.95F, 120.06F, -10.15F, -9.75F, "padded");
}

TEST_F(ChartWindows, CurvesThatNoAxisHoldsAreFaults)
{
    Curve({100, 200}, {-3E38F, 3E38F});
    EXPECT_THROW(ChooseWindow(control), HostFault);
    Curve({-1.7E38F, 1.7E38F}, {0, 1});
    EXPECT_THROW(ChooseWindow(control), HostFault) << "only the sliver at the right is too much";
    Curve({100, std::numeric_limits<float>::infinity()}, {0, 1});
    EXPECT_THROW(ChooseWindow(control), HostFault);
}

TEST_F(ChartWindows, ChartsWithoutASpanDrawNothing)
{
    ChartSurface& box = control.VNABox;
    box.AutoRedraw = true;
    Curve({100, 100}, {1, 2});
    control.YScaleTop = 1;
    EXPECT_FALSE(DrawChart(control, box, control.VNAMarkers));
    control.YScaleTop = 0;
    Curve({100, 200}, {0, 0});
    EXPECT_FALSE(DrawChart(control, box, control.VNAMarkers)) << "equal limits";
    EXPECT_TRUE(box.Picture().empty());
}

TEST_F(ChartWindows, TheGridHasTenDivisionsEvenWhereFloatsAreCoarse)
{
    ChartSurface& box = control.VNABox;
    for (const float start : {0.0F, 100.0F, 4E9F}) {
        box.AutoRedraw = true;
        box.Cls();
        Curve({start, start * 1.0000002F + 1}, {0, 1});
        control.AutoScaleY = true;
        ASSERT_TRUE(DrawChart(control, box, control.VNAMarkers));
        const auto lines = box.Picture().size() - 2; // a scale and the curve's one line
        EXPECT_GE(lines, 20U) << start;
        EXPECT_LE(lines, 22U) << start;
    }
}

TEST_F(ChartWindows, TheGridHasTenDivisionsUnderReversedLimitsToo)
{
    ChartSurface& box = control.VNABox;
    box.AutoRedraw = true;
    Curve({100, 200}, {-110, -110});
    control.YScaleTop = -120;
    control.YScaleBottom = -100;
    ASSERT_TRUE(DrawChart(control, box, control.VNAMarkers));
    ASSERT_EQ(box.Picture().size(), 2U + 11U + 11U);
    const auto& last = std::get<LineCommand>(box.Picture().back());
    EXPECT_EQ(last.From.Y, -120) << "the last line is the box's top";
}

TEST_F(ChartWindows, MarkersAreClampedForGoodAndDrawnWhereTheyStand)
{
    ChartSurface& box = control.VNABox;
    box.AutoRedraw = true;
    Curve({100, 150, 200}, {0, 1, 2});
    box.Scale(100, 2, 200, 0);
    control.VNAMarkers.MarkerIndex = {500, -2, 1, 0, 0, 0};
    control.VNAMarkers.MarkerOn[0] = control.VNAMarkers.MarkerOn[2] = true;
    control.VNAMarkers.DraggedMarker = 2;
    control.VNAMarkers.MarkerX[2] = 133;
    DrawMarkerLines(control, box, control.VNAMarkers);
    EXPECT_EQ(control.VNAMarkers.MarkerIndex[0], 2);
    EXPECT_EQ(control.VNAMarkers.MarkerIndex[1], 0) << "a marker that is off is clamped too";
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
