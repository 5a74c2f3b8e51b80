#include "control/ChartMenu.h"

#include "chart/ChartMouse.h"
#include "chart/Markers.h"
#include "control/Control.h"
#include "control/Plot.h"
#include "control/TraceFile.h"
#include "formats/TraceMode.h"
#include "output/Capture.h"
#include "output/GpsText.h"

#include <algorithm>
#include <array>

namespace Traces {

namespace {

constexpr std::array<std::string_view, 10> MarkerCaptions = {
    "Marker 1", "Marker 2", "Marker 3",          "Marker 4", "Marker 5",
    "Marker 6", "-",        "Clear All markers", "-",        "Show Marker Values"};

const FamilyMenuItem* FindFamilyItem(const Control& control, std::string_view name)
{
    const ModeRow* row = CurrentRow(control);
    if (row == nullptr)
        return nullptr;
    const auto found = std::ranges::find(row->MenuItems, name, &FamilyMenuItem::Name);
    return found == row->MenuItems.end() ? nullptr : &*found;
}

bool IsChecked(const Control& control, std::string_view familyItem)
{
    const FamilyMenuItem* item = FindFamilyItem(control, familyItem);
    return item != nullptr && item->Checked != nullptr && item->Checked(control);
}

/// An item that only the family on show has.
MenuItem FamilyItem(const Control& control, std::string_view name, std::string_view caption, bool shown)
{
    const FamilyMenuItem* item = FindFamilyItem(control, name);
    const bool enabled = item == nullptr || item->Enabled == nullptr || item->Enabled(control);
    return {name, caption, shown, enabled, IsChecked(control, name)};
}

MenuItem MarkersMenu(const Control& control, const MarkerSet* markers)
{
    const ModeRow* row = CurrentRow(control);
    // Lines and bursts have marker sets, but no Markers item.
    const bool hidden = (row != nullptr && row->Markers == nullptr) ||
                        control.CurrentMode == TraceMode::GSM || control.CurrentMode == TraceMode::E1 ||
                        control.CurrentMode == TraceMode::T1 || markers == nullptr;
    // The spectrum of a code domain trace has no markers.
    const bool enabled = !IsChecked(control, "menuCDMARFSpec");
    MenuItem head{"menuMarkerHead", "Markers", !hidden, enabled};
    for (std::size_t i = 0; i < MarkerCaptions.size(); ++i) {
        MenuItem item{"menuMarkers", MarkerCaptions[i]};
        item.Index = static_cast<int>(i);
        if (!hidden && enabled && i < MarkerCount)
            item.Checked = markers->MarkerOn[i];
        if (!hidden && enabled && item.Index == MarkerItem::ShowValues)
            item.Checked = control.DisplayMarkerValues;
        head.Items.push_back(item);
    }
    return head;
}

void RunMarkerItem(Control& control, int index, bool checked)
{
    SetMarkerState(control, static_cast<std::int16_t>(index), !checked);
}

void RunTraceInfo(Control& control, int, bool)
{
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < control.lstParameters.ListCount(); ++i)
        lines.emplace_back(control.lstParameters.List(i));
    control.Platform.ShowParameters(lines);
}

void RunSave(Control& control, int, bool)
{
    std::string filename;
    SaveTrace(control, filename);
}

void RunSubTitle(Control& control, int, bool)
{
    const LifeWatch watch(control);
    const auto answer =
        control.Platform.InputBox("Enter a subtitle for this plot.", "Sub-title Entry", control.TraceName);
    if (answer && !answer->empty() && !watch.Gone())
        SetTraceName(control, *answer);
}

void RunGpsCoords(Control& control, int, bool)
{
    std::string text = GPSLocation(control);
    // Nobody is told of a copy that the system refused.
    if (text.find("N/A") == std::string::npos && control.Platform.ClearClipboard() &&
        control.Platform.SetClipboardText(text))
        text += "\r\n\r\n(copied to clipboard)";
    control.Platform.MessageBox({"GPS Position", text, MessageIcon::Information});
}

struct ItemHandler {
    std::string_view Name;
    void (*Run)(Control& control, int index, bool checked);
};

constexpr auto Handlers = std::to_array<ItemHandler>({
    {"menuAutoScale", [](Control& control, int, bool) { ToggleAutoScale(control); }},
    {"menuUndoZoom", [](Control& control, int, bool) { UndoZoom(control); }},
    {"menuMarkers", RunMarkerItem},
    {"menuSubTitle", RunSubTitle},
    {"menuTraceInfo", RunTraceInfo},
    {"menuPMTraceInfo", RunTraceInfo},
    {"menuSave2File", RunSave},
    {"menuPMSaveTrace", RunSave},
    {"menuClipboardCopy", [](Control& control, int, bool) { Copy2Clipboard(control); }},
    {"menuPMClipboardCopy", [](Control& control, int, bool) { Copy2Clipboard(control); }},
    {"menuGPSCoords", RunGpsCoords},
});

void Show(Control& control, const Menu& menu)
{
    const LifeWatch watch(control);
    const auto choice = control.Platform.PopupMenu(menu);
    if (!choice || watch.Gone())
        return;
    if (const MenuItem* item = FindChosen(menu.Items, *choice))
        RunMenuItem(control, *choice, item->Checked);
}

} // namespace

