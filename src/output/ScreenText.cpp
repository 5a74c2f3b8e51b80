#include "output/ScreenText.h"

#include "formats/Text.h"

#include <array>

namespace Traces {

namespace {

// Greek letters in the order of the Latin ones that stand for them in the Symbol font, A to Z and a to z.
constexpr std::array<std::string_view, 26> GreekCapitals = {"Α", "Β", "Χ", "Δ", "Ε", "Φ", "Γ", "Η", "Ι",
                                                            "ϑ", "Κ", "Λ", "Μ", "Ν", "Ο", "Π", "Θ", "Ρ",
                                                            "Σ", "Τ", "Υ", "ς", "Ω", "Ξ", "Ψ", "Ζ"};
constexpr std::array<std::string_view, 26> GreekSmalls = {"α", "β", "χ", "δ", "ε", "φ", "γ", "η", "ι",
                                                          "ϕ", "κ", "λ", "μ", "ν", "ο", "π", "θ", "ρ",
                                                          "σ", "τ", "υ", "ϖ", "ω", "ξ", "ψ", "ζ"};

std::string GreekText(std::string_view text)
{
    std::string greek;
    for (const char c : text) {
        if (c >= 'A' && c <= 'Z')
            greek += GreekCapitals[static_cast<std::size_t>(c - 'A')];
        else if (c >= 'a' && c <= 'z')
            greek += GreekSmalls[static_cast<std::size_t>(c - 'a')];
        else
            greek += Utf8FromAnsi(std::string_view(&c, 1));
    }
    return greek;
}

} // namespace

std::string ScreenText(std::string_view text, std::string_view fontName)
{
    // Control characters, and the five codes that Windows-1252 leaves open.
    constexpr std::string_view unshown = "\x7F\x81\x8D\x8F\x90\x9D";
    std::string shown(text);
    for (char& c : shown)
        if (static_cast<unsigned char>(c) < ' ' || unshown.find(c) != std::string_view::npos)
            c = ' ';
    return fontName == "Symbol" ? GreekText(shown) : Utf8FromAnsi(shown);
}

} // namespace Traces
