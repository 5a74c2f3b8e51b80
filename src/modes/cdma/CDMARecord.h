// A code domain measurement of a CDMA forward link, as its fields are shown and saved. One record serves both
// layouts; what the older one lacks keeps what it held.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace Traces {

struct CDMARecord {
    static constexpr std::size_t Codes = 128;          ///< Walsh codes
    static constexpr std::size_t SpectrumPoints = 384; ///< of the RF spectrum
    static constexpr std::size_t Pilots = 9;           ///< 7 in the older layout
    static constexpr std::size_t Paths = 6;            ///< from firmware 3.20

    double VersionNumber = 0;
    float ScaleDivision = 0;   ///< thousandths of a dB per division
    float CenterFrequency = 0; ///< MHz
    float ExternalReferenceFrequency = 0;
    std::uint8_t MeasurementLength = 0;
    std::int16_t PNOffset0 = 0;
    std::uint8_t StatusByte1 = 0; ///< bit 0: trigger edge
    std::uint8_t StatusByte2 = 0; ///< markers on: 1 is bit 7, down to 6, bit 2
    std::uint8_t StatusByte3 = 0; ///< options: bit 0 over the air, bit 1 RF
    std::array<std::uint8_t, 6> MarkerPosition{};
    std::string SignalStandard;
    std::uint8_t DisplayType = 0;  ///< 1 or 2 code domain, 3 over the air, 4 RF spectrum
    std::uint8_t DisplayUnits = 0; ///< 0 dBm, others watts
    float PowerOffset = 0;         ///< dB
    std::uint8_t PNIncrement = 0;
    std::int16_t Channel = 0; ///< negative is none
    float MeasuredRho = 0;
    float PNOffset = 0;
    float FrequencyError = 0;                   ///< Hz
    float ChannelPowerRMS = 0;                  ///< dBm, without PowerOffset
    float PeakPowerRMS = 0;                     ///< dBm, without PowerOffset: shown as the pilot's power
    float CarrierFeedthrough = 0;               ///< dB
    float OccupiedBandwidth = 0;                ///< kHz
    std::array<float, Pilots> PilotScanPower{}; ///< Ec/Io, dB
    std::array<std::int16_t, Pilots> PilotScanPN{};
    std::string SearchMode;
    std::string RefLevelOffsetCalStatus; ///< "1" while a cable's offset is in force
    std::string UTCTime;                 ///< from firmware 3.20
    std::int16_t NoValidPilotScan = 0;   ///< from firmware 3.20
    std::string SignalStatus;
    std::string MeasurementStatus;
    std::array<float, Paths> PilotTau{};                          ///< microseconds
    float Tau = 0;                                                ///< microseconds
    float NoiseFloor = 0, PilotDominance = 0, MultipathPower = 0; ///< dB
    std::int32_t GpsLatitude = 0, GpsLongitude = 0;
    std::int16_t GpsAltitude = 0;
    std::array<float, Codes> CDPPower{};              ///< dB, in the codes' natural order
    std::array<std::uint8_t, Codes> CDPLink{};        ///< 0 begins a channel
    std::array<std::uint8_t, Codes> CDPChannelType{}; ///< see CDMAChannelType
    std::array<float, SpectrumPoints> RFSpectrum{};   ///< dB
};

/// Bits of StatusByte3.
namespace CDMAOption {
inline constexpr std::uint8_t OverTheAir = 1, RF = 2;
}

} // namespace Traces
