// Traces to measure with: a sample of each family; of sweeps the sample of 601 points and variants of it that
// differ in every point, so that no cache and no branch predictor learns them by heart.
#pragma once

#include "modes/vna_spa/VNAFields.h"

#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace Traces::Bench {

using Bytes = std::vector<std::uint8_t>;

inline constexpr std::size_t SweepPoints = 601;

inline Bytes ReadSample(const std::string& name = "rl_dualband_antenna_601pts.raw")
{
    std::ifstream file(TRACES_SAMPLES_FOLDER "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct FamilySample {
    const char* What;
    const char* File;
};

/// The largest trace of each family but the sweeps.
inline constexpr FamilySample FamilySamples[] = {
    {"spectrum", "spa_fm_broadcast_401pts.raw"},   {"channel scan", "cs_gsm_cell_20ch.raw"},
    {"spectrogram", "spg_hopping_80sweeps.raw"},   {"power meter", "pm_transmitter_cal_dbm.raw"},
    {"power monitor", "pmon_feed_percent.raw"},    {"high accuracy power meter", "hipm_in_range.raw"},
    {"T1 histogram", "t1_bursts_100slices.raw"},   {"E1 level", "e1_vpp_dbdsx.raw"},
    {"CDMA codes", "cdma_cell_128codes_v320.raw"}, {"CDMA spectrum", "cdma_spectrum_v320.raw"},
    {"GSM spectrum", "gsm_spectrum_v320.raw"},     {"GSM slot", "gsm_slot_bad_v320.raw"},
    {"iDEN spectrum", "iden_spectrum.raw"},        {"GPS check", "gpst_lost_fixes.raw"},
    {"EV-DO codes", "evdo_mac_128codes_v320.raw"}, {"EV-DO slot", "evdo_active_slot_v314.raw"},
};

/// Where a number of a sweep's points begins: magnitudes are even, phases odd.
inline std::size_t PlaceOfNumber(std::size_t number)
{
    return static_cast<std::size_t>(VNAFirstPoint) - 1 + number * VNAPointBytes / 2;
}

inline std::int32_t ReadNumber(const Bytes& trace, std::size_t number)
{
    const std::uint8_t* from = trace.data() + PlaceOfNumber(number);
    return static_cast<std::int32_t>(std::uint32_t{from[0]} << 24 | std::uint32_t{from[1]} << 16 |
                                     std::uint32_t{from[2]} << 8 | std::uint32_t{from[3]});
}

/// The sample with a ripple of its own over its magnitudes, and its phases turned.
inline Bytes MakeVariant(const Bytes& sample, int variant)
{
    constexpr double ripple = 0.2;
    constexpr std::int32_t fullTurn = 3600;
    Bytes trace = sample;
    for (std::size_t number = 0; number < 2 * SweepPoints; ++number) {
        const auto point = static_cast<double>(number / 2);
        const double factor = 1 - ripple + ripple * std::sin(point * (0.01 + 0.0007 * variant) + variant);
        std::int32_t raw = ReadNumber(sample, number);
        raw = number % 2 == 0 ? static_cast<std::int32_t>(raw * factor)
                              : (raw + fullTurn / 2 + variant * 7) % fullTurn - fullTurn / 2;
        for (std::size_t byte = 0; byte < 4; ++byte)
            trace[PlaceOfNumber(number) + byte] =
                static_cast<std::uint8_t>(static_cast<std::uint32_t>(raw) >> (24 - 8 * byte) & 0xFF);
    }
    return trace;
}

} // namespace Traces::Bench
