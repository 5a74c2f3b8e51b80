// `traces render`: a picture of a trace, or of each of many into a folder.
#include "apps/cli/Commands.h"
#include "apps/cli/OpenTrace.h"
#include "apps/cli/Output.h"
#include "apps/cli/PictureLibrary.h"
#include "control/Control.h"
#include "formats/FormatValue.h"
#include "formats/HostFault.h"
#include "formats/TraceMode.h"
#include "output/Svg.h"

#include <cmath>
#include <filesystem>
#include <system_error>

namespace Traces::Cli {

namespace {

constexpr PictureSize UsualSize = {DesignWidth, DesignHeight};
constexpr PictureSize SizeWithPane = {WidthWithPane, DesignHeight};

/// What pictures are made with: the Qt layer, or nothing but the core for SVG.
struct Painter {
    PictureFormat Format;
    PictureBackEnd* BackEnd = nullptr;

    const TextMetrics& Metrics() const { return BackEnd != nullptr ? BackEnd->Metrics() : BuiltInMetrics(); }

    std::string Paint(const Control& control) const
    {
        switch (Format) {
        case PictureFormat::Png: return BackEnd->Png(control, 1);
        case PictureFormat::Pdf: return BackEnd->Pdf(control);
        case PictureFormat::Svg: break;
        }
        return SvgPicture(control);
    }
};

/// Puts a marker on the point nearest to its X, with the readout that a drag would leave. The point's
/// index is 16 bits wide, as a curve's length is.
void PlaceMarker(const TraceSlot& slot, MarkerSet& markers, const MarkerRequest& request)
{
    std::size_t nearest = 0;
    for (std::size_t i = 1; i < UsedPoints(slot); ++i)
        if (std::abs(slot.X[i] - request.X) < std::abs(slot.X[nearest] - request.X))
            nearest = i;
    const auto marker = static_cast<std::size_t>(request.Marker - 1);
    markers.MarkerOn[marker] = true;
    markers.MarkerIndex[marker] = static_cast<std::int16_t>(nearest);
    markers.MarkerText[marker] = FormatValue(slot.X[nearest], "#0.000");
}

/// Shows a sub view. What can't be is told; empty when it could.
std::string ShowView(Control& control, const ModeRow* row, const std::string& view)
{
    std::string known;
    for (const FamilyMenuItem& item : row != nullptr ? row->Menu.Items : std::span<const FamilyMenuItem>()) {
        if (item.View.empty())
            continue;
        known += (known.empty() ? "" : ", ") + std::string(item.View);
        if (item.View != view)
            continue;
        if (item.Enabled != nullptr && !item.Enabled(control))
            return "can't show \"" + view +
                   "\": the instrument had no option for it, or the pane has its place";
        item.Run(control);
        return {};
    }
    const std::string mode = ModeName(control.Header.Mode);
    return "has no view \"" + view + "\": " +
           (known.empty() ? mode + " has one view, which needs no name"
                          : "the views of " + mode + " are " + known);
}

/// Applies what was asked beyond the trace itself. What can't be is told; empty when all could.
std::string Adjust(Control& control, const RenderOptions& options)
{
    const ModeRow* row = CurrentRow(control);
    const std::string mode = ModeName(control.Header.Mode);
    if (!options.View.empty())
        if (std::string problem = ShowView(control, row, options.View); !problem.empty())
            return problem;
    if (IsLaidOutWide(control) && !options.Size)
        Resize(control, WideWidth, WideHeight);
    if (!options.Markers.empty()) {
        if (row == nullptr || row->Markers == nullptr)
            return "can't have markers: " + mode + " has none";
        if (UsedPoints(control.TraceSlots[0]) == 0)
            return "can't have markers: it has no points";
        for (const MarkerRequest& request : options.Markers)
            PlaceMarker(control.TraceSlots[0], control.*row->Markers, request);
    }
    if (options.Zoom && (row == nullptr || row->Markers == nullptr))
        return "can't be zoomed: " + mode + " is shown whole";
    if (options.Zoom) {
        control.ZoomActive = true;
        control.ZoomX1 = options.Zoom->X1;
        control.ZoomX2 = options.Zoom->X2;
        control.ZoomY1 = options.Zoom->Y1;
        control.ZoomY2 = options.Zoom->Y2;
    }
    control.AutoScaleY = options.AutoScale;
    if (!options.Markers.empty() || options.Zoom || options.AutoScale)
        RedrawTrace(control);
    return {};
}

bool RenderTo(Console& console, const std::string& name, const std::string& target, const Painter& painter,
              const RenderOptions& options)
{
    if (SameFile(name, target)) {
        console.Error(target, "is the input, which a picture would replace");
        return false;
    }
    const auto input = ReadInput(console, name);
    if (!input)
        return false;
    OpenTrace trace(painter.Metrics());
    trace.Plot().ShowParams(options.Params);
    trace.Plot().DisplayMarkerValues(!options.Results);
    if (options.Params || options.Size) {
        const PictureSize size = options.Size.value_or(options.Params ? SizeWithPane : UsualSize);
        trace.Plot().Resize(size.Width, size.Height);
    }
    if (!trace.Load(console, *input, OpenTrace::Need::Curve))
        return false;
    std::string problem;
    std::string picture;
    try {
        problem = Adjust(trace.Instance(), options);
        if (problem.empty())
            picture = painter.Paint(trace.Instance());
    } catch (const HostFault& fault) {
        problem = fault.what();
    }
    if (problem.empty() && picture.empty())
        problem = "can't be drawn as " + std::string(NameOf(painter.Format));
    if (!problem.empty()) {
        console.Error(name, problem);
        return false;
    }
    return WriteOutput(console, target, picture);
}

void RenderIntoFolder(Console& console, const Painter& painter, const RenderOptions& options)
{
    FolderTargets targets(options.Out, std::string(NameOf(painter.Format)), options.Files);
    console.Progress(0, options.Files.size());
    for (std::size_t i = 0; i < options.Files.size(); ++i) {
        const std::string& name = options.Files[i];
        RenderTo(console, name, targets.For(console, name), painter, options);
        console.Progress(i + 1, options.Files.size());
    }
}

/// Whether results go into a folder under names of their own.
bool IntoFolder(const RenderOptions& options)
{
    std::error_code error;
    return options.Files.size() > 1 || options.Out.ends_with('/') ||
           std::filesystem::is_directory(options.Out, error);
}

} // namespace

int RunRender(Console& console, const RenderOptions& options)
{
    const bool intoFolder = options.Out != StandardStream && IntoFolder(options);
    if (options.Out == StandardStream && options.Files.size() > 1)
        return console.Usage("render: several pictures need a folder, -o DIR");
    auto format = options.Format;
    if (!format)
        format = intoFolder ? PictureFormat::Svg : PictureFormatOf(LowerExtension(options.Out));
    if (!format)
        return console.Usage("render: " + options.Out +
                             " doesn't tell a format, --format does: svg, png, pdf");

    Painter painter{*format};
    if (*format != PictureFormat::Svg) {
        std::string problem;
        painter.BackEnd = OpenPictureBackEnd(problem);
        if (painter.BackEnd == nullptr) {
            console.Error(options.Out, problem);
            return console.ExitStatus();
        }
    }
    if (!intoFolder) {
        RenderTo(console, options.Files.front(), options.Out, painter, options);
        return console.ExitStatus();
    }
    std::error_code error;
    std::filesystem::create_directory(options.Out, error);
    if (std::filesystem::is_directory(options.Out, error))
        RenderIntoFolder(console, painter, options);
    else
        console.Error(options.Out, "isn't a folder, which several pictures need, and can't be made one");
    return console.ExitStatus();
}

} // namespace Traces::Cli
