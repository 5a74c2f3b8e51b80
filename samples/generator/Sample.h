// A finished sample trace and the facts that can be read off it. Each family has one function here that
// makes its samples; main.cpp lists them.
#pragma once

#include "RawWriter.h"

#include <string>
#include <vector>

namespace Traces::Samples {

struct Sample {
    std::string FileName; ///< Without folder.
    std::string Shows;    ///< What one sees, in a few words.
    Bytes Raw;
    double NearestTie = 0.5;        ///< As RawWriter::NearestTie.
    std::vector<std::string> Facts; ///< Sentences computed from Raw alone.
};

/// Return loss, SWR and cable loss against frequency.
std::vector<Sample> VnaFrequencySamples();
/// Reflection and SWR against distance.
std::vector<Sample> VnaDistanceSamples();
/// Spectrum analyzer, channel scanner and spectrogram.
std::vector<Sample> SpectrumSamples();
/// Power meter, power monitor and high accuracy power meter.
std::vector<Sample> PowerSamples();

/// T1 and E1 line tests.
std::vector<Sample> LineTestSamples();

/// Code domains of CDMA cells.
std::vector<Sample> CdmaSamples();

/// GSM bursts.
std::vector<Sample> GsmSamples();

/// MAC and data codes of EV-DO sectors.
std::vector<Sample> EvdoSamples();

/// iDEN base radios.
std::vector<Sample> IdenSamples();

/// Checks of GPS receivers.
std::vector<Sample> GpsSamples();

/// value with a fixed number of decimals, whatever the locale.
std::string Fixed(double value, int decimals);
/// value with at most four decimals and no trailing zeros.
std::string Plain(double value);

} // namespace Traces::Samples
