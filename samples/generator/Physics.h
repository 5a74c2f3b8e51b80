// What an antenna analyzer sees at its port: loads, cables and discontinuities as circuit theory has them,
// the instrument's own errors, and the way from a frequency sweep to reflection against distance.
// Knows nothing of trace buffers.
#pragma once

#include <complex>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <random>
#include <vector>

namespace Traces::Samples {

using Complex = std::complex<double>;

/// The instrument's reference impedance.
constexpr double ReferenceOhm = 50;

/// Random numbers that are the same on every platform: the engine's output is fixed by the language's
/// standard, and the mappings are ours because those of the library differ between implementations.
class SteadyRandom {
public:
    explicit SteadyRandom(std::uint32_t seed) : engine(seed) {}
    double Uniform(); ///< Above 0, below 1.
    double Gauss();   ///< Mean 0, deviation 1.

private:
    std::mt19937 engine;
};

/// Complex voltage and current at one place of a line, the current flowing towards the load. Unlike an
/// impedance it needs no infinity for an open end.
struct PortState {
    Complex Volt;
    Complex Ampere;
};

PortState AtOpen();
PortState AtShort();
PortState AtLoad(Complex ohm);

/// A coaxial cable. Its loss grows with the square root of the frequency (skin effect).
struct Cable {
    double Metres = 0;
    double VelocityFactor = 1; ///< Share of the speed of light, 0 to 1.
    double LossPerMetre = 0;   ///< dB, one way, at LossAtHz.
    double LossAtHz = 1e9;
    double Ohm = ReferenceOhm; ///< Characteristic impedance.
};

/// One-way loss of the whole cable in dB.
double CableLoss(const Cable& cable, double hz);

/// The state at the near end of a cable whose far end is in the state far.
PortState ThroughCable(PortState far, const Cable& cable, double hz);
/// The state in front of an impedance in series with the line: a corroded joint, a loose centre pin.
PortState ThroughSeries(PortState far, Complex ohm);
/// The state in front of an admittance across the line.
PortState ThroughShunt(PortState far, Complex siemens);
/// A connector: a little capacitance across the line.
PortState ThroughConnector(PortState far, double farad, double hz);

/// Reflection coefficient seen at a state by the instrument.
Complex Reflection(PortState state);

/// A resonant circuit of R, L and C, as an antenna looks near its resonance.
struct ResonantCircuit {
    double Ohm = ReferenceOhm;
    double Henry = 0;
    double Farad = 0;
};

/// Circuits by what one reads off an antenna: resistance at resonance, resonance, quality factor.
ResonantCircuit SeriesCircuit(double ohm, double resonanceHz, double quality);
ResonantCircuit ParallelCircuit(double ohm, double resonanceHz, double quality);
Complex SeriesImpedance(const ResonantCircuit& circuit, double hz);
Complex ParallelImpedance(const ResonantCircuit& circuit, double hz);

/// What calibration leaves of the instrument's errors.
struct Instrument {
    double Directivity = 0;      ///< Magnitude of the reflection the bridge adds by itself.
    double DirectivityDelay = 0; ///< Its delay in seconds: turns its phase across the sweep.
    double Noise = 0;            ///< Deviation of each of the two noise components.
    std::uint32_t Seed = 1;      ///< Of the noise.
};

/// An equally spaced sweep; both ends are measured.
struct Sweep {
    double StartHz = 0;
    double StopHz = 0;
    std::size_t Points = 2; ///< At least 2.

    double Hz(std::size_t point) const
    {
        return StartHz + (StopHz - StartHz) * static_cast<double>(point) / static_cast<double>(Points - 1);
    }
};

/// The reflection that instrument measures at each point of sweep, where scene gives the state at the
/// instrument's port at a frequency in Hz.
std::vector<Complex> Measure(const Sweep& sweep, const Instrument& instrument,
                             const std::function<PortState(double)>& scene);

/// Where and how a sweep is shown against distance.
struct DistanceWindow {
    double StartMetres = 0;
    double StopMetres = 0;
    std::size_t Points = 2; ///< At least 2.
    double VelocityFactor = 1;
    double LossPerMetre = 0; ///< dB, one way; taken out of what lies behind so much cable.
};

/// Reflection at each distance of window: the inverse Fourier transform of a measured sweep under a
/// Blackman window, so that a lone full reflection reads 1 at its place.
std::vector<Complex> AgainstDistance(const Sweep& sweep, const std::vector<Complex>& measured,
                                     const DistanceWindow& window);

} // namespace Traces::Samples
