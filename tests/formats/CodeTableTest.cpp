#include "formats/CodeTable.h"

#include <gtest/gtest.h>
#include <optional>
#include <set>
#include <string>

namespace Traces {
namespace {

TEST(CodeTables, EveryRowGoesThereAndBack)
{
    const CodeTable* const tables[] = {
        &TerminationMode, &FramingMode,      &LineCoding,      &TxLevel,       &ClockSource,
        &LoopCode,        &LoopType,         &CRCType,         &E1T1Display,   &Impedance,
        &DataInversion,   &TestDuration,     &UpdateInterval,  &VFTermination, &VFImpedance,
        &SyncState,       &InterferenceType, &SweepTrigger,    &GSMDisplay,    &GSMUnits,
        &MeasurementType, &Modulation,       &CDMAChannelType, &TriggerMode,   &MeasurementStatus,
        &ValidState,      &TriggerEdge,      &LinkType,        &OnOff,         &AveragingLevel,
        &SignalStandard};
    for (const CodeTable* table : tables) {
        for (const CodeRow& row : table->Rows) {
            EXPECT_EQ(table->Text(row.Code), row.Text);
            EXPECT_EQ(table->Code(row.Text), row.Code) << row.Text;
        }
    }
}

TEST(CodeTables, ACodeOutsideTheTableReadsAsTheTableSays)
{
    const struct {
        const CodeTable& Table;
        int Code;
        std::string_view Text;
    } cases[] = {
        // two digits for bytes
        {OnOff, 2, "Unknown(02h)"},
        {OnOff, 200, "Unknown(C8h)"},
        {VFImpedance, 0, "Unknown(00h)"},
        {Modulation, 3, "Unknown(03h)"}, // bits are compared whole
        // plain digits for words
        {MeasurementStatus, 3, "Unknown(3h)"},
        {MeasurementStatus, 0x300, "Unknown(300h)"},
        {MeasurementStatus, -1, "Unknown(FFFFh)"},
        {MeasurementStatus, -32768, "Unknown(8000h)"},
        // texts of their own
        {AlarmState, 0, "None"},
        {AlarmState, 3, "Receiving E1 MMF error"},
        {AlarmState, 4, "None"},
        {AveragingLevel, 4, ""},
        {SignalStandard, 88, "802.11g"},
        {SignalStandard, 89, "N/A"},
        {SignalStandard, -1, "N/A"},
        // one bit alone counts
        {TriggerEdge, 0xFE, "Fall Edge"},
        {TriggerEdge, 0xFF, "Rise Edge"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.Table.Text(each.Code), each.Text) << each.Code;
}

TEST(CodeTables, ATextOutsideTheTableReadsAsTheDecimalNumberInIt)
{
    const struct {
        const CodeTable& Table;
        std::string_view Text;
        int Code;
    } cases[] = {
        // hexadecimal digits read as decimal ones
        {OnOff, "Unknown(12h)", 12},
        {OnOff, "Unknown(C8h)", 0},
        // only the exact word is a word
        {OnOff, "on", 0},
        {OnOff, "ON ", 0},
        {InterferenceType, "Unknown", 4},
        // the odd rows
        {ErrorInsertType, "BER", 0},
        {ErrorInsertType, "RAI", 4},
        {BERPattern, "3 in 8", 10},
        {BERPattern, "3 in 24", 3},
        {AlarmState, "Receiving AIS", 0},
        {AlarmState, "Receiving E1 MMF error", 2},
        {CDMADisplay, "Over the Air", 0},
        {VFImpedance, "100 Ohms", 0},
        {TxLevel, "-30 dB", 0}, // no code is negative
        {SignalStandard, "N/A", 0},
        {SignalStandard, "802.11n", 802}, // the number it begins with, rounded
        // the range of the code's type
        {OnOff, "Unknown(255)", 255},
        {OnOff, "Unknown(256)", 0},
        {OnOff, "Unknown(-1)", 0},
        {SignalStandard, "300", 300},
        {SignalStandard, "-1", -1},
        {MeasurementStatus, "-32768", -32768},
        {MeasurementStatus, "32768", 0},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.Table.Code(each.Text), each.Code) << each.Text;
}

TEST(CodeConverters, AnAbsentNumberIsNotAvailableBothWays)
{
    const std::pair<std::int16_t, std::string_view> texts[] = {
        {0, "0"}, {32767, "32767"}, {-1, "N/A"}, {-32768, "N/A"}};
    for (const auto& [value, text] : texts)
        EXPECT_EQ(NumberOrNA(value), text);

    const std::pair<std::string_view, std::optional<std::int16_t>> values[] = {
        {"N/A", -1}, {"  N/A ", -1}, {" 384 ", 384},     {"n/a", 0},
        {"", 0},     {"2.5", 2},     {"32767.4", 32767}, {"32768", std::nullopt}};
    for (const auto& [text, value] : values)
        EXPECT_EQ(NumberFromNA(text), value) << text;
}

TEST(CodeConverters, CDMAModeTextNamesTheOptionsOfItsTwoLowBits)
{
    EXPECT_EQ(CDMAModeText(0), "CDMA");
    EXPECT_EQ(CDMAModeText(1), "CDMA/OTA");
    EXPECT_EQ(CDMAModeText(2), "CDMA/RF");
    EXPECT_EQ(CDMAModeText(0xFF), "CDMA/OTA/RF");
}

TEST(CodeConverters, PowerWarningsComeFromOneBitAlone)
{
    std::set<std::string_view> warnings;
    for (std::string_view status : {"1", "2", "4", "8", "16"})
        warnings.insert(PowerWarningText(status));
    EXPECT_EQ(warnings.size(), 5U);
    EXPECT_EQ(PowerWarningText("8"), "Warning! Specified temperature range exceeded.");
    for (std::string_view status : {"", "0", "3", "32", " 1", "01"})
        EXPECT_EQ(PowerWarningText(status), "") << status;
}

TEST(CodeConverters, ChannelColoursHaveRedInTheLowByte)
{
    EXPECT_EQ(ChannelTypeColor(0), 0x0000FFU);
    EXPECT_EQ(ChannelTypeColor(5), 0x00B1FFU);
    for (const std::uint8_t cyan : std::initializer_list<std::uint8_t>{6, 8, 255})
        EXPECT_EQ(ChannelTypeColor(cyan), 0xFFFF00U) << int{cyan};
}

} // namespace
} // namespace Traces
