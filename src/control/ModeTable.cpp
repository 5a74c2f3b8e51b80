#include "control/ModeTable.h"

#include "control/Control.h"
#include "formats/TraceMode.h"
#include "modes/cdma/CDMAChart.h"
#include "modes/cdma/CDMATrace.h"
#include "modes/cdma/CDMAView.h"
#include "modes/channel_scanner/CSTrace.h"
#include "modes/channel_scanner/CSView.h"
#include "modes/evdo/EvDOChart.h"
#include "modes/evdo/EvDOTrace.h"
#include "modes/evdo/EvDOView.h"
#include "modes/gps_tester/GPSTesterTrace.h"
#include "modes/gps_tester/GPSTesterView.h"
#include "modes/gsm/GSMChart.h"
#include "modes/gsm/GSMTrace.h"
#include "modes/gsm/GSMView.h"
#include "modes/iden/IDENChart.h"
#include "modes/iden/IDENTrace.h"
#include "modes/iden/IDENView.h"
#include "modes/power/PowerMeterTrace.h"
#include "modes/power/PowerMonitorTrace.h"
#include "modes/power/PowerView.h"
#include "modes/power/ZephraTrace.h"
#include "modes/spectrogram/SpectroTrace.h"
#include "modes/spectrogram/SpectroView.h"
#include "modes/t1e1/E1T1Trace.h"
#include "modes/t1e1/E1T1View.h"
#include "modes/vna_spa/SPATrace.h"
#include "modes/vna_spa/SPAView.h"
#include "modes/vna_spa/VNATrace.h"
#include "modes/vna_spa/VNAView.h"

