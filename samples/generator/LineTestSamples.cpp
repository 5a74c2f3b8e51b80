// The samples of T1 and E1 line tests: bit errors that come singly and in bursts, counted slice by slice as a
// tester does, and its readings of level and tone.
#include "Physics.h"
#include "Sample.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace Traces::Samples {

namespace {

constexpr std::size_t Slices = 100;
constexpr std::size_t TraceBytes = 750;
constexpr std::uint8_t T1Mode = 96, E1Mode = 112;

/// Flags of a slice.
enum Flag : std::uint8_t { AnyError = 1, CrcError = 2, BpvError = 4, FrameLoss = 8, CarrierLoss = 16 };

/// A stretch of the test in which the line is bad.
struct Burst {
    int From, To; ///< slices, the last included
    double BitErrorRate;
    bool LosesCarrier = false;
};

struct Settings {
    const char* File;
    const char* Shows;
    std::uint8_t Mode;
    const char* Reference;
    std::uint8_t Framing, LineCode, Pattern;
    int SliceSeconds = 1;
    std::uint8_t Resolution = 1, Duration = 0;
    int SlicesUsed = 100;
    double BitErrorRate = 0; ///< between the bursts
    std::vector<Burst> Bursts = {};
    std::uint8_t Display = 0;
    bool InSync = true;
    std::uint8_t VppScaling = 0;
    double VppLevel = 6.1;
    std::uint32_t Seed = 1;
};

/// Hours, minutes and seconds in two digits each.
std::string ClockText(int seconds)
{
    std::string text;
    for (const int part : {seconds / 3600, seconds / 60 % 60, seconds % 60})
        text += (text.empty() ? "" : ":") + std::to_string(part / 10) + std::to_string(part % 10);
    return text;
}

struct Totals {
    double BitErrors = 0, Bpv = 0, Crc = 0, FrameErrors = 0, LostFrames = 0, FarEnd = 0;
    int ErroredSeconds = 0, SevereSeconds = 0, DegradedMinutes = 0, Flagged = 0;
};

class LineTest {
public:
    explicit LineTest(const Settings& test) : settings(test), random(test.Seed) {}

    Sample Make()
    {
        PutHead();
        PutSettings();
        for (int i = 0; i < settings.SlicesUsed; ++i)
            PutSlice(i);
        PutTotals();
        PutTimes();
        PutReadings();
        Sample sample{settings.File, settings.Shows, raw.Finish(TraceBytes), raw.NearestTie(), {}};
        sample.Facts = Facts(sample.Raw);
        return sample;
    }

private:
    bool IsE1() const { return settings.Mode == E1Mode; }
    double BitsPerSecond() const { return IsE1() ? 2'048'000 : 1'544'000; }
    int Seconds() const { return settings.SlicesUsed * settings.SliceSeconds; }

    void PutHead()
    {
        CommonHead head;
        head.Mode = settings.Mode;
        head.Date = "04/27/2011";
        head.Time = "14:05:30";
        head.RefNumber = settings.Reference;
        head.DataPoints = Slices;
        raw.PutHead(head);
    }

    void PutSettings()
    {
        const std::uint8_t codes[] = {
            0, settings.Framing, settings.LineCode, 1, 1, 2, 2, 1, 0, settings.Display, 2, settings.Pattern,
            0};
        std::size_t offset = 57;
        for (const std::uint8_t code : codes)
            raw.PutByte(offset++, code);
        raw.PutI16(70, 10);
        raw.PutI16(72, 5);
        raw.PutI16(74, 1);
        raw.PutByte(76, settings.Duration);
        raw.PutByte(77, settings.Resolution);
        for (std::size_t state = 78; state <= 80; ++state)
            raw.PutByte(state, settings.InSync || state == 80 ? 0 : 1);
        raw.PutByte(81, settings.InSync ? 0 : 1);
        raw.PutU32(114, 0x00AA55AA);
    }

    const Burst* BurstAt(int slice) const
    {
        const auto found =
            std::find_if(settings.Bursts.begin(), settings.Bursts.end(),
                         [&](const Burst& burst) { return slice >= burst.From && slice <= burst.To; });
        return found == settings.Bursts.end() ? nullptr : &*found;
    }

    /// A count with the spread that single events have.
    double Events(double expected)
    {
        if (expected > 30)
            return std::max(0, raw.Rounded(expected + std::sqrt(expected) * random.Gauss()));
        double count = 0, chance = random.Uniform();
        for (const double floor = std::exp(-expected); chance > floor; chance *= random.Uniform())
            ++count;
        return count;
    }

