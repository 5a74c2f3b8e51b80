#include "chart/ChartMouse.h"
#include "control/ChartMenu.h"
#include "control/Input.h"
#include "formats/CodeTable.h"
#include "formats/HostFault.h"
#include "modes/cdma/CDMAChart.h"
#include "modes/cdma/CDMATrace.h"
#include "support/RawBuilder.h"
#include "support/ShownTrace.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::RawBuilder;
using Testing::WithChecksum;

/// A trace in which every field has a value of its own, by the offsets that hold in its firmware.
RawBuilder RawCDMA(const char* version, int points)
{
    RawBuilder raw = Testing::RawHeader(1840, 144, points);
    raw.Text(12, version);
    raw.Number(57, 2, 10'000).Number(59, 4, 1'931'250'000).Number(63, 4, 10'000'000).Number(67, 1, 3);
    raw.Number(68, 2, 132).Number(70, 1, 1).Number(71, 1, 0xC0).Number(72, 1, 3);
    for (int k = 0; k < 6; ++k)
        raw.Number(73 + k, 1, k * 8 + 1);
    raw.Number(79, 2, 62).Number(81, 1, 2).Number(82, 1, 0).Number(83, 4, 300'500).Number(87, 1, 4);
    raw.Number(88, 2, -1).Number(90, 1, 3).Number(91, 2, 0).Number(93, 1, 0).Text(94, "PCS 1900 CDMA");
    raw.Number(154, 4, 64'224).Number(158, 4, 77).Number(162, 4, 999'963).Number(166, 4, 42'000);
    raw.Number(170, 4, 40'250).Number(174, 4, 14'700).Number(178, 4, 1'236'000);
    const bool newer = std::string_view(version) >= "3.20";
    const int powers = newer ? 9 : 7, firstPN = newer ? 218 : 210, tail = newer ? 260 : 224;
    for (int k = 0; k < powers; ++k)
        raw.Number(182 + 4 * k, 4, 48'000 - 500 * k).Number(firstPN + 2 * k, 2, 12 * k + 1);
    for (int k = 0; newer && k < 6; ++k)
        raw.Number(236 + 4 * k, 4, 3'325 + k);
    for (int k = 0; k < 4; ++k)
        raw.Number(tail + 4 * k, 4, k == 0 ? 324 : 43'000 + k);
    raw.Number(tail + 16, 4, 38'538'600).Number(tail + 20, 4, -90'122'400).Number(tail + 24, 2, 142);
    raw.Number(tail + 26, 1, 0);
    if (newer)
        raw.Text(287, "16:42:07").Number(297, 1, 4);
    for (int i = 0; i < 128; ++i)
        raw.Number(304 + 4 * i, 4, i < points ? 250'000 - 10 * i : 0).Number(816 + i, 1, i % 2);
    for (int i = 0; i < 128; ++i)
        raw.Number(944 + i, 1, i % 9);
    for (int i = 0; i < 384; ++i)
        raw.Number(1072 + 2 * i, 2, 40'000 + i);
    return raw;
}

class CDMA : public Testing::ShownTrace {
protected:
    CDMARecord& record = state.CDMA;
};

TEST_F(CDMA, FirmwareChoosesBiasStandardAndLayout)
{
    const struct {
        const char* Version;
        float Channel;
        std::string Standard;
        bool Newer;
    } cases[] = {{"3.14", -72, SignalStandard.Text(62), false},
                 {"3.15", -32, "PCS 1900 CDMA", false},
                 {"3.20", -32, "PCS 1900 CDMA", true}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.Version);
        EXPECT_TRUE(plot.ShowTrace(RawCDMA(each.Version, 128).Bytes()));
        EXPECT_FLOAT_EQ(record.ChannelPowerRMS, each.Channel);
        EXPECT_EQ(record.SignalStandard, each.Standard);
        EXPECT_EQ(record.PilotScanPN[0], 1);
        EXPECT_EQ(record.PilotScanPN[6], 73);
        EXPECT_FLOAT_EQ(record.Tau, 2.4F);
        EXPECT_EQ(record.GpsLongitude, -90'122'400);
        const std::string lines = state.lstParameters.Text();
        EXPECT_EQ(lines.find("Pilot Scan PN 9:") != std::string::npos, each.Newer);
        EXPECT_NE(lines.find("Options:\tCDMA/OTA/RF\r\nMarker Position 1:\t1\r\n"), std::string::npos);
        EXPECT_NE(lines.find("Channel:\tN/A\r\nRefLelOffset CalStatus:\t0\r\n"), std::string::npos);
        EXPECT_NE(lines.find("CDP Data 001:\t-20\t0\tPILOT\r\n"), std::string::npos);
    }
    EXPECT_EQ(record.UTCTime, "16:42:07");
    EXPECT_FLOAT_EQ(record.PilotTau[0], 3.25F);
    EXPECT_EQ(record.NoValidPilotScan, 4);
}

TEST_F(CDMA, CodesStandInBitReversedOrderWhereTheHeaderCounts128)
{
    plot.ShowTrace(RawCDMA("3.20", 128).Bytes());
    EXPECT_EQ(WalshDisplayIndex(state, 1), 64);
    EXPECT_EQ(WalshDisplayIndex(state, 64), 1);
    EXPECT_EQ(state.TraceSlots[0].Y[1], record.CDPPower[64]);
    plot.ShowTrace(RawCDMA("3.20", 64).Bytes());
    EXPECT_EQ(WalshDisplayIndex(state, 1), 1);
    platform.Choices = {{"menuCDMABitReverse"}};
    MouseDown(state, state.CDMABox, MouseButton::Right, 0, 3, -3);
    EXPECT_EQ(WalshDisplayIndex(state, 1), 32);
    EXPECT_EQ(state.TraceSlots[0].Y[1], record.CDPPower[32]);

    RawBuilder uncounted = RawCDMA("3.20", 64);
    uncounted.Number(55, 2, 0);
    plot.ShowTrace(uncounted.Bytes());
    EXPECT_EQ(state.Header.DataPoints, 64) << "told by the last code, which was never measured";
    EXPECT_FALSE(state.CDMAIs128);
    uncounted.Number(304 + 4 * 127, 4, 1);
    plot.ShowTrace(uncounted.Bytes());
    EXPECT_EQ(state.Header.DataPoints, 128);
    EXPECT_FALSE(state.CDMAIs128) << "the order was chosen before";
}

TEST_F(CDMA, MarkersComeFromTheRecordAndFoldBackIntoIt)
{
    plot.ShowTrace(RawCDMA("3.20", 64).Bytes());
    const MarkerSet& markers = state.CDMAMarkers;
    EXPECT_TRUE(markers.MarkerOn[0] && markers.MarkerOn[1] && !markers.MarkerOn[2]);
    EXPECT_EQ(markers.MarkerText[0], "-20.01 dB,1,PAGE");
    EXPECT_EQ(markers.MarkerText[2], "Off");
    plot.MarkerOff(1);
    plot.MarkerOn(5);
    EXPECT_EQ(record.StatusByte2, 0x84);
    state.CDMAMarkers.SelectedMarker = 0;
    KeyDown(state, state.CDMABox, 39, 0);
    EXPECT_EQ(record.MarkerPosition[0], 2);
    EXPECT_EQ(markers.MarkerText[0], "-20.02 dB,2,SYNC");
    for (int step = 0; step < 5; ++step)
        KeyDown(state, state.CDMABox, 37, 0);
    EXPECT_EQ(markers.MarkerIndex[0], 0);
    EXPECT_EQ(markers.MarkerText[0], "-20.00 dB,0,PILOT");
    KeyDown(state, state.CDMABox, 38, 0);
    EXPECT_EQ(markers.MarkerIndex[0], 0);
}

TEST_F(CDMA, BadMeasurementWarnsAndShowsItsStatusesAlone)
{
    RawBuilder raw = RawCDMA("3.20", 64);
    raw.Number(91, 2, 3).Number(93, 1, 255);
    EXPECT_TRUE(plot.ShowTrace(raw.Bytes()));
    ASSERT_EQ(platform.Messages.size(), 1U);
    EXPECT_EQ(platform.Messages[0].Text,
              "Cannot display the CDMA Trace.\r\nSignal Status: Unknown(3h)\r\nMeasurement Status: "
              "In Progress/Invalid");
    EXPECT_TRUE(state.CDMAHolder.Picture().empty());
    EXPECT_EQ(state.CDMABox.Picture().size(), 3U) << "scale and two texts";

    // A file brings no statuses: those of the trace before stay.
    plot.ShowTrace(RawCDMA("3.20", 64).Bytes());
    const std::string text = Saved();
    plot.ShowTrace(raw.Bytes());
    platform.Messages.clear();
    plot.LoadCDMAText(text, "");
    EXPECT_EQ(platform.Messages.size(), 1U);
    EXPECT_EQ(record.SignalStatus, "Unknown(3h)");
}

TEST_F(CDMA, MenuFollowsViewAndOptions)
{
    const auto item = [&](std::string_view name) {
        const Menu menu = ChartMenu(state, &state.CDMAMarkers);
        for (const MenuItem& each : menu.Items)
            if (each.Name == name)
                return each;
        return MenuItem{};
    };
    RawBuilder raw = RawCDMA("3.20", 128);
    raw.Number(81, 1, 4);
    plot.ShowTrace(raw.Bytes());
    EXPECT_TRUE(item("menuCDMARFSpec").Checked && !item("menuCDMABitReverse").Enabled);
    EXPECT_FALSE(item("menuMarkerHead").Enabled);
    EXPECT_EQ(plot.count(), 384);
    EXPECT_FALSE(state.ChartHasMarkers);
    RunMenuItem(state, {"menuCDMAHistogram"}, false);
    EXPECT_EQ(state.CDMAViewMode, 1);
    EXPECT_EQ(record.DisplayType, 4) << "which the list and the upload go by";
    EXPECT_TRUE(item("menuMarkerHead").Enabled);
    raw.Number(72, 1, 1);
    plot.ShowTrace(raw.Bytes());
    EXPECT_FALSE(item("menuCDMARFSpec").Enabled);
}

TEST_F(CDMA, TextRouteBringsBackWhatItsKeysHold)
{
    for (const char* version : {"3.15", "3.20"}) {
        SCOPED_TRACE(version);
        plot.ShowTrace(RawCDMA(version, 128).Bytes());
        const std::string text = Saved();
        const CDMARecord shown = record;
        record = {};
        plot.LoadCDMAText(text, "");
        EXPECT_EQ(record.ChannelPowerRMS, shown.ChannelPowerRMS);
        EXPECT_EQ(record.PNOffset, 77);
        EXPECT_EQ(record.Channel, -1);
        EXPECT_EQ(record.Tau, shown.Tau);
        EXPECT_EQ(record.PilotScanPower, shown.PilotScanPower);
        EXPECT_EQ(record.CDPPower, shown.CDPPower);
        EXPECT_EQ(record.CDPLink, shown.CDPLink);
        EXPECT_EQ(record.CDPChannelType[7], 7);
        EXPECT_EQ(record.RFSpectrum, shown.RFSpectrum);
        EXPECT_EQ(record.GpsLatitude, std::string_view(version) == "3.20" ? 38'538'600 : 0);
        EXPECT_EQ(record.SignalStatus, "");
    }
}

TEST_F(CDMA, FramesCarryTheLayoutOfTheLastFirmware)
{
    plot.ShowTrace(RawCDMA("3.15", 128).Bytes());
    const std::string older = plot.GetUpLoadTrace("");
    ASSERT_EQ(older.size(), 1826U);
    EXPECT_EQ(Number(older, 1, 2), 1826);
    EXPECT_EQ(Number(older, 3, 1), 144);
    EXPECT_EQ(Number(older, 46, 4), 1'931'250'000);
    EXPECT_EQ(Number(older, 75, 2), 0xFFFF) << "no channel";
    EXPECT_EQ(Number(older, 153, 4), 42'000);
    EXPECT_EQ(Number(older, 197, 2), 1);
    EXPECT_EQ(Number(older, 211, 4), 324);
    EXPECT_EQ(Number(older, 227, 4), 38'538'600);
    EXPECT_EQ(Number(older, 291, 4), 250'000);
    EXPECT_EQ(Number(older, 931 + 8, 1), 8) << "by way of its unknown text";
    EXPECT_EQ(Number(older, 1059 + 2 * 383, 2), 40'383);
    const std::string text = Saved();

    plot.ShowTrace(RawCDMA("3.20", 128).Bytes());
    const std::string first = plot.GetUpLoadTrace("");
    const std::string second = plot.GetUpLoadTrace("");
    EXPECT_EQ(Number(first, 205, 2), 1);
    EXPECT_EQ(Number(first, 223, 4), 3'325);
    EXPECT_EQ(Number(second, 223, 4), 6'325) << "an upload moves the record's delays on";
    EXPECT_EQ(first.substr(274 - 1, 10), "16:42:07  ");
    EXPECT_EQ(Number(first, 284, 1), 4);
    // The file's own firmware doesn't count, and its position isn't carried.
    const std::string loaded = EncodeCDMAText(text);
    EXPECT_EQ(Number(loaded, 205, 2), 1);
    EXPECT_EQ(loaded.substr(263 - 1, 11), std::string(11, ' '));
    EXPECT_EQ(Number(loaded, 247, 4), 324);

    const std::string raw = EncodeCDMARaw(RawCDMA("3.20", 128).AsText());
    EXPECT_EQ(Number(raw, 46, 4), 1'931'250'000);
    EXPECT_EQ(Number(raw, 205, 2), 1);
    EXPECT_EQ(raw.substr(227 - 1, 64), std::string(64, ' ')) << "cut off at offset 239";
}

} // namespace
} // namespace Traces
