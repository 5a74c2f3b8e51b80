#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "control/Plot.h"
#include "formats/HostFault.h"
#include "support/RawBuilder.h"
#include "support/TraceFiles.h"

#include <gtest/gtest.h>
#include <limits>

namespace Traces {
namespace {

using Testing::RawSweep;
using Testing::WithChecksum;

class CountingPlatform : public HeadlessPlatform {
public:
    int Repaints = 0;
    void Repaint() override { ++Repaints; }
};

class Redraw : public testing::Test {
protected:
    CountingPlatform platform;
    Plot plot{platform};
    Control& state = plot.Instance();
};

TEST_F(Redraw, AFaultOfTheViewComesOutOfAHostsCallButNotOfALoaderOrAResize)
{
    const std::string file = WithChecksum("Mode:\tRL Frequency\r\nDataPoints:\t2\r\n"
                                          "Start Frequency:\t10\r\nStop Frequency:\t20\r\n"
                                          "Data point 0:\t-3E38\t0\r\nData point 1:\t3E38\t0\r\n");
    EXPECT_NO_THROW(plot.LoadVNAText(file, {}));
    EXPECT_EQ(state.TraceSlots[0].Y[1], 3E38F) << "loaded all the same";
    EXPECT_TRUE(state.VNAHolder.Visible);
    EXPECT_NO_THROW(plot.Resize(700, 600));
    EXPECT_EQ(state.Surface.Width, 700);
    EXPECT_THROW(plot.RedrawTrace(), HostFault);
}

TEST_F(Redraw, WhateverChangesThePictureAsksForARepaint)
{
    const auto repaints = [&](const auto& change) {
        platform.Repaints = 0;
        change();
        return platform.Repaints;
    };
    EXPECT_GT(repaints([&] { plot.ShowTrace(RawSweep(0, {1000, 10000}).Bytes()); }), 0);
    EXPECT_GT(repaints([&] { plot.RedrawTrace(); }), 0);
    EXPECT_GT(repaints([&] { plot.Resize(300, 200); }), 0);
    EXPECT_GT(repaints([&] { plot.Clear(); }), 0);
    EXPECT_GT(repaints([&] { plot.ShowTrace(RawSweep(200, {1, 2}).Bytes()); }), 0) << "an unknown mode";
    const std::string unknown = WithChecksum("Mode:\tUnknown(200)\r\nDataPoints:\t0\r\n");
    EXPECT_GT(repaints([&] { plot.LoadVNAText(unknown, {}); }), 0) << "which hides the holder";
    EXPECT_EQ(repaints([&] { plot.ShowTrace(RawSweep(0, {}).Bytes().first(90)); }), 0)
        << "a refused trace leaves the picture alone";
}

TEST_F(Redraw, CurvesWithPointsThatAreNoNumbersAreFaults)
{
    constexpr float infinite = std::numeric_limits<float>::infinity();
    constexpr float undefined = std::numeric_limits<float>::quiet_NaN();
    ASSERT_TRUE(plot.ShowTrace(RawSweep(0, {1000, 5000, 10000}).Bytes()));
    const std::pair<float, float> points[] = {
        {850, infinite}, {850, undefined}, {undefined, -5}, {-infinite, -5}};
    for (const auto slot : {std::int16_t{0}, std::int16_t{2}}) {
        plot.SetIndex(slot);
        for (const auto& [badX, badY] : points) {
            const float x[] = {830, badX, 890};
            const float y[] = {-1, badY, -2};
            EXPECT_THROW(plot.PlotCurve(3, x, y), HostFault) << slot << ": " << badX << ", " << badY;
            EXPECT_EQ(plot.count(), 3) << "the curve is there, it can't be drawn";
        }
        const float whole[] = {830, 850, 890};
        EXPECT_TRUE(plot.PlotCurve(3, whole, whole)) << "and a sound one replaces it";
    }
}

} // namespace
} // namespace Traces
