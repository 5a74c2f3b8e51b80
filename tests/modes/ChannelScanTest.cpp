#include "control/Input.h"
#include "support/ExpectFrame.h"
#include "support/RawScans.h"
#include "support/ShownTrace.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::RawBuilder;
using Testing::RawScan;
using Testing::WithChecksum;

class ChannelScan : public Testing::ShownTrace {};

TEST_F(ChannelScan, ListsItsFieldsAndAChannelALine)
{
    ASSERT_TRUE(plot.ShowTrace(RawScan({-4838, -12345}).Bytes()));
    EXPECT_EQ(Lines(3, 1), "Mode: CS");
    EXPECT_EQ(Lines(7, 1), "DataPoints: 2") << "the channels, not what the head told";
    EXPECT_EQ(Lines(), "Start Frequency: 946.5|Stop Frequency: 950.5|Ref Level: -40|Scale/Div: 10|"
                       "RBW Setting: 30000|VBW Setting: 10000|Channel Bandwidth: 0.25|Attenuation: 5.5|"
                       "Signal Standard: GSM 900|Signal Standard Link Type: Downlink|Single Limit: -60|"
                       "GPS Latitude: 40250000|GPS Longitude: -3422000|GPS Altitude: 667|Channels: 2|"
                       "Channel 1: 101 947 -48.38|Channel 2: 102 947.25 -123.45");
    EXPECT_EQ(state.TraceSlots[0].X, (std::vector<float>{1, 2}));
    EXPECT_EQ(state.TraceSlots[0].Y, (std::vector<float>{-48.38F, -123.45F}));
    EXPECT_EQ(state.YScaleTop, 20);
    EXPECT_EQ(state.YScaleBottom, -100);
    EXPECT_EQ(plot.TraceType(), "");
    EXPECT_EQ(plot.GPSLocation().substr(0, 17), "GPS Latitude:\tN40");
}

TEST_F(ChannelScan, CountsBeyondTheRecordAreBroughtWithinIt)
{
    for (const auto& [told, taken] : {std::pair{0, 0}, {-3, 0}, {20, 20}, {21, 20}, {32767, 20}}) {
        RawBuilder raw = RawScan(std::vector<int>(20, -5000));
        raw.Number(106, 2, told);
        ASSERT_TRUE(plot.ShowTrace(raw.Bytes())) << told;
        EXPECT_EQ(plot.count(), taken) << told;
        EXPECT_EQ(state.Header.DataPoints, taken) << told;
    }
}

TEST_F(ChannelScan, SaveLoadAndSaveGiveTheSameFileWithoutAnExtension)
{
    std::string first = folder / "scan";
    ASSERT_TRUE(plot.SaveRawTrace(RawScan({-4838, -12345, 1500}).AsText(), first));
    EXPECT_EQ(first, folder / "scan") << "no extension is appended";
    const std::string text = ReadWholeFile(first).value_or("");
    Plot fresh(platform);
    fresh.LoadCSText(text, {});
    EXPECT_TRUE(platform.Messages.empty());
    EXPECT_EQ(fresh.Instance().CurrentMode, 57) << "though the mode's name leads to no code";
    EXPECT_EQ(fresh.count(), 3);
    EXPECT_TRUE(fresh.Instance().CSHolder.Visible);
    fresh.Instance().TraceSaved = true;
    std::string second = folder / "again.cs";
    ASSERT_TRUE(fresh.SaveTrace(second));
    EXPECT_EQ(ReadWholeFile(second), text);

    fresh.LoadCSText(WithChecksum("Channels:\t2\r\nSignal Standard:\t\r\nChannel 1:\t7\tnear\t-60\r\n"
                                  "Channel 2:\t9\t1\r\n"),
                     {});
    const CSRecord& record = fresh.Instance().CS;
    EXPECT_EQ(record.SignalStandard, "GSM 900");
    EXPECT_EQ(record.Channel[0].Number, 7);
    EXPECT_EQ(record.Channel[0].Frequency, 947) << "no number";
    EXPECT_EQ(record.Channel[1].Number, 102) << "two fields are no channel";
    EXPECT_EQ(fresh.count(), 2);
}

