// The cable and antenna samples against frequency: antennas, standards and cables as a technician meets them.
#include "VnaRecord.h"

#include <cmath>

namespace Traces::Samples {

namespace {

constexpr GpsFix HillSite{48'082'500, 11'345'000, 519};    // north, east
constexpr GpsFix CoastSite{-12'027'800, -77'025'500, 154}; // south, west

std::uint32_t Whole(double value)
{
    return static_cast<std::uint32_t>(std::lround(value));
}

// The settings that follow from the sweep and from the cable before what is measured.
VnaSettings SweepSettings(VnaMode mode, const Sweep& sweep, const Cable& cable)
{
    VnaSettings settings;
    settings.Mode = mode;
    settings.StartHz = Whole(sweep.StartHz);
    settings.StopHz = Whole(sweep.StopHz);
    settings.StepHz = Whole((sweep.StopHz - sweep.StartHz) / static_cast<double>(sweep.Points - 1));
    settings.RelPropVelocity = Whole(cable.VelocityFactor * 100'000);
    for (std::size_t i = 0; i < sweep.Points; ++i)
        settings.AveCableLoss += CableLoss(cable, sweep.Hz(i)) / static_cast<double>(sweep.Points);
    return settings;
}

// A panel antenna of the 900 MHz band on its jumper, as the two samples of that site see it.
constexpr Cable GsmJumper{3, 0.85, 0.14};

PortState GsmAntenna(double hz)
{
    const PortState antenna = AtLoad(SeriesImpedance(SeriesCircuit(56, 921e6, 4), hz));
    return ThroughConnector(ThroughCable(antenna, GsmJumper, hz), 0.08e-12, hz);
}

Sample BandEdges()
{
    const Sweep sweep{880e6, 960e6, 2};
    const auto points = Measure(sweep, {0.004, 0.4e-9, 2e-4, 11}, GsmAntenna);
    VnaSettings settings = SweepSettings(VnaMode::ReturnLoss, sweep, GsmJumper);
    settings.Head = HeadOf("3.15", "04/17/2009", "08:41:52", "EDGES");
    settings.ScaleBottom = 20'000;
    settings.SingleLimit = -14;
    settings.Markers = {DeepestPoint(points)};
    settings.SignalStd = 49;
    settings.Gps = HillSite;
    return VnaSample("rl_gsm900_band_edges_2pts.raw",
                     "return loss of an antenna at the two edges of its band", settings, points);
}

Sample ShortedJumper()
{
    const Sweep sweep{50e6, 550e6, 51};
    const Cable jumper{2, 0.66, 0.22};
    const auto points =
        Measure(sweep, {0, 0, 1e-4, 12}, [&](double hz) { return ThroughCable(AtShort(), jumper, hz); });
    VnaSettings settings = SweepSettings(VnaMode::ReturnLoss, sweep, jumper);
    settings.Head = HeadOf("3.15", "11/02/2009", "15:07:33", "SHORT 2M");
    settings.Head.Model = "TRC-50";
    settings.ScaleBottom = 5'000;
    settings.SingleLimit = -1;
    settings.Markers = {DeepestPoint(points), 0, 50};
    settings.StatusBytes = {0, 1, 0, 0, 0};
    return VnaSample("rl_short_51pts.raw", "return loss of a short at the end of a jumper cable", settings,
                     points);
}

Sample OpenJumper()
{
    const Sweep sweep{10e6, 1010e6, 101};
    const Cable jumper{1.5, 0.7, 0.12};
    const auto points = Measure(sweep, {0, 0, 1e-4, 13}, [&](double hz) {
        // The stray field at the open end acts as a small capacitance.
        return ThroughCable(ThroughConnector(AtOpen(), 0.06e-12, hz), jumper, hz);
    });
    VnaSettings settings = SweepSettings(VnaMode::ReturnLoss, sweep, jumper);
    settings.Head = HeadOf("3.20", "02/26/2013", "10:15:00", "OPEN.VNA");
    settings.Head.HeaderWord = 7;
    settings.ScaleBottom = 10'000;
    settings.SingleLimit = -1;
    settings.Markers = {DeepestPoint(points), 10, 50, 100};
    return VnaSample("rl_open_101pts.raw", "return loss of an open jumper cable", settings, points);
}

Sample GsmBand()
{
    const Sweep sweep{870e6, 970e6, 201};
    const auto points = Measure(sweep, {0.004, 0.4e-9, 2e-4, 14}, GsmAntenna);
    VnaSettings settings = SweepSettings(VnaMode::ReturnLoss, sweep, GsmJumper);
    settings.Head = HeadOf("3.15", "04/17/2009", "08:44:10", "SITE17-SECTOR-B1");
    settings.ScaleBottom = 30'000;
    settings.SingleLimit = -14;
    settings.LimitSegments = {{{1, 1, 870'000'000, -8, 880'000'000, -14},
                               {2, 1, 880'000'000, -14, 960'000'000, -14},
                               {3, 1, 960'000'000, -14, 970'000'000, -8}}};
    settings.Markers = {DeepestPoint(points), 20, 90, 110, 180};
    settings.StatusBytes = {1, 2, 0, 4, 0};
    settings.SignalStd = 49;
    settings.Gps = HillSite;
    return VnaSample("rl_gsm900_antenna_201pts.raw", "return loss of a GSM 900 antenna behind a jumper cable",
                     settings, points);
}

Sample MatchedLoad()
{
    const Sweep sweep{100e6, 2500e6, 401};
    const Cable adapter{0.1, 0.7, 0.2};
    const auto points = Measure(sweep, {0.002, 1.3e-9, 3e-4, 15}, [&](double hz) {
        return ThroughCable(ThroughConnector(AtLoad(50.35), 0.02e-12, hz), adapter, hz);
    });
    VnaSettings settings = SweepSettings(VnaMode::ReturnLoss, sweep, adapter);
    settings.Head = HeadOf("3.20", "09/30/2014", "13:22:47", "LOAD CHECK");
    settings.ScaleBottom = 60'000;
    settings.SingleLimit = -35;
    settings.LimitSegments = {{{1, 1, 100'000'000, -35, 2'500'000'000, -35}}};
    settings.Markers = {DeepestPoint(points), 0, 400};
    settings.StatusBytes = {0, 1, 16, 0, 3};
    return VnaSample("rl_matched_load_401pts.raw",
                     "return loss of a matched load with its residual reflection", settings, points);
}

Sample DualBand()
{
    const Sweep sweep{800e6, 2000e6, 601};
    const Cable jumper{4, 0.85, 0.11};
    const auto points = Measure(sweep, {0.003, 0.6e-9, 2e-4, 16}, [&](double hz) {
        const Complex low = SeriesImpedance(SeriesCircuit(55, 918e6, 7), hz);
        const Complex high = SeriesImpedance(SeriesCircuit(44.5, 1792e6, 9), hz);
        const PortState antenna = ThroughShunt(AtLoad(high), 1.0 / low);
        return ThroughConnector(ThroughCable(antenna, jumper, hz), 0.05e-12, hz);
    });
    VnaSettings settings = SweepSettings(VnaMode::ReturnLoss, sweep, jumper);
    settings.Head = HeadOf("3.20", "06/11/2015", "17:58:21", "DUAL900-1800.VNA");
    settings.ScaleBottom = 35'000;
    settings.SingleLimit = -12;
    settings.LimitSegments = {{{1, 1, 880'000'000, -12, 960'000'000, -12},
                               {2, 1, 1'710'000'000, -12, 1'880'000'000, -12},
                               {3, 0},
                               {4, 0},
                               {5, 0}}};
    settings.Markers = {DeepestPoint(points), 40, 80, 455, 540, 600};
    settings.SignalStd = 47;
    settings.Gps = CoastSite;
    return VnaSample("rl_dualband_antenna_601pts.raw", "return loss of an antenna for 900 and 1800 MHz",
                     settings, points);
}

Sample WhipSwr()
{
    const Sweep sweep{144e6, 146e6, 3};
    const Cable cable{5, 0.66, 0.2};
    const auto points = Measure(sweep, {0.003, 0.8e-9, 2e-4, 17}, [&](double hz) {
        return ThroughCable(AtLoad(SeriesImpedance(SeriesCircuit(38, 147.2e6, 9), hz)), cable, hz);
    });
    VnaSettings settings = SweepSettings(VnaMode::Swr, sweep, cable);
    settings.Head = HeadOf("3.15", "07/05/2008", "19:30:12", "WHIP 2M");
    settings.Head.Model = "TRC-50";
    settings.ScaleTop = 3'000;
    settings.SingleLimit = 2;
    settings.Markers = {DeepestPoint(points)};
    settings.Gps = CoastSite;
    return VnaSample("swr_whip_3pts.raw", "SWR of a whip antenna tuned too high, at three frequencies",
                     settings, points);
}

Sample LoopSwr()
{
    const Sweep sweep{7.0e6, 7.2e6, 101};
    const Cable cable{8, 0.66, 0.2};
    const auto points = Measure(sweep, {0.002, 4e-9, 2e-4, 18}, [&](double hz) {
        return ThroughCable(AtLoad(ParallelImpedance(ParallelCircuit(58, 7.085e6, 250), hz)), cable, hz);
    });
    VnaSettings settings = SweepSettings(VnaMode::Swr, sweep, cable);
    settings.Head = HeadOf("3.20", "12/27/2016", "21:04:59", "LOOP40M.VNA");
    settings.ScaleTop = 4'000;
    settings.SingleLimit = 2;
    settings.LimitSegments = {{{1, 1, 7'080'000, 2, 7'090'000, 2}}};
    settings.Markers = {DeepestPoint(points), 40, 45};
    settings.StatusBytes = {0, 1, 0, 0, 0};
    return VnaSample("swr_narrow_loop_101pts.raw",
                     "SWR of a narrow loop antenna: far above the window beside its resonance", settings,
                     points);
}

Sample UmtsSwr()
{
    const Sweep sweep{1900e6, 2200e6, 401};
    const Cable jumper{2.5, 0.85, 0.11};
    const auto points = Measure(sweep, {0.004, 0.5e-9, 2e-4, 19}, [&](double hz) {
        const PortState antenna = AtLoad(ParallelImpedance(ParallelCircuit(45, 2041e6, 3.2), hz));
        return ThroughConnector(ThroughCable(antenna, jumper, hz), 0.03e-12, hz);
    });
    VnaSettings settings = SweepSettings(VnaMode::Swr, sweep, jumper);
    settings.Head = HeadOf("3.20", "03/08/2012", "11:36:05", "UMTS-A2.VNA");
    settings.ScaleTop = 2'000;
    settings.SingleLimit = 2;
    settings.LimitSegments = {
        {{1, 1, 1'920'000'000, 2, 1'980'000'000, 2}, {2, 1, 2'110'000'000, 2, 2'170'000'000, 2}}};
    settings.Markers = {DeepestPoint(points), 27, 107, 281, 361};
    settings.SignalStd = 83;
    settings.Gps = HillSite;
    return VnaSample("swr_umts_antenna_401pts.raw", "SWR of a UMTS antenna behind a jumper cable", settings,
                     points);
}

Sample ShortedFeeder()
{
    const Sweep sweep{100e6, 2100e6, 201};
    const Cable feeder{30, 0.88, 0.07};
    const auto points = Measure(sweep, {0, 0, 2e-4, 20}, [&](double hz) {
        const PortState farEnd = ThroughConnector(AtShort(), 0.05e-12, hz);
        return ThroughConnector(ThroughCable(farEnd, feeder, hz), 0.03e-12, hz);
    });
    VnaSettings settings = SweepSettings(VnaMode::CableLoss, sweep, feeder);
    // Here the average is what the sweep itself shows: half of the way there and back.
    settings.AveCableLoss = 0;
    for (const Complex point : points)
        settings.AveCableLoss -= 10 * std::log10(std::abs(point)) / static_cast<double>(points.size());
    settings.Head = HeadOf("3.20", "05/19/2011", "09:12:38", "FEEDER-3.VNA");
    settings.ScaleBottom = 5'000;
    settings.SingleLimit = -4;
    settings.LimitSegments = {{{1, 1, 100'000'000, -4, 2'100'000'000, -4}}};
    settings.Markers = {DeepestPoint(points), 80, 170};
    settings.StatusBytes = {0, 0, 1, 0, 0};
    settings.SignalStd = 20;
    settings.Gps = CoastSite;
    return VnaSample("cl_shorted_feeder_201pts.raw", "cable loss of a 30 m feeder with a short at its end",
                     settings, points);
}

} // namespace

std::vector<Sample> VnaFrequencySamples()
{
    return {BandEdges(), ShortedJumper(), OpenJumper(), GsmBand(), MatchedLoad(),
            DualBand(),  WhipSwr(),       LoopSwr(),    UmtsSwr(), ShortedFeeder()};
}

} // namespace Traces::Samples
