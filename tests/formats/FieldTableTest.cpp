#include "formats/FieldTable.h"

#include "formats/HostFault.h"
#include "support/RawBuilder.h"

#include <array>
#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::RawBuilder;

struct Pair {
    float First = 0;
    std::int16_t Second = 0;
};

struct Sample {
    float Frequency = 0;
    double Power = 0;
    std::int32_t Limit = 0;
    std::int16_t Level = 0;
    std::array<std::uint8_t, 2> Status{};
    std::array<Pair, 2> Pairs{};
    std::string Name, State, Serial;
};

constexpr int FirstOffset = 11;

// clang-format off
constexpr auto SampleFields = std::to_array<Field<Sample>>({
    {11, Read::U32, 1'000'000, At<&Sample::Frequency>, "Frequency:"},
    {15, Read::I32, 1000, At<&Sample::Power>, "Power:", nullptr, -270},
    {19, Read::I32, 1, At<&Sample::Limit>, "Limit:"},
    {23, Read::I16, 1, At<&Sample::Level>, "Level:"},
    {25, Read::Byte, 1, At<&Sample::Status, 1>, "Status 2:"},
    {26, Read::U16, 10, At<&Sample::Pairs, 1, &Pair::First>, "Pair 2:"},
    {28, Read::Byte, 1, At<&Sample::State>, "State:", &OnOff},
    {29, Read::Chars, 1, At<&Sample::Name>, "Name:", nullptr, 0, 6},
    {35, Read::U32, 1, At<&Sample::Serial>, "Serial:"},
});
// clang-format on
static_assert(FieldsFit(SampleFields));

RawBuilder RawSample()
{
    RawBuilder raw(40);
    raw.Number(11, 4, 3'000'000'000).Number(15, 4, 150'500).Number(19, 4, -7).Number(23, 2, -300);
    raw.Number(25, 1, 200).Number(26, 2, 65'535).Number(28, 1, 1).Text(29, "AB").Number(35, 4, 4'294'967'295);
    return raw;
}

Sample Decoded(const RawBuilder& raw)
{
    Sample record;
    DecodeFields(RawBuffer(raw.Bytes()), record, SampleFields);
    return record;
}

constexpr std::string_view SampleLines =
    "Frequency:\t3000\r\nPower:\t-119.5\r\nLimit:\t-7\r\nLevel:\t-300\r\n"
    "Status 2:\t200\r\nPair 2:\t6553.5\r\nState:\tON\r\n"
    "Name:\tAB    \r\nSerial:\t4294967295\r\n";

TEST(FieldTables, DecodeEachReaderToItsMemberAndListThemInTheOrderOfTheRows)
{
    RawBuilder raw = RawSample();
    raw.Text(31, "    ");
    const Sample record = Decoded(raw);
    ParameterList lines;
    AddParamLines(lines, record, SampleFields);
    EXPECT_EQ(lines.Text(), SampleLines);
    EXPECT_EQ(record.Status[0], 0) << "not the element of the row";
    EXPECT_EQ(record.Pairs[0].First, 0);
    EXPECT_EQ(Decoded(RawBuilder(10)).Power, -270) << "what a short buffer lacks is zero before the offset";
    EXPECT_EQ(Decoded(RawBuilder(10)).Name, "      ");
    EXPECT_EQ(Decoded(RawSample().Number(28, 1, 200)).State, "Unknown(C8h)");
}

