#include "support/Faults.h"
#include "support/RawBuilder.h"
#include "support/ShownTrace.h"

namespace Traces {
namespace {

using Testing::RawBuilder;
using Testing::RawHeader;
using Testing::RawSweep;

class TraceEntry : public Testing::ShownTrace {
protected:
    std::optional<FaultKind> FaultOf(const RawBuilder& raw)
    {
        return Testing::FaultOf([&] { plot.ShowTrace(raw.Bytes()); });
    }
};

TEST_F(TraceEntry, StartsWithADemonstrationCurveAndNoView)
{
    EXPECT_EQ(plot.count(), 64);
    EXPECT_FLOAT_EQ(state.TraceSlots[0].X[3], 1.0F);
    EXPECT_NEAR(state.TraceSlots[0].Y[3], 0.688938F, 1E-5);
    EXPECT_EQ(state.CurrentMode, -1);
    for (const ChartSurface* holder : state.Holders())
        EXPECT_FALSE(holder->Visible) << holder->Name;
}

TEST_F(TraceEntry, AcceptsByTheLengthInTheHeader)
{
    const struct {
        const char* name;
        std::size_t size;
        int stated;
        bool accepted;
    } cases[] = {
        {"shorter than any trace", 99, 99, false},     {"shortest", 100, 100, true},
        {"two bytes more than sent", 100, 102, true},  {"three bytes more", 100, 103, false},
        {"stated too short", 200, 99, false},          {"negative", 200, 0xFFFF, false},
        {"longest with a header", 30000, 30000, true},
    };
    for (const auto& c : cases) {
        RawBuilder raw = RawHeader(c.size, 0, 2);
        raw.Number(1, 2, c.stated);
        EXPECT_EQ(plot.ShowTrace(raw.Bytes()), c.accepted) << c.name;
    }
}

TEST_F(TraceEntry, ARefusedTraceLeavesThePictureButNotTheMode)
{
    ASSERT_TRUE(plot.ShowTrace(RawSweep(0, {10000, 5000, 2500}).Bytes()));
    plot.AutoScaleY(true);
    const DisplayList before = state.VNABox.Picture();
    RawBuilder refused = RawHeader(100, 1, 2);
    refused.Number(1, 2, 50);
    EXPECT_FALSE(plot.ShowTrace(refused.Bytes()));
    EXPECT_EQ(state.VNABox.Picture(), before);
    EXPECT_EQ(state.CurrentMode, 0);
    EXPECT_TRUE(plot.AutoScaleY());
    EXPECT_EQ(plot.TraceType(), "SWR");
}

TEST_F(TraceEntry, AnUnknownModeClearsTheChartAndGivesFalse)
{
    ASSERT_TRUE(plot.ShowTrace(RawSweep(0, {10000, 5000}).Bytes()));
    plot.AutoScaleY(true);
    for (const int mode : {7, 31, 89, 255}) {
        EXPECT_FALSE(plot.ShowTrace(RawHeader(200, mode, 2).Bytes())) << mode;
        EXPECT_EQ(state.CurrentMode, mode);
    }
    EXPECT_FALSE(plot.AutoScaleY());
    EXPECT_TRUE(state.VNABox.Picture().empty());
    EXPECT_TRUE(state.VNAHolder.Visible) << "the holder of the last trace stays";
    EXPECT_EQ(plot.count(), 0);
}

TEST_F(TraceEntry, LongBuffersAreSpectrogramsByTheirLengthAlone)
{
    RawBuilder raw = RawHeader(30001, 0, 2);
    plot.ShowTrace(raw.Bytes());
    EXPECT_EQ(state.Header.Mode, 87);
    EXPECT_EQ(state.Header.TraceLength, 30001);
    EXPECT_EQ(FaultOf(RawBuilder(32768)), FaultKind::Overflow);
}

TEST_F(TraceEntry, PointCountsWithoutACurveAreFaults)
{
    const std::pair<int, std::optional<FaultKind>> cases[] = {
        {0, FaultKind::Range},   {-3, FaultKind::Range},   {1, FaultKind::DivisionByZero},
        {2, std::nullopt},       {601, std::nullopt},      {602, FaultKind::Range},
        {700, FaultKind::Range}, {32767, FaultKind::Range}};
    for (const auto& [points, fault] : cases) {
        RawBuilder raw = RawSweep(0, std::vector<std::int32_t>(700, 5000));
        raw.Number(55, 2, points);
        EXPECT_EQ(FaultOf(raw), fault) << points;
    }
    EXPECT_EQ(plot.count(), 32767) << "the slot was sized before the fault";
    EXPECT_EQ(state.YScaleBottom, -30.25F) << "the limits of the last curve that was possible";
    EXPECT_EQ(state.TraceSlots[0].Y[600], state.TraceSlots[0].Y[0]);
}

TEST_F(TraceEntry, TextRoutesCountIn16Bits)
{
    const std::string longest(32768, 'x');
    EXPECT_THROW(plot.DisplayTrace(longest), HostFault);
    EXPECT_THROW(plot.DisplayTraceB(""), HostFault);
    EXPECT_FALSE(plot.DisplayTrace(longest.substr(0, 200)));
    EXPECT_TRUE(plot.DisplayTrace(RawSweep(1, {2500, 2500}).AsText()));
}

TEST_F(TraceEntry, SlotsAreAddressedModuloSix)
{
    for (const auto& [asked, slot] : {std::pair{-7, 1}, {6, 0}, {-32768, 2}}) {
        plot.SetIndex(static_cast<std::int16_t>(asked));
        EXPECT_EQ(plot.SetIndex(), slot) << asked;
    }
    plot.Clear();
    for (std::int16_t i = 0; i < 6; ++i) {
        plot.SetIndex(i);
        EXPECT_EQ(plot.count(), 0);
    }
}

TEST_F(TraceEntry, HostCurvesLieOverTheTrace)
{
    const std::vector<float> x = {830, 840, 850};
    const std::vector<float> y = {-5, -6, -7};
    plot.SetIndex(2);
    EXPECT_TRUE(plot.PlotCurve(3, x, y)) << "before any trace nothing shows, but the curve is kept";
    ASSERT_TRUE(plot.ShowTrace(RawSweep(0, {10000, 5000, 2500}).Bytes()));
    EXPECT_EQ(plot.count(), 0) << "a new trace empties all slots";
    EXPECT_TRUE(plot.PlotCurve(3, x, y));
    const LineCommand green{{830, -5}, {840, -6}, {0xFF00, LineStyle::Solid, 1}};
    const DisplayList& picture = state.VNABox.Picture();
    EXPECT_NE(std::find(picture.begin(), picture.end(), DrawCommand(green)), picture.end());
    for (const std::int16_t bad : {std::int16_t{0}, std::int16_t{-1}, std::int16_t{4}}) {
        EXPECT_FALSE(plot.PlotCurve(bad, x, y)) << bad;
        EXPECT_EQ(plot.count(), 0) << bad;
    }
    EXPECT_EQ(state.TraceSlots[2].X, (std::vector<float>{830, 840, 850, 0}))
        << "what was there was taken over";
}

TEST_F(TraceEntry, TraceInfoReportsTheDecodedStateAndChangesNothing)
{
    plot.ShowTrace(RawSweep(1, {0, 10000}).Bytes());
    plot.TraceName(std::string_view("  Ant\0enna 1 ", 13));
    const auto lines = plot.Parameters();
    const std::string info = plot.TraceInfo();
    EXPECT_TRUE(info.starts_with("Trace Type:\tSWR Frequency\r\nDesignator:\tAntenna 1\r\nModel:\tTRC-100\r\n"
                                 "Firmware version:\t3.20\r\nDate:\t11/22/2026\r\nTime:\t10:20:30\r\n\r\n"
                                 "Data points:\t2\r\nStart Frequency:\t824\r\n"))
        << info;
    EXPECT_TRUE(info.ends_with("Data point 1:\t65\t-117.9\r\n")) << info;
    EXPECT_EQ(plot.Parameters(), lines);
    EXPECT_EQ(state.Header.RefNumber, "Antenna 1");
}

} // namespace
} // namespace Traces
