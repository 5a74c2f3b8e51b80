#include "modes/gps_tester/GPSTesterView.h"
#include "support/RawBuilder.h"
#include "support/ShownTrace.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::RawBuilder;
using Testing::WithChecksum;

struct Event {
    int Code, Status, Current;
    const char* Time;
};

/// A check with these events; fields of one byte share words with their neighbours.
RawBuilder RawCheck(const std::vector<Event>& events)
{
    RawBuilder raw = Testing::RawHeader(130 + 28 * std::max<std::size_t>(events.size(), 1), 148, 0);
    raw.Number(57, 1, 1).Number(58, 2, 3).Number(60, 4, 3600).Number(64, 4, 120).Number(68, 1, 2);
    raw.Number(69, 1, 0).Number(70, 1, 1).Number(71, 2, 9).Number(73, 4, 85).Number(77, 4, 48'082'500);
    raw.Number(81, 4, -11'345'000).Number(85, 2, 519).Text(87, "102030.00").Text(107, "102100.00");
    raw.Number(117, 2, static_cast<int>(events.size()));
    int at = 119;
    for (const Event& event : events) {
        raw.Number(at, 1, event.Code).Number(at + 2, 2, at).Number(at + 4, 2, event.Status);
        raw.Number(at + 6, 4, event.Current).Text(at + 10, event.Time).Text(at + 16, "020612102031");
        at += 28;
    }
    return raw;
}

const std::vector<Event> FourEvents = {
    {1, 1, 80, "102030"}, {2, 7, 81, "102115"}, {1, 0, 82, "102200"}, {2, 0, 83, "102245"}};

class GPSTester : public Testing::ShownTrace {
protected:
    GPSTesterRecord& record = state.GPSTester;
};

TEST_F(GPSTester, ListsWordsThatShareBytesAndALineAnEvent)
{
    ASSERT_TRUE(plot.ShowTrace(RawCheck(FourEvents).Bytes()));
    EXPECT_EQ(Lines(), "Auto Save Count: 3|Auto Save Flag: True|Current Draw: 85|GPS Altitude: 519|"
                       "GPS Latitude: 48082500|GPS Longitude: -11345000|GPS Fix Time: 102030.00|"
                       "GPS Quality: 256|Hundred Event List: 256|Length of Event List: 4|Lost GPS Time: |"
                       "Measurement Status: 1|Measurement Time Duration: 3600|Remaining Measure Time: 120|"
                       "Tracked GPS Satellites: 9|UTC Time: 102100.00|View Mode: 512|"
                       "GPS Tester Data 001: 102030 GPS Status Good (80mA) 1 119 020612102031|"
                       "GPS Tester Data 002: 102115 Tracked 7 satellites (81mA) 2 147 020612102031|"
                       "GPS Tester Data 003: 102200 GPS Status Bad (82mA) 1 175 020612102031|"
                       "GPS Tester Data 004: 102245 Tracked 0 satellites (83mA) 2 203 020612102031");
    EXPECT_EQ(plot.GPSLocation().find("N48"), std::string::npos) << "the mode has no position for hosts";
}

TEST_F(GPSTester, TheListLeavesOutLostFixes)
{
    ASSERT_TRUE(plot.ShowTrace(RawCheck(FourEvents).Bytes()));
    EXPECT_EQ(ShownGPSEvents(state), (std::vector<std::string>{"102030 - GPS Status Good (80mA)",
                                                               "102115 - Tracked 7 satellites (81mA)"}));
    EXPECT_TRUE(Says(state.GPSiDENBox, "102115 - Tracked 7 satellites (81mA)"));
    EXPECT_FALSE(Says(state.GPSiDENBox, "102200 - GPS Status Bad (82mA)"));
    EXPECT_TRUE(Says(state.GPSiDENHolder, "Events: 4"));
    plot.ShowTrace(RawCheck(std::vector<Event>(40, {1, 1, 5, "110000"})).Bytes());
    EXPECT_TRUE(Says(state.GPSiDENBox, "and 16 more"));
}

TEST_F(GPSTester, CountsBeyondTheRoomAreBroughtWithinIt)
{
    for (const auto& [told, taken] : {std::pair{-1, 0U}, {200, 200U}, {201, 200U}, {32767, 200U}}) {
        RawBuilder raw = RawCheck({{1, 1, 5, "110000"}});
        ASSERT_TRUE(plot.ShowTrace(raw.Number(117, 2, told).Bytes()));
        EXPECT_EQ(state.GPSEvents.size(), taken);
        EXPECT_EQ(record.EventCount, told);
    }
    EXPECT_EQ(state.GPSEvents[0].Time, "110000");
    EXPECT_EQ(state.GPSEvents[1].Shown(), " - Tracked 0 satellites (0mA)") << "behind the trace's end";
}

TEST_F(GPSTester, AFileBringsBackWhatTheListShows)
{
    std::string name = folder / "check";
    ASSERT_TRUE(plot.SaveRawTrace(RawCheck(FourEvents).AsText(), name));
    EXPECT_EQ(name, folder / "check.GPST");
    Plot fresh(platform);
    fresh.loadTextFile(name);
    Control& loaded = fresh.Instance();
    EXPECT_TRUE(platform.Messages.empty());
    EXPECT_EQ(loaded.CurrentMode, 148);
    EXPECT_TRUE(loaded.GPSTester.AutoSaveFlag);
    EXPECT_EQ(ShownGPSEvents(loaded), ShownGPSEvents(state));
    EXPECT_EQ(loaded.GPSEvents[3].Status, "Tracked 0 satellites");
    EXPECT_EQ(loaded.GPSEvents[0].SecondTime, "") << "behind what is read";

    fresh.LoadiDen_GPS_Tester_Text(WithChecksum("Auto Save Flag:\tmaybe\r\nLength of Event List:\t3\r\n"
                                                "GPS Tester Data 001:\t999999\tall well\r\nGPS Tester Data "
                                                "002:\t113000\tTracked 4 satellites\t(4294967295mA)\r\n"),
                                   {});
    EXPECT_TRUE(loaded.GPSTester.AutoSaveFlag);
    EXPECT_EQ(loaded.GPSTester.UtcTime, "102100.00") << "no line";
    ASSERT_EQ(loaded.GPSEvents.size(), 3U);
    EXPECT_EQ(ShownGPSEvents(loaded).size(), 1U) << "two columns are no event, nor is a missing line";
    EXPECT_EQ(loaded.GPSEvents[1].Shown(), "113000 - Tracked 4 satellites (4294967295mA)");
}

TEST_F(GPSTester, ThePaneTellsHowItWent)
{
    plot.ShowParams(true);
    plot.ShowTrace(RawCheck(FourEvents).Bytes());
    for (const char* text : {"GPS Tester", "Pass", "N48*8.25'", "102030.00", "N/A", "85 mA"})
        EXPECT_TRUE(Says(state.ParamBox, text)) << text;
    plot.ShowTrace(RawCheck(FourEvents)
                       .Number(69, 2, 0)
                       .Text(97, "101500.00")
                       .Number(77, 4, -1)
                       .Number(81, 4, -1)
                       .Bytes());
    EXPECT_TRUE(Says(state.ParamBox, "Fail") && Says(state.ParamBox, "101500.00"));
    EXPECT_FALSE(Says(state.ParamBox, "N48*8.25'"));
}

} // namespace
} // namespace Traces
