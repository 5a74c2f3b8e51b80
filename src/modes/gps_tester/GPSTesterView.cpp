#include "modes/gps_tester/GPSTesterView.h"

#include "chart/ChartView.h"
#include "chart/Panel.h"
#include "chart/SummaryPane.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/FormatValue.h"
#include "formats/Numbers.h"

#include <algorithm>

namespace Traces {

namespace {

constexpr int TextSize = 10;

/// The list's place in the holder, and its rows.
constexpr float ListLeft = 4, ListTop = 30, ListWidth = 542, ListHeight = 400;
constexpr int RowHeight = 16;
constexpr std::size_t RowsThatFit = 25;

bool Passed(const GPSTesterRecord& record)
{
    return record.MeasurementStatus >= 1;
}

void DrawList(ChartSurface& box, const std::vector<std::string>& lines)
{
    constexpr int left = 4;
    box.Left = ListLeft;
    box.Top = ListTop;
    box.Width = ListWidth;
    box.Height = ListHeight;
    box.Scale(0, 0, ListWidth, ListHeight);
    box.BackColor = White;
    const bool all = lines.size() <= RowsThatFit;
    const std::size_t shown = all ? lines.size() : RowsThatFit - 1;
    int y = 0;
    for (std::size_t i = 0; i < shown; ++i) {
        DrawTextAt(box, lines[i], left, y, TextSize, false, Black);
        y += RowHeight;
    }
    if (!all)
        DrawTextAt(box, "and " + NumberText(static_cast<std::int32_t>(lines.size() - shown)) + " more", left,
                   y, TextSize);
}

/// How the check went, and what the list leaves out.
void DrawFoot(Control& control, std::size_t shown)
{
    constexpr int y = 440, middle = 150, right = 320;
    ChartSurface& holder = control.GPSiDENHolder;
    int lampX = -1, lampY = -1;
    DrawTextAt(holder, Passed(control.GPSTester) ? "Pass:" : "Fail:", 4, y, TextSize);
    DrawLed(holder, holder, lampX, lampY, Passed(control.GPSTester));
    const auto count = [](std::size_t events) { return NumberText(static_cast<std::int32_t>(events)); };
    DrawTextAt(holder, "Events: " + count(control.GPSEvents.size()), middle, y, TextSize);
    DrawTextAt(holder, "Without a fix (not listed): " + count(control.GPSEvents.size() - shown), right, y,
               TextSize);
}

void DrawSummary(Control& control)
{
    constexpr float titleSize = 18;
    const GPSTesterRecord& record = control.GPSTester;
    const PanePosition position =
        PanePositionTexts({record.GpsLatitude, record.GpsLongitude, record.GpsAltitude, std::nullopt});
    const PaneRow rows[] = {
        {"GPS Pass/Fail:", Passed(record) ? "Pass" : "Fail"},
        {"UTC Time: ", record.UtcTime},
        {"Latitude: ", position.Latitude},
        {"Longitude: ", position.Longitude},
        {"Altitude: ", position.Altitude},
        {"Tracked Satellites:", NumberText(record.TrackedSatellites)},
        {"Fix Time:", record.GpsFixTime},
        {"Last Failure:", record.LostGpsTime.empty() ? "N/A" : record.LostGpsTime},
        {"Current Draw:", NumberText(record.CurrentDraw) + " mA"},
    };
    ChartSurface& pane = OpenPane(control);
    PanePrint(pane, "GPS Tester", 30, 115, titleSize);
    PaneRows(pane, {.Left = 10, .Top = 70, .RowHeight = 28, .LabelWidth = 170}, rows);
    ClosePane(pane);
}

} // namespace

std::vector<std::string> ShownGPSEvents(const Control& control)
{
    std::vector<std::string> lines;
    for (const GPSEvent& event : control.GPSEvents) {
        const bool none = event.Status.empty() || event.Status == "GPS Status Bad" ||
                          event.Status == "Tracked 0 satellites";
        if (!none)
            lines.push_back(event.Shown());
    }
    return lines;
}

void DrawGPSTesterTrace(Control& control)
{
    ChartSurface& holder = control.GPSiDENHolder;
    ChartSurface& box = control.GPSiDENBox;
    BeginView(holder, box);
    control.ParamBox.Visible = false;
    holder.ForeColor = Black;
    DrawTextAt(holder, "Events", 4, 12, TextSize);
    DrawCentred(holder, TitleOfPath(control.TraceName), WholeUnits(holder.ScaleWidth / 2), 4, TextSize);
    const std::vector<std::string> lines = ShownGPSEvents(control);
    DrawList(box, lines);
    DrawFoot(control, lines.size());
    if (control.ShowParams)
        DrawSummary(control);
    EndView(holder, box);
}

} // namespace Traces
