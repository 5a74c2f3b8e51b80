#include "apps/cli/ScriptLine.h"

#include <gtest/gtest.h>

namespace Traces::Cli {
namespace {

/// The parts of a line with a bar between them; lists in brackets.
std::string Shown(const ScriptLine& line)
{
    std::string text = line.Member;
    for (const ScriptArgument& argument : line.Arguments) {
        text += "|" + argument.Text;
        if (argument.IsList)
            text += "[" + std::to_string(argument.Numbers.size()) + "]";
        for (const double number : argument.Numbers)
            text += " " + std::to_string(number);
    }
    return text;
}

TEST(ScriptLines, SplitIntoAMemberAndItsArguments)
{
    static constexpr std::pair<std::string_view, std::string_view> cases[] = {
        // ordinary
        {"Clear", "Clear"},
        {"ShowTrace a.raw", "ShowTrace|a.raw"},
        {"\t Resize  550 480 \r", "Resize|550|480"},
        {R"(GetUpLoadTrace "")", "GetUpLoadTrace|"},
        {R"(SaveRawTrace "a b.raw" "c d")", "SaveRawTrace|a b.raw|c d"},
        // a blank line is no call
        {"", ""},
        {" \t\r", ""},
        // escapes are those of JSON; a bare word has none
        {R"(TraceName "q\" b\\ s\/ t\tn\nr\rb\bf\f")", "TraceName|q\" b\\ s/ t\tn\nr\rb\bf\f"},
        {R"(TraceName "\u0041\u00b5\u20AC\ud83d\ude00")", "TraceName|A\xC2\xB5\xE2\x82\xAC\xF0\x9F\x98\x80"},
        {R"(ShowTrace C:\new\trace.raw)", R"(ShowTrace|C:\new\trace.raw)"},
        {"ShowTrace \"caf\xE9.raw\"", "ShowTrace|caf\xE9.raw"},
        // lists
        {"Plot 2 [1,-2.5] []", "Plot|2|[2] 1.000000 -2.500000|[0]"},
        {"Plot 1 [ 1e3 ] [\t]", "Plot|1|[1] 1000.000000|[0]"},
    };
    for (const auto& [text, shown] : cases) {
        const ScriptLine line = ParseScriptLine(text);
        EXPECT_EQ(Shown(line), shown);
        EXPECT_EQ(line.Problem, "") << text;
    }
}

TEST(ScriptLines, ThatAreMalformedSayWhyAndKeepTheirMember)
{
    static constexpr std::string_view lines[] = {
        R"(M "open)",
        R"(M "ends in an escape\)",
        R"(M "\x41")",
        R"(M "\u12")",
        R"(M "\u12g4")",
        R"(M "\ud83d")",
        R"(M "\ud83d\u0041")",
        R"(M "\ude00")",
        R"(M "a"b)",
        R"(M "a""b")",
        "M [1,2",
        "M [1,,2]",
        "M [1,2,]",
        "M [x]",
        "M [1e999]",
        "M [nan]",
        "M [1]2",
        "M [1 2]",
    };
    for (const std::string_view text : lines) {
        const ScriptLine line = ParseScriptLine(text);
        EXPECT_EQ(line.Member, "M") << text;
        EXPECT_NE(line.Problem, "") << text;
    }
}

} // namespace
} // namespace Traces::Cli
