#include "control/Plot.h"

#include "chart/Markers.h"
#include "chart/SweepCurve.h"
#include "control/Control.h"
#include "control/ModeTable.h"
#include "control/Properties.h"
#include "control/TraceEntry.h"
#include "control/TraceFile.h"
#include "control/Upload.h"
#include "formats/HostFault.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"
#include "modes/cdma/CDMATrace.h"
#include "modes/channel_scanner/CSTrace.h"
#include "modes/evdo/EvDOTrace.h"
#include "modes/gps_tester/GPSTesterTrace.h"
#include "modes/gsm/GSMTrace.h"
#include "modes/iden/IDENTrace.h"
#include "modes/power/PowerMeterTrace.h"
#include "modes/power/PowerMonitorTrace.h"
#include "modes/power/ZephraTrace.h"
#include "modes/spectrogram/SpectroTrace.h"
#include "modes/t1e1/E1T1Trace.h"
#include "modes/vna_spa/SPATrace.h"
#include "modes/vna_spa/VNATrace.h"
#include "output/Capture.h"
#include "output/GpsText.h"

#include <cstdlib>

namespace Traces {

namespace {

/// A host's text as a raw buffer. Texts are counted in 16 bits, and none can be empty.
RawBuffer BufferOfText(std::string_view text)
{
    constexpr std::size_t longest = 32767;
    if (text.size() > longest)
        throw HostFault(FaultKind::Overflow, "a trace in a text holds at most 32767 characters");
    if (text.empty())
        throw HostFault(FaultKind::Range, "the text of a trace is empty");
    return RawBuffer::FromText(text);
}

std::vector<std::string> LinesOf(const ParameterList& list)
{
    std::vector<std::string> lines;
    lines.reserve(list.ListCount());
    for (std::size_t i = 0; i < list.ListCount(); ++i)
        lines.emplace_back(list.List(i));
    return lines;
}

} // namespace

Plot::Plot(Traces::Platform& platform) : control(std::make_unique<Control>(platform, AllFamilies)) {}
Plot::~Plot() = default;

bool Plot::ShowTrace(std::span<const std::uint8_t> BinaryBuffer)
{
    return Traces::ShowTrace(*control, RawBuffer(BinaryBuffer));
}

bool Plot::DisplayTrace(std::string_view StringBuffer)
{
    return Traces::ShowTrace(*control, BufferOfText(StringBuffer));
}
bool Plot::DisplayTraceB(std::string_view StringBuffer)
{
    return DisplayTrace(StringBuffer);
}

bool Plot::SaveTrace(std::string& Filename)
{
    return Traces::SaveTrace(*control, Filename);
}

bool Plot::SaveRawTrace(std::string_view TraceString, std::string& Filename)
{
    return Traces::SaveRawTrace(*control, TraceString, Filename, RawTextForm::Characters);
}

bool Plot::SaveRawTraceB(std::string_view TraceString, std::string& Filename)
{
    return Traces::SaveRawTrace(*control, TraceString, Filename, RawTextForm::Bytes);
}

bool Plot::LoadRawTrace(const std::string& Filename)
{
    return Traces::LoadRawTrace(*control, Filename);
}
void Plot::loadTextFile(const std::string& TraceName)
{
    LoadTextFile(*control, TraceName);
}

void Plot::LoadVNAText(std::string_view TraceString, const std::string& path)
{
    Traces::LoadVNAText(*control, TraceString, path);
}

void Plot::LoadSPAText(std::string_view TraceString, const std::string& path)
{
    Traces::LoadSPAText(*control, TraceString, path);
}

void Plot::LoadE1T1Text(std::string_view TraceString, const std::string& path)
{
    Traces::LoadE1T1Text(*control, TraceString, path);
}

void Plot::LoadCDMAText(std::string_view TraceString, const std::string& path)
{
    Traces::LoadCDMAText(*control, TraceString, path);
}

void Plot::LoadCDMAText_v320_above(std::string_view TraceString, const std::string& path)
{
    Traces::LoadCDMAText_v320_above(*control, TraceString, path);
}

void Plot::LoadEvDOText(std::string_view TraceString, const std::string& path)
{
    Traces::LoadEvDOText(*control, TraceString, path);
}

void Plot::LoadEvDOText_v320_above(std::string_view TraceString, const std::string& path)
{
    Traces::LoadEvDOText_v320_above(*control, TraceString, path);
}

void Plot::LoadCSText(std::string_view TraceString, const std::string& path)
{
    Traces::LoadCSText(*control, TraceString, path);
}

void Plot::LoadiDen_GPS_Tester_Text(std::string_view TraceString, const std::string& path)
{
    Traces::LoadiDen_GPS_Tester_Text(*control, TraceString, path);
}

void Plot::LoadiDen_Tester_Text(std::string_view TraceString, const std::string& path)
{
    Traces::LoadiDen_Tester_Text(*control, TraceString, path);
}

void Plot::LoadGSMText(std::string_view TraceString, const std::string& path)
{
    Traces::LoadGSMText(*control, TraceString, path);
}

void Plot::LoadSpectroText(std::string_view TraceString, const std::string& path)
{
    Traces::LoadSpectroText(*control, TraceString, path);
}

void Plot::LoadPowerMeterText(std::string_view TraceString, const std::string& path)
{
    Traces::LoadPowerMeterText(*control, TraceString, path);
}

void Plot::LoadPowerMonitorText(std::string_view TraceString, const std::string& path)
{
    Traces::LoadPowerMonitorText(*control, TraceString, path);
}

void Plot::LoadPowerMeter_Zephra_Text(std::string_view TraceString, const std::string& path)
{
    Traces::LoadPowerMeter_Zephra_Text(*control, TraceString, path);
}

void Plot::LoadPowerMeterDat(std::string_view TraceString)
{
    Traces::LoadPowerMeterDat(*control, TraceString);
}

std::string Plot::GetUpLoadTrace(const std::string& TraceName)
{
    return Traces::GetUpLoadTrace(*control, TraceName);
}

std::string Plot::GetUpLoadTraceB(const std::string& TraceName)
{
    return GetUpLoadTrace(TraceName);
}

std::string_view Plot::TraceType() const
{
    return TraceTypeName(control->Header.Mode);
}
std::string Plot::TraceInfo() const
{
    return Traces::TraceInfo(*control);
}
void Plot::Clear()
{
    Traces::Clear(*control);
}
void Plot::Refresh()
{
    control->Platform.Repaint();
}
void Plot::RedrawTrace()
{
    Traces::RedrawTrace(*control);
}

std::string Plot::TraceName() const
{
    return control->TraceName;
}

void Plot::TraceName(std::string_view value)
{
    SetTraceName(*control, value);
}

std::int16_t Plot::TraceNum() const
{
    return control->TraceNum;
}

void Plot::TraceNum(std::int16_t value)
{
    control->TraceNum = value;
    RedrawTrace();
}

std::vector<std::string> Plot::Parameters() const
{
    return LinesOf(control->lstParameters);
}

std::vector<std::string> Plot::ParametersToSave()
{
    RebuildParameters(*control);
    return Parameters();
}

bool Plot::PlotCurve(std::int16_t Length, std::span<const float> X, std::span<const float> Y)
{
    return Traces::PlotCurve(*control, Length, X, Y);
}

std::int16_t Plot::SetIndex() const
{
    return control->SetIndex;
}

void Plot::SetIndex(std::int16_t value)
{
    control->SetIndex =
        static_cast<std::int16_t>(std::abs(static_cast<int>(value)) % static_cast<int>(LiveSlots));
}

std::int16_t Plot::count() const
{
    return control->TraceSlots[static_cast<std::size_t>(control->SetIndex)].Length;
}

void Plot::Listen(PlotEvents* events)
{
    control->Events = events;
}

void Plot::MarkerOn(std::int16_t Index)
{
    SetMarkerState(*control, Index, true);
}
void Plot::MarkerOff(std::int16_t Index)
{
    SetMarkerState(*control, Index, false);
}
void Plot::ClearMarkers()
{
    SetMarkerState(*control, MarkerItem::ClearAll, true);
}
bool Plot::MarkerState(std::int16_t Index) const
{
    return Traces::MarkerState(*control, Index);
}
bool Plot::DisplayMarkerValues() const
{
    return control->DisplayMarkerValues;
}

void Plot::DisplayMarkerValues(bool value)
{
    control->DisplayMarkerValues = value;
    RedrawTrace();
}

std::string Plot::GPSLocation() const
{
    return Traces::GPSLocation(*control);
}
Picture Plot::TracePicture()
{
    return Traces::TracePicture(*control);
}
bool Plot::Copy2Clipboard()
{
    return Traces::Copy2Clipboard(*control);
}

bool Plot::PrintTrace(double XScale, double YScale, double XPosition, double YPosition)
{
    return Traces::PrintTrace(*control, XScale, YScale, XPosition, YPosition);
}

Colour Plot::BackColor() const
{
    return Traces::BackColor(*control);
}
void Plot::BackColor(Colour value)
{
    SetBackColor(*control, value);
}
Colour Plot::ForeColor() const
{
    return control->ForeColor;
}
void Plot::ForeColor(Colour value)
{
    SetForeColor(*control, value);
}
MyBorderStyles Plot::BorderStyle() const
{
    return control->BorderStyle;
}
void Plot::BorderStyle(MyBorderStyles value)
{
    SetBorderStyle(*control, value);
}
bool Plot::AllowPopupMenu() const
{
    return control->AllowPopupMenu;
}
void Plot::AllowPopupMenu(bool value)
{
    SetAllowPopupMenu(*control, value);
}
void Plot::ReadProperties(const PropertyBag& bag)
{
    LoadProperties(*control, bag);
}
void Plot::WriteProperties(PropertyBag& bag) const
{
    StoreProperties(*control, bag);
}

bool Plot::AutoScaleY() const
{
    return control->AutoScaleY;
}
void Plot::AutoScaleY(bool value)
{
    SetAutoScaleY(*control, value);
}
bool Plot::ShowParams() const
{
    return control->ShowParams;
}
void Plot::ShowParams(bool value)
{
    SetShowParams(*control, value);
}

void Plot::Resize(int width, int height)
{
    Traces::Resize(*control, width, height);
}

std::string Plot::ConvToDBCS(std::string_view in_string)
{
    return std::string(TrimBlanks(in_string));
}

} // namespace Traces
