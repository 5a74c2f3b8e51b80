// The streams of a run of the program, and the one way to complain: a line that names the file and what is
// wrong with it. Counts complaints, since they make the exit status.
#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <string_view>

namespace Traces::Cli {

/// Exit statuses of the program.
namespace Status {
inline constexpr int Done = 0, Failed = 1, WrongUsage = 2;
}

/// What stands for standard input or output in place of a file's name.
inline constexpr std::string_view StandardStream = "-";

class Console {
public:
    /// `progress` allows a progress bar on the error stream, which is then a terminal.
    Console(std::istream& in, std::ostream& out, std::ostream& err, bool progress = false)
        : In(in), Out(out), Err(err), showProgress(progress)
    {
    }

    std::istream& In;
    std::ostream& Out;
    std::ostream& Err;

    /// One line about a file; the run fails, but its other files are still done.
    void Error(std::string_view file, std::string_view what);

    /// One line about a file that is no failure.
    void Note(std::string_view file, std::string_view what);

    /// One line about the arguments. Gives the exit status.
    int Usage(std::string_view what);

    /// How much of a batch is done. The bar is gone when all is.
    void Progress(std::size_t done, std::size_t total);

    /// The exit status of what was done so far. Output that can't be written fails the run.
    int ExitStatus();

private:
    void Line(std::string_view text);
    void EraseProgress();

    bool showProgress;
    bool failed = false;
    std::string progressLine;
};

/// A text of any origin on one line of a terminal: control characters become question marks.
std::string OneLine(std::string_view text);

/// An instrument's text as UTF-8 for a terminal. Tabs stay; zero characters, which pad some texts, go; other
/// control characters become blanks.
std::string TerminalText(std::string_view text);

} // namespace Traces::Cli