Menu ChartMenu(const Control& control, const MarkerSet* markers)
{
    const bool onChart = markers != nullptr;
    const int mode = control.CurrentMode;
    const bool gsm = mode == TraceMode::GSM;
    const bool cdma = mode == TraceMode::CDMA;
    const bool evdo = mode == TraceMode::EvDO;
    const bool iden = mode == TraceMode::IDEN;
    MenuItem markerHead = MarkersMenu(control, markers);
    const bool hasMarkers = markerHead.Visible;
    return {"menuPopUpHeader",
            {
                // A spectrogram's other axis is time.
                {"menuAutoScale", "AutoScale", onChart && mode != TraceMode::Spectrogram, true,
                 control.AutoScaleY},
                {"menuUndoZoom", "Undo Zoom", onChart, control.ZoomActive},
                {"menuGSMSepbar", "-", gsm},
                FamilyItem(control, "menuGSMSpec", "Spectrum Mode", gsm),
                FamilyItem(control, "menuGSMFrame", "Frame Mode", gsm),
                FamilyItem(control, "menuGSMSlot", "Slot Mode", gsm),
                {"menuCDAMSepbar", "-", cdma},
                FamilyItem(control, "menuCDMAHistogram", "CDP Histogram", cdma),
                FamilyItem(control, "menuCDMARFSpec", "RF Spectrum Graph", cdma),
                FamilyItem(control, "menuCDMABitReverse", "Bit Reverse", cdma),
                {"menuEvDOeSepbar", "-", evdo},
                FamilyItem(control, "menuEvDOCDPMAC", "CDP - MAC", evdo),
                FamilyItem(control, "menuEvDOCDPData", "CDP - Data", evdo),
                FamilyItem(control, "menuEvDOOTA", "Over the Air", evdo),
                FamilyItem(control, "menuEvDORFSpecIdle", "RF Spectrum - Idle", evdo),
                FamilyItem(control, "menuEvDORFSpecActive", "RF Spectrum - Active", evdo),
                {"menuIDENSepbar", "-", iden},
                FamilyItem(control, "menuIDENSpec", "Spectrum", iden),
                FamilyItem(control, "menuIDENACPR", "ACPR", iden),
                FamilyItem(control, "menuIDENPower", "Power vs Time", iden),
                FamilyItem(control, "menuIDENDemod", "Demod", iden),
                FamilyItem(control, "menuIDENAll", "All Views", iden),
                {"menuSubTitleSepbar", "-"},
                {"menuSubTitle", "Plot Subtitle"},
                {"menuTraceInfoSepbar", "-", onChart},
                {"menuTraceInfo", "Trace Information"},
                {"menuSaveSepbar", "-"},
                {"menuSave2File", "Save to File"},
                {"menuCopySepbar", "-"},
                {"menuClipboardCopy", "Copy to Clipboard"},
                {"menuGPSSepbar", "-"},
                {"menuGPSCoords", "GPS Coordinates"},
                {"menuMarkerSepbar", "-", hasMarkers},
                std::move(markerHead),
            }};
}

Menu PowerMenu()
{
    return {"menuPMPopupHeader",
            {
                {"menuPMTraceInfo", "Trace Information"},
                {"menuPMSaveSepbar", "-"},
                {"menuPMSaveTrace", "Save Trace to File"},
                {"menuPMSepbar", "-"},
                {"menuPMClipboardCopy", "Copy to Clipboard"},
            }};
}

void ShowChartMenu(Control& control, const MarkerSet* markers)
{
    Show(control, ChartMenu(control, markers));
}
void ShowPowerMenu(Control& control)
{
    Show(control, PowerMenu());
}

bool RunMenuItem(Control& control, const MenuChoice& choice, bool checked)
{
    const auto* handler = std::ranges::find(Handlers, choice.Name, &ItemHandler::Name);
    if (handler != Handlers.end()) {
        handler->Run(control, choice.Index, checked);
        return true;
    }
    const FamilyMenuItem* item = FindFamilyItem(control, choice.Name);
    if (item != nullptr)
        item->Run(control);
    return item != nullptr;
}

} // namespace Traces
