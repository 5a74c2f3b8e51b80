#include "control/ChartMenu.h"

#include "chart/ChartMouse.h"
#include "chart/Markers.h"
#include "control/Control.h"
#include "control/Plot.h"
#include "control/TraceFile.h"
#include "output/Capture.h"
#include "output/GpsText.h"

#include <algorithm>
#include <array>

namespace Traces {

namespace {

constexpr std::array<std::string_view, 10> MarkerCaptions = {
    "Marker 1", "Marker 2", "Marker 3",          "Marker 4", "Marker 5",
    "Marker 6", "-",        "Clear All markers", "-",        "Show Marker Values"};

/// The parts of all families; only that of the mode on show is seen.
void AddFamilyItems(std::vector<MenuItem>& items, const Control& control)
{
    for (const ModeRow& row : control.Families.Modes) {
        if (row.Menu.Items.empty())
            continue;
        const bool shown = row.Mode == control.CurrentMode;
        items.push_back({row.Menu.Separator, "-", shown});
        for (const FamilyMenuItem& item : row.Menu.Items)
            items.push_back({item.Name, item.Caption, shown,
                             !shown || item.Enabled == nullptr || item.Enabled(control),
                             shown && item.Checked != nullptr && item.Checked(control)});
    }
}

MenuItem MarkersMenu(const Control& control, const MarkerSet* markers)
{
    const ModeRow* row = CurrentRow(control);
    const bool hidden =
        markers == nullptr || (row != nullptr && (row->Markers == nullptr || !row->HasMarkersMenu));
    const bool enabled =
        row == nullptr || row->MarkersMenuEnabled == nullptr || row->MarkersMenuEnabled(control);
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
    const ModeRow* row = CurrentRow(control);
    const bool scales = row == nullptr || row->HasAutoScale;
    Menu menu{"menuPopUpHeader",
              {
                  {"menuAutoScale", "AutoScale", onChart && scales, true, control.AutoScaleY},
                  {"menuUndoZoom", "Undo Zoom", onChart, control.ZoomActive},
              }};
    AddFamilyItems(menu.Items, control);
    MenuItem markerHead = MarkersMenu(control, markers);
    const bool hasMarkers = markerHead.Visible;
    menu.Items.insert(menu.Items.end(), {
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
                                        });
    return menu;
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
    const ModeRow* row = CurrentRow(control);
    for (const FamilyMenuItem& item : row != nullptr ? row->Menu.Items : std::span<const FamilyMenuItem>()) {
        if (item.Name == choice.Name) {
            item.Run(control);
            return true;
        }
    }
    return false;
}

} // namespace Traces
