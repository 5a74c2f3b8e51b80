// The six markers of the family on show: switched by host and menu, dragged by the mouse, stepped by keys.
#pragma once

#include "control/MarkerSet.h"

#include <cstdint>

namespace Traces {

struct Control;

/// Places in the array of marker items of the popup menu, which SetMarkerFlag goes by.
namespace MarkerItem {
inline constexpr std::int16_t ClearAll = 7, ShowValues = 9, Last = 9;
inline constexpr std::int16_t Separators[] = {6, 8};
} // namespace MarkerItem

/// The set of the mode on show; null for modes without markers.
MarkerSet* FamilyMarkers(Control& control);

/// Switches a marker of the mode on show; 7 clears all, 9 toggles the readouts. Does nothing in a mode
/// without markers and for an index out of 0 to 9.
/// @throws HostFault Range for 6 and 8, the menu's separators.
void SetMarkerState(Control& control, std::int16_t index, bool value);

/// Whether a marker is on. The EV-DO family always reads False; the spectrogram has one answer for all.
bool MarkerState(const Control& control, std::int16_t index);

/// Moves a marker's index to the first point right of where it is dragged, and makes its text. Right of
/// the last point it keeps both.
void MarkerAtX(Control& control, MarkerSet& markers, std::size_t marker);

/// Keys that move a marker.
namespace KeyCodes {
inline constexpr int Left = 37, Right = 39;
} // namespace KeyCodes

/// Moves the selected marker, if it is on, a point down for an arrow key to the left, one up for one to the
/// right, and redraws. Other keys do nothing.
void StepMarker(Control& control, MarkerSet& markers, int keyCode);

/// The block of six readouts over the foot of the set's holder.
void DrawMarkerReadouts(MarkerSet& markers);

} // namespace Traces
