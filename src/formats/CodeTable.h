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
        HexByte,    ///< "Unknown(" two digits "h)"
        HexDigits,  ///< "Unknown(" plain hexadecimal digits "h)", for 16-bit codes
        FixedText,  ///< the text in `Otherwise`
    };

    std::span<const CodeRow> Rows;      ///< code to text
    std::span<const CodeRow> TextRows;  ///< text to code, where it differs from Rows; else empty
    Unknown OtherCodes = Unknown::HexByte;
    std::string_view Otherwise = {};
    int CodeMask = -1;      ///< bits of a code that count
    int LargestCode = 255;  ///< a number in an unknown text beyond it (or below 0) is no code and reads as 0

    std::string Text(int code) const;

    /// The code of exactly this text; for any other text what ParseUnknownCode reads in it, which takes
    /// the hexadecimal digits of an "Unknown(" text as decimal ones: instruments' files depend on it.
    int Code(std::string_view text) const;
};

extern const CodeTable TerminationMode, FramingMode, LineCoding, TxLevel, ClockSource, ErrorInsertType, LoopCode,
    LoopType, CRCType, E1T1Display, GSMDisplay, CDMADisplay, MeasurementType, Modulation, Impedance, BERPattern,
    AlarmState, DataInversion, InterferenceType, TestDuration, UpdateInterval, VFTermination, VFImpedance, SyncState,
    GSMUnits, CDMAChannelType, LinkType, OnOff, AveragingLevel, TriggerMode, MeasurementStatus, ValidState,
    TriggerEdge, SweepTrigger;

/// The instruments' 88 signal standards, codes 1 to 88; any other code reads "N/A".
extern const CodeTable SignalStandard;

/// Plain digits of a value that isn't negative, else "N/A".
std::string NumberOrNA(std::int16_t value);

/// -1 for "N/A", else the value of the trimmed text; nothing when it doesn't fit 16 bits.
std::optional<std::int16_t> NumberFromNA(std::string_view text);

/// "CDMA", then "/OTA" for bit 0 and "/RF" for bit 1.
std::string CDMAModeText(std::uint8_t options);

/// The warning for a high accuracy power meter's status number, empty for none.
std::string_view PowerWarningText(std::string_view status);

/// Bar colour of a CDMA channel type, red in the low byte.
std::uint32_t ChannelTypeColor(std::uint8_t type);

} // namespace Traces
