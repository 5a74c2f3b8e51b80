#include "apps/cli/ScriptMembers.h"

#include "apps/cli/DrawDump.h"
#include "apps/cli/Input.h"
#include "apps/cli/Script.h"
#include "apps/cli/StateFields.h"
#include "chart/Markers.h"
#include "control/ChartMenu.h"
#include "control/Control.h"
#include "control/Input.h"
#include "formats/HostFault.h"
#include "formats/Numbers.h"
#include "formats/Text.h"
#include "output/Capture.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

namespace Traces::Cli {

namespace {

// What the members' rows are written with.

template <class Value>
Json Result(const Value& value)
{
    return {{"result", ToJson(value)}};
}

Json NoResult()
{
    return Json::object();
}

Json Error(std::string what)
{
    return {{"error", std::move(what)}};
}

std::span<const std::uint8_t> Bytes(const std::string& text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

template <auto Load>
Json LoadText(Script& script, const ScriptValues& values)
{
    (script.Plot().*Load)(values.Text(0), {});
    return NoResult();
}

/// A save's result; the name is the member's own to change.
template <class Save>
Json Saved(std::string filename, Save save)
{
    return Result(save(filename));
}

Json TextWidth(Script& script, const ScriptValues& values)
{
    ChartSurface* surface = FindSurface(script.Instance(), values.Text(0));
    if (surface == nullptr)
        return Error("there is no surface " + values.Text(0));
    // A box that its family's view has yet to place has no units to measure in.
    if (surface->DeviceWidth() == 0)
        return Error(values.Text(0) + " has no width yet");
    const float size = std::exchange(surface->Font.Size, values.Number(2));
    const float width = surface->TextWidth(values.Text(1));
    surface->Font.Size = size;
    return Result(width);
}

Json Draw(Script& script, const ScriptValues& values)
{
    if (!values.Has(0))
        return {{"result", DrawJson(script.Instance())}};
    Json one = DrawJson(script.Instance(), values.Text(0));
    if (one.is_null())
        return Error("there is no surface or label " + values.Text(0));
    return {{"result", std::move(one)}};
}

Json Slots(Script& script)
{
    Json list = Json::array();
    for (std::size_t i = 0; i < LiveSlots; ++i) {
        const TraceSlot& slot = script.Instance().TraceSlots[i];
        list.push_back({{"Length", slot.Length}, {"X", ToJson(slot.X)}, {"Y", ToJson(slot.Y)}});
    }
    return {{"result", std::move(list)}};
}

/// No result in a mode without markers.
Json Markers(Script& script)
{
    const ModeRow* row = CurrentRow(script.Instance());
    if (row == nullptr || row->Markers == nullptr)
        return NoResult();
    const MarkerSet& set = script.Instance().*row->Markers;
    return {{"result",
             {{"Holder", set.Holder != nullptr ? set.Holder->Name : std::string()},
              {"SelectedMarker", set.SelectedMarker},
              {"DraggedMarker", set.DraggedMarker},
              {"MarkerIndex", ToJson(set.MarkerIndex)},
              {"MarkerX", ToJson(set.MarkerX)},
              {"MarkerText", ToJson(set.MarkerText)},
              {"MarkerOn", ToJson(set.MarkerOn)},
              {"MarkerOnAlt", ToJson(set.MarkerOnAlt)}}}};
}

using Values = const ScriptValues&;

/// A mouse event: surface, button, shift, X, Y in the surface's units.
template <auto Event>
Json Mouse(Script& script, const ScriptValues& values)
{
    ChartSurface* surface = FindSurface(script.Instance(), values.Text(0));
    if (surface == nullptr)
        return Error("there is no surface " + values.Text(0));
    Event(script.Instance(), *surface, values.Long(1), values.Long(2), values.Number(3), values.Number(4));
    return NoResult();
}

Json DoubleClick(Script& script, const ScriptValues& values)
{
    ChartSurface* surface = FindSurface(script.Instance(), values.Text(0));
    if (surface == nullptr)
        return Error("there is no surface " + values.Text(0));
    DblClick(script.Instance(), *surface);
    return NoResult();
}

template <auto Event>
Json DeviceMouse(Script& script, const ScriptValues& values)
{
    Event(script.Instance(), values.Long(0), values.Long(1), static_cast<double>(values.Number(2)),
          static_cast<double>(values.Number(3)));
    return NoResult();
}

Json PictureOf(Script& script)
{
    const Picture picture = TracePicture(script.Instance());
    return {{"result", {{"type", picture.MimeType}, {"bytes", picture.Bytes.size()}}}};
}

/// What a menu showed: its visible items, separators left out, submenus in their item.
Json ItemsJson(const std::vector<MenuItem>& items)
{
    Json list = Json::array();
    for (const MenuItem& item : items) {
        if (!item.Visible || item.Caption == "-")
            continue;
        Json shown = {{"name", ToJson(item.Name)},
                      {"caption", ToJson(item.Caption)},
                      {"enabled", item.Enabled},
                      {"checked", item.Checked}};
        if (!item.Items.empty())
            shown["items"] = ItemsJson(item.Items);
        list.push_back(std::move(shown));
    }
    return list;
}

/// What the call before this one made the platform do: menus, the parameters form, change notices.
Json Asked(Script& script)
{
    const HeadlessPlatform& platform = script.Platform();
    Json menus = Json::array();
    for (const Menu& menu : platform.Menus)
        menus.push_back({{"name", ToJson(menu.Name)}, {"items", ItemsJson(menu.Items)}});
    return {{"result",
             {{"menus", std::move(menus)},
              {"shown", ToJson(platform.ShownParameters)},
              {"changed", ToJson(platform.ChangedProperties)}}}};
}

Json StoredProperties(Script& script)
{
    PropertyBag bag;
    script.Plot().WriteProperties(bag);
    return {{"result", bag}};
}

/// From a JSON object of the stored values.
Json RestoreProperties(Script& script, const ScriptValues& values)
{
    const Json stored = Json::parse(values.Text(0), nullptr, false);
    if (!stored.is_object())
        return Error("ReadProperties takes a JSON object");
    PropertyBag bag;
    for (const auto& [key, value] : stored.items())
        if (value.is_number_integer())
            bag[key] = value.get<std::int32_t>();
    script.Plot().ReadProperties(bag);
    return NoResult();
}

Json PressKey(Script& script, const ScriptValues& values)
{
    ChartSurface* surface = FindSurface(script.Instance(), values.Text(0));
    if (surface == nullptr)
        return Error("there is no surface " + values.Text(0));
    KeyDown(script.Instance(), *surface, values.Long(1), values.Has(2) ? values.Long(2) : 0);
    return NoResult();
}

/// Runs an item's handler, with its check mark as the menu would show it now.
Json MenuItemCall(Script& script, const ScriptValues& values)
{
    Control& control = script.Instance();
    const MenuChoice choice = {values.Text(0), values.Has(1) ? values.Long(1) : -1};
    const Menu menu = ChartMenu(control, FamilyMarkers(control));
    const MenuItem* item = FindChosen(menu.Items, choice);
    if (!RunMenuItem(control, choice, item != nullptr && item->Checked))
        return Error("there is no menu item " + choice.Name);
    return NoResult();
}

/// The seven bytes that unscramble what LoadPowerMeterDat is given.
Json SetScrambleTable(Script& script, const ScriptValues& values)
{
    const std::vector<float>& numbers = values.Numbers(0);
    auto& table = script.Platform().Scramble;
    if (numbers.size() != table.size())
        return Error("ScrambleTable takes seven numbers");
    std::array<std::uint8_t, 7> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = RoundTo<std::uint8_t>(static_cast<double>(numbers[i]));
        if (!byte)
            throw HostFault(FaultKind::Overflow, "a scramble value doesn't fit a byte");
        bytes[i] = *byte;
    }
    table = bytes;
    return NoResult();
}

/// A name that may be left out is empty.
std::string NameOrEmpty(Values values)
{
    return values.Has(0) ? values.Text(0) : std::string();
}

// clang-format off
constexpr ScriptMember Members[] = {
    // Raw traces.
    {"ShowTrace",       "file",      [](Script& s, Values v) { return Result(s.Plot().ShowTrace(Bytes(v.Text(0)))); }},
    {"DisplayTrace",    "file",      [](Script& s, Values v) { return Result(s.Plot().DisplayTrace(v.Text(0))); }},
    {"DisplayTraceB",   "file",      [](Script& s, Values v) { return Result(s.Plot().DisplayTraceB(v.Text(0))); }},
    // Trace files.
    {"loadTextFile",    "name",      [](Script& s, Values v) { s.Plot().loadTextFile(v.Text(0)); return NoResult(); }},
    {"LoadVNAText",     "file",      LoadText<&Plot::LoadVNAText>},
    {"LoadSPAText",     "file",      LoadText<&Plot::LoadSPAText>},
    {"LoadE1T1Text",    "file",      LoadText<&Plot::LoadE1T1Text>},
    {"LoadCDMAText",    "file",      LoadText<&Plot::LoadCDMAText>},
    {"LoadCDMAText_v320_above", "file", LoadText<&Plot::LoadCDMAText_v320_above>},
    {"LoadEvDOText",    "file",      LoadText<&Plot::LoadEvDOText>},
    {"LoadEvDOText_v320_above", "file", LoadText<&Plot::LoadEvDOText_v320_above>},
    {"LoadCSText",      "file",      LoadText<&Plot::LoadCSText>},
    {"LoadiDen_GPS_Tester_Text", "file", LoadText<&Plot::LoadiDen_GPS_Tester_Text>},
    {"LoadiDen_Tester_Text", "file", LoadText<&Plot::LoadiDen_Tester_Text>},
    {"LoadGSMText",     "file",      LoadText<&Plot::LoadGSMText>},
    {"LoadSpectroText", "file",      LoadText<&Plot::LoadSpectroText>},
    {"LoadPowerMeterText", "file",   LoadText<&Plot::LoadPowerMeterText>},
    {"LoadPowerMonitorText", "file", LoadText<&Plot::LoadPowerMonitorText>},
    {"LoadPowerMeter_Zephra_Text", "file", LoadText<&Plot::LoadPowerMeter_Zephra_Text>},
    {"LoadPowerMeterDat", "file",    [](Script& s, Values v) { s.Plot().LoadPowerMeterDat(v.Text(0)); return NoResult(); }},
    {"ScrambleTable",   "numbers",   SetScrambleTable},
    {"LoadRawTrace",    "name",      [](Script& s, Values v) { return Result(s.Plot().LoadRawTrace(v.Text(0))); }},
    {"SaveTrace",       "[name]",    [](Script& s, Values v) { return Saved(NameOrEmpty(v), [&](std::string& name) { return s.Plot().SaveTrace(name); }); }},
    {"SaveRawTrace",    "file name", [](Script& s, Values v) { return Saved(v.Text(1), [&](std::string& name) { return s.Plot().SaveRawTrace(v.Text(0), name); }); }},
    {"SaveRawTraceB",   "file name", [](Script& s, Values v) { return Saved(v.Text(1), [&](std::string& name) { return s.Plot().SaveRawTraceB(v.Text(0), name); }); }},
    // Upload frames.
    {"GetUpLoadTrace",  "[name]",    [](Script& s, Values v) { return Result(HexText(Bytes(s.Plot().GetUpLoadTrace(NameOrEmpty(v))))); }},
    {"GetUpLoadTraceB", "[name]",    [](Script& s, Values v) { return Result(HexText(Bytes(s.Plot().GetUpLoadTraceB(NameOrEmpty(v))))); }},
    // The trace on show.
    {"TraceType",       "",          [](Script& s, Values) { return Result(s.Plot().TraceType()); }},
    {"TraceInfo",       "",          [](Script& s, Values) { return Result(s.Plot().TraceInfo()); }},
    {"Clear",           "",          [](Script& s, Values) { s.Plot().Clear(); return NoResult(); }},
    {"Refresh",         "",          [](Script& s, Values) { s.Plot().Refresh(); return NoResult(); }},
    {"RedrawTrace",     "",          [](Script& s, Values) { s.Plot().RedrawTrace(); return NoResult(); }},
    {"Plot",            "integer numbers numbers", [](Script& s, Values v) { return Result(s.Plot().PlotCurve(v.Integer(0), v.Numbers(1), v.Numbers(2))); }},
    {"count",           "",          [](Script& s, Values) { return Result(s.Plot().count()); }},
    {"ConvToDBCS",      "text",      [](Script&, Values v) { return Result(Plot::ConvToDBCS(v.Text(0))); }},
    {"Resize",          "long long", [](Script& s, Values v) { s.Plot().Resize(v.Long(0), v.Long(1)); return NoResult(); }},
    // Markers, mouse, keys, menus.
    {"MarkerOn",        "integer",   [](Script& s, Values v) { s.Plot().MarkerOn(v.Integer(0)); return NoResult(); }},
    {"MarkerOff",       "integer",   [](Script& s, Values v) { s.Plot().MarkerOff(v.Integer(0)); return NoResult(); }},
    {"ClearMarkers",    "",          [](Script& s, Values) { s.Plot().ClearMarkers(); return NoResult(); }},
    {"MarkerState",     "integer",   [](Script& s, Values v) { return Result(s.Plot().MarkerState(v.Integer(0))); }},
    {"MouseDown",       "name long long number number", Mouse<MouseDown>},
    {"MouseMove",       "name long long number number", Mouse<MouseMove>},
    {"MouseUp",         "name long long number number", Mouse<MouseUp>},
    {"DblClick",        "name",      DoubleClick},
    {"KeyDown",         "name long [long]", PressKey},
    {"KeyPress",        "name long", [](Script& s, Values v) { ChartSurface* surface = FindSurface(s.Instance(), v.Text(0)); if (surface != nullptr) KeyPress(s.Instance(), *surface, v.Long(1)); return NoResult(); }},
    {"KeyUp",           "name long [long]", [](Script& s, Values v) { ChartSurface* surface = FindSurface(s.Instance(), v.Text(0)); if (surface != nullptr) KeyUp(s.Instance(), *surface, v.Long(1), v.Has(2) ? v.Long(2) : 0); return NoResult(); }},
    {"DevicePress",     "long long number number", DeviceMouse<DevicePress>},
    {"DeviceMove",      "long long number number", DeviceMouse<DeviceMove>},
    {"DeviceRelease",   "long long number number", DeviceMouse<DeviceRelease>},
    {"MenuItem",        "name [long]", MenuItemCall},
    // Handed on.
    {"GPSLocation",     "",          [](Script& s, Values) { return Result(s.Plot().GPSLocation()); }},
    {"Copy2Clipboard",  "",          [](Script& s, Values) { return Result(s.Plot().Copy2Clipboard()); }},
    {"TracePicture",    "",          [](Script& s, Values) { return PictureOf(s); }},
    {"PrintTrace",      "number number number number", [](Script& s, Values v) { return Result(s.Plot().PrintTrace(v.Number(0), v.Number(1), v.Number(2), v.Number(3))); }},
    {"WriteProperties", "",          [](Script& s, Values) { return StoredProperties(s); }},
    {"ReadProperties",  "text",      RestoreProperties},
    // Looking into it.
    {"TextWidth",       "name text number", TextWidth},
    {"State",           "",          [](Script& s, Values) { return Json{{"result", StateJson(s.Plot())}}; }},
    {"Params",          "",          [](Script& s, Values) { return Result(s.Plot().Parameters()); }},
    {"Slots",           "",          [](Script& s, Values) { return Slots(s); }},
    {"Markers",         "",          [](Script& s, Values) { return Markers(s); }},
    {"Draw",            "[name]",    Draw},
    {AskedMember,       "",          [](Script& s, Values) { return Asked(s); }},
    // Answers to what the control will ask.
    {"Answer",          "name",      [](Script& s, Values v) { s.Platform().Answers.push_back(v.Text(0)); return NoResult(); }},
    {"Choose",          "name [long]", [](Script& s, Values v) { s.Platform().Choices.push_back({v.Text(0), v.Has(1) ? v.Long(1) : -1}); return NoResult(); }},
};
// clang-format on

// Conversion of a line's arguments to what a member takes.

std::optional<double> NumberOf(const std::string& text)
{
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = result.ptr == text.data() + text.size() && !text.empty();
    if (whole && result.ec == std::errc::result_out_of_range)
        throw HostFault(FaultKind::Overflow, "no number is as large");
    return whole && result.ec == std::errc() && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<bool> BooleanOf(const std::string& text)
{
    if (text == "true" || text == "false")
        return text == "true";
    const auto number = NumberOf(text);
    return number ? std::optional(*number != 0) : std::nullopt;
}

float FloatOf(double number)
{
    if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max()))
        throw HostFault(FaultKind::Overflow, "the number doesn't fit a float");
    return static_cast<float>(number);
}

template <class Integer>
Integer IntegerOf(double number)
{
    const auto integer = RoundTo<Integer>(number);
    if (!integer)
        throw HostFault(FaultKind::Overflow, "the number doesn't fit its argument");
    return *integer;
}

std::string FileContent(const std::string& name)
{
    std::string problem;
    auto content = ReadFile(name, problem);
    if (!content)
        throw HostFault(FaultKind::FileAccess, name + " " + problem);
    return std::move(*content);
}

/// Nothing when the argument isn't of the kind.
std::optional<ScriptValues::Value> Convert(std::string_view kind, const ScriptArgument& argument)
{
    if ((kind == "numbers") != argument.IsList)
        return std::nullopt;
    if (kind == "numbers") {
        std::vector<float> numbers;
        std::transform(argument.Numbers.begin(), argument.Numbers.end(), std::back_inserter(numbers),
                       FloatOf);
        return numbers;
    }
    if (kind == "name")
        return argument.Text;
    if (kind == "text")
        return AnsiFromUtf8(argument.Text);
    if (kind == "file")
        return FileContent(argument.Text);
    if (kind == "boolean") {
        const auto boolean = BooleanOf(argument.Text);
        return boolean ? std::optional<ScriptValues::Value>(*boolean) : std::nullopt;
    }
    const auto number = NumberOf(argument.Text);
    if (!number)
        return std::nullopt;
    if (kind == "integer")
        return IntegerOf<std::int16_t>(*number);
    if (kind == "long")
        return IntegerOf<std::int32_t>(*number);
    return FloatOf(*number);
}

/// The arguments as `takes` lists them. Nothing when they don't fit it.
std::optional<ScriptValues> ConvertAll(std::string_view takes, const std::vector<ScriptArgument>& arguments)
{
    ScriptValues values;
    for (const ScriptArgument& argument : arguments) {
        std::string_view kind = takes.substr(0, takes.find(' '));
        takes.remove_prefix(std::min(kind.size() + 1, takes.size()));
        if (kind.starts_with('['))
            kind = kind.substr(1, kind.size() - 2);
        auto value = kind.empty() ? std::nullopt : Convert(kind, argument);
        if (!value)
            return std::nullopt;
        values.Values.push_back(std::move(*value));
    }
    const bool complete = takes.empty() || takes.starts_with('[');
    return complete ? std::optional(std::move(values)) : std::nullopt;
}

Json WrongArguments(std::string_view name, std::string_view takes)
{
    return Error(std::string(name) + " takes " + (takes.empty() ? "no argument" : std::string(takes)));
}

Json UseProperty(Script& script, const StateField& property, const std::vector<ScriptArgument>& arguments)
{
    if (arguments.empty())
        return {{"result", property.Read(script.Plot())}};
    const auto values = ConvertAll(property.Takes, arguments);
    if (!values)
        return WrongArguments(property.Name, property.Takes);
    property.Write(script.Plot(), *values);
    return NoResult();
}

} // namespace

std::span<const ScriptMember> ScriptMembers()
{
    return Members;
}

Json CallMember(Script& script, const ScriptLine& line)
{
    if (const StateField* property = FindProperty(line.Member))
        return UseProperty(script, *property, line.Arguments);
    const auto* member = std::find_if(std::begin(Members), std::end(Members),
                                      [&](const ScriptMember& each) { return each.Name == line.Member; });
    if (member == std::end(Members))
        return Error("unknown member");
    const auto values = ConvertAll(member->Takes, line.Arguments);
    return values ? member->Call(script, *values) : WrongArguments(member->Name, member->Takes);
}

} // namespace Traces::Cli
