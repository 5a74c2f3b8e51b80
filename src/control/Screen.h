// What the surfaces know of the device that will show them: its density, its fonts' metrics, and the scale
// of the control on it.
#pragma once

#include "control/DrawCommand.h"

#include <string_view>

namespace Traces {

inline constexpr double TwipsPerInch = 1440;
inline constexpr double TwipsPerPoint = 20;

/// Sizes of texts in points, at any font size: layout asks for them while a view records.
class TextMetrics {
public:
    virtual ~TextMetrics() = default;
    virtual double TextWidth(std::string_view text, const Font& font) const = 0;
    /// From the top of the highest letter's room to the bottom of the deepest.
    virtual double TextHeight(const Font& font) const = 0;
};

/// The core's own metrics: widths of a Helvetica-compatible sans-serif, so that pictures of the core alone
/// and of a back end with such a font agree.
const TextMetrics& BuiltInMetrics();

struct Screen {
    float TwipsPerPixelX = 15; ///< 15 at 96 dots per inch
    float TwipsPerPixelY = 15;
    float FontScaleFactor =
        1; ///< pixels of a 96 dpi screen per user unit of the control, on the tighter axis
    const TextMetrics* Metrics = &BuiltInMetrics();
};

} // namespace Traces
