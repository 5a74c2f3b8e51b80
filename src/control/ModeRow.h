// The form of a mode's row: the functions that its family gives to the control. The rows themselves are in
// ModeTable.cpp; adding a family adds rows there and changes nothing here.
#pragma once

#include "control/ChildControls.h"
#include "control/MarkerSet.h"
#include "formats/RawBuffer.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Traces {

struct Control;
struct FileKind;

/// Where a trace was taken, as the records hold it: whole degrees x 1,000,000 plus minutes x 10,000, the sign
/// being the hemisphere; metres. -1, -1 is no position.
struct GpsFix {
    std::int32_t Latitude = -1, Longitude = -1;
    std::int16_t Altitude = -1;
    std::optional<std::string> UTCTime; ///< of the modes that have one
};

/// The position in a family's record.
template <class Record>
GpsFix PositionOf(const Record& record)
{
    return {record.GpsLatitude, record.GpsLongitude, record.GpsAltitude, std::nullopt};
}

/// An item of the chart menu that one family has.
struct FamilyMenuItem {
    std::string_view Name;
    std::string_view Caption;
    void (*Run)(Control& control) = nullptr;
    bool (*Checked)(const Control& control) = nullptr;
    bool (*Enabled)(const Control& control) = nullptr; ///< null is always
    std::string_view View = {}; ///< what programs call the sub view that Run shows, if any
};

/// A family's part of the chart menu, which is hidden while another family is on show.
struct FamilyMenu {
    std::string_view Separator; ///< name of the one before the items
    std::span<const FamilyMenuItem> Items;
};

/// What a right click on a mode's holder opens, and on all in it that is no chart of its own.
enum class HolderMenu : std::uint8_t { None, Chart, Power };

/// What a measurement mode does. A null function means that the mode has no such route.
struct ModeRow {
    std::uint8_t Mode = 0;

    /// The holder that a redraw shows for this mode.
    ChartSurface ChildControls::*Holder = nullptr;

    /// The family's markers; null for a mode without markers.
    MarkerSet Control::*Markers = nullptr;

    /// The text of a marker in readouts; null shows the X at which it was dragged. A family may fold the
    /// marker back into its record here.
    std::string (*MarkerText)(Control& control, std::size_t marker) = nullptr;

    /// Whether a box shows a marker that is on; null where every chart shows them all.
    bool (*MarkerStandsIn)(const Control& control, const ChartSurface& box, std::size_t marker) = nullptr;

    HolderMenu RightClick = HolderMenu::None;
    FamilyMenu Menu = {};

    /// Whether the chart menu has AutoScale, and, for a mode with markers, their submenu; and whether that
    /// can be opened, null is always.
    bool HasAutoScale = true, HasMarkersMenu = true;
    bool (*MarkersMenuEnabled)(const Control& control) = nullptr;

    /// Fills the family's record and the parameter list from a raw trace.
    void (*Decode)(Control& control, const RawBuffer& buffer) = nullptr;

    /// What decodes a raw trace that is saved without being shown, where that differs.
    void (*DecodeToSave)(Control& control, const RawBuffer& buffer) = nullptr;

    /// After Decode, for a trace that is to be shown: curve slot 0 and limits.
    /// @throws HostFault where the trace's own numbers make the curve impossible.
    void (*FillCurve)(Control& control) = nullptr;

    /// Appends the record's lines to a parameter list.
    void (*Params)(const Control& control, ParameterList& lines) = nullptr;

    /// The same for a report, where that differs.
    void (*Report)(const Control& control, ParameterList& lines) = nullptr;

    /// Draws the holder from the decoded state.
    void (*View)(Control& control) = nullptr;

    /// What an upload of the record on show changes in it.
    void (*BeforeUpload)(Control& control) = nullptr;

    /// Upload frames, from the record on show and from a raw file's bytes.
    /// @throws HostFault for a value or a position that the frame can't hold.
    std::string (*EncodeRecord)(const Control& control) = nullptr;
    std::string (*EncodeRaw)(std::string_view file) = nullptr;

    /// The position in the family's record.
    GpsFix (*Position)(const Control& control) = nullptr;

    /// What the mouse is on, for the coordinate label of the mode's chart; null shows X and Y.
    std::string (*CoordsText)(const Control& control, float x, float y) = nullptr;

    /// A press on the mode's chart that grabs no marker, and a double click on it.
    void (*Press)(Control& control, float x, float y) = nullptr;
    void (*DoubleClick)(Control& control) = nullptr;

    /// How a text file of this mode is loaded, whatever it is called; null when there are none.
    const FileKind* TextFile = nullptr;
};

/// What an extension of text trace files stands for.
struct FileKind {
    std::string_view Extension; ///< upper case, without the point

    /// Verifies and loads a file's text; `path` serves the checksum when no temporary file can be made.
    void (*Load)(Control& control, std::string_view text, const std::string& path);

    /// Upload frame of a file's text; null when such files aren't uploaded.
    std::string (*EncodeText)(std::string_view text);

    /// Whether loading by name knows the extension. A file of another is loaded by what stands in it.
    bool LoadsByName = true;
};

/// All modes and file kinds that a control knows.
struct Families {
    std::span<const ModeRow> Modes;
    std::span<const FileKind> Files;

    /// Null when no family has the mode or the extension.
    const ModeRow* FindMode(int mode) const;
    const FileKind* FindFileKind(std::string_view extension) const;
};

} // namespace Traces
