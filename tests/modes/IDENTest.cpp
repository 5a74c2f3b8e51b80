#include "control/ChartMenu.h"
#include "support/RawBuilder.h"
#include "support/ShownTrace.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::RawBuilder;
using Testing::WithChecksum;

/// An analysis in which every field has a value of its own.
RawBuilder RawAnalysis(int view)
{
    RawBuilder raw = Testing::RawHeader(3602, 147, 401);
    raw.Number(57, 1, view)
        .Number(58, 1, 1)
        .Number(59, 4, 3)
        .Number(63, 4, 851'125'000)
        .Number(67, 4, 150'000);
    raw.Number(71, 4, 250'000).Number(75, 4, 10'000).Number(79, 2, 71).Text(81, "iDEN 800");
    raw.Number(105, 4, 33'447'500).Number(109, 4, -84'233'900).Number(113, 2, 320).Text(115, "152010.00");
    raw.Number(125, 2, 4).Number(127, 4, -18).Number(131, 4, 71);
    for (int k = 0; k < 4; ++k)
        raw.Number(135 + 4 * k, 4, -281 - k).Number(203 + 4 * k, 4, 5 + k);
    raw.Number(151, 4, 17'850);
    for (int k = 0; k < 7; ++k)
        raw.Number(155 + 4 * k, 4, -601 - k);
    raw.Number(183, 4, -224).Number(187, 4, 260).Number(191, 4, -92).Number(195, 2, 997).Number(199, 4, 50);
    raw.Number(219, 4, -222).Number(223, 4, 51).Number(227, 2, 74);
    for (int i = 0; i < 401; ++i)
        raw.Number(231 + 2 * i, 2, -300 - i)
            .Number(1033 + 2 * i, 2, -400 - i)
            .Number(2795 + 2 * i, 2, -500 - i);
    for (int i = 0; i < 480; ++i)
        raw.Number(1835 + 2 * i, 2, 1000 - 10 * i);
    return raw.Number(3597, 1, 200).Number(3598, 2, 1129);
}

class IDEN : public Testing::ShownTrace {
protected:
    IDENRecord& record = state.IDEN;

    bool Says(std::string_view text) const { return CountText(state.idenHolder, text) > 0; }
};

TEST_F(IDEN, ListsFieldsAndCurvesThatRunOnePointOver)
{
    ASSERT_TRUE(plot.ShowTrace(RawAnalysis(0).Bytes()));
    const auto lines = plot.Parameters();
    ASSERT_EQ(lines.size(), 8U + 42 + 3 * 402 + 480);
    EXPECT_EQ(Lines(8, 42), "ViewMode: 0|ExternalReferenceFrequency: 1|ExternalReferenceFrequencyStatus: 3|"
                            "CenterFrequency: 851.125|GPS Altitude: 320|GPS Latitude: 33447500|"
                            "GPS Longitude: -84233900|UTC Time: 152010.00|ACPRFrequencySpan: 150|"
                            "ReferenceLevel: -20|ScalePerDivision: 10|SignalStandardID: 71|"
                            "SignalStandardName: iDEN 800|SignalStatus: 4|FrequencyError: -18|"
                            "PeaktoaverageRatio: 7.1|SubchannelSlot1ChannelPower: -28.1|"
                            "SubchannelSlot2ChannelPower: -28.2|SubchannelSlot3ChannelPower: -28.3|"
                            "SubchannelSlot4ChannelPower: -28.4|MainChannelOccupiedBandwidth: 17.85|"
                            "AdjacentChannelPowerRatio1: -60.1|AdjacentChannelPowerRatio2: -60.2|"
                            "AdjacentChannelPowerRatio3: -60.3|AdjacentChannelPowerRatio4: 0|"
                            "AdjacentChannelPowerRatio5: -60.5|AdjacentChannelPowerRatio6: -60.6|"
                            "AdjacentChannelPowerRatio7: -60.7|MainChannelPower: -22.4|DemodSQE: 26|"
                            "PhaseNoise: -92|Rho: 997|EVMAverage: 5|Subchannel1EVM: 5|Subchannel2EVM: 6|"
                            "Subchannel3EVM: 7|Subchannel4EVM: 8|ActiveSlotPower: -22.2|AverageDutyCycle: 51|"
                            "OnOffRatio: 74|channel: 1129|DemodStatus: 200");
    EXPECT_EQ(lines[50], "ACPRSpectrumPower000:\t-30");
    EXPECT_EQ(lines[50 + 401], "ACPRSpectrumPower401:\t-40") << "the first point of the next block";
    EXPECT_EQ(lines[50 + 402], "PointsofSpectrumPower000:\t-40");
    EXPECT_EQ(lines[50 + 803], "PointsofSpectrumPower401:\t100");
    EXPECT_EQ(lines[50 + 804 + 479], "PointsofDemodConstellation479:\t-3790");
    EXPECT_EQ(record.ConstellationPoints[480], -500);
    EXPECT_EQ(lines.back(), "PointsofPowervsTime401:\t-1433.2") << "two bytes that aren't a level";
}

TEST_F(IDEN, ViewCodesFoldInBandsAndNarrowFieldsKeepWhatTheyHeld)
{
    for (const auto& [code, view] :
         {std::pair{1, 0}, {0, 0}, {100, 100}, {101, 1}, {500, 1}, {501, 2}, {700, 2}, {701, 3}, {-5, -5}}) {
        plot.ShowTrace(RawAnalysis(0).Number(57, 2, code).Bytes());
        EXPECT_EQ(record.ViewMode, view) << code;
        EXPECT_EQ(state.IDENViewMode, view >= 0 && view <= 3 ? view : 0) << code;
    }
    plot.ShowTrace(RawAnalysis(0).Bytes());
    plot.ShowTrace(
        RawAnalysis(0).Number(191, 4, 40'000).Number(223, 4, -40'000).Number(67, 4, 40'000'000).Bytes());
    EXPECT_EQ(record.PhaseNoise, -92);
    EXPECT_EQ(record.AverageDutyCycle, 51);
    EXPECT_EQ(record.ACPRFrequencySpan, 150);
}

TEST_F(IDEN, AFileKeepsAllButThePhaseNoise)
{
    std::string name = folder / "base";
    ASSERT_TRUE(plot.SaveRawTrace(RawAnalysis(2).AsText(), name));
    EXPECT_EQ(name, folder / "base.IDEN");
    plot.ShowTrace(RawAnalysis(2).Bytes());
    Plot fresh(platform);
    Control& loaded = fresh.Instance();
    fresh.loadTextFile(name);
    EXPECT_EQ(loaded.CurrentMode, -1) << "loading by name doesn't know the extension";
    const std::string text = ReadWholeFile(name).value_or("");
    fresh.LoadiDen_Tester_Text(text, {});
    EXPECT_TRUE(platform.Messages.empty());
    EXPECT_EQ(loaded.CurrentMode, 147);
    EXPECT_EQ(loaded.IDENViewMode, 2);
    EXPECT_EQ(loaded.IDEN.PhaseNoise, 0) << "asked for in another spelling";
    EXPECT_EQ(loaded.IDEN.SubchannelEVM, record.SubchannelEVM);
    EXPECT_EQ(loaded.IDEN.SpectrumCurve, record.SpectrumCurve);
    EXPECT_EQ(loaded.IDEN.ConstellationPoints[479], -3790);
    EXPECT_EQ(loaded.IDEN.PowerTimeCurve[400], -90);
    EXPECT_EQ(loaded.IDEN.PowerTimeCurve[401], record.PowerTimeCurve[401]);

    fresh.LoadiDen_Tester_Text(
        WithChecksum("Rho:\t12\r\nphaseNoise:\t7\r\nACPRSpectrumPower000:\t-1234.56\r\n"
                     "PointsofDemodConstellation001:\t-123456\r\nPointsofPowervsTime002:\t-1.25\t9\r\nMode:"
                     "\tiDen Mode\r\n"),
        {});
    EXPECT_EQ(loaded.IDEN.Rho, 12);
    EXPECT_EQ(loaded.IDEN.PhaseNoise, 7);
    EXPECT_EQ(loaded.IDEN.OnOffRatio, 74) << "no line";
    EXPECT_EQ(loaded.IDEN.SignalStandardName, "iDEN 800");
    EXPECT_EQ(loaded.IDEN.ACPRCurve[0], -1234) << "six characters are read";
    EXPECT_EQ(loaded.IDEN.ConstellationPoints[1], -1234) << "five";
    EXPECT_EQ(loaded.IDEN.PowerTimeCurve[2], -1.25F) << "up to a tab";
}

TEST_F(IDEN, EachViewShowsItsCurveAndItsResults)
{
    plot.ShowTrace(RawAnalysis(1).Bytes());
    EXPECT_TRUE(Says("iDEN-ACPR View") && Says("Span 150 kHz") && Says("Upper ACPR 5 (dB)") && Says("-60.5"));
    EXPECT_EQ(plot.count(), 401);
    EXPECT_EQ(state.TraceSlots[0].Y[0], -30);
    const struct {
        const char *Item, *Title, *Result;
        std::size_t Points;
        float FirstX, FirstY;
    } cases[] = {{"menuIDENSpec", "iDEN-Spectrum View", "17.9", 401, 0, -40},
                 {"menuIDENPower", "iDEN-Power vs Time", "-28.1/-28.2/-28.3/-28.4", 401, 0, -50},
                 {"menuIDENDemod", "iDEN-Demod", "26.0", 240, 1000, 990}};
    for (const auto& each : cases) {
        ASSERT_TRUE(RunMenuItem(state, {each.Item}, false));
        EXPECT_TRUE(Says(each.Title) && Says(each.Result)) << each.Item;
        ASSERT_EQ(state.TraceSlots[0].X.size(), each.Points);
        EXPECT_EQ(state.TraceSlots[0].X[0], each.FirstX);
        EXPECT_EQ(state.TraceSlots[0].Y[0], each.FirstY);
        EXPECT_FALSE(state.idenbox1.Visible);
    }
    const ChartSurface& box = state.idenbox;
    EXPECT_NEAR(box.PixelsPerUnitX(), -box.PixelsPerUnitY(), box.PixelsPerUnitX() / 100)
        << "a circle stays one";
    EXPECT_EQ(record.ViewMode, 1) << "the record says what the instrument showed";
    // No scale a division: the usual one. A level that is none: the curve's own range.
    plot.ShowTrace(RawAnalysis(0).Number(75, 4, 0).Bytes());
    EXPECT_EQ(box.ScaleHeight, -100);
    record.ScalePerDivision = 3E38F;
    RunMenuItem(state, {"menuIDENSpec"}, false);
    EXPECT_LT(box.ScaleHeight, 0);
    EXPECT_GT(box.ScaleHeight, -60);
}

TEST_F(IDEN, TheWideLayoutShowsAllFourOverTheWholeControl)
{
    plot.ShowTrace(RawAnalysis(3).Bytes());
    plot.Resize(1500, 820);
    RunMenuItem(state, {"menuIDENAll"}, false);
    EXPECT_TRUE(state.IDENWideLayout);
    EXPECT_EQ(state.idenHolder.DeviceWidth(), 1500);
    EXPECT_EQ(state.idenHolder.DeviceHeight(), 820);
    for (const ChartSurface* box : {&state.idenbox, &state.idenbox1, &state.idenbox2, &state.idenbox3}) {
        EXPECT_TRUE(box->IsShown() && !box->AutoRedraw && !box->Picture().empty()) << box->Name;
        EXPECT_EQ(box->DeviceWidth(), 600) << box->Name;
    }
    EXPECT_TRUE(Says("iDEN-Demod") && Says("iDEN-Spectrum View"));
    // It ends with the trace, not to be undone from another one's menu.
    ASSERT_TRUE(plot.ShowTrace(Testing::RawHeader(750, 96, 100).Bytes()));
    EXPECT_FALSE(state.IDENWideLayout);
    EXPECT_EQ(state.Surface.ScaleWidth, 550);
    plot.ShowTrace(RawAnalysis(3).Bytes());
    RunMenuItem(state, {"menuIDENAll"}, false);
    // The pane takes the room of three of them.
    plot.ShowParams(true);
    plot.Resize(911, 480);
    EXPECT_FALSE(state.idenbox1.Visible);
    EXPECT_EQ(state.idenHolder.Width, 550);
    EXPECT_EQ(state.idenbox.Width, 450);
    plot.ShowParams(false);
    RunMenuItem(state, {"menuIDENDemod"}, false);
    EXPECT_FALSE(state.IDENWideLayout || state.idenbox3.Visible);
    EXPECT_EQ(state.idenbox.Left, 80);
}

} // namespace
} // namespace Traces