    /// Checksums go over 3 ms of T1 and 1 ms of E1; an error in one is one checksum error, whatever its bits.
    void PutSlice(int slice)
    {
        constexpr double severeRate = 1e-3, degradedRate = 1e-6;
        const Burst* burst = BurstAt(slice);
        const double rate = burst != nullptr ? burst->BitErrorRate : settings.BitErrorRate;
        const double errors = Events(rate * BitsPerSecond() * settings.SliceSeconds);
        const double blocks = (IsE1() ? 1000.0 : 333.0) * settings.SliceSeconds;
        const double crc = std::floor(blocks * (1 - std::exp(-errors / blocks)));
        const double bpv = std::floor(errors * 0.9);
        const double frames = std::floor(errors * (IsE1() ? 7.0 / 512 : 1.0 / 193));
        const bool lost = rate >= severeRate;
        int flags = (errors > 0 ? AnyError : 0) | (crc > 0 ? CrcError : 0) | (bpv > 0 ? BpvError : 0);
        flags |= (lost ? FrameLoss : 0) | (burst != nullptr && burst->LosesCarrier ? CarrierLoss : 0);
        const auto place = 156 + 5 * static_cast<std::size_t>(slice);
        raw.PutByte(place, static_cast<std::uint8_t>(flags));
        raw.PutI32(place + 1, static_cast<std::int32_t>(errors));
        totals.BitErrors += errors;
        totals.Crc += crc;
        totals.Bpv += bpv;
        totals.FrameErrors += frames;
        totals.LostFrames += lost ? 1 : 0;
        totals.FarEnd += IsE1() ? std::floor(crc * 0.4) : 0;
        totals.Flagged += flags != 0 ? 1 : 0;
        totals.ErroredSeconds += static_cast<int>(std::min<double>(errors, settings.SliceSeconds));
        totals.SevereSeconds += lost ? settings.SliceSeconds : 0;
        degradedSeconds += rate >= degradedRate && !lost ? settings.SliceSeconds : 0;
        totals.DegradedMinutes = degradedSeconds / 60;
    }

    void PutTotals()
    {
        const double counts[] = {totals.Bpv,
                                 totals.Crc,
                                 totals.FrameErrors,
                                 totals.LostFrames,
                                 totals.FarEnd,
                                 static_cast<double>(totals.ErroredSeconds),
                                 BitsPerSecond() * Seconds(),
                                 totals.BitErrors};
        std::size_t offset = 82;
        for (const double count : counts) {
            raw.PutI32(offset, static_cast<std::int32_t>(count));
            offset += 4;
        }
        constexpr int unavailableAfter = 10;
        raw.PutI16(688, static_cast<std::int16_t>(totals.DegradedMinutes));
        raw.PutI32(690, totals.SevereSeconds);
        raw.PutI32(694, totals.SevereSeconds >= unavailableAfter ? totals.SevereSeconds : 0);
    }

    void PutTimes()
    {
        if (Seconds() == 0)
            return;
        constexpr int begun = 14 * 3600 + 5 * 60 + 30;
        raw.PutChars(118, 8, ClockText(begun), '\0');
        raw.PutChars(126, 11, ClockText(begun + Seconds()), '\0');
        raw.PutChars(137, 11, "00 " + ClockText(Seconds()), '\0');
        std::array<char, 16> text{};
        std::snprintf(text.data(), text.size(), "%.1E", totals.BitErrors / (BitsPerSecond() * Seconds()));
        raw.PutChars(148, 8, totals.BitErrors > 0 ? text.data() : "0.0E+00", '\0');
    }

    void PutReadings()
    {
        const double level = settings.VppLevel * 10 + (settings.VppScaling != 0 ? 350 : 0);
        raw.PutI16(656, static_cast<std::int16_t>(raw.Rounded(level)));
        raw.PutU32(658, static_cast<std::uint32_t>(BitsPerSecond()) + (IsE1() ? 11 : 7));
        raw.PutI32(662, 52'312'400);
        raw.PutI32(666, 4'541'900);
        raw.PutI16(670, 12);
        raw.PutByte(672, 1);
        raw.PutByte(673, 17);
        raw.PutI16(674, 60);
        raw.PutI16(676, 30 - 13);
        raw.PutI16(678, 1004);
        raw.PutI16(680, 401 - 137);
        raw.PutI16(682, 1004);
        raw.PutByte(684, settings.VppScaling);
        raw.PutByte(685, 1);
        raw.PutByte(686, 2);
    }

