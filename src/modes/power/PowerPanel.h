// What the pictures of the power modes have in common: the raised panel with its title band.
#pragma once

#include "control/ChartSurface.h"

#include <string_view>

namespace Traces {

struct Control;

/// How the panels of the modes differ.
struct PowerPanel {
    float Bottom;                 ///< of the panel, in the holder's units
    std::string_view TitlePrefix; ///< in front of the trace's name
    std::string_view Name;        ///< on the band
    bool Bold;                    ///< from the band's text on, for the rest of the picture
};

/// Opens the holder's empty picture and draws the panel up to the word over the level.
void BeginPanel(const Control& control, ChartSurface& holder, const PowerPanel& panel);

/// Ends the picture: the summary pane shows when the host asked for it, written by the mode's own writer.
void EndPanel(Control& control, ChartSurface& holder, void (*summary)(Control& control));

} // namespace Traces
