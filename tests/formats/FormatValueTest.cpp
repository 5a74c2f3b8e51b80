#include "formats/FormatValue.h"

#include <gtest/gtest.h>
#include <limits>

namespace Traces {
namespace {

// Each form of mask that the views and summaries use.
struct MaskCase {
    const char* Mask;
    const char* Plain;    // 12.3456
    const char* Negative; // -1.5
    const char* Zero;     // 0, and a negative value that rounds to it
    const char* Large;    // 12345678 as a float: the digits behind the seventh are zeros
};

constexpr MaskCase masks[] = {
    {"#0", "12", "-2", "0", "12345680"},
    {"###", "12", "-2", "", "12345680"},
    {"#.#", "12.3", "-1.5", ".", "12345680."},
    {"###.0", "12.3", "-1.5", ".0", "12345680.0"},
    {"##.00", "12.35", "-1.50", ".00", "12345680.00"},
    {"##.0#", "12.35", "-1.5", ".0", "12345680.0"},
    {"#0.0", "12.3", "-1.5", "0.0", "12345680.0"},
    {"#0.0###", "12.3456", "-1.5", "0.0", "12345680.0"},
    {"#0.######", "12.3456", "-1.5", "0.", "12345680."},
    {"000", "012", "-002", "000", "12345680"},
    {"0.00", "12.35", "-1.50", "0.00", "12345680.00"},
    {"#,##0.0", "12.3", "-1.5", "0.0", "12,345,680.0"},
    {"##,###,##0", "12", "-2", "0", "12,345,680"},
    {"00:", "12:", "-02:", "00:", "12345680:"},
    {"0(ms)", "12(ms)", "-2(ms)", "0(ms)", "12345680(ms)"},
    {"#0 dB/Div", "12 dB/Div", "-2 dB/Div", "0 dB/Div", "12345680 dB/Div"},
    {"#0 Hz (", "12 Hz (", "-2 Hz (", "0 Hz (", "12345680 Hz ("},
    {"#0.00 ppm)", "12.35 ppm)", "-1.50 ppm)", "0.00 ppm)", "12345680.00 ppm)"},
};

TEST(FormatValue, PrintsTheFormsOfMaskInUse)
{
    for (const MaskCase& c : masks) {
        SCOPED_TRACE(c.Mask);
        EXPECT_EQ(FormatValue(12.3456F, c.Mask), c.Plain);
        EXPECT_EQ(FormatValue(12.3456, c.Mask), c.Plain);
        EXPECT_EQ(FormatValue(-1.5F, c.Mask), c.Negative);
        EXPECT_EQ(FormatValue(0.0F, c.Mask), c.Zero);
        EXPECT_EQ(FormatValue(0, c.Mask), c.Zero);
        EXPECT_EQ(FormatValue(-1e-7F, c.Mask), c.Zero);
        EXPECT_EQ(FormatValue(12345678.0F, c.Mask), c.Large);
        EXPECT_EQ(FormatValue(12345680, c.Mask), c.Large);
    }
}

template <class T>
struct ValueCase {
    T Value;
    const char* Mask;
    const char* Text;
};

template <class T>
void ExpectTexts(std::initializer_list<ValueCase<T>> cases)
{
    for (const auto& c : cases)
        EXPECT_EQ(FormatValue(c.Value, c.Mask), c.Text) << c.Value << " through " << c.Mask;
}

TEST(FormatValue, RoundsHalfAwayFromZeroOnTheDigitsThatTheTypeShows)
{
    // Below the tie in binary, on it in the digits shown.
    ExpectTexts<float>({{2.675F, "#0.00", "2.68"}, {-2.675F, "#0.00", "-2.68"}, {0.49999997F, "#0", "1"}});
    ExpectTexts<double>(
        {{2.675, "#0.00", "2.68"}, {1.005, "#0.00", "1.01"}, {0.1 + 0.2, "#0.######", "0.3"}});
    // Ordinary rounding, and into a new digit.
    ExpectTexts<float>(
        {{0.5F, "#0", "1"}, {1.5F, "#0", "2"}, {0.4999999F, "#0", "0"}, {0.05F, "#0.0", "0.1"}});
    ExpectTexts<float>({{-0.005F, "#0.00", "-0.01"}, {0.0049F, "#0.00", "0.00"}, {9.995F, "#0.00", "10.00"}});
    // Far from the mask's digits.
    ExpectTexts<float>({{1e-10F, "#0.000000", "0.000000"}, {1e-30F, "#0", "0"}});
    ExpectTexts<float>({{3.402823466e38F, "#0", "340282300000000000000000000000000000000"}});
    ExpectTexts<double>({{123456789012345678.0, "#0", "123456789012346000"}, {5e-324, "#0.0", "0.0"}});
}

TEST(FormatValue, KeepsToTheMaskLanguage)
{
    // "#" and "0"
    ExpectTexts<double>(
        {{1234, "#0", "1234"}, {0.5, "##.00", ".50"}, {0.5, "#0.00", "0.50"}, {7, "0#", "07"}});
    ExpectTexts<double>({{1.25, "#0.0###", "1.25"}, {2, "#0.######", "2."}, {1, "#.#0", "1.00"}});
    // groups
    ExpectTexts<double>(
        {{1500, "#,##0.0", "1,500.0"}, {999999.96, "#,##0.0", "1,000,000.0"}, {-123, "#,##0", "-123"}});
    ExpectTexts<double>({{5, "0,000", "0,005"}, {1234, "#0,,", "1234"}, {1234, ",#0", "1234"}});
    // literals
    ExpectTexts<double>({{-5, "P=#0 W", "-P=5 W"}, {5, "0.0.0", "5.0.0"}, {5, "0 of 0", "5 of 0"}});
    ExpectTexts<double>({{5, "dB", "dB5"}, {5, "", "5"}, {-5, ".", "-5."}});
    ExpectTexts<std::int32_t>({{std::numeric_limits<std::int32_t>::min(), "#,##0", "-2,147,483,648"}});
}

TEST(FormatValue, NamesWhatIsNotFinite)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(FormatValue(infinity, "#0.00 dB"), "INF dB");
    EXPECT_EQ(FormatValue(-infinity, "(#0)"), "-(INF)");
    EXPECT_EQ(FormatValue(std::numeric_limits<float>::quiet_NaN(), "#0.00"), "NAN");
}

TEST(FormatCut, CutsOnlyWhatIsLonger)
{
    EXPECT_EQ(FormatCut(-12.345, "#0.00", 4), "-12.");
    EXPECT_EQ(FormatCut(2.675F, "#0.00", 4), "2.68");
    EXPECT_EQ(FormatCut(1.0, "#0", 4), "1");
}

} // namespace
} // namespace Traces
