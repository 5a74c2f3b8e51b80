// The program's entry: its streams, and the last net under whatever the system refuses.
#include "apps/cli/Program.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <unistd.h>

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
    const bool progress = isatty(STDERR_FILENO) != 0;
    Traces::Cli::Console console(std::cin, std::cout, std::cerr, progress);
    try {
        return Traces::Cli::RunProgram(console, {argv + std::min(argc, 1), argv + argc});
    } catch (const std::exception& exception) {
        console.Error("error", exception.what());
        return console.ExitStatus();
    }
}