    std::vector<std::string> Facts(const Bytes& bytes) const
    {
        int worst = 0, flagged = 0;
        std::int32_t sum = 0;
        for (int i = 0; i < static_cast<int>(Slices); ++i) {
            const auto countAt = [&](int slice) {
                return RawI32(bytes, 157 + 5 * static_cast<std::size_t>(slice));
            };
            sum += countAt(i);
            worst = countAt(i) > countAt(worst) ? i : worst;
            flagged += bytes[155 + 5 * static_cast<std::size_t>(i)] != 0 ? 1 : 0;
        }
        std::vector<std::string> facts = {
            "Bit errors " + std::to_string(sum) + " in " + std::to_string(flagged) + " slices of " +
            std::to_string(settings.SlicesUsed) +
            (sum > 0 ? ", most in slice " + std::to_string(worst + 1) : std::string()) + "; " +
            std::to_string(RawI32(bytes, 102)) + " errored and " + std::to_string(RawI32(bytes, 690)) +
            " severely errored seconds."};
        if (settings.Display == 2)
            facts.push_back("Level " + Fixed(settings.VppLevel, 1) +
                            (settings.VppScaling != 0 ? " dBdsx." : " Vpp."));
        if (settings.Display == 3)
            facts.push_back("Tone of " + std::to_string(RawI16(bytes, 682)) + " Hz at " +
                            Fixed((RawI16(bytes, 680) - 401) / 10.0, 1) + " dBm on channel 17.");
        return facts;
    }

    const Settings& settings;
    SteadyRandom random;
    RawWriter raw;
    Totals totals;
    int degradedSeconds = 0;
};

} // namespace

std::vector<Sample> LineTestSamples()
{
    constexpr std::uint8_t esf = 1, pcm30Crc = 4, b8zs = 1, hdb3 = 3, qrss = 7, prbs15 = 3;
    const Settings t1 = {.File = "t1_bursts_100slices.raw",
                         .Shows = "a T1 line with bursts of errors, one with loss of the carrier",
                         .Mode = T1Mode,
                         .Reference = "DS1 4471",
                         .Framing = esf,
                         .LineCode = b8zs,
                         .Pattern = qrss,
                         .BitErrorRate = 2e-7,
                         .Bursts = {{11, 15, 4e-5}, {37, 39, 1e-2, true}, {40, 43, 3e-4}, {70, 88, 6e-6}}};
    Settings e1 = t1;
    e1.File = "e1_crc_60slices.raw";
    e1.Shows = "an E1 line whose checksums fail at both ends, over a quarter of an hour";
    e1.Mode = E1Mode;
    e1.Reference = "PCM 30-12";
    e1.Framing = pcm30Crc;
    e1.LineCode = hdb3;
    e1.Pattern = prbs15;
    e1.SliceSeconds = 15;
    e1.Resolution = e1.Duration = 2;
    e1.SlicesUsed = 60;
    e1.BitErrorRate = 3e-8;
    e1.Bursts = {{20, 27, 2e-6}, {44, 45, 1.5e-4}};
    Settings clean = t1;
    clean.File = "t1_clean.raw";
    clean.Shows = "a T1 line without an error";
    clean.BitErrorRate = 0;
    clean.Bursts.clear();
    Settings volts = clean;
    volts.File = "t1_vpp_volts.raw";
    volts.Shows = "the level of a T1 line in volts";
    volts.SlicesUsed = 0;
    volts.Display = 2;
    Settings decibels = e1;
    decibels.File = "e1_vpp_dbdsx.raw";
    decibels.Shows = "the level of an E1 line in dBdsx";
    decibels.SlicesUsed = 0;
    decibels.Display = 2;
    decibels.VppScaling = 1;
    decibels.VppLevel = -7.4;
    Settings tone = volts;
    tone.File = "t1_vf_tone.raw";
    tone.Shows = "a test tone on a voice channel";
    tone.Display = 3;
    Settings unsynced = tone;
    unsynced.File = "t1_vf_out_of_sync.raw";
    unsynced.Shows = "the same without frame synchronization";
    unsynced.InSync = false;

    std::vector<Sample> samples;
    for (const Settings& settings : {t1, e1, clean, volts, decibels, tone, unsynced})
        samples.push_back(LineTest(settings).Make());
    return samples;
}

} // namespace Traces::Samples
