#include "modes/spectrogram/SpectroView.h"

#include "chart/ChartView.h"
#include "chart/ColourRamp.h"
#include "chart/Markers.h"
#include "chart/Panel.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/FormatValue.h"
#include "formats/Numbers.h"
#include "formats/TraceMode.h"
#include "modes/spectrogram/SpectroTrace.h"

#include <algorithm>
#include <cmath>

namespace Traces {

namespace {

constexpr int TextSize = 10;
constexpr int SmallText = 8;

/// Part of the map's height that the legend takes, at its foot.
constexpr float LegendPart = 1.0F / 9;

struct LevelScale {
    float Bottom, Top; ///< dBm
};

LevelScale ScaleOf(const SpectroRecord& record)
{
    constexpr float divisions = 10;
    constexpr float usualDivision = 10;
    const float division = record.ScaleDiv > 0 ? record.ScaleDiv : usualDivision;
    return {record.RefLevel - divisions * division, record.RefLevel};
}

std::string TimeText(const SpectroRecord& record, std::int16_t sweep)
{
    const auto place = static_cast<std::size_t>(std::max<std::int16_t>(sweep, 0));
    return place < record.SweepTime.size() ? FormatValue(record.SweepTime[place], "#0.00") + " s" : "N/A";
}

std::string PointText(const Control& control, std::size_t point)
{
    const TraceSlot& slot = control.TraceSlots[0];
    return FormatValue(slot.X[point], "#0.000 MHz") + ", " +
           FormatValue(LevelAt(control.Spectro, control.SpectroSweep, point), "#0.0 dBm");
}

std::string PeakText(const Control& control)
{
    std::size_t peak = 0;
    for (std::size_t i = 1; i < SpectroRecord::Points; ++i)
        if (LevelAt(control.Spectro, control.SpectroSweep, i) >
            LevelAt(control.Spectro, control.SpectroSweep, peak))
            peak = i;
    return "Peak " + PointText(control, peak);
}

void DrawFrameTexts(Control& control)
{
    const SpectroRecord& record = control.Spectro;
    ChartSurface& holder = control.SpectroHolder;
    const ChartSurface& box = control.SpectroBox;
    const auto put = [&](const std::string& text, int x, int y) { DrawTextAt(holder, text, x, y, TextSize); };
    const std::string title = "SPG-" + control.TraceName;
    DrawCentred(holder, title, WholeUnits(box.Left + box.Width / 2), 4, TextSize);
    put("Ref Lvl " + FormatValue(record.RefLevel, "#0.0 dBm"), 2, 24);
    put("RBW " + FormatValue(record.RBWSetting / 1000.0, "#00 kHz"), 200, 24);
    put("VBW " + FormatValue(record.VBWSetting / 1000.0, "#00 kHz"), 400, 24);
    if (control.TraceSlots[0].X.size() >= SpectroRecord::Points && record.SweepCount > 0) {
        put("Sweep " + NumberText(control.SpectroSweep + 1) + " of " + NumberText(record.SweepCount) + ", " +
                TimeText(record, control.SpectroSweep),
            75, 358);
        put(PeakText(control), 300, 358);
    }
    put("Std=" + record.SignalStandard, 75, 376);
    put("Atten " + FormatValue(record.Attenuation, "#0 ") + "dB", 300, 376);
    put("Antenna " + record.AntennaName, 75, 394);
    put(control.Header.Date + " " + control.Header.Time, 300, 394);
    holder.Line(0, 416, 600, 416, Black);
}

/// The ends of what shows, below the box.
void PutFrequencies(Control& control, float start, float stop)
{
    ChartSurface& holder = control.SpectroHolder;
    const ChartSurface& box = control.SpectroBox;
    constexpr int y = 334;
    DrawTextAt(holder, "Start " + FormatValue(start, "#0.000") + "MHz", WholeUnits(box.Left), y, TextSize);
    const std::string text = "Stop " + FormatValue(stop, "#0.000") + "MHz";
    DrawTextAt(holder, text, WholeUnits(box.Left + box.Width - holder.TextWidth(text)), y, TextSize);
}

/// Prints a text of the holder, ending left of the box, its middle at a height of the box's units but no part
/// of it above or below the box.
void PutAxisText(Control& control, const std::string& text, float at)
{
    ChartSurface& holder = control.SpectroHolder;
    const ChartSurface& box = control.SpectroBox;
    SetBoxFont(holder, SmallText, false);
    holder.CurrentX = box.Left - holder.TextWidth(text) - 4;
    const float height = holder.TextHeight(text);
    const float top = box.Top + (at - box.ScaleTop) * box.Height / box.ScaleHeight - height / 2;
    holder.CurrentY = std::max(box.Top, std::min(top, box.Top + box.Height - height));
    holder.Print(text);
}

ColourCells MapCells(const SpectroRecord& record)
{
    const LevelScale scale = ScaleOf(record);
    ColourCells cells;
    cells.Palette = ColourRamp();
    cells.Columns = static_cast<int>(SpectroRecord::Points);
    cells.Rows = static_cast<int>(record.SweepTime.size());
    cells.Places.reserve(record.Level.size());
    const auto last = static_cast<float>(cells.Palette.size() - 1);
    const float placesPerDecibel = static_cast<float>(cells.Palette.size()) / (scale.Top - scale.Bottom);
    for (const float level : record.Level) {
        const float place = (level - scale.Bottom) * placesPerDecibel;
        cells.Places.push_back(place > 0 ? static_cast<std::uint8_t>(std::min(place, last))
                                         : std::uint8_t{0});
    }
    return cells;
}

/// Times of the sweeps at the left, with a tick each; as many as have room.
void DrawTimeAxis(Control& control, const ChartWindow& window)
{
    ChartSurface& box = control.SpectroBox;
    const SpectroRecord& record = control.Spectro;
    constexpr float labels = 8, mostSweeps = 1000;
    const float foot = window.Ymin + (window.Ymax - window.Ymin) * LegendPart;
    const auto every =
        static_cast<int>(std::clamp(std::ceil((window.Ymax - foot) / labels), 1.0F, mostSweeps));
    box.DrawStyle = LineStyle::Solid;
    for (int sweep = 0; sweep < record.SweepCount; sweep += every) {
        const float at = static_cast<float>(sweep) + 0.5F;
        if (at < foot || at > window.Ymax)
            continue;
        box.Line(box.ScaleLeft, at, box.ScaleLeft + box.ScaleWidth / 100, at, White);
        PutAxisText(control, TimeText(record, static_cast<std::int16_t>(sweep)), at);
    }
}

/// The colours of the levels, with five of them in figures, over the foot of the map.
void DrawLegend(Control& control, const ChartWindow& window)
{
    ChartSurface& box = control.SpectroBox;
    const LevelScale scale = ScaleOf(control.Spectro);
    const float width = box.ScaleWidth;
    const float height = (window.Ymax - window.Ymin) * LegendPart;
    box.FillBox(box.ScaleLeft, window.Ymin + height, box.ScaleLeft + width, window.Ymin, Black);
    ColourCells ramp;
    ramp.Palette = ColourRamp();
    ramp.Columns = static_cast<int>(ramp.Palette.size());
    ramp.Rows = 1;
    for (int i = 0; i < ramp.Columns; ++i)
        ramp.Places.push_back(static_cast<std::uint8_t>(i));
    constexpr float margin = 0.08F;
    const float left = box.ScaleLeft + margin * width;
    const float right = box.ScaleLeft + (1 - margin) * width;
    box.Image(left, window.Ymin + 0.85F * height, right, window.Ymin + 0.5F * height, std::move(ramp));
    SetBoxFont(box, SmallText, false);
    box.ForeColor = White;
    constexpr int figures = 5;
    for (int i = 0; i < figures; ++i) {
        const float part = static_cast<float>(i) / (figures - 1);
        const std::string text = FormatValue(scale.Bottom + part * (scale.Top - scale.Bottom), "#0 dBm");
        box.CurrentX = left + part * (right - left) - box.TextWidth(text) / 2;
        box.CurrentY = window.Ymin + 0.45F * height;
        box.Print(text);
    }
}

/// Texts of the markers that stand on the map, and the line of the chosen sweep below them.
void DrawMarkers(Control& control)
{
    ChartSurface& box = control.SpectroBox;
    MarkerSet& markers = control.SpectroMarkers;
    DrawMarkerLines(control, box, markers);
    bool any = false;
    for (std::size_t i = 0; i < MarkerCount; ++i) {
        if (!markers.MarkerOn[i])
            continue;
        any = true;
        markers.MarkerText[i] = SpectroMarkerText(control, i);
    }
    if (any && control.Spectro.SweepCount > 0) {
        const float at = static_cast<float>(control.SpectroSweep) + 0.5F;
        box.DrawStyle = LineStyle::Dashed;
        box.Line(box.ScaleLeft, at, box.ScaleLeft + box.ScaleWidth, at, RGB(180, 255, 255));
        box.DrawStyle = LineStyle::Solid;
    }
}

bool IsZoomed(const Control& control)
{
    return control.ZoomActive && control.ZoomX2 > control.ZoomX1;
}

bool DrawMap(Control& control)
{
    const SpectroRecord& record = control.Spectro;
    ChartSurface& box = control.SpectroBox;
    const TraceSlot& slot = control.TraceSlots[0];
    ChartWindow window = ChooseWindow(control);
    if (UsedPoints(slot) < SpectroRecord::Points || window.Xmin == window.Xmax)
        return false;
    PutFrequencies(control, window.Xmin, window.Xmax);
    // A cell stands around its frequency, and the first and last ones show whole. The other axis counts
    // sweeps whatever the levels are.
    const float half = (slot.X[1] - slot.X[0]) / 2;
    if (!IsZoomed(control))
        window = {window.Xmin - std::abs(half), window.Xmax + std::abs(half), control.YScaleBottom,
                  control.YScaleTop};
    if (window.Ymin == window.Ymax)
        return false;
    box.Scale(window.Xmin, window.Ymax, window.Xmax, window.Ymin);
    if (record.SweepCount > 0)
        box.Image(slot.X[0] - half, 0, slot.X[SpectroRecord::Points - 1] + half, record.SweepCount,
                  MapCells(record));
    DrawMarkers(control);
    DrawTimeAxis(control, window);
    DrawLegend(control, window);
    return true;
}

void BeginSpectroView(Control& control)
{
    ChartSurface& holder = control.SpectroHolder;
    // The holder is higher than the control. In units of its own height they are those of all other holders,
    // and the readouts stand where the control still shows them.
    holder.Scale(0, 0, holder.Width, holder.Height);
    BeginView(holder, control.SpectroBox);
    SetBoxFont(holder, TextSize, false);
    holder.ForeColor = Black;
    DrawFrameTexts(control);
}

void EndSpectroView(Control& control)
{
    if (control.DisplayMarkerValues)
        DrawMarkerReadouts(control.SpectroMarkers);
    control.ParamBox.Visible = false;
    EndView(control.SpectroHolder, control.SpectroBox);
}

} // namespace

std::string SpectroMarkerText(Control& control, std::size_t marker)
{
    const MarkerSet& markers = control.SpectroMarkers;
    const auto point = static_cast<std::size_t>(markers.MarkerIndex[marker]);
    // A step past the curve's ends waits for the redraw, which takes it back.
    return point < UsedPoints(control.TraceSlots[0]) ? PointText(control, point) : markers.MarkerText[marker];
}

void DrawSpectroTrace(Control& control)
{
    BeginSpectroView(control);
    if (DrawMap(control))
        EndSpectroView(control);
}

void DrawSweepTrace(Control& control)
{
    control.SpectroHolder.Visible = true;
    BeginSpectroView(control);
    if (!DrawChart(control, control.SpectroBox, control.SpectroMarkers))
        return;
    const ChartSurface& box = control.SpectroBox;
    PutFrequencies(control, box.ScaleLeft, box.ScaleLeft + box.ScaleWidth / static_cast<float>(ChartSliver));
    const float top = box.ScaleTop;
    const float bottom = box.ScaleTop + box.ScaleHeight;
    for (const float level : {top, (top + bottom) / 2, bottom})
        PutAxisText(control, FormatValue(level, "#0.0 dBm"), level);
    EndSpectroView(control);
}

void ToggleSweepView(Control& control)
{
    const bool toSweep = control.CurrentMode != TraceMode::SpectrogramSweep;
    // A zoom of one picture means nothing in the other.
    control.ZoomActive = false;
    if (toSweep) {
        const LevelScale scale = ScaleOf(control.Spectro);
        control.CurrentMode = TraceMode::SpectrogramSweep;
        control.YScaleTop = scale.Top;
        control.YScaleBottom = scale.Bottom;
    } else {
        const std::int16_t sweep = control.SpectroSweep;
        control.CurrentMode = TraceMode::Spectrogram;
        FillSpectroCurve(control);
        ChooseSweep(control, sweep);
    }
    RedrawTrace(control);
}

void ChooseSweepAt(Control& control, float, float y)
{
    if (!(y >= 0) || y >= control.Spectro.SweepCount)
        return;
    ChooseSweep(control, y);
    RedrawTrace(control);
}

std::string SpectroCoordsText(const Control& control, float x, float y)
{
    const SpectroRecord& record = control.Spectro;
    std::string text = FormatValue(x, "#0.000 MHz");
    if (!(y >= 0) || y >= record.SweepCount)
        return text;
    const auto sweep = static_cast<std::int16_t>(y);
    const float step = (record.StopFreq - record.StartFreq) / (SpectroRecord::Points - 1);
    const float point = step > 0 ? std::nearbyint((x - record.StartFreq) / step) : -1;
    text += ", " + TimeText(record, sweep);
    if (point >= 0 && point < static_cast<float>(SpectroRecord::Points))
        text += ", " + FormatValue(LevelAt(record, sweep, static_cast<std::size_t>(point)), "#0.0 dBm");
    return text;
}

} // namespace Traces
