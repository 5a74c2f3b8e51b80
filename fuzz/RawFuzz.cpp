// Raw traces of any bytes, shown by a host that keeps going after a fault: redraw, report, picture, frame,
// clear. Two header fields that nothing interprets, byte 3 and bytes 17 to 20, choose what the host sets.
#include "Check.h"
#include "OwnFolder.h"
#include "chart/Markers.h"
#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "control/Input.h"
#include "control/ModeTable.h"
#include "control/Plot.h"
#include "control/Upload.h"
#include "formats/HostFault.h"
#include "formats/TraceMode.h"
#include "modes/iden/IDENChart.h"
#include "output/Svg.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>

namespace {

using namespace Traces;
using Fuzz::Check;

/// One call of a host, to which a fault is an answer like any other. Whether it went through.
template <class Call>
bool Calls(Call call)
{
    try {
        call();
        return true;
    } catch (const HostFault&) {
        return false;
    }
}

std::size_t Count(std::string_view text, std::string_view part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + part.size()))
        ++count;
    return count;
}

void CheckPicture(const std::string& svg)
{
    Check(std::none_of(svg.begin(), svg.end(),
                       [](char c) { return static_cast<unsigned char>(c) < ' ' && c != '\n'; }),
          "a picture has no character that XML forbids");
    Check(Count(svg, "<g ") == Count(svg, "</g>") && svg.ends_with("</svg>\n"), "a picture is closed");
}

void CheckFrame(const std::string& frame)
{
    if (frame.size() < 2)
        return;
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(frame[i]); };
    Check(byte(0) * 256U + byte(1) == frame.size(), "a frame begins with its length");
}

/// A drag from anywhere to anywhere, and a double click in the middle, where the charts are.
void UseMouse(Control& state, std::span<const std::uint8_t, 4> values)
{
    const double width = state.Surface.DeviceWidth() / 256;
    const double height = state.Surface.DeviceHeight() / 256;
    Calls([&] { DevicePress(state, MouseButton::Left, 0, values[0] * width, values[1] * height); });
    Calls([&] { DeviceMove(state, MouseButton::Left, 0, values[2] * width, values[3] * height); });
    Calls([&] { DeviceRelease(state, MouseButton::Left, 0, values[2] * width, values[3] * height); });
    Calls([&] { DeviceDoubleClick(state, 128 * width, 128 * height); });
}

/// What a host may have set between two redraws.
void SetByHost(Plot& plot, std::uint8_t choice, std::span<const std::uint8_t, 4> values)
{
    Control& state = plot.Instance();
    const auto level = [&](std::size_t i) { return static_cast<float>(values[i]) - 128; };
    plot.AutoScaleY((choice & 1) != 0);
    state.ZoomActive = (choice & 2) != 0;
    state.ZoomX1 = level(0) * 10;
    state.ZoomX2 = level(1) * 10;
    state.ZoomY1 = level(2);
    state.ZoomY2 = level(3);
    if (MarkerSet* markers = FamilyMarkers(state); markers != nullptr && (choice & 4) != 0) {
        markers->MarkerOn.fill(true);
        for (std::size_t i = 0; i < values.size(); ++i)
            markers->MarkerIndex[i] = static_cast<std::int16_t>(values[i] * 257 - 32768);
    }
    if ((choice & 8) != 0) {
        const std::array<float, 3> x = {level(0), level(1), level(2) * 1E38F};
        const std::array<float, 3> y = {level(3) * 1E38F, level(2), level(1)};
        plot.SetIndex(values[0]);
        Calls([&] { plot.PlotCurve(static_cast<std::int16_t>(values[1] % 5), x, y); });
    }
    if ((choice & 32) != 0)
        plot.ShowParams(true);
    if ((choice & 16) != 0)
        Calls([&] { plot.Resize(values[0] * 8, values[1] * 8); });
    if ((choice & 32) != 0)
        UseMouse(state, values);
}

/// How many points a shown trace has: some records hold a fixed number, whatever their head tells.
int PointsOf(const Control& state)
{
    const TraceHeader& header = state.Header;
    switch (header.Mode) {
    case TraceMode::T1:
    case TraceMode::E1: return 100;
    case TraceMode::GSM: return 401;
    case TraceMode::IDEN: return state.IDENViewMode == IDENView::Demod ? 240 : 401;
    default: return header.DataPoints;
    }
}

void CheckShown(Plot& plot)
{
    const Control& state = plot.Instance();
    const ModeRow* row = CurrentRow(state);
    Check(row != nullptr && state.CurrentMode == state.Header.Mode, "what is shown is the trace's own mode");
    Check(!plot.AutoScaleY(), "a new trace has its own limits");
    // A code measurement's curve is that of the chart it shows.
    const bool codes = row->Mode == TraceMode::CDMA || row->Mode == TraceMode::EvDO;
    Check(row->FillCurve == nullptr || codes || plot.count() == PointsOf(state), "the curve has all points");
    const auto lines = plot.Parameters();
    plot.TraceInfo();
    Check(plot.Parameters() == lines, "a report leaves the list alone");
    // The chart of a code measurement mends its record: a missing count of codes, a marker beyond the last
    // one.
    Check(codes || plot.ParametersToSave() == lines, "a save writes what the decoder listed");
    if (codes)
        plot.RedrawTrace();
    const DisplayList picture = (state.*row->Holder).Picture();
    plot.RedrawTrace();
    Check((state.*row->Holder).Picture() == picture, "a redraw draws the same");
}

void CheckCleared(Plot& plot)
{
    for (std::int16_t slot = 0; slot < static_cast<std::int16_t>(LiveSlots); ++slot) {
        plot.SetIndex(slot);
        Check(plot.count() == 0, "no curve is left");
    }
    for (const ChartSurface* box : plot.Instance().ChartBoxes())
        Check(box->Picture().empty() && box->Overlay().empty(), "no picture is left");
}

} // namespace

/// A spectrum's raw route leaves a copy of the frame in the current folder.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    Fuzz::MakeNamesAbsolute(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Fuzz::OwnFolder folder;
    const std::span<const std::uint8_t> trace(data, size);
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    HeadlessPlatform platform;
    Plot plot(platform);
    bool shown = false;
    if (Calls([&] { shown = plot.ShowTrace(trace); }) && shown)
        CheckShown(plot);
    if (size >= 20)
        SetByHost(plot, data[2], trace.subspan<16, 4>());
    Calls([&] { plot.RedrawTrace(); });
    plot.TraceInfo();
    CheckPicture(SvgPicture(plot.Instance()));
    Calls([&] { CheckFrame(plot.GetUpLoadTrace("")); });
    Calls([&] { CheckFrame(EncodeRawFile(AllFamilies, text)); });
    plot.Clear();
    CheckCleared(plot);
    Calls([&] { plot.RedrawTrace(); });
    return 0;
}
