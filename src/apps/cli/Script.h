// A script's control and the calls on it: one line in, one JSON object out. Fuzzers and tests drive it as the
// command does.
#pragma once

#include "apps/cli/Json.h"
#include "control/HeadlessPlatform.h"
#include "control/Plot.h"
#include "control/PlotEvents.h"
#include "formats/Text.h"

#include <optional>
#include <string>
#include <string_view>

namespace Traces::Cli {

/// Answers are UTF-8, as a script has them: files are named so, and texts for the control become its own.
class ScriptPlatform final : public HeadlessPlatform {
public:
    std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                        std::string_view initial) override
    {
        const auto answer = HeadlessPlatform::InputBox(prompt, title, initial);
        return answer ? std::optional(AnsiFromUtf8(*answer)) : std::nullopt;
    }
};

class Script {
public:
    Script() { plot.Listen(&events); }

    /// The reply to a line, without a line break; nothing for a blank line. No line ends the script.
    std::optional<std::string> Run(std::string_view line);

    Traces::Plot& Plot() { return plot; }
    Control& Instance() { return plot.Instance(); }
    HeadlessPlatform& Platform() { return platform; }

private:
    /// Keeps what the control tells its host, for the reply.
    class EventLog : public PlotEvents {
    public:
        Json Events = Json::array();

        void KeyDown(int keyCode, int shift) override { Events.push_back({"KeyDown", keyCode, shift}); }
        void KeyPress(int keyAscii) override { Events.push_back({"KeyPress", keyAscii}); }
        void KeyUp(int keyCode, int shift) override { Events.push_back({"KeyUp", keyCode, shift}); }
        void MouseDown(int button, int shift, float x, float y) override
        {
            Events.push_back({"MouseDown", button, shift, ToJson(x), ToJson(y)});
        }
        void MouseUp(int button, int shift, float x, float y) override
        {
            Events.push_back({"MouseUp", button, shift, ToJson(x), ToJson(y)});
        }
        void Click() override { Events.push_back(Json::array({"Click"})); }
        void DblClick() override { Events.push_back(Json::array({"DblClick"})); }
        void MarkerChanged(std::int16_t index, bool value) override
        {
            Events.push_back({"MarkerChanged", index, value});
        }
    };

    Json Call(std::string_view line);

    EventLog events;
    ScriptPlatform platform;
    Traces::Plot plot{platform};
};

} // namespace Traces::Cli
