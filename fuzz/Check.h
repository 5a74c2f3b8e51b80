// What a fuzz target says of a property that doesn't hold.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace Traces::Fuzz {

/// Ends the run with a report when a property doesn't hold.
inline void Check(bool holds, const char* property, std::string_view shown = {})
{
    if (holds)
        return;
    std::fprintf(stderr, "%s\n%.*s\n", property, static_cast<int>(shown.size()), shown.data());
    std::abort();
}

} // namespace Traces::Fuzz
