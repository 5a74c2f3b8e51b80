// The samples of CDMA: the forward link of a cell by its Walsh codes, its spectrum, and the pilots that a
// handset's place receives. Powers of the channels are those that a cell is commonly planned with; what isn't
// sent is the noise of the despreader.
#include "Physics.h"
#include "Sample.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <string>

namespace Traces::Samples {

namespace {

constexpr std::size_t Codes = 128;
constexpr std::size_t SpectrumPoints = 384;
constexpr std::size_t TraceBytes = 1840;
constexpr double Unmeasured = -270; // dB, the raw value zero

enum Channel : std::uint8_t { Pilot, Page, Sync, QuickPage, IS95Traffic, CDMA2000Traffic, Unknown, Noise };
constexpr const char* ChannelNames[] = {"pilot",         "page",         "sync",  "quick page",
                                        "IS-95 traffic", "2000 traffic", "other", "nothing"};

struct Code {
    Channel Type = Noise;
    bool Begins = true; ///< a channel's first code, which the record has as 0
    double Db = Unmeasured;
};

/// What stands in a cell's code domain.
std::array<Code, Codes> ForwardLink(std::size_t count, int calls, SteadyRandom& random)
{
    std::array<Code, Codes> codes;
    for (std::size_t i = 0; i < count; ++i)
        codes[i] = {Noise, true, -31 + 1.5 * random.Gauss()};
    codes[0] = {Pilot, true, -7};
    codes[1] = {Page, true, -12.2};
    codes[32] = {Sync, true, -16.1};
    if (count == Codes)
        codes[80] = {QuickPage, true, -18.4};
    for (int call = 0; call < calls; ++call) {
        const auto place = static_cast<std::size_t>(random.Uniform() * static_cast<double>(count));
        const double power = -15.5 + 3 * random.Gauss();
        if (codes[place].Type != Noise)
            continue;
        codes[place] = {call % 3 == 2 ? CDMA2000Traffic : IS95Traffic, true, std::min(power, -9.0)};
        // A fast data channel takes the code beside its own as well.
        if (call % 3 == 2 && place + 1 < count && codes[place + 1].Type == Noise)
            codes[place + 1] = {CDMA2000Traffic, false, codes[place].Db - 0.2};
    }
    return codes;
}

/// The 1.23 MHz of a carrier in a window of 2 MHz: the chips' filter, the amplifier's shoulders, noise.
double SpectrumDb(std::size_t point, SteadyRandom& random)
{
    const double offset = std::abs(static_cast<double>(point) / (SpectrumPoints - 1) - 0.5) * 2.0; // MHz
    constexpr double edge = 0.615;
    const double skirt = offset > edge ? 130 * (offset - edge) : 0;
    const double shoulder = -34 - 8 * (offset - edge);
    const double level = std::max({-8 - skirt, offset > edge ? shoulder : -90.0, -46.0});
    return level + 0.6 * random.Gauss();
}

struct Settings {
    const char* File;
    const char* Shows;
    const char* Version;
    const char* Reference;
    std::size_t Count = 64; ///< codes; the head's data points
    int Calls = 9;
    std::uint8_t Options = 0; ///< 1 over the air, 2 RF
    std::uint8_t Display = 1;
    std::uint8_t SearchMode = 0;
    std::int16_t SignalStatus = 0;
    std::uint8_t MeasurementStatus = 0;
    std::uint8_t Markers = 0; ///< status byte 2
    std::uint8_t Units = 0;
};

constexpr std::array<double, 9> PilotDb = {-7.1, -13.4, -17.9, -21.5, -24.2, -26.6, -19.3, -23.8, -29.1};
constexpr std::array<std::int16_t, 9> PilotPN = {132, 300, 36, 468, 204, 12, 132, 300, 36};
constexpr std::array<double, 6> PilotDelay = {3.25, 5.5, 11.75, 17, -30, -30};

class CdmaRecord {
public:
    explicit CdmaRecord(const Settings& all)
        : settings(all), version(std::strtod(all.Version, nullptr)), bias(version >= 3.15 ? 50000 : 60000)
    {
    }

    Sample Make()
    {
        SteadyRandom random(static_cast<std::uint32_t>(settings.Count) + settings.Display);
        PutHead();
        PutSetup();
        PutResults();
        if (version >= 3.2)
            PutNewerScan();
        else
            PutOlderScan();
        PutCodes(random);
        Sample sample{settings.File, settings.Shows, raw.Finish(TraceBytes), raw.NearestTie(), {}};
        sample.Facts = Facts(sample.Raw);
        return sample;
    }

private:
    void PutHead()
    {
        CommonHead head;
        head.Version = settings.Version;
        head.Mode = 144;
        head.Date = "05/19/2009";
        head.Time = "11:42:07";
        head.RefNumber = settings.Reference;
        head.DataPoints = static_cast<std::int16_t>(settings.Count);
        raw.PutHead(head);
    }

    void PutLevel(std::size_t offset, double db) { raw.PutRounded(offset, db * 250 + bias); }

