// A control that shows traces without a window, and what is to be seen in its pictures.
#pragma once

#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "control/Plot.h"
#include "formats/Files.h"
#include "support/TraceFiles.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace Traces::Testing {

class ShownTrace : public testing::Test {
protected:
    HeadlessPlatform platform;
    Plot plot{platform};
    Control& state = plot.Instance();
    const TemporaryFolder folder;

    /// The trace on show as a text file's content; the name's extension is the mode's.
    std::string Saved()
    {
        std::string name = folder / "saved";
        state.TraceSaved = true;
        EXPECT_TRUE(plot.SaveTrace(name));
        return ReadWholeFile(name).value_or("");
    }

    /// Lines of the parameter list, by default those behind the header's eight, with "|" between them and a
    /// blank for a tab.
    std::string Lines(std::size_t first = 8, std::size_t count = std::string::npos) const
    {
        return LinesOf(plot, first, count);
    }

    static std::string LinesOf(const Plot& plot, std::size_t first = 8, std::size_t count = std::string::npos)
    {
        std::string text;
        const auto lines = plot.Parameters();
        for (std::size_t i = first; i < lines.size() && i - first < count; ++i)
            text += (i > first ? "|" : "") + lines[i];
        std::ranges::replace(text, '\t', ' ');
        return text;
    }

    template <class Command>
    static std::vector<Command> CommandsOf(const ChartSurface& surface)
    {
        std::vector<Command> commands;
        for (const DrawCommand& command : surface.Picture())
            if (const auto* drawn = std::get_if<Command>(&command))
                commands.push_back(*drawn);
        return commands;
    }

    static std::vector<FillCommand> Fills(const ChartSurface& surface, Colour colour)
    {
        std::vector<FillCommand> fills = CommandsOf<FillCommand>(surface);
        std::erase_if(fills, [&](const FillCommand& fill) { return fill.Ink != colour; });
        return fills;
    }

    static std::ptrdiff_t CountText(const ChartSurface& surface, std::string_view text)
    {
        return std::ranges::count(CommandsOf<TextCommand>(surface), text, &TextCommand::Text);
    }

    static bool Says(const ChartSurface& surface, std::string_view text)
    {
        return CountText(surface, text) > 0;
    }

    /// The big-endian number at a position of a frame.
    static std::int64_t Number(const std::string& frame, int position, int width)
    {
        std::int64_t value = 0;
        for (int i = 0; i < width; ++i)
            value =
                value * 256 + static_cast<unsigned char>(frame[static_cast<std::size_t>(position - 1 + i)]);
        return value;
    }
};

} // namespace Traces::Testing
