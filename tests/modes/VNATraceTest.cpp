#include "modes/vna_spa/VNATrace.h"

#include "formats/HostFault.h"
#include "support/RawBuilder.h"
#include "support/ShownTrace.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::RawBuilder;
using Testing::RawSweep;
using Testing::WithChecksum;

class VNATrace : public Testing::ShownTrace {
protected:
    void Load(const std::string& lines) { plot.LoadVNAText(WithChecksum(lines), {}); }
};

TEST_F(VNATrace, MagnitudesConvertByMode)
{
    struct Case {
        int mode;
        std::int32_t raw;
        float value;
    };
    static constexpr Case cases[] = {
        // return loss: 20 log, floor at -60
        {0, 10000, 0},
        {0, -1000, -20},
        {0, 0, -60},
        {0, 1, -60},
        {0, 5, -60},
        {0, 20, -53.9794F},
        {0, 20000, 6.0206F},
        // SWR: the ceiling is for total reflection alone
        {1, 0, 1},
        {1, 5000, 3},
        {1, -5000, 3},
        {1, 9900, 199},
        {1, 10000, 65},
        {1, 25000, 65},
        // one-way loss: 10 log, nothing reflected reads 0
        {2, 1000, -10},
        {2, 0, 0},
        {2, 1, -40},
        // the unnamed mode divides twice
        {7, 0, -120},
        {7, 10000, -80},
        {7, 1, -120},
    };
    for (const auto& c : cases) {
        const auto magnitude = ConvertMagnitude(c.mode, c.raw);
        ASSERT_TRUE(magnitude.has_value());
        EXPECT_NEAR(*magnitude, c.value, 0.0005) << "mode " << c.mode << " raw " << c.raw;
    }
    EXPECT_EQ(ConvertMagnitude(16, 10000), std::nullopt);
    EXPECT_EQ(ConvertMagnitude(17, 10000), std::nullopt);
}

TEST_F(VNATrace, ListsEveryFieldInTheOrderOfTheLayout)
{
    ASSERT_TRUE(plot.ShowTrace(RawSweep(0, {1000, 10000}).Bytes()));
    ASSERT_EQ(plot.Parameters().size(), 8U + 62 + 2);
    EXPECT_EQ(Lines(0, 26),
              "Trace length: 340|Model: TRC-100|Version: 3.20|Mode: RL Frequency|Date: 11/22/2026|"
              "Time: 10:20:30|Ref Number: TOWER7" +
                  std::string(10, '\0') +
                  "|DataPoints: 2|"
                  "Start Frequency: 824|Stop Frequency: 894.5|Min Freq Step Size: 0.0125|"
                  "Scale Top: 1.5|Scale Bottom: 30.25|Freq Marker 1: 101|Freq Marker 2: 102|"
                  "Freq Marker 3: 103|Freq Marker 4: 104|Freq Marker 5: 105|Freq Marker 6: 106|"
                  "Single Limit: -14|Mult Limit Seg 1: 1|Mult Limit Seg Status 1: 11|"
                  "Mult Limit Start X 1: 1000|Mult Limit Start Y 1: -10|Mult Limit End X 1: 2000|"
                  "Mult Limit End Y 1: -20");
    // Distance markers 3 to 6 show marker 2.
    EXPECT_EQ(Lines(49),
              "Mult Limit End Y 5: -24|Start Distance: 5|Stop Distance: 250|Distance Marker 1: 201|"
              "Distance Marker 2: 202|Distance Marker 3: 202|Distance Marker 4: 202|"
              "Distance Marker 5: 202|Distance Marker 6: 202|Rel Prop Velocity: 0.66|"
              "Cable Loss: 0.12345|Ave Cable Loss: 0.35|Status Byte 1: 31|Status Byte 2: 32|"
              "Status Byte 3: 33|Status Byte 4: 34|Status Byte 5: 35|VNA Signal Std: GSM 900|"
              "GPS Latitude: 40250170|GPS Longitude: -3422250|GPS Altitude: -667|"
              "Data point 0: -20 132.1|Data point 1: 0 -117.9");
    EXPECT_EQ(state.VNA.DistanceMarker[5], 206) << "the record keeps its own markers";
}

