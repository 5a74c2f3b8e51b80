// The run-time fault that reaches the embedding program. Only what a host must hear of is one: a field
// that can't be read is an empty optional, and what the user must see is a message of the platform.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace Traces {

enum class FaultKind {
    Overflow,       ///< a number doesn't fit the type that the contract gives it
    Range,          ///< an index or a size outside of its array or text
    DivisionByZero, ///< a division that the trace's own numbers make impossible
    FileAccess,     ///< a file that can't be opened, read or written
};

/// "Overflow", "Range" and so on.
std::string_view FaultName(FaultKind kind);

class HostFault : public std::runtime_error {
public:
    HostFault(FaultKind kind, const std::string& what) : std::runtime_error(what), Kind(kind) {}
    FaultKind Kind;
};

} // namespace Traces
