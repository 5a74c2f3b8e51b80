// The samples of the GPS receiver check: a receiver under a sky that comes and goes, told event by event.
#include "Physics.h"
#include "Sample.h"

#include <algorithm>
#include <cmath>

namespace Traces::Samples {

namespace {

constexpr std::size_t FirstEvent = 119, EventBytes = 28;

/// The time of a receiver: hours, minutes and seconds in two digits each.
std::string ClockText(int seconds)
{
    std::string text;
    for (const int part : {seconds / 3600 % 24, seconds / 60 % 60, seconds % 60})
        text += std::to_string(part / 10) + std::to_string(part % 10);
    return text;
}

struct Settings {
    const char* File;
    const char* Shows;
    int Events;
    int BlockedFrom, BlockedTo; ///< events during which the sky is hidden, the last included
    bool Passes;
};

/// Every second event tells how many satellites are tracked, the others whether that makes a fix.
Sample MakeSample(const Settings& settings, std::uint32_t seed)
{
    constexpr std::uint8_t statusReport = 1, satelliteReport = 2;
    constexpr int begun = 10 * 3600 + 20 * 60 + 30, interval = 45, satellitesForAFix = 4;
    SteadyRandom random(seed);
    RawWriter raw;
    CommonHead head;
    head.Mode = 148;
    head.Date = "06/02/2012";
    head.Time = "10:20:30";
    head.RefNumber = "ROOF ANTENNA";
    raw.PutHead(head);
    int tracked = 0, withoutFix = 0;
    std::string lastLost;
    for (int i = 0; i < settings.Events; ++i) {
        const auto at = FirstEvent + EventBytes * static_cast<std::size_t>(i);
        const bool blocked = i >= settings.BlockedFrom && i <= settings.BlockedTo;
        const double sky = 8 + 2 * std::sin(i / 9.0) + random.Gauss();
        tracked = blocked ? std::max(0, 2 - (i - settings.BlockedFrom))
                          : std::max(satellitesForAFix, static_cast<int>(sky));
        const bool fix = tracked >= satellitesForAFix;
        const std::string time = ClockText(begun + interval * i);
        if (!fix)
            lastLost = time + ".00";
        const bool isStatus = i % 2 == 0;
        withoutFix += isStatus ? !fix : tracked == 0;
        raw.PutByte(at, isStatus ? statusReport : satelliteReport);
        raw.PutI16(at + 2, static_cast<std::int16_t>(i));
        raw.PutI16(at + 4, static_cast<std::int16_t>(isStatus ? fix : tracked));
        raw.PutU32(at + 6, static_cast<std::uint32_t>(raw.Rounded(82 + 3 * random.Gauss())));
        raw.PutChars(at + 10, 6, time, '\0');
        raw.PutChars(at + 16, 12, "020612" + time, '\0');
    }
    // Words that share a byte with their neighbour: the upper one of each is the field.
    raw.PutByte(57, 1);
    raw.PutByte(59, 3);
    raw.PutU32(60, static_cast<std::uint32_t>(interval * settings.Events));
    raw.PutByte(69, settings.Passes ? 1 : 0);
    raw.PutByte(70, settings.Passes ? 1 : 0);
    raw.PutI16(71, static_cast<std::int16_t>(tracked));
    raw.PutU32(73, 83);
    const GpsFix place = settings.Passes ? GpsFix{48'082'500, 11'345'000, 519} : GpsFix{-1, -1, -1};
    raw.PutI32(77, place.Latitude);
    raw.PutI32(81, place.Longitude);
    raw.PutI16(85, place.Altitude);
    const std::string now = ClockText(begun + interval * settings.Events) + ".00";
    raw.PutChars(87, 9, settings.Passes ? now : "", '\0');
    raw.PutChars(97, 9, lastLost, '\0');
    raw.PutChars(107, 9, now, '\0');
    raw.PutI16(117, static_cast<std::int16_t>(settings.Events));
    const std::size_t length = FirstEvent + EventBytes * static_cast<std::size_t>(settings.Events) + 8;
    Sample sample{settings.File, settings.Shows, raw.Finish(length), raw.NearestTie(), {}};
    sample.Facts = {std::to_string(RawI16(sample.Raw, 117)) + " events, " + std::to_string(withoutFix) +
                        " of them tell of no fix or no satellite.",
                    lastLost.empty() ? "The fix was never lost."
                                     : "The fix was last missing at " + RawChars(sample.Raw, 97, 9) + "."};
    return sample;
}

} // namespace

std::vector<Sample> GpsSamples()
{
    return {
        MakeSample({"gpst_lost_fixes.raw", "a receiver whose sky is hidden for a while", 60, 22, 33, true},
                   41),
        MakeSample({"gpst_clear_sky.raw", "a short check under a clear sky", 12, -1, -2, true}, 42),
        MakeSample({"gpst_no_sky.raw", "a receiver that never finds its place", 8, 0, 7, false}, 43),
    };
}

} // namespace Traces::Samples
