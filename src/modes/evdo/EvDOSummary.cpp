#include "modes/evdo/EvDOSummary.h"

#include "chart/SummaryPane.h"
#include "control/Control.h"
#include "formats/CodeTable.h"
#include "formats/FormatValue.h"
#include "modes/evdo/EvDOFields.h"
#include "modes/evdo/EvDOPanels.h"
#include "modes/evdo/EvDOTrace.h"

#include <string>
#include <vector>

namespace Traces {

namespace {

std::vector<PaneRow> SummaryRows(const Control& control)
{
    const EvDORecord& record = control.EvDO;
    const auto level = [&](float value) {
        return EvDOLevelText(record, value) +
               (record.DisplayUnits == 0 && value != EvDONotCaptured ? " dBm" : "");
    };
    const PanePosition position = PanePositionTexts(PositionOf(control.EvDO));
    return {
        {"Pilot/MAC Average", level(record.PilotMACPowerAverage)},
        {"Pilot/MAC Active", level(record.PilotMACPowerActive)},
        {"Pilot/MAC Idle", level(record.PilotMACPowerIdle)},
        {"Pilot Average", level(record.PilotPowerAverage)},
        {"Pilot Active", level(record.PilotPowerActive)},
        {"Pilot Idle", level(record.PilotPowerIdle)},
        {"Data Average", level(record.DataPowerAverage)},
        {"Data Active", level(record.DataPowerActive)},
        {"Data Idle", level(record.DataPowerIdle)},
        {"Rho Pilot", FormatValue(record.RhoPilot, "#0.000")},
        {"Rho Overall 1", FormatValue(record.RhoOverall1, "#0.000")},
        {"Rho Overall 2", FormatValue(record.RhoOverall2, "#0.000")},
        {"EVM", FormatValue(record.EVM, "#0.00")},
        {"Freq Error", FormatValue(record.FrequencyError, "#0 Hz")},
        {"Carrier FT", FormatValue(record.CarrierFeedthrough, "#0.00 dB")},
        {"Noise Floor", FormatValue(record.NoiseFloor, "#0.00 dB")},
        {"Meas Occ BW", FormatValue(record.OccupiedBandwidth, "#0 kHz")},
        {"Idle Activity", FormatValue(record.IdleActivity, "#0.0") + " %"},
        {"Active Activity", FormatValue(record.ActiveActivity, "#0.0") + " %"},
        {"PN Search", TriggerMode.Text(record.SearchMode)},
        {"GPS-Latitude:", position.Latitude},
        {"GPS-Longitude:", position.Longitude},
    };
}

} // namespace

void DrawEvDOSummary(Control& control)
{
    ChartSurface& pane = OpenPane(control);
    PaneRows(pane, {.Left = 10, .Top = 8, .RowHeight = 21, .LabelWidth = 160}, SummaryRows(control),
             {.Size = 10, .Inset = 2, .ValueRoom = 160, .LabelColour = Black});
    ClosePane(pane);
}

} // namespace Traces
