// The control's numbers, texts and booleans under their own names: one table for the state that a script
// shows, and for the properties that it reads and writes.
#pragma once

#include "apps/cli/Json.h"
#include "apps/cli/ScriptMembers.h"

#include <span>
#include <string_view>

namespace Traces {
class Plot;
}

namespace Traces::Cli {

struct StateField {
    std::string_view Name;
    Json (*Read)(const Plot& plot);

    /// The kind of argument that a write takes, as of ScriptMember, and the write. What has none is no
    /// property of the control: `State` alone shows it.
    std::string_view Takes = {};
    void (*Write)(Plot& plot, const ScriptValues& values) = nullptr;
};

std::span<const StateField> StateFields();

/// All fields as one flat object.
Json StateJson(const Plot& plot);

/// Null when the control has no such property.
const StateField* FindProperty(std::string_view name);

} // namespace Traces::Cli
