#include "qt/QtMetrics.h"

#include "output/ScreenText.h"

#include <QFont>
#include <QRawFont>
#include <QString>

namespace Traces {

namespace {

constexpr std::string_view Symbol = "Symbol";

/// The one character that a code is shown as; a blank for those of Windows-1252's open places.
QChar ShownAs(char code, std::string_view fontName)
{
    const QString shown = QString::fromStdString(ScreenText({&code, 1}, fontName));
    return shown.front().category() == QChar::Other_Control ? QChar(u' ') : shown.front();
}

QtMetrics::Letters LettersIn(const QRawFont& face, std::string_view fontName)
{
    QtMetrics::Letters letters{};
    QString shown;
    for (std::size_t code = 0; code < letters.size(); ++code)
        shown += ShownAs(static_cast<char>(code), fontName);
    const auto glyphs = face.glyphIndexesForString(shown);
    const auto advances = face.advancesForGlyphIndexes(glyphs, QRawFont::UseDesignMetrics);
    for (qsizetype code = 0; code < advances.size(); ++code)
        letters[static_cast<std::size_t>(code)] = {glyphs[code], advances[code].x() / face.pixelSize()};
    return letters;
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

const QtMetrics::Face& QtMetrics::FaceOf(const Font& font) const
{
    Face& face = faces[font.Bold ? 1 : 0];
    std::call_once(face.Once, [&] {
        QRawFont raw = QRawFont::fromFont(ScreenFont(font.Bold));
        // In units of the design, widths are whole numbers.
        raw.setPixelSize(raw.unitsPerEm());
        face.Ascent = raw.ascent() / raw.pixelSize();
        face.Descent = raw.descent() / raw.pixelSize();
        face.Latin = LettersIn(raw, {});
        face.Greek = LettersIn(raw, Symbol);
    });
    return face;
}

const QtMetrics::Letters& QtMetrics::LettersOf(const Font& font) const
{
    const Face& face = FaceOf(font);
    return font.Name == Symbol ? face.Greek : face.Latin;
}

double QtMetrics::Ascent(const Font& font) const
{
    return FaceOf(font).Ascent;
}

double QtMetrics::TextWidth(std::string_view text, const Font& font) const
{
    const Letters& letters = LettersOf(font);
    double sum = 0;
    for (const char code : text)
        sum += letters[static_cast<unsigned char>(code)].Advance;
    return sum * static_cast<double>(font.Size);
}

double QtMetrics::TextHeight(const Font& font) const
{
    const Face& face = FaceOf(font);
    return (face.Ascent + face.Descent) * static_cast<double>(font.Size);
}

} // namespace Traces
