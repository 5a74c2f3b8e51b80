// Scripts of any lines, as the command runs them. They run in an empty folder of their own that holds one raw
// and one text trace; lines that name a place outside of it are left out.
#include "Check.h"
#include "OwnFolder.h"
#include "apps/cli/Json.h"
#include "apps/cli/Script.h"
#include "apps/cli/ScriptLine.h"
#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "formats/Files.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <variant>

namespace {

namespace fs = std::filesystem;
using namespace Traces;
using Fuzz::Check;

/// The folder that scripts run in, with a raw and a text trace.
class Workplace {
public:
    Workplace() { MakeTraces(); }

    /// Every input finds the same files.
    void Reset() const
    {
        for (const auto& entry : fs::directory_iterator(folder.Path()))
            fs::remove_all(entry.path());
        if (!WriteWholeFile("a.raw", raw) || !WriteWholeFile("b.vna", text))
            std::abort();
    }

private:
    void MakeTraces()
    {
        constexpr std::size_t length = 348;
        raw.assign(length, '\0');
        const auto put = [&](std::size_t offset, std::string_view bytes) {
            raw.replace(offset - 1, bytes.size(), bytes);
        };
        put(1, std::string_view("\x01\x5C\0\0TRC-1003.20", 15));
        put(21, "11/22/202610:20:30TOWER7");
        put(55, std::string_view("\0\x03", 2));
        put(57, std::string_view("\x31\x1D\x54\x00\x35\x51\x10\x60", 8));
        put(325, std::string_view("\0\0\x03\xE8\0\0\0\x01\0\0\x13\x88\0\0\0\x02\0\0\x27\x10\0\0\0\x03", 24));
        HeadlessPlatform platform;
        Traces::Plot plot(platform);
        std::string name = "b.vna";
        if (!plot.SaveRawTrace(raw, name))
            std::abort();
        text = ReadWholeFile(name).value_or("");
    }

    Fuzz::OwnFolder folder;
    std::string raw, text;
};

/// Whether a line's arguments stay in the folder, whatever member takes them as a name.
bool StaysInside(std::string_view line)
{
    const Cli::ScriptLine parsed = Cli::ParseScriptLine(line);
    return std::none_of(parsed.Arguments.begin(), parsed.Arguments.end(), [](const auto& argument) {
        return argument.Text.find('/') != std::string::npos || argument.Text == "..";
    });
}

} // namespace

/// Scripts run in another folder.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    Fuzz::MakeNamesAbsolute(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Workplace workplace;
    workplace.Reset();
    Cli::Script script;
    std::string_view lines(reinterpret_cast<const char*>(data), size);
    while (!lines.empty()) {
        const std::string_view line = lines.substr(0, lines.find('\n'));
        lines.remove_prefix(std::min(line.size() + 1, lines.size()));
        if (!StaysInside(line))
            continue;
        const auto reply = script.Run(line);
        if (!reply)
            continue;
        Check(reply->find('\n') == reply->npos, "a reply is one line", *reply);
        Check(Cli::Json::accept(*reply), "a reply is JSON", *reply);
        Check(reply->starts_with("{\"call\":"), "a reply says what was called", *reply);
    }
    const DisplayList& picture = script.Instance().VNABox.Picture();
    Check(picture.empty() || std::holds_alternative<UserScale>(picture.front()),
          "a picture begins with its scale", "");
    return 0;
}
