#include "control/ChartSurface.h"

#include "control/Input.h"
#include "control/ViewText.h"
#include "support/ShownTrace.h"

namespace Traces {
namespace {

class Surfaces : public Testing::ShownTrace {
protected:
    ChartSurface& box = state.VNABox;
};

TEST_F(Surfaces, OverlayAndPictureAreErasedApart)
{
    box.Scale(100, 0, 200, -30);
    box.AutoRedraw = true;
    box.Line(100, 0, 200, -30, White);
    const DisplayList finished = box.Picture();
    const unsigned revision = box.PictureRevision();
    box.AutoRedraw = false;
    box.Box(110, -5, 120, -10, Black);
    EXPECT_EQ(box.Overlay().size(), 2U);
    box.Cls();
    EXPECT_TRUE(box.Overlay().empty());
    EXPECT_EQ(box.Picture(), finished);
    EXPECT_EQ(box.PictureRevision(), revision);
    EXPECT_EQ((Point{box.CurrentX, box.CurrentY}), (Point{100, 0}));
    box.AutoRedraw = true;
    box.Cls();
    EXPECT_TRUE(box.Picture().empty());
}

TEST_F(Surfaces, ScaleIsRecordedWhereItChanges)
{
    box.AutoRedraw = true;
    box.Scale(0, 10, 20, 0);
    box.Line(0, 0, 1, 1, White);
    box.Line(1, 1, 2, 2, White);
    box.ScaleReset();
    box.Line(0, 0, 1, 1, White);
    const Pen pen{White, LineStyle::Solid, 1};
    const DisplayList expected = {UserScale{0, 10, 20, -10}, LineCommand{{0, 0}, {1, 1}, pen},
                                  LineCommand{{1, 1}, {2, 2}, pen}, UserScale{0, 0, 542 * 15, 380 * 15},
                                  LineCommand{{0, 0}, {1, 1}, pen}};
    EXPECT_EQ(box.Picture(), expected);
}

TEST_F(Surfaces, PositionedTextFollowsItsColours)
{
    ChartSurface& holder = state.VNAHolder;
    holder.AutoRedraw = true;
    holder.ForeColor = 0x112233;
    DrawTextAt(holder, "A", 10, 20, 10);
    DrawTextAt(holder, "A", 10, 40, 10, false, NoColour, Black);
    DrawTextAt(holder, "A", 10, 60, 12, true, White);
    ASSERT_EQ(holder.Picture().size(), 6U);
    const auto& plain = std::get<TextCommand>(holder.Picture()[1]);
    EXPECT_EQ(plain.Ink, 0x112233);
    EXPECT_EQ(plain.Font.Size, 10);
    EXPECT_EQ(plain.At, (Point{10, 20}));
    const auto& fill = std::get<FillCommand>(holder.Picture()[2]);
    EXPECT_EQ(fill.Ink, Black) << "black is a colour, and does fill";
    EXPECT_EQ(fill.To, (Point{19, 55})) << "an A of 10 points is 8.9 by 14.9 pixels";
    EXPECT_EQ(std::get<TextCommand>(holder.Picture()[4]).Ink, White);
    const auto& outline = std::get<BoxCommand>(holder.Picture()[5]);
    EXPECT_EQ(outline.From, (Point{6, 60})) << "a blank of 12 points to the left";
    EXPECT_EQ(outline.Pen.Ink, Black);
    EXPECT_EQ(holder.ForeColor, White);
}

TEST_F(Surfaces, TextsGrowWithTheControlOnItsTighterAxis)
{
    const float before = state.VNAHolder.TextWidth("Freq (MHz)");
    Resize(state, 1100, 1440);
    EXPECT_EQ(state.ScreenFacts().FontScaleFactor, 2);
    DrawTextAt(state.VNAHolder, "Freq (MHz)", 0, 0, 10);
    EXPECT_EQ(state.VNAHolder.Font.Size, 20);
    state.VNAHolder.Font.Size = 8.25F * 2;
    EXPECT_NEAR(state.VNAHolder.TextWidth("Freq (MHz)"), before, 0.001) << "in user units it stays as wide";
    Resize(state, 0, -5);
    EXPECT_GT(state.VNAHolder.TextWidth("x"), 0);
}

TEST_F(Surfaces, LampsTakeTheirPlaceFromThePenWhenAsked)
{
    ChartSurface& holder = state.E1T1Holder;
    holder.AutoRedraw = true;
    holder.Font.Size = 10;
    holder.CurrentX = 50;
    holder.CurrentY = 24;
    int x = -1;
    int y = -1;
    DrawLed(holder, holder, x, y, true);
    EXPECT_EQ(x, 60) << "an H of 10 points is 9.6 pixels wide";
    EXPECT_EQ(y, 31);
    const DisplayList expected = {UserScale{0, 0, 550, 480}, CircleCommand{{60, 31}, 6, 0xFF00, 0xFF00},
                                  CircleCommand{{60, 31}, 6, Black, NoColour}};
    EXPECT_EQ(holder.Picture(), expected);
}

TEST_F(Surfaces, ASurfaceWithoutExtentTakesTextAndMouse)
{
    box.Width = 0;
    EXPECT_EQ(box.TextWidth("-30 dB"), 0);
    MouseDown(state, box, MouseButton::Left, 0, 120, -10);
    MouseMove(state, box, MouseButton::Left, 0, 130, -20);
    MouseUp(state, box, MouseButton::Left, 0, 130, -20);
    box.Scale(100, 0, 100, -30);
    EXPECT_EQ(box.TextWidth("-30 dB"), 0);
    EXPECT_EQ(UserPoint(box, 5, 5).X, 100);
}

} // namespace
} // namespace Traces