TEST_F(ChannelScan, TheFrameIsTheRawRecordWithoutItsHead)
{
    const std::vector<int> levels = {-4838, -12345, 1500};
    ASSERT_TRUE(plot.ShowTrace(RawScan(levels).Bytes()));
    RawBuilder expected(257, ' ');
    const std::string raw = RawScan(levels).AsText();
    expected.Text(44, raw.substr(56, 51)).Text(98, raw.substr(110));
    for (int at = 4; at < 42; ++at)
        expected.Number(at, 1, 0);
    expected.Number(1, 2, 257).Number(3, 1, 57).Number(42, 2, 3);
    expected.Text(8, "11/22/2026").Text(18, "10:20:30").Text(26, "TOWER7");
    Testing::ExpectFrame(plot.GetUpLoadTrace(""), expected);
    ASSERT_TRUE(plot.ShowTrace(RawScan(std::vector<int>(20, -5000)).Bytes()));
    EXPECT_EQ(plot.GetUpLoadTrace("").substr(255), "\xEC\x78") << "the last channel ends with the frame";
    for (const char* name : {"a.raw", "a.cs"}) {
        ASSERT_TRUE(WriteWholeFile(folder / name, raw));
        EXPECT_EQ(plot.GetUpLoadTrace(folder / name), "") << name;
    }
}

TEST_F(ChannelScan, BarsRiseFromTheLowestLevelWithTheirLabelsBelow)
{
    ASSERT_TRUE(plot.ShowTrace(RawScan({-4838, -6000, -15000}).Bytes()));
    const ChartSurface& box = state.CSBox;
    EXPECT_EQ(box.ScaleLeft, 0.5F);
    EXPECT_EQ(box.ScaleTop, 20);
    EXPECT_EQ(box.ScaleHeight, -132) << "a tenth below for the labels";
    std::vector<FillCommand> bars;
    std::vector<std::string> texts;
    for (const DrawCommand& command : box.Picture()) {
        if (const auto* fill = std::get_if<FillCommand>(&command); fill != nullptr && fill->Ink != Black)
            bars.push_back(*fill);
        if (const auto* text = std::get_if<TextCommand>(&command))
            texts.push_back(text->Text);
    }
    ASSERT_EQ(bars.size(), 2U) << "one is below the chart";
    EXPECT_EQ(bars[0].From, (Point{0.6F, -48.38F}));
    EXPECT_EQ(bars[0].To, (Point{1.4F, -100}));
    EXPECT_NE(bars[0].Ink, bars[1].Ink) << "above the limit of -60, and on it";
    EXPECT_EQ(texts, (std::vector<std::string>{"-48", "-60", "-150", "101", "102", "103"}));
    // A curve of the host lies over the bars.
    plot.SetIndex(2);
    plot.PlotCurve(2, std::vector<float>{1, 3}, std::vector<float>{-50, -70});
    EXPECT_EQ(std::get<LineCommand>(box.Picture().back()).Pen.Ink, 0xFF00);
    EXPECT_FALSE(box.AutoRedraw);
}

TEST_F(ChannelScan, TheMouseTellsTheChannelAndMarkersDoNothing)
{
    ASSERT_TRUE(plot.ShowTrace(RawScan({-4838, -6000}).Bytes()));
    ChartSurface& box = state.CSBox;
    const DisplayList picture = box.Picture();
    state.ZoomActive = true; // left over from another chart
    MouseDown(state, box, MouseButton::Left, 0, 2.3F, -50);
    MouseMove(state, box, MouseButton::Left, 0, 2.3F, -50);
    EXPECT_TRUE(state.CSCoords.Visible);
    EXPECT_EQ(state.CSCoords.Caption, "Ch 102, 947.250 MHz, -50.0 dBm");
    EXPECT_GT(state.CSCoords.Width, 0);
    EXPECT_GT(state.CSCoords.Height, 0);
    MouseMove(state, box, MouseButton::Left, 0, 9, -50);
    EXPECT_EQ(state.CSCoords.Caption, "-50.0 dBm") << "no channel there";
    MouseUp(state, box, MouseButton::Left, 0, 9, -50);
    DblClick(state, box);
    plot.MarkerOn(1);
    EXPECT_FALSE(plot.MarkerState(1));
    EXPECT_EQ(box.Picture(), picture);
    MouseDown(state, box, MouseButton::Right, 0, 1, -50);
    ASSERT_EQ(platform.Menus.size(), 1U);
    EXPECT_FALSE(platform.Menus[0].Items.front().Visible) << "AutoScale";
    EXPECT_FALSE(platform.Menus[0].Items.back().Visible) << "Markers";
}

} // namespace
} // namespace Traces
