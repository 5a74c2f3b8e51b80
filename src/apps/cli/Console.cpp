#include "apps/cli/Console.h"

#include "formats/Text.h"

#include <algorithm>

namespace Traces::Cli {

namespace {

bool IsControl(char c)
{
    return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

/// The five codes that Windows-1252 leaves open: as UTF-8 they would be control characters, to which some
/// terminals listen.
bool IsOpenCode(char c)
{
    return c == '\x81' || c == '\x8D' || c == '\x8F' || c == '\x90' || c == '\x9D';
}

} // namespace

void Console::Error(std::string_view file, std::string_view what)
{
    failed = true;
    Note(file, what);
}

void Console::Note(std::string_view file, std::string_view what)
{
    const std::string_view shown = file == StandardStream ? "standard input" : file;
    Line(std::string(shown) + ": " + std::string(what));
}

int Console::Usage(std::string_view what)
{
    Line(std::string(what) + " (traces --help tells more)");
    return Status::WrongUsage;
}

void Console::Line(std::string_view text)
{
    EraseProgress();
    Err << "traces: " << OneLine(text) << '\n' << std::flush;
    Err << progressLine << std::flush;
}

void Console::EraseProgress()
{
    if (!progressLine.empty())
        Err << "\r\x1B[K";
}

void Console::Progress(std::size_t done, std::size_t total)
{
    if (!showProgress || total < 2)
        return;
    constexpr std::size_t width = 40;
    const std::size_t filled = width * done / total;
    std::string line = "[" + std::string(filled, '#') + std::string(width - filled, '.') + "] " +
                       std::to_string(100 * done / total) + "% of " + std::to_string(total);
    if (done >= total)
        line.clear();
    if (line == progressLine)
        return;
    EraseProgress();
    progressLine = std::move(line);
    Err << progressLine << std::flush;
}

int Console::ExitStatus()
{
    if (!Out.flush())
        Error("standard output", "can't be written");
    return failed ? Status::Failed : Status::Done;
}

std::string OneLine(std::string_view text)
{
    std::string line(text);
    std::replace_if(line.begin(), line.end(), IsControl, '?');
    return line;
}

std::string TerminalText(std::string_view text)
{
    std::string shown;
    shown.reserve(text.size());
    bool isAscii = true;
    for (const char c : text) {
        const bool unfit = (IsControl(c) && c != '\t') || IsOpenCode(c);
        if (c != '\0')
            shown += unfit ? ' ' : c;
        isAscii = isAscii && static_cast<unsigned char>(c) < 0x80;
    }
    return isAscii ? shown : Utf8FromAnsi(shown);
}

} // namespace Traces::Cli
