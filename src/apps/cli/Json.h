// Values of the control as the script's JSON: booleans are -1 and 0, instrument texts become UTF-8, and
// numbers read back exactly.
#pragma once

#include "formats/Text.h"

#include <concepts>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <span>
#include <string>
#include <string_view>

namespace Traces::Cli {

using Json = nlohmann::ordered_json;

inline Json ToJson(std::same_as<bool> auto value)
{
    return value ? -1 : 0;
}

template <std::integral T>
requires(!std::same_as<T, bool>) Json ToJson(T value)
{
    return value;
}

/// A 32-bit float is widened, so that its digits are those of the value that it really holds.
inline Json ToJson(std::floating_point auto value)
{
    return static_cast<double>(value);
}

/// A text of the control.
inline Json ToJson(std::string_view text)
{
    return Utf8FromAnsi(text);
}

template <class Values>
requires requires(const Values& values)
{
    values.begin();
    typename Values::value_type;
} &&(!std::convertible_to<Values, std::string_view>)Json ToJson(const Values& values)
{
    Json list = Json::array();
    for (const typename Values::value_type& value : values)
        list.push_back(ToJson(value));
    return list;
}

/// Two digits a byte.
inline std::string HexText(std::span<const std::uint8_t> bytes)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    text.reserve(2 * bytes.size());
    for (const std::uint8_t byte : bytes) {
        text += digits[byte >> 4U];
        text += digits[byte & 0xFU];
    }
    return text;
}

/// One line. Bytes of file names that are no UTF-8 become replacement characters.
inline std::string ToLine(const Json& object)
{
    return object.dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace Traces::Cli
