// The primitives that the families' summary panes are written with: rows of texts on banded tables, beside
// the chart. What stands in the rows belongs to the families.
#pragma once

#include "control/ChartSurface.h"

#include <span>
#include <string>
#include <string_view>

namespace Traces {

struct Control;
struct GpsFix;

inline constexpr Colour PaneLabelBand = RGB(172, 255, 255); ///< behind the labels
inline constexpr Colour PaneValueBand = PaleYellow;         ///< behind the values

/// Which point of a text its X names.
enum class PaneAlign : std::int16_t { End = -1, Start = 0, Centre = 1 };

/// Shows the empty pane in its own system, (0,0) to (350,480), and draws into its picture until ClosePane.
ChartSurface& OpenPane(Control& control);

/// What is drawn from here on goes to the pane's overlay.
void ClosePane(ChartSurface& pane);

/// Prints a text with its top at y. `size` is in points before the control's scaling. A text wider than a
/// `maxWidth` above 0 is printed smaller, on the middle of its row. NoColour keeps the colour of the text
/// before.
void PanePrint(ChartSurface& pane, std::string_view text, int y, int x, float size,
               PaneAlign align = PaneAlign::Start, int maxWidth = 0, Colour colour = NoColour);

/// A box filled with a colour and outlined in black.
void PaneBand(ChartSurface& surface, int left, int top, int right, int bottom, Colour fill);

/// Where a table lies, in user units.
struct PaneGrid {
    int Rows = 0;
    int Left = 0, Top = 0;
    int RowHeight = 0;
    int LabelWidth = 0; ///< of the first column
    int Margin = 0;     ///< the width that the table leaves free on a surface other than ParamBox, which
                        ///< leaves 20: the table is then centred for a Left of 10
    Colour LabelColour = PaneLabelBand;
    Colour ValueColour = PaneValueBand;
};

/// The bands of a table of two columns, labels and values, and a black rule between its rows.
void PaneTable(ChartSurface& surface, const PaneGrid& grid);

/// What stands in a row, and how: labels 4 units into the table, values ending at `ValueRight`.
struct PaneRow {
    std::string_view Label;
    std::string Value;
};
struct PaneRowTexts {
    float Size = 11; ///< points
    int Inset = 4;   ///< below the row's rule
    int ValueRight = 336;
    int ValueRoom = 150; ///< a wider value is printed smaller
    Colour LabelColour = NoColour;
};

/// A table with its rows' texts.
void PaneRows(ChartSurface& pane, PaneGrid grid, std::span<const PaneRow> rows,
              const PaneRowTexts& texts = {});

/// The same as PaneTable with a third column of values, `valueWidth` to the right of the second one's start.
void PaneTableWide(ChartSurface& surface, const PaneGrid& grid, int valueWidth);

/// The position as the panes show it; "N/A" three times when there is none.
struct PanePosition {
    std::string Latitude, Longitude, Altitude;
};

/// The hemisphere is "N" and "E" from 1 up, so that 0 reads "S" and "W"; the degree sign is a star.
PanePosition PanePositionTexts(const GpsFix& fix);

} // namespace Traces
