// The control's picture as SVG, from the core alone.
#pragma once

#include <string>

namespace Traces {

struct Control;

/// A whole SVG document, as large as the control in pixels. Texts are set with the control's own metrics,
/// so a viewer without the font places them alike.
std::string SvgPicture(const Control& control);

} // namespace Traces
