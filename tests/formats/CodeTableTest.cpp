#include "formats/CodeTable.h"

#include <gtest/gtest.h>
#include <optional>
#include <set>
#include <string>

namespace Traces {
namespace {

struct NamedTable {
    std::string_view Name;
    const CodeTable& Table;
    std::size_t RowCount;
    CodeRow LastRow; // tells the tables apart
};

const NamedTable tables[] = {
    {"TerminationMode", TerminationMode, 3, {2, "Monitor"}},
    {"FramingMode", FramingMode, 6, {6, "PCM31CRC"}},
    {"LineCoding", LineCoding, 3, {3, "HDB3"}},
    {"TxLevel", TxLevel, 3, {3, "-15 dB"}},
    {"ClockSource", ClockSource, 2, {1, "Internal"}},
    {"ErrorInsertType", ErrorInsertType, 6, {5, "AIS"}},
    {"LoopCode", LoopCode, 4, {3, "User 2"}},
    {"LoopType", LoopType, 2, {1, "Data Link"}},
    {"CRCType", CRCType, 2, {1, "Japanese CRC"}},
    {"E1T1Display", E1T1Display, 4, {3, "VF Testor"}},
    {"Impedance", Impedance, 2, {2, "120 Ohm"}},
    {"BERPattern", BERPattern, 14, {14, "User Defined"}},
    {"AlarmState", AlarmState, 3, {3, "Receiving E1 MMF error"}},
    {"DataInversion", DataInversion, 2, {1, "Inverted"}},
    {"TestDuration", TestDuration, 10, {9, "2 days"}},
    {"UpdateInterval", UpdateInterval, 10, {9, "60 min."}},
    {"VFTermination", VFTermination, 2, {1, "Bridged"}},
    {"VFImpedance", VFImpedance, 2, {2, "120 Ohms"}},
    {"SyncState", SyncState, 2, {1, "Out-of-Sync"}},
    {"InterferenceType", InterferenceType, 6, {255, "Interference Analysis Measurement OFF"}},
    {"SweepTrigger", SweepTrigger, 4, {3, "External"}},
    {"GSMDisplay", GSMDisplay, 3, {2, "Slot View"}},
    {"GSMUnits", GSMUnits, 2, {1, "Watts"}},
    {"CDMADisplay", CDMADisplay, 4, {3, "RF Measurement"}},
    {"MeasurementType", MeasurementType, 5, {4, "RF Measurement"}},
    {"Modulation", Modulation, 5, {8, "Idle"}},
    {"CDMAChannelType", CDMAChannelType, 8, {7, "NOISE"}},
    {"TriggerMode", TriggerMode, 5, {4, "Untriggered"}},
    {"MeasurementStatus", MeasurementStatus, 10, {1024, "No External Trigger"}},
    {"ValidState", ValidState, 2, {255, "In Progress/Invalid"}},
    {"TriggerEdge", TriggerEdge, 2, {1, "Rise Edge"}},
    {"LinkType", LinkType, 4, {3, "Both"}},
    {"OnOff", OnOff, 2, {1, "ON"}},
    {"AveragingLevel", AveragingLevel, 4, {3, "High"}},
    {"SignalStandard", SignalStandard, 88, {88, "802.11g"}},
};

// The rows whose text doesn't lead back to their own code.
struct OneWayRow {
    const CodeTable& Table;
    int Code;
    int CodeBack;
};

const OneWayRow oneWayRows[] = {
    {ErrorInsertType, 3, 0}, {BERPattern, 10, 3}, {AlarmState, 1, 0},  {AlarmState, 2, 1},
    {AlarmState, 3, 2},      {CDMADisplay, 1, 0}, {CDMADisplay, 2, 0}, {CDMADisplay, 3, 0},
};

int ExpectedCodeBack(const CodeTable& table, int code)
{
    for (const OneWayRow& row : oneWayRows)
        if (&row.Table == &table && row.Code == code)
            return row.CodeBack;
    return code;
}

TEST(CodeTables, EachHoldsItsOwnRows)
{
    for (const NamedTable& each : tables) {
        SCOPED_TRACE(each.Name);
        ASSERT_EQ(each.Table.Rows.size(), each.RowCount);
        EXPECT_EQ(each.Table.Text(each.LastRow.Code), each.LastRow.Text);
    }
}

TEST(CodeTables, EveryRowGoesThereAndBackButForTheOneWayRows)
{
    for (const NamedTable& each : tables) {
        for (const CodeRow& row : each.Table.Rows) {
            SCOPED_TRACE(std::string(each.Name) + " " + std::to_string(row.Code));
            EXPECT_EQ(each.Table.Text(row.Code), row.Text);
            EXPECT_EQ(each.Table.Code(row.Text), ExpectedCodeBack(each.Table, row.Code));
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
        {ErrorInsertType, 255, "Unknown(FFh)"},
        {VFImpedance, 0, "Unknown(00h)"},
        {Modulation, 3, "Unknown(03h)"}, // bits are compared whole
        // plain digits for words
        {MeasurementStatus, 3, "Unknown(3h)"},
        {MeasurementStatus, 0x3C, "Unknown(3Ch)"},
        {MeasurementStatus, 0x300, "Unknown(300h)"},
        {MeasurementStatus, -1, "Unknown(FFFFh)"},
        {MeasurementStatus, -32768, "Unknown(8000h)"},
        // texts of their own
        {AlarmState, 0, "None"},
        {AlarmState, 4, "None"},
        {AveragingLevel, 4, ""},
        {SignalStandard, 0, "N/A"},
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
        {OnOff, "Unknown(0Ch)", 0},
        {OnOff, "Unknown(12h)", 12},
        {OnOff, "Unknown(C8h)", 0},
        {MeasurementStatus, "Unknown(300h)", 300},
        // only the exact word is a word
        {OnOff, "", 0},
        {OnOff, "on", 0},
        {OnOff, "ON ", 0},
        {OnOff, "1", 1},
        {InterferenceType, "Unknown", 4},
        {InterferenceType, "Unknown(05h)", 5},
        // the odd rows
        {ErrorInsertType, "BER", 0},
        {BERPattern, "3 in 8", 10},
        {AlarmState, "None", 0},
        {VFImpedance, "100 Ohms", 0},
        {TxLevel, "-30 dB", 0}, // no code is negative
        {SignalStandard, "N/A", 0},
        {SignalStandard, "GSM 850", 0},
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
    const struct {
        std::int16_t Value;
        std::string_view Text;
    } texts[] = {{0, "0"}, {32767, "32767"}, {-1, "N/A"}, {-32768, "N/A"}};
    for (const auto& each : texts)
        EXPECT_EQ(NumberOrNA(each.Value), each.Text);

    const struct {
        std::string_view Text;
        std::optional<std::int16_t> Value;
    } values[] = {{"N/A", -1}, {"  N/A ", -1}, {" 384 ", 384},     {"n/a", 0},
                  {"", 0},     {"2.5", 2},     {"32767.4", 32767}, {"32768", std::nullopt}};
    for (const auto& each : values)
        EXPECT_EQ(NumberFromNA(each.Text), each.Value) << each.Text;
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
    EXPECT_EQ(ChannelTypeColor(1), 0x00FF00U);
    EXPECT_EQ(ChannelTypeColor(2), 0xFF0000U);
    EXPECT_EQ(ChannelTypeColor(5), 0x00B1FFU);
    EXPECT_EQ(ChannelTypeColor(7), 0xD8D8D8U);
    for (const std::uint8_t cyan : std::initializer_list<std::uint8_t>{6, 8, 255})
        EXPECT_EQ(ChannelTypeColor(cyan), 0xFFFF00U) << int{cyan};
}

} // namespace
} // namespace Traces
