#include "qt/SizedFonts.h"

#include <QFont>

#include <algorithm>

namespace Traces {

SizedFonts::SizedFonts(const QtMetrics& textMetrics)
    : metrics(textMetrics), regular(QRawFont::fromFont(ScreenFont(false))),
      bold(QRawFont::fromFont(ScreenFont(true)))
{
}

const QRawFont& SizedFonts::Sized(bool isBold, double pixels)
{
    const auto known = std::ranges::find_if(
        entries, [&](const Entry& entry) { return entry.Bold == isBold && entry.Pixels == pixels; });
    if (known != entries.end())
        return known->Sized;
    // A picture needs a handful. More pile up only while a window is being resized.
    constexpr std::size_t most = 16;
    if (entries.size() == most)
        entries.clear();
    entries.push_back({isBold, pixels, isBold ? bold : regular});
    entries.back().Sized.setPixelSize(pixels);
    return entries.back().Sized;
}

} // namespace Traces
