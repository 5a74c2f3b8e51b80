// Reading points' lines where they stand as a save writes them, one behind the other: in a fraction of the
// time of lookups. Whoever reads so makes sure that lookups would find the same lines.
#pragma once

#include <charconv>
#include <cmath>
#include <string_view>
#include <system_error>

namespace Traces {

/// Takes a plain number and the character behind it off the front of a text; false, with the text as it was,
/// when something else stands there.
inline bool TakeNumber(std::string_view& rest, float& number, char behind)
{
    const char* const end = rest.data() + rest.size();
    const auto [stop, error] = std::from_chars(rest.data(), end, number);
    if (error != std::errc() || stop == end || *stop != behind || !std::isfinite(number))
        return false;
    rest.remove_prefix(static_cast<std::size_t>(stop + 1 - rest.data()));
    return true;
}

} // namespace Traces
