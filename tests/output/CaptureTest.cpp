#include "output/Capture.h"

#include "control/ChartMenu.h"
#include "support/RawBuilder.h"
#include "support/ShownTrace.h"

namespace Traces {
namespace {

using Testing::RawSweep;

class HandingOn : public Testing::ShownTrace {
protected:
    HandingOn() { plot.ShowTrace(RawSweep(0, {1000, 3162}).Bytes()); }

    std::string Position(std::int32_t latitude, std::int32_t longitude)
    {
        state.VNA.GpsLatitude = latitude;
        state.VNA.GpsLongitude = longitude;
        return plot.GPSLocation();
    }
};

TEST_F(HandingOn, PositionsAreDegreesAndMinutes)
{
    state.VNA.GpsAltitude = 667;
    EXPECT_EQ(Position(40'250'170, -3'422'250),
              "GPS Latitude:\tN40\xB0 25.017'\r\nGPS Longitude:\tW3\xB0 42.225'\r\n"
              "GPS Altitude:\t667 m");
    EXPECT_TRUE(Position(-33'512'345, 5).starts_with("GPS Latitude:\tS33\xB0 51.235'\r\n"));
    EXPECT_TRUE(Position(-1, 5).starts_with("GPS Latitude:\tS0\xB0 0.000'"));
    EXPECT_TRUE(Position(-2147483647 - 1, 0).starts_with("GPS Latitude:\tS2147\xB0"));
    EXPECT_EQ(Position(-1, -1), "GPS Latitude:\tN/A\r\nGPS Longitude:\tN/A\r\nGPS Altitude:\tN/A");
    state.CurrentMode = 65;
    EXPECT_EQ(Position(1'000'000, 1'000'000).find("N/A"), 14U) << "a mode without a position";
}

TEST_F(HandingOn, ThePositionItemCopiesOnlyAPosition)
{
    RunMenuItem(state, {"menuGPSCoords"}, false);
    ASSERT_EQ(platform.Messages.size(), 1U);
    EXPECT_EQ(platform.Messages[0].Title, "GPS Position");
    EXPECT_TRUE(platform.Messages[0].Text.ends_with("m\r\n\r\n(copied to clipboard)"));
    EXPECT_TRUE(platform.ClipboardText.ends_with(" m"));
    platform.ClipboardText = "mine";
    Position(-1, -1);
    RunMenuItem(state, {"menuGPSCoords"}, false);
    EXPECT_EQ(platform.ClipboardText, "mine");
}

TEST_F(HandingOn, TheClipboardHoldsListAndPicture)
{
    EXPECT_TRUE(plot.Copy2Clipboard());
    EXPECT_TRUE(platform.ClipboardText.starts_with("Trace length:\t340\r\nModel:\tTRC-100\r\n"));
    ASSERT_TRUE(platform.ClipboardPicture.has_value());
    EXPECT_EQ(platform.ClipboardPicture->Width, 550);
    platform.ClipboardFails = true;
    EXPECT_FALSE(plot.Copy2Clipboard());
    EXPECT_TRUE(platform.Messages.empty());
}

TEST_F(HandingOn, SubTitlesAreTakenWhenTheyHoldSomething)
{
    platform.Answers = {"Mast 3", ""};
    RunMenuItem(state, {"menuSubTitle"}, false);
    EXPECT_EQ(plot.TraceName(), "Mast 3");
    EXPECT_EQ(platform.Messages[0].Title + ": " + platform.Messages[0].Text,
              "Sub-title Entry: Enter a subtitle for this plot.");
    for (const char* answer : {"empty", "cancelled"}) {
        RunMenuItem(state, {"menuSubTitle"}, false);
        EXPECT_EQ(plot.TraceName(), "Mast 3") << answer;
    }
}

TEST_F(HandingOn, APageTakesPercentages)
{
    EXPECT_TRUE(plot.PrintTrace(50, 60, 25, 10));
    ASSERT_EQ(platform.Pages.size(), 1U);
    const auto& page = platform.Pages[0];
    EXPECT_EQ((std::array{page.Width, page.Height, page.Left, page.Top}), (std::array{0.5, 0.6, 0.25, 0.1}));
}

TEST_F(HandingOn, SixPropertiesAreStoredUnderTheirKeys)
{
    PropertyBag bag;
    plot.WriteProperties(bag);
    EXPECT_EQ(bag, (PropertyBag{{"ShowParams", 0},
                                {"AllowPopup", -1},
                                {"BackColor", 0x808080},
                                {"ForeColor", 0},
                                {"BorderStyle", 0},
                                {"AutoScaleY", 0}}));
    bag = {{"ShowParams", -1}, {"AllowPopup", 0},  {"BackColor", 0x123456},
           {"ForeColor", 7},   {"BorderStyle", 2}, {"AutoScaleY", -1}};
    plot.ReadProperties(bag);
    EXPECT_EQ(plot.Instance().VNAHolder.Left, 2) << "laid out at once";
    PropertyBag again;
    plot.WriteProperties(again);
    EXPECT_EQ(again, bag);
    EXPECT_EQ(state.SpectroHolder.BackColor, 0x123456);
    plot.BackColor(0x00FF00);
    EXPECT_EQ(state.SpectroHolder.BackColor, 0x123456) << "keeps the colour that it was loaded with";
    EXPECT_EQ(plot.BackColor(), 0x00FF00);
    plot.AutoScaleY(false);
    plot.BorderStyle(MyBorderStyles::pbInset);
    EXPECT_EQ(platform.ChangedProperties,
              (std::vector<std::string>{"BackColor", "AutoScaleY", "BorderStyle"}));
}

TEST_F(HandingOn, ABorderMovesTheHoldersAndDrawsItsFrame)
{
    plot.BorderStyle(MyBorderStyles::pbRaised);
    EXPECT_EQ(state.VNAHolder.Left, 2);
    EXPECT_EQ(state.Surface.ScaleWidth, 554);
    ASSERT_EQ(state.Surface.Picture().size(), 1 + 8U);
    const auto& top = std::get<LineCommand>(state.Surface.Picture()[1]);
    EXPECT_EQ(top, (LineCommand{{0, 0}, {553, 0}, {White, LineStyle::Solid, 1}}));
    plot.ShowParams(true);
    plot.Resize(915, 484);
    EXPECT_EQ(state.Surface.Picture().size(), 1 + 16U) << "a frame around the pane as well";
    EXPECT_EQ(state.ParamBox.Left, 562);
    EXPECT_EQ(state.VNABox.DeviceWidth(), 542);
    plot.BorderStyle(MyBorderStyles::pbflat);
    EXPECT_TRUE(state.Surface.Picture().empty());
}

} // namespace
} // namespace Traces
