// The physics behind the samples against known answers, and every sample against what its device must show.
#include "Physics.h"
#include "Sample.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <numbers>
#include <set>
#include <string>
#include <vector>

namespace Traces::Samples {
namespace {

constexpr double MetreSeconds = 1 / 299'792'458.0;

std::vector<Sample> AllSamples()
{
    std::vector<Sample> samples = VnaFrequencySamples();
    const std::vector<Sample> distance = VnaDistanceSamples();
    samples.insert(samples.end(), distance.begin(), distance.end());
    return samples;
}

TEST(SamplePhysics, EndsOfALineReflectAsTheyMust)
{
    const struct {
        const char* name;
        PortState end;
        Complex reflection;
    } cases[] = {
        {"open", AtOpen(), 1},
        {"short", AtShort(), -1},
        {"match", AtLoad(50), 0},
        {"half as much", AtLoad(25), -1.0 / 3},
        {"inductance", AtLoad({0, 50}), {0, 1}},
        {"capacitance across an open", ThroughShunt(AtOpen(), {0, 0.02}), {0, -1}},
        {"match behind 100 ohms in series", ThroughSeries(AtLoad(50), 100), 0.5},
    };
    for (const auto& each : cases)
        EXPECT_NEAR(std::abs(Reflection(each.end) - each.reflection), 0, 1e-12) << each.name;
}

TEST(SamplePhysics, CableTurnsAndWeakensWhatComesBackTwice)
{
    // 3 dB one way at 1 GHz; one eighth of a wave long at 250 MHz, where the loss is half as much.
    Cable cable{30, 0.8, 0.1};
    EXPECT_NEAR(CableLoss(cable, 1e9), 3, 1e-12);
    EXPECT_NEAR(CableLoss(cable, 250e6), 1.5, 1e-12);
    cable.Metres = 0.8 / (250e6 * MetreSeconds) / 8;
    cable.LossPerMetre = 3 / cable.Metres;
    const Complex back = Reflection(ThroughCable(AtShort(), cable, 250e6));
    EXPECT_NEAR(20 * std::log10(std::abs(back)), -3, 1e-9);
    EXPECT_NEAR(std::arg(back), std::numbers::pi / 2, 1e-9);
}

TEST(SamplePhysics, QuarterWaveTransformsItsLoad)
{
    const Cable section{1 / (300e6 * MetreSeconds) / 4, 1, 0, 1e9, 75};
    const PortState near = ThroughCable(AtLoad(100), section, 300e6);
    EXPECT_NEAR(std::abs(near.Volt / near.Ampere - 56.25), 0, 1e-9);
}

TEST(SamplePhysics, CircuitsAreReactiveByTheirQualityBesideResonance)
{
    const auto series = SeriesCircuit(40, 100e6, 20);
    const auto parallel = ParallelCircuit(60, 100e6, 20);
    EXPECT_NEAR(std::abs(SeriesImpedance(series, 100e6) - 40.0), 0, 1e-9);
    EXPECT_NEAR(std::abs(ParallelImpedance(parallel, 100e6) - 60.0), 0, 1e-9);
    // Above resonance a series circuit is inductive, a parallel one capacitive.
    const double detune = 20 * (1.05 - 1 / 1.05);
    EXPECT_NEAR(std::abs(SeriesImpedance(series, 105e6) - Complex{40, 40 * detune}), 0, 1e-9);
    EXPECT_NEAR(std::abs(60.0 / ParallelImpedance(parallel, 105e6) - Complex{1, detune}), 0, 1e-9);
}

TEST(SamplePhysics, LoneReflectionStandsAtItsDistanceWithItsHeight)
{
    const Sweep sweep{900e6, 1900e6, 501};
    const Cable cable{12, 0.8, 0.05};
    const auto measured = Measure(sweep, {}, [&](double hz) {
        return ThroughCable(AtLoad(50.0 / 3), cable, hz); // reflects one half
    });
    const auto shown = AgainstDistance(sweep, measured, {0, 20, 201, 0.8, 0.05 * std::sqrt(1.4)});
    const auto lower = [](Complex a, Complex b) { return std::abs(a) < std::abs(b); };
    const auto highest = std::max_element(shown.begin(), shown.end(), lower);
    EXPECT_EQ(highest - shown.begin(), 120);
    EXPECT_NEAR(std::abs(*highest), 0.5, 0.002);
    EXPECT_LT(std::abs(shown[100]), 0.001);
}

TEST(SamplePhysics, RandomNumbersAreTheSameEverywhere)
{
    EXPECT_DOUBLE_EQ(SteadyRandom(5489).Uniform(), 3499211612.5 / 4294967296.0);
    SteadyRandom random(1);
    double sum = 0;
    double squares = 0;
    for (int i = 0; i < 20000; ++i) {
        const double value = random.Gauss();
        sum += value;
        squares += value * value;
    }
    EXPECT_NEAR(sum / 20000, 0, 0.03);
    EXPECT_NEAR(squares / 20000, 1, 0.04);
}

TEST(SampleWriter, PutsBigEndianNumbersAndPaddedTextsAtOffsetsFromOne)
{
    RawWriter raw;
    raw.PutChars(3, 3, "AB", ' ');
    raw.PutChars(6, 2, "XYZ", '\0');
    raw.PutI16(8, -2);
    raw.PutU32(10, 4'000'000'001);
    raw.PutRounded(14, -1.6);
    const Bytes expected{0,    18,   'A',  'B', ' ',  'X',  'Y',  0xFF, 0xFE,
                         0xEE, 0x6B, 0x28, 1,   0xFF, 0xFF, 0xFF, 0xFE, 0};
    EXPECT_NEAR(raw.NearestTie(), 0.1, 1e-12);
    raw.PutRounded(14, -1.6);
    EXPECT_EQ(raw.Finish(18), expected);
    EXPECT_EQ(RawI16(expected, 8), -2);
    EXPECT_EQ(RawU32(expected, 10), 4'000'000'001);
    EXPECT_EQ(RawI32(expected, 14), -2);
    EXPECT_EQ(RawChars(expected, 3, 3), "AB");
}

TEST(Samples, AreWholeTracesOfPassiveDevices)
{
    for (const Sample& sample : AllSamples()) {
        SCOPED_TRACE(sample.FileName);
        const auto count = static_cast<std::size_t>(RawI16(sample.Raw, 55));
        ASSERT_EQ(sample.Raw.size(), 324 + 8 * count);
        EXPECT_EQ(RawI16(sample.Raw, 1), static_cast<std::int16_t>(sample.Raw.size()));
        EXPECT_GT(sample.NearestTie, 1e-6);
        for (std::size_t i = 0; i < count; ++i) {
            const std::int32_t magnitude = RawI32(sample.Raw, 325 + 8 * i);
            const std::int32_t phase = RawI32(sample.Raw, 329 + 8 * i);
            EXPECT_TRUE(magnitude >= 0 && magnitude < 10'000) << "point " << i << ": " << magnitude;
            EXPECT_TRUE(phase >= -1800 && phase <= 1800) << "point " << i << ": " << phase;
        }
    }
}

TEST(Samples, CoverAllModesAndPointCounts)
{
    std::set<int> modes;
    std::set<int> counts;
    for (const Sample& sample : AllSamples()) {
        modes.insert(sample.Raw[15]);
        counts.insert(RawI16(sample.Raw, 55));
    }
    EXPECT_EQ(modes, (std::set<int>{0, 1, 2, 16, 17}));
    EXPECT_EQ(counts, (std::set<int>{2, 3, 51, 101, 201, 401, 601}));
}

TEST(Samples, ShowWhatTheirDevicesMust)
{
    // Raw magnitudes: 10,000 is a full reflection, 1000 a return loss of 20 dB, 178 one of 35 dB.
    const struct {
        const char* file;
        std::int32_t leastLow, mostLow, leastHigh, mostHigh;
        int marked; // 1 when the first marker stands on the lowest point, 2 when on the highest
    } cases[] = {
        {"rl_gsm900_band_edges_2pts.raw", 1000, 2000, 1000, 2000, 1},
        {"rl_short_51pts.raw", 9000, 9400, 9700, 9999, 1},
        {"rl_open_101pts.raw", 9400, 9700, 9900, 9999, 1},
        {"rl_gsm900_antenna_201pts.raw", 316, 1000, 1600, 3000, 1},
        {"rl_matched_load_401pts.raw", 10, 80, 60, 178, 1},
        {"rl_dualband_antenna_601pts.raw", 316, 1000, 7000, 9000, 1},
        {"swr_whip_3pts.raw", 1000, 2000, 1500, 3000, 1},
        {"swr_narrow_loop_101pts.raw", 300, 1000, 9000, 9900, 1},
        {"swr_umts_antenna_401pts.raw", 300, 1000, 2000, 3000, 1},
        {"cl_shorted_feeder_201pts.raw", 4500, 5500, 8000, 9000, 1},
        {"dist_rl_torn_feeder_601pts.raw", 0, 5, 8000, 9500, 2},
        {"dist_swr_kinked_jumper_401pts.raw", 0, 5, 1000, 2500, 2},
    };
    std::map<std::string, Bytes> raws;
    for (const Sample& sample : AllSamples())
        raws[sample.FileName] = sample.Raw;
    EXPECT_EQ(raws.size(), std::size(cases));
    for (const auto& each : cases) {
        SCOPED_TRACE(each.file);
        ASSERT_TRUE(raws.contains(each.file));
        const Bytes& raw = raws[each.file];
        std::vector<std::int32_t> magnitudes;
        for (std::size_t offset = 325; offset < raw.size(); offset += 8)
            magnitudes.push_back(RawI32(raw, offset));
        const auto [low, high] = std::minmax_element(magnitudes.begin(), magnitudes.end());
        EXPECT_TRUE(*low >= each.leastLow && *low <= each.mostLow) << *low;
        EXPECT_TRUE(*high >= each.leastHigh && *high <= each.mostHigh) << *high;
        const std::int16_t marker = RawI16(raw, each.marked == 1 ? 77 : 171);
        EXPECT_EQ(marker, (each.marked == 1 ? low : high) - magnitudes.begin());
    }
}

TEST(Samples, FallSteadilyWhereOnlyTheCableLosesPower)
{
    for (const Sample& sample : VnaFrequencySamples()) {
        if (sample.FileName != "rl_short_51pts.raw" && sample.FileName != "rl_open_101pts.raw")
            continue;
        for (std::size_t offset = 333; offset < sample.Raw.size(); offset += 8)
            EXPECT_LE(RawI32(sample.Raw, offset), RawI32(sample.Raw, offset - 8) + 5) << sample.FileName;
    }
}

} // namespace
} // namespace Traces::Samples
