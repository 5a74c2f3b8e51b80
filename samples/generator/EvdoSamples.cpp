// The samples of EV-DO: a sector's MAC and data codes, its carrier, and a slot's power against time. A slot
// has 2048 chips; a half of it, which the trace shows, begins and ends with data and has the MAC's two bursts
// around the pilot in its middle. Without data the amplifier rests but for these.
#include "Physics.h"
#include "Sample.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <string>

namespace Traces::Samples {

namespace {

constexpr std::size_t CurvePoints = 384;
constexpr std::size_t DataCodes = 16;
constexpr double NotCaptured = -199;

struct Settings {
    const char* File;
    const char* Shows;
    const char* Version;
    const char* Reference;
    std::int16_t Codes = 64;
    std::uint8_t Display = 0;
    std::uint8_t Status = 2; ///< 2 MAC, 4 active slot, 8 idle
    std::uint8_t SearchMode = 0;
    double IdleDb = -38.6, ActiveDb = -10.2;
    std::int16_t SignalStatus = 0;
    std::uint8_t MeasurementStatus = 0;
    std::uint8_t Markers = 0;
};

constexpr std::array<double, 9> PilotDb = {-1.2, -9.4, -13.1, -15.6, -18.2, -21.3, -17.7, -20.4, -24.8};
constexpr std::array<std::int16_t, 9> PilotPN = {24, 192, 360, 108, 276, 999, 24, 192, 360};

class EvdoRecord {
public:
    explicit EvdoRecord(const Settings& all)
        : settings(all), version(std::strtod(all.Version, nullptr)), newer(version >= 3.2),
          bias(version >= 3.15 ? 50000 : 60000)
    {
    }

    Sample Make()
    {
        SteadyRandom random(static_cast<std::uint32_t>(settings.Codes + settings.Status));
        PutSetup();
        PutResults();
        PutScan();
        PutCodes(random);
        PutCurves(random);
        Sample sample{settings.File, settings.Shows, raw.Finish(newer ? 4151 : 3153), raw.NearestTie(), {}};
        sample.Facts = Facts(sample.Raw);
        return sample;
    }

private:
    void PutLevel(std::size_t offset, double db) { raw.PutRounded(offset, db * 250 + bias); }

