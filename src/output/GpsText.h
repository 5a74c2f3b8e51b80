// The position of a trace as text.
#pragma once

#include <string>

namespace Traces {

struct Control;

/// Latitude, longitude and altitude of the trace on show, a line each, the last without a line end; "N/A"
/// for each without a position.
std::string GPSLocation(const Control& control);

} // namespace Traces
