#include "control/ChartMenu.h"
#include "control/Input.h"
#include "formats/CodeTable.h"
#include "formats/HostFault.h"
#include "modes/evdo/EvDOTrace.h"
#include "support/RawBuilder.h"
#include "support/ShownTrace.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::RawBuilder;

/// A trace in which every field has a value of its own, by the offsets that hold in its firmware.
RawBuilder RawEvDO(const char* version, int points)
{
    const bool newer = std::string_view(version) >= "3.20";
    RawBuilder raw = Testing::RawHeader(newer ? 4151 : 3153, 146, points);
    raw.Text(12, version);
    raw.Number(57, 2, 10'000).Number(59, 4, 1'938'750'000).Number(63, 4, 10'000'000).Number(67, 1, 2);
    raw.Number(68, 2, 24).Number(70, 1, 2).Number(71, 1, 0xC0).Number(72, 1, 3);
    for (int k = 0; k < 6; ++k)
        raw.Number(73 + k, 1, k + 3);
    raw.Number(79, 2, 62).Number(81, 1, 0).Number(83, 4, 300'000).Number(87, 1, 4).Number(88, 2, 175);
    raw.Number(90, 1, 3).Text(94, "PCS 1900 EV-DO").Number(118, 1, 2);
    raw.Number(154, 4, 65'000).Number(158, 4, 64'000).Number(162, 4, 63'000).Number(166, 4, 24);
    raw.Number(170, 4, 1'000'012).Number(174, 4, 47'000).Number(178, 4, 13'800).Number(182, 4, 1'232'000);
    for (int k = 0; k < (newer ? 9 : 7); ++k)
        raw.Number(186 + 4 * k, 4, 49'000 - 500 * k).Number((newer ? 222 : 214) + 2 * k, 2, 100 + k);
    for (int k = 0; newer && k < 6; ++k)
        raw.Number(240 + 4 * k, 4, k == 5 ? 4'294'967'195 : 324 + k);
    const int tail = newer ? 264 : 228;
    raw.Number(tail, 4, 324);
    for (int k = 1; k < 13; ++k)
        raw.Number(tail + 4 * k, 4, 45'000 + 250 * k);
    raw.Number(tail + 52, 2, 612).Number(tail + 54, 1, 2).Number(tail + 55, 2, 318).Number(tail + 57, 2, 682);
    raw.Number(tail + 59, 4, 42'500).Number(tail + 63, 4, 38'412'000).Number(tail + 67, 4, -90'183'600);
    raw.Number(tail + 71, 2, 163).Number(tail + 73, 1, 1);
    if (newer)
        raw.Text(338, "20:08:51").Number(348, 1, 3);
    const int mac = newer ? 1079 : 401, data = newer ? 1719 : 721, curves = newer ? 1847 : 849;
    for (int i = 0; i < (newer ? 128 : 64); ++i)
        raw.Number(mac + 5 * i, 1, i % 8).Number(mac + 5 * i + 1, 4, 255'000 - 10 * i);
    for (int i = 0; i < 32; ++i)
        raw.Number(data + 4 * i, 4, 258'000 + i);
    for (int i = 0; i < 3 * 384; ++i)
        raw.Number(curves + 2 * i, 2, 40'000 + i);
    return raw;
}

class EvDO : public Testing::ShownTrace {
protected:
    EvDORecord& record = state.EvDO;
};

TEST_F(EvDO, FirmwareChoosesTheLayoutAndRotatesThePilots)
{
    record.CDPMACPower[100] = 5;
    plot.ShowTrace(RawEvDO("3.15", 64).Bytes());
    EXPECT_EQ(record.PilotScanPower[0], -4);
    EXPECT_EQ(record.PilotScanPN[6], 106);
    EXPECT_EQ(record.DataPowerIdle, -8);
    EXPECT_EQ(record.ActivePowerTime[383], (41'151 - 50'000) / 250.0F);
    EXPECT_EQ(record.CDPMACPower[100], 5) << "as the last trace left it";
    EXPECT_EQ(state.lstParameters.Text().find("UTC Time:"), std::string::npos);
    plot.ShowTrace(RawEvDO("3.20", 128).Bytes());
    EXPECT_EQ(record.PilotScanPower[6], -4);
    EXPECT_EQ(record.PilotScanPower[0], -10);
    EXPECT_EQ(record.PilotScanPN[6], 100);
    EXPECT_EQ(record.PilotScanPN[0], 103);
    EXPECT_FLOAT_EQ(record.PilotTau[0], 2.4F);
    EXPECT_FLOAT_EQ(record.PilotTau[5], -40);
    EXPECT_EQ(record.DataPowerIdle, -8);
    EXPECT_FLOAT_EQ(record.EVM, 6.12F);
    EXPECT_EQ(record.UTCTime, "20:08:51");
    EXPECT_EQ(record.SignalStandard, "PCS 1900 EV-DO");
    EXPECT_EQ(plot.count(), 128);
    const std::string lines = state.lstParameters.Text();
    for (const char* part : {"Display Type:\tCDP\r\n", "Data Modulation:\t16-QAM\r\n",
                             "Channel:\t175\r\nRefLelOffset CalStatus:\t1\r\nSearch Mode:\tExt Manual\r\n",
                             "Signal Standard Name:\t\r\nData Markers:\t0000 0010\r\nRho Pilot:",
                             "Tau 6:\t-40\r\nUTC Time:\t20:08:51\r\nNo Valid PilotScan:\t3\r\nTau:\t2.4\r\n",
                             "CDP MAC Data 01:\t-15\tPILOT\r\n",
                             "CDP Data I01:\t-12\r\nCDP Data Q01:\t-11.984\r\n", "Active Power/Time 384:\t"})
        EXPECT_NE(lines.find(part), std::string::npos) << part;
}

TEST_F(EvDO, TextRouteBringsBackWhatItsKeysHold)
{
    for (const char* version : {"3.15", "3.20"}) {
        SCOPED_TRACE(version);
        plot.ShowTrace(RawEvDO(version, 64).Bytes());
        const std::string text = Saved();
        const EvDORecord shown = record;
        record = {};
        plot.LoadEvDOText(text, "");
        EXPECT_EQ(record.PilotScanPower, shown.PilotScanPower);
        EXPECT_EQ(record.PilotTau, shown.PilotTau);
        EXPECT_EQ(record.Tau, shown.Tau);
        EXPECT_EQ(std::tuple(record.SearchMode, record.DataModulation, record.MeasuredDataModulationType,
                             record.DataMarkers),
                  std::tuple(3, 4, 2, 2));
        EXPECT_EQ(record.GpsLongitude, -90'183'600);
        EXPECT_EQ(record.CDPMACPower[63], shown.CDPMACPower[63]);
        EXPECT_EQ(record.CDPMACType[5], 5);
        EXPECT_EQ(record.CDPDataQ, shown.CDPDataQ);
        EXPECT_EQ(record.IdlePowerTime, shown.IdlePowerTime);
        EXPECT_TRUE(platform.Messages.empty());
    }
}

TEST_F(EvDO, LoadersWarnOfABadMeasurementAndRawTracesDont)
{
    RawBuilder raw = RawEvDO("3.20", 64);
    raw.Number(91, 2, 1024).Number(93, 1, 255);
    plot.ShowTrace(raw.Bytes());
    EXPECT_TRUE(platform.Messages.empty());
    EXPECT_TRUE(state.EvDOHolder.Picture().empty());
    EXPECT_EQ(state.EvDOTopBox.Picture().size(), 3U) << "scale and two texts";
    plot.LoadEvDOText(Saved(), "");
    ASSERT_EQ(platform.Messages.size(), 1U);
    EXPECT_EQ(platform.Messages[0].Text, "Cannot display the EvDO Trace.\r\nSignal Status: No External "
                                         "Trigger\r\nMeasurement Status: In Progress/Invalid");
}

TEST_F(EvDO, MenuItemsCrossAndChooseThePages)
{
    plot.ShowTrace(RawEvDO("3.20", 64).Bytes());
    const auto choose = [&](const char* name) { RunMenuItem(state, {name}, false); };
    choose("menuEvDOCDPMAC");
    EXPECT_EQ(record.StatusByte1 & EvDOStatus::MAC, 0);
    EXPECT_TRUE(state.EvDOSubBox.Visible) << "I and Q";
    choose("menuEvDOCDPData");
    EXPECT_NE(record.StatusByte1 & EvDOStatus::MAC, 0);
    EXPECT_FALSE(state.EvDOSubBox.Visible);
    choose("menuEvDORFSpecActive");
    EXPECT_EQ(record.DisplayType, 4);
    EXPECT_EQ(plot.count(), 384);
    EXPECT_NE(record.StatusByte1 & EvDOStatus::Active, 0);
    choose("menuEvDOOTA");
    EXPECT_EQ(record.DisplayType, 3);
    EXPECT_FALSE(state.EvDOTopBox.Visible);
}

TEST_F(EvDO, MarkersStandOnTheCodesThatTheirFlagNames)
{
    plot.ShowTrace(RawEvDO("3.20", 64).Bytes());
    const MarkerSet& markers = state.EvDOMarkers;
    EXPECT_TRUE(markers.MarkerOnAlt[0] && !markers.MarkerOnAlt[1]);
    EXPECT_EQ(markers.MarkerText[0], "-15.03 dB,3,QUICK PAGE");
    EXPECT_EQ(markers.MarkerText[1], "-12.00 dB,-11.98 dB,4");
    state.EvDOMarkers.SelectedMarker = 0;
    KeyDown(state, state.EvDOTopBox, 37, 0);
    EXPECT_EQ(record.MarkerPosition[0], 2);
    EXPECT_FALSE(plot.MarkerState(0)) << "a host is told so for this family";
}

TEST_F(EvDO, FramesHaveTheOlderLayoutWithTheirOddPlaces)
{
    plot.ShowTrace(RawEvDO("3.20", 64).Bytes());
    const std::string frame = plot.GetUpLoadTrace("");
    ASSERT_EQ(frame.size(), 3139U);
    EXPECT_EQ(Number(frame, 1, 2), 3139);
    EXPECT_EQ(Number(frame, 44, 2), 10) << "unscaled";
    EXPECT_EQ(Number(frame, 105, 1), 2);
    EXPECT_EQ(Number(frame, 173, 4), 47'500) << "pilot 1";
    EXPECT_EQ(Number(frame, 201, 2), 103);
    EXPECT_EQ(Number(frame, 235, 4), Number(frame, 231, 4)) << "the average again";
    EXPECT_EQ(Number(frame, 259, 4), Number(frame, 255, 4));
    EXPECT_EQ(Number(frame, 270, 2), 318);
    EXPECT_EQ(Number(frame, 274, 2), 0) << "the high half of the threshold";
    EXPECT_EQ(frame.substr(275, 2), "  ");
    EXPECT_EQ(Number(frame, 389, 4), 255'000);
    EXPECT_EQ(Number(frame, 708, 4), 258'000);
    EXPECT_EQ(Number(frame, 785, 4), 258'016);
    EXPECT_EQ(Number(frame, 836, 2), 40'000) << "over the end of the Q block";
    EXPECT_EQ(Number(frame, 2372 + 2 * 383, 2), 41'151);

    const std::string text = EncodeEvDOText(Saved());
    EXPECT_EQ(Number(text, 270, 2), 3'180) << "ten times the instrument's";
    EXPECT_EQ(Number(text, 68, 1), 0);
    EXPECT_EQ(Number(text, 77, 1), 3);
    EXPECT_EQ(Number(text, 199, 2), 103);
    EXPECT_EQ(Number(text, 208, 2), 108) << "one too low";
    EXPECT_EQ(Number(text, 211, 2), 100);

    const std::string raw = EncodeEvDORaw(RawEvDO("3.15", 64).AsText());
    EXPECT_EQ(Number(raw, 388, 1), 0);
    EXPECT_EQ(Number(raw, 836, 2), 40'000);
}

TEST_F(EvDO, SlotsThatWerentCapturedSaySo)
{
    RawBuilder raw = RawEvDO("3.20", 64);
    raw.Number(81, 1, 4).Number(264 + 44, 4, 250).Number(264 + 48, 4, 250);
    plot.ShowTrace(raw.Bytes());
    ASSERT_EQ(record.DataPowerIdle, EvDONotCaptured);
    EXPECT_TRUE(Says(state.EvDOSubBox, "No Idle Slot"));
    EXPECT_TRUE(Says(state.EvDOHolder, "N/A"));
    RunMenuItem(state, {"menuEvDORFSpecActive"}, false);
    EXPECT_TRUE(Says(state.EvDOSubBox, "No Data Captured"));
}

} // namespace
} // namespace Traces
