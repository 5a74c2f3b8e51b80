#include "modes/iden/IDENChart.h"

#include "control/Control.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

namespace Traces {

namespace {

/// The 401 levels of a curve, or the values of the constellation, I and Q in turn.
std::span<const float> ValuesOf(const IDENRecord& record, std::int16_t view)
{
    const auto levels = [](const IDENRecord::Curve& curve) {
        return std::span<const float>(curve).first(IDENRecord::CurvePoints);
    };
    switch (view) {
    case IDENView::ACPR: return levels(record.ACPRCurve);
    case IDENView::PowerTime: return levels(record.PowerTimeCurve);
    case IDENView::Demod:
        return std::span<const float>(record.ConstellationPoints).first(IDENRecord::ConstellationValues);
    default: return levels(record.SpectrumCurve);
    }
}

void ShowView(Control& control, std::int16_t view)
{
    control.IDENViewMode = view;
    control.TraceSlots[0] = IDENCurve(control.IDEN, view);
    const ChartWindow window = IDENWindow(control.IDEN, view);
    control.YScaleTop = window.Ymax;
    control.YScaleBottom = window.Ymin;
    control.AutoScaleY = false;
}

/// The layout of the control's size at hand, wide or not, with its redraw.
void LayOutAgain(Control& control, bool wide)
{
    control.IDENWideLayout = wide;
    Resize(control, static_cast<int>(control.Surface.Width), static_cast<int>(control.Surface.Height));
}

template <std::int16_t View>
constexpr FamilyMenuItem ItemOf(std::string_view item, std::string_view caption, std::string_view view)
{
    return {item,
            caption,
            [](Control& control) {
                ShowView(control, View);
                LayOutAgain(control, false);
            },
            [](const Control& control) { return !control.IDENWideLayout && control.IDENViewMode == View; },
            nullptr,
            view};
}

} // namespace

std::string_view IDENViewName(std::int16_t view)
{
    switch (view) {
    case IDENView::ACPR: return "iDEN-ACPR View";
    case IDENView::PowerTime: return "iDEN-Power vs Time";
    case IDENView::Demod: return "iDEN-Demod";
    default: return "iDEN-Spectrum View";
    }
}

TraceSlot IDENCurve(const IDENRecord& record, std::int16_t view)
{
    const std::span<const float> values = ValuesOf(record, view);
    const bool pairs = view == IDENView::Demod;
    const std::size_t points = pairs ? values.size() / 2 : values.size();
    TraceSlot slot{static_cast<std::int16_t>(points), std::vector<float>(points), std::vector<float>(points)};
    for (std::size_t i = 0; i < points; ++i) {
        slot.X[i] = pairs ? values[2 * i] : static_cast<float>(i);
        slot.Y[i] = pairs ? values[2 * i + 1] : values[i];
    }
    return slot;
}

ChartWindow IDENWindow(const IDENRecord& record, std::int16_t view)
{
    constexpr float divisions = 10, usualScale = 10, margin = 1.1F, mostReach = 1E30F;
    const std::span<const float> values = ValuesOf(record, view);
    if (view != IDENView::Demod) {
        const float scale = record.ScalePerDivision > 0 ? record.ScalePerDivision : usualScale;
        const float top = record.ReferenceLevel, bottom = top - divisions * scale;
        return {0, static_cast<float>(values.size() - 1), std::isfinite(bottom) ? bottom : top, top};
    }
    float reach = 1;
    for (const float value : values)
        reach = std::max(reach, std::abs(value) * margin);
    reach = std::min(reach, mostReach);
    return {-reach, reach, -reach, reach};
}

void FillIDENCurve(Control& control)
{
    const bool known = std::ranges::count(IDENView::All, control.IDEN.ViewMode) != 0;
    ShowView(control, known ? control.IDEN.ViewMode : IDENView::Spectrum);
}

constinit const std::array<FamilyMenuItem, 5> IDENMenuItems = {{
    ItemOf<IDENView::Spectrum>("menuIDENSpec", "Spectrum", "spectrum"),
    ItemOf<IDENView::ACPR>("menuIDENACPR", "ACPR", "acpr"),
    ItemOf<IDENView::PowerTime>("menuIDENPower", "Power vs Time", "power-time"),
    ItemOf<IDENView::Demod>("menuIDENDemod", "Demod", "demod"),
    {"menuIDENAll", "All Views", [](Control& control) { LayOutAgain(control, true); },
     [](const Control& control) { return control.IDENWideLayout; },
     // Beside the pane there is no room for four.
     [](const Control& control) { return !control.ShowParams; }, "all"},
}};

} // namespace Traces
