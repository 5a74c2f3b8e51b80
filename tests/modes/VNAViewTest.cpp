#include "output/Svg.h"
#include "support/RawBuilder.h"
#include "support/ShownTrace.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::RawSweep;

class VNAView : public Testing::ShownTrace {
protected:
    VNAView() { plot.ShowTrace(RawSweep(0, {1000, 3162, 100}).Bytes()); }

    static const TextCommand& TextAt(const ChartSurface& surface, std::size_t index)
    {
        return std::get<TextCommand>(surface.Picture().at(index));
    }
};

TEST_F(VNAView, FrameTextsStandAtTheirPlaces)
{
    plot.TraceName("Antenna 1");
    const ChartSurface& holder = state.VNAHolder;
    struct Case {
        const char* text;
        float x, y;
    };
    // Centred and right-aligned ones by the sans-serif's widths at 13.33 pixels.
    static constexpr Case cases[] = {
        {"??"
         "-Antenna 1",
         237, 4},
        {"Cal Off", 2, 24},
        {"3 Points", 251, 24},
        {"824.0", 2, 422},
        {"Freq (MHz)", 241, 422},
        {"894.5", 507, 422},
        {"F1=824.0MHz", 2, 442},
        {"F2=894.5MHz", 2, 460},
        {"Average Cable Loss = 0.35 dB", 275, 442},
        {"Std=GSM 900", 275, 460},
    };
    ASSERT_EQ(holder.Picture().size(), 1 + std::size(cases) + 1);
    EXPECT_EQ(holder.Picture()[0], DrawCommand(UserScale{0, 0, 550, 480}));
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        const TextCommand& drawn = TextAt(holder, i + 1);
        EXPECT_EQ(drawn.Text, cases[i].text);
        EXPECT_EQ(drawn.At, (Point{cases[i].x, cases[i].y})) << cases[i].text;
        EXPECT_EQ(drawn.Font.Size, 10) << cases[i].text;
        EXPECT_EQ(drawn.Ink, Black) << cases[i].text;
    }
    EXPECT_EQ(holder.Picture().back(), DrawCommand(LineCommand{{0, 440}, {600, 440}, {}}));
}

TEST_F(VNAView, TheChartIsDrawnCornersFirstAndGridOverCurve)
{
    const DisplayList& picture = state.VNABox.Picture();
    // In twips; 5700 is the box's height, 223 an "H".
    ASSERT_EQ(picture.size(), 3 + 1 + 2 + 11 + 11U);
    EXPECT_EQ(picture[0], DrawCommand(UserScale{0, 0, 8130, 5700}));
    EXPECT_EQ(TextAt(state.VNABox, 1).Text, "1.50 dB");
    EXPECT_EQ(TextAt(state.VNABox, 1).At, (Point{4, 4}));
    EXPECT_EQ(TextAt(state.VNABox, 2).Text, "30.25 dB");
    EXPECT_EQ(TextAt(state.VNABox, 2).At, (Point{4, 5471}));
    EXPECT_EQ(TextAt(state.VNABox, 2).Ink, White);

    const auto& scale = std::get<UserScale>(picture[3]);
    EXPECT_FLOAT_EQ(scale.Width, 70.5F * 1.005F);
    EXPECT_EQ(scale, (UserScale{824, 1.5F, scale.Width, -31.75F}));
    const auto& first = std::get<LineCommand>(picture[4]);
    EXPECT_EQ(first.From, (Point{824, -20}));
    EXPECT_EQ(first.Pen, (Pen{0xFFFF, LineStyle::Solid, 1}));
    const auto& second = std::get<LineCommand>(picture[5]);
    EXPECT_EQ(second.From, first.To);
    EXPECT_EQ(second.To, (Point{894.5F, -40})) << "cut by the surface, not by the view";
    const auto& grid = std::get<LineCommand>(picture[6]);
    EXPECT_EQ(grid, (LineCommand{{824, 1.5F}, {824, -30.25F}, {RGB(200, 200, 200), LineStyle::Dotted, 1}}));
    const auto& across = std::get<LineCommand>(picture[17]);
    EXPECT_EQ(across.From, (Point{824, -30.25F}));
    EXPECT_FALSE(state.VNABox.AutoRedraw);
    EXPECT_FALSE(state.VNAHolder.AutoRedraw);
}

TEST_F(VNAView, CornerLabelsStayUnderAutoscaleAndZoom)
{
    state.AutoScaleY = true;
    plot.RedrawTrace();
    EXPECT_EQ(TextAt(state.VNABox, 2).Text, "30.25 dB");
    EXPECT_FLOAT_EQ(state.VNABox.ScaleTop, -10);
    state.ZoomActive = true;
    state.ZoomX1 = 830;
    state.ZoomX2 = 840;
    state.ZoomY1 = -30;
    state.ZoomY2 = -20;
    plot.RedrawTrace();
    EXPECT_EQ(TextAt(state.VNABox, 1).Text, "1.50 dB");
    EXPECT_EQ(state.VNABox.ScaleLeft, 830);
}

TEST_F(VNAView, WithoutASpanTheFrameIsAllThatShows)
{
    plot.Clear();
    state.YScaleTop = state.YScaleBottom = 0;
    plot.RedrawTrace();
    EXPECT_EQ(state.VNABox.Picture().size(), 3U) << "scale and corner labels";
    EXPECT_TRUE(state.VNABox.AutoRedraw);
    EXPECT_TRUE(state.VNAHolder.AutoRedraw);
}

TEST_F(VNAView, EveryModeOfTheFamilyHasTheSameFrame)
{
    const DisplayList before = state.VNAHolder.Picture();
    for (const std::int16_t mode :
         {std::int16_t{1}, std::int16_t{2}, std::int16_t{7}, std::int16_t{16}, std::int16_t{17}}) {
        state.CurrentMode = mode;
        plot.RedrawTrace();
        EXPECT_EQ(state.VNAHolder.Picture(), before) << mode;
        EXPECT_TRUE(state.VNAHolder.Visible) << mode;
    }
    state.CurrentMode = 48;
    plot.RedrawTrace();
    EXPECT_FALSE(state.VNAHolder.Visible) << "a mode of another family";
}

TEST_F(VNAView, TheSvgShowsTheSamePicture)
{
    plot.TraceName("R&D <1>");
    const std::string svg = SvgPicture(state);
    EXPECT_NE(svg.find("R&amp;D &lt;1&gt;</text>"), std::string::npos);
    // The curve is one polyline in yellow: three points, the first at the chart's left edge.
    EXPECT_NE(svg.find("<polyline points=\"4,299.32 273.65,"), std::string::npos)
        << svg.substr(svg.find("<polyline"), 200);
    EXPECT_NE(svg.find("stroke=\"#ffff00\""), std::string::npos);
    plot.TraceName("a\tb\x9D!");
    EXPECT_NE(SvgPicture(state).find("a b !</text>"), std::string::npos) << "what no screen shows is a blank";
    EXPECT_EQ(svg.find("nan"), std::string::npos);
    std::size_t groups = 0;
    for (std::size_t at = svg.find("</g>"); at != std::string::npos; at = svg.find("</g>", at + 1))
        ++groups;
    EXPECT_EQ(groups, 3U) << "control, holder, box";
}

} // namespace
} // namespace Traces
