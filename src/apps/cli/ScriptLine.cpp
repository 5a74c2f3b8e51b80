#include "apps/cli/ScriptLine.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

namespace Traces::Cli {

namespace {

constexpr std::string_view Blanks = " \t\r\n";

void AppendUtf8(std::string& text, std::uint32_t code)
{
    constexpr std::array<std::uint32_t, 3> limits = {0x80, 0x800, 0x10000};
    constexpr std::array<unsigned, 4> leads = {0, 0xC0, 0xE0, 0xF0};
    std::size_t following = 0;
    while (following < limits.size() && code >= limits[following])
        ++following;
    text += static_cast<char>(leads[following] | code >> 6 * following);
    while (following-- > 0)
        text += static_cast<char>(0x80 | (code >> 6 * following & 0x3F));
}

/// Reads what stands at the front of a line and takes it off.
class LineReader {
public:
    explicit LineReader(std::string_view line) : rest(line) {}

    /// What the last part lacked.
    std::string Problem;

    bool SkipBlanks()
    {
        rest.remove_prefix(std::min(rest.find_first_not_of(Blanks), rest.size()));
        return !rest.empty();
    }

    std::string Word()
    {
        std::string word(rest.substr(0, rest.find_first_of(Blanks)));
        rest.remove_prefix(word.size());
        return word;
    }

    std::optional<ScriptArgument> Argument()
    {
        ScriptArgument argument;
        bool read = true;
        if (rest.front() == '"') {
            read = Quoted(argument.Text);
        } else if (rest.front() == '[') {
            argument.IsList = true;
            read = List(argument.Numbers);
        } else {
            argument.Text = Word();
        }
        if (!read)
            return std::nullopt;
        if (!rest.empty() && Blanks.find(rest.front()) == std::string_view::npos) {
            Problem = "no blank behind a closing quote or bracket";
            return std::nullopt;
        }
        return argument;
    }

private:
    bool Quoted(std::string& text)
    {
        rest.remove_prefix(1);
        while (!rest.empty() && rest.front() != '"') {
            const char c = rest.front();
            rest.remove_prefix(1);
            if (c != '\\')
                text += c;
            else if (!Escape(text))
                return false;
        }
        if (rest.empty()) {
            Problem = "a quote isn't closed";
            return false;
        }
        rest.remove_prefix(1);
        return true;
    }

    bool Escape(std::string& text)
    {
        constexpr std::string_view letters = "\"\\/bfnrt";
        constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
        const char letter = rest.empty() ? '\0' : rest.front();
        const std::size_t place = letters.find(letter);
        if (letter == 'u')
            return UnicodeEscape(text);
        if (place == std::string_view::npos) {
            Problem = "an escape that JSON doesn't have";
            return false;
        }
        text += meanings[place];
        rest.remove_prefix(1);
        return true;
    }

    bool UnicodeEscape(std::string& text)
    {
        constexpr std::uint32_t highHalf = 0xD800;
        constexpr std::uint32_t lowHalf = 0xDC00;
        constexpr std::uint32_t halves = 0x400;
        std::uint32_t code = 0;
        bool read = CodeUnit(code);
        if (read && code - highHalf < halves) {
            std::uint32_t low = 0;
            read =
                rest.starts_with("\\u") && (rest.remove_prefix(1), CodeUnit(low)) && low - lowHalf < halves;
            code = 0x10000 + (code - highHalf) * halves + (low - lowHalf);
        } else if (code - lowHalf < halves) {
            read = false;
        }
        if (read)
            AppendUtf8(text, code);
        else
            Problem = "an escape \\u without four hexadecimal digits of a character";
        return read;
    }

    /// The four digits behind "u".
    bool CodeUnit(std::uint32_t& code)
    {
        constexpr std::size_t digits = 4;
        const std::string_view text = rest.substr(1, digits);
        const auto result = std::from_chars(text.data(), text.data() + text.size(), code, 16);
        if (text.size() < digits || result.ec != std::errc() || result.ptr != text.data() + digits)
            return false;
        rest.remove_prefix(1 + digits);
        return true;
    }

    bool List(std::vector<double>& numbers)
    {
        const std::size_t end = rest.find(']');
        std::string_view items = rest.substr(1, end - 1);
        if (end == std::string_view::npos) {
            Problem = "a bracket isn't closed";
            return false;
        }
        rest.remove_prefix(end + 1);
        if (items.find_first_not_of(Blanks) == std::string_view::npos)
            return true;
        for (bool more = true; more;) {
            const std::size_t comma = items.find(',');
            more = comma != std::string_view::npos;
            if (!ListItem(items.substr(0, comma), numbers))
                return false;
            items.remove_prefix(more ? comma + 1 : 0);
        }
        return true;
    }

    bool ListItem(std::string_view item, std::vector<double>& numbers)
    {
        item.remove_prefix(std::min(item.find_first_not_of(Blanks), item.size()));
        item = item.substr(0, item.find_last_not_of(Blanks) + 1);
        double number = 0;
        const auto result = std::from_chars(item.data(), item.data() + item.size(), number);
        if (item.empty() || result.ec != std::errc() || result.ptr != item.data() + item.size() ||
            !std::isfinite(number)) {
            Problem = "a list holds what is no number";
            return false;
        }
        numbers.push_back(number);
        return true;
    }

    std::string_view rest;
};

} // namespace

ScriptLine ParseScriptLine(std::string_view line)
{
    LineReader reader(line);
    ScriptLine parsed;
    if (!reader.SkipBlanks())
        return parsed;
    parsed.Member = reader.Word();
    while (parsed.Problem.empty() && reader.SkipBlanks()) {
        if (auto argument = reader.Argument())
            parsed.Arguments.push_back(std::move(*argument));
        else
            parsed.Problem = reader.Problem;
    }
    return parsed;
}

} // namespace Traces::Cli
