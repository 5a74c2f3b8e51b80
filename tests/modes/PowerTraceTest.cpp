#include "formats/LibraryValues.h"
#include "modes/power/PowerMeterTrace.h"
#include "support/RawPower.h"
#include "support/ShownTrace.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <span>

namespace Traces {
namespace {

using Testing::RawBuilder;
using Testing::RawPower;
using Testing::RawZephra;
using Testing::WithChecksum;

class PowerTrace : public Testing::ShownTrace {
protected:
    PowerRecord& power = state.Power;
    ZephraRecord& zephra = state.Zephra;

    /// Loads the trace's lines into another control, which must save the same. What that lists after the
    /// load.
    std::string LinesLoaded(void (Plot::*load)(std::string_view, const std::string&))
    {
        Plot other(platform);
        (other.*load)(WithChecksum(state.lstParameters.Text()), {});
        const std::string lines = LinesOf(other);
        EXPECT_EQ(other.ParametersToSave(), plot.Parameters());
        return lines;
    }
};

TEST_F(PowerTrace, AMeterListsEveryFieldInItsOrder)
{
    ASSERT_TRUE(plot.ShowTrace(RawPower().Bytes()));
    const std::string expected =
        "Power Meter Mode: 3|Power Meter Unit: 1|Start Frequency: 596|Stop Frequency: 602.5|"
        "Center Freq: 599.25|Freq Span: 6.5|Power Offset Status: ON|Power Offset: 12.5|"
        "Power Relative Status: OFF|Power Relative: -50.25|RMS Averaging Level: Medium|"
        "Power Zero Status: OFF|External Ref Status: ON|External Ref Freq: 10|"
        "Signal Standard: UHF TV channel 35|Signal Standard Link Type: Downlink|"
        "Channel Selection: 35|GPS Latitude: 44588170|GPS Longitude: -93159000|GPS Altitude: 253|"
        "Power Meter Reading: -36.57";
    EXPECT_EQ(Lines(), expected);
    EXPECT_EQ(Library().TraceVersionValue, 3.2);
    EXPECT_EQ(plot.TraceType(), "PM");
    EXPECT_NE(plot.GPSLocation().find("N44\xB0 58.817'"), std::string::npos);
    EXPECT_EQ(LinesLoaded(&Plot::LoadPowerMeterText), expected);
}

TEST_F(PowerTrace, GatesAndFlagsOfAMeterTurnAtTheirValues)
{
    const struct {
        RawBuilder raw;
        std::string PowerRecord::*field;
        const char* value;
    } texts[] = {
        {RawPower().Text(12, "3.15"), &PowerRecord::SignalStandard, "UHF TV channel 35"},
        {RawPower().Text(12, "3.14"), &PowerRecord::SignalStandard, "GSM 900"},
        {RawPower().Text(12, "10.0"), &PowerRecord::SignalStandard, "UHF TV channel 35"}, // as a number
        {RawPower().Number(75, 1, 0).Number(155, 1, 1), &PowerRecord::OffsetStatus, "CAL ON"},
        {RawPower().Number(155, 1, 2), &PowerRecord::OffsetStatus, "ON"},
        {RawPower().Number(86, 1, 200), &PowerRecord::ZeroStatus, "Unknown(C8h)"},
        {RawPower().Number(85, 1, 9), &PowerRecord::RmsAveraging, ""},
    };
    for (const auto& c : texts) {
        ASSERT_TRUE(plot.ShowTrace(c.raw.Bytes()));
        EXPECT_EQ(power.*c.field, c.value);
    }
    ASSERT_TRUE(plot.ShowTrace(RawPower().Number(96, 2, 9).Bytes()));
    EXPECT_EQ(power.StopFreq, 602.5F);
    ASSERT_TRUE(plot.ShowTrace(RawPower().Number(96, 2, 10).Number(76, 4, -1).Number(94, 2, -7).Bytes()));
    EXPECT_EQ(power.StopFreq, 6025);
    EXPECT_EQ(power.ExternalRefFreq, 10) << "the selector isn't for it";
    EXPECT_EQ(power.PowerOffset, 4294967.5F) << "unsigned";
    EXPECT_NE(Lines().find("Channel Selection: N/A|"), std::string::npos);
}

TEST_F(PowerTrace, ShortBuffersReadAsZeroBehindTheirEnd)
{
    // A text must end in front of the buffer's last byte.
    for (const std::size_t size : {100U, 116U, 140U, 141U, 153U, 154U}) {
        ASSERT_TRUE(plot.DisplayTrace(RawPower().Number(1, 2, 100).AsText().substr(0, size)));
        EXPECT_EQ(power.LinkType, size >= 116 ? "Downlink" : "N/A") << size;
        EXPECT_EQ(power.SignalStandard, size >= 141 ? "UHF TV channel 35" : "") << size;
        EXPECT_EQ(power.PowerReading, size >= 154 ? -36.57F : 0) << size;
    }
    ASSERT_TRUE(plot.DisplayTrace(RawZephra().AsText().substr(0, 126)));
    EXPECT_EQ(zephra.UtcTime, "");
}

TEST_F(PowerTrace, AMonitorLeavesWhatItDoesNotSetAndIsLoadedAsAMeter)
{
    ASSERT_TRUE(plot.ShowTrace(RawPower().Bytes()));
    RawBuilder raw = RawPower(65);
    raw.Number(67, 4, 1).Number(85, 1, 3).Number(116, 1, 1).Number(151, 4, -50'000).Text(12, "1.00");
    ASSERT_TRUE(plot.ShowTrace(raw.Bytes()));
    EXPECT_EQ(power.CenterFreq, 599.25F);
    EXPECT_EQ(power.RmsAveraging + power.LinkType, "MediumDownlink");
    EXPECT_EQ(Library().TraceVersionValue, 3.2) << "a monitor's version counts for nothing";
    const std::string expected =
        "Power Monitor Mode: 3|Power Monitor Unit: 1|Power Offset Status: ON|Power Offset: 12.5|"
        "Power Relative Status: OFF|Power Relative: -50.25|Power Zero Status: OFF|"
        "GPS Latitude: 44588170|GPS Longitude: -93159000|GPS Altitude: 253|Power Monitor Reading: -50";
    EXPECT_EQ(Lines(), expected);
    EXPECT_NE(plot.GPSLocation().find("N/A"), std::string::npos) << "whatever the record holds";
    EXPECT_EQ(plot.GetUpLoadTrace(""), "");
    const std::string loaded = LinesLoaded(&Plot::LoadPowerMonitorText);
    EXPECT_TRUE(loaded.starts_with("Power Meter Mode: 3|Power Meter Unit: 1|Start Frequency: 0|")) << loaded;
    EXPECT_NE(loaded.find("RMS Averaging Level: |"), std::string::npos) << "never saved, yet looked up";
}

TEST_F(PowerTrace, AHighAccuracyReadingListsEveryFieldAndTheLinkTypeTwice)
{
    zephra.MeasOffset = 7;
    ASSERT_TRUE(plot.ShowTrace(RawZephra().Bytes()));
    const std::string expected =
        "Center Freq: 2140|Power Meter Reading: -12.34|MaxHold: ON|Power Offset Status: OFF|"
        "Power Offset: -1.5|Meas Offset Status: ON|Meas Offset: 7|Power Relative: -20|"
        "Power Relative Status: OFF|RAN Value: OFF|Signal Standard: UMTS/WCDMA/3G|"
        "Signal Standard Link Type: -2|Power Zero Status: OFF|Limit Status Mask: ON|"
        "Upper Limit dBm: 10|Lower Limit dBm: -30.5|Limit Unit Display: 0|Error Mes Status: 0|"
        "GPS Latitude: -33512345|GPS Longitude: 151123456|GPS Altitude: 58|Signal Std Link Type: -2|"
        "UTC Time: 23:59:58";
    EXPECT_EQ(Lines(), expected);
    EXPECT_EQ(plot.TraceType(), "");
    power.GpsLatitude = 1'000'000;
    EXPECT_NE(plot.GPSLocation().find("N1\xB0 0.000'"), std::string::npos) << "of the other record";
}

TEST_F(PowerTrace, LoadingAHighAccuracyFilePassesSomeWordsThroughNumbers)
{
    const struct {
        const char *lines, *texts;
    } cases[] = {
        {"RAN Value:\tOFF\r\nError Mes Status:\t0\r\nMeas Offset Status:\tON\r\n", "OFF|0|ON"},
        {"RAN Value:\t016\r\nError Mes Status:\t 8.0\r\nMeas Offset Status:\t1E1\r\n", "16|8|10"},
        {"Error Mes Status:\tbad\r\n", "|8|10"},
    };
    ASSERT_TRUE(plot.ShowTrace(RawZephra().Bytes()));
    for (const auto& c : cases) {
        const std::string head = "Mode:\tHigh Accuracy Power Meter Mode\r\nMeas Offset:\t2.5\r\n";
        plot.LoadPowerMeter_Zephra_Text(WithChecksum(head + c.lines), {});
        EXPECT_EQ(zephra.RanValue + "|" + zephra.ErrorStatus + "|" + zephra.MeasOffsetStatus, c.texts);
        EXPECT_EQ(zephra.MeasOffset, 2.5F);
        EXPECT_EQ(zephra.UpperLimit, 10) << "a number without a line stays";
        EXPECT_EQ(zephra.MaxHold, "") << "a text without one goes";
    }
}

TEST_F(PowerTrace, LoadingAMeterKeepsNumbersAndEmptiesTextsThatAreNotThere)
{
    ASSERT_TRUE(plot.ShowTrace(RawPower().Number(155, 1, 5).Bytes()));
    // Each key that begins like another one stands behind it: a lookup without its colon would stop there.
    plot.LoadPowerMeterText(WithChecksum("Mode:\tPower Meter Mode\r\nPower Meter Mode:\t300\r\n"
                                         "Start Frequency:\tlow\r\nStop Frequency:\t1,000.5\r\n"
                                         "Power Offset Status:\twhatever\r\nPower Offset:\t4\r\n"
                                         "Signal Standard Link Type:\t77\r\nSignal Standard:\tTETRA\r\n"
                                         "Channel Selection:\t \r\nGPS Latitude:\t44588173\r\n"),
                            {});
    // Numbers that can't be read stay, texts aren't checked against their tables, whole numbers keep all
    // digits.
    EXPECT_EQ(Lines(),
              "Power Meter Mode: 3|Power Meter Unit: 1|Start Frequency: 596|Stop Frequency: 1000.5|"
              "Center Freq: 599.25|Freq Span: 6.5|Power Offset Status: whatever|Power Offset: 4|"
              "Power Relative Status: |Power Relative: -50.25|RMS Averaging Level: |Power Zero Status: |"
              "External Ref Status: |External Ref Freq: 10|Signal Standard: TETRA|"
              "Signal Standard Link Type: 77|Channel Selection: 35|GPS Latitude: 44588173|"
              "GPS Longitude: -93159000|GPS Altitude: 253|Power Meter Reading: -36.57");
    EXPECT_EQ(power.CalFlag, "5") << "no file has it";
    plot.LoadPowerMeterText(WithChecksum("Mode:\tPower Meter Mode\r\nChannel Selection:\tN/A\r\n"), {});
    EXPECT_EQ(power.ChannelSelection, -1);
}

constexpr std::string_view DatText =
    "\"a\",\"b\",\"c\",\"d\",\"SITE 9\",\"12:34:56\",\"02/03/2011\",\"TRC\",\"2.10\",\"i\",\"j\",2,1\r\n"
    "\"n\",1,880.5,960,920.25,5,\"t\",1,1.5,\"0\",-20,3,10,47,\"124\",-7.25";

TEST_F(PowerTrace, ACommaFormLoadsScrambledOrNot)
{
    ASSERT_TRUE(plot.ShowTrace(RawPower().Bytes()));
    platform.Scramble = {1, 2, 0xFF, 0, 16, 0x80, 7};
    std::string scrambled(DatText);
    for (std::size_t i = 14; i < scrambled.size(); ++i)
        scrambled[i] = static_cast<char>(scrambled[i] ^ static_cast<char>(platform.Scramble[(i - 14) % 7]));
    plot.LoadPowerMeterDat(scrambled);
    const std::string expected =
        "Trace length: 152|Model: TRC    |Version: 2.10|Mode: Power Meter Mode|Date: 02/03/2011|"
        "Time: 12:34:56|Ref Number: SITE 9|DataPoints: 1|Power Meter Mode: 2|Power Meter Unit: 1|"
        "Start Frequency: 880.5|Stop Frequency: 960|Center Freq: 920.25|Freq Span: 18|"
        "Power Offset Status: ON|Power Offset: 1.5|Power Relative Status: OFF|Power Relative: -20|"
        "RMS Averaging Level: High|Power Zero Status: OFF|External Ref Status: OFF|"
        "External Ref Freq: 10|Signal Standard: GSM 1800|Signal Standard Link Type: Unknown|"
        "Channel Selection: 124|GPS Latitude: -1|GPS Longitude: -1|GPS Altitude: -30000|"
        "Power Meter Reading: -7.25";
    EXPECT_EQ(Lines(0), expected);
    EXPECT_TRUE(state.PMHolder.Visible && platform.Messages.empty()) << "no checksum is asked for";
    platform.Scramble = {};
    power = {};
    plot.LoadPowerMeterDat(DatText);
    EXPECT_EQ(Lines(0), expected);
}

TEST_F(PowerTrace, CommaFormsKeepEmptyQuotedFieldsInTheirPlaces)
{
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"\"a\",\"\",\"c\"", {"a", "", "c", ""}},
        {"1,\"\",\"\",2", {"1", "", "2"}}, // of two that share a comma, the first is found
        {"1,,,,,2", {"1", "2"}},
        {"a~b\r\n\"c\"", {"ab", "c", ""}},
    };
    for (const auto& [text, fields] : cases)
        EXPECT_EQ(DatFields(text, {}), fields) << text;
    ASSERT_TRUE(plot.ShowTrace(RawPower().Bytes()));
    plot.LoadPowerMeterDat("\"a\",\"b\",\"c\",\"d\",\"\",\"t\"");
    EXPECT_EQ(state.Header.RefNumber + state.Header.Time, "t       ");
    EXPECT_EQ(state.Header.Model, "TRC-100") << "a field that isn't there";
    EXPECT_EQ(power.PowerReading, -36.57F);
}

} // namespace
} // namespace Traces
