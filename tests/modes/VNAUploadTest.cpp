#include "modes/vna_spa/VNATrace.h"
#include "support/ExpectFrame.h"
#include "support/Faults.h"
#include "support/RawBuilder.h"
#include "support/ShownTrace.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::ExpectFrame;
using Testing::FaultOf;
using Testing::RawBuilder;
using Testing::RawSweep;

/// The settings of RawSweep as they stand in a frame, 13 bytes below their raw offsets, up to the standard.
void PutSweepSettings(RawBuilder& frame)
{
    frame.Number(44, 4, 824'000'000).Number(48, 4, 894'500'000).Number(52, 4, 12'500);
    frame.Number(56, 4, 1'500).Number(60, 4, 30'250).Number(76, 4, -14);
    for (int k = 0; k < 6; ++k)
        frame.Number(64 + 2 * k, 2, 101 + k);
    for (int s = 0; s < 5; ++s) {
        const int at = 80 + 14 * s;
        frame.Number(at, 1, s + 1).Number(at + 1, 1, s + 11).Number(at + 2, 4, 1000 + s);
        frame.Number(at + 6, 2, -10 - s).Number(at + 8, 4, 2000 + s).Number(at + 12, 2, -20 - s);
    }
    frame.Number(150, 4, 5).Number(154, 4, 250);
    frame.Number(170, 4, 66'000).Number(174, 4, 12'345).Number(178, 4, 350);
    for (int k = 0; k < 5; ++k)
        frame.Number(182 + k, 1, 31 + k);
    frame.Number(187, 2, 49);
}

class VNAUpload : public Testing::ShownTrace {};

TEST_F(VNAUpload, TheRecordRouteWritesTheDecodedFieldsBack)
{
    ASSERT_TRUE(plot.ShowTrace(RawSweep(0, {1000, 10000}).Bytes()));
    RawBuilder expected(330, ' ');
    expected.Number(1, 2, 330).Number(3, 1, 0);
    for (int at = 4; at < 42; ++at)
        expected.Number(at, 1, 0);
    expected.Text(8, "11/22/2026").Text(18, "10:20:30").Text(26, "TOWER7").Number(42, 2, 2);
    PutSweepSettings(expected);
    for (int k = 0; k < 6; ++k)
        expected.Number(158 + 2 * k, 2, 201 + k);
    // The top bytes of the coordinates alone; the altitude whole.
    expected.Number(189, 1, 40'250'170 >> 24).Number(193, 1, 0xFF).Number(197, 2, -667);
    // dB, not the reflection that came in.
    expected.Number(315, 4, -200'000).Number(319, 4, 1321).Number(323, 4, 0).Number(327, 4, -1179);
    ExpectFrame(plot.GetUpLoadTrace(""), expected);
    EXPECT_EQ(plot.GetUpLoadTraceB(""), plot.GetUpLoadTrace(""));
}

TEST_F(VNAUpload, TheTextRouteSendsTheOffsetForEachPointOfOurOwnFiles)
{
    ASSERT_TRUE(plot.ShowTrace(RawSweep(2, {1000, 10000}).Bytes()));
    plot.ParametersToSave();
    RawBuilder expected(2004, ' ');
    expected.Number(1, 2, 2004).Number(3, 1, 48).Number(4, 4, 0);
    expected.Text(8, "11/22/2026").Text(18, "10:20:30").Text(26, "TOWER7").Number(42, 2, 2);
    PutSweepSettings(expected);
    expected.Number(158, 2, 201);
    for (int k = 1; k < 6; ++k)
        expected.Number(158 + 2 * k, 2, 202);
    expected.Number(189, 4, 40'250'170).Number(193, 4, -3'422'250).Number(197, 2, -667);
    expected.Number(401, 4, 270'000).Number(405, 4, 270'000);
    ExpectFrame(EncodeVNAText("CHECKSUM=0000000000\r\n" + state.lstParameters.Text()), expected);
}

TEST_F(VNAUpload, TheTextRouteReadsNumberedPointsAndStopsAtTheFramesEnd)
{
    const std::string frame = EncodeVNAText("\r\nDataPoints:\t401\r\n1:\t-20.5\r\n401:\t3\r\n");
    EXPECT_EQ(RawBuilder(4).Number(1, 4, 249'500).AsText(), frame.substr(400, 4));
    EXPECT_EQ(RawBuilder(4).Number(1, 4, 273'000).AsText(), frame.substr(2000, 4));
    EXPECT_EQ(FaultOf([] { EncodeVNAText("\nDataPoints:\t402\r\n"); }), FaultKind::Range);
    EXPECT_EQ(FaultOf([] { EncodeVNAText("\nDataPoints:\t40000\r\n"); }), FaultKind::Overflow);
    EXPECT_EQ(FaultOf([] { EncodeVNAText("\nStatus Byte 1:\t256\r\n"); }), FaultKind::Overflow);
}

TEST_F(VNAUpload, TheRawRouteMovesBytesUnconverted)
{
    const RawBuilder raw = RawSweep(1, {1000, 10000});
    RawBuilder expected(4450, ' ');
    expected.Number(1, 2, 4450).Number(3, 1, 1).Number(4, 4, 0x01020304);
    expected.Text(8, "11/22/2026")
        .Text(18, "10:20:30")
        .Text(26, std::string("TOWER7") + std::string(10, '\0'));
    expected.Number(42, 2, 2);
    PutSweepSettings(expected);
    for (int k = 0; k < 6; ++k)
        expected.Number(158 + 2 * k, 2, 201 + k);
    expected.Number(189, 4, 40'250'170).Number(193, 4, -3'422'250).Number(197, 2, -667);
    // 171 bytes from 57 reach three spare ones behind the altitude... and stop there.
    for (int at = 199; at < 215; ++at)
        expected.Number(at, 1, 0);
    expected.Number(315, 4, 1000).Number(319, 4, 1321).Number(323, 4, 10000).Number(327, 4, -1179);
    ExpectFrame(EncodeVNARaw(raw.AsText()), expected);
}

TEST_F(VNAUpload, FilesGoByTheirExtensionAndTheRawModeByte)
{
    const auto put = [&](const char* name, const std::string& content) {
        std::string path = folder / name;
        EXPECT_TRUE(WriteWholeFile(path, content));
        return path;
    };
    const std::string sweep = RawSweep(17, {1000, 10000}).AsText();
    const std::string lines = "CHECKSUM=whatever\r\nDataPoints:\t2\r\n";
    EXPECT_EQ(plot.GetUpLoadTrace(put("a.raw", sweep)), EncodeVNARaw(sweep));
    EXPECT_EQ(plot.GetUpLoadTrace(put("a.vna", lines)), EncodeVNAText(lines))
        << "the checksum isn't asked for";
    EXPECT_EQ(plot.GetUpLoadTrace(put("a.b.vna", lines)), "");
    EXPECT_EQ(plot.GetUpLoadTrace(put("a", lines)), "");
    EXPECT_EQ(plot.GetUpLoadTrace(put("unnamed.raw", RawSweep(7, {1, 2}).AsText())), "");
    EXPECT_EQ(plot.GetUpLoadTrace(put("empty.raw", "")).size(), 4450U) << "bytes that aren't there are zero";
    EXPECT_EQ(FaultOf([&] { plot.GetUpLoadTrace(folder / "none.raw"); }), FaultKind::FileAccess);
}

TEST_F(VNAUpload, RecordsThatNoFrameHoldsAreFaults)
{
    EXPECT_EQ(FaultOf([&] { plot.GetUpLoadTrace(""); }), FaultKind::Range) << "a control without a trace";
    RawBuilder raw = RawSweep(0, std::vector<std::int32_t>(700, 5000));
    raw.Number(1, 2, 120);
    EXPECT_THROW(plot.ShowTrace(raw.Bytes()), HostFault);
    EXPECT_EQ(FaultOf([&] { plot.GetUpLoadTrace(""); }), FaultKind::Range) << "frame shorter than the record";
    raw.Number(1, 2, 5924);
    EXPECT_THROW(plot.ShowTrace(raw.Bytes()), HostFault);
    EXPECT_EQ(FaultOf([&] { plot.GetUpLoadTrace(""); }), FaultKind::Range) << "more points than the record";
}

} // namespace
} // namespace Traces
