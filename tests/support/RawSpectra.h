// Raw spectra for tests, with a value of its own in every field.
#pragma once

#include "support/RawBuilder.h"

namespace Traces::Testing {

/// Raw number of a level.
constexpr std::int64_t RawLevel(double dBm)
{
    return static_cast<std::int64_t>((dBm + 270) * 1000 + 0.5);
}

/// A spectrum with its points' levels in dBm.
inline RawBuilder RawSpectrum(const std::vector<double>& levels)
{
    const auto points = static_cast<int>(levels.size());
    RawBuilder raw = RawHeader(431 + 4 * levels.size(), 48, points);
    raw.Number(57, 4, 925'000'000).Number(61, 4, 960'500'000).Number(65, 4, 942'750'000);
    raw.Number(69, 4, 35'500'000).Number(73, 4, 12'500);
    raw.Number(77, 4, RawLevel(-20)).Number(81, 4, 10'000).Number(97, 4, RawLevel(-60.4));
    for (int k = 0; k < 6; ++k)
        raw.Number(85 + 2 * k, 2, 301 + k);
    for (int p = 0; p < 20; ++p)
        raw.Number(101 + 8 * p, 4, 930'000'000 + 1'000'000 * p).Number(105 + 8 * p, 4, RawLevel(-50 - p));
    raw.Number(261, 4, 30'000).Number(265, 4, 10'000).Number(269, 1, 1).Number(270, 1, 99).Number(271, 1, 26);
    raw.Number(272, 4, 15'000).Text(276, "YAGI 900");
    raw.Text(284, "        ");
    for (int k = 0; k < 7; ++k)
        raw.Number(292 + k, 1, 41 + k);
    raw.Number(299, 4, RawLevel(3.5)).Number(303, 1, 2).Number(304, 2, 49).Number(306, 2, 62);
    raw.Number(308, 1, 1).Number(309, 4, 200'000).Number(313, 4, 947'500'000).Number(317, 4, 0x0BADF00D);
    raw.Number(321, 1, 2).Number(322, 1, 50).Number(323, 4, 200'000'000).Number(327, 4, RawLevel(-35));
    raw.Number(331, 1, 8).Number(332, 1, 1).Number(333, 2, 5'700).Number(335, 2, -3);
    raw.Number(337, 4, 100'000).Number(341, 4, 3'000'000'000).Number(345, 1, 4).Number(346, 1, 9);
    raw.Number(347, 4, RawLevel(-41)).Number(351, 4, RawLevel(-42)).Number(355, 4, RawLevel(-43));
    raw.Number(359, 4, RawLevel(-44.25)).Number(363, 1, 3);
    raw.Number(364, 4, 40'250'170).Number(368, 4, -3'422'250).Number(372, 2, 667);
    for (int i = 0; i < points; ++i)
        raw.Number(432 + 4 * i, 4, RawLevel(levels[static_cast<std::size_t>(i)]));
    return raw;
}

} // namespace Traces::Testing
