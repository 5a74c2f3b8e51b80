// The instance record: everything that one control holds, as plain fields. Views, decoders and the mouse
// work on it; Plot is what a host sees of it.
#pragma once

#include "control/ChildControls.h"
#include "control/MarkerSet.h"
#include "control/ModeRow.h"
#include "control/Platform.h"
#include "control/PlotEvents.h"
#include "control/PropertyBag.h"
#include "formats/TraceHeader.h"
#include "modes/cdma/CDMARecord.h"
#include "modes/channel_scanner/CSRecord.h"
#include "modes/evdo/EvDORecord.h"
#include "modes/gps_tester/GPSTesterRecord.h"
#include "modes/gsm/GSMRecord.h"
#include "modes/iden/IDENRecord.h"
#include "modes/power/PowerRecord.h"
#include "modes/power/ZephraRecord.h"
#include "modes/spectrogram/SpectroRecord.h"
#include "modes/t1e1/E1T1Record.h"
#include "modes/vna_spa/SPARecord.h"
#include "modes/vna_spa/VNARecord.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Traces {

/// A curve. X and Y have the same size; Length is how much of it counts.
struct TraceSlot {
    std::int16_t Length = 0;
    std::vector<float> X; ///< in the mode's unit, MHz for sweeps
    std::vector<float> Y;
};

/// Sizes for which the control is drawn, in units that are pixels there: the chart, with the pane beside it,
/// and the four iDEN views.
inline constexpr int DesignWidth = 550, DesignHeight = 480, WidthWithPane = 911, WideWidth = 1500,
                     WideHeight = 820;

inline constexpr std::size_t LiveSlots = 6; ///< slots that SetIndex reaches and views draw

struct Control : private Screen, public ChildControls {
    /// The platform and the families outlive the control.
    Control(Traces::Platform& platform, const Traces::Families& families);

    Traces::Platform& Platform;
    const Traces::Families& Families;
    PlotEvents* Events = nullptr; ///< the host's listener, not owned

    std::array<TraceSlot, 81> TraceSlots;
    std::array<Colour, LiveSlots> TraceColors = {
        0xFFFF, 0xFF, 0xFF00, RGB(0, 255, 255), RGB(255, 255, 0), RGB(255, 0, 255)};
    MyBorderStyles BorderStyle = MyBorderStyles::pbflat;
    std::int16_t SetIndex = 0; ///< 0 to 5
    Colour ForeColor = Black;
    bool AutoScaleY = false;
    std::string TraceName; ///< title suffix of every view
    std::int16_t TraceNum = 0;
    bool ShowParams = false;
    bool IDENWideLayout = false;
    bool AllowPopupMenu = true;
    Colour GridColor = RGB(200, 200, 200);
    float YScaleTop = 0, YScaleBottom = 0; ///< manual limits of the chart
    std::int16_t SpectroSweep = 0;         ///< the chosen sweep of a spectrogram, from 0
    std::int16_t GSMViewMode = 0, CDMAViewMode = 0, EvDOViewMode = 0;
    bool ZoomActive = false;
    float ZoomX1 = 0, ZoomX2 = 0, ZoomY1 = 0, ZoomY2 = 0; ///< chart units
    MarkerSet VNAMarkers, SPAMarkers, E1T1Markers, GSMMarkers, CDMAMarkers, EvDOMarkers, SpectroMarkers;
    TraceHeader Header;
    VNARecord VNA;
    SPARecord SPA;
    CSRecord CS;
    SpectroRecord Spectro;
    PowerRecord Power;
    ZephraRecord Zephra;
    double PowerLadderValue = 0; ///< what the power views scaled last; a view may show it of the trace before
    std::string PowerLadderUnit;
    E1T1Record E1T1;
    CDMARecord CDMA;
    GSMRecord GSM;
    IDENRecord IDEN;
    std::int16_t IDENViewMode = 0; ///< the view on show; the record's tells what the instrument showed
    GPSTesterRecord GPSTester;
    std::vector<GPSEvent> GPSEvents;
    bool CDMAIs128 = false;      ///< the codes stand in bit-reversed order
    bool ChartHasMarkers = true; ///< of the CDMA chart: its spectrum has none
    EvDORecord EvDO;
    bool EvDOIs128 = false;
    bool EvDOChartHasMarkers = false; ///< its code domain has, its other pages don't
    std::int16_t CurrentMode = -1;    ///< what RedrawTrace shows; -1 until the first trace is accepted
    bool DisplayMarkerValues = true;
    bool TraceSaved = false; ///< the trace on show stands in a file that the user confirmed

    ChartSurface* Captured = nullptr; ///< the surface that a mouse button was pressed on, until the release
    int ButtonsDown = 0;              ///< the mouse buttons that hold it
    ChartSurface* Focused = nullptr;  ///< the surface that was last pressed on: keys go there

    Traces::Screen& ScreenFacts() { return *this; }

    const std::shared_ptr<const bool> Life = std::make_shared<const bool>(true); ///< for LifeWatch
};

/// Tells, after a call to the host, whether the control still stands: an event's handler, or whatever runs
/// while a dialog is open, may have destroyed it.
class LifeWatch {
public:
    explicit LifeWatch(const Control& control) : life(control.Life) {}
    bool Gone() const { return life.expired(); }

private:
    std::weak_ptr<const bool> life;
};

/// The row of the mode on show, null when there is none.
const ModeRow* CurrentRow(const Control& control);

/// How many points of a curve count; its length comes from the trace and may be anything.
std::size_t UsedPoints(const TraceSlot& slot);

/// Gives a slot a length and sizes its arrays, keeping what fits.
/// @throws HostFault Range for a length below 1, which the slot has then, with the arrays as they were.
void SetSlotLength(Control& control, std::size_t slot, std::int16_t length);

/// Empties the chart boxes and the live slots. Holders, their texts, records and markers stay.
void Clear(Control& control);

/// The title of every view, and the reference with it, without zero characters; redraws.
void SetTraceName(Control& control, std::string_view name);

/// The one way to the screen: shows the holder of CurrentMode, hides the others, draws the view.
void RedrawTrace(Control& control);

/// The same where no fault may reach the host. False when the view stopped at one: the picture stays as far
/// as it got.
bool TryRedrawTrace(Control& control);

/// Makes a mode the one that a redraw shows. The wide layout ends with the iDEN trace that it is for.
void SetCurrentMode(Control& control, std::int16_t mode);

/// Whether the last layout has made room for the four iDEN views side by side.
bool IsLaidOutWide(const Control& control);

/// Size logic for a size in device pixels, 1 at least: user system, font scale, layout of all child
/// controls, redraw.
void Resize(Control& control, int width, int height);

} // namespace Traces
