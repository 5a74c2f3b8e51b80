// `traces script`: lines from a file or standard input, replies to standard output, each at once, so that
// another program can hold a conversation.
#include "apps/cli/Commands.h"
#include "apps/cli/Input.h"
#include "apps/cli/Script.h"

#include <fstream>

namespace Traces::Cli {

namespace {

/// No call has a line as long; what comes from a device could be one without an end.
constexpr std::size_t LongestLine = std::size_t{16} << 20;

/// False at the end of the lines.
bool ReadLine(std::streambuf& in, std::string& line)
{
    constexpr int end = std::char_traits<char>::eof();
    line.clear();
    int c = in.sbumpc();
    const bool isThere = c != end;
    while (c != end && c != '\n' && line.size() <= LongestLine) {
        line += static_cast<char>(c);
        c = in.sbumpc();
    }
    return isThere;
}

void RunLines(Console& console, std::streambuf& in, const std::string& name)
{
    Script script;
    std::string line;
    while (ReadLine(in, line)) {
        if (line.size() > LongestLine) {
            console.Error(name, "has a line that is too long for a call");
            return;
        }
        if (const auto reply = script.Run(line))
            console.Out << *reply << '\n' << std::flush;
        if (!console.Out)
            return;
    }
}

} // namespace

int RunScript(Console& console, const std::string& file)
{
    if (file == StandardStream) {
        RunLines(console, *console.In.rdbuf(), file);
        return console.ExitStatus();
    }
    std::ifstream in;
    const std::string problem = OpenFile(file, in);
    if (problem.empty())
        RunLines(console, *in.rdbuf(), file);
    else
        console.Error(file, problem);
    return console.ExitStatus();
}

} // namespace Traces::Cli
