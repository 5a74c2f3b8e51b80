// The analyzer's model against known answers, and its samples against what their scenes must show.
#include "Sample.h"
#include "Spectrum.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <numeric>

namespace Traces::Samples {
namespace {

double Median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

TEST(SpectrumPhysics, TheFloorFollowsTheFilterAndACarrierDoesNot)
{
    const Analyzer wide{100e3, 30e3, 0, 20};
    Analyzer narrow = wide;
    narrow.ResolutionHz = 10e3;
    narrow.VideoHz = 3e3;
    // -174 dBm/Hz, 50 dB of bandwidth, 0.27 dB for the filter's shape.
    EXPECT_NEAR(NoiseFloor(wide), -174 + 20 + 50 + 0.27, 0.01);
    EXPECT_NEAR(NoiseFloor(wide) - NoiseFloor(narrow), 10, 1e-9);
    const Sweep sweep{100e6, 101e6, 401};
    const std::vector<Emitter> carrier = {{100.5e6, -40}};
    for (const Analyzer& analyzer : {wide, narrow}) {
        SteadyRandom random(1);
        const auto levels = Scan(sweep, analyzer, carrier, random);
        EXPECT_NEAR(levels[200], -40, 0.1);
        // Half a filter's width beside it the level is 3 dB lower.
        const auto half = static_cast<std::size_t>(analyzer.ResolutionHz / 2 / 2500);
        EXPECT_NEAR(levels[200 + half], -43, 0.1);
    }
}

TEST(SpectrumPhysics, ChannelsTakeTheirShareOfAnEmitter)
{
    const Analyzer quiet{30e3, 30e3, 0, -100};
    const struct {
        const char* what;
        Emitter emitter;
        double dBm;
    } cases[] = {
        {"carrier inside", {100e6, -40}, -40},
        {"half of a block", {102e6, -40, 0, 4e6}, -43.01},
        {"one deviation each side", {100e6, -40, 2e6}, -40 + 10 * std::log10(0.6827)},
    };
    for (const auto& c : cases)
        EXPECT_NEAR(ChannelPower(100e6, 4e6, quiet, {c.emitter}), c.dBm, 0.01) << c.what;
}

TEST(SpectrumSamples, ShowWhatIsInTheAir)
{
    std::map<std::string, Bytes> raws;
    for (const Sample& sample : SpectrumSamples()) {
        EXPECT_EQ(static_cast<std::size_t>(RawI16(sample.Raw, 1)), sample.Raw.size()) << sample.FileName;
        EXPECT_GT(sample.NearestTie, 1e-6) << sample.FileName;
        raws[sample.FileName] = sample.Raw;
    }
    const auto levels = [&](const std::string& file) {
        std::vector<double> values;
        const Bytes& raw = raws.at(file);
        for (std::size_t i = 0; i < static_cast<std::size_t>(RawI16(raw, 55)); ++i)
            values.push_back(RawU32(raw, 432 + 4 * i) / 1000.0 - 270);
        return values;
    };
    const auto wide = levels("spa_carriers_rbw100k_401pts.raw");
    const auto narrow = levels("spa_carriers_rbw3k_401pts.raw");
    // 15.2 dB of bandwidth, less what the longer search for a peak adds.
    EXPECT_NEAR(Median(wide) - Median(narrow), 12, 3);
    constexpr std::size_t spurious = 296; // 451.1 MHz
    EXPECT_LT(wide[spurious], Median(wide) + 5);
    EXPECT_GT(narrow[spurious], Median(narrow) + 8);

    const Bytes& cell = raws.at("cs_gsm_cell_20ch.raw");
    EXPECT_EQ(RawI16(cell, 111 + 8 * 4), 62);
    EXPECT_NEAR(RawI16(cell, 117 + 8 * 4) / 100.0, -48.4, 0.1) << "what the scene's strongest one sends";

    const Bytes& hops = raws.at("spg_hopping_80sweeps.raw");
    EXPECT_GT(hops.size(), 30000U);
    const auto peak = [&](std::size_t sweep) {
        const auto first = hops.begin() + static_cast<std::ptrdiff_t>(132 + 405 * sweep);
        return std::max_element(first, first + 401) - first;
    };
    std::size_t moves = 0;
    for (std::size_t sweep = 4; sweep < 80; ++sweep)
        moves += std::abs(peak(sweep) - peak(sweep - 1)) > 1 ? 1U : 0U;
    EXPECT_EQ(moves, 19U) << "a hop every four sweeps, but where two fall on the same place";
}

} // namespace
} // namespace Traces::Samples
