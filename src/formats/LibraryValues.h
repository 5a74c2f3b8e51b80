// Values that all controls of a thread share. Each is valid until the next decode in that thread.
#pragma once

#include <string_view>

namespace Traces {

struct LibraryValues {
    double TraceVersionValue = 0; ///< firmware version of the last decoded trace of a mode that sets it
    double ScaledPower = 0;       ///< result of DbmToPowerScale
    std::string_view PowerUnit;   ///< unit of ScaledPower, a literal
};

/// The calling thread's record.
LibraryValues& Library();

} // namespace Traces