TEST_F(VNATrace, FillsTheCurveAndTheLimits)
{
    ASSERT_TRUE(plot.ShowTrace(RawSweep(0, {1000, 100, 10000}).Bytes()));
    const TraceSlot& slot = state.TraceSlots[0];
    EXPECT_EQ(slot.Length, 3);
    EXPECT_EQ(slot.X, (std::vector<float>{824, 859.25F, 894.5F}));
    EXPECT_NEAR(slot.Y[1], -40, 1E-5);
    EXPECT_EQ(state.YScaleTop, 1.5F);
    EXPECT_EQ(state.YScaleBottom, -30.25F);
    EXPECT_FALSE(state.TraceSaved);
}

TEST_F(VNATrace, DistanceTracesKeepTheMagnitudesOfTheTraceBefore)
{
    ASSERT_TRUE(plot.ShowTrace(RawSweep(16, {1000, 1000}).Bytes()));
    EXPECT_EQ(state.VNA.PointValue[1], 0) << "a fresh control has none";
    ASSERT_TRUE(plot.ShowTrace(RawSweep(0, {1000, 1000}).Bytes()));
    ASSERT_TRUE(plot.ShowTrace(RawSweep(17, {5000, 5000}).Bytes()));
    EXPECT_FLOAT_EQ(state.VNA.PointValue[1], -20);
    EXPECT_EQ(plot.TraceType(), "SWR");
}

TEST_F(VNATrace, SaveLoadAndSaveGiveTheSameFile)
{
    std::string first = folder / "first.vna";
    RawBuilder raw = RawSweep(0, {1234, 0, 7777});
    raw.Number(202, 4, 4'025'017); // 7 digits survive the float that loaders go through
    ASSERT_TRUE(plot.SaveRawTraceB(raw.AsText(), first));
    EXPECT_EQ(state.CurrentMode, -1) << "a raw save shows nothing";
    state.TraceSaved = false;
    plot.loadTextFile(first);
    EXPECT_TRUE(platform.Messages.empty());
    EXPECT_EQ(state.CurrentMode, 0);
    EXPECT_EQ(plot.Parameters().size(), 8U) << "a text loader lists the header alone";
    EXPECT_EQ(state.TraceSlots[0].Length, 3);
    state.TraceSaved = true;
    std::string second = folder / "second.vna";
    ASSERT_TRUE(plot.SaveTrace(second));
    EXPECT_EQ(ReadWholeFile(first), ReadWholeFile(second));
}

TEST_F(VNATrace, LoadingKeepsWhatTheFileDoesNotGive)
{
    ASSERT_TRUE(plot.ShowTrace(RawSweep(0, {1000, 1000}).Bytes()));
    state.YScaleTop = 3;
    Load("Mode:\tSWR Frequency\r\nDataPoints:\t3\r\n"
         "Start Frequency:\t\r\nStop Frequency:\tfast\r\nScale Top:\t4\r\nFreq Marker 1:\t40000\r\n"
         "GPS Latitude:\t40250170\r\nDistance Marker 2:\t77\r\nDistance Marker 3:\t78\r\n"
         "VNA Signal Std:\tGSM 1800\r\n"
         "Data point 0:\t1.5\t10\r\nData point 2:\t2.5\r\n");
    EXPECT_EQ(state.VNA.StartFreq, 824) << "no value";
    EXPECT_EQ(state.VNA.StopFreq, 894.5F) << "not a number";
    EXPECT_EQ(state.VNA.ScaleTop, 4);
    EXPECT_EQ(state.VNA.FreqMarker[0], 101) << "doesn't fit";
    EXPECT_EQ(state.VNA.GpsLatitude, 40250168) << "through a 32-bit float";
    EXPECT_EQ(state.VNA.DistanceMarker[2], 78);
    EXPECT_EQ(state.VNA.VNASignalStd, "GSM 900") << "a name isn't taken from a file";
    EXPECT_EQ(state.VNA.PointValue[0], 1.5F);
    EXPECT_EQ(state.VNA.PointValue[1], 1.5F) << "a missing line repeats the one before";
    EXPECT_EQ(state.VNA.PointValue[2], 0) << "one field is no point";
    EXPECT_EQ(state.CurrentMode, 1);
    EXPECT_EQ(state.YScaleTop, 3) << "limits stay";
    EXPECT_EQ(state.Header.Model, "       ") << "a text without a line is emptied";
    EXPECT_EQ(state.TraceSlots[0].X[2], 894.5F);
}

