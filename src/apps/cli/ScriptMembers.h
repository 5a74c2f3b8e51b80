// The members of the control that a script can call, one row each.
#pragma once

#include "apps/cli/Json.h"
#include "apps/cli/ScriptLine.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Traces::Cli {

/// The member that tells what the call before it made the platform do; other calls forget that.
inline constexpr std::string_view AskedMember = "Asked";

class Script;

/// A call's arguments, converted to what the member takes.
class ScriptValues {
public:
    using Value = std::variant<std::string, std::int16_t, std::int32_t, float, bool, std::vector<float>>;

    std::vector<Value> Values;

    bool Has(std::size_t index) const { return index < Values.size(); }
    const std::string& Text(std::size_t index) const { return std::get<std::string>(Values.at(index)); }
    std::int16_t Integer(std::size_t index) const { return std::get<std::int16_t>(Values.at(index)); }
    std::int32_t Long(std::size_t index) const { return std::get<std::int32_t>(Values.at(index)); }
    float Number(std::size_t index) const { return std::get<float>(Values.at(index)); }
    bool Boolean(std::size_t index) const { return std::get<bool>(Values.at(index)); }
    const std::vector<float>& Numbers(std::size_t index) const
    {
        return std::get<std::vector<float>>(Values.at(index));
    }
};

/// `Takes` lists the arguments by kind, in brackets when they may be left out:
/// - "file": a file's name; the member gets the bytes,
/// - "name": a file's name or a word, as given,
/// - "text": UTF-8, which becomes a text of the control,
/// - "integer": 16 bits, "long": 32 bits, "number": a float, "boolean": true, false or a number,
/// - "numbers": a list in brackets, as floats.
/// What `Call` gives are the fields of the reply: "result" and others, or none.
struct ScriptMember {
    std::string_view Name;
    std::string_view Takes;
    Json (*Call)(Script& script, const ScriptValues& values);
};

std::span<const ScriptMember> ScriptMembers();

/// Calls a member, or reads or writes a property of the control. The reply's fields: "error" for an unknown
/// member or arguments that it doesn't take.
/// @throws HostFault what the member throws; Overflow for a number that its argument can't hold; FileAccess
/// for a file that can't be read.
Json CallMember(Script& script, const ScriptLine& line);

} // namespace Traces::Cli
