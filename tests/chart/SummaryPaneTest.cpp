#include "chart/SummaryPane.h"

#include "support/ShownTrace.h"

namespace Traces {
namespace {

class Pane : public Testing::ShownTrace {
protected:
    ChartSurface& pane = OpenPane(state);

    const TextCommand& LastText() const { return std::get<TextCommand>(pane.Picture().back()); }
};

TEST_F(Pane, TextsAlignAtTheirXAndKeepTheColourBefore)
{
    PanePrint(pane, "Center Freq:", 12, 14, 10, PaneAlign::Start, 0, RGB(0, 0, 255));
    EXPECT_EQ(LastText().At, (Point{14, 12}));
    PanePrint(pane, "1850.00 MHz", 12, 336, 10, PaneAlign::End, 150);
    EXPECT_FLOAT_EQ(LastText().At.X + pane.TextWidth("1850.00 MHz"), 336);
    EXPECT_EQ(LastText().Ink, RGB(0, 0, 255));
    EXPECT_EQ(LastText().Font.Size, 10);
    PanePrint(pane, "Events", 40, 175, 10, PaneAlign::Centre);
    EXPECT_FLOAT_EQ(LastText().At.X + pane.TextWidth("Events") / 2, 175);
}

TEST_F(Pane, WideTextShrinksOntoTheMiddleOfItsRow)
{
    const std::string wide(40, 'M');
    PanePrint(pane, wide, 12, 336, 10, PaneAlign::End);
    const float unbound = pane.TextWidth(wide), height = pane.TextHeight(wide);
    PanePrint(pane, wide, 12, 336, 10, PaneAlign::End, 150);
    EXPECT_LE(pane.TextWidth(wide), 150);
    EXPECT_FLOAT_EQ(LastText().At.X + pane.TextWidth(wide), 336);
    EXPECT_NEAR(LastText().At.Y, 12 + 150 / unbound * height / 2, 0.05);
    // No length asks for a font without a size.
    PanePrint(pane, std::string(5000, 'M'), 12, 336, 10, PaneAlign::End, 150);
    EXPECT_EQ(LastText().Font.Size, 1);
}

TEST_F(Pane, TableEndsWithinThePaneWhateverItsMargin)
{
    PaneTableWide(pane, {.Rows = 3, .Left = 10, .Top = 20, .RowHeight = 28, .LabelWidth = 100, .Margin = 99},
                  120);
    const Pen rule{Black, LineStyle::Solid, 1};
    const DisplayList expected = {UserScale{0, 0, 350, 480},
                                  FillCommand{{10, 20}, {110, 104}, PaneLabelBand},
                                  BoxCommand{{10, 20}, {110, 104}, rule},
                                  FillCommand{{110, 20}, {340, 104}, PaneValueBand},
                                  BoxCommand{{110, 20}, {340, 104}, rule},
                                  LineCommand{{10, 48}, {340, 48}, rule},
                                  LineCommand{{10, 76}, {340, 76}, rule},
                                  LineCommand{{230, 20}, {230, 104}, rule}};
    EXPECT_EQ(pane.Picture(), expected);
}

TEST_F(Pane, PositionKnowsItsHemisphereFromOneUp)
{
    const PanePosition seattle = PanePositionTexts({47'362'500, -122'195'000, 56, {}});
    EXPECT_EQ(seattle.Latitude, "N47*36.25'");
    EXPECT_EQ(seattle.Longitude, "W122*19.5'");
    EXPECT_EQ(seattle.Altitude, "56m");
    EXPECT_EQ(PanePositionTexts({0, -1, 0, {}}).Latitude, "S0*0'");
    EXPECT_EQ(PanePositionTexts({-1, -1, 7, {}}).Altitude, "N/A");
}

} // namespace
} // namespace Traces
