#include "formats/TraceText.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace Traces {
namespace {

/// What stands behind a place by plain searches through the whole text, as the rules are told.
std::optional<std::string> ValueBehind(const std::string& text, std::size_t place)
{
    if (place == std::string::npos)
        return std::nullopt;
    const std::size_t tab = text.find('\t', place);
    const std::size_t begin = tab == std::string::npos ? 0 : tab + 1;
    return text.substr(begin, std::min(text.find('\r', begin), text.size()) - begin);
}

/// The fields of a line, with the tabs between them again.
std::optional<std::string> JoinedFields(const TraceText& text, std::string_view key)
{
    LineFields fields;
    if (!text.ParamFields(key, fields))
        return std::nullopt;
    EXPECT_EQ(fields.UpperIndex, static_cast<int>(fields.Parts.size()) - 1);
    std::string joined(fields.Parts[0]);
    for (std::size_t i = 1; i < fields.Parts.size(); ++i)
        joined.append("\t").append(fields.Parts[i]);
    return joined;
}

std::string Letters(std::mt19937& random, std::string_view alphabet, std::size_t longest)
{
    std::string text(random() % (longest + 1), ' ');
    std::generate(text.begin(), text.end(), [&] { return alphabet[random() % alphabet.size()]; });
    return text;
}

TEST(TraceTexts, ValuesFollowTheFirstLineThatBeginsWithTheKey)
{
    const struct {
        const char* Name;
        std::string_view Text, Key, Value;
    } cases[] = {
        {"plain", "x\r\nDate:\t11/22/2026\r\n", "Date", "11/22/2026"},
        {"no line end", "x\nDate:\t11/22", "Date", "11/22"},
        {"with further tabs", "x\nA:\t1\t2\r\n", "A:", "1\t2"},
        {"first of two", "\nA:\t1\r\nA:\t2\r\n", "A:", "1"},
        {"not in the first line", "Date:\t1\r\nTime:\t2\r\n", "Date", ""},
        {"not inside of a line", "\nRef Date:\t1\r\n", "Date", ""},
        {"beginning of a longer key", "\nModel:\tM\r\nMode:\t1\r\n", "Mode", "M"},
        {"told apart by its colon", "\nModel:\tM\r\nMode:\t1\r\n", "Mode:", "1"},
        {"no value", "\nDate:\t\r\nTime:\t2\r\n", "Date", ""},
        {"tab on a later line", "\nDate:\r\nTime:\t2\r\n", "Date", "2"},
        {"no tab behind it", "first line\r\nA:\t1\r\nDate:\r\n", "Date", "first line"},
        {"no tab and one line", "\nDate: 1", "Date", "\nDate: 1"},
        {"empty key", "x\r\nA:\t1\r\n", "", "1"},
        {"empty text", "", "Date", ""},
        {"zero characters", std::string_view("\nA\0:\t\0\r\n", 8), std::string_view("A\0:", 3),
         std::string_view("\0", 1)},
    };
    for (const auto& each : cases)
        EXPECT_EQ(TraceText(each.Text).ParamValue(each.Key), each.Value) << each.Name;
}

TEST(TraceTexts, FieldsAreFoundAnywhereAndStayWhenThereAreNone)
{
    const TraceText text("Data point 0:\t-1.5\t180\r\n");
    LineFields fields;
    EXPECT_FALSE(text.ParamFields("Data point 2:", fields));
    EXPECT_EQ(fields.UpperIndex, -1);
    EXPECT_TRUE(text.ParamFields("point 0:", fields));
    EXPECT_FALSE(text.ParamFields("Data point 2:", fields));
    EXPECT_EQ(fields.UpperIndex, 1) << "those of the point before";
    EXPECT_EQ(fields.Parts[1], "180");
}

TEST(TraceTexts, FixedWidthsEndAtTheLine)
{
    const TraceText text("Lat:0123\r\nLat: N 12.5 A)x\r\nLon:\t7\r\nSweep = 3\r\n");
    EXPECT_EQ(text.ParamChars("Lat", 5, 6), "N 12.5");
    EXPECT_EQ(text.ParamChars("Lat", 12, 50), "A)x");
    EXPECT_EQ(text.ParamChars("Lat", 15, 6), "") << "the line's end";
    EXPECT_EQ(text.ParamChars("Lon", 100, 6), "") << "behind the text";
    EXPECT_EQ(text.ParamChars("Alt", 5, 6), "");
    const std::string line = "xSweep = 789 123456789 12345678901234567890ab\r\n";
    EXPECT_EQ(TraceText(line).ParamSpectro("Sweep"), line.substr(26, 22));
    EXPECT_EQ(TraceText(line).ParamSpectro("Swee"), "");
    EXPECT_EQ(text.ParamSpectro("Sweep"), "") << "behind the text";
}

TEST(TraceTexts, EveryLookupFindsWhatAPlainSearchFinds)
{
    constexpr int texts = 4000;
    constexpr int keysPerText = 12;
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same texts at every run
    int found = 0;
    for (int t = 0; t < texts; ++t) {
        const std::string plain = Letters(random, t % 2 == 0 ? "ab:\t\r\n01" : "a:\n\n\t =", 60);
        const TraceText text(plain);
        for (int k = 0; k < keysPerText; ++k) {
            // Every other key is a piece of the text, so that long ones are found too.
            std::string key = Letters(random, "ab:01", 6);
            if (k % 2 == 0 && !plain.empty())
                key = plain.substr(random() % plain.size(), random() % 9);
            const std::string value = ValueBehind(plain, plain.find('\n' + key)).value_or("");
            found += !value.empty();
            const std::string shown =
                "text " + testing::PrintToString(plain) + " key " + testing::PrintToString(key);
            ASSERT_EQ(text.ParamValue(key), value) << shown;
            ASSERT_EQ(JoinedFields(text, key), ValueBehind(plain, plain.find(key))) << shown;
        }
    }
    EXPECT_GT(found, texts) << "most texts hold something to find";
}

} // namespace
} // namespace Traces
