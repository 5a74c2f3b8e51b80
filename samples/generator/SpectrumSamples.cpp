// The samples of spectrum analyzer, channel scanner and spectrogram: bands as one finds them on a hill above
// a town, and what disturbs them.
#include "SpectrumRecords.h"

#include <algorithm>
#include <cmath>

namespace Traces::Samples {

namespace {

constexpr GpsFix HillSite{48'082'500, 11'345'000, 519};    // north, east
constexpr GpsFix CoastSite{-12'027'800, -77'025'500, 154}; // south, west

std::int16_t PeakOf(const std::vector<double>& levels)
{
    return static_cast<std::int16_t>(std::max_element(levels.begin(), levels.end()) - levels.begin());
}

// Three carriers of a test transmitter, 20 dB apart, and a spurious one.
const std::vector<Emitter> Carriers = {{445.0e6, -30}, {447.5e6, -50}, {452.5e6, -70}, {451.1e6, -88}};

Sample CarrierScan(double resolutionHz, const char* file, const char* shows, const char* reference)
{
    SpaSettings settings;
    settings.Head = HeadOf("3.20", "03/14/2012", "09:26:53", reference);
    settings.Sweep = {440e6, 455e6, 401};
    settings.Analyzer = {resolutionHz, resolutionHz / 3, 10};
    settings.RefDbm = -20;
    settings.LimitDbm = -45;
    settings.Antenna = "TEST CABLE";
    settings.Gps = HillSite;
    SteadyRandom random(48);
    const auto levels = Scan(settings.Sweep, settings.Analyzer, Carriers, random);
    settings.Markers = {PeakOf(levels), 200, 333};
    settings.MinSweepTime = 200'000'000;
    return SpaSample(file, shows, settings, levels);
}

Sample FmBand()
{
    SpaSettings settings;
    settings.Head = HeadOf("3.15", "07/21/2010", "18:03:44", "FM TOWN");
    settings.Sweep = {87.5e6, 108e6, 401};
    settings.Analyzer = {30e3, 10e3, 0};
    settings.RefDbm = -30;
    settings.LimitDbm = -60;
    settings.Antenna = "DISCONE";
    settings.Gps = CoastSite;
    std::vector<Emitter> stations;
    const struct {
        double MHz, Dbm;
    } heard[] = {{88.3, -71},  {89.0, -52},  {90.5, -66},  {91.8, -43}, {93.4, -79},  {94.1, -58},
                 {95.7, -49},  {97.2, -83},  {98.5, -61},  {99.9, -40}, {101.3, -55}, {102.4, -72},
                 {103.6, -47}, {105.1, -68}, {106.6, -56}, {107.4, -77}};
    for (const auto& station : heard)
        stations.push_back({station.MHz * 1e6, station.Dbm, 38e3});
    SteadyRandom random(87);
    const auto levels = Scan(settings.Sweep, settings.Analyzer, stations, random);
    settings.Markers = {PeakOf(levels), 84, 160, 315};
    settings.Upper[0] = {87.5e6, -60, 108e6, -60};
    return SpaSample("spa_fm_broadcast_401pts.raw", "the FM broadcast band with sixteen stations", settings,
                     levels);
}

double GsmHz(int channel)
{
    return 935e6 + 200e3 * channel;
}

// A cell with its control channel, which is always on, and three traffic channels, and what is heard of its
// neighbours.
std::vector<Emitter> GsmCell()
{
    constexpr double spread = 58e3; // GMSK, as a bell
    std::vector<Emitter> cell = {{GsmHz(62), -48, spread},
                                 {GsmHz(66), -54, spread},
                                 {GsmHz(70), -57, spread},
                                 {GsmHz(74), -61, spread}};
    for (const int neighbour : {11, 23, 35, 51, 83, 97, 110, 121})
        cell.push_back({GsmHz(neighbour), -78.0 - neighbour % 7, spread});
    return cell;
}

Sample GsmBand()
{
    SpaSettings settings;
    settings.Head = HeadOf("3.20", "10/02/2013", "14:40:09", "CELL 1207");
    settings.Sweep = {935e6, 960e6, 401};
    settings.Analyzer = {30e3, 10e3, 5};
    settings.RefDbm = -40;
    settings.LimitDbm = -60;
    settings.Antenna = "YAGI 900";
    settings.SignalStd = 49;
    settings.Channel = 62;
    settings.Gps = HillSite;
    SteadyRandom random(145);
    const auto levels = Scan(settings.Sweep, settings.Analyzer, GsmCell(), random);
    settings.Markers = {PeakOf(levels), 211, 224, 237};
    settings.Upper[0] = {947e6, -45, 950.2e6, -45};
    settings.Upper[1] = {950.2e6, -70, 960e6, -70};
    settings.Upper[2] = {935e6, -70, 947e6, -70};
    settings.Lower[0] = {947.2e6, -75, 947.6e6, -75};
    return SpaSample("spa_gsm_cell_401pts.raw", "the downlink of a GSM 900 cell among its neighbours",
                     settings, levels);
}

Sample Interferer()
{
    SpaSettings settings;
    settings.Head = HeadOf("3.20", "10/02/2013", "15:12:30", "UPLINK NOISE");
    settings.Sweep = {890e6, 915e6, 201};
    settings.Analyzer = {100e3, 30e3, 0};
    settings.RefDbm = -50;
    settings.LimitDbm = -80;
    settings.Antenna = "YAGI 900";
    settings.SignalStd = 49;
    settings.Channel = -1;
    settings.Interference = 1;
    settings.InterferenceWidthHz = 4e6;
    settings.InterferenceHz = 903.2e6;
    settings.Gps = HillSite;
    // An amplifier that oscillates: a carrier with sidebands, over a hump of noise.
    std::vector<Emitter> scene = {{903.2e6, -64}, {903.2e6, -62, 1.4e6}, {897.4e6, -85, 58e3}};
    for (const double side : {-2, -1, 1, 2})
        scene.push_back({903.2e6 + side * 600e3, -70 - 5 * std::abs(side)});
    SteadyRandom random(90);
    const auto levels = Scan(settings.Sweep, settings.Analyzer, scene, random);
    settings.Markers = {PeakOf(levels), 60};
    settings.Trigger = 2;
    return SpaSample("spa_interferer_201pts.raw", "an oscillating amplifier in the uplink of GSM 900",
                     settings, levels);
}

Sample GsmChannels()
{
    CsSettings settings;
    settings.Head = HeadOf("3.20", "10/02/2013", "14:52:18", "CELL 1207");
    settings.Sweep = {GsmHz(58) - 100e3, GsmHz(77) + 100e3, 401};
    settings.Analyzer = {30e3, 10e3, 5};
    settings.RefDbm = -40;
    settings.LimitDbm = -60;
    settings.ChannelHz = 200e3;
    settings.SignalStd = 49;
    settings.Gps = HillSite;
    std::vector<Channel> channels;
    for (std::int16_t number = 58; number < 78; ++number)
        channels.push_back(
            {number, GsmHz(number), ChannelPower(GsmHz(number), 200e3, settings.Analyzer, GsmCell())});
    return CsSample("cs_gsm_cell_20ch.raw", "power in twenty channels around a GSM 900 cell", settings,
                    channels);
}

Sample WidebandChannels()
{
    CsSettings settings;
    settings.Head = HeadOf("3.20", "05/30/2014", "11:05:41", "WIDE 3");
    settings.Head.Model = "TRC-50";
    settings.Sweep = {2110e6, 2170e6, 401};
    settings.Analyzer = {100e3, 100e3, 10};
    settings.RefDbm = -20;
    settings.LimitDbm = -40;
    settings.ChannelHz = 3.84e6;
    settings.SignalStd = 83;
    const std::vector<Emitter> scene = {{2112.4e6, -38, 0, 3.84e6},
                                        {2132.6e6, -55, 0, 3.84e6},
                                        {2147.4e6, -47, 0, 3.84e6},
                                        {2167.4e6, -71, 0, 3.84e6}};
    std::vector<Channel> channels;
    for (const double number : {10562, 10588, 10663, 10713, 10737, 10812, 10837}) {
        const double hz = 200e3 * number;
        channels.push_back(
            {static_cast<std::int16_t>(number), hz, ChannelPower(hz, 3.84e6, settings.Analyzer, scene)});
    }
    return CsSample("cs_wcdma_7ch.raw", "power in seven WCDMA channels with five digits", settings, channels);
}

// A carrier that hops every four sweeps, one that stays, one that drifts, and a burst of wide noise.
std::vector<Emitter> BandAt(std::size_t sweep, const std::vector<double>& hops)
{
    std::vector<Emitter> scene = {{446.05e6, -88}, {444.2e6 + 9e3 * static_cast<double>(sweep), -96}};
    scene.push_back({hops[sweep / 4], -62, 12e3});
    if (sweep >= 30 && sweep < 36)
        scene.push_back({448.5e6, -68, 0, 2.2e6});
    return scene;
}

Sample Spectrogram(std::size_t count, const char* file, const char* shows, const char* reference)
{
    AnalyzerSettings settings;
    settings.Head = HeadOf("3.20", "04/08/2015", "22:17:00", reference);
    settings.Sweep = {440e6, 450e6, 401};
    settings.Analyzer = {30e3, 10e3, 0};
    settings.RefDbm = -50;
    settings.DecibelsPerDivision = 6;
    settings.Antenna = "DISCONE";
    settings.Gps = CoastSite;
    SteadyRandom random(8887);
    std::vector<double> hops;
    constexpr int allHops = 20;
    hops.reserve(allHops);
    for (int hop = 0; hop < allHops; ++hop)
        hops.push_back(440.5e6 + 25e3 * std::floor(random.Uniform() * 360));
    std::vector<TimedSweep> sweeps;
    std::uint32_t time = 0;
    for (std::size_t s = 0; s < count; ++s) {
        sweeps.push_back({time, Scan(settings.Sweep, settings.Analyzer, BandAt(s, hops), random)});
        time += 50 + (s % 3 == 0 ? 1 : 0); // no clock is even
    }
    return SpectroSample(file, shows, settings, sweeps);
}

} // namespace

std::vector<Sample> SpectrumSamples()
{
    return {CarrierScan(100e3, "spa_carriers_rbw100k_401pts.raw",
                        "three carriers and a spurious one through a filter of 100 kHz", "CARRIERS WIDE"),
            CarrierScan(3e3, "spa_carriers_rbw3k_401pts.raw",
                        "the same through a filter of 3 kHz: a lower floor, a clear spurious carrier",
                        "CARRIERS NARROW"),
            FmBand(),
            GsmBand(),
            Interferer(),
            GsmChannels(),
            WidebandChannels(),
            Spectrogram(80, "spg_hopping_80sweeps.raw",
                        "eighty sweeps with a hopping, a steady and a drifting carrier and a burst of noise",
                        "HOPPER"),
            Spectrogram(32, "spg_hopping_32sweeps.raw",
                        "the first 32 of those sweeps, short enough for a head", "HOPPER SHORT")};
}

} // namespace Traces::Samples
