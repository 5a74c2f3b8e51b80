#include "PowerRecords.h"

#include <array>
#include <cmath>

namespace Traces::Samples {

namespace {

constexpr std::uint8_t PowerMeterMode = 64;
constexpr std::uint8_t PowerMonitorMode = 65;
constexpr std::uint8_t HighAccuracyMode = 67;
constexpr std::size_t PowerLength = 155;
constexpr std::size_t HighAccuracyLength = 128;
constexpr std::uint8_t ShowsDecibels = 1;
constexpr std::uint8_t ShowsWatts = 2;

std::uint8_t Flag(bool value)
{
    return value ? 1 : 0;
}

/// What meter and monitor send alike.
void PutCommon(RawWriter& raw, const PowerSettings& settings, double dBm)
{
    raw.PutByte(58, settings.InWatts ? ShowsWatts : ShowsDecibels);
    raw.PutByte(75, Flag(settings.Offset));
    raw.PutRounded(76, settings.OffsetDb * 1000);
    raw.PutByte(80, Flag(settings.Relative));
    raw.PutRounded(81, settings.RelativeDbm * 1000);
    raw.PutByte(86, Flag(settings.Zeroed));
    raw.PutI32(106, settings.Gps.Latitude);
    raw.PutI32(110, settings.Gps.Longitude);
    raw.PutI16(114, settings.Gps.Altitude);
    raw.PutRounded(151, dBm * 1000);
}

void PutHead(RawWriter& raw, CommonHead head, std::uint8_t mode)
{
    head.Mode = mode;
    head.DataPoints = 1;
    raw.PutHead(head);
}

/// "1.26 mW": three digits in the largest unit in which the number isn't below 1.
std::string WattsText(double dBm)
{
    double watts = std::pow(10, dBm / 10 - 3);
    constexpr std::array<const char*, 5> units = {" W", " mW", " uW", " nW", " pW"};
    std::size_t unit = 0;
    for (; watts < 1 && unit + 1 < units.size(); ++unit)
        watts *= 1000;
    return Fixed(watts, watts < 10 ? 2 : watts < 100 ? 1 : 0) + units[unit];
}

std::string OnOff(const Bytes& raw, std::size_t offset)
{
    return raw[offset - 1] == 1 ? "on" : "off";
}

std::string Position(const Bytes& raw, std::size_t offset)
{
    return "GPS " + std::to_string(RawI32(raw, offset)) + ", " + std::to_string(RawI32(raw, offset + 4)) +
           ", " + std::to_string(RawI16(raw, offset + 8)) + ".";
}

std::vector<std::string> PowerFacts(const Bytes& raw)
{
    const double dBm = RawI32(raw, 151) / 1000.0;
    std::vector<std::string> facts = {"Reading " + Plain(dBm) + " dBm, " + WattsText(dBm) + ", shown in " +
                                          (raw[57] == ShowsDecibels ? "decibels." : "watts."),
                                      "Relative " + OnOff(raw, 80) + " (" + Plain(RawI32(raw, 81) / 1000.0) +
                                          "), offset " + OnOff(raw, 75) + " (" +
                                          Plain(RawU32(raw, 76) / 1000.0) + " dB), zero " + OnOff(raw, 86) +
                                          ", calibration " + OnOff(raw, 155) + "."};
    if (raw[15] == PowerMeterMode) {
        const double perMegahertz = RawI16(raw, 96) < 10 ? 1e6 : 1e5;
        const auto megahertz = [&](std::size_t offset) { return Plain(RawU32(raw, offset) / perMegahertz); };
        facts.push_back("Band " + megahertz(59) + " to " + megahertz(63) + " MHz, center " + megahertz(67) +
                        ", span " + megahertz(71) + ".");
        facts.push_back("Averaging code " + std::to_string(raw[84]) + ", signal standard code " +
                        std::to_string(RawI16(raw, 92)) + ", name \"" + RawChars(raw, 117, 24) +
                        "\", channel " + std::to_string(RawI16(raw, 94)) + ", link code " +
                        std::to_string(raw[115]) + ".");
    }
    facts.push_back(Position(raw, 106));
    return facts;
}

std::vector<std::string> HighAccuracyFacts(const Bytes& raw)
{
    const auto decibels = [&](std::size_t offset) { return Plain(RawI16(raw, offset) / 100.0); };
    const double dBm = RawI16(raw, 61) / 100.0;
    return {"Reading " + Plain(dBm) + " dBm, " + WattsText(dBm) + ", at " + Plain(RawU32(raw, 57) / 1000.0) +
                " MHz.",
            "Limits " + OnOff(raw, 102) + ", " + decibels(105) + " to " + decibels(103) +
                " dBm; error status " + std::to_string(raw[107]) + ".",
            "Relative " + OnOff(raw, 72) + " (" + decibels(70) + " dBm), offset " + OnOff(raw, 64) + " (" +
                decibels(65) + " dB), zero " + OnOff(raw, 101) + ", max hold " + OnOff(raw, 63) + ".",
            "Signal standard code " + std::to_string(RawI16(raw, 75)) + ", UTC " + RawChars(raw, 119, 8) +
                ", " + Position(raw, 109)};
}

Sample Finished(const std::string& fileName, const std::string& shows, RawWriter& raw, std::size_t length,
                std::vector<std::string> (*facts)(const Bytes& raw))
{
    Sample sample;
    sample.FileName = fileName;
    sample.Shows = shows;
    sample.NearestTie = raw.NearestTie();
    sample.Raw = raw.Finish(length);
    sample.Facts = facts(sample.Raw);
    return sample;
}

} // namespace

Sample PowerMeterSample(const std::string& fileName, const std::string& shows, const PowerSettings& settings,
                        double dBm)
{
    constexpr std::uint32_t reference = 10'000'000;
    constexpr std::int16_t coarseScale = 10;
    RawWriter raw;
    PutHead(raw, settings.Head, PowerMeterMode);
    PutCommon(raw, settings, dBm);
    const std::uint32_t unit = settings.InTensOfHertz ? 10 : 1;
    raw.PutU32(59, settings.StartHz / unit);
    raw.PutU32(63, settings.StopHz / unit);
    raw.PutU32(67, (settings.StartHz / 2 + settings.StopHz / 2) / unit);
    raw.PutU32(71, (settings.StopHz - settings.StartHz) / unit);
    raw.PutByte(85, settings.Averaging);
    raw.PutByte(87, Flag(settings.ExternalReference));
    raw.PutU32(88, reference);
    raw.PutI16(92, settings.SignalStd);
    raw.PutI16(94, settings.Channel);
    raw.PutI16(96, settings.InTensOfHertz ? coarseScale : std::int16_t{0});
    raw.PutByte(116, settings.Link);
    raw.PutChars(117, 24, settings.StandardName, '\0');
    raw.PutByte(155, Flag(settings.Calibrated));
    return Finished(fileName, shows, raw, PowerLength, PowerFacts);
}

Sample PowerMonitorSample(const std::string& fileName, const std::string& shows,
                          const PowerSettings& settings, double dBm)
{
    RawWriter raw;
    PutHead(raw, settings.Head, PowerMonitorMode);
    PutCommon(raw, settings, dBm);
    return Finished(fileName, shows, raw, PowerLength, PowerFacts);
}

Sample HighAccuracySample(const std::string& fileName, const std::string& shows,
                          const HighAccuracySettings& settings, double dBm)
{
    RawWriter raw;
    PutHead(raw, settings.Head, HighAccuracyMode);
    const auto putHundredths = [&](std::size_t offset, double decibels) {
        raw.PutI16(offset, static_cast<std::int16_t>(raw.Rounded(decibels * 100)));
    };
    raw.PutU32(57, settings.CenterKiloHertz);
    putHundredths(61, dBm);
    raw.PutByte(63, Flag(settings.MaxHold));
    raw.PutByte(64, Flag(settings.Offset));
    putHundredths(65, settings.OffsetDb);
    putHundredths(70, settings.RelativeDbm);
    raw.PutByte(72, Flag(settings.Relative));
    raw.PutI16(75, settings.SignalStd);
    raw.PutByte(101, Flag(settings.Zeroed));
    raw.PutByte(102, Flag(settings.Limits));
    putHundredths(103, settings.UpperDbm);
    putHundredths(105, settings.LowerDbm);
    raw.PutByte(108, settings.Error);
    raw.PutI32(109, settings.Gps.Latitude);
    raw.PutI32(113, settings.Gps.Longitude);
    raw.PutI16(117, settings.Gps.Altitude);
    raw.PutChars(119, 8, settings.UtcTime, ' ');
    return Finished(fileName, shows, raw, HighAccuracyLength, HighAccuracyFacts);
}

} // namespace Traces::Samples
