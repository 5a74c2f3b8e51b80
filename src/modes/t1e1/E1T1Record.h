// The decoded record of a line test: a bit error test with its histogram, a peak-to-peak level, or a voice
// frequency channel.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace Traces {

/// What went wrong in a slice of the test.
namespace SliceError {
inline constexpr std::uint8_t Any = 1, Crc = 2, Bpv = 4, FrameLoss = 8, CarrierLoss = 16;
}

struct Slice {
    std::uint8_t SliceFlags = 0; ///< SliceError bits
    std::int32_t SliceCount = 0; ///< bit errors
};

/// Settings are the words of their code tables; `LoopCode` and `LoopType` are the codes themselves.
struct E1T1Record {
    static constexpr std::size_t SliceRoom = 100;

    std::string ReceiveInput, FramingMode, LineCoding, TxLevel, ClockSource, ErrorInsertType;
    std::uint8_t LoopCode = 0, LoopType = 0;
    std::string CrcMethod, DisplayType, Impedance, Pattern, PatternInvert;
    std::int16_t InsertBitError = 0, InsertBpvError = 0, InsertFrameError = 0;
    std::string MeasurementDuration, HistogramResolution;
    std::string FrameSyncStatus, PatternSyncStatus, CarrierStatus;
    std::string RxAlarms; ///< a decimal number's text when a file gave one
    std::int32_t BpvErrorCount = 0, CrcErrorCount = 0, FrameErrorCount = 0, LofErrorCount = 0;
    std::int32_t EBitErrorCount = 0, ErroredSeconds = 0, BitCount = 0, BitErrors = 0, UserPattern = 0;
    /// Of fixed width, padded with blanks: 8, 11, 11 and 8 characters. `ElapsedTime` begins with the days.
    std::string StartTime, StopTime, ElapsedTime, BitErrorRate;
    std::array<Slice, SliceRoom> Slices;
    std::uint8_t VppScaling = 0; ///< 0 is volts peak to peak, any other dBdsx
    float VppLevel = 0;
    std::string VppImpedance, VppRxConfig;
    float ReceiveFreq = 0; ///< MHz
    std::int32_t GpsLatitude = 0, GpsLongitude = 0;
    std::int16_t GpsAltitude = 0;
    std::uint8_t ChannelInsertState = 0, ChannelNumber = 0; ///< of a DS0 or E0 channel
    std::int16_t AudioVolume = 0;                           ///< percent
    float SendLevel = 0;                                    ///< dBm
    std::int16_t SendFreq = 0;                              ///< Hz
    float ReceiveLevel = 0;                                 ///< dBm
    std::int16_t ReceiveToneFreq = 0;                       ///< Hz
    float Record687 = 0;                                    ///< read and kept; nothing shows or sends it
    std::int16_t DegradedMinutes = 0;
    std::int32_t SeverelyErroredSeconds = 0, UnavailableSeconds = 0;
};

} // namespace Traces
