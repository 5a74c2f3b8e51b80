// A trace's curve for other programs: as a table of comma-separated values, and as a Touchstone file where
// the curve is a reflection.
#pragma once

#include <string>

namespace Traces {
struct Control;
}

namespace Traces::Cli {

/// A file's content; empty with the reason in `Problem` when the trace can't be written so. `Note` is what a
/// reader of the file should know.
struct Export {
    std::string Content, Problem, Note;
};

/// A row of headings with units, then a row a point: frequency or distance, value, phase.
Export CsvOf(const Control& control);

/// One-port S-parameters from return loss (in dB) or SWR (as a magnitude) and phase, 50 ohms.
Export TouchstoneOf(const Control& control);

/// Whether a mode has a curve to export, and whether that is a reflection.
bool HasCsv(int mode);
bool HasTouchstone(int mode);

} // namespace Traces::Cli
