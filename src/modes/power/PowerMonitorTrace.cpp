#include "modes/power/PowerMonitorTrace.h"

#include "control/Control.h"
#include "control/TextLoader.h"
#include "modes/power/PowerFields.h"
#include "modes/power/PowerMeterTrace.h"

namespace Traces {

namespace {

/// These are looked up with their colon: without it, their status lines would be found.
std::string_view LoadKeyOf(const Field<PowerRecord>& field)
{
    const bool withColon = field.Key == "Power Offset:" || field.Key == "Power Relative:";
    return withColon ? field.Key : field.LoadKey();
}

} // namespace

void DecodePowerMonitor(Control& control, const RawBuffer& buffer)
{
    DecodeFields(buffer, control.Power, PowerMonitorFields);
    PowerMonitorParams(control, control.lstParameters);
    control.TraceSaved = false;
}

void PowerMonitorParams(const Control& control, ParameterList& lines)
{
    AddParamLines(lines, control.Power, PowerMonitorFields);
}

void LoadPowerMonitorText(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    PowerRecord& record = control.Power;
    for (const auto& field : PowerMonitorFields)
        LoadField(traceText->ParamValue(LoadKeyOf(field)), field.Member.Of(record), Through::FieldType);
    // Asked for like the rest, but never saved with a monitor's trace: a file of ours empties it.
    record.RmsAveraging = traceText->ParamValue("RMS Averaging Level");
    // Hosts that show a loaded monitor trace find the meter's keys, its frequencies those of the trace
    // before.
    PowerMeterParams(control, control.lstParameters);
    EndTextLoad(control);
}

} // namespace Traces