namespace Traces {

namespace {

template <auto Record>
GpsFix PositionIn(const Control& control)
{
    return PositionOf(control.*Record);
}

// Sweeps of cables and antennas.

constexpr FileKind VNAFile = {"VNA", LoadVNAText, EncodeVNAText};

/// A mode that only text files bring: no raw buffer of it is decoded, saved or sent.
constexpr ModeRow SweepOfText(std::uint8_t mode)
{
    return {
        .Mode = mode,
        .Holder = &ChildControls::VNAHolder,
        .Markers = &Control::VNAMarkers,
        .Params = VNAParams,
        .View = DrawVNATrace,
        .Position = PositionIn<&Control::VNA>,
        .TextFile = &VNAFile,
    };
}

constexpr ModeRow Sweep(std::uint8_t mode)
{
    ModeRow row = SweepOfText(mode);
    row.Decode = DecodeVNATrace;
    row.FillCurve = FillVNACurve;
    row.EncodeRecord = EncodeVNARecord;
    row.EncodeRaw = EncodeVNARaw;
    return row;
}

// Spectrum analyzer.

constexpr FileKind SPAFile = {"SPA", LoadSPAText, EncodeSPAText};

constexpr ModeRow Spectrum = {
    .Mode = TraceMode::Spectrum,
    .Holder = &ChildControls::SPAHolder,
    .Markers = &Control::SPAMarkers,
    .Decode = DecodeSPATrace,
    .FillCurve = FillSPACurve,
    .Params = SPAParams,
    .View = DrawSPATrace,
    .EncodeRecord = EncodeSPARecord,
    .EncodeRaw = EncodeSPARaw,
    .Position = PositionIn<&Control::SPA>,
    .TextFile = &SPAFile,
};

// Channel scanner. Its files aren't uploaded, only the record on show.

constexpr FileKind CSFile = {"CS", LoadCSText, nullptr};

constexpr ModeRow ChannelScan = {
    .Mode = TraceMode::ChannelScanner,
    .Holder = &ChildControls::CSHolder,
    .Decode = DecodeCSTrace,
    .FillCurve = FillCSCurve,
    .Params = CSParams,
    .View = DrawCSTrace,
    .EncodeRecord = EncodeCSRecord,
    .Position = PositionIn<&Control::CS>,
    .CoordsText = CSCoordsText,
    .TextFile = &CSFile,
};

// Spectrogram: the map of all sweeps, and one sweep of it, which is no trace of its own.

constexpr FileKind SpectroFile = {"SPG", LoadSpectroText, nullptr};

constexpr ModeRow SpectrogramMap = {
    .Mode = TraceMode::Spectrogram,
    .Holder = &ChildControls::SpectroHolder,
    .Markers = &Control::SpectroMarkers,
    .MarkerText = SpectroMarkerText,
    .HasAutoScale = false, // its other axis is time
    .Decode = DecodeSpectroTrace,
    .FillCurve = FillSpectroCurve,
    .Params = SpectroParams,
    .View = DrawSpectroTrace,
    .Position = PositionIn<&Control::Spectro>,
    .CoordsText = SpectroCoordsText,
    .Press = ChooseSweepAt,
    .DoubleClick = ToggleSweepView,
    .TextFile = &SpectroFile,
};

constexpr ModeRow SpectrogramSweep = {
    .Mode = TraceMode::SpectrogramSweep,
    .View = DrawSweepTrace,
    .DoubleClick = ToggleSweepView,
};

// Power readings, which have no curve. Only the power meter's go back to the instrument.

constexpr FileKind PMETFile = {"PMET", LoadPowerMeterText, EncodePowerMeterText};
constexpr FileKind PMFile = {"PM", LoadPowerMeterText, EncodePowerMeterText};
constexpr FileKind PMONFile = {"PMON", LoadPowerMonitorText, nullptr};
constexpr FileKind HIPMFile = {"HIPM", LoadPowerMeter_Zephra_Text, nullptr};

constexpr ModeRow PowerMeter = {
    .Mode = TraceMode::PowerMeter,
    .Holder = &ChildControls::PMHolder,
    .RightClick = HolderMenu::Power,
    .Decode = DecodePowerMeter,
    .Params = PowerMeterParams,
    .View = DrawPowerMeterTrace,
    .EncodeRecord = EncodePowerMeterRecord,
    .EncodeRaw = EncodePowerMeterRaw,
    .Position = PositionIn<&Control::Power>,
    .TextFile = &PMETFile,
};

constexpr ModeRow PowerMonitor = {
    .Mode = TraceMode::PowerMonitor,
    .Holder = &ChildControls::PMHolder,
    .RightClick = HolderMenu::Power,
    .Decode = DecodePowerMonitor,
    .Params = PowerMonitorParams,
    .View = DrawPowerMonitorTrace,
    .TextFile = &PMONFile,
};

constexpr ModeRow HighAccuracyPower = {
    .Mode = TraceMode::HighAccuracyPower,
    .Holder = &ChildControls::ZephraHolder,
    .RightClick = HolderMenu::Power,
    .Decode = DecodeZephra,
    .Params = ZephraParams,
    .View = DrawZephraTrace,
    .Position = PositionIn<&Control::Power>, // hosts have always got the meter's
    .TextFile = &HIPMFile,
};

// Line tests.

constexpr FileKind E1T1File = {"ET1", LoadE1T1Text, EncodeE1T1Text};

constexpr ModeRow LineTest(std::uint8_t mode)
{
    return {
        .Mode = mode,
        .Holder = &ChildControls::E1T1Holder,
        .Markers = &Control::E1T1Markers,
        .RightClick = HolderMenu::Chart,
        .HasMarkersMenu = false,
        .Decode = DecodeE1T1,
        .FillCurve = FillE1T1Curve,
        .Params = E1T1Params,
        .View = DrawE1T1Trace,
        .EncodeRecord = EncodeE1T1Record,
        .EncodeRaw = EncodeE1T1Raw,
        .Position = PositionIn<&Control::E1T1>,
        .TextFile = &E1T1File,
    };
}

// GSM.

constexpr FileKind GSMFile = {"GSM", LoadGSMText, EncodeGSMText};

constexpr ModeRow Burst = {
    .Mode = TraceMode::GSM,
    .Holder = &ChildControls::GSMHolder,
    .Markers = &Control::GSMMarkers,
    .Menu = {"menuGSMSepbar", GSMMenuItems},
    .HasMarkersMenu = false,
    .Decode = DecodeGSMTrace,
    .FillCurve = FillGSMCurve,
    .Params = GSMParams,
    .View = DrawGSMTrace,
    .EncodeRecord = EncodeGSMRecord,
    .EncodeRaw = EncodeGSMRaw,
    .Position = PositionIn<&Control::GSM>,
    .TextFile = &GSMFile,
};

// CDMA.

constexpr FileKind CDMAFile = {"CDMA", LoadCDMAText, EncodeCDMAText};

constexpr ModeRow CodeDomain = {
    .Mode = TraceMode::CDMA,
    .Holder = &ChildControls::CDMAHolder,
    .Markers = &Control::CDMAMarkers,
    .MarkerText = CDMAMarkerText,
    .RightClick = HolderMenu::Chart,
    .Menu = {"menuCDAMSepbar", CDMAMenuItems},
    .MarkersMenuEnabled = CDMAChartHasMarkers,
    .Decode = DecodeCDMATraceByVersion,
    .DecodeToSave = DecodeCDMATrace,
    .FillCurve = FillCDMACurve,
    .Params = CDMAParamsByVersion,
    .Report = CDMAReport,
    .View = DrawCDMATrace,
    .BeforeUpload = AdvanceCDMATau,
    .EncodeRecord = EncodeCDMARecord,
    .EncodeRaw = EncodeCDMARaw,
    .Position = CDMAPosition,
    .TextFile = &CDMAFile,
};

// EV-DO.

constexpr FileKind EvDOFile = {"EVDO", LoadEvDOText, EncodeEvDOText};

constexpr ModeRow DataOptimized = {
    .Mode = TraceMode::EvDO,
    .Holder = &ChildControls::EvDOHolder,
    .Markers = &Control::EvDOMarkers,
    .MarkerText = EvDOMarkerText,
    .MarkerStandsIn = EvDOMarkerStandsIn,
    .RightClick = HolderMenu::Chart,
    .Menu = {"menuEvDOeSepbar", EvDOMenuItems},
    .Decode = DecodeEvDOTraceByVersion,
    .DecodeToSave = DecodeEvDOTrace,
    .FillCurve = FillEvDOCurve,
    .Params = EvDOParamsByVersion,
    .View = DrawEvDOTrace,
    .EncodeRecord = EncodeEvDORecord,
    .EncodeRaw = EncodeEvDORaw,
    .Position = PositionIn<&Control::EvDO>,
    .TextFile = &EvDOFile,
};

// iDEN, and the check of a GPS receiver. Neither goes back to the instrument.

constexpr FileKind IDENFile = {"IDEN", LoadiDen_Tester_Text, nullptr, false};
constexpr FileKind GPSTFile = {"GPST", LoadiDen_GPS_Tester_Text, nullptr};

constexpr ModeRow EnhancedNetwork = {
    .Mode = TraceMode::IDEN,
    .Holder = &ChildControls::idenHolder,
    .RightClick = HolderMenu::Chart,
    .Menu = {"menuIDENSepbar", IDENMenuItems},
    .Decode = DecodeIDEN,
    .FillCurve = FillIDENCurve,
    .Params = IDENParams,
    .View = DrawIDENTrace,
    .TextFile = &IDENFile,
};

constexpr ModeRow GPSCheck = {
    .Mode = TraceMode::GPSTester,
    .Holder = &ChildControls::GPSiDENHolder,
    .RightClick = HolderMenu::Chart,
    .Decode = DecodeGPSTester,
    .Params = GPSTesterParams,
    .View = DrawGPSTesterTrace,
    .TextFile = &GPSTFile,
};

/// The families' parts of the chart menu stand in this order.
constexpr ModeRow Modes[] = {
    Sweep(TraceMode::RLFrequency),
    Sweep(TraceMode::SWRFrequency),
    Sweep(TraceMode::CableLossFrequency),
    SweepOfText(TraceMode::VNAUnnamed),
    Sweep(TraceMode::RLDistance),
    Sweep(TraceMode::SWRDistance),
    Spectrum,
    ChannelScan,
    SpectrogramMap,
    SpectrogramSweep,
    PowerMeter,
    PowerMonitor,
    HighAccuracyPower,
    LineTest(TraceMode::T1),
    LineTest(TraceMode::E1),
    Burst,
    CodeDomain,
    DataOptimized,
    EnhancedNetwork,
    GPSCheck,
};

/// By their extensions.
constexpr FileKind Files[] = {
    VNAFile,  SPAFile,  CSFile,   SpectroFile, PMETFile, PMFile,   PMONFile,
    HIPMFile, E1T1File, CDMAFile, GSMFile,     EvDOFile, IDENFile, GPSTFile,
};

} // namespace

const Families AllFamilies = {Modes, Files};

} // namespace Traces
