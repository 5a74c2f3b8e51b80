#include "control/ModeTable.h"

#include "control/Control.h"
#include "formats/TraceMode.h"
#include "modes/vna_spa/VNATrace.h"
#include "modes/vna_spa/VNAView.h"

namespace Traces {

namespace {

constexpr auto VNAHolder = &ChildControls::VNAHolder;
constexpr auto VNAMarkers = &Control::VNAMarkers;

constexpr FileKind VNAFile = {"VNA", LoadVNAText, EncodeVNAText};

// clang-format off
constexpr ModeRow Modes[] = {
    // mode                          holder     markers     decode          curve         params     view          encoders: record, raw         position     text files
    {TraceMode::RLFrequency,        VNAHolder, VNAMarkers, DecodeVNATrace, FillVNACurve, VNAParams, DrawVNATrace, EncodeVNARecord, EncodeVNARaw, VNAPosition, &VNAFile},
    {TraceMode::SWRFrequency,       VNAHolder, VNAMarkers, DecodeVNATrace, FillVNACurve, VNAParams, DrawVNATrace, EncodeVNARecord, EncodeVNARaw, VNAPosition, &VNAFile},
    {TraceMode::CableLossFrequency, VNAHolder, VNAMarkers, DecodeVNATrace, FillVNACurve, VNAParams, DrawVNATrace, EncodeVNARecord, EncodeVNARaw, VNAPosition, &VNAFile},
    {TraceMode::RLDistance,         VNAHolder, VNAMarkers, DecodeVNATrace, FillVNACurve, VNAParams, DrawVNATrace, EncodeVNARecord, EncodeVNARaw, VNAPosition, &VNAFile},
    {TraceMode::SWRDistance,        VNAHolder, VNAMarkers, DecodeVNATrace, FillVNACurve, VNAParams, DrawVNATrace, EncodeVNARecord, EncodeVNARaw, VNAPosition, &VNAFile},
    // Comes from text files alone: no raw buffer of this mode is decoded, saved or sent.
    {TraceMode::VNAUnnamed,         VNAHolder, VNAMarkers, nullptr,        nullptr,      VNAParams, DrawVNATrace, nullptr,         nullptr,      VNAPosition, &VNAFile},
};

// By the extensions that loading by name knows.
constexpr FileKind Files[] = {
    VNAFile,
};
// clang-format on

} // namespace

const Families AllFamilies = {Modes, Files};

} // namespace Traces
