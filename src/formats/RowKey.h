// Keys of the lines that a trace's rows have in the parameter list and in text files.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace Traces {

/// A row's key, its number with at least so many digits: RowKey("CDP Data ", 1, 3) is "CDP Data 001:".
class RowKey {
public:
    RowKey(std::string_view stem, std::size_t number, std::size_t digits = 1)
    {
        // From the back: colon, digits, stem.
        *--begin = ':';
        for (; number > 0 || digits > 0; number /= 10) {
            *--begin = static_cast<char>('0' + number % 10);
            digits -= digits > 0 ? 1 : 0;
        }
        const std::size_t room = static_cast<std::size_t>(begin - text.data());
        begin -= stem.substr(0, room).copy(begin - std::min(room, stem.size()), room);
    }
    RowKey(const RowKey&) = delete;
    RowKey& operator=(const RowKey&) = delete;

    operator std::string_view() const
    {
        return {begin, static_cast<std::size_t>(text.data() + text.size() - begin)};
    }

private:
    std::array<char, 56> text;
    char* begin = text.data() + text.size();
};

} // namespace Traces
