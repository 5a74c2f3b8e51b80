// The cable and antenna samples against distance: damaged cables whose faults stand out where they lie.
// Distances in the record are millimetres.
#include "VnaRecord.h"

#include <algorithm>

namespace Traces::Samples {

namespace {

// Peaks of the trace go to the markers, the highest first.
void MarkPeaks(VnaSettings& settings, const std::vector<Complex>& points, double least, std::size_t apart)
{
    const std::vector<std::int16_t> peaks = Peaks(points, least, apart);
    std::copy_n(peaks.begin(), std::min(peaks.size(), settings.Markers.size()), settings.Markers.begin());
}

Sample TornFeeder()
{
    // The step is half of what 60 m need, so that echoes between the faults, which seem to come from behind
    // the end, don't fold back into the window.
    const Sweep sweep{800e6, 1900e6, 1101};
    const Cable jumper{2, 0.88, 0.04};
    const Cable toDent{16.4, 0.88, 0.04};
    const Cable dent{0.08, 0.88, 0.04, 1e9, 43};
    const Cable toJoint{12.5, 0.88, 0.04};
    const Cable toEnd{21.3, 0.88, 0.04};
    const auto measured = Measure(sweep, {0.002, 1e-9, 4e-3, 31}, [&](double hz) {
        PortState state = ThroughCable(AtOpen(), toEnd, hz);
        state = ThroughSeries(state, 6); // a corroded joint
        state = ThroughCable(state, toJoint, hz);
        state = ThroughCable(state, dent, hz);
        state = ThroughCable(state, toDent, hz);
        state = ThroughConnector(state, 0.12e-12, hz);
        state = ThroughCable(state, jumper, hz);
        return ThroughConnector(state, 0.1e-12, hz);
    });
    const auto points = AgainstDistance(sweep, measured, {0, 60, 601, 0.88, 0.045});

    VnaSettings settings;
    settings.Mode = VnaMode::ReturnLossDistance;
    settings.Head.Version = "3.20";
    settings.Head.Date = "10/21/2013";
    settings.Head.Time = "16:45:27";
    settings.Head.RefNumber = "TORN FEEDER";
    settings.StartHz = 800'000'000;
    settings.StopHz = 1'900'000'000;
    settings.StepHz = 1'000'000;
    settings.ScaleBottom = 60'000;
    settings.SingleLimit = -20;
    settings.LimitSegments = {{{1, 1, 0, -20, 52'000, -20}}};
    settings.StopMillimetres = 60'000;
    settings.RelPropVelocity = 88'000;
    settings.CableLoss = 4'500;
    settings.AveCableLoss = 2.42;
    settings.StatusBytes = {0, 1, 16, 0, 3};
    settings.Gps = {48'082'500, 11'345'000, 519};
    MarkPeaks(settings, points, 0.01, 8);
    return VnaSample("dist_rl_torn_feeder_601pts.raw",
                     "reflection against distance of a feeder with a dent, a corroded joint and a torn end",
                     settings, points);
}

Sample KinkedJumper()
{
    const Sweep sweep{700e6, 2700e6, 401};
    const Cable toKink{6.45, 0.82, 0.11};
    const Cable kink{0.06, 0.82, 0.11, 1e9, 35};
    const Cable toLoad{3.49, 0.82, 0.11};
    const auto measured = Measure(sweep, {0.002, 1e-9, 4e-3, 32}, [&](double hz) {
        PortState state = ThroughConnector(AtLoad(50.6), 0.08e-12, hz);
        state = ThroughCable(state, toLoad, hz);
        state = ThroughCable(state, kink, hz);
        state = ThroughCable(state, toKink, hz);
        return ThroughConnector(state, 0.06e-12, hz);
    });
    const auto points = AgainstDistance(sweep, measured, {0, 12, 401, 0.82, 0.143});

    VnaSettings settings;
    settings.Mode = VnaMode::SwrDistance;
    settings.Head.Version = "3.15";
    settings.Head.Date = "01/14/2010";
    settings.Head.Time = "14:02:09";
    settings.Head.RefNumber = "KINK.VNA";
    settings.StartHz = 700'000'000;
    settings.StopHz = 2'700'000'000;
    settings.StepHz = 5'000'000;
    settings.ScaleTop = 2'000;
    settings.SingleLimit = 1;
    settings.StopMillimetres = 12'000;
    settings.RelPropVelocity = 82'000;
    settings.CableLoss = 14'300;
    settings.AveCableLoss = 1.43;
    MarkPeaks(settings, points, 0.01, 10);
    return VnaSample("dist_swr_kinked_jumper_401pts.raw",
                     "reflection against distance of a kinked jumper cable with a load at its end", settings,
                     points);
}

} // namespace

std::vector<Sample> VnaDistanceSamples()
{
    return {TornFeeder(), KinkedJumper()};
}

} // namespace Traces::Samples
