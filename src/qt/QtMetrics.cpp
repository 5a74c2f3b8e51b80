#include "qt/QtMetrics.h"

#include "output/ScreenText.h"

#include <QFont>
#include <QRawFont>
#include <QString>

namespace Traces {

namespace {

constexpr std::string_view Symbol = "Symbol";

std::size_t TableOf(const Font& font)
{
    return (font.Bold ? 1U : 0U) + (font.Name == Symbol ? 2U : 0U);
}

/// The one character that a code is shown as; a blank for those of Windows-1252's open places.
QChar ShownAs(char code, std::string_view fontName)
{
    const QString shown = QString::fromStdString(ScreenText({&code, 1}, fontName));
    return shown.front().category() == QChar::Other_Control ? QChar(u' ') : shown.front();
}

} // namespace

QFont ScreenFont(bool bold)
{
    QFont font(QString::fromUtf8(ScreenFontFamily.data(), ScreenFontFamily.size()));
    font.setStyleHint(QFont::SansSerif);
    font.setBold(bold);
    // Horizontal strokes snap to pixels, widths stay as they are. Shades of grey alone keep the colours of a
    // picture few.
    font.setHintingPreference(QFont::PreferVerticalHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

QtMetrics::QtMetrics()
{
    for (const bool bold : {false, true}) {
        QRawFont face = QRawFont::fromFont(ScreenFont(bold));
        // In units of the design, widths are whole numbers.
        face.setPixelSize(face.unitsPerEm());
        const double size = face.pixelSize();
        // Bold letters take the same room above and below the base line.
        ascent = face.ascent() / size;
        descent = face.descent() / size;
        for (const std::string_view name : {std::string_view(), Symbol}) {
            QString shown;
            for (std::size_t code = 0; code < std::tuple_size_v<Letters>; ++code)
                shown += ShownAs(static_cast<char>(code), name);
            const auto glyphs = face.glyphIndexesForString(shown);
            const auto advances = face.advancesForGlyphIndexes(glyphs, QRawFont::UseDesignMetrics);
            Letters& table = letters[TableOf({std::string(name), 1, bold, false})];
            for (qsizetype code = 0; code < advances.size(); ++code)
                table[static_cast<std::size_t>(code)] = {glyphs[code], advances[code].x() / size};
        }
    }
}

const QtMetrics::Letters& QtMetrics::LettersOf(const Font& font) const
{
    return letters[TableOf(font)];
}

double QtMetrics::TextWidth(std::string_view text, const Font& font) const
{
    const Letters& table = LettersOf(font);
    double sum = 0;
    for (const char code : text)
        sum += table[static_cast<unsigned char>(code)].Advance;
    return sum * static_cast<double>(font.Size);
}

double QtMetrics::TextHeight(const Font& font) const
{
    return (ascent + descent) * static_cast<double>(font.Size);
}

} // namespace Traces
