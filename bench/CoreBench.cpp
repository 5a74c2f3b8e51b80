// The core's routes against the least work that they contain: formatting, reading and scaling the same
// numbers. Exits with 1 when a ratio misses its limit.
#include "Measure.h"
#include "SampleTraces.h"
#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "control/Plot.h"
#include "control/TextLoader.h"
#include "formats/Checksum.h"
#include "formats/Files.h"
#include "formats/Numbers.h"
#include "formats/TraceHeader.h"
#include "modes/vna_spa/SPATrace.h"
#include "modes/vna_spa/VNATrace.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <string>

namespace {

using namespace Traces;
using namespace Traces::Bench;

constexpr int Variants = 16;

/// One sweep in the forms that the routes meet.
struct Sweep {
    Bytes Raw;
    std::string Text;
    std::vector<float> Numbers;
    std::vector<std::string_view> NumberTexts; ///< in Text
};

std::string SavedText(Plot& plot, HeadlessPlatform& platform)
{
    std::string name = (std::filesystem::temp_directory_path() / "traces-bench.vna").string();
    platform.Answers.push_back(name);
    plot.SaveTrace(name);
    const std::string text = ReadWholeFile(name).value_or("");
    std::filesystem::remove(name);
    return text;
}

std::vector<std::string_view> NumbersIn(std::string_view text)
{
    std::vector<std::string_view> numbers;
    for (std::size_t at = text.find("Data point "); at != std::string_view::npos;
         at = text.find("Data point ", at + 1)) {
        const std::size_t first = text.find('\t', at) + 1;
        const std::size_t second = text.find('\t', first) + 1;
        numbers.push_back(text.substr(first, second - 1 - first));
        numbers.push_back(text.substr(second, text.find('\r', second) - second));
    }
    return numbers;
}

Sweep MakeSweep(const Bytes& sample, int variant)
{
    HeadlessPlatform platform;
    Plot plot(platform);
    Sweep sweep;
    sweep.Raw = MakeVariant(sample, variant);
    plot.ShowTrace(sweep.Raw);
    for (std::size_t i = 0; i < SweepPoints; ++i) {
        sweep.Numbers.push_back(plot.Instance().VNA.PointValue[i]);
        sweep.Numbers.push_back(plot.Instance().VNA.PointPhase[i]);
    }
    sweep.Text = SavedText(plot, platform);
    return sweep;
}

/// The same file with ten times the lines of points.
std::string TenTimesAsLong(const std::string& text)
{
    const std::size_t begin = text.find("Data point 0:");
    std::string longer = text;
    for (std::size_t copy = 1; copy < 10; ++copy) {
        std::string_view lines = std::string_view(text).substr(begin);
        for (std::size_t point = 0; point < SweepPoints; ++point) {
            const std::size_t end = lines.find('\n') + 1;
            longer += "Data point " + std::to_string(copy * SweepPoints + point);
            longer += lines.substr(lines.find(':'), end - lines.find(':'));
            lines.remove_prefix(end);
        }
    }
    const std::size_t field = FindChecksumField(longer);
    return longer.replace(field, ChecksumWidth, ComputeChecksum(longer, field));
}

void FormatNumbers(const std::vector<float>& numbers)
{
    std::array<char, 32> digits{};
    for (const float number : numbers) {
        Keep(std::to_chars(digits.data(), digits.data() + digits.size(), number));
        Keep(digits);
    }
}

void ReadNumbers(const std::vector<std::string_view>& texts)
{
    for (const std::string_view text : texts) {
        float number = 0;
        std::from_chars(text.data(), text.data() + text.size(), number);
        Keep(number);
    }
}

void ScaleNumbers(const Bytes& raw)
{
    std::array<float, SweepPoints> values;
    std::array<float, SweepPoints> phases;
    for (std::size_t i = 0; i < SweepPoints; ++i) {
        values[i] = static_cast<float>(20 * std::log10(std::abs(ReadNumber(raw, 2 * i) / 10000.0)));
        phases[i] = static_cast<float>(ReadNumber(raw, 2 * i + 1) / 10.0);
    }
    Keep(values);
    Keep(phases);
}

/// All numbers that a trace's parameter lines say.
std::vector<float> NumbersOf(const Plot& plot)
{
    std::vector<float> numbers;
    for (const std::string& line : plot.Parameters()) {
        std::string_view rest = line;
        for (std::size_t tab = rest.find('\t'); tab != std::string_view::npos; tab = rest.find('\t')) {
            rest.remove_prefix(tab + 1);
            float number = 0;
            if (std::from_chars(rest.data(), rest.data() + rest.size(), number).ec == std::errc())
                numbers.push_back(number);
        }
    }
    return numbers;
}

/// Every family but the sweeps: the whole way in, against its numbers' way into text.
void ShowFamilies(Report& report)
{
    for (const FamilySample& family : FamilySamples) {
        HeadlessPlatform platform;
        Plot plot(platform);
        const Bytes raw = ReadSample(family.File);
        plot.ShowTrace(raw);
        const std::vector<float> numbers = NumbersOf(plot);
        const std::string what = "show and record: " + std::string(family.What) + ", " +
                                 std::to_string(numbers.size()) + " numbers";
        const auto show = [&](int) {
            plot.ShowTrace(raw);
            platform.Messages.clear();
        };
        const Times times = TimeInTurns(show, [&](int) { FormatNumbers(numbers); });
        // A view of few numbers costs more than they do.
        constexpr std::size_t many = 400;
        if (numbers.size() < many)
            report.Note(what, times);
        else
            report.Add(what, times, 3);
    }
}

/// A spectrum's saved text with levels of its own, and the numbers in it.
struct SpectrumText {
    std::string Text;
    std::vector<std::string> Numbers;
    std::vector<std::string_view> Views; ///< of Numbers
};

SpectrumText MakeSpectrumText(const Bytes& sample, int variant)
{
    HeadlessPlatform platform;
    Plot plot(platform);
    plot.ShowTrace(sample);
    for (std::size_t i = 0; i < plot.Instance().SPA.PointLevel.size(); ++i)
        plot.Instance().SPA.PointLevel[i] += static_cast<float>(
            std::round(7000 * std::sin(static_cast<double>(i) * (0.3 + 0.01 * variant))) / 1000);
    SpectrumText made;
    made.Text = SavedText(plot, platform);
    for (const float number : NumbersOf(plot))
        made.Numbers.push_back(NumberText(number));
    return made;
}

void ParseSpectrum(Report& report)
{
    const Bytes sample = ReadSample("spa_fm_broadcast_401pts.raw");
    std::vector<SpectrumText> texts;
    for (int variant = 0; variant < Variants; ++variant)
        texts.push_back(MakeSpectrumText(sample, variant));
    for (SpectrumText& text : texts)
        text.Views.assign(text.Numbers.begin(), text.Numbers.end());
    HeadlessPlatform platform;
    Plot plot(platform);
    plot.ShowTrace(sample);
    Control& control = plot.Instance();
    const auto at = [&](int call) -> const SpectrumText& {
        return texts[static_cast<std::size_t>(call % Variants)];
    };
    const auto parse = [&](int call) {
        const TraceText traceText(at(call).Text);
        HeaderFromText(traceText, control.Header, control.lstParameters);
        LoadSPARecord(control, traceText);
    };
    report.Add("parse a spectrum's text / read its numbers",
               TimeInTurns(parse, [&](int call) { ReadNumbers(at(call).Views); }), 3);
}

void ParseText(Control& control, const std::string& text)
{
    const TraceText traceText(text);
    HeaderFromText(traceText, control.Header, control.lstParameters);
    LoadVNARecord(control, traceText);
}

} // namespace

