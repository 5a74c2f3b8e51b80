// The tables between the small codes of raw traces and the words of parameter lines: one form for all
// of them. The signal standards are one of them; the measurement modes are in TraceMode.h.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Traces {

struct CodeRow {
    int Code;
    std::string_view Text;
};

/// A table of codes and texts. `OnOff.Text(1)` is "ON", `OnOff.Code("ON")` is 1.
struct CodeTable {
    /// What a code outside the table reads as.
    enum class Unknown {
        HexByte,   ///< "Unknown(", two digits of the low byte, "h)"
        HexDigits, ///< "Unknown(", the digits of the low 16 bits without leading zeros, "h)"
        FixedText, ///< the text in `Otherwise`
    };

    std::span<const CodeRow> Rows = {};     ///< code to text
    std::span<const CodeRow> TextRows = {}; ///< text to code; empty where a text never leads back
    Unknown OtherCodes = Unknown::HexByte;
    std::string_view Otherwise = {};
    int CodeMask = -1; ///< bits that count in a code to be looked up
    /// Range of a code's type. A number in an unknown text outside it is no code and reads as 0.
    int SmallestCode = 0, LargestCode = 255;

    std::string Text(int code) const;

    /// The code of exactly this text; for any other text what ParseUnknownCode reads in it, or 0 when that
    /// is out of the codes' range. Hexadecimal digits of an "Unknown(" text count as decimal ones there, so
    /// "Unknown(12h)" is 12 and "Unknown(C8h)" is 0: saved files hold such texts and upload that way.
    int Code(std::string_view text) const;
};

/// @name T1/E1 line tester
/// @{
extern const CodeTable TerminationMode;
extern const CodeTable FramingMode;
extern const CodeTable LineCoding;
extern const CodeTable TxLevel;
extern const CodeTable ClockSource;
extern const CodeTable ErrorInsertType; ///< "BER" has no way back and reads as 0
extern const CodeTable LoopCode;
extern const CodeTable LoopType;
extern const CodeTable CRCType;
extern const CodeTable E1T1Display;
extern const CodeTable Impedance;  ///< the spectrum analyzer's upload frame has it too
extern const CodeTable BERPattern; ///< code 10 is "3 in 24", but its way back is "3 in 8"
/// "None" for any other code; a text leads back to a code one lower than its own.
extern const CodeTable AlarmState;
extern const CodeTable DataInversion;
extern const CodeTable TestDuration;
extern const CodeTable UpdateInterval;
extern const CodeTable VFTermination;
extern const CodeTable VFImpedance; ///< the text "100 Ohms" is 0, a code without a text
extern const CodeTable SyncState;
/// @}

/// @name Spectrum and GSM
/// @{
extern const CodeTable InterferenceType;
extern const CodeTable SweepTrigger;
extern const CodeTable GSMDisplay;
extern const CodeTable GSMUnits;
/// @}

/// @name CDMA and EV-DO
/// @{
extern const CodeTable CDMADisplay; ///< code to text only
extern const CodeTable MeasurementType;
extern const CodeTable Modulation; ///< codes are single bits
extern const CodeTable CDMAChannelType;
extern const CodeTable TriggerMode;
/// Signed 16-bit codes, single bits; an unknown code shows plain hexadecimal digits.
extern const CodeTable MeasurementStatus;
extern const CodeTable ValidState;
extern const CodeTable TriggerEdge; ///< of a code only bit 0 counts
/// @}

/// @name Power modes
/// @{
extern const CodeTable LinkType;
extern const CodeTable OnOff;
extern const CodeTable AveragingLevel; ///< an empty text for any other code
/// @}

/// The instruments' 88 signal standards, codes 1 to 88 of signed 16 bits; any other code reads "N/A".
extern const CodeTable SignalStandard;

/// Plain digits of a value that isn't negative, else "N/A".
std::string NumberOrNA(std::int16_t value);

/// -1 for "N/A", else the number that the trimmed text begins with (0 without one), rounded; nothing when
/// that doesn't fit 16 bits.
std::optional<std::int16_t> NumberFromNA(std::string_view text);

/// "CDMA", then "/OTA" for bit 0 and "/RF" for bit 1.
std::string CDMAModeText(std::uint8_t options);

/// The warning for a high accuracy power meter's error status "1", "2", "4", "8" or "16"; empty for any other
/// text, two bits at once included.
std::string_view PowerWarningText(std::string_view status);

/// Bar colour of a CDMA channel type, red in the low byte; cyan for an unknown type.
std::uint32_t ChannelTypeColor(std::uint8_t type);

} // namespace Traces
