// What fault a call ends in.
#pragma once

#include "formats/HostFault.h"

#include <optional>

namespace Traces::Testing {

/// Nothing when the call ends without one.
std::optional<FaultKind> FaultOf(const auto& call)
{
    try {
        call();
    } catch (const HostFault& fault) {
        return fault.Kind;
    }
    return std::nullopt;
}

} // namespace Traces::Testing
