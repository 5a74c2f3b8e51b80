// Instrument texts on their way to a screen: UTF-8, and the font families that stand for the names that the
// views use.
#pragma once

#include <string>
#include <string_view>

namespace Traces {

/// The family that draws a font name: a Helvetica-compatible sans-serif for all of them, since the letters
/// of "Symbol" become Greek ones in the text.
inline constexpr std::string_view ScreenFontFamily = "Liberation Sans";

/// A Windows-1252 text as UTF-8. Letters in the font "Symbol" become their Greek ones; control characters,
/// which no screen shows, become blanks.
std::string ScreenText(std::string_view text, std::string_view fontName);

} // namespace Traces
