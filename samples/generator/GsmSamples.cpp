// The samples of GSM: a modelled burst of Gaussian minimum shift keying, its power against time within a slot
// and over a frame of eight, and its spectrum.
#include "Physics.h"
#include "Sample.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace Traces::Samples {

namespace {

constexpr std::size_t Points = 401;
constexpr std::size_t TraceBytes = 2562;
constexpr double BitSeconds = 48.0 / 13e6; ///< 13 MHz / 48 is the bit rate
constexpr int BurstBits = 148, SlotBits = 156;
constexpr int SamplesABit = 8;

/// How a transmitter keys its burst.
struct Burst {
    double PowerDbm = 12.6;
    double RampBits = 4; ///< from floor to full power
    double DroopDb = 0;  ///< over the useful part
    double OvershootDb = 0;
    double FloorDb = -78; ///< between bursts
};

/// Level against the burst's own power, `bit` bits after the slot's begin: a raised cosine up and down.
double EnvelopeDb(const Burst& burst, double bit)
{
    constexpr double begin = 4, end = begin + BurstBits;
    const auto ramp = [&](double bitsInside) {
        const double share = std::clamp((bitsInside + burst.RampBits) / burst.RampBits, 0.0, 1.0);
        return std::max(20 * std::log10(std::max(1e-6, (1 - std::cos(std::numbers::pi * share)) / 2)),
                        burst.FloorDb);
    };
    const double level = std::min(ramp(bit - begin), ramp(end - bit));
    if (bit < begin || bit > end)
        return level;
    const double place = (bit - begin) / BurstBits;
    return burst.OvershootDb * std::exp(-(bit - begin) / 3) - burst.DroopDb * place;
}

/// Complex samples of a burst: tails, data, training sequence 0, data, tails.
std::vector<Complex> Modulated(const Burst& burst, SteadyRandom& random)
{
    constexpr std::string_view training = "00100101110000100010010111";
    constexpr int trainingFrom = 61;
    std::array<double, BurstBits> bits{};
    for (int i = 3; i < BurstBits - 3; ++i) {
        const int place = i - trainingFrom;
        const bool inTraining = place >= 0 && place < static_cast<int>(training.size());
        const bool one =
            inTraining ? training[static_cast<std::size_t>(place)] == '1' : random.Uniform() < 0.5;
        bits[static_cast<std::size_t>(i)] = one ? 1 : -1;
    }
    // The pulse of a bandwidth-time product of 0.3, over the two bits at either side.
    constexpr double bandwidth = 0.3;
    const double spread = std::sqrt(std::log(2.0)) / (2 * std::numbers::pi * bandwidth);
    std::vector<Complex> samples;
    double phase = 0;
    for (int n = 0; n < BurstBits * SamplesABit; ++n) {
        const double time = static_cast<double>(n) / SamplesABit;
        double frequency = 0;
        for (int i = std::max(0, static_cast<int>(time) - 3);
             i < std::min(BurstBits, static_cast<int>(time) + 4); ++i) {
            const double from = (time - i - 1) / spread, to = (time - i) / spread;
            frequency += bits[static_cast<std::size_t>(i)] *
                         (std::erf(to / std::numbers::sqrt2) - std::erf(from / std::numbers::sqrt2)) / 2;
        }
        phase += frequency * std::numbers::pi / 2 / SamplesABit;
        samples.push_back(std::polar(std::pow(10, EnvelopeDb(burst, time + 4) / 20), phase));
    }
    return samples;
}

/// Levels of a span of 500 kHz through a resolution filter of 5 kHz, against the burst's power.
std::vector<double> SpectrumDb(const Burst& burst, double offsetHz, SteadyRandom& random)
{
    constexpr int bursts = 12;
    constexpr double spanHz = 500e3, resolutionHz = 5e3, noiseDb = -75;
    constexpr double sampleSeconds = BitSeconds / SamplesABit;
    std::vector<double> power(Points, 0.0);
    for (int b = 0; b < bursts; ++b) {
        const std::vector<Complex> samples = Modulated(burst, random);
        const double length = static_cast<double>(samples.size());
        for (std::size_t k = 0; k < Points; ++k) {
            const double hertz = (static_cast<double>(k) / (Points - 1) - 0.5) * spanHz - offsetHz;
            const double step = -2 * std::numbers::pi * hertz * sampleSeconds;
            Complex sum = 0;
            for (std::size_t n = 0; n < samples.size(); ++n) {
                const double window =
                    0.5 - 0.5 * std::cos(2 * std::numbers::pi * static_cast<double>(n) / length);
                sum += samples[n] * std::polar(window, step * static_cast<double>(n));
            }
            power[k] += std::norm(sum) / bursts;
        }
    }
    // A bin's share of the whole power, seen through the filter's width.
    const double whole = static_cast<double>(BurstBits * SamplesABit) * BurstBits * SamplesABit * 0.375;
    const double filter = resolutionHz * BitSeconds * BurstBits;
    for (double& level : power)
        level = 10 * std::log10(level / whole * filter +
                                std::pow(10, noiseDb / 10) * (0.8 + 0.4 * random.Uniform()));
    return power;
}

/// A level with the floor's noise on it.
double Noisy(double db, double floorDb, SteadyRandom& random)
{
    const double voltage = std::pow(10, db / 20);
    const double noise = std::pow(10, (floorDb - 4) / 20);
    // One after the other: the order in which a call's arguments are made is the compiler's.
    const double inPhase = voltage + noise * random.Gauss();
    const double quadrature = noise * random.Gauss();
    return 20 * std::log10(std::abs(Complex(inPhase, quadrature)));
}

std::vector<double> SlotDb(const Burst& burst, SteadyRandom& random)
{
    // The useful part lies between the mask's inner lines, points 30 and 370.
    constexpr double pointsABit = 340.0 / (BurstBits - 1), firstPoint = 30, firstBit = 4.5;
    std::vector<double> levels;
    for (std::size_t i = 0; i < Points; ++i)
        levels.push_back(
            Noisy(EnvelopeDb(burst, (static_cast<double>(i) - firstPoint) / pointsABit + firstBit),
                  burst.FloorDb, random));
    return levels;
}

std::vector<double> FrameDb(const Burst& burst, SteadyRandom& random)
{
    constexpr std::array<double, 8> slotDb = {0, -90, -6, -6, -90, -14, 0, -90}; // -90 is idle
    constexpr double bitsAPoint = 8.0 * SlotBits / Points;
    std::vector<double> levels;
    for (std::size_t i = 0; i < Points; ++i) {
        const double bit = static_cast<double>(i) * bitsAPoint;
        const auto slot = static_cast<std::size_t>(bit / SlotBits);
        const double level =
            std::max(EnvelopeDb(burst, std::fmod(bit, SlotBits)) + slotDb[slot], burst.FloorDb);
        levels.push_back(Noisy(level, burst.FloorDb, random));
    }
    return levels;
}

struct Settings {
    const char* File;
    const char* Shows;
    const char* Version;
    std::uint8_t Display; ///< 0 spectrum, 1 frame, 2 slot
    Burst Keyed;
    double FrequencyErrorHz = 21;
    bool Measured = true; ///< bandwidth and training sequence
    bool Cable = false;
};

double Bias(const Settings& settings)
{
    return std::string_view(settings.Version) <= "3.15" ? 50'000 : 60'000;
}

/// Where a stretch of the slot's useful part leaves -2 to 2 dB, in points; none when it stays.
int PointsOutside(const Bytes& bytes, double bias)
{
    int outside = 0;
    for (std::size_t i = 30; i <= 370; ++i) {
        const auto word = static_cast<std::uint16_t>(RawI16(bytes, 1761 + 2 * i));
        outside += std::abs((word - bias) / 250) > 2 ? 1 : 0;
    }
    return outside;
}

Sample MakeSample(const Settings& settings, std::uint32_t seed)
{
    SteadyRandom random(seed);
    RawWriter raw;
    CommonHead head;
    head.Version = settings.Version;
    head.Mode = 145;
    head.Date = "09/14/2010";
    head.Time = "16:20:11";
    head.RefNumber = "BTS 17 TRX 2";
    head.DataPoints = Points;
    raw.PutHead(head);
    const double bias = Bias(settings);
    const auto putLevel = [&](std::size_t offset, double db) {
        raw.PutI16(offset, static_cast<std::int16_t>(
                               static_cast<std::uint16_t>(raw.Rounded(std::max(db * 250 + bias, 0.0)))));
    };
    raw.PutI16(57, 10'000);
    raw.PutU32(59, 947'400'000);
    raw.PutU32(63, 10'000'000);
    raw.PutByte(69, settings.Display);
    raw.PutByte(70, 1);
    raw.PutU32(71, 270'000);
    raw.PutI16(75, 62);
    raw.PutI32(77, 48'082'500);
    raw.PutI32(81, 11'345'000);
    raw.PutI16(85, 519);
    raw.PutChars(90, 24, "GSM 900", '\0');
    raw.PutByte(114, settings.Cable ? 1 : 0);
    putLevel(127, settings.Keyed.PowerDbm - 0.4);
    putLevel(129, settings.Keyed.PowerDbm);
    raw.PutU32(131, static_cast<std::uint32_t>(1'000'000 + settings.FrequencyErrorHz));
    raw.PutU32(135, settings.Measured ? 245'600 : 0);
    raw.PutI16(139, settings.Measured ? 0 : -1);
    const std::vector<double> curves[] = {SpectrumDb(settings.Keyed, settings.FrequencyErrorHz, random),
                                          FrameDb(settings.Keyed, random), SlotDb(settings.Keyed, random)};
    std::size_t offset = 157;
    for (const auto& curve : curves)
        for (const double level : curve) {
            putLevel(offset, level);
            offset += 2;
        }
    Sample sample{settings.File, settings.Shows, raw.Finish(TraceBytes), raw.NearestTie(), {}};
    const int outside = PointsOutside(sample.Raw, bias);
    sample.Facts = {"Burst " + Fixed((static_cast<std::uint16_t>(RawI16(sample.Raw, 129)) - bias) / 250, 1) +
                        " dBm on channel " + std::to_string(RawI16(sample.Raw, 75)) + ", " +
                        std::to_string(RawI32(sample.Raw, 131) - 1'000'000) + " Hz off.",
                    outside == 0
                        ? "The useful part stays within 2 dB."
                        : std::to_string(outside) + " points of the useful part are off by more than 2 dB."};
    return sample;
}

} // namespace

std::vector<Sample> GsmSamples()
{
    constexpr std::uint8_t spectrum = 0, frame = 1, slot = 2;
    const Burst good;
    const Burst bad = {.PowerDbm = 9.3, .RampBits = 11, .DroopDb = 3.4, .OvershootDb = 3, .FloorDb = -66};
    return {
        MakeSample(
            {"gsm_spectrum_v320.raw", "the spectrum of a base station's burst", "3.20", spectrum, good}, 31),
        MakeSample({"gsm_frame_v320.raw", "eight slots, three of them idle", "3.20", frame, good, -7}, 32),
        MakeSample({"gsm_slot_good_v315.raw", "a burst within its mask", "3.15", slot, good, 21, true, true},
                   33),
        MakeSample({"gsm_slot_bad_v320.raw", "a burst that rises late, overshoots and droops", "3.20", slot,
                    bad, 142, false},
                   34),
    };
}

} // namespace Traces::Samples
