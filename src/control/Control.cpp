#include "control/Control.h"

#include "control/Properties.h"
#include "formats/HostFault.h"
#include "formats/Text.h"

#include <algorithm>
#include <cmath>

namespace Traces {

namespace {

/// A curve that a host sees when it makes a view current before any trace.
void FillDemonstrationCurve(Control& control)
{
    constexpr std::int16_t points = 64;
    SetSlotLength(control, 0, points);
    TraceSlot& slot = control.TraceSlots[0];
    for (std::size_t i = 0; i < slot.X.size(); ++i) {
        slot.X[i] = static_cast<float>(i) / 3.0F;
        const auto x = static_cast<double>(slot.X[i]);
        slot.Y[i] = static_cast<float>(std::sin(x) * std::exp(-x / 5));
    }
}

void SetColours(Control& control)
{
    control.idenHolder.BackColor = Grey;
    for (ChartSurface* box : control.ChartBoxes())
        box->BackColor = Black;
    for (ChartSurface* box : {&control.PowerBar, &control.VppBar, &control.ErrorsBox, &control.idenbox1,
                              &control.idenbox2, &control.idenbox3})
        box->BackColor = Black;
}

/// The levels stand in black on the panel that lies under them.
void SetUpLevelLabels(Control& control)
{
    constexpr Colour panelGrey = RGB(170, 170, 170); // that of chart/Panel.h
    for (Label* label : {&control.PowerLabel, &control.ZephraPowerLabel, &control.ZephraPowerLabelUnit,
                         &control.VppLabel, &control.VFFreqLabel, &control.VFPowerLabel}) {
        label->Visible = true;
        label->BackColor = panelGrey;
        label->ForeColor = Black;
        label->Centred = true;
    }
}

void Initialize(Control& control)
{
    FillDemonstrationCurve(control);
    for (std::size_t slot = 1; slot < LiveSlots; ++slot) {
        control.TraceSlots[slot].X.resize(1);
        control.TraceSlots[slot].Y.resize(1);
    }
    control.VNAMarkers.Holder = &control.VNAHolder;
    control.SPAMarkers.Holder = &control.SPAHolder;
    control.E1T1Markers.Holder = &control.E1T1Holder;
    control.GSMMarkers.Holder = &control.GSMHolder;
    control.CDMAMarkers.Holder = &control.CDMAHolder;
    control.EvDOMarkers.Holder = &control.EvDOHolder;
    control.SpectroMarkers.Holder = &control.SpectroHolder;
    SetColours(control);
    SetUpLevelLabels(control);
    for (ChartSurface* holder : control.Holders())
        holder->Visible = false;
    control.ParamBox.Visible = false;
    for (ChartSurface* box : {&control.idenbox1, &control.idenbox2, &control.idenbox3})
        box->Visible = false;
    for (Label* label : {&control.VNACoords, &control.SPACoords, &control.CSCoords, &control.SpectroCoords,
                         &control.E1T1Coords, &control.GSMCoords, &control.CDMACoords, &control.EvDOCoords,
                         &control.EvDOSubCoords, &control.iDenCoords})
        label->Caption = "Coordinates";
}

} // namespace

Control::Control(Traces::Platform& platform, const Traces::Families& families)
    : ChildControls(static_cast<const Screen&>(*this)), Platform(platform), Families(families)
{
    TwipsPerPixelX = platform.TwipsPerPixelX();
    TwipsPerPixelY = platform.TwipsPerPixelY();
    Metrics = &platform.Metrics();
    Initialize(*this);
    Surface.Width = DesignWidth;
    Surface.Height = DesignHeight;
    LoadProperties(*this, {});
}

const ModeRow* Families::FindMode(int mode) const
{
    const auto row =
        std::find_if(Modes.begin(), Modes.end(), [&](const ModeRow& each) { return each.Mode == mode; });
    return row == Modes.end() ? nullptr : &*row;
}

const FileKind* Families::FindFileKind(std::string_view extension) const
{
    const auto kind = std::find_if(Files.begin(), Files.end(),
                                   [&](const FileKind& each) { return each.Extension == extension; });
    return kind == Files.end() ? nullptr : &*kind;
}

const ModeRow* CurrentRow(const Control& control)
{
    return control.Families.FindMode(control.CurrentMode);
}

std::size_t UsedPoints(const TraceSlot& slot)
{
    return std::min(static_cast<std::size_t>(std::max<std::int16_t>(slot.Length, 0)), slot.X.size());
}

void SetSlotLength(Control& control, std::size_t slot, std::int16_t length)
{
    TraceSlot& curve = control.TraceSlots[slot];
    curve.Length = length;
    if (length < 1)
        throw HostFault(FaultKind::Range, std::to_string(length) + " data points make no curve");
    curve.X.resize(static_cast<std::size_t>(length));
    curve.Y.resize(static_cast<std::size_t>(length));
}

void Clear(Control& control)
{
    for (ChartSurface* box : control.ChartBoxes())
        box->Erase();
    for (std::size_t slot = 0; slot < LiveSlots; ++slot)
        control.TraceSlots[slot].Length = 0;
    control.Platform.Repaint();
}

void SetTraceName(Control& control, std::string_view name)
{
    control.TraceName = TrimNuls(name);
    control.Header.RefNumber = control.TraceName;
    RedrawTrace(control);
}

void RedrawTrace(Control& control)
{
    for (ChartSurface* holder : control.Holders())
        holder->Visible = false;
    const ModeRow* row = CurrentRow(control);
    if (row != nullptr && row->View != nullptr) {
        if (row->Holder != nullptr)
            (control.*row->Holder).Visible = true;
        row->View(control);
    }
    control.Platform.Repaint();
}

bool TryRedrawTrace(Control& control)
{
    try {
        RedrawTrace(control);
        return true;
    } catch (const HostFault&) {
        return false;
    }
}

} // namespace Traces
