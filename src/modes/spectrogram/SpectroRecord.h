// The decoded record of a spectrogram: up to 80 sweeps of 401 levels, one after the other in time. Its routes
// are in SpectroTrace.h, its pictures in SpectroView.h.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Traces {

struct SpectroRecord {
    static constexpr std::size_t Points = 401;
    static constexpr std::size_t MaxSweeps = 80;

    float StartFreq = 0, StopFreq = 0; ///< MHz
    float RefLevel = 0;                ///< dBm, the top of the colour scale
    float ScaleDiv = 0;                ///< dB a division; the scale has ten
    std::int32_t RBWSetting = 0;       ///< Hz
    std::int32_t VBWSetting = 0;       ///< Hz
    float Attenuation = 0;             ///< dB
    std::string AntennaName;           ///< 16 characters
    std::string SignalStandard;
    std::int32_t GpsLatitude = 0, GpsLongitude = 0;
    std::int16_t GpsAltitude = 0;
    std::int16_t SweepCount = 0;  ///< 0 to 80
    std::vector<float> SweepTime; ///< of each sweep, seconds since the first
    std::vector<float> Level;     ///< dBm, sweep after sweep
};

} // namespace Traces
