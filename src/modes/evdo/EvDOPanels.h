// The texts of an EV-DO page: the results below its charts, and the tables of the page over the air.
#pragma once

#include <string>

namespace Traces {

struct Control;
struct EvDORecord;

/// The six cells of the page on show; a rule alone while the markers' readouts have their place.
void DrawEvDOPanels(Control& control);

/// The pilots of the scan and the multipath, in place of a chart.
void DrawEvDOScan(Control& control);

/// A level with the offset, in the record's units; "N/A" for a slot that wasn't captured.
std::string EvDOLevelText(const EvDORecord& record, float level);

} // namespace Traces
