// A measurement of an EV-DO forward link, as its fields are shown and saved. One record serves both layouts;
// what the older one lacks keeps what it held. Statuses and modes are codes here, unlike CDMA's.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace Traces {

struct EvDORecord {
    static constexpr std::size_t MACCodes = 128; ///< 64 below firmware 3.20
    static constexpr std::size_t DataCodes = 16;
    static constexpr std::size_t CurvePoints = 384;
    static constexpr std::size_t Pilots = 9; ///< 7 below firmware 3.20
    static constexpr std::size_t Paths = 6;

    double VersionNumber = 0;
    float ScaleDivision = 0;   ///< dB per division
    float CenterFrequency = 0; ///< MHz
    float ExternalReferenceFrequency = 0;
    std::uint8_t MeasurementSpeed = 0;
    std::int16_t PNOffset0 = 0;
    std::uint8_t StatusByte1 = 0; ///< see EvDOStatus
    std::uint8_t StatusByte2 = 0; ///< markers on: 1 is bit 7, down to 6, bit 2
    std::uint8_t StatusByte3 = 0; ///< options, as CDMA's
    std::array<std::uint8_t, 6> MarkerPosition{};
    std::string SignalStandard;
    std::uint8_t DataMarkers = 0;        ///< a marker's bit is clear when it stands on the MAC codes
    std::uint8_t DisplayType = 0;        ///< see MeasurementType
    std::uint8_t DisplayUnits = 0;       ///< 0 dBm, others watts
    float PowerOffset = 0;               ///< dB
    std::uint8_t DataModulation = 0;     ///< see Modulation
    std::int16_t Channel = 0;            ///< negative is none
    std::uint8_t SearchMode = 0;         ///< see TriggerMode
    std::int16_t SignalStatus = 0;       ///< through the table MeasurementStatus
    std::uint8_t MeasurementStatus = 0;  ///< through the table ValidState
    std::string SignalStandardName;      ///< of text files alone
    std::string RefLevelOffsetCalStatus; ///< "1" while a cable's offset is in force
    float RhoPilot = 0, RhoOverall1 = 0, RhoOverall2 = 0;
    float PNOffset = 0;
    float FrequencyError = 0;                   ///< Hz
    float ChannelPowerRMS = 0;                  ///< dBm, without PowerOffset
    float CarrierFeedthrough = 0;               ///< dB
    float OccupiedBandwidth = 0;                ///< kHz
    std::array<float, Pilots> PilotScanPower{}; ///< dB
    std::array<std::int16_t, Pilots> PilotScanPN{};
    std::array<float, Paths> PilotTau{}; ///< microseconds
    std::string UTCTime;
    std::int16_t NoValidPilotScan = 0;
    float Tau = 0;                                                ///< microseconds
    float NoiseFloor = 0, PilotDominance = 0, MultipathPower = 0; ///< dB
    /// Levels without PowerOffset, of the whole frame and of its active and idle slots. -199 is a slot that
    /// wasn't captured.
    /// @{
    float PilotMACPowerAverage = 0, PilotMACPowerActive = 0, PilotMACPowerIdle = 0;
    float PilotPowerAverage = 0, PilotPowerActive = 0, PilotPowerIdle = 0;
    float DataPowerAverage = 0, DataPowerActive = 0, DataPowerIdle = 0;
    /// @}
    float EVM = 0;
    std::uint8_t MeasuredDataModulationType = 0; ///< see Modulation
    float IdleActivity = 0, ActiveActivity = 0;  ///< percent
    float CDPThreshold = 0;
    std::int32_t GpsLatitude = 0, GpsLongitude = 0;
    std::int16_t GpsAltitude = 0;
    std::array<std::uint8_t, MACCodes> CDPMACType{};                                 ///< see CDMAChannelType
    std::array<float, MACCodes> CDPMACPower{};                                       ///< dB
    std::array<float, DataCodes> CDPDataI{}, CDPDataQ{};                             ///< dB
    std::array<float, CurvePoints> RFSpectrum{}, IdlePowerTime{}, ActivePowerTime{}; ///< dB
};

/// Bits of StatusByte1.
namespace EvDOStatus {
inline constexpr std::uint8_t RisingEdge = 1;
inline constexpr std::uint8_t MAC = 2;    ///< the MAC code domain, else the data codes
inline constexpr std::uint8_t Active = 4; ///< the active slot, else the idle one
inline constexpr std::uint8_t Idle = 8;   ///< no data were sent
} // namespace EvDOStatus

/// The level of a slot that wasn't captured.
inline constexpr float EvDONotCaptured = -199;

} // namespace Traces
