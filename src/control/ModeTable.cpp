#include "control/ModeTable.h"

#include "formats/TraceMode.h"
#include "modes/vna_spa/VNATrace.h"
#include "modes/vna_spa/VNAView.h"

namespace Traces {

namespace {

constexpr auto VNAHolder = &ChildControls::VNAHolder;

// clang-format off
const ModeRow Modes[] = {
    // mode                          holder     decode          curve         params     view          encoders: record, raw           position
    {TraceMode::RLFrequency,        VNAHolder, DecodeVNATrace, FillVNACurve, VNAParams, DrawVNATrace, EncodeVNARecord, EncodeVNARaw, VNAPosition},
    {TraceMode::SWRFrequency,       VNAHolder, DecodeVNATrace, FillVNACurve, VNAParams, DrawVNATrace, EncodeVNARecord, EncodeVNARaw, VNAPosition},
    {TraceMode::CableLossFrequency, VNAHolder, DecodeVNATrace, FillVNACurve, VNAParams, DrawVNATrace, EncodeVNARecord, EncodeVNARaw, VNAPosition},
    {TraceMode::RLDistance,         VNAHolder, DecodeVNATrace, FillVNACurve, VNAParams, DrawVNATrace, EncodeVNARecord, EncodeVNARaw, VNAPosition},
    {TraceMode::SWRDistance,        VNAHolder, DecodeVNATrace, FillVNACurve, VNAParams, DrawVNATrace, EncodeVNARecord, EncodeVNARaw, VNAPosition},
    // Comes from text files alone: no raw buffer of this mode is decoded, saved or sent.
    {TraceMode::VNAUnnamed,         VNAHolder, nullptr,        nullptr,      VNAParams, DrawVNATrace, nullptr,         nullptr,      VNAPosition},
};

const FileKind Files[] = {
    {"VNA", LoadVNAText, EncodeVNAText},
};
// clang-format on

} // namespace

const Families AllFamilies = {Modes, Files};

} // namespace Traces
