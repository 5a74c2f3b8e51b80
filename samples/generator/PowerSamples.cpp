// The power samples: what a sensor sees of transmitters behind couplers, cables and attenuators, of several
// at once and of none, in every way that a panel shows it.
#include "PowerRecords.h"

#include <cmath>
#include <initializer_list>
#include <utility>

namespace Traces::Samples {

namespace {

constexpr GpsFix HillSite = {48'082'500, 11'345'000, 519};
constexpr GpsFix HarbourSite = {-33'512'345, 151'123'456, 58};

/// Powers add up as watts do.
double Sum(std::initializer_list<double> levels)
{
    double milliwatts = 0;
    for (const double dBm : levels)
        milliwatts += std::pow(10, dBm / 10);
    return 10 * std::log10(milliwatts);
}

/// Two carriers of a base station behind its 30 dB coupler and a jumper, over the sensor's own noise.
double AtCoupler()
{
    constexpr double coupler = 30.2;
    constexpr double jumper = 0.83;
    return Sum({43.1 - coupler - jumper, 41.8 - coupler - jumper, -64});
}

PowerSettings BaseStation(const char* reference)
{
    PowerSettings settings;
    settings.Head.Date = "03/18/2014";
    settings.Head.Time = "09:12:40";
    settings.Head.RefNumber = reference;
    settings.StartHz = 935'000'000;
    settings.StopHz = 960'000'000;
    settings.Averaging = 2;
    settings.StandardName = "GSM 900";
    settings.Channel = 62;
    settings.Link = 2;
    settings.Gps = HillSite;
    return settings;
}

std::vector<Sample> MeterSamples()
{
    std::vector<Sample> samples;
    PowerSettings settings = BaseStation("BTS COUPLER");
    samples.push_back(
        PowerMeterSample("pm_coupler_dbm.raw", "a base station's coupler, in dBm", settings, AtCoupler()));
    settings.InWatts = true;
    samples.push_back(PowerMeterSample("pm_coupler_watts.raw", "the same in watts", settings, AtCoupler()));
    // The coupler's loss is put back: above a watt.
    settings.Offset = true;
    settings.OffsetDb = 31.03;
    samples.push_back(PowerMeterSample("pm_transmitter_watts.raw",
                                       "the transmitter itself, by an offset, above a watt", settings,
                                       AtCoupler() + settings.OffsetDb));
    settings.InWatts = false;
    settings.Calibrated = true;
    samples.push_back(PowerMeterSample("pm_transmitter_cal_dbm.raw", "the same calibrated, in dBm", settings,
                                       AtCoupler() + settings.OffsetDb));

    PowerSettings idle = BaseStation("BTS OFF");
    idle.Averaging = 3;
    samples.push_back(PowerMeterSample("pm_noise_dbm.raw", "nothing but the sensor's noise", idle, -64));
    idle.InWatts = true;
    samples.push_back(PowerMeterSample("pm_leak_watts.raw", "a neighbour's leak of some nanowatts", idle,
                                       Sum({-64, -52.7})));
    idle.Zeroed = true;
    samples.push_back(PowerMeterSample("pm_zeroed_watts.raw", "zeroed, in watts", idle, -64));

    PowerSettings relative = BaseStation("UMTS LINK");
    relative.Head.Version = "3.10";
    relative.StartHz = 2'110'000'000;
    relative.StopHz = 2'170'000'000;
    relative.InTensOfHertz = true;
    relative.SignalStd = 83;
    relative.StandardName = "";
    relative.Channel = -1;
    relative.Relative = true;
    relative.RelativeDbm = -12.5;
    relative.ExternalReference = true;
    relative.Gps = {};
    samples.push_back(PowerMeterSample("pm_relative_dbm.raw",
                                       "older firmware: a standard's code, frequencies in tens of hertz, "
                                       "relative, no position",
                                       relative, Sum({-15.2, -64})));
    return samples;
}

std::vector<Sample> MonitorSamples()
{
    PowerSettings settings;
    settings.Head.Date = "11/02/2012";
    settings.Head.Time = "15:30:05";
    settings.Head.RefNumber = "MONITOR";
    settings.Gps = HarbourSite;
    const double reading = Sum({-4.1, -7.6, -64});
    std::vector<Sample> samples = {
        PowerMonitorSample("pmon_feed_dbm.raw", "an antenna's feed, in dBm", settings, reading)};
    settings.InWatts = true;
    settings.Relative = true;
    settings.RelativeDbm = 0;
    settings.Offset = true;
    settings.OffsetDb = 12.5;
    samples.push_back(PowerMonitorSample("pmon_feed_percent.raw", "the same in percent", settings, reading));
    return samples;
}

std::vector<Sample> SensorSamples()
{
    HighAccuracySettings settings;
    settings.Head.Date = "06/07/2016";
    settings.Head.Time = "10:20:30";
    settings.Head.RefNumber = "SENSOR";
    settings.CenterKiloHertz = 2'140'000;
    settings.SignalStd = 83;
    settings.Limits = true;
    settings.UpperDbm = -10;
    settings.LowerDbm = -20.5;
    settings.UtcTime = "08:20:30";
    settings.Gps = HarbourSite;
    const double reading = Sum({-12.4, -40.2});
    std::vector<Sample> samples = {
        HighAccuracySample("hipm_in_range.raw", "a reading within its limits", settings, reading),
        HighAccuracySample("hipm_out_of_range.raw", "a reading above them", settings, reading + 4.1)};
    constexpr std::pair<int, const char*> errors[] = {{1, "power supply"},
                                                      {2, "level too high"},
                                                      {4, "sensor not zeroed"},
                                                      {8, "temperature out of range"},
                                                      {16, "temperature has changed"}};
    for (const auto& [code, what] : errors) {
        HighAccuracySettings warned = settings;
        warned.Error = static_cast<std::uint8_t>(code);
        warned.Limits = code != 4;
        samples.push_back(HighAccuracySample("hipm_warning_" + std::to_string(code) + ".raw",
                                             std::string("a warning: ") + what, warned, reading));
    }
    settings.Limits = false;
    settings.Relative = true;
    settings.RelativeDbm = -9.4;
    settings.Offset = true;
    settings.OffsetDb = 20.02;
    samples.push_back(HighAccuracySample("hipm_relative.raw", "a reading against a reference, without limits",
                                         settings, reading));
    return samples;
}

} // namespace

std::vector<Sample> PowerSamples()
{
    std::vector<Sample> samples = MeterSamples();
    for (const auto family : {MonitorSamples, SensorSamples})
        for (Sample& sample : family())
            samples.push_back(std::move(sample));
    return samples;
}

} // namespace Traces::Samples