TEST_F(VNATrace, PointsAreFoundByTheirKeysHoweverTheirLinesStand)
{
    struct Case {
        const char* what;
        const char* lines;
        std::vector<float> values;
    };
    const Case cases[] = {
        {"as saved", "Data point 0:\t1\t5\r\nData point 1:\t2\t5\r\nData point 2:\t3\t5\r\n", {1, 2, 3}},
        {"other order", "Data point 1:\t2\t5\r\nData point 0:\t1\t5\r\nData point 2:\t3\t5\r\n", {1, 2, 3}},
        {"a line lost", "Data point 0:\t1\t5\r\nData point 1:\t2\t5\r\n", {1, 2, 2}},
        {"first line lost", "Data point 1:\t2\t5\r\nData point 2:\t3\t5\r\n", {0, 2, 3}},
        {"a key in a text in front of them",
         "Ref Number:\tData point 1:\t9\t9\r\nData point 0:\t1\t5\r\nData point 1:\t2\t5\r\n"
         "Data point 2:\t3\t5\r\n",
         {1, 9, 3}},
        {"a key in a value",
         "Data point 0:\t1\tData point 2:\t8\t8\r\nData point 1:\t2\t5\r\nData point 2:\t3\t5\r\n",
         {0, 2, 8}},
        {"three fields",
         "Data point 0:\t1\t5\r\nData point 1:\t2\t5\t6\r\nData point 2:\t3\t5\r\n",
         {1, 0, 3}},
        {"numbers in other forms",
         "Data point 0:\t+1\t5\r\nData point 1:\t 2 \t5\r\nData point 2:\tinf\t5\r\n",
         {1, 2, 0}},
        {"no line feeds", "Data point 0:\t1\t5\rData point 1:\t2\t5\rData point 2:\t3\t5\r", {1, 2, 3}},
        {"the end cut off", "Data point 0:\t1\t5\r\nData point 1:\t2\t5\r\nData point 2:\t3\t5", {1, 2, 3}},
    };
    for (const Case& c : cases) {
        state.VNA.PointValue = {};
        Load("DataPoints:\t3\r\n" + std::string(c.lines));
        const auto& values = state.VNA.PointValue;
        EXPECT_EQ(std::vector<float>(values.begin(), values.begin() + 3), c.values) << c.what;
    }
}

TEST_F(VNATrace, ANumericStandardComesBackAsItsNumbersText)
{
    Load("Mode:\tUnknown(07)\r\nDataPoints:\t2\r\nVNA Signal Std:\t5.0\r\n");
    EXPECT_EQ(state.VNA.VNASignalStd, "5");
    EXPECT_EQ(state.CurrentMode, 7);
    EXPECT_TRUE(state.VNAHolder.Visible);
}

TEST_F(VNATrace, OddPointCountsInFilesCostOnlyWhatDoesNotFit)
{
    Load("DataPoints:\t0\r\nStart Frequency:\t10\r\n");
    EXPECT_EQ(plot.count(), 0);
    Load("DataPoints:\t1\r\nData point 0:\t-3\t4\r\n");
    EXPECT_EQ(plot.count(), 1);
    EXPECT_EQ(state.TraceSlots[0].Y[0], -3);
    Load("DataPoints:\t700\r\nStop Frequency:\t80\r\n");
    EXPECT_EQ(plot.count(), 700);
    EXPECT_EQ(state.TraceSlots[0].X[699], 80);
}

TEST_F(VNATrace, AChangedFileIsRefusedWithAMessageAndChangesNothing)
{
    ASSERT_TRUE(plot.ShowTrace(RawSweep(0, {1000, 1000}).Bytes()));
    std::string text = WithChecksum("Mode:\tRL Frequency\r\nScale Top:\t9\r\n");
    text[text.size() - 3] = '8';
    const DisplayList before = state.VNABox.Picture();
    for (const std::string& refused :
         {text, std::string("Mode:\tRL Frequency\r\n"), std::string("CHECKSUM=123\r\n")}) {
        platform.Messages.clear();
        plot.LoadVNAText(refused, {});
        ASSERT_EQ(platform.Messages.size(), 1U) << refused;
        EXPECT_EQ(platform.Messages[0].Title, "File Open");
        EXPECT_EQ(platform.Messages[0].Text, "Failed to open trace file.  Checksum failed.");
        EXPECT_EQ(platform.Messages[0].Icon, MessageIcon::Stop);
        EXPECT_EQ(state.VNA.ScaleTop, 1.5F);
        EXPECT_EQ(state.VNABox.Picture(), before);
    }
}

} // namespace
} // namespace Traces
