#include "modes/gsm/GSMChart.h"

#include "control/Control.h"
#include "formats/HostFault.h"

namespace Traces {

namespace {

const GSMRecord::Curve& CurveOf(const GSMRecord& record, std::int16_t view)
{
    switch (view) {
    case GSMView::Frame: return record.FrameCurve;
    case GSMView::Slot: return record.SlotCurve;
    default: return record.SpectrumCurve;
    }
}

template <std::int16_t View>
constexpr FamilyMenuItem ItemOf(std::string_view item, std::string_view caption, std::string_view view)
{
    return {item,
            caption,
            [](Control& control) {
                ShowGSMCurve(control, View);
                RedrawTrace(control);
            },
            [](const Control& control) { return control.GSMViewMode == View; },
            nullptr,
            view};
}

} // namespace

void ShowGSMCurve(Control& control, std::int16_t view)
{
    const GSMRecord::Curve& curve = CurveOf(control.GSM, view);
    TraceSlot& slot = control.TraceSlots[0];
    control.GSMViewMode = view;
    for (std::size_t i = 0; static_cast<int>(i) < slot.Length; ++i) {
        slot.X[i] = static_cast<float>(i);
        if (i >= curve.size())
            throw HostFault(FaultKind::Range, "the chart has more points than the burst's curve");
        slot.Y[i] = curve[i];
    }
    control.YScaleTop = 10;
    control.YScaleBottom = -90;
    control.AutoScaleY = false;
}

void FillGSMCurve(Control& control)
{
    const std::int16_t view = control.GSM.DisplayType;
    const bool known = view == GSMView::Frame || view == GSMView::Slot;
    SetSlotLength(control, 0, GSMRecord::Points);
    ShowGSMCurve(control, known ? view : GSMView::Spectrum);
}

constinit const std::array<FamilyMenuItem, 3> GSMMenuItems = {{
    ItemOf<GSMView::Spectrum>("menuGSMSpec", "Spectrum Mode", "spectrum"),
    ItemOf<GSMView::Frame>("menuGSMFrame", "Frame Mode", "frame"),
    ItemOf<GSMView::Slot>("menuGSMSlot", "Slot Mode", "slot"),
}};

} // namespace Traces
