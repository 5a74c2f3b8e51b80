// Keys as the control and its hosts know them: the codes of the arrow keys, letters and function keys that
// measurement software has always used, and the bits of shift states.
#pragma once

#include <Qt>

class QKeyEvent;

namespace Traces {

/// 37 to 40 for the arrow keys, 112 on for the function keys, the capital letter's or digit's own code; 0
/// for a key without one.
int KeyCodeOf(const QKeyEvent& event);

/// The Windows-1252 code of the character that a key gives; 0 when it gives none.
int KeyAsciiOf(const QKeyEvent& event);

/// 1 shift, 2 control, 4 alt.
int ShiftOf(Qt::KeyboardModifiers modifiers);

/// MouseButton bits.
int ButtonsOf(Qt::MouseButtons buttons);

} // namespace Traces
