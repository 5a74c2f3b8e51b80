// The summary pane of a line test.
#pragma once

#include <string>

namespace Traces {

struct Control;
struct E1T1Record;

/// Loop code and loop type in words: "CSU In Band".
std::string LoopWords(const E1T1Record& record);

/// Counters with the seconds that follow from them, and the settings, into ParamBox.
void E1T1Summary(Control& control);

} // namespace Traces
