#include "apps/cli/DrawDump.h"

#include "control/Control.h"

#include <utility>
#include <variant>

namespace Traces::Cli {

namespace {

/// One array a command: its name, then its fields.
struct CommandDump {
    template <class... Values>
    static Json Array(std::string_view name, const Values&... values)
    {
        return Json::array({std::string(name), ToJson(values)...});
    }

    Json operator()(const UserScale& c) const { return Array(c.Name, c.Left, c.Top, c.Width, c.Height); }
    Json operator()(const LineCommand& c) const { return Stroke(c.Name, c.From, c.To, c.Pen); }
    Json operator()(const BoxCommand& c) const { return Stroke(c.Name, c.From, c.To, c.Pen); }
    Json operator()(const FillCommand& c) const
    {
        return Array(c.Name, c.From.X, c.From.Y, c.To.X, c.To.Y, c.Ink);
    }
    Json operator()(const CircleCommand& c) const
    {
        return Array(c.Name, c.Centre.X, c.Centre.Y, c.Radius, c.Ink, c.Fill);
    }
    Json operator()(const TextCommand& c) const
    {
        return Array(c.Name, c.At.X, c.At.Y, c.Text, c.Font.Size, c.Font.Bold, c.Font.Underline, c.Ink,
                     c.Font.Name);
    }

    Json operator()(const ImageCommand& c) const
    {
        Json dump = Array(c.Name, c.From.X, c.From.Y, c.To.X, c.To.Y, c.Cells.Columns, c.Cells.Rows);
        dump.push_back(c.Cells.Palette);
        dump.push_back(HexText(c.Cells.Places));
        return dump;
    }

    static Json Stroke(std::string_view name, Point from, Point to, const Pen& pen)
    {
        return Array(name, from.X, from.Y, to.X, to.Y, pen.Ink, static_cast<int>(pen.Style), pen.Width);
    }
};

Json LayerJson(const DisplayList& commands)
{
    Json list = Json::array();
    for (const DrawCommand& command : commands)
        list.push_back(std::visit(CommandDump(), command));
    return list;
}

template <class Child>
Json RectOf(const Child& child)
{
    return Json::array({ToJson(child.Left), ToJson(child.Top), ToJson(child.Width), ToJson(child.Height)});
}

Json SurfaceJson(const ChartSurface& surface)
{
    return {{"name", surface.Name},
            {"parent", surface.Parent != nullptr ? surface.Parent->Name : std::string()},
            {"visible", ToJson(surface.Visible)},
            {"rect", RectOf(surface)},
            {"scale", Json::array({ToJson(surface.ScaleLeft), ToJson(surface.ScaleTop),
                                   ToJson(surface.ScaleWidth), ToJson(surface.ScaleHeight)})},
            {"picture", LayerJson(surface.Picture())},
            {"overlay", LayerJson(surface.Overlay())}};
}

Json LabelJson(const Label& label)
{
    return {{"name", label.Name},
            {"parent", label.Parent.Name},
            {"visible", ToJson(label.Visible)},
            {"rect", RectOf(label)},
            {"caption", ToJson(label.Caption)},
            {"backcolor", label.BackColor},
            {"fontsize", ToJson(label.Font.Size)}};
}

void AddShown(const ChartSurface& surface, Json& list)
{
    if (!surface.Visible)
        return;
    list.push_back(SurfaceJson(surface));
    for (const ChartSurface* child : surface.Children())
        AddShown(*child, list);
    for (const Label* label : surface.Labels())
        if (label->Visible)
            list.push_back(LabelJson(*label));
}

Json FindBelow(const ChartSurface& surface, std::string_view name)
{
    if (surface.Name == name)
        return SurfaceJson(surface);
    for (const Label* label : surface.Labels())
        if (label->Name == name)
            return LabelJson(*label);
    for (const ChartSurface* child : surface.Children()) {
        Json found = FindBelow(*child, name);
        if (!found.is_null())
            return found;
    }
    return nullptr;
}

} // namespace

Json DrawJson(const Control& control)
{
    Json list = Json::array();
    AddShown(control.Surface, list);
    return list;
}

Json DrawJson(const Control& control, std::string_view name)
{
    Json found = FindBelow(control.Surface, name);
    return found.is_null() ? found : Json::array({std::move(found)});
}

} // namespace Traces::Cli
