// The control as a host sees it: give it a raw trace or the name of a trace file, and it decodes, draws,
// saves and re-encodes it. A back end paints what it draws; see output/Replay.h.
#pragma once

#include "control/Platform.h"
#include "control/PlotEvents.h"
#include "control/PropertyBag.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Traces {

struct Control;

/// Texts are Windows-1252, one byte a character. Booleans are those of C++; what crosses to hosts of other
/// conventions is -1 and 0.
class Plot {
public:
    /// The platform outlives the control.
    explicit Plot(Traces::Platform& platform);
    ~Plot();
    Plot(const Plot&) = delete;
    Plot& operator=(const Plot&) = delete;

    /// @name Raw traces
    /// True when the trace was accepted and drawn. One that is refused by its length leaves the picture as it
    /// was, one of an unknown mode an empty chart; both leave their header and its lines.
    /// @throws HostFault Overflow for a text of 32768 characters or more and for a trace of more than 32767
    /// bytes; Range for an empty text; Range or DivisionByZero for a point count that the mode has no curve
    /// for.
    /// @{
    bool ShowTrace(std::span<const std::uint8_t> BinaryBuffer);
    bool DisplayTrace(std::string_view StringBuffer);
    bool DisplayTraceB(std::string_view StringBuffer);
    /// @}

    /// @name Trace files
    /// @{

    /// Writes the trace as a text file. Opens the save dialog when Filename is empty or the trace hasn't
    /// been saved yet. Filename holds the name used. A checksum that can't be made is told to the user, and
    /// the file is saved without.
    bool SaveTrace(std::string& Filename);

    /// Decodes a raw trace and saves it as a text file without showing it.
    bool SaveRawTrace(std::string_view TraceString, std::string& Filename);
    bool SaveRawTraceB(std::string_view TraceString, std::string& Filename);

    /// @throws HostFault FileAccess, and what ShowTrace throws.
    bool LoadRawTrace(const std::string& Filename);

    /// Loads a raw or text file by its extension, which is what stands behind the first point of the path.
    /// @throws HostFault FileAccess.
    void loadTextFile(const std::string& TraceName);

    /// Loaders of files' texts; `path` names a file that the checksum may use when no temporary one can be
    /// made. A message is shown, and nothing changes, when the checksum fails.
    void LoadVNAText(std::string_view TraceString, const std::string& path);
    void LoadSPAText(std::string_view TraceString, const std::string& path);
    void LoadE1T1Text(std::string_view TraceString, const std::string& path);
    void LoadCDMAText(std::string_view TraceString, const std::string& path);
    void LoadCDMAText_v320_above(std::string_view TraceString, const std::string& path);
    void LoadEvDOText(std::string_view TraceString, const std::string& path);
    void LoadEvDOText_v320_above(std::string_view TraceString, const std::string& path);
    void LoadCSText(std::string_view TraceString, const std::string& path);
    void LoadiDen_GPS_Tester_Text(std::string_view TraceString, const std::string& path);
    void LoadiDen_Tester_Text(std::string_view TraceString, const std::string& path);
    void LoadGSMText(std::string_view TraceString, const std::string& path);
    void LoadSpectroText(std::string_view TraceString, const std::string& path);
    void LoadPowerMeterText(std::string_view TraceString, const std::string& path);
    void LoadPowerMonitorText(std::string_view TraceString, const std::string& path);
    void LoadPowerMeter_Zephra_Text(std::string_view TraceString, const std::string& path);

    /// Loads the power meter's comma form, unscrambled by Platform::ScrambleTable. It has no checksum.
    void LoadPowerMeterDat(std::string_view TraceString);
    /// @}

    /// @name Upload frames
    /// The frame of the trace on show when TraceName is empty, else of the file. Empty without a route.
    /// @throws HostFault FileAccess, Overflow, Range.
    /// @{
    std::string GetUpLoadTrace(const std::string& TraceName);
    std::string GetUpLoadTraceB(const std::string& TraceName);
    /// @}

    /// @name The trace on show
    /// @{
    std::string_view TraceType() const; ///< "RL", "SWR", "SPA"; empty for modes without one
    std::string TraceInfo() const;      ///< lines of key, tab, value
    void Clear();                       ///< empties the chart boxes and the live curves
    void Refresh();                     ///< asks the platform to repaint
    void RedrawTrace();                 ///< draws the view anew from the decoded state

    std::string TraceName() const;
    void TraceName(std::string_view value); ///< title and reference; redraws
    std::int16_t TraceNum() const;
    void TraceNum(std::int16_t value); ///< redraws

    /// The parameter list: header and record as lines of key, tab, value.
    std::vector<std::string> Parameters() const;

    /// The same built anew, as a save would write it: a text file's loader lists the header alone.
    std::vector<std::string> ParametersToSave();
    /// @}

    /// @name Curves
    /// @{

    /// Lays a curve into the slot of SetIndex and redraws. False, with the slot emptied, when Length is below
    /// 1 or an array is shorter.
    bool PlotCurve(std::int16_t Length, std::span<const float> X, std::span<const float> Y);
    std::int16_t SetIndex() const;
    void SetIndex(std::int16_t value); ///< stores the absolute value modulo 6
    std::int16_t count() const;        ///< points of the slot of SetIndex
    /// @}

    /// @name Markers
    /// Of the family on show; nothing happens in a mode without markers. Switching one raises MarkerChanged.
    /// @throws HostFault Range for the indexes 6 and 8, the separators of the popup menu.
    /// @{
    void MarkerOn(std::int16_t Index);
    void MarkerOff(std::int16_t Index);
    void ClearMarkers();
    bool MarkerState(std::int16_t Index) const;
    bool DisplayMarkerValues() const; ///< the readouts show while a marker is dragged
    void DisplayMarkerValues(bool value);
    /// @}

    /// @name Picture, clipboard, page
    /// @{
    std::string GPSLocation() const; ///< latitude, longitude, altitude; "N/A" without a position
    Picture TracePicture();
    bool Copy2Clipboard(); ///< the parameter list and the picture

    /// All four are percentages of the page.
    bool PrintTrace(double XScale, double YScale, double XPosition, double YPosition);
    /// @}

    /// Who listens to the control's events; null for nobody. The listener outlives the control, or is
    /// taken off before.
    void Listen(PlotEvents* events);

    /// @name Properties
    /// The first six are stored in a host's property bag.
    /// @{
    Colour BackColor() const;
    void BackColor(Colour value);
    Colour ForeColor() const;
    void ForeColor(Colour value); ///< nothing draws with it
    MyBorderStyles BorderStyle() const;
    void BorderStyle(MyBorderStyles value);
    bool AllowPopupMenu() const;
    void AllowPopupMenu(bool value);
    void ReadProperties(const PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;
    bool AutoScaleY() const;
    void AutoScaleY(bool value); ///< shows with the next redraw
    bool ShowParams() const;
    void ShowParams(bool value); ///< shows with the next resize
    /// @}

    /// Device pixels of the control, 1 at least.
    void Resize(int width, int height);

    /// Blanks at both ends removed, for hosts that hand bytes in a text: texts are bytes here, so no
    /// widening is left to do.
    static std::string ConvToDBCS(std::string_view in_string);

    /// The instance record, for back ends that paint it and for tools that look into it.
    Control& Instance() { return *control; }
    const Control& Instance() const { return *control; }

private:
    std::unique_ptr<Control> control;
};

} // namespace Traces
