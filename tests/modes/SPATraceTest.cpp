#include "modes/vna_spa/SPATrace.h"

#include "support/ExpectFrame.h"
#include "support/Faults.h"
#include "support/RawSpectra.h"
#include "support/ShownTrace.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::ExpectFrame;
using Testing::FaultOf;
using Testing::RawBuilder;
using Testing::RawLevel;
using Testing::RawSpectrum;
using Testing::WithChecksum;

class SPATrace : public Testing::ShownTrace {
protected:
    void Load(const std::string& lines) { plot.LoadSPAText(WithChecksum(lines), {}); }
};

TEST_F(SPATrace, ListsEveryFieldInTheOrderOfTheLayout)
{
    ASSERT_TRUE(plot.ShowTrace(RawSpectrum({-62.2, -48.5}).Bytes()));
    ASSERT_EQ(plot.Parameters().size(), 8U + 95 + 2);
    EXPECT_EQ(Lines(8, 18), "Start Frequency: 925|Stop Frequency: 960.5|Center Freq: 942.75|Freq Span: 35.5|"
                            "Min Freq Step Size: 0.0125|Ref Level: -20|Scale/Div: 10|Freq Marker 1: 301|"
                            "Freq Marker 2: 302|Freq Marker 3: 303|Freq Marker 4: 304|Freq Marker 5: 305|"
                            "Freq Marker 6: 306|Single Limit: -60|Mult Upper Limit 1 Start X: 930|"
                            "Mult Upper Limit 1 Start Y: -50|Mult Upper Limit 1 End X: 931|"
                            "Mult Upper Limit 1 End Y: -51");
    EXPECT_EQ(Lines(40, 4), "Mult Upper Limit 5 End X: 939|Mult Upper Limit 5 End Y: -59|"
                            "Mult Lower Limit 1 Start X: 940|Mult Lower Limit 1 Start Y: -60");
    EXPECT_EQ(Lines(61),
              "Mult Lower Limit 5 End Y: -69|RBW Setting: 30000|VBW Setting: 10000|OCC BW Method: 1|"
              "OCC BW Percent: 99|OCC BW dBc: 26|Attenuation: 15|Antenna Name: YAGI 900        |"
              "Status Byte 1: 41|Status Byte 2: 42|Status Byte 3: 43|Status Byte 4: 44|"
              "Status Byte 5: 45|Status Byte 6: 46|Status Byte 7: 47|Ref Level Offset: 3.5|"
              "External Ref Freq: 2|Signal Standard: GSM 900|Channel Selection: 62|"
              "Interference Analysis Cell Standard: GSM|Interference Analysis Cell Bandwidth: 0.2|"
              "Interference Analysis Frequency: 947.5|Trigger Type: Video|Trigger Position: 50|"
              "Min Sweep Time: 200000000|Video Trigger Level: -35|Status Byte 8: 8|Impedence: 1|"
              // 200,000,000 begins with the bytes 0B EB, which are 3051; the field's own place holds 5700
              "Impedence Loss: 3|Freq Scale Factor: -3|Freq Range Min: 0.1|Freq Range Max: 3000|"
              "Linked Trace Number: 4|Status Byte 9: 9|CI Calc Power NB FHSS: -41|"
              "CI Calc Power WB FHSS: -42|CI Calc Power Broadband: -43|"
              "Occupied Bandwidth Power: -44.25|Marker Type: 3|GPS Latitude: 40250170|"
              "GPS Longitude: -3422250|GPS Altitude: 667|1: -62.2|2: -48.5");
    RawBuilder raw = RawSpectrum({-62.2, -48.5});
    raw.Number(77, 4, 0).Number(97, 4, -500).Number(306, 2, -1);
    ASSERT_TRUE(plot.ShowTrace(raw.Bytes()));
    EXPECT_EQ(state.SPA.RefLevel, -270);
    EXPECT_EQ(state.SPA.SingleLimit, -270) << "-270.5, halves to even";
    EXPECT_EQ(plot.Parameters()[79], "Channel Selection:\tN/A");
}

TEST_F(SPATrace, FillsTheCurveAndTheLimits)
{
    ASSERT_TRUE(plot.ShowTrace(RawSpectrum({-62.2, -48.5, -70}).Bytes()));
    EXPECT_EQ(state.TraceSlots[0].X, (std::vector<float>{925, 942.75F, 960.5F}));
    EXPECT_EQ(state.TraceSlots[0].Y, (std::vector<float>{-62.2F, -48.5F, -70}));
    EXPECT_EQ(state.YScaleTop, -20);
    EXPECT_EQ(state.YScaleBottom, -100) << "not -120: the reference level takes no part in it";
    EXPECT_EQ(plot.GPSLocation().substr(0, 17), "GPS Latitude:\tN40");

    struct Case {
        std::size_t points;
        std::optional<FaultKind> fault;
    };
    static constexpr Case cases[] = {
        {0, FaultKind::Range}, {1, FaultKind::DivisionByZero}, {402, {}}, {403, FaultKind::Range}};
    for (const auto& c : cases) {
        const RawBuilder raw = RawSpectrum(std::vector<double>(c.points, -50));
        EXPECT_EQ(FaultOf([&] { plot.ShowTrace(raw.Bytes()); }), c.fault) << c.points;
        EXPECT_EQ(state.TraceSlots[0].Length, c.points) << c.points;
    }
}

