// What a host stores of a control between runs, and the border styles that one of the values names.
#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace Traces {

/// By key. Booleans are -1 and 0; colours and the border style are numbers.
using PropertyBag = std::map<std::string, std::int32_t>;

enum class MyBorderStyles { pbflat = 0, pbInset = 1, pbRaised = 2 };

} // namespace Traces
