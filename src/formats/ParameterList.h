// The parameter text of a trace: lines of key, tab and value, in order. It is what is shown, reported and
// saved. The lines stand in one text, as a file holds them.
#pragma once

#include "formats/Numbers.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Traces {

class ParameterList {
public:
    void Clear();

    /// One line at the end, as it stands.
    void AddItem(std::string_view text);

    /// "key TAB value".
    void AddLine(std::string_view key, std::string_view value);

    /// The text to append a line's parts to; EndLine closes the line. Data points go this way: they are
    /// most of a trace's lines.
    std::string& BeginLine() { return text; }
    void EndLine();

    std::size_t ListCount() const { return ends.size(); }
    std::string_view List(std::size_t index) const;

    /// All lines, each with carriage return and line feed.
    const std::string& Text() const { return text; }

private:
    std::string text;
    std::vector<std::size_t> ends; ///< end of each line in `text`, before its line break
};

} // namespace Traces
