// What a spectrum analyzer sees at its input: carriers and modulated signals through its resolution filter,
// over a noise floor that follows the filter's width. Knows nothing of trace buffers.
#pragma once

#include "Physics.h"

#include <cstddef>
#include <vector>

namespace Traces::Samples {

/// Power in the air. Without a width it is a bare carrier; a spread is the deviation of a bell-shaped
/// spectrum (FM, GMSK), a block the width of a flat one (OFDM, noise).
struct Emitter {
    double Hz = 0;
    double Dbm = -200;
    double SpreadHz = 0;
    double BlockHz = 0;
};

struct Analyzer {
    double ResolutionHz = 100e3; ///< 3 dB width of the filter.
    double VideoHz = 100e3;
    double AttenuationDb = 0; ///< Raises the floor by as much.
    double NoiseFigureDb = 28;
};

/// Mean power of the floor in one reading, dBm.
double NoiseFloor(const Analyzer& analyzer);

/// Levels in dBm at the points of a sweep, positive peak. A narrower video filter smooths what is noise.
std::vector<double> Scan(const Sweep& sweep, const Analyzer& analyzer, const std::vector<Emitter>& emitters,
                         SteadyRandom& random);

/// Power in a channel, dBm: the emitters' parts that lie in it, and the noise.
double ChannelPower(double centreHz, double widthHz, const Analyzer& analyzer,
                    const std::vector<Emitter>& emitters);

} // namespace Traces::Samples
