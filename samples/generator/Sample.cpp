#include "Sample.h"

#include <array>
#include <charconv>

namespace Traces::Samples {

std::string Fixed(double value, int decimals)
{
    std::array<char, 64> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
    return {text.data(), end.ptr};
}

std::string Plain(double value)
{
    std::string text = Fixed(value, 4);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    return text;
}

} // namespace Traces::Samples
