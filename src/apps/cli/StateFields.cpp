#include "apps/cli/StateFields.h"

#include "control/Control.h"
#include "control/Plot.h"
#include "formats/HostFault.h"
#include "formats/LibraryValues.h"

#include <algorithm>
#include <iterator>

namespace Traces::Cli {

namespace {

template <auto Field>
Json Of(const Plot& plot)
{
    return ToJson(plot.Instance().*Field);
}

template <auto Field>
Json OfHeader(const Plot& plot)
{
    return ToJson(plot.Instance().Header.*Field);
}

template <auto Field>
Json OfLibrary(const Plot&)
{
    return ToJson(Library().*Field);
}

template <auto Field>
Json OfScreen(const Plot& plot)
{
    return ToJson(plot.Instance().Surface.Screen().*Field);
}

Json BorderStyle(const Plot& plot)
{
    return static_cast<int>(plot.Instance().BorderStyle);
}

Json BackColorOf(const Plot& plot)
{
    return plot.BackColor();
}

/// A number that is no border style is a range fault, as for any member that an enumeration bounds.
void SetBorder(Plot& plot, std::int16_t style)
{
    if (style < 0 || style > static_cast<std::int16_t>(MyBorderStyles::pbRaised))
        throw HostFault(FaultKind::Range, "there is no such border style");
    plot.BorderStyle(static_cast<MyBorderStyles>(style));
}

// clang-format off
constexpr StateField Fields[] = {
    // name             read                                      of a property: argument and write
    {"BorderStyle",         BorderStyle,                       "integer", [](Plot& plot, const ScriptValues& v) { SetBorder(plot, v.Integer(0)); }},
    {"BackColor",           BackColorOf,                       "long",    [](Plot& plot, const ScriptValues& v) { plot.BackColor(v.Long(0)); }},
    {"SetIndex",            Of<&Control::SetIndex>,            "integer", [](Plot& plot, const ScriptValues& v) { plot.SetIndex(v.Integer(0)); }},
    {"ForeColor",           Of<&Control::ForeColor>,           "long",    [](Plot& plot, const ScriptValues& v) { plot.ForeColor(v.Long(0)); }},
    {"AutoScaleY",          Of<&Control::AutoScaleY>,          "boolean", [](Plot& plot, const ScriptValues& v) { plot.AutoScaleY(v.Boolean(0)); }},
    {"TraceName",           Of<&Control::TraceName>,           "text",    [](Plot& plot, const ScriptValues& v) { plot.TraceName(v.Text(0)); }},
    {"TraceNum",            Of<&Control::TraceNum>,            "integer", [](Plot& plot, const ScriptValues& v) { plot.TraceNum(v.Integer(0)); }},
    {"ShowParams",          Of<&Control::ShowParams>,          "boolean", [](Plot& plot, const ScriptValues& v) { plot.ShowParams(v.Boolean(0)); }},
    {"IDENWideLayout",      Of<&Control::IDENWideLayout>},
    {"AllowPopupMenu",      Of<&Control::AllowPopupMenu>,      "boolean", [](Plot& plot, const ScriptValues& v) { plot.AllowPopupMenu(v.Boolean(0)); }},
    {"GridColor",           Of<&Control::GridColor>},
    {"YScaleTop",           Of<&Control::YScaleTop>},
    {"YScaleBottom",        Of<&Control::YScaleBottom>},
    {"SpectroSweep",        Of<&Control::SpectroSweep>},
    {"GSMViewMode",         Of<&Control::GSMViewMode>},
    {"IDENViewMode",        Of<&Control::IDENViewMode>},
    {"CDMAViewMode",        Of<&Control::CDMAViewMode>},
    {"CDMAIs128",           Of<&Control::CDMAIs128>},
    {"ChartHasMarkers",     Of<&Control::ChartHasMarkers>},
    {"EvDOViewMode",        Of<&Control::EvDOViewMode>},
    {"EvDOIs128",           Of<&Control::EvDOIs128>},
    {"EvDOChartHasMarkers", Of<&Control::EvDOChartHasMarkers>},
    {"ZoomActive",          Of<&Control::ZoomActive>},
    {"ZoomX1",              Of<&Control::ZoomX1>},
    {"ZoomX2",              Of<&Control::ZoomX2>},
    {"ZoomY1",              Of<&Control::ZoomY1>},
    {"ZoomY2",              Of<&Control::ZoomY2>},
    {"TraceLength",         OfHeader<&TraceHeader::TraceLength>},
    {"HeaderByte3",         OfHeader<&TraceHeader::HeaderByte3>},
    {"Model",               OfHeader<&TraceHeader::Model>},
    {"Version",             OfHeader<&TraceHeader::Version>},
    {"Mode",                OfHeader<&TraceHeader::Mode>},
    {"HeaderWord",          OfHeader<&TraceHeader::HeaderWord>},
    {"Date",                OfHeader<&TraceHeader::Date>},
    {"Time",                OfHeader<&TraceHeader::Time>},
    {"RefNumber",           OfHeader<&TraceHeader::RefNumber>},
    {"DataPoints",          OfHeader<&TraceHeader::DataPoints>},
    {"PowerLadderValue",    Of<&Control::PowerLadderValue>},
    {"PowerLadderUnit",     Of<&Control::PowerLadderUnit>},
    {"CurrentMode",         Of<&Control::CurrentMode>},
    {"DisplayMarkerValues", Of<&Control::DisplayMarkerValues>, "boolean", [](Plot& plot, const ScriptValues& v) { plot.DisplayMarkerValues(v.Boolean(0)); }},
    {"TraceSaved",          Of<&Control::TraceSaved>},
    {"FontScaleFactor",     OfScreen<&Screen::FontScaleFactor>},
    {"TwipsPerPixelX",      OfScreen<&Screen::TwipsPerPixelX>},
    {"TwipsPerPixelY",      OfScreen<&Screen::TwipsPerPixelY>},
    {"TraceVersionValue",   OfLibrary<&LibraryValues::TraceVersionValue>},
    {"ScaledPower",         OfLibrary<&LibraryValues::ScaledPower>},
    {"PowerUnit",           OfLibrary<&LibraryValues::PowerUnit>},
};
// clang-format on

} // namespace

std::span<const StateField> StateFields()
{
    return Fields;
}

Json StateJson(const Plot& plot)
{
    Json state = Json::object();
    for (const StateField& field : Fields)
        state[std::string(field.Name)] = field.Read(plot);
    return state;
}

const StateField* FindProperty(std::string_view name)
{
    const auto* field = std::find_if(std::begin(Fields), std::end(Fields), [&](const StateField& each) {
        return each.Write != nullptr && each.Name == name;
    });
    return field != std::end(Fields) ? field : nullptr;
}

} // namespace Traces::Cli
