#include "formats/HostFault.h"

namespace Traces {

std::string_view FaultName(FaultKind kind)
{
    switch (kind) {
    case FaultKind::Overflow: return "Overflow";
    case FaultKind::Range: return "Range";
    case FaultKind::DivisionByZero: return "DivisionByZero";
    case FaultKind::FileAccess: return "FileAccess";
    }
    return "";
}

} // namespace Traces
