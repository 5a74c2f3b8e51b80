// The records of spectrum analyzer, channel scanner and spectrogram as raw buffers, and the facts read back
// from such buffers.
#pragma once

#include "Sample.h"
#include "Spectrum.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace Traces::Samples {

/// Start and end in Hz and dBm; a limit that isn't set is all 0.
struct LimitLine {
    double StartHz = 0, StartDbm = 0, EndHz = 0, EndDbm = 0;
};

/// Settings that all three records have.
struct AnalyzerSettings {
    CommonHead Head;
    Traces::Samples::Sweep Sweep;
    Traces::Samples::Analyzer Analyzer;
    double RefDbm = 0;
    double DecibelsPerDivision = 10;
    double LimitDbm = -270; ///< The single limit line; -270 is none.
    std::string Antenna;
    std::int16_t SignalStd = 0; ///< Code of the signal standard, 0 for none.
    GpsFix Gps;
};

struct SpaSettings : AnalyzerSettings {
    std::array<std::int16_t, 6> Markers{};     ///< Point numbers.
    std::array<LimitLine, 5> Upper{}, Lower{}; ///< Limit segments.
    std::int16_t Channel = -1;                 ///< Negative for none.
    std::uint8_t Interference = 255;           ///< Kind of cell looked for, 255 for none.
    double InterferenceWidthHz = 0, InterferenceHz = 0;
    std::uint8_t Trigger = 1; ///< 0 single, 1 free run, 2 video, 3 external.
    std::int32_t MinSweepTime = 0;
};

struct Channel {
    std::int16_t Number = 0;
    double Hz = 0;
    double Dbm = 0;
};

struct CsSettings : AnalyzerSettings {
    double ChannelHz = 0;  ///< Width that the power is summed over.
    std::uint8_t Link = 2; ///< 1 uplink, 2 downlink, 3 both.
};

/// One sweep of a spectrogram: seconds since the first, in hundredths, and levels in dBm.
struct TimedSweep {
    std::uint32_t Hundredths = 0;
    std::vector<double> Levels;
};

Sample SpaSample(const std::string& fileName, const std::string& shows, const SpaSettings& settings,
                 const std::vector<double>& levels);
Sample CsSample(const std::string& fileName, const std::string& shows, const CsSettings& settings,
                const std::vector<Channel>& channels);
Sample SpectroSample(const std::string& fileName, const std::string& shows, const AnalyzerSettings& settings,
                     const std::vector<TimedSweep>& sweeps);

} // namespace Traces::Samples
