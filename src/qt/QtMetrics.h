// Letters of the fonts that Qt draws with: their shapes' numbers and their widths, which scale linearly with
// the font's size. One table of letters serves all sizes and every thread.
#pragma once

#include "control/Screen.h"

#include <array>
#include <cstdint>

class QFont;

namespace Traces {

/// A letter of one font.
struct Letter {
    std::uint32_t Glyph;
    double Advance; ///< in font sizes
};

/// Made while a QGuiApplication exists; needs none afterwards.
class QtMetrics final : public TextMetrics {
public:
    QtMetrics();

    /// Letters aren't kerned: a text is as wide as they are together.
    double TextWidth(std::string_view text, const Font& font) const override;
    double TextHeight(const Font& font) const override;

    /// The letters by Windows-1252 code. Characters that no screen shows are blanks, and Latin letters in the
    /// font "Symbol" are Greek ones.
    using Letters = std::array<Letter, 256>;
    const Letters& LettersOf(const Font& font) const;

    /// From a text's top to its base line, in font sizes.
    double Ascent() const { return ascent; }

private:
    double ascent = 0, descent = 0;
    std::array<Letters, 4> letters{}; ///< regular, bold, and both of the Greek ones
};

/// The font that draws all texts of a weight, at some size.
QFont ScreenFont(bool bold);

} // namespace Traces