    void PutSetup()
    {
        CommonHead head;
        head.Version = settings.Version;
        head.Mode = 146;
        head.Date = "09/30/2010";
        head.Time = "15:08:51";
        head.RefNumber = settings.Reference;
        head.DataPoints = settings.Codes;
        raw.PutHead(head);
        raw.PutI16(57, 10'000);
        raw.PutU32(59, 1'938'750'000);
        raw.PutU32(63, 10'000'000);
        raw.PutByte(67, 2);
        raw.PutI16(68, 24);
        raw.PutByte(70, static_cast<std::uint8_t>(settings.Status | 1));
        raw.PutByte(71, settings.Markers);
        raw.PutByte(72, 3);
        constexpr std::array<std::uint8_t, 6> places = {4, 7, 12, 3, 20, 40};
        for (std::size_t k = 0; k < places.size(); ++k)
            raw.PutByte(73 + k, places[k]);
        raw.PutI16(79, 62);
        raw.PutByte(81, settings.Display);
        raw.PutRounded(83, 30 * 1000 + 270'000);
        raw.PutI16(88, 175);
        raw.PutByte(90, settings.SearchMode);
        raw.PutI16(91, settings.SignalStatus);
        raw.PutByte(93, settings.MeasurementStatus);
        raw.PutChars(94, 24, "PCS 1900 EV-DO", '\0');
        raw.PutByte(118, 8); // the fourth marker stands on a data code
    }

    void PutResults()
    {
        raw.PutRounded(154, 0.9921 * 65535);
        raw.PutRounded(158, 0.9874 * 65535);
        raw.PutRounded(162, 0.9746 * 65535);
        raw.PutU32(166, 24);
        raw.PutI32(170, 1'000'000 + 12);
        PutLevel(174, -11.4);
        raw.PutRounded(178, -44.8 * 250 + 25'000);
        raw.PutU32(182, 1'232'000);
    }

    void PutScan()
    {
        for (std::size_t k = 0; k < (newer ? 9U : 7U); ++k) {
            // From 3.20 the last three stand in front of the others.
            const std::size_t place = newer ? (k + 3) % 9 : k;
            PutLevel(186 + 4 * place, PilotDb[k]);
            raw.PutI16((newer ? 222U : 214U) + 2 * place, PilotPN[k]);
        }
        constexpr std::array<double, 6> delays = {2.4, 6.1, 14.8, -30, -30, -30};
        for (std::size_t k = 0; newer && k < delays.size(); ++k)
            raw.PutRounded(240 + 4 * k, (delays[k] + 30) * 10);
        const std::size_t tail = newer ? 264 : 228;
        raw.PutRounded(tail, 2.4 * 10 + 300);
        PutLevel(tail + 4, -28.4);
        PutLevel(tail + 8, 8.2);
        PutLevel(tail + 12, -0.6);
        const double levels[] = {-10.6,          -10.2, -11.4, -12.8, -12.4, -13.6, -14.2, settings.ActiveDb,
                                 settings.IdleDb};
        for (std::size_t k = 0; k < std::size(levels); ++k)
            PutLevel(tail + 16 + 4 * k, levels[k]);
        raw.PutI16(tail + 52, 612);
        raw.PutByte(tail + 54, 2);
        raw.PutI16(tail + 55, 318);
        raw.PutI16(tail + 57, 682);
        PutLevel(tail + 59, -30);
        raw.PutI32(tail + 63, 38'412'000);
        raw.PutI32(tail + 67, -90'183'600);
        raw.PutI16(tail + 71, 163);
        raw.PutByte(tail + 73, 0);
        if (newer) {
            raw.PutChars(338, 10, "20:08:51", '\0');
            raw.PutByte(348, 3);
        }
    }

    void PutCodes(SteadyRandom& random)
    {
        enum { Pilot = 0, Traffic = 4, Nothing = 7 };
        const std::size_t codes = newer ? 128 : 64;
        const std::size_t first = newer ? 1079 : 401;
        for (std::size_t i = 0; i < codes; ++i) {
            const bool sent =
                i == 4 || (i > 4 && i < static_cast<std::size_t>(settings.Codes) && random.Uniform() < 0.25);
            const double noise = -33 + 1.5 * random.Gauss();
            const double power = i == 4 ? -13.0 : -16 + 2 * random.Gauss();
            raw.PutByte(first + 5 * i, sent ? (i == 4 ? Pilot : Traffic) : Nothing);
            raw.PutRounded(first + 5 * i + 1, (sent ? std::min(power, -11.0) : noise) * 1000 + 270'000);
        }
        for (std::size_t i = 0; i < DataCodes; ++i) {
            raw.PutRounded((newer ? 1719U : 721U) + 4 * i, (-12.04 + 0.3 * random.Gauss()) * 1000 + 270'000);
            raw.PutRounded((newer ? 1783U : 785U) + 4 * i, (-12.04 + 0.3 * random.Gauss()) * 1000 + 270'000);
        }
    }

    void PutPoint(std::size_t offset, double db)
    {
        raw.PutI16(offset,
                   static_cast<std::int16_t>(static_cast<std::uint16_t>(raw.Rounded(db * 250 + bias))));
    }

    void PutCurves(SteadyRandom& random)
    {
        const std::size_t first = newer ? 1847 : 849;
        for (std::size_t i = 0; i < CurvePoints; ++i) {
            const double place = static_cast<double>(i) / (CurvePoints - 1);
            const double offset = std::abs(place - 0.5) * 2.5; // MHz
            const double skirt = offset > 0.61 ? 140 * (offset - 0.61) : 0;
            PutPoint(first + 2 * i, std::max(-9 - skirt, -44.0) + 0.6 * random.Gauss());
            // Pilot and MAC take the middle 224 of the 1024 chips.
            const bool middle = std::abs(place - 0.5) < 112.0 / 1024;
            PutPoint(first + 768 + 2 * i, (middle ? -0.4 : -38) + 0.5 * random.Gauss());
            PutPoint(first + 1536 + 2 * i, -0.8 + 1.1 * random.Gauss());
        }
    }

    std::vector<std::string> Facts(const Bytes& bytes) const
    {
        const std::size_t first = newer ? 1079 : 401;
        int sent = 0;
        for (std::size_t i = 0; i < static_cast<std::size_t>(settings.Codes); ++i)
            sent += bytes[first - 1 + 5 * i] != 7;
        return {std::to_string(sent) + " of " + std::to_string(settings.Codes) +
                    " MAC codes in use, the first " + Fixed(RawU32(bytes, first + 1) / 1000.0 - 270, 3) +
                    " dB.",
                "First pilot PN " + std::to_string(RawI16(bytes, newer ? 228 : 214)) + " with " +
                    Fixed((RawU32(bytes, newer ? 198 : 186) - bias) / 250, 2) + " dB; frequency error " +
                    std::to_string(RawI32(bytes, 170) - 1'000'000) + " Hz."};
    }

    const Settings& settings;
    const double version;
    const bool newer;
    const double bias;
    RawWriter raw;
};

} // namespace

std::vector<Sample> EvdoSamples()
{
    const Settings all[] = {
        {"evdo_mac_64codes_v315.raw", "the MAC codes of a sector, firmware 3.15", "3.15", "SECTOR A"},
        {"evdo_mac_128codes_v320.raw", "128 MAC codes, firmware 3.20, with two markers", "3.20", "SECTOR A",
         128, 0, 2, 1, -38.6, -10.2, 0, 0, 0xC0},
        {"evdo_data_v320.raw", "the data codes, I and Q", "3.20", "SECTOR A", 128, 0, 0, 0, -38.6, -10.2, 0,
         0, 0x10},
        {"evdo_idle_slot_v320.raw", "a carrier and its idle slot", "3.20", "SECTOR B", 64, 4, 0},
        {"evdo_active_slot_v314.raw", "a carrier and its active slot, firmware 3.14", "3.14", "SECTOR B", 64,
         4, 4},
        {"evdo_nothing_captured_v320.raw", "a measurement that captured no data", "3.20", "SECTOR C", 64, 4,
         4, 0, NotCaptured, NotCaptured},
        {"evdo_over_the_air_v320.raw", "pilots received over the air", "3.20", "HILL ROAD", 64, 3, 0},
        {"evdo_no_trigger_v320.raw", "a measurement without an external trigger", "3.20", "SECTOR D", 64, 0,
         2, 4, -38.6, -10.2, 1024, 255},
    };
    std::vector<Sample> samples;
    for (const Settings& settings : all)
        samples.push_back(EvdoRecord(settings).Make());
    return samples;
}

} // namespace Traces::Samples
