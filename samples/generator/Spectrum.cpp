#include "Spectrum.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Traces::Samples {

namespace {

double Milliwatts(double dBm)
{
    return std::pow(10, dBm / 10);
}

double Decibels(double milliwatts)
{
    return 10 * std::log10(milliwatts);
}

// Share of a normal distribution below x deviations.
double Below(double x)
{
    return 0.5 * (1 + std::erf(x / std::numbers::sqrt2));
}

// Of a Gaussian filter: deviation of its power response, and the width of the box with the same noise.
double Deviation(double resolutionHz)
{
    return resolutionHz / (2 * std::sqrt(2 * std::numbers::ln2));
}
double NoiseWidth(double resolutionHz)
{
    return Deviation(resolutionHz) * std::sqrt(2 * std::numbers::pi);
}

// What the filter lets through of an emitter when it stands so far beside it.
double Through(const Emitter& emitter, double offsetHz, double resolutionHz)
{
    const double filter = Deviation(resolutionHz);
    const double power = Milliwatts(emitter.Dbm);
    if (emitter.BlockHz > 0) {
        const double half = emitter.BlockHz / 2;
        return power * NoiseWidth(resolutionHz) / emitter.BlockHz *
               (Below((half - offsetHz) / filter) - Below((-half - offsetHz) / filter));
    }
    const double square = filter * filter + emitter.SpreadHz * emitter.SpreadHz;
    const double direct = power * filter / std::sqrt(square) * std::exp(-offsetHz * offsetHz / (2 * square));
    // Phase noise of both oscillators: -95 dBc/Hz up to 10 kHz, 20 dB a decade less beyond.
    const double ratio = offsetHz / 10e3;
    return direct + power * NoiseWidth(resolutionHz) * std::pow(10, -9.5) / (1 + ratio * ratio);
}

double NoiseDensity(const Analyzer& analyzer)
{
    constexpr double thermal = -174; // dBm in one hertz at room temperature
    return Milliwatts(thermal + analyzer.NoiseFigureDb + analyzer.AttenuationDb);
}

// Mean of so many readings of noise of mean power 1.
double NoiseReading(int averaged, SteadyRandom& random)
{
    double sum = 0;
    for (int i = 0; i < averaged; ++i)
        sum -= std::log(random.Uniform());
    return sum / averaged;
}

} // namespace

double NoiseFloor(const Analyzer& analyzer)
{
    return Decibels(NoiseDensity(analyzer) * NoiseWidth(analyzer.ResolutionHz));
}

std::vector<double> Scan(const Sweep& sweep, const Analyzer& analyzer, const std::vector<Emitter>& emitters,
                         SteadyRandom& random)
{
    const double spacing = (sweep.StopHz - sweep.StartHz) / static_cast<double>(sweep.Points - 1);
    // Within a point's span the filter passes over several places, and the strongest is kept.
    const int pieces =
        static_cast<int>(std::clamp(std::ceil(2 * spacing / analyzer.ResolutionHz), 1.0, 32.0));
    const int averaged =
        static_cast<int>(std::clamp(3 * analyzer.ResolutionHz / analyzer.VideoHz, 3.0, 60.0));
    const double floor = Milliwatts(NoiseFloor(analyzer));
    std::vector<double> levels;
    for (std::size_t i = 0; i < sweep.Points; ++i) {
        double highest = 0;
        for (int piece = 0; piece < pieces; ++piece) {
            const double hz = sweep.Hz(i) + spacing * ((piece + 0.5) / pieces - 0.5);
            double steady = 0;
            double noisy = floor;
            for (const Emitter& emitter : emitters)
                (emitter.SpreadHz > 0 || emitter.BlockHz > 0 ? noisy : steady) +=
                    Through(emitter, hz - emitter.Hz, analyzer.ResolutionHz);
            highest = std::max(highest, steady + noisy * NoiseReading(averaged, random));
        }
        levels.push_back(Decibels(highest));
    }
    return levels;
}

double ChannelPower(double centreHz, double widthHz, const Analyzer& analyzer,
                    const std::vector<Emitter>& emitters)
{
    double power = NoiseDensity(analyzer) * widthHz;
    for (const Emitter& emitter : emitters) {
        const double low = centreHz - widthHz / 2 - emitter.Hz;
        const double high = low + widthHz;
        double share = low <= 0 && high > 0 ? 1 : 0;
        if (emitter.BlockHz > 0) {
            const double half = emitter.BlockHz / 2;
            share = (std::clamp(high, -half, half) - std::clamp(low, -half, half)) / emitter.BlockHz;
        } else if (emitter.SpreadHz > 0) {
            share = Below(high / emitter.SpreadHz) - Below(low / emitter.SpreadHz);
        }
        power += Milliwatts(emitter.Dbm) * share;
    }
    return Decibels(power);
}

} // namespace Traces::Samples
