// `traces info`: what a trace's header and record hold, as lines, as a table of many traces, or as JSON.
#include "apps/cli/Commands.h"
#include "apps/cli/OpenTrace.h"
#include "control/Control.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

namespace Traces::Cli {

namespace {

using Json = nlohmann::ordered_json;

/// The value of the first line with a key, which ends in its colon.
std::string_view ValueOfKey(const ParameterList& lines, std::string_view key)
{
    for (std::size_t i = 0; i < lines.ListCount(); ++i) {
        const std::string_view line = lines.List(i);
        if (line.starts_with(key) && line.substr(key.size(), 1) == "\t")
            return line.substr(key.size() + 1);
    }
    return {};
}

void PrintLines(Console& console, const ParameterList& lines)
{
    for (std::size_t i = 0; i < lines.ListCount(); ++i)
        console.Out << TerminalText(lines.List(i)) << '\n';
}

// Table of several files.

constexpr std::size_t Columns = 8;
using Row = std::array<std::string, Columns>;

constexpr std::array<std::string_view, Columns> Headings = {"File",  "Type", "Mode", "Points",
                                                            "Start", "Stop", "Ref",  "Date"};
constexpr std::array<bool, Columns> AlignedRight = {false, false, false, true, true, true, false, false};

Row TableRow(OpenTrace& trace, const std::string& name)
{
    const TraceHeader& header = trace.Instance().Header;
    const ParameterList& lines = trace.Instance().lstParameters;
    const auto shown = [](std::string_view text) { return TerminalText(TrimNuls(text)); };
    return {OneLine(name),
            std::string(trace.Plot().TraceType()),
            ModeName(header.Mode),
            std::to_string(header.DataPoints),
            shown(ValueOfKey(lines, "Start Frequency:")),
            shown(ValueOfKey(lines, "Stop Frequency:")),
            shown(header.RefNumber),
            shown(header.Date)};
}

/// Characters, not bytes: file names and references needn't be ASCII.
std::size_t Width(std::string_view utf8)
{
    const auto begins = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), begins));
}

void PrintTable(Console& console, const std::vector<Row>& rows)
{
    std::array<std::size_t, Columns> widths{};
    for (const Row& row : rows)
        for (std::size_t i = 0; i < Columns; ++i)
            widths[i] = std::max(widths[i], Width(row[i]));
    for (const Row& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < Columns; ++i) {
            const std::string blanks(widths[i] - Width(row[i]), ' ');
            line += AlignedRight[i] ? blanks + row[i] : row[i] + blanks;
            line += "  ";
        }
        line.erase(line.find_last_not_of(' ') + 1);
        console.Out << line << '\n';
    }
}

// JSON.

/// An instrument's text without the zero characters that pad some.
std::string Plain(std::string_view text)
{
    std::string plain(text);
    std::erase(plain, '\0');
    return Utf8FromAnsi(plain);
}

/// A value of one field as a text, of several as a list. A key that a record has twice collects both.
void AddParameter(Json& parameters, std::string_view line)
{
    const std::size_t tab = line.find('\t');
    // The times of a spectrogram's sweeps stand in columns.
    if (const std::size_t sign = line.find(" ="); tab == std::string_view::npos && sign != tab) {
        parameters[Plain(line.substr(0, sign))] = Plain(TrimBlanks(line.substr(sign + 2)));
        return;
    }
    std::string key = Plain(line.substr(0, tab));
    if (key.ends_with(':'))
        key.pop_back();
    Json& value = parameters[key];
    while (!line.empty() && line.find('\t') != std::string_view::npos) {
        line.remove_prefix(line.find('\t') + 1);
        Json field = Plain(line.substr(0, line.find('\t')));
        if (value.is_null())
            value = std::move(field);
        else if (value.is_array())
            value.push_back(std::move(field));
        else
            value = Json::array({value, std::move(field)});
    }
}

Json CurveJson(const TraceSlot& slot)
{
    const auto points = static_cast<std::ptrdiff_t>(UsedPoints(slot));
    return {{"x", std::vector<float>(slot.X.begin(), slot.X.begin() + points)},
            {"y", std::vector<float>(slot.Y.begin(), slot.Y.begin() + points)}};
}

Json HeaderJson(const TraceHeader& header)
{
    return {{"TraceLength", header.TraceLength},    {"Model", Plain(header.Model)},
            {"Version", Plain(header.Version)},     {"Mode", header.Mode},
            {"Date", Plain(header.Date)},           {"Time", Plain(header.Time)},
            {"RefNumber", Plain(header.RefNumber)}, {"DataPoints", header.DataPoints}};
}

void PrintJson(Console& console, OpenTrace& trace, const Input& input)
{
    const Control& control = trace.Instance();
    Json parameters = Json::object();
    for (std::size_t i = 0; i < control.lstParameters.ListCount(); ++i)
        AddParameter(parameters, control.lstParameters.List(i));
    const Json object = {{"file", input.Name},
                         {"form", input.Form == TraceForm::Raw ? "raw" : "text"},
                         {"type", trace.Plot().TraceType()},
                         {"mode", ModeName(control.Header.Mode)},
                         {"header", HeaderJson(control.Header)},
                         {"parameters", std::move(parameters)},
                         {"curve", CurveJson(control.TraceSlots[0])}};
    console.Out << object.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

} // namespace

int RunInfo(Console& console, const InfoOptions& options)
{
    std::vector<Row> rows;
    for (const std::string& name : options.Files) {
        const auto input = ReadInput(console, name);
        if (!input)
            continue;
        OpenTrace trace;
        if (!trace.Load(console, *input, OpenTrace::Need::Record))
            continue;
        if (options.Json)
            PrintJson(console, trace, *input);
        else if (options.Files.size() == 1)
            PrintLines(console, trace.Instance().lstParameters);
        else
            rows.push_back(TableRow(trace, name));
    }
    if (!rows.empty()) {
        Row headings;
        std::copy(Headings.begin(), Headings.end(), headings.begin());
        rows.insert(rows.begin(), std::move(headings));
        PrintTable(console, rows);
    }
    return console.ExitStatus();
}

} // namespace Traces::Cli
