// Raw channel scans and spectrograms for tests, with a value of its own in every field.
#pragma once

#include "support/RawSpectra.h"

namespace Traces::Testing {

/// A scan of channels 101, 102..., whose levels are given in hundredths of a dBm.
inline RawBuilder RawScan(const std::vector<int>& levels)
{
    const auto channels = static_cast<int>(levels.size());
    RawBuilder raw = RawHeader(110 + 8 * levels.size(), 57, 7);
    raw.Number(57, 4, 946'500'000)
        .Number(61, 4, 950'500'000)
        .Number(65, 4, RawLevel(-40))
        .Number(69, 4, 10'000);
    raw.Number(73, 4, 30'000).Number(77, 4, 10'000).Number(81, 4, 250'000).Number(85, 4, 5'500);
    raw.Number(89, 2, 49).Number(91, 1, 2).Number(92, 4, RawLevel(-60));
    raw.Number(96, 4, 40'250'000).Number(100, 4, -3'422'000).Number(104, 2, 667).Number(106, 2, channels);
    for (int i = 0; i < channels; ++i)
        raw.Number(111 + 8 * i, 2, 101 + i)
            .Number(113 + 8 * i, 4, 947'000'000 + 250'000 * i)
            .Number(117 + 8 * i, 2, levels[static_cast<std::size_t>(i)]);
    return raw;
}

/// A spectrogram from 440 to 450 MHz; sweep s has the byte s at its first point and 200 at point 10 + s.
inline RawBuilder RawSpectrogram(int sweeps)
{
    RawBuilder raw = RawHeader(static_cast<std::size_t>(128 + 405 * sweeps), 87, 0);
    raw.Number(57, 4, 440'000'000)
        .Number(61, 4, 450'000'000)
        .Number(65, 4, RawLevel(-50))
        .Number(69, 4, 6'000);
    raw.Number(73, 4, 30'000).Number(77, 4, 10'000).Number(81, 4, 15'000).Text(85, "DISCONE         ");
    raw.Number(101, 2, 49).Number(103, 4, 40'250'000).Number(107, 4, -3'422'000).Number(111, 2, 667);
    raw.Number(113, 2, sweeps);
    for (int s = 0; s < sweeps; ++s)
        raw.Number(129 + 405 * s, 4, 50 * s).Number(133 + 405 * s, 1, s).Number(143 + 406 * s, 1, 200);
    return raw;
}

} // namespace Traces::Testing
