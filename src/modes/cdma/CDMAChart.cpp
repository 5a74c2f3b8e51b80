#include "modes/cdma/CDMAChart.h"

#include "control/Control.h"
#include "formats/CodeTable.h"
#include "formats/FormatValue.h"
#include "formats/HostFault.h"
#include "formats/PowerUnits.h"
#include "modes/cdma/CodeChart.h"

#include <array>
#include <limits>

namespace Traces {

namespace {

void LayCurve(Control& control)
{
    control.CDMAViewMode = control.CDMA.DisplayType;
    if (control.CDMA.DisplayType == CodeView::Spectrum)
        PrepareCDMASpectrum(control);
    else
        PrepareCDMAHistogram(control);
}

} // namespace

std::int16_t WalshDisplayIndex(const Control& control, std::int16_t position)
{
    if (control.CDMAIs128 && control.Header.DataPoints == 64)
        return BitReverse6(position);
    if (control.CDMAIs128 && control.Header.DataPoints == 128)
        return BitReverse7(position);
    return position;
}

void PrepareCDMAHistogram(Control& control)
{
    const CDMARecord& record = control.CDMA;
    control.ChartHasMarkers = true;
    control.CDMAViewMode = record.DisplayType == CodeView::Spectrum ? 1 : record.DisplayType;
    SetSlotLength(control, 0, control.Header.DataPoints);
    TraceSlot& slot = control.TraceSlots[0];
    for (std::size_t i = 0; i < slot.X.size(); ++i) {
        const auto code = static_cast<std::size_t>(WalshDisplayIndex(control, static_cast<std::int16_t>(i)));
        if (code >= CDMARecord::Codes)
            break;
        slot.X[i] = static_cast<float>(i);
        slot.Y[i] = record.CDPPower[code];
    }
    SetCodeLimits(control);
}

void PrepareCDMASpectrum(Control& control)
{
    control.CDMAViewMode = CodeView::Spectrum;
    SetSlotLength(control, 0, CDMARecord::SpectrumPoints);
    TraceSlot& slot = control.TraceSlots[0];
    for (std::size_t i = 0; i < CDMARecord::SpectrumPoints; ++i) {
        slot.X[i] = static_cast<float>(i);
        slot.Y[i] = control.CDMA.RFSpectrum[i];
    }
    SetCodeLimits(control);
    control.ChartHasMarkers = false;
}

void FillCDMACurve(Control& control)
{
    // Some firmware leaves the count out. Its last code tells it: a raw power of zero was never measured.
    if (control.Header.DataPoints == 0)
        control.Header.DataPoints = control.CDMA.CDPPower.back() == -270.0F ? 64 : 128;
    LayCurve(control);
}

void TryFillCDMACurve(Control& control)
{
    try {
        LayCurve(control);
    } catch (const HostFault&) {
        // A loader reports nothing but the checksum. Without codes the chart still has its limits.
        SetCodeLimits(control);
    }
}

void TakeCDMAMarkers(Control& control)
{
    const CDMARecord& record = control.CDMA;
    control.CDMAIs128 = control.Header.DataPoints == 128;
    MarkerSet& markers = control.CDMAMarkers;
    for (std::size_t k = 0; k < MarkerCount; ++k) {
        markers.MarkerIndex[k] = record.MarkerPosition[k];
        markers.MarkerOn[k] = (record.StatusByte2 & MarkerBit(k)) != 0;
        markers.MarkerText[k] = CDMAMarkerText(control, k);
    }
}

std::string CDMAMarkerText(Control& control, std::size_t marker)
{
    CDMARecord& record = control.CDMA;
    const MarkerSet& markers = control.CDMAMarkers;
    const std::int16_t position = markers.MarkerIndex[marker];
    SetBits(record.StatusByte2, MarkerBit(marker), markers.MarkerOn[marker]);
    // A marker that was dragged to the right on the spectrum stands where no byte can say.
    if (position >= 0 && position <= std::numeric_limits<std::uint8_t>::max())
        record.MarkerPosition[marker] = static_cast<std::uint8_t>(position);
    if (!markers.MarkerOn[marker])
        return "Off";
    const std::int16_t code = WalshDisplayIndex(control, position);
    const auto place = static_cast<std::size_t>(code);
    if (code < 0 || place >= CDMARecord::Codes)
        return markers.MarkerText[marker]; // until the redraw clamps it
    return FormatValue(record.CDPPower[place], "#0.00 dB") + ',' + FormatValue(std::int32_t{code}, "#0") +
           ',' + CDMAChannelType.Text(record.CDPChannelType[place]);
}

bool CDMAChartHasMarkers(const Control& control)
{
    return control.CDMAViewMode != CodeView::Spectrum;
}

constinit const std::array<FamilyMenuItem, 3> CDMAMenuItems = {{
    {"menuCDMAHistogram", "CDP Histogram",
     [](Control& control) {
         PrepareCDMAHistogram(control);
         RedrawTrace(control);
     },
     [](const Control& control) { return control.CDMAViewMode < CodeView::Spectrum; }, nullptr, "codes"},
    {"menuCDMARFSpec", "RF Spectrum Graph",
     [](Control& control) {
         PrepareCDMASpectrum(control);
         RedrawTrace(control);
     },
     [](const Control& control) { return control.CDMAViewMode == CodeView::Spectrum; },
     [](const Control& control) { return (control.CDMA.StatusByte3 & CDMAOption::RF) != 0; }, "spectrum"},
    {"menuCDMABitReverse", "Bit Reverse",
     [](Control& control) {
         control.CDMAIs128 = !control.CDMAIs128;
         PrepareCDMAHistogram(control);
         RedrawTrace(control);
     },
     [](const Control& control) { return control.CDMAIs128; },
     [](const Control& control) { return control.CDMAViewMode < CodeView::Spectrum; }},
}};

} // namespace Traces