TEST_F(SPATrace, ALoadKeepsWhatTheFileDoesNotGive)
{
    ASSERT_TRUE(plot.ShowTrace(RawSpectrum({-62.2, -48.5}).Bytes()));
    Load("Mode:\tSpectrum Analyzer Mode\r\nDataPoints:\t500\r\nStart Frequency:\tnear\r\nRef Level:\t-10\r\n"
         "Single Limit:\t-7.5\r\nFreq Marker 1:\t40000\r\nMult Upper Limit 2 End Y:\t-1.5\r\n"
         "Mult Upper Limit 3 Start X:\t1\r\nMult Lower Limit 5 End Y:\t2\r\nAntenna Name:\t\r\n"
         "Signal Standard:\tGSM 1800\r\nChannel Selection:\tN/A\r\nTrigger Type:\tExternal\r\n"
         "Interference Analysis Cell Standard:\t3\r\nGPS Latitude:\t40250171\r\n2:\t-12.5\r\n402:\t-13\r\n");
    EXPECT_EQ(state.SPA.StartFreq, 925);
    EXPECT_EQ(state.SPA.RefLevel, -10);
    EXPECT_EQ(state.SPA.SingleLimit, -8);
    EXPECT_EQ(state.SPA.FreqMarker[0], 301) << "doesn't fit";
    EXPECT_EQ(state.SPA.LimitPoints[7], -1.5F) << "the last that is read";
    EXPECT_EQ(state.SPA.LimitPoints[8], 934) << "the first that isn't";
    EXPECT_EQ(state.SPA.LimitPoints[39], -69);
    EXPECT_EQ(state.SPA.AntennaName, "YAGI 900        ");
    EXPECT_EQ(state.SPA.SignalStandard, "GSM 1800");
    EXPECT_EQ(state.SPA.ChannelSelection, 62);
    EXPECT_EQ(state.SPA.TriggerType, "Video") << "a name is no number";
    EXPECT_EQ(state.SPA.InterferenceStandard, "3") << "a number comes back as its text";
    EXPECT_EQ(state.SPA.GpsLatitude, 40250172) << "through a 32-bit float";
    EXPECT_EQ(state.SPA.PointLevel[0], -62.2F);
    EXPECT_EQ(state.SPA.PointLevel[1], -12.5F);
    EXPECT_EQ(state.TraceSlots[0].Y[401], -13);
    EXPECT_EQ(plot.count(), 500) << "402 levels are taken, the rest is passed over";
    EXPECT_EQ(plot.Parameters().size(), 8U + 95 + 402) << "a spectrum's loader lists the record";
    EXPECT_EQ(state.CurrentMode, 48);
    Load("Antenna Name:\tA\r\nGPS Longitude:\t1E30\r\n");
    EXPECT_EQ(state.SPA.AntennaName, "A               ");
    EXPECT_EQ(state.SPA.GpsLongitude, -3'422'250);
}

TEST_F(SPATrace, PointsAreFoundByTheirKeysHoweverTheirLinesStand)
{
    struct Case {
        const char* what;
        const char* lines;
        std::vector<float> levels;
    };
    const Case cases[] = {
        {"as saved", "1:\t-1\r\n2:\t-2\r\n3:\t-3\r\n", {-1, -2, -3}},
        {"other order", "2:\t-2\r\n1:\t-1\r\n3:\t-3\r\n", {-1, -2, -3}},
        {"a line lost", "1:\t-1\r\n3:\t-3\r\n", {-1, 0, -3}},
        {"a key in front of the others", "3:\t-9\r\n1:\t-1\r\n2:\t-2\r\n3:\t-3\r\n", {-1, -2, -9}},
        {"a key twice", "1:\t-1\r\n1:\t-9\r\n2:\t-2\r\n3:\t-3\r\n", {-1, -2, -3}},
        {"a leading zero", "1:\t-1\r\n02:\t-9\r\n2:\t-2\r\n3:\t-3", {-1, -2, -3}},
        {"other forms", "1:\t -1 \r\n2:\tinf\r\n3:\t1,000\r\n", {-1, 0, 1000}},
        {"two fields", "1:\t-1\t5\r\n2:\t-2\r\n3:\t-3\r\n", {0, -2, -3}},
        {"no carriage return", "1:\t-1\n2:\t-2\r\n3:\t-3\r\n", {0, -2, -3}},
    };
    for (const Case& c : cases) {
        state.SPA.PointLevel = {};
        Load("DataPoints:\t3\r\n" + std::string(c.lines));
        const auto& levels = state.SPA.PointLevel;
        EXPECT_EQ(std::vector<float>(levels.begin(), levels.begin() + 3), c.levels) << c.what;
    }
}

