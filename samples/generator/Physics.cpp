#include "Physics.h"

#include <cmath>
#include <numbers>

namespace Traces::Samples {

namespace {

constexpr double LightSpeed = 299'792'458; // m/s
constexpr double TwoPi = 2 * std::numbers::pi;

// Decibels of one neper.
constexpr double NeperDecibels = 20 / std::numbers::ln10;

} // namespace

double SteadyRandom::Uniform()
{
    return (static_cast<double>(engine()) + 0.5) / 4294967296.0;
}

double SteadyRandom::Gauss()
{
    const double radius = std::sqrt(-2 * std::log(Uniform()));
    return radius * std::cos(TwoPi * Uniform());
}

PortState AtOpen()
{
    return {1, 0};
}

PortState AtShort()
{
    return {0, 1};
}

PortState AtLoad(Complex ohm)
{
    return {ohm, 1};
}

double CableLoss(const Cable& cable, double hz)
{
    return cable.LossPerMetre * cable.Metres * std::sqrt(hz / cable.LossAtHz);
}

PortState ThroughCable(PortState far, const Cable& cable, double hz)
{
    const double nepers = CableLoss(cable, hz) / NeperDecibels;
    const double radians = TwoPi * hz * cable.Metres / (cable.VelocityFactor * LightSpeed);
    const Complex way{nepers, radians};
    const Complex c = std::cosh(way);
    const Complex s = std::sinh(way);
    return {far.Volt * c + far.Ampere * s * cable.Ohm, far.Volt * s / cable.Ohm + far.Ampere * c};
}

PortState ThroughSeries(PortState far, Complex ohm)
{
    return {far.Volt + far.Ampere * ohm, far.Ampere};
}

PortState ThroughShunt(PortState far, Complex siemens)
{
    return {far.Volt, far.Ampere + far.Volt * siemens};
}

PortState ThroughConnector(PortState far, double farad, double hz)
{
    return ThroughShunt(far, {0, TwoPi * hz * farad});
}

Complex Reflection(PortState state)
{
    const Complex back = state.Ampere * ReferenceOhm;
    return (state.Volt - back) / (state.Volt + back);
}

ResonantCircuit SeriesCircuit(double ohm, double resonanceHz, double quality)
{
    const double omega = TwoPi * resonanceHz;
    return {ohm, quality * ohm / omega, 1 / (omega * quality * ohm)};
}

ResonantCircuit ParallelCircuit(double ohm, double resonanceHz, double quality)
{
    const double omega = TwoPi * resonanceHz;
    return {ohm, ohm / (omega * quality), quality / (omega * ohm)};
}

Complex SeriesImpedance(const ResonantCircuit& circuit, double hz)
{
    const double omega = TwoPi * hz;
    return {circuit.Ohm, omega * circuit.Henry - 1 / (omega * circuit.Farad)};
}

Complex ParallelImpedance(const ResonantCircuit& circuit, double hz)
{
    const double omega = TwoPi * hz;
    return 1.0 / Complex{1 / circuit.Ohm, omega * circuit.Farad - 1 / (omega * circuit.Henry)};
}

std::vector<Complex> Measure(const Sweep& sweep, const Instrument& instrument,
                             const std::function<PortState(double)>& scene)
{
    SteadyRandom random(instrument.Seed);
    std::vector<Complex> measured;
    measured.reserve(sweep.Points);
    for (std::size_t i = 0; i < sweep.Points; ++i) {
        const double hz = sweep.Hz(i);
        const Complex bridge = std::polar(instrument.Directivity, -TwoPi * hz * instrument.DirectivityDelay);
        // The parts are drawn one after the other: the order of evaluation of arguments isn't fixed.
        const double real = random.Gauss();
        const double imaginary = random.Gauss();
        measured.push_back(Reflection(scene(hz)) + bridge + instrument.Noise * Complex{real, imaginary});
    }
    return measured;
}

std::vector<Complex> AgainstDistance(const Sweep& sweep, const std::vector<Complex>& measured,
                                     const DistanceWindow& window)
{
    std::vector<Complex> tapered(sweep.Points);
    double sum = 0;
    for (std::size_t k = 0; k < sweep.Points; ++k) {
        const double angle = TwoPi * static_cast<double>(k) / static_cast<double>(sweep.Points - 1);
        const double weight = 0.42 - 0.5 * std::cos(angle) + 0.08 * std::cos(2 * angle);
        tapered[k] = measured[k] * weight;
        sum += weight;
    }

    std::vector<Complex> result;
    result.reserve(window.Points);
    for (std::size_t i = 0; i < window.Points; ++i) {
        const double share = static_cast<double>(i) / static_cast<double>(window.Points - 1);
        const double metres = window.StartMetres + (window.StopMetres - window.StartMetres) * share;
        const double seconds = 2 * metres / (window.VelocityFactor * LightSpeed);
        Complex total = 0;
        for (std::size_t k = 0; k < sweep.Points; ++k)
            total += tapered[k] * std::polar(1.0, TwoPi * sweep.Hz(k) * seconds);
        result.push_back(total / sum * std::exp(2 * metres * window.LossPerMetre / NeperDecibels));
    }
    return result;
}

} // namespace Traces::Samples
