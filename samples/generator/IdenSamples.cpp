// The samples of iDEN: a carrier of four subcarriers in sixteen points each, its neighbours' channels, its
// slots in time, and its constellation.
#include "Physics.h"
#include "Sample.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Traces::Samples {

namespace {

constexpr std::size_t Points = 401, Pairs = 240;
constexpr std::size_t TraceBytes = 3602;

struct Settings {
    const char* File;
    const char* Shows;
    std::uint8_t View; ///< spectrum, ACPR, power against time, constellation
    double PowerDbm = -22.4;
    double NoiseShare = 0.05; ///< of the constellation's mean power, as a voltage
    double RegrowthDb = -62;  ///< in the next channel
};

double Milliwatts(double dbm)
{
    return std::pow(10, dbm / 10);
}

/// Four blocks of 4.5 kHz side by side, with what an amplifier adds around them, over the floor.
std::vector<double> SpectrumDbm(const Settings& settings, double spanHz, SteadyRandom& random)
{
    constexpr double blockHz = 4.5e3, floorDbm = -104, skirtHz = 900;
    std::vector<double> levels;
    for (std::size_t i = 0; i < Points; ++i) {
        const double hertz = (static_cast<double>(i) / (Points - 1) - 0.5) * spanHz;
        double share = 0;
        for (const double centre : {-6.75e3, -2.25e3, 2.25e3, 6.75e3})
            share += 1 / (1 + std::exp((std::abs(hertz - centre) - 0.46 * blockHz) / (skirtHz / 4)));
        const double regrowth = Milliwatts(settings.RegrowthDb) / (1 + std::pow(hertz / 14e3, 4));
        const double power = Milliwatts(settings.PowerDbm - 6) * (share + regrowth) + Milliwatts(floorDbm);
        levels.push_back(10 * std::log10(power) + 1.1 * random.Gauss());
    }
    return levels;
}

/// Six slots of 15 ms, three of them on the air.
std::vector<double> PowerTimeDbm(const Settings& settings, SteadyRandom& random)
{
    constexpr std::array<double, 6> slotDb = {0, -90, -0.4, -90, 0.3, -90};
    constexpr double floorDbm = -98;
    std::vector<double> levels;
    for (std::size_t i = 0; i < Points; ++i) {
        const double place = static_cast<double>(i) * 6 / Points;
        const double edge = std::min(place - std::floor(place), std::ceil(place) - place);
        const double ramp = edge < 0.02 ? -60 : 0;
        const double level =
            settings.PowerDbm + slotDb[static_cast<std::size_t>(place)] + ramp + 1.6 * random.Gauss();
        levels.push_back(std::max(level, floorDbm + random.Gauss()));
    }
    return levels;
}

/// Of 16 points each, in the instrument's own units.
std::vector<double> Constellation(const Settings& settings, SteadyRandom& random)
{
    constexpr double unit = 700;
    const auto step = [&] { return 2 * std::floor(4 * random.Uniform()) - 3; };
    const double noise = settings.NoiseShare * std::sqrt(10.0) / std::sqrt(2.0);
    std::vector<double> values;
    for (std::size_t i = 0; i < 2 * Pairs; ++i) {
        const double place = step();
        values.push_back(unit * (place + noise * random.Gauss()));
    }
    return values;
}

void PutScalars(RawWriter& raw, const Settings& settings)
{
    // The view's code is the upper byte of a word whose lower one is 1.
    raw.PutByte(57, settings.View);
    raw.PutByte(58, 1);
    raw.PutU32(63, 851'137'500);
    raw.PutU32(67, 150'000);
    raw.PutU32(71, 270'000 - 10'000);
    raw.PutU32(75, 10'000);
    raw.PutI16(79, 71);
    raw.PutChars(81, 23, "iDEN 800", '\0');
    raw.PutI32(105, 33'447'500);
    raw.PutI32(109, -84'233'900);
    raw.PutI16(113, 320);
    raw.PutChars(115, 9, "152010.00", '\0');
    raw.PutI32(127, -18);
    raw.PutU32(131, 71);
    const double tenths = settings.PowerDbm * 10;
    for (std::size_t slot = 0; slot < 4; ++slot)
        raw.PutRounded(135 + 4 * slot, tenths - 60 - 2.0 * static_cast<double>(slot));
    raw.PutI32(151, 17'850);
    for (const auto& [offset, extra] :
         {std::pair{155U, -180.0}, {159U, -90.0}, {163U, 0.0}, {171U, 2.0}, {175U, -88.0}, {179U, -177.0}})
        raw.PutRounded(offset, settings.RegrowthDb * 10 + extra);
    raw.PutRounded(183, tenths);
    raw.PutRounded(187, -200 * std::log10(settings.NoiseShare));
    raw.PutI32(191, -92);
    raw.PutI16(195, 997);
    raw.PutRounded(199, settings.NoiseShare * 1000);
    for (std::size_t k = 0; k < 4; ++k)
        raw.PutRounded(203 + 4 * k, settings.NoiseShare * 100 + 0.3 * static_cast<double>(k));
    raw.PutRounded(219, tenths + 2);
    raw.PutI32(223, 50);
    raw.PutI16(227, 74);
    raw.PutI16(3598, 1129);
}

Sample MakeSample(const Settings& settings, std::uint32_t seed)
{
    SteadyRandom random(seed);
    RawWriter raw;
    CommonHead head;
    head.Mode = 147;
    head.Date = "08/21/2008";
    head.Time = "15:20:10";
    head.RefNumber = "EBTS 4 BR 2";
    head.DataPoints = Points;
    raw.PutHead(head);
    PutScalars(raw, settings);
    const auto putCurve = [&](std::size_t offset, const std::vector<double>& values, double scale) {
        for (const double value : values) {
            raw.PutI16(offset, static_cast<std::int16_t>(raw.Rounded(value * scale)));
            offset += 2;
        }
    };
    putCurve(231, SpectrumDbm(settings, 150e3, random), 10);
    putCurve(1033, SpectrumDbm(settings, 50e3, random), 10);
    putCurve(1835, Constellation(settings, random), 1);
    putCurve(2795, PowerTimeDbm(settings, random), 10);
    Sample sample{settings.File, settings.Shows, raw.Finish(TraceBytes), raw.NearestTie(), {}};
    sample.Facts = {"Main channel " + Fixed(RawI32(sample.Raw, 183) / 10.0, 1) + " dBm; next channels " +
                        Fixed(RawI32(sample.Raw, 163) / 10.0, 1) + " and " +
                        Fixed(RawI32(sample.Raw, 171) / 10.0, 1) + " dB.",
                    "Signal quality " + Fixed(RawI32(sample.Raw, 187) / 10.0, 1) + " dB, error vector " +
                        Fixed(RawI32(sample.Raw, 199) / 10.0, 1) + " %."};
    return sample;
}

} // namespace

std::vector<Sample> IdenSamples()
{
    return {
        MakeSample({"iden_spectrum.raw", "the spectrum of a base radio", 0}, 51),
        MakeSample({"iden_acpr_regrowth.raw",
                    "the neighbours of a channel whose amplifier is driven too hard", 1, -18.2, 0.09, -41},
                   52),
        MakeSample({"iden_power_time.raw", "three of six slots on the air", 2}, 53),
        MakeSample({"iden_demod_noisy.raw", "a constellation with much noise", 3, -63.5, 0.14}, 54),
    };
}

} // namespace Traces::Samples
