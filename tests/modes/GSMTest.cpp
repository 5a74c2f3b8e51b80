#include "control/ChartMenu.h"
#include "support/ExpectFrame.h"
#include "support/Faults.h"
#include "support/ShownTrace.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::RawBuilder;
using Testing::WithChecksum;

/// A burst in which every field has a value of its own.
RawBuilder RawBurst(const char* version, int display)
{
    RawBuilder raw = Testing::RawHeader(2562, 145, 401);
    raw.Text(12, version).Number(57, 2, 10'000).Number(59, 4, 947'500'000).Number(63, 4, 10'000'000);
    raw.Number(67, 2, 49).Number(69, 1, display).Number(70, 1, 0).Number(71, 4, 270'000).Number(75, 2, 62);
    raw.Number(77, 4, 48'082'500).Number(81, 4, -11'345'000).Number(85, 2, 519).Text(90, "GSM 900");
    raw.Number(114, 1, 3).Number(127, 2, 60'000).Number(129, 2, 50'250).Number(131, 4, 999'953);
    raw.Number(135, 4, 245'600).Number(139, 2, 5);
    for (int i = 0; i < 401; ++i)
        raw.Number(157 + 2 * i, 2, 50'000 - 2 * i)
            .Number(959 + 2 * i, 2, 60'000 - i)
            .Number(1761 + 2 * i, 2, 65'535 - i);
    return raw;
}

class GSM : public Testing::ShownTrace {
protected:
    GSMRecord& record = state.GSM;

    bool Says(const char* text) const { return CountText(state.GSMHolder, text) > 0; }

    std::vector<LineCommand> MaskLines() const
    {
        std::vector<LineCommand> lines = CommandsOf<LineCommand>(state.GSMBox);
        std::erase_if(lines, [](const LineCommand& line) { return line.Pen.Ink != RGB(160, 200, 255); });
        return lines;
    }
};

TEST_F(GSM, ListsFieldsAndThreeCurvesALine)
{
    ASSERT_TRUE(plot.ShowTrace(RawBurst("3.15", 0).Bytes()));
    const auto lines = plot.Parameters();
    ASSERT_EQ(lines.size(), 8U + 17 + 401);
    EXPECT_EQ(Lines(8, 18), "Scale Divisor: 10000|Center Frequency: 947.5|External Reference Frequency: 10|"
                            "Signal Standard: GSM 900|Display Type: 0|Display Units: dBm|Power Offset: 270|"
                            "Channel: 62|GPS Latitude: 48082500|GPS Longitude: -11345000|GPS Altitude: 519|"
                            "RefLelOffset CalStatus: 3|Measured Channel Power: 40|Measured Burst Power: 1|"
                            "Frequency Error: -47|Occupied Bandwidth: 245.6|Measured TSC: 5|000: 0 40 62.14");
    EXPECT_EQ(lines.back(), "400:\t-3.2\t38.4\t60.54");
    EXPECT_EQ(plot.count(), 401);
    EXPECT_EQ(state.YScaleTop, 10);
    EXPECT_EQ(state.YScaleBottom, -90);
}

TEST_F(GSM, TheLevelsBiasGoesByTheVersionsText)
{
    const std::pair<const char*, float> cases[] = {
        {"3.14", 40}, {"3.15", 40}, {"3.16", 0}, {"10.0", 40}, {"4.00", 0}};
    for (const auto& [version, power] : cases) {
        plot.ShowTrace(RawBurst(version, 1).Bytes());
        EXPECT_EQ(record.ChannelPower, power) << version;
        const std::string frame = plot.GetUpLoadTrace("");
        EXPECT_EQ(frame.substr(113, 2), "\xEA\x60") << version << ": 60000 again";
    }
}

TEST_F(GSM, ALoadedFileKeepsTheBurstPowerThatWasThere)
{
    plot.ShowTrace(RawBurst("3.15", 2).Number(70, 1, 1).Number(75, 2, -1).Bytes());
    const std::string file = Saved();
    Plot fresh(platform);
    Control& loaded = fresh.Instance();
    loaded.GSM.BurstPower = -7;
    fresh.LoadGSMText(file, {});
    EXPECT_TRUE(platform.Messages.empty());
    EXPECT_EQ(loaded.GSM.BurstPower, -7) << "the file says 1";
    EXPECT_EQ(loaded.GSM.DisplayUnits, 1);
    EXPECT_EQ(loaded.GSM.Channel, -1);
    EXPECT_EQ(loaded.GSM.VersionNumber, 3.15);
    EXPECT_EQ(loaded.GSMViewMode, 2);
    EXPECT_EQ(loaded.TraceSlots[0].Y[400], 60.54F);
    EXPECT_EQ(loaded.GSM.FrameCurve[7], record.FrameCurve[7]);

    fresh.LoadGSMText(WithChecksum("Channel:\t4\r\nSignal Standard:\t\r\n"), {});
    EXPECT_EQ(loaded.GSM.SignalStandard, "") << "a line without a value";
    EXPECT_EQ(loaded.GSM.RefLevelCalStatus, "3") << "no line";
    fresh.LoadGSMText(
        WithChecksum(
            "Version:\t3.20\r\nDisplay Type:\t9\r\n000:\t1\t2\t3\r\n003:\t4\t5\r\n005:\t7\tx\t9\r\n"),
        {});
    EXPECT_EQ(loaded.GSMViewMode, 0) << "no other display";
    EXPECT_EQ(loaded.GSM.SlotCurve[2], 3) << "a missing point is the one before it";
    EXPECT_NE(loaded.GSM.SpectrumCurve[3], 4) << "two numbers are no point";
    EXPECT_EQ(loaded.GSM.SpectrumCurve[5], 7);
    EXPECT_NE(loaded.GSM.FrameCurve[5], 2);
    EXPECT_EQ(loaded.GSM.SlotCurve[400], 9);
}

TEST_F(GSM, FramesAreTheRawTraceThirteenBytesLower)
{
    const std::string raw = RawBurst("3.15", 1).AsText();
    const auto head = [&](int from, int to, int filling) {
        RawBuilder frame(2562, ' ');
        for (int at = from; at <= to; ++at)
            frame.Number(at, 1, filling);
        frame.Number(1, 2, 2562).Number(3, 1, 145).Number(42, 2, 401).Text(8, "11/22/202610:20:30TOWER7");
        return frame.Text(44, raw.substr(56, 30))
            .Text(114, raw.substr(126, 14))
            .Text(144, raw.substr(156, 2406));
    };
    plot.ShowTrace(RawBurst("3.15", 1).Bytes());
    Testing::ExpectFrame(plot.GetUpLoadTrace(""), head(4, 41, 0).Text(77, "GSM 900").Number(101, 1, 3));
    ASSERT_TRUE(WriteWholeFile(folder / "a.raw", raw));
    Testing::ExpectFrame(plot.GetUpLoadTrace(folder / "a.raw"), head(32, 41, 0).Number(4, 4, 0x01020304));
    std::string file = Saved();
    ASSERT_TRUE(WriteWholeFile(folder / "a.gsm", file));
    Testing::ExpectFrame(plot.GetUpLoadTrace(folder / "a.gsm"), head(4, 7, ' '));
    const std::size_t point = file.find("007:\t");
    file.erase(point, file.find('\n', point) + 1 - point);
    ASSERT_TRUE(WriteWholeFile(folder / "a.gsm", file));
    const std::string frame = plot.GetUpLoadTrace(folder / "a.gsm");
    EXPECT_EQ(frame.substr(143 + 14, 2), "  ") << "a point without a line stays blank";
    EXPECT_EQ(frame.substr(143 + 16, 2), raw.substr(156 + 16, 2));
    ASSERT_TRUE(WriteWholeFile(folder / "a.gsm", "\r\nDisplay Type:\t300\r\nMeasured TSC:\t7\r\n"));
    EXPECT_EQ(plot.GetUpLoadTrace(folder / "a.gsm").substr(55, 1), " ") << "no byte";
}

TEST_F(GSM, TheBandTellsWhatWasMeasured)
{
    plot.ShowTrace(RawBurst("3.15", 0).Number(75, 2, -1).Bytes());
    for (const char* text : {"GSM-", "Std=GSM 900", "Channel=N/A", "0.0 dB", "Center 947.500MHz",
                             "Span 500 kHz", "40.00", "1.00", "-47", "-0.05", "245.6", "5"})
        EXPECT_TRUE(Says(text)) << text;
    EXPECT_FALSE(state.GSMHolder.AutoRedraw || state.ParamBox.Visible);
    plot.ShowTrace(
        RawBurst("3.15", 1).Number(114, 1, 1).Number(135, 4, 0).Number(139, 2, -1).Number(59, 4, 0).Bytes());
    EXPECT_TRUE(Says("Cable"));
    EXPECT_EQ(CountText(state.GSMHolder, "---"), 3)
        << "bandwidth, training sequence, and no centre for the ppm";
    EXPECT_FALSE(Says("Span 500 kHz"));
    record.FreqError = 0;
    plot.RedrawTrace();
    EXPECT_EQ(CountText(state.GSMHolder, "---"), 3) << "0 of 0 is no number";
}

TEST_F(GSM, MenuItemsChooseTheCurveAndTheSlotHasItsMask)
{
    plot.ShowTrace(RawBurst("3.15", 0).Bytes());
    EXPECT_TRUE(MaskLines().empty());
    const struct {
        const char* Item;
        int View;
        float Last;
        std::size_t MaskLines;
    } cases[] = {{"menuGSMFrame", 1, 38.4F, 0}, {"menuGSMSlot", 2, 60.54F, 20}, {"menuGSMSpec", 0, -3.2F, 0}};
    for (const auto& each : cases) {
        state.YScaleTop = 70;
        state.AutoScaleY = true;
        RunMenuItem(state, {each.Item}, false);
        EXPECT_EQ(state.GSMViewMode, each.View);
        EXPECT_EQ(state.TraceSlots[0].Y[400], each.Last);
        EXPECT_EQ(state.TraceSlots[0].X[400], 400);
        EXPECT_EQ(state.YScaleTop, 10);
        EXPECT_FALSE(state.AutoScaleY);
        EXPECT_EQ(MaskLines().size(), each.MaskLines) << each.Item;
    }
    plot.ShowTrace(RawBurst("3.15", 2).Bytes());
    const auto mask = MaskLines();
    ASSERT_EQ(mask.size(), 20U);
    EXPECT_EQ(mask[0].From, (Point{30, -90}));
    EXPECT_EQ(mask[0].Pen.Style, LineStyle::Dotted);
    EXPECT_EQ(mask[10].To, (Point{30, 2}));
    EXPECT_EQ(mask[19].To, (Point{400, -72}));

    // A longer curve of the host's has more points than the record.
    const std::vector<float> longer(500, 1);
    plot.PlotCurve(500, longer, longer);
    EXPECT_EQ(Testing::FaultOf([&] { RunMenuItem(state, {"menuGSMFrame"}, false); }), FaultKind::Range);
}

} // namespace
} // namespace Traces
