#include "SpectrumRecords.h"

#include <algorithm>
#include <cmath>

namespace Traces::Samples {

namespace {

constexpr std::size_t FirstPoint = 432;
constexpr std::size_t FirstChannel = 111;
constexpr std::size_t ChannelWidth = 8;
constexpr std::size_t FirstSweep = 129;
constexpr std::size_t SweepPoints = 401;
constexpr std::size_t SweepWidth = SweepPoints + 4;
constexpr double SpectrogramRange = 127.5; // dB below the reference that a byte reaches

double RawLevel(double dBm)
{
    return (dBm + 270) * 1000;
}

double LevelAt(const Bytes& raw, std::size_t offset)
{
    return RawU32(raw, offset) / 1000.0 - 270;
}

std::uint32_t WholeHz(double hz)
{
    return static_cast<std::uint32_t>(std::lround(hz));
}

void PutGps(RawWriter& raw, std::size_t offset, const GpsFix& gps)
{
    raw.PutI32(offset, gps.Latitude);
    raw.PutI32(offset + 4, gps.Longitude);
    raw.PutI16(offset + 8, gps.Altitude);
}

void PutLimits(RawWriter& raw, std::size_t offset, const std::array<LimitLine, 5>& limits)
{
    for (const LimitLine& limit : limits) {
        raw.PutU32(offset, WholeHz(limit.StartHz));
        raw.PutRounded(offset + 4, RawLevel(limit.StartDbm));
        raw.PutU32(offset + 8, WholeHz(limit.EndHz));
        raw.PutRounded(offset + 12, RawLevel(limit.EndDbm));
        offset += 16;
    }
}

std::string PlaceText(const Bytes& raw, std::size_t point, std::size_t count)
{
    const double start = RawU32(raw, 57) / 1e6;
    const double stop = RawU32(raw, 61) / 1e6;
    return Plain(start + (stop - start) * static_cast<double>(point) / static_cast<double>(count - 1)) +
           " MHz";
}

std::string SweepText(const Bytes& raw)
{
    return "Sweep " + Plain(RawU32(raw, 57) / 1e6) + " to " + Plain(RawU32(raw, 61) / 1e6) + " MHz, ";
}

std::string GpsText(const Bytes& raw, std::size_t offset)
{
    return "GPS " + std::to_string(RawI32(raw, offset)) + ", " + std::to_string(RawI32(raw, offset + 4)) +
           ", " + std::to_string(RawI16(raw, offset + 8)) + ".";
}

std::vector<std::string> SpaFacts(const Bytes& raw)
{
    const auto count = static_cast<std::size_t>(RawI16(raw, 55));
    const auto level = [&](std::size_t i) { return LevelAt(raw, FirstPoint + 4 * i); };
    std::size_t low = 0;
    std::size_t high = 0;
    std::size_t above = 0;
    const double limit = LevelAt(raw, 97);
    for (std::size_t i = 0; i < count; ++i) {
        low = level(i) < level(low) ? i : low;
        high = level(i) > level(high) ? i : high;
        above += level(i) > limit ? 1U : 0U;
    }
    const auto point = [&](std::size_t i) {
        return Fixed(level(i), 3) + " dBm at point " + std::to_string(i) + ", " + PlaceText(raw, i, count);
    };
    std::string markers;
    for (std::size_t k = 0; k < 6; ++k)
        markers += (k ? ", " : "") + std::to_string(RawI16(raw, 85 + 2 * k));
    return {SweepText(raw) + "RBW " + std::to_string(RawI32(raw, 261)) + " Hz, VBW " +
                std::to_string(RawI32(raw, 265)) + " Hz, reference " + Plain(LevelAt(raw, 77)) + " dBm.",
            "Highest " + point(high) + ".",
            "Lowest " + point(low) + ".",
            "First " + Fixed(level(0), 3) + ", last " + Fixed(level(count - 1), 3) + " dBm.",
            std::to_string(above) + " points above the limit of " + Plain(limit) + " dBm. Markers " +
                markers + ".",
            "Signal standard code " + std::to_string(RawI16(raw, 304)) + ", channel " +
                std::to_string(RawI16(raw, 306)) + ", " + GpsText(raw, 364)};
}

std::vector<std::string> CsFacts(const Bytes& raw)
{
    std::vector<std::string> facts{SweepText(raw) + "power in " + Plain(RawU32(raw, 81) / 1e6) +
                                   " MHz, limit " + Plain(LevelAt(raw, 92)) + " dBm, " + GpsText(raw, 96)};
    for (std::size_t c = 0; c < static_cast<std::size_t>(RawI16(raw, 106)); ++c) {
        const std::size_t at = FirstChannel + ChannelWidth * c;
        facts.push_back("Channel " + std::to_string(RawI16(raw, at)) + ", " +
                        Plain(RawU32(raw, at + 2) / 1e6) + " MHz: " + Plain(RawI16(raw, at + 6) / 100.0) +
                        " dBm.");
    }
    return facts;
}

std::vector<std::string> SpectroFacts(const Bytes& raw)
{
    const auto sweeps = static_cast<std::size_t>(RawI16(raw, 113));
    const double lowest = LevelAt(raw, 65) - SpectrogramRange;
    std::vector<std::string> facts{SweepText(raw) + std::to_string(sweeps) + " sweeps, reference " +
                                   Plain(LevelAt(raw, 65)) + " dBm, " + GpsText(raw, 103)};
    constexpr std::size_t every = 10;
    for (std::size_t s = 0; s < sweeps; s += every) {
        const std::size_t at = FirstSweep + SweepWidth * s;
        const auto first = raw.begin() + static_cast<std::ptrdiff_t>(at - 1 + 4);
        const auto highest = std::max_element(first, first + SweepPoints);
        const auto point = static_cast<std::size_t>(highest - first);
        facts.push_back("Sweep " + std::to_string(s + 1) + " at " + Plain(RawU32(raw, at) / 100.0) +
                        " s: highest " + Plain(lowest + *highest / 2.0) + " dBm at point " +
                        std::to_string(point) + ", " + PlaceText(raw, point, SweepPoints) + ".");
    }
    return facts;
}

Sample Finished(const std::string& fileName, const std::string& shows, RawWriter& raw, std::size_t length)
{
    Sample sample;
    sample.FileName = fileName;
    sample.Shows = shows;
    sample.NearestTie = raw.NearestTie();
    sample.Raw = raw.Finish(length);
    return sample;
}

} // namespace

Sample SpaSample(const std::string& fileName, const std::string& shows, const SpaSettings& settings,
                 const std::vector<double>& levels)
{
    RawWriter raw;
    CommonHead head = settings.Head;
    head.Mode = 48;
    head.DataPoints = static_cast<std::int16_t>(levels.size());
    raw.PutHead(head);
    const Sweep& sweep = settings.Sweep;
    raw.PutU32(57, WholeHz(sweep.StartHz));
    raw.PutU32(61, WholeHz(sweep.StopHz));
    raw.PutU32(65, WholeHz((sweep.StartHz + sweep.StopHz) / 2));
    raw.PutU32(69, WholeHz(sweep.StopHz - sweep.StartHz));
    raw.PutU32(73, 1000);
    raw.PutRounded(77, RawLevel(settings.RefDbm));
    raw.PutRounded(81, settings.DecibelsPerDivision * 1000);
    for (std::size_t k = 0; k < settings.Markers.size(); ++k)
        raw.PutI16(85 + 2 * k, settings.Markers[k]);
    raw.PutRounded(97, RawLevel(settings.LimitDbm));
    PutLimits(raw, 101, settings.Upper);
    PutLimits(raw, 181, settings.Lower);
    raw.PutU32(261, WholeHz(settings.Analyzer.ResolutionHz));
    raw.PutU32(265, WholeHz(settings.Analyzer.VideoHz));
    raw.PutByte(270, 99);
    raw.PutByte(271, 26);
    raw.PutRounded(272, settings.Analyzer.AttenuationDb * 1000);
    raw.PutChars(276, 16, settings.Antenna, ' ');
    raw.PutRounded(299, RawLevel(0));
    raw.PutI16(304, settings.SignalStd);
    raw.PutI16(306, settings.Channel);
    raw.PutByte(308, settings.Interference);
    raw.PutU32(309, WholeHz(settings.InterferenceWidthHz));
    raw.PutU32(313, WholeHz(settings.InterferenceHz));
    raw.PutByte(321, settings.Trigger);
    raw.PutI32(323, settings.MinSweepTime);
    raw.PutRounded(327, RawLevel(-50));
    raw.PutU32(337, 100'000);
    raw.PutU32(341, 3'000'000'000U);
    for (const std::size_t power : {347U, 351U, 355U, 359U})
        raw.PutRounded(power, RawLevel(-120));
    PutGps(raw, 364, settings.Gps);
    for (std::size_t i = 0; i < levels.size(); ++i)
        raw.PutRounded(FirstPoint + 4 * i, RawLevel(levels[i]));
    Sample sample = Finished(fileName, shows, raw, FirstPoint - 1 + 4 * levels.size());
    sample.Facts = SpaFacts(sample.Raw);
    return sample;
}

Sample CsSample(const std::string& fileName, const std::string& shows, const CsSettings& settings,
                const std::vector<Channel>& channels)
{
    RawWriter raw;
    CommonHead head = settings.Head;
    head.Mode = 57;
    head.DataPoints = static_cast<std::int16_t>(channels.size());
    raw.PutHead(head);
    raw.PutU32(57, WholeHz(settings.Sweep.StartHz));
    raw.PutU32(61, WholeHz(settings.Sweep.StopHz));
    raw.PutRounded(65, RawLevel(settings.RefDbm));
    raw.PutRounded(69, settings.DecibelsPerDivision * 1000);
    raw.PutU32(73, WholeHz(settings.Analyzer.ResolutionHz));
    raw.PutU32(77, WholeHz(settings.Analyzer.VideoHz));
    raw.PutU32(81, WholeHz(settings.ChannelHz));
    raw.PutRounded(85, settings.Analyzer.AttenuationDb * 1000);
    raw.PutI16(89, settings.SignalStd);
    raw.PutByte(91, settings.Link);
    raw.PutRounded(92, RawLevel(settings.LimitDbm));
    PutGps(raw, 96, settings.Gps);
    raw.PutI16(106, head.DataPoints);
    for (std::size_t c = 0; c < channels.size(); ++c) {
        const std::size_t at = FirstChannel + ChannelWidth * c;
        raw.PutI16(at, channels[c].Number);
        raw.PutU32(at + 2, WholeHz(channels[c].Hz));
        raw.PutI16(at + 6, static_cast<std::int16_t>(raw.Rounded(channels[c].Dbm * 100)));
    }
    Sample sample = Finished(fileName, shows, raw, FirstChannel - 1 + ChannelWidth * channels.size());
    sample.Facts = CsFacts(sample.Raw);
    return sample;
}

Sample SpectroSample(const std::string& fileName, const std::string& shows, const AnalyzerSettings& settings,
                     const std::vector<TimedSweep>& sweeps)
{
    RawWriter raw;
    CommonHead head = settings.Head;
    head.Mode = 87;
    head.DataPoints = SweepPoints;
    raw.PutHead(head);
    raw.PutU32(57, WholeHz(settings.Sweep.StartHz));
    raw.PutU32(61, WholeHz(settings.Sweep.StopHz));
    raw.PutRounded(65, RawLevel(settings.RefDbm));
    raw.PutRounded(69, settings.DecibelsPerDivision * 1000);
    raw.PutU32(73, WholeHz(settings.Analyzer.ResolutionHz));
    raw.PutU32(77, WholeHz(settings.Analyzer.VideoHz));
    raw.PutRounded(81, settings.Analyzer.AttenuationDb * 1000);
    raw.PutChars(85, 16, settings.Antenna, ' ');
    raw.PutI16(101, settings.SignalStd);
    PutGps(raw, 103, settings.Gps);
    raw.PutI16(113, static_cast<std::int16_t>(sweeps.size()));
    const double lowest = settings.RefDbm - SpectrogramRange;
    for (std::size_t s = 0; s < sweeps.size(); ++s) {
        const std::size_t at = FirstSweep + SweepWidth * s;
        raw.PutU32(at, sweeps[s].Hundredths);
        for (std::size_t i = 0; i < sweeps[s].Levels.size(); ++i) {
            const std::int32_t byte = std::clamp(raw.Rounded((sweeps[s].Levels[i] - lowest) * 2), 0, 255);
            raw.PutByte(at + 4 + i, static_cast<std::uint8_t>(byte));
        }
    }
    Sample sample = Finished(fileName, shows, raw, FirstSweep - 1 + SweepWidth * sweeps.size());
    sample.Facts = SpectroFacts(sample.Raw);
    return sample;
}

} // namespace Traces::Samples
