#include "chart/Panel.h"
#include "control/Input.h"
#include "support/ExpectFrame.h"
#include "support/ShownTrace.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::RawBuilder;
using Testing::WithChecksum;

constexpr int T1 = 96, E1 = 112;
constexpr Colour Green = 65280;

/// A line test in which every field has a value of its own.
RawBuilder RawLineTest(int mode, int display = 0)
{
    RawBuilder raw = Testing::RawHeader(750, mode, 100);
    const int codes[] = {2, 1, 1, 3, 1, 2, 1, 0, 1, display, 2, 7, 1};
    for (int i = 0; i < 13; ++i)
        raw.Number(57 + i, 1, codes[i]);
    raw.Number(70, 2, 11).Number(72, 2, 12).Number(74, 2, -13).Number(76, 1, 2).Number(77, 1, 9);
    raw.Number(78, 1, 0).Number(79, 1, 1).Number(80, 1, 0).Number(81, 1, 2);
    for (int i = 0; i < 9; ++i)
        raw.Number(82 + 4 * i, 4, i == 5 ? 40 : 100'000 + i);
    raw.Text(118, "14:05:30").Text(126, "14:07:15   ").Text(137, "00 01:01:45").Text(148, "3.2E-04 ");
    for (int i = 0; i < 100; ++i)
        raw.Number(156 + 5 * i, 1, i % 32).Number(157 + 5 * i, 4, i * i * i);
    raw.Number(656, 2, 411).Number(658, 4, 1'544'007).Number(662, 4, 52'312'400).Number(666, 4, -4'541'900);
    raw.Number(670, 2, 12).Number(672, 1, 1).Number(673, 1, 17).Number(674, 2, 60).Number(676, 2, 17);
    raw.Number(678, 2, 1004).Number(680, 2, 264).Number(682, 2, 1005).Number(684, 1, 1).Number(685, 1, 1);
    return raw.Number(686, 1, 2).Number(687, 1, 33).Number(688, 2, 4).Number(690, 4, 5).Number(694, 4, 66);
}

class LineTest : public Testing::ShownTrace {
protected:
    E1T1Record& record = state.E1T1;

    std::vector<Colour> Lamps() const
    {
        std::vector<Colour> lamps;
        for (const CircleCommand& circle : CommandsOf<CircleCommand>(state.E1T1Holder))
            if (circle.Ink != Black)
                lamps.push_back(circle.Ink);
        return lamps;
    }
};

TEST_F(LineTest, ListsFieldsSlicesAndReadingsInOrder)
{
    ASSERT_TRUE(plot.ShowTrace(RawLineTest(E1).Bytes()));
    const auto lines = plot.Parameters();
    ASSERT_EQ(lines.size(), 8U + 38 + 100 + 15);
    EXPECT_EQ(Lines(8, 10), "Receive Input: Monitor|Framing Mode: ESF|Line Coding: B8ZS|Tx Level: -15 dB|"
                            "Clock Source: Internal|Error Insert Type: Bit Errors|Loop Code: NIU|"
                            "Loop Type: In Band|CRC Method: Japanese CRC|Display Type: Histogram");
    EXPECT_EQ(Lines(28, 19),
              "Carrier Status: In Sync|Rx Alarms: Receiving RAI|BPV Error Count: 100000|"
              "CRC Error Count: 100001|Severely Error Seconds: 5|Unavailable Seconds: 66|"
              "Degraded Minutes: 4|Frame Error Count: 100002|LOF Error Count: 100003|"
              "E_Bit Error Count: 100004|Errored Seconds: 40|Bit Count: 100006|"
              "Bit Errors: 100007|User Defined Pattern: 100008|Measurement Start Time: 14:05:30|"
              "Measurement Stop Time: 14:07:15   |Elapsed Time: 00 01:01:45|"
              "Bit Error Rate: 3.2E-04 |Data(1): 0 0");
    EXPECT_EQ(Lines(145), "Data(100): 3 970299|VPP/dBdsx: 6.1|VPP Scaling: 1|VPP Rx Config: Bridged|"
                          "VPP Impedance: 120 Ohms|T1E1 Receive Freq: 1.544007|GPS Latitude: 52312400|"
                          "GPS Longitude: -4541900|GPS Altitude: 12|DS0/E0 Channel Insert State: 1|"
                          "DS0/E0 Channel Number: 17|DS0/E0 Audio Monitor Volume: 60|DS0/E0 Send Level: -13|"
                          "DS0/E0 Send Frequency: 1004|DS0/E0 Receive Level: -13.7|"
                          "DS0/E0 Receive Frequency: 1005");
    EXPECT_EQ(record.Record687, 33);
    EXPECT_EQ(plot.count(), 100);
    EXPECT_EQ(state.TraceSlots[0].X[99], 100);
    EXPECT_EQ(state.TraceSlots[0].Y[10], 1000);
    EXPECT_EQ(plot.GPSLocation().substr(0, 17), "GPS Latitude:\tN52");
}

TEST_F(LineTest, LevelsFollowTheirScaleAndT1IsOf100Ohms)
{
    const struct {
        int Mode, Scaling, Raw, RawReceive;
        float Level, Receive;
        const char* Impedance;
    } cases[] = {{T1, 1, 350, 401, 0, 0, "100 Ohms"},
                 {E1, 0, 350, 0, 35, -40.1F, "120 Ohms"},
                 {E1, 2, 276, 402, -7.4F, 0.1F, "120 Ohms"}};
    for (const auto& each : cases) {
        plot.ShowTrace(RawLineTest(each.Mode)
                           .Number(684, 1, each.Scaling)
                           .Number(656, 2, each.Raw)
                           .Number(680, 2, each.RawReceive)
                           .Bytes());
        EXPECT_FLOAT_EQ(record.VppLevel, each.Level);
        EXPECT_NEAR(record.ReceiveLevel, each.Receive, 1E-5);
        EXPECT_EQ(record.VppImpedance, each.Impedance);
    }
}

TEST_F(LineTest, ALoadedFileLosesLoopWordsAlarmsDecimalsAndThe100Ohms)
{
    plot.ShowTrace(RawLineTest(T1).Number(63, 1, 3).Number(64, 1, 1).Bytes());
    const std::string file = Saved();
    Plot fresh(platform);
    fresh.LoadE1T1Text(file, {});
    const E1T1Record& loaded = fresh.Instance().E1T1;
    EXPECT_TRUE(platform.Messages.empty());
    EXPECT_EQ(fresh.Instance().CurrentMode, T1);
    EXPECT_EQ(loaded.LoopCode, 0);
    EXPECT_EQ(loaded.LoopType, 0);
    EXPECT_EQ(loaded.RxAlarms, "");
    EXPECT_EQ(loaded.VppLevel, 6);
    EXPECT_EQ(loaded.ReceiveLevel, -14);
    EXPECT_EQ(loaded.VppImpedance, "Unknown(00h)");
    EXPECT_EQ(loaded.StopTime, "14:07:15   ");
    EXPECT_EQ(loaded.UnavailableSeconds, 66);
    EXPECT_EQ(loaded.Slices[99].SliceCount, 970'299);
    EXPECT_EQ(fresh.Instance().TraceSlots[0].Y[99], 970'299);

    fresh.LoadE1T1Text(
        WithChecksum("Mode:\tE1\r\nLoop Code:\t2\r\nRx Alarms:\t3\r\nBit Error Rate:\t1E-3\r\n"
                     "Data(1):\t7\r\nData(2):\t1\t5\t9\r\nData(3):\t300\t6\r\nData(4):\tx\t8\r\n"),
        {});
    EXPECT_EQ(loaded.LoopCode, 2);
    EXPECT_EQ(loaded.StopTime, "14:07:15   ") << "no line";
    EXPECT_EQ(loaded.RxAlarms, "3");
    EXPECT_EQ(loaded.BitErrorRate, "1E-3    ");
    EXPECT_EQ(loaded.Slices[0].SliceFlags, 0) << "one number is no slice";
    EXPECT_EQ(loaded.Slices[1].SliceCount, 1) << "nor are three";
    EXPECT_EQ(loaded.Slices[2].SliceFlags, 2) << "no byte";
    EXPECT_EQ(loaded.Slices[2].SliceCount, 6);
    EXPECT_EQ(loaded.Slices[3].SliceFlags, 3);
    EXPECT_EQ(loaded.Slices[3].SliceCount, 8);
}

TEST_F(LineTest, FramesAreTheRawTraceWithoutItsLastCounters)
{
    const std::string raw = RawLineTest(E1).AsText();
    const auto head = [](int from, int to, int filling) {
        RawBuilder frame(737, ' ');
        for (int at = from; at <= to; ++at)
            frame.Number(at, 1, filling);
        return frame.Number(1, 2, 737)
            .Number(3, 1, E1)
            .Number(42, 2, 100)
            .Text(8, "11/22/202610:20:30TOWER7");
    };
    const auto body = [&](RawBuilder frame) {
        frame.Text(44, raw.substr(56, 60)).Text(105, raw.substr(117, 569)).Number(68, 1, 1);
        for (int at = 674; at <= 737; ++at)
            frame.Number(at, 1, 0);
        return frame;
    };
    plot.ShowTrace(RawLineTest(E1).Bytes());
    Testing::ExpectFrame(plot.GetUpLoadTrace(""), body(head(4, 41, 0)));

    // The lines in lower case find nothing, so every level goes as one in dBdsx.
    ASSERT_TRUE(WriteWholeFile(folder / "a.et1", Saved()));
    Testing::ExpectFrame(plot.GetUpLoadTrace(folder / "a.et1"), body(head(4, 7, ' ')).Number(671, 3, 0));
    ASSERT_TRUE(WriteWholeFile(folder / "a.raw", raw));
    Testing::ExpectFrame(plot.GetUpLoadTrace(folder / "a.raw"),
                         head(32, 41, 0).Number(4, 4, 0x01020304).Text(44, raw.substr(56, 694)));

    ASSERT_TRUE(WriteWholeFile(folder / "a.et1", "\r\nData(1):\t7\t8\t9\r\nData(2):\t7\t8\r\n"));
    EXPECT_EQ(plot.GetUpLoadTrace(folder / "a.et1").substr(142, 10), std::string("     \7\0\0\0\10", 10))
        << "three columns are no slice";

    plot.ShowTrace(RawLineTest(T1).Number(684, 1, 0).Bytes());
    const std::string volts = plot.GetUpLoadTrace("");
    EXPECT_EQ(volts.substr(642, 2), std::string("\x01\x9B")) << "without the bias of decibels";
    EXPECT_EQ(volts[2], T1);
    EXPECT_EQ(volts[672], 0) << "100 Ohms has no code";
}

TEST_F(LineTest, HistogramHasABarASliceAndARowAnError)
{
    plot.ShowTrace(RawLineTest(T1, 1).Bytes()); // "Raw Data"
    for (ChartSurface* box : {&state.E1T1Box, &state.ErrorsBox}) {
        EXPECT_TRUE(box->Visible && !box->AutoRedraw);
        EXPECT_EQ(box->ScaleLeft, 0.5F);
        EXPECT_EQ(box->ScaleTop, 5);
    }
    const auto bars = Fills(state.E1T1Box, Yellow);
    ASSERT_EQ(bars.size(), 99U) << "slice 1 has no errors";
    const float half = 99.5F / 200;
    EXPECT_EQ(bars[0].From, (Point{2 - half, 0}));
    EXPECT_EQ(bars[0].To, (Point{2 + half, 1}));
    EXPECT_EQ(bars[9].To.Y, 4) << "1000";
    EXPECT_EQ(bars[98].To.Y, 5) << "beyond the last decade";
    std::vector<std::pair<float, float>> rows;
    for (const FillCommand& fill : Fills(state.ErrorsBox, Yellow))
        if (fill.From.X == 32 - half)
            rows.emplace_back(fill.From.Y, fill.To.Y);
    EXPECT_EQ(rows, (std::vector<std::pair<float, float>>{{4, 5}, {3, 4}, {2, 3}, {1, 2}, {0, 1}}));
    float crc = -1;
    for (const FillCommand& fill : Fills(state.ErrorsBox, Yellow))
        if (fill.From.X == 3 - half)
            crc = fill.To.Y;
    EXPECT_EQ(crc, 1) << "the foot of the map";
    EXPECT_EQ(Lamps(), (std::vector<Colour>{Green, Green, Red}));
    for (const char* text : {"T1-", "Receiving RAI", "60 min. Updates", "BER = 3.2E-04 ", "Tx Level = -15 dB",
                             "Time Elapsed: 00 01:01:45", "Loop Code = NIU In Band"})
        EXPECT_TRUE(Says(state.E1T1Holder, text)) << text;
    plot.ShowTrace(RawLineTest(E1).Text(148, "        ").Bytes());
    EXPECT_TRUE(Says(state.E1T1Holder, "Impedence = 120 Ohm"));
    EXPECT_FALSE(Says(state.E1T1Holder, "BER =         "));

    // A longer curve of the host's has bars, but no flags.
    std::vector<float> longer(120, 3);
    plot.PlotCurve(120, longer, longer);
    EXPECT_EQ(Fills(state.E1T1Box, Yellow).size(), 120U);
    EXPECT_EQ(state.ErrorsBox.AutoRedraw, false);
}

TEST_F(LineTest, MarkersMoveOverTheSlicesAndAZoomKeepsBothBoxesAligned)
{
    plot.ShowTrace(RawLineTest(T1).Bytes());
    plot.MarkerOn(1);
    ChartSurface& box = state.E1T1Box;
    MouseDown(state, box, MouseButton::Left, 0, 1, 2);
    MouseMove(state, box, MouseButton::Left, 0, 41.4F, 2);
    MouseUp(state, box, MouseButton::Left, 0, 41.4F, 2);
    EXPECT_EQ(state.E1T1Markers.MarkerIndex[1], 41);
    EXPECT_EQ(state.E1T1Markers.MarkerText[1], "41.400");
    DblClick(state, box);
    MouseDown(state, box, MouseButton::Left, 0, 20, 4);
    MouseMove(state, box, MouseButton::Left, 0, 40, 1);
    MouseUp(state, box, MouseButton::Left, 0, 40, 1);
    EXPECT_EQ(box.ScaleTop, 4);
    EXPECT_EQ(box.ScaleHeight, -3);
    EXPECT_EQ(state.ErrorsBox.ScaleTop, 5) << "all rows stay";
    for (const ChartSurface* each : {&box, &state.ErrorsBox}) {
        EXPECT_EQ(each->ScaleLeft, 20);
        EXPECT_EQ(each->ScaleWidth, 20);
    }
    EXPECT_FLOAT_EQ(Fills(box, Yellow)[0].To.X - Fills(box, Yellow)[0].From.X, 0.995F)
        << "bars keep their slices";
}

TEST_F(LineTest, VppIsInDecibelsForAScalingOfOneAlone)
{
    plot.ShowTrace(RawLineTest(T1, 2).Bytes());
    EXPECT_FALSE(state.E1T1Box.Visible || state.ErrorsBox.Visible || state.VFFreqLabel.Visible);
    EXPECT_TRUE(state.VppBar.Visible && state.VppLabel.Visible);
    EXPECT_EQ(state.VppLabel.Caption, "6.10 dB");
    EXPECT_EQ(state.VppBar.Width, 225);
    EXPECT_EQ(Fills(state.VppBar, Red), (std::vector{FillCommand{{-35, 1}, {6.1F, 0}, Red}}));
    EXPECT_EQ(Fills(state.E1T1Holder, White).size(), 9U) << "ticks";
    EXPECT_TRUE(Says(state.E1T1Holder, "-30") && Says(state.E1T1Holder, "dBdsx"));
    plot.ShowTrace(RawLineTest(T1, 2).Number(684, 1, 2).Bytes());
    EXPECT_EQ(state.VppLabel.Caption, "6.10 VPP") << "though the level was decoded as decibels";
    EXPECT_EQ(state.VppBar.Width, 264);
    EXPECT_EQ(Fills(state.VppBar, Red), (std::vector{FillCommand{{-1, 1}, {6.1F, 0}, Red}}));
    EXPECT_EQ(Fills(state.E1T1Holder, White).size(), 11U);
    EXPECT_TRUE(Says(state.E1T1Holder, "Impedance = 100 Ohms"));
}

TEST_F(LineTest, ToneIsUnavailableWithoutFrameSync)
{
    const struct {
        int Sync, Frequency, Level;
        const char *FrequencyText, *PowerText;
    } cases[] = {{0, 100, 401, "100", "0.0"},
                 {0, 99, 1, "< 100", "-40.0"},
                 {0, 1004, 0, "1004", "< -40.0"},
                 {1, 1004, 264, "UNAVAILABLE", "UNAVAILABLE"}};
    for (const auto& each : cases) {
        plot.ShowTrace(RawLineTest(T1, 3)
                           .Number(78, 1, each.Sync)
                           .Number(682, 2, each.Frequency)
                           .Number(680, 2, each.Level)
                           .Bytes());
        EXPECT_EQ(state.VFFreqLabel.Caption, each.FrequencyText);
        EXPECT_EQ(state.VFPowerLabel.Caption, each.PowerText);
        EXPECT_EQ(Lamps(), (std::vector<Colour>{Green, each.Sync == 0 ? Green : Red}));
    }
    EXPECT_TRUE(Says(state.E1T1Holder, "VF/DSO Tester"));
    EXPECT_FALSE(state.VppBar.Visible);
}

TEST_F(LineTest, PaneCountsAnHourAsATwelfthOfASecond)
{
    plot.ShowParams(true);
    const struct {
        const char *Elapsed, *ErrorFree, *Available;
    } cases[] = {{"00 12:01:45", "66", "40"},
                 {"00 00:01:45", "65", "39"},
                 {"           ", "0", "0"},
                 {"soon", "0", "0"}};
    for (const auto& each : cases) {
        plot.ShowTrace(RawLineTest(T1)
                           .Text(137, Traces::Testing::RawBuilder(11, ' ').Text(1, each.Elapsed).AsText())
                           .Bytes());
        EXPECT_TRUE(state.ParamBox.Visible);
        EXPECT_TRUE(Says(state.ParamBox, each.ErrorFree) && Says(state.ParamBox, each.Available))
            << each.Elapsed;
        EXPECT_FALSE(Says(state.ParamBox, "Bits") || Says(state.ParamBox, "N/A"));
    }
    plot.ShowTrace(RawLineTest(E1, 3).Bytes());
    EXPECT_TRUE(Says(state.ParamBox, "Bits") && Says(state.ParamBox, "100004") &&
                Says(state.ParamBox, "N/A"));
    plot.ShowParams(false);
    plot.ShowTrace(RawLineTest(E1).Bytes());
    EXPECT_FALSE(state.ParamBox.Visible);
}

} // namespace
} // namespace Traces
