// The table of the measurement modes, and the lookups that walk it.
#include "formats/TraceMode.h"

#include "formats/Text.h"

#include <algorithm>

namespace Traces {

namespace {

struct NameRow {
    std::uint8_t Code;
    std::string_view Name;
    std::string_view TraceType;
    std::string_view Extension;
    SaveFilter Filter;
};

// clang-format off
constexpr SaveFilter
    VNAFilter   {"VNA Trace Files (*.vna)",                  "*.vna",  "vna"},
    SPAFilter   {"SPA Trace Files (*.spa)",                  "*.spa",  "spa"},
    CSFilter    {"CS Trace Files (*.cs)",                    "*.cs",   "cs"},
    PMETFilter  {"Power Meter Files (*.pmet)",               "*.pmet", "pmet"},
    PMONFilter  {"Power Monitor Files (*.pmon)",             "*.pmon", "pmon"},
    HIPMFilter  {"High Accuracy Power Meter Files (*.hipm)", "*.hipm", "HIPM"},
    SPGFilter   {"Spectro Trace Files (*.spg)",              "*.spg",  "spg"},
    ET1Filter   {"E1/T1 Trace Files (*.et1)",                "*.et1",  "et1"},
    CDMAFilter  {"CDMA Trace Files (*.cdma)",                "*.cdma", "cdma"},
    GSMFilter   {"GSM Trace Files (*.gsm)",                  "*.gsm",  "gsm"},
    EVDOFilter  {"EVDO Trace Files (*.evdo)",                "*.evdo", "evdo"},
    IDENFilter  {"IDEN Files (*.iden)",                      "*.iden", "iden"},
    GPSTFilter  {"GPS Tester Files (*.gpst)",                "*.gpst", "gpst"};

// A distance sweep of the return loss is "CL" to hosts, not "RL": they tell traces apart by it. Files of the
// channel scanner are named without an extension.
constexpr NameRow Modes[] = {
    {TraceMode::RLFrequency,        "RL Frequency",                   "RL",   ".VNA",  VNAFilter},
    {TraceMode::SWRFrequency,       "SWR Frequency",                  "SWR",  ".VNA",  VNAFilter},
    {TraceMode::CableLossFrequency, "Cable Loss Frequency",           "CL",   ".VNA",  VNAFilter},
    {TraceMode::RLDistance,         "RL Distance",                    "CL",   ".VNA",  VNAFilter},
    {TraceMode::SWRDistance,        "SWR Distance",                   "SWR",  ".VNA",  VNAFilter},
    {TraceMode::Spectrum,           "Spectrum Analyzer Mode",         "SPA",  ".SPA",  SPAFilter},
    {TraceMode::ChannelScanner,     "CS",                             "",     "",      CSFilter},
    {TraceMode::PowerMeter,         "Power Meter Mode",               "PM",   ".PMET", PMETFilter},
    {TraceMode::PowerMonitor,       "Power Monitor Mode",             "PMON", ".PMON", PMONFilter},
    {TraceMode::HighAccuracyPower,  "High Accuracy Power Meter Mode", "",     ".HIPM", HIPMFilter},
    {TraceMode::Spectrogram,        "Spectro Mode",                   "",     ".SPG",  SPGFilter},
    {TraceMode::T1,                 "T1 Tester Mode",                 "T1",   ".ET1",  ET1Filter},
    {TraceMode::E1,                 "E1 Tester Mode",                 "E1",   ".ET1",  ET1Filter},
    {TraceMode::CDMA,               "CDMA",                           "CDMA", ".CDMA", CDMAFilter},
    {TraceMode::GSM,                "GSM",                            "GSM",  ".GSM",  GSMFilter},
    {TraceMode::EvDO,               "EVDO",                           "EVDO", ".EVDO", EVDOFilter},
    {TraceMode::IDEN,               "iDen Mode",                      "",     ".IDEN", IDENFilter},
    {TraceMode::GPSTester,          "GPS Tester Mode",                "",     ".GPST", GPSTFilter},
};
// clang-format on

const NameRow* FindNames(std::uint8_t mode)
{
    const auto* row = std::find_if(std::begin(Modes), std::end(Modes),
                                   [&](const NameRow& candidate) { return candidate.Code == mode; });
    return row != std::end(Modes) ? row : nullptr;
}

} // namespace

bool IsNamedMode(int mode)
{
    return mode >= 0 && mode <= 255 && FindNames(static_cast<std::uint8_t>(mode)) != nullptr;
}

std::string ModeName(std::uint8_t mode)
{
    const NameRow* row = FindNames(mode);
    return row ? std::string(row->Name) : "Unknown(" + HexByte(mode) + ")";
}

std::uint8_t ModeCode(std::string_view name)
{
    // Two rows are looked up by their bare number instead of their name, and a match there gives no mode
    // either: "57" and "87" are 0, and so are "CS" and "Spectro Mode", which hold no number. Loaders of
    // saved files count on the 0 and set the mode themselves.
    if (name == "57" || name == "87")
        return 0;
    for (const NameRow& row : Modes) {
        const bool foundByName = row.Code != TraceMode::ChannelScanner && row.Code != TraceMode::Spectrogram;
        if (foundByName && row.Name == name)
            return row.Code;
    }

    const int code = ParseUnknownCode(name);
    return 0 <= code && code <= 255 ? static_cast<std::uint8_t>(code) : std::uint8_t{0};
}

std::string_view TraceTypeName(std::uint8_t mode)
{
    const NameRow* row = FindNames(mode);
    return row ? row->TraceType : std::string_view{};
}

std::string_view ModeExtension(std::uint8_t mode)
{
    const NameRow* row = FindNames(mode);
    return row ? row->Extension : std::string_view{};
}

SaveFilter ModeSaveFilter(std::uint8_t mode)
{
    const NameRow* row = FindNames(mode);
    return row ? row->Filter : SaveFilter{};
}

} // namespace Traces