TEST_F(SPATrace, SaveLoadAndSaveGiveTheSameFile)
{
    RawBuilder raw = RawSpectrum({-62.2, -48.5, -70.125});
    raw.Number(364, 4, 4'025'017); // 7 digits survive the float that loaders go through
    std::string first = folder / "first.spa";
    ASSERT_TRUE(plot.SaveRawTrace(raw.AsText(), first));
    plot.loadTextFile(first);
    EXPECT_TRUE(platform.Messages.empty());
    const std::vector<std::string> lines = plot.Parameters();
    std::string second = folder / "second";
    state.TraceSaved = true;
    ASSERT_TRUE(plot.SaveTrace(second));
    EXPECT_EQ(second, folder / "second.SPA");
    EXPECT_EQ(ReadWholeFile(first), ReadWholeFile(second));
    EXPECT_EQ(plot.Parameters(), lines);

    Plot fresh(platform);
    fresh.loadTextFile(first);
    EXPECT_EQ(fresh.Instance().SPA.LimitPoints[7], -53) << "the fourth limit point";
    EXPECT_EQ(fresh.Instance().SPA.LimitPoints[8], 0) << "the file's other limits aren't read";
    EXPECT_EQ(fresh.Instance().SPA.TriggerType, "");
}

/// The frame that all three routes send, up to what each does in its own way: the raw fields at their places.
RawBuilder ExpectedFrame()
{
    const std::string raw = RawSpectrum({-62.2, -48.5}).AsText();
    RawBuilder frame(2004, ' ');
    frame.Number(1, 2, 2004).Number(3, 1, 48).Number(42, 2, 2);
    frame.Text(8, "11/22/2026").Text(18, "10:20:30").Text(26, "TOWER7");
    frame.Text(44, raw.substr(56, 16)).Text(60, raw.substr(76, 240)).Text(304, raw.substr(320, 38));
    frame.Number(80, 4, RawLevel(-60)).Number(316, 2, 3'000).Number(342, 1, 3);
    return frame.Text(401, raw.substr(431));
}

TEST_F(SPATrace, TheRecordRouteWritesTheDecodedFieldsBack)
{
    ASSERT_TRUE(plot.ShowTrace(RawSpectrum({-62.2, -48.5}).Bytes()));
    RawBuilder expected = ExpectedFrame();
    for (int at = 4; at < 42; ++at)
        expected.Number(at, 1, 0);
    expected.Text(8, "11/22/2026").Text(18, "10:20:30").Text(26, "TOWER7");
    ExpectFrame(plot.GetUpLoadTrace(""), expected);
    state.Header.DataPoints = 402;
    EXPECT_EQ(FaultOf([&] { plot.GetUpLoadTrace(""); }), FaultKind::Range) << "behind the frame's end";
}

TEST_F(SPATrace, TheTextRouteMissesThreeKeysOfOurOwnFiles)
{
    ASSERT_TRUE(plot.ShowTrace(RawSpectrum({-62.2, -48.5}).Bytes()));
    plot.ParametersToSave();
    std::string text = "CHECKSUM=0000000000\r\n" + state.lstParameters.Text();
    RawBuilder expected = ExpectedFrame();
    expected.Number(52, 4, 0).Number(56, 4, 0).Number(292, 4, 0);
    ExpectFrame(EncodeSPAText(text), expected);
    text += "Center Frequency:\t942.75\r\nFrequency Span:\t35.5\r\n"
            "Interference Analysis Estimated Bandwidth:\t0.2\r\n";
    ExpectFrame(EncodeSPAText(text), ExpectedFrame());

    const std::string odd = EncodeSPAText("\r\nChannel Selection:\tN/A\r\nImpedence:\t120 Ohm\r\n");
    EXPECT_EQ(odd.substr(288, 2), "\xFF\xFF");
    EXPECT_EQ(odd[314], 2) << "by the impedances' names";
    EXPECT_EQ(EncodeSPAText("\r\nImpedence:\t300 Ohm\r\n")[314], 0);
    EXPECT_EQ(odd.substr(3, 4), "    ") << "no zeros in this route's head";
    EXPECT_EQ(FaultOf([] { EncodeSPAText("\r\nDataPoints:\t402\r\n"); }), FaultKind::Range);
}

TEST_F(SPATrace, TheRawRouteMovesBytesAndLeavesACopy)
{
    const auto home = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    RawBuilder expected = ExpectedFrame();
    expected.Number(4, 4, 0x01020304).Text(26, std::string("TOWER7") + std::string(10, '\0'));
    expected.Number(80, 4, 209'600).Number(316, 2, 5'700); // as the file has them
    const std::string raw = RawSpectrum({-62.2, -48.5}).AsText();
    ASSERT_TRUE(WriteWholeFile("a.raw", raw));
    const std::string frame = plot.GetUpLoadTrace("a.raw");
    EXPECT_EQ(ReadWholeFile("Up.dmp"), frame);
    std::filesystem::remove("Up.dmp");
    std::filesystem::create_directory("Up.dmp");
    EXPECT_EQ(FaultOf([&] { EncodeSPARaw(raw); }), FaultKind::FileAccess);
    std::filesystem::current_path(home);
    ExpectFrame(frame, expected);
}

} // namespace
} // namespace Traces