TEST(FieldTables, EncodingUndoesTheDecode)
{
    RawBuilder raw = RawSample();
    raw.Text(31, "    ");
    const std::string fields = raw.AsText().substr(FirstOffset - 1, 28);
    UploadFrame frame(28);
    EncodeFields(frame, Decoded(raw), SampleFields, FirstOffset - 1);
    EXPECT_EQ(frame.Bytes(), fields);

    const std::string file = "\r\n" + std::string(SampleLines);
    UploadFrame ofFile(28);
    EncodeFieldTexts(ofFile, TraceText(file), SampleFields, FirstOffset - 1);
    EXPECT_EQ(ofFile.Bytes(), fields);

    UploadFrame ofNothing(28);
    EncodeFieldTexts(ofNothing, TraceText(""), SampleFields, FirstOffset - 1);
    EXPECT_EQ(ofNothing.Bytes(), RawBuilder(28).Number(5, 4, 270'000).Text(19, "      ").AsText())
        << "a missing line is a 0 before the offset is undone";

    Sample large = Decoded(raw);
    large.State = "Unknown(256h)";
    UploadFrame ofLarge(28);
    EncodeFields(ofLarge, large, SampleFields, FirstOffset - 1);
    EXPECT_EQ(ofLarge.Bytes()[17], '\0') << "a code that doesn't fit is 0";
    UploadFrame tooShort(23);
    EXPECT_THROW(EncodeFields(tooShort, large, SampleFields, FirstOffset - 1), HostFault);
}

TEST(FieldTables, ALoadKeepsWhatIsMissingOrDoesNotFit)
{
    const struct {
        const char* Line;
        Through Way;
        std::int32_t Limit;
        std::int16_t Level;
        int Status;
    } cases[] = {
        {"Limit:\t16777217", Through::FieldType, 16777217, 2, 3},
        {"Limit:\t16777217", Through::Float, 16777216, 2, 3}, // 24 bits of a float's mantissa
        {"Limit:\t2147483647", Through::Float, 1, 2, 3},      // rounds to what no longer fits
        {"Level:\t&hFFFF", Through::FieldType, 1, -1, 3},
        {"Level:\t&hFFFF", Through::Float, 1, 2, 3}, // 65535 as a float
        {"Level:\t32768", Through::FieldType, 1, 2, 3},
        {"Level:\t3.5", Through::FieldType, 1, 4, 3},
        {"Status 2:\t256", Through::FieldType, 1, 2, 3},
        {"Status 2:\t-1", Through::Float, 1, 2, 3},
        {"Status 2:\t255", Through::Float, 1, 2, 255},
        {"Status 2:\ttwo", Through::Float, 1, 2, 3},
    };
    for (const auto& each : cases) {
        Sample record;
        record.Limit = 1;
        record.Level = 2;
        record.Status[1] = 3;
        const std::string file = std::string("\r\n") + each.Line + "\r\n";
        LoadFields(TraceText(file), record, SampleFields, each.Way);
        EXPECT_EQ(record.Limit, each.Limit) << each.Line;
        EXPECT_EQ(record.Level, each.Level) << each.Line;
        EXPECT_EQ(record.Status[1], each.Status) << each.Line;
    }
    Sample record = Decoded(RawSample());
    LoadFields(TraceText("\nFrequency:\t1E39\r\nPower:\t1E39\r\nName:\t\r\n"), record, SampleFields,
               Through::FieldType);
    EXPECT_EQ(record.Frequency, 3000) << "beyond a float";
    EXPECT_EQ(record.Power, 1E39);
    EXPECT_EQ(record.Name, "") << "a text without a value is emptied";
    EXPECT_EQ(record.State, "") << "and so is one without a line";
}

TEST(FieldTables, ARawNumberThatDoesNotFitKeepsItsField)
{
    const RawBuilder raw = RawBuilder(8).Number(1, 4, 4'294'967'295).Number(5, 2, 300);
    const RawBuffer buffer(raw.Bytes());
    std::int32_t whole = 5;
    DecodeField(buffer, {1, Read::U32}, &whole);
    EXPECT_EQ(whole, 5);
    std::uint8_t byte = 6;
    DecodeField(buffer, {5, Read::U16}, &byte);
    EXPECT_EQ(byte, 6);
    DecodeField(buffer, {5, Read::U16, 2}, &byte);
    EXPECT_EQ(byte, 150);
    std::string text = "kept";
    DecodeField(buffer, {1, Read::U32, 1, 0, &OnOff}, &text);
    EXPECT_EQ(text, "kept") << "no table has such a code";
    DecodeField(buffer, {32767, Read::U16}, &byte);
    DecodeField(buffer, {32760, Read::Chars, 1, 0, nullptr, 8}, &text);
    EXPECT_EQ(byte, 150) << "beyond 16-bit offsets";
    EXPECT_EQ(text, "kept");
}

template <std::size_t Count>
constexpr bool Fits(const Field<Sample> (&rows)[Count])
{
    return FieldsFit(std::to_array(rows));
}

TEST(FieldTables, OverlapsAndRepeatedKeysAreFoundOut)
{
    constexpr Field<Sample> first = {11, Read::U32, 1, At<&Sample::Frequency>, "Frequency:"};
    constexpr Field<Sample> name = {15, Read::Chars, 1, At<&Sample::Name>, "Name:", nullptr, 0, 6};
    constexpr auto level = [](int offset, std::string_view key) {
        return Field<Sample>{offset, Read::I16, 1, At<&Sample::Level>, key};
    };
    EXPECT_TRUE(Fits({first, level(15, "Level:")}));
    EXPECT_FALSE(Fits({first, level(14, "Level:")})) << "the last byte is shared";
    EXPECT_FALSE(Fits({first, level(10, "Level:")})) << "not in raw order";
    EXPECT_FALSE(Fits({first, name, level(20, "Level:")})) << "inside of a text";
    EXPECT_TRUE(Fits({first, name, level(21, "Level:")}));
    EXPECT_FALSE(Fits({first, level(15, "Level:"), level(17, "Frequency:")})) << "the key again";
}

} // namespace
} // namespace Traces
