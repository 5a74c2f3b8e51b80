// The one-byte measurement mode code of a trace and what goes by it alone: names, file extension, save
// dialog filter. What a mode does is in the rows of control/ModeTable.cpp.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Traces {

/// Codes of the modes, as the header's mode byte holds them.
namespace TraceMode {
inline constexpr std::uint8_t RLFrequency = 0, SWRFrequency = 1, CableLossFrequency = 2, RLDistance = 16,
                              SWRDistance = 17, Spectrum = 48, ChannelScanner = 57, PowerMeter = 64,
                              PowerMonitor = 65, HighAccuracyPower = 67, Spectrogram = 87, T1 = 96, E1 = 112,
                              CDMA = 144, GSM = 145, EvDO = 146, IDEN = 147, GPSTester = 148;

/// A mode without a name that text files alone bring: the VNA view draws it, no raw buffer decodes.
inline constexpr std::uint8_t VNAUnnamed = 7;

/// One sweep of a spectrogram, the map's other picture. No trace has it.
inline constexpr std::uint8_t SpectrogramSweep = 89;
} // namespace TraceMode

/// What the save dialog offers for a mode; all empty for a mode without a filter of its own.
struct SaveFilter {
    std::string_view Text;             ///< "VNA Trace Files (*.vna)"
    std::string_view Pattern;          ///< "*.vna"
    std::string_view DefaultExtension; ///< "vna"
};

/// Whether the code has a row of names.
bool IsNamedMode(int mode);

/// "RL Frequency" and so on; "Unknown(" two hexadecimal digits ")" for a code outside the table.
std::string ModeName(std::uint8_t mode);

/// The code of exactly this name. The channel scanner and the spectrogram aren't found by name and read as
/// 0: their text loaders set the mode themselves. Any other text reads as the decimal number in it, even
/// though ModeName wrote hexadecimal digits there: "Unknown(31)" is 31, "Unknown(1A)" is 1; 0 when there is
/// none from 0 to 255.
std::uint8_t ModeCode(std::string_view name);

/// Short family name for hosts ("RL", "SPA"); empty for modes without one. Hosts depend on a distance
/// sweep of the return loss being "CL".
std::string_view TraceTypeName(std::uint8_t mode);

/// ".VNA" and so on; empty for modes that are saved without one.
std::string_view ModeExtension(std::uint8_t mode);

SaveFilter ModeSaveFilter(std::uint8_t mode);

} // namespace Traces