int main()
{
    const Bytes sample = ReadSample();
    std::vector<Sweep> sweeps;
    for (int variant = 0; variant < Variants; ++variant)
        sweeps.push_back(MakeSweep(sample, variant));
    for (Sweep& sweep : sweeps)
        sweep.NumberTexts = NumbersIn(sweep.Text);
    const auto at = [&](int call) -> const Sweep& {
        return sweeps[static_cast<std::size_t>(call % Variants)];
    };

    HeadlessPlatform platform;
    Plot plot(platform);
    Control& control = plot.Instance();
    plot.ShowTrace(sample);

    Report report;
    report.Add("show and record a sweep / format its numbers",
               TimeInTurns([&](int call) { plot.ShowTrace(at(call).Raw); },
                           [&](int call) { FormatNumbers(at(call).Numbers); }),
               3);
    report.Add("decode a sweep / read, scale and log its numbers",
               TimeInTurns([&](int call) { DecodeVNARecord(control, RawBuffer(at(call).Raw)); },
                           [&](int call) { ScaleNumbers(at(call).Raw); }),
               1.5);
    report.Add("parse a text file / read its numbers",
               TimeInTurns([&](int call) { ParseText(control, at(call).Text); },
                           [&](int call) { ReadNumbers(at(call).NumberTexts); }),
               3);
    report.Note("  the same, verified through temporary files and drawn",
                TimeInTurns([&](int call) { plot.LoadVNAText(at(call).Text, ""); },
                            [&](int call) { ReadNumbers(at(call).NumberTexts); }));
    const std::string longer = TenTimesAsLong(sweeps[0].Text);
    report.Add("parse a file ten times as long / one as long",
               TimeInTurns([&](int) { ParseText(control, longer); },
                           [&](int) { ParseText(control, sweeps[0].Text); }),
               12);
    report.Add("  the same, verified through temporary files and drawn",
               TimeInTurns([&](int) { plot.LoadVNAText(longer, ""); },
                           [&](int) { plot.LoadVNAText(sweeps[0].Text, ""); }),
               12);
    ShowFamilies(report);
    ParseSpectrum(report);
    if (!platform.Messages.empty()) {
        std::printf("A file didn't verify: the figures mean nothing.\n");
        return 1;
    }
    return report.ExitStatus();
}
