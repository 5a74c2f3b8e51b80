#include "modes/evdo/EvDOChart.h"

#include "control/Control.h"
#include "control/TraceEntry.h"
#include "formats/CodeTable.h"
#include "formats/FormatValue.h"
#include "formats/Text.h"
#include "modes/cdma/CodeChart.h"

#include <algorithm>

namespace Traces {

namespace {

void LayCurve(Control& control, std::int16_t points, const float* values)
{
    SetSlotLength(control, 0, points);
    TraceSlot& slot = control.TraceSlots[0];
    for (std::size_t i = 0; i < slot.X.size(); ++i) {
        slot.X[i] = static_cast<float>(i);
        slot.Y[i] = values[i];
    }
    SetCodeLimits(control);
}

void SelectView(Control& control, std::int16_t view, bool hasMarkers)
{
    control.EvDOViewMode = view;
    control.EvDO.DisplayType = static_cast<std::uint8_t>(view);
    control.EvDOChartHasMarkers = hasMarkers;
}

/// The record's display type goes with the view, and the parameter list with the record.
void ShowSelected(Control& control)
{
    RebuildParameters(control);
    RedrawTrace(control);
}

bool ShowsCodes(const Control& control)
{
    return control.EvDOViewMode < CodeView::OverTheAir;
}

template <const char* Word>
void RunCDP(Control& control)
{
    SelectEvDOCDP(control, Word);
    ShowSelected(control);
}

template <const char* Word>
void RunRF(Control& control)
{
    SelectEvDORF(control, Word);
    ShowSelected(control);
}

constexpr char MAC[] = "MAC", Data[] = "Data", Active[] = "Active", Idle[] = "Idle";

} // namespace

void SelectEvDOCDP(Control& control, std::string_view word)
{
    constexpr std::int16_t most = EvDORecord::MACCodes, fewest = 64;
    const std::string shown = UpperCase(word);
    if (shown == "MAC" || shown == "DATA")
        SetBits(control.EvDO.StatusByte1, EvDOStatus::MAC, shown == "MAC");
    SelectView(control, CodeView::Codes, true);
    LayCurve(control, control.Header.DataPoints == most ? most : fewest, control.EvDO.CDPMACPower.data());
}

void SelectEvDORF(Control& control, std::string_view word)
{
    const std::string shown = UpperCase(word);
    if (shown == "ACTIVE" || shown == "IDLE")
        SetBits(control.EvDO.StatusByte1, EvDOStatus::Active, shown == "ACTIVE");
    SelectView(control, CodeView::Spectrum, false);
    LayCurve(control, EvDORecord::CurvePoints, control.EvDO.RFSpectrum.data());
}

void FillEvDOCurve(Control& control)
{
    const std::uint8_t view = control.EvDO.DisplayType;
    if (view == CodeView::Spectrum)
        SelectEvDORF(control, {});
    else if (view == CodeView::OverTheAir)
        SelectView(control, CodeView::OverTheAir, false);
    else
        SelectEvDOCDP(control, {});
}

void TakeEvDOMarkers(Control& control)
{
    const EvDORecord& record = control.EvDO;
    control.EvDOIs128 = control.Header.DataPoints == 128;
    MarkerSet& markers = control.EvDOMarkers;
    for (std::size_t k = 0; k < MarkerCount; ++k) {
        markers.MarkerIndex[k] = record.MarkerPosition[k];
        markers.MarkerOn[k] = (record.StatusByte2 & MarkerBit(k)) != 0;
        markers.MarkerOnAlt[k] = (record.DataMarkers >> k & 1) == 0;
        markers.MarkerText[k] = EvDOMarkerText(control, k);
    }
}

bool EvDOMarkerStandsIn(const Control& control, const ChartSurface& box, std::size_t marker)
{
    const bool ofMAC = (control.EvDO.StatusByte1 & EvDOStatus::MAC) != 0;
    const ChartSurface& shown = ofMAC ? control.EvDOTopBox : control.EvDOSubBox;
    return control.EvDOChartHasMarkers && &box == &shown && control.EvDOMarkers.MarkerOnAlt[marker] == ofMAC;
}

std::string EvDOMarkerText(Control& control, std::size_t marker)
{
    EvDORecord& record = control.EvDO;
    const MarkerSet& markers = control.EvDOMarkers;
    const std::int16_t position = markers.MarkerIndex[marker];
    SetBits(record.StatusByte2, MarkerBit(marker), markers.MarkerOn[marker]);
    if (position >= 0)
        record.MarkerPosition[marker] = static_cast<std::uint8_t>(std::min<std::int16_t>(position, 255));
    if (!markers.MarkerOn[marker])
        return "Off";
    const auto code = static_cast<std::size_t>(position);
    const std::string place = FormatValue(std::int32_t{position}, "#0");
    if (markers.MarkerOnAlt[marker] && position >= 0 && code < EvDORecord::MACCodes)
        return FormatValue(record.CDPMACPower[code], "#0.00 dB") + ',' + place + ',' +
               CDMAChannelType.Text(record.CDPMACType[code]);
    if (!markers.MarkerOnAlt[marker] && position >= 0 && code < EvDORecord::DataCodes)
        return FormatValue(record.CDPDataI[code], "#0.00 dB") + ',' +
               FormatValue(record.CDPDataQ[code], "#0.00 dB") + ',' + place;
    return markers.MarkerText[marker]; // until the redraw clamps it
}

// Each of the two code domain items has always chosen the other's word. The check marks follow what an item
// does, so the item that was chosen is the one that is checked.
constinit const std::array<FamilyMenuItem, 5> EvDOMenuItems = {{
    {"menuEvDOCDPMAC", "CDP - MAC", RunCDP<Data>,
     [](const Control& control) {
         return ShowsCodes(control) && (control.EvDO.StatusByte1 & EvDOStatus::MAC) == 0;
     },
     nullptr, "data"},
    {"menuEvDOCDPData", "CDP - Data", RunCDP<MAC>,
     [](const Control& control) {
         return ShowsCodes(control) && (control.EvDO.StatusByte1 & EvDOStatus::MAC) != 0;
     },
     nullptr, "mac"},
    {"menuEvDOOTA", "Over the Air",
     [](Control& control) {
         SelectView(control, CodeView::OverTheAir, false);
         ShowSelected(control);
     },
     [](const Control& control) { return control.EvDOViewMode == CodeView::OverTheAir; }, nullptr, "air"},
    {"menuEvDORFSpecIdle", "RF Spectrum - Idle", RunRF<Idle>,
     [](const Control& control) {
         return control.EvDOViewMode == CodeView::Spectrum &&
                (control.EvDO.StatusByte1 & EvDOStatus::Active) == 0;
     },
     nullptr, "idle"},
    {"menuEvDORFSpecActive", "RF Spectrum - Active", RunRF<Active>,
     [](const Control& control) {
         return control.EvDOViewMode == CodeView::Spectrum &&
                (control.EvDO.StatusByte1 & EvDOStatus::Active) != 0;
     },
     nullptr, "active"},
}};

} // namespace Traces
