#include "formats/Text.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

using namespace std::string_literals;

using TextCase = std::pair<std::string, std::string>; // given and expected

TEST(Text, LosesZeroCharactersAndBlanks)
{
    for (const auto& [given, expected] : std::initializer_list<TextCase>{
             {""s, ""},
             {"   "s, ""},
             {" a b "s, "a b"},
             {" ab \0cd"s, "ab"},
             {"\0ab"s, ""},
             {"\tab"s, "\tab"},
         })
        EXPECT_EQ(CutAtNul(given), expected) << given;
    for (const auto& [given, expected] : std::initializer_list<TextCase>{
             {""s, ""},
             {"\0 a\0b \0"s, "ab"},
             {" \0 "s, ""},
             {"a b"s, "a b"},
         })
        EXPECT_EQ(TrimNuls(given), expected) << given;
}

TEST(Text, IsPaddedOrCutToAWidth)
{
    EXPECT_EQ(PadWithBlanks(" a\0b\0"s), "ab   ");
    EXPECT_EQ(PadWithBlanks(""), "");
    EXPECT_EQ(FixedText("abc", 5), "abc  ");
    EXPECT_EQ(FixedText("abcdef", 5), "abcde");
}

TEST(Text, GivesThePartsOfAPath)
{
    struct Case {
        std::string_view Path, Stripped, Base, Extension;
    };
    for (const auto& [path, stripped, base, extension] : std::initializer_list<Case>{
             {"", "", "", ""},
             {"C:\\t\\a.b.spa", "a", "ab", "B.SPA"},
             {"C:\\t.x\\name", "name", "", "X\\NAME"},
             {"REF 01.vna", "REF 01", "REF 01", "VNA"},
             {"plain", "plain", "", ""},
             {"t\\", "", "", ""},
             {"a..b", "a", "a", ".B"},
             {"a/b.c", "a/b", "a/b", "C"},
             {"x.\xE4z", "x", "x", "\xE4Z"},
         }) {
        SCOPED_TRACE(path);
        EXPECT_EQ(StripToBaseName(path), stripped);
        EXPECT_EQ(FileBaseName(path), base);
        EXPECT_EQ(FileExtension(path), extension);
    }
}

TEST(Text, GivesTheCodeInBrackets)
{
    for (const auto& [text, code] : std::initializer_list<std::pair<std::string_view, int>>{
             {"Unknown(12)", 12},
             {"Unknown(1Fh)", 1}, // decimal: what the tables write in hexadecimal comes back so
             {"Unknown(0Dh)", 0},
             {"7", 7},
             {"-3.5", -4},
             {"a(2)(5)", 2},
             {"", 0},
             {"Unknown()", 0},
             {"(32767.4", 32767},
             {"(32768", 0},
         })
        EXPECT_EQ(ParseUnknownCode(text), code) << text;
}

TEST(Text, ShowsBytesAndBits)
{
    EXPECT_EQ(HexByte(0xA5), "A5");
    EXPECT_EQ(BitGroupsText(5), "0000 0101");
    EXPECT_EQ(BitGroupsText(255), "1111 1111");
    EXPECT_EQ(BitGroupsText(256), "0000 0001 0000 0000");
    EXPECT_EQ(BitGroupsText(0x8001), "1000 0000 0000 0001");
}

TEST(Text, KeepsAllByteValuesThroughUtf8)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        EXPECT_EQ(AnsiFromUtf8(Utf8FromAnsi(one)), one) << byte;
    }
    EXPECT_EQ(Utf8FromAnsi("\x80 5\xB0 \xE4\xFF"), "\xE2\x82\xAC 5\xC2\xB0 \xC3\xA4\xC3\xBF"); // Euro, degree
    EXPECT_EQ(Utf8FromAnsi("\x8A\x99\x9F\x81"), "\xC5\xA0\xE2\x84\xA2\xC5\xB8\xC2\x81");
}

TEST(Text, MarksWhatWindowsHasNoCharacterFor)
{
    for (const auto& [utf8, ansi] : std::initializer_list<TextCase>{
             {"\xCE\xA9"s, "?"},           // Omega
             {"\xF0\x9F\x98\x80x"s, "?x"}, // outside the first plane
             {"\xC2\x80"s, "?"},           // a control whose byte is the Euro
             {"\xE2\x82"s, "?"},           // cut off
             {"\xE2\x82x"s, "?x"},
             {"\xB0"s, "?"}, // no first byte
             {"\xFFx"s, "?x"},
             {"\xC1\x81"s, "?"}, // longer than needed
             {"\xE0\x81\x81"s, "?"},
         })
        EXPECT_EQ(AnsiFromUtf8(utf8), ansi);
}

} // namespace
} // namespace Traces
