// The pictures of a spectrogram: the map of all sweeps in colours, and the spectrum of the chosen sweep
// alone.
#pragma once

#include <cstddef>
#include <string>

namespace Traces {

struct Control;

void DrawSpectroTrace(Control& control);

/// The chosen sweep as a curve. Shows the spectrogram's holder by itself: no row of modes names it.
void DrawSweepTrace(Control& control);

/// Changes between the map and the chosen sweep's spectrum.
void ToggleSweepView(Control& control);

/// A press on the map chooses the sweep under the mouse.
void ChooseSweepAt(Control& control, float x, float y);

/// What the mouse is on, for the coordinate label of the map: frequency, time and level.
std::string SpectroCoordsText(const Control& control, float x, float y);

/// A marker's frequency, and the level of the chosen sweep there.
std::string SpectroMarkerText(Control& control, std::size_t marker);

} // namespace Traces