    void PutSetup()
    {
        raw.PutI16(57, 10'000);
        raw.PutU32(59, 1'931'250'000);
        raw.PutU32(63, 10'000'000);
        raw.PutByte(67, 3);
        raw.PutI16(68, 132);
        raw.PutByte(70, 1);
        raw.PutByte(71, settings.Markers);
        raw.PutByte(72, settings.Options);
        constexpr std::array<std::uint8_t, 6> places = {0, 1, 32, 12, 40, 63};
        for (std::size_t k = 0; k < places.size(); ++k)
            raw.PutByte(73 + k, places[k]);
        raw.PutI16(79, 20);
        raw.PutByte(81, settings.Display);
        raw.PutByte(82, settings.Units);
        raw.PutRounded(83, 30.5 * 1000 + 270'000);
        raw.PutByte(87, 4);
        raw.PutI16(88, 25);
        raw.PutByte(90, settings.SearchMode);
        raw.PutI16(91, settings.SignalStatus);
        raw.PutByte(93, settings.MeasurementStatus);
        raw.PutChars(94, 24, "CDMA US PCS", '\0');
    }

    void PutResults()
    {
        raw.PutRounded(154, 0.987 * 65535);
        raw.PutU32(158, 132);
        raw.PutI32(162, 1'000'000 - 37);
        PutLevel(166, -32.3);
        PutLevel(170, -39.3);
        raw.PutRounded(174, -41.2 * 250 + 25'000);
        raw.PutU32(178, 1'236'000);
        for (std::size_t k = 0; k < 7; ++k)
            PutLevel(182 + 4 * k, PilotDb[k]);
    }

    /// Delay, noise, dominance, multipath and the place, which both layouts have in this order.
    void PutTail(std::size_t offset)
    {
        raw.PutRounded(offset, 2.4 * 10 + 300);
        PutLevel(offset + 4, -31.2);
        PutLevel(offset + 8, 6.3);
        PutLevel(offset + 12, -15.2);
        raw.PutI32(offset + 16, 38'538'600);
        raw.PutI32(offset + 20, -90'122'400);
        raw.PutI16(offset + 24, 142);
        raw.PutByte(offset + 26, 0);
    }

    void PutOlderScan()
    {
        for (std::size_t k = 0; k < 7; ++k)
            raw.PutI16(210 + 2 * k, PilotPN[k]);
        PutTail(224);
    }

    void PutNewerScan()
    {
        PutLevel(210, PilotDb[7]);
        PutLevel(214, PilotDb[8]);
        for (std::size_t k = 0; k < 9; ++k)
            raw.PutI16(218 + 2 * k, PilotPN[k]);
        for (std::size_t k = 0; k < 6; ++k)
            raw.PutRounded(236 + 4 * k, (PilotDelay[k] + 30) * 100);
        PutTail(260);
        raw.PutChars(287, 10, "16:42:07", '\0');
        raw.PutByte(297, 4);
    }

    void PutCodes(SteadyRandom& random)
    {
        const auto codes = ForwardLink(settings.Count, settings.Calls, random);
        for (std::size_t i = 0; i < Codes; ++i) {
            raw.PutRounded(304 + 4 * i, codes[i].Db * 1000 + 270'000);
            raw.PutByte(816 + i, codes[i].Begins ? 0 : 1);
            raw.PutByte(944 + i, codes[i].Type);
        }
        for (std::size_t i = 0; i < SpectrumPoints; ++i)
            raw.PutI16(1072 + 2 * i, static_cast<std::int16_t>(static_cast<std::uint16_t>(
                                         raw.Rounded(SpectrumDb(i, random) * 250 + bias))));
    }

    std::vector<std::string> Facts(const Bytes& bytes) const
    {
        std::array<int, 8> counts{};
        double sum = 0;
        for (std::size_t i = 0; i < settings.Count; ++i) {
            ++counts[bytes[943 + i]];
            sum += std::pow(10, (RawU32(bytes, 304 + 4 * i) / 1000.0 - 270) / 10);
        }
        std::string kinds = "Codes:";
        for (std::size_t type = 0; type < counts.size(); ++type)
            if (counts[type] > 0)
                kinds += " " + std::to_string(counts[type]) + " " + ChannelNames[type] + ",";
        kinds.back() = '.';
        return {kinds,
                "Pilot " + Fixed(RawU32(bytes, 304) / 1000.0 - 270, 3) + " dB; all codes together " +
                    Fixed(10 * std::log10(sum), 2) + " dB.",
                "Channel power " + Fixed((RawU32(bytes, 166) - bias) / 250, 3) + " dBm, frequency error " +
                    std::to_string(RawI32(bytes, 162) - 1'000'000) + " Hz, first pilot PN " +
                    std::to_string(RawI16(bytes, version >= 3.2 ? 218 : 210)) + "."};
    }

    const Settings& settings;
    const double version;
    const double bias;
    RawWriter raw;
};

} // namespace

std::vector<Sample> CdmaSamples()
{
    const Settings all[] = {
        {"cdma_is95_64codes_v314.raw", "an IS-95 cell of 64 codes, firmware 3.14, without options", "3.14",
         "CELL 17"},
        {"cdma_cell_128codes_v315.raw", "a cell of 128 codes, firmware 3.15, in bit-reversed order", "3.15",
         "CELL 21 BETA", Codes, 24, 3, 2, 1},
        {"cdma_cell_128codes_v320.raw", "the same with firmware 3.20 and three markers on", "3.20",
         "CELL 21 BETA", Codes, 24, 3, 1, 0, 0, 0, 0xE0},
        {"cdma_over_the_air_64codes_v320.raw", "a cell received over the air, levels in watts", "3.20",
         "HILL ROAD", 64, 12, 1, 3, 4, 0, 0, 0, 1},
        {"cdma_spectrum_v320.raw", "the spectrum of a carrier", "3.20", "CELL 21 RF", Codes, 24, 3, 4},
        {"cdma_no_short_code_v320.raw", "a measurement that found no short code", "3.20", "CELL 9", 64, 0, 1,
         1, 0, 4, 255},
    };
    std::vector<Sample> samples;
    for (const Settings& settings : all)
        samples.push_back(CdmaRecord(settings).Make());
    return samples;
}

} // namespace Traces::Samples
