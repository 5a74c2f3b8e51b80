#include "modes/t1e1/E1T1View.h"

#include "chart/ChartView.h"
#include "chart/Panel.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/CodeTable.h"
#include "formats/PowerUnits.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"
#include "modes/t1e1/E1T1Panels.h"
#include "modes/t1e1/E1T1Summary.h"

#include <array>

namespace Traces {

namespace {

constexpr int TextSize = 10;

/// The scale of histogram and error map: slices to the right; decades, and rows of errors, upwards.
constexpr float FirstEdge = 0.5F, LastEdge = 100, Decades = 5;

/// A row of the error map, from the top one down.
struct ErrorRow {
    std::string_view Label;
    std::uint8_t Flag;
};
constexpr auto ErrorRows = std::to_array<ErrorRow>({{"All Errors", SliceError::Any},
                                                    {"Carrier Loss", SliceError::CarrierLoss},
                                                    {"Frame Loss", SliceError::FrameLoss},
                                                    {"BPV", SliceError::Bpv},
                                                    {"CRC", SliceError::Crc}});

void Put(Control& control, const std::string& text, int x, int y)
{
    DrawTextAt(control.E1T1Holder, text, x, y, TextSize);
}

void BeginAll(Control& control)
{
    BeginView(control.E1T1Holder, control.E1T1Box);
    control.ErrorsBox.AutoRedraw = true;
    control.ErrorsBox.Cls();
    control.ParamBox.Visible = false;
    SetBoxFont(control.E1T1Holder, TextSize, false);
    control.E1T1Holder.ForeColor = Black;
    const std::string prefix = control.Header.Mode == TraceMode::E1 ? "E1-" : "T1-";
    DrawCentred(control.E1T1Holder, prefix + TitleOfPath(control.TraceName),
                WholeUnits(control.E1T1Holder.ScaleWidth / 2), 4, TextSize);
}

void DrawStatusRow(Control& control)
{
    constexpr int y = 24;
    const E1T1Record& record = control.E1T1;
    DrawStatus(control, "Carrier:", 6, y, TextSize, record.CarrierStatus);
    DrawStatus(control, "Frame Sync:", 100, y, TextSize, record.FrameSyncStatus);
    DrawStatus(control, "Pattern Sync:", 250, y, TextSize, record.PatternSyncStatus);
    Put(control, "Alarms:", 370, y);
    Put(control, record.RxAlarms, 420, y);
}

void DrawMapLegend(Control& control)
{
    constexpr int top = 42, height = 25;
    for (std::size_t row = 0; row < ErrorRows.size(); ++row) {
        const int y = top + height * static_cast<int>(row);
        control.E1T1Holder.Box(3, static_cast<float>(y), 100, static_cast<float>(y + height), Black);
        Put(control, std::string(ErrorRows[row].Label), 10, y + 4);
    }
}

void DrawAxisLegend(Control& control)
{
    constexpr int right = 90, top = 172, step = 38;
    int y = top;
    for (const char* text : {"10K", "1K", "100", "10", "1"}) {
        DrawEnding(control.E1T1Holder, text, right, y, TextSize);
        y += step;
    }
    const auto width = static_cast<double>(control.E1T1Holder.TextWidth("Bit Errors "));
    Put(control, "Bit Errors", WholeUnits(right - width), 346);
}

void DrawTimes(Control& control)
{
    constexpr int top = 364, footTop = 382;
    const E1T1Record& record = control.E1T1;
    ChartSurface& holder = control.E1T1Holder;
    const ChartSurface& chart = control.E1T1Box;
    Put(control, "Msr Dur:", 4, 280);
    Put(control, record.MeasurementDuration, 4, 296);
    Put(control, record.StartTime, 100, top);
    DrawCentred(holder, record.HistogramResolution + " Updates", WholeUnits(chart.Left + chart.Width / 2),
                top, TextSize);
    DrawEnding(holder, record.StopTime, 540, top, TextSize);
    if (!TrimBlanks(record.BitErrorRate).empty())
        Put(control, "BER = " + record.BitErrorRate, 10, footTop);
    if (!TrimBlanks(record.ElapsedTime).empty())
        Put(control, "Time Elapsed: " + record.ElapsedTime, 360, footTop);
}

void DrawSettings(Control& control)
{
    constexpr int left = 2, right = 275, row1 = 406, row2 = 424, row3 = 442, row4 = 460;
    const E1T1Record& record = control.E1T1;
    control.E1T1Holder.FillBox(0, 402, 600, 480, PaleYellow);
    control.E1T1Holder.Line(0, 402, 600, 402, Black);
    control.E1T1Holder.ForeColor = Black;
    Put(control, "Framing = " + record.FramingMode, left, row1);
    Put(control, "Rx Config = " + record.ReceiveInput, left, row2);
    Put(control, "Pattern = " + record.Pattern, left, row3);
    Put(control, "Line Code = " + record.LineCoding, left, row4);
    const bool isE1 = control.Header.Mode == TraceMode::E1;
    Put(control, isE1 ? "Impedence = " + record.Impedance : "Tx Level = " + record.TxLevel, right, row1);
    Put(control, "Clock Source = " + record.ClockSource, right, row2);
    Put(control, "Error Ins = " + record.ErrorInsertType, right, row3);
    if (!isE1)
        Put(control, "Loop Code = " + LoopWords(record), right, row4);
}

/// The rows of the map that a slice's flags fill.
void DrawFlags(ChartSurface& map, std::uint8_t flags, float left, float right)
{
    float top = Decades;
    for (const ErrorRow& row : ErrorRows) {
        if ((flags & row.Flag) != 0)
            map.FillBox(left, top - 1, right, top, Yellow);
        --top;
    }
}

/// A slice without errors, and flags of slices that the record hasn't, have nothing to draw.
void DrawBars(Control& control)
{
    ChartSurface& box = control.E1T1Box;
    const float half = (LastEdge - FirstEdge) / static_cast<float>(control.TraceSlots[0].Length) / 2;
    for (std::size_t t = 0; t < LiveSlots; ++t) {
        const TraceSlot& slot = control.TraceSlots[t];
        for (std::size_t i = 0; slot.Length > 1 && static_cast<int>(i) < slot.Length; ++i) {
            CheckCurvePoint(slot, i);
            const float left = slot.X[i] - half, right = slot.X[i] + half;
            if (const float height = DecadeScale(slot.Y[i]); height > 0)
                box.FillBox(left, 0, right, height, Yellow);
            if (i < control.E1T1.Slices.size())
                DrawFlags(control.ErrorsBox, control.E1T1.Slices[i].SliceFlags, left, right);
        }
    }
}

void DrawGrid(const Control& control, ChartSurface& box)
{
    constexpr int tens = 9, decades = 4;
    box.DrawStyle = LineStyle::Dotted;
    for (int line = 1; line <= tens; ++line) {
        const auto x = static_cast<float>(10 * line);
        box.Line(x, box.ScaleTop, x, box.ScaleTop + box.ScaleHeight, control.GridColor);
    }
    for (int line = 1; line <= decades; ++line) {
        const auto y = static_cast<float>(line);
        box.Line(box.ScaleLeft, y, box.ScaleLeft + box.ScaleWidth, y, control.GridColor);
    }
    box.DrawStyle = LineStyle::Solid;
}

/// All slices, or those of a zoom, which the map keeps in step with.
void ScaleBoxes(Control& control)
{
    ChartWindow window = {FirstEdge, LastEdge, 0, Decades};
    if (control.ZoomActive && control.ZoomX1 < control.ZoomX2) {
        window = {control.ZoomX1, control.ZoomX2, control.ZoomY1, control.ZoomY2};
        PadZoomRange(window, Decades, 0);
    }
    control.E1T1Box.Scale(window.Xmin, window.Ymax, window.Xmax, window.Ymin);
    control.ErrorsBox.Scale(window.Xmin, Decades, window.Xmax, 0);
}

void DrawHistogram(Control& control)
{
    control.E1T1Box.Visible = control.ErrorsBox.Visible = true;
    control.VppBar.Visible = control.VppLabel.Visible = false;
    control.VFFreqLabel.Visible = control.VFPowerLabel.Visible = false;
    DrawStatusRow(control);
    DrawMapLegend(control);
    DrawAxisLegend(control);
    DrawTimes(control);
    DrawSettings(control);
    ScaleBoxes(control);
    if (control.TraceSlots[0].Length == 0)
        return;
    DrawBars(control);
    for (ChartSurface* box : {&control.E1T1Box, &control.ErrorsBox})
        DrawGrid(control, *box);
    DrawMarkerLines(control, control.E1T1Box, control.E1T1Markers);
    if (control.ShowParams)
        E1T1Summary(control);
    EndView(control.E1T1Holder, control.E1T1Box);
    control.ErrorsBox.AutoRedraw = false;
}

} // namespace

void DrawE1T1Trace(Control& control)
{
    BeginAll(control);
    switch (E1T1Display.Code(control.E1T1.DisplayType)) {
    case 2: return DrawVppView(control);
    case 3: return DrawVFView(control);
    default: return DrawHistogram(control);
    }
}

} // namespace Traces
