// A run of the program within the test, with its streams in texts, and a folder that is gone afterwards.
#pragma once

#include "apps/cli/Program.h"
#include "formats/Files.h"
#include "support/RawBuilder.h"
#include "support/TraceFiles.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace Traces::Cli::Testing {

struct CliResult {
    int Status = 0;
    std::string Out, Err;
};

inline CliResult RunCli(const std::vector<std::string>& arguments, const std::string& input = {},
                        bool progress = false)
{
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    Console console(in, out, err, progress);
    const int status = RunProgram(console, arguments);
    return {status, out.str(), err.str()};
}

inline std::string SampleName(const std::string& name)
{
    return std::string(TRACES_SAMPLES_FOLDER) + "/" + name;
}

inline std::string ContentOf(const std::string& path)
{
    return ReadWholeFile(path).value_or("");
}

/// A sweep from 824 to 894.5 MHz whose return losses are -20, -6.0206 and 0 dB.
inline std::string ThreePointSweep(int mode = 0)
{
    return Traces::Testing::RawSweep(mode, {1000, 5000, 10000}).AsText();
}

class InFolder : public testing::Test {
protected:
    ~InFolder() override { std::filesystem::current_path(before); }

    std::string Path(const std::string& name) const { return own / name; }

    std::string Put(const std::string& name, const std::string& content) const
    {
        const std::string path = Path(name);
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        EXPECT_TRUE(WriteWholeFile(path, content));
        return path;
    }

    /// Names of the files in the folder, in order.
    std::vector<std::string> FilesIn(const std::string& sub = {}) const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder / sub))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    const Traces::Testing::TemporaryFolder own;
    const std::filesystem::path& folder = own.Path();

private:
    std::filesystem::path before = std::filesystem::current_path();
};

} // namespace Traces::Cli::Testing
