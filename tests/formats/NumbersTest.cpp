#include "formats/Numbers.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <gtest/gtest.h>
#include <random>

namespace Traces {
namespace {

template <class T>
using Limits = std::numeric_limits<T>;

template <class T>
using TextCase = std::pair<T, const char*>;

TEST(NumberText, WritesFloatsInSevenDigits)
{
    for (const auto& [value, text] : std::initializer_list<TextCase<float>>{
             {0.0F, "0"},
             {-0.0F, "-0"},
             {-9999999, "-9999999"},
             {12345678, "1.234568E+07"},
             {10000000, "1E+07"},
             {9999999.5F, "1E+07"}, // an exact tie, rounded up across the form
             {0.0001F, "0.0001"},
             {0.00009999999F, "9.999999E-05"},
             {1048576.5F, "1048576"}, // exact ties go to the even digit
             {1048577.5F, "1048578"},
             {Limits<float>::max(), "3.402823E+38"},
             {-Limits<float>::denorm_min(), "-1.401298E-45"},
             {Limits<float>::infinity(), "INF"},
             {-Limits<float>::infinity(), "-INF"},
             {-Limits<float>::quiet_NaN(), "NAN"},
         }) {
        EXPECT_EQ(NumberText(value), text);
        std::string line = "key\t";
        AppendNumberText(line, value);
        EXPECT_EQ(line, std::string("key\t") + text);
    }
}

TEST(NumberText, WritesDoublesInFifteenDigits)
{
    for (const auto& [value, text] : std::initializer_list<TextCase<double>>{
             {0.1 + 0.2, "0.3"},
             {1.0 / 3, "0.333333333333333"},
             {123456789.123456789, "123456789.123457"},
             {100000000000000, "100000000000000"},
             {1e15, "1E+15"},
             {123456789012345678.0, "1.23456789012346E+17"},
             {-0.00012345678901234567, "-0.000123456789012346"},
             {5e-324, "4.94065645841247E-324"},
             {Limits<double>::infinity(), "INF"},
             {Limits<double>::quiet_NaN(), "NAN"},
         })
        EXPECT_EQ(NumberText(value), text);
}

// The fast ways for common floats against the exact ones of the standard library.
TEST(NumberText, AgreesWithExactConversionBothWays)
{
    std::mt19937 random(1);
    const auto check = [](float value) {
        std::array<char, 64> exact{};
        const auto end =
            std::to_chars(exact.data(), exact.data() + 64, value, std::chars_format::general, 7).ptr;
        std::string expected(exact.data(), end);
        std::replace(expected.begin(), expected.end(), 'e', 'E');
        ASSERT_EQ(NumberText(value), expected);
        float nearest = 0;
        if (std::from_chars(exact.data(), end, nearest).ec == std::errc()) {
            ASSERT_EQ(StrictNumber<float>(expected), nearest) << expected;
        }
    };
    for (int i = 0; i < 50000; ++i) {
        const float anyBits = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (std::isfinite(anyBits))
            check(anyBits);
        const auto raw = static_cast<std::int32_t>(random());
        check(static_cast<float>(raw) / 1000);
        check(static_cast<float>(raw) / 1024); // often near an exact tie
    }
}

TEST(NumberText, WritesIntegersOfAllWidths)
{
    EXPECT_EQ(NumberText(Limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(NumberText(std::int16_t{-32768}), "-32768");
    EXPECT_EQ(NumberText(std::uint8_t{65}), "65");
    EXPECT_EQ(SignedNumberText(0), " 0");
    EXPECT_EQ(SignedNumberText(-1), "-1");
}

void ExpectValues(std::initializer_list<std::pair<std::string_view, double>> cases)
{
    for (const auto& [text, value] : cases)
        EXPECT_EQ(ValueOf(text), value) << text;
}

TEST(ValueOf, ReadsTheNumberThatATextBeginsWith)
{
    ExpectValues({{"", 0}, {"dBm", 0}, {"-", 0}, {".", 0}, {"E5", 0}, {"+.5", 0.5}, {"5.", 5}});
    ExpectValues({{"1.2.3", 1.2}, {"1-2", 1}, {"1,000", 1}, {"1\r2", 1}, {std::string_view("1\0002", 3), 1}});
    ExpectValues({{" \t\n-1 2\n.\t5 ", -12.5}, {"1 E 3", 1000}, {"1d+2", 100}, {"25e-1x", 2.5}});
    ExpectValues({{"12.5 dBm", 12.5}, {"2E", 2}, {"2E+", 2}}); // no digits follow, so no exponent
    ExpectValues({{"1e-999", 0},
                  {"1e999", Limits<double>::max()},
                  {"-1e99999999999999999999", -Limits<double>::max()}});
}

TEST(ValueOf, TakesPrefixedNumbersWithoutSign)
{
    ExpectValues(
        {{"&hFF", 255}, {" & H f f g", 255}, {"&hFFFF", 65535}, {"&hFFFFFFFF", 4294967295}, {"&o178", 15}});
    ExpectValues({{"&h", 0}, {"&", 0}, {"&12", 0}, {"-&h10", 0}});
    EXPECT_EQ(ValueOf("&h" + std::string(400, 'F')), Limits<double>::max());
}

template <class T>
void ExpectNumbers(std::initializer_list<TextCase<T>> cases)
{
    for (const auto& [value, text] : cases)
        EXPECT_EQ(StrictNumber<T>(text), value) << text;
}

template <class T>
void ExpectNoNumbers(std::initializer_list<std::string_view> texts)
{
    for (const auto text : texts)
        EXPECT_EQ(StrictNumber<T>(text), std::nullopt) << text;
}

TEST(StrictNumber, ReadsIntegersRoundingHalvesToEven)
{
    ExpectNumbers<std::uint8_t>({{0, "-0.5"}, {255, "255.4"}, {255, "&hff"}, {100, "1e2"}});
    ExpectNumbers<std::int16_t>({{501, "501"}, {2, "2.5"}, {4, "3.5"}, {-2, "-2.5"}, {32767, "+32767"}});
    ExpectNumbers<std::int16_t>({{-1, "&hFFFF"}, {-32768, "&h8000"}, {32767, "&H7fff"}, {15, "&o17"}});
    ExpectNumbers<std::int32_t>(
        {{65535, "&hFFFF"}, {-1, "&hFFFFFFFF"}, {255, "&h0000000FF"}, {-2147483647 - 1, "-2147483648"}});
    ExpectNoNumbers<std::uint8_t>({"-1", "255.5", "256", "&h100"});
    ExpectNoNumbers<std::int16_t>({"32768", "-32769", "&h0FFFF", "&o177777", "1e5", "1e400"});
    ExpectNoNumbers<std::int32_t>({"2147483648", "&h1FFFFFFFF"});
}

TEST(StrictNumber, ReadsFloatsAndDoubles)
{
    ExpectNumbers<float>({{-12.34567F, "-12.34567"}, {5, "5."}, {0.5F, ".5"}, {-0.5F, "  -.5  "}});
    ExpectNumbers<float>({{1000, "1E3"}, {0.01F, "1d-2"}, {65535, "&hFFFF"}, {8, "&O10"}});
    ExpectNumbers<float>({{1234567, "1,234,567"}, {1234.5F, "12,34.5"}, {12, "1,2"}});
    // On the midpoint of two floats, and above it by less than a double can tell.
    ExpectNumbers<float>({{16777216, "16777217"}, {16777218, "16777217.000000001"}});
    ExpectNumbers<float>({{0.00885323901F, "0.008853238541632891"}});
    ExpectNumbers<float>(
        {{Limits<float>::denorm_min(), "1.4e-45"}, {0, "1e-60"}, {0, "0e99999999999999999999"}});
    ExpectNumbers<double>({{0.1, "0.1"}, {1.7976931348623157e308, "1.7976931348623157e308"}});
    ExpectNumbers<double>(
        {{1234567890123456789012.0, "1234567890123456789012"}, {1e-5, "0.00000000000000000000001e18"}});
    ExpectNoNumbers<float>({"3.5e38", "1e39", "-1e99999999999999999999"});
    ExpectNoNumbers<double>({"1.8e308"});
}

TEST(StrictNumber, RefusesWhatIsNotWhollyANumber)
{
    ExpectNoNumbers<float>(
        {"", "  ", "many", "12.5 dBm", "1 2", "\t1", "1\n", "-", "+-1", "1-", ".", "-.", "1.2.3"});
    ExpectNoNumbers<float>(
        {",1", "1,", "1,,2", "1,.5", "1.5,0", "-,1", "1e", "1e+", "e5", ".e5", "1e5.0", "1e1,0"});
    ExpectNoNumbers<float>(
        {"&", "&h", "&hG", "&12", "&o8", "-&h1", "&h-1", "& h1", "&h1.0", "inf", "nan", "0x10"});
    ExpectNoNumbers<float>({std::string_view("1\0", 2)});
}

TEST(RoundTo, GivesNothingForWhatDoesNotFit)
{
    EXPECT_EQ(RoundTo<std::int16_t>(32767.49), 32767);
    EXPECT_EQ(RoundTo<std::int16_t>(32767.5), std::nullopt);
    EXPECT_EQ(RoundTo<std::int16_t>(-32768.5), -32768);
    EXPECT_EQ(RoundTo<std::uint32_t>(-0.5), 0U);
    EXPECT_EQ(RoundTo<std::uint32_t>(4294967295.0), 4294967295U);
    EXPECT_EQ(RoundTo<std::int64_t>(9223372036854775808.0), std::nullopt);
    EXPECT_EQ(RoundTo<std::int32_t>(Limits<double>::quiet_NaN()), std::nullopt);
    EXPECT_EQ(RoundTo<std::int32_t>(-Limits<double>::infinity()), std::nullopt);
}

} // namespace
} // namespace Traces
