// The rows of all code tables but the signal standards, family by family. What a table does besides
// looking up its rows stands with it.
#include "formats/CodeTable.h"

#include <array>

namespace Traces {

namespace {

constexpr CodeTable BothWays(std::span<const CodeRow> rows)
{
    return {.Rows = rows, .TextRows = rows};
}

} // namespace

// ---- T1/E1 line tester ----

constexpr CodeRow TerminationModeRows[] = {{0, "Terminate"}, {1, "Bridged"}, {2, "Monitor"}};
constinit const CodeTable TerminationMode = BothWays(TerminationModeRows);

constexpr CodeRow FramingModeRows[] = {{1, "ESF"},      {2, "D4SF"},  {3, "PCM30"},
                                       {4, "PCM30CRC"}, {5, "PCM31"}, {6, "PCM31CRC"}};
constinit const CodeTable FramingMode = BothWays(FramingModeRows);

constexpr CodeRow LineCodingRows[] = {{1, "B8ZS"}, {2, "AMI"}, {3, "HDB3"}};
constinit const CodeTable LineCoding = BothWays(LineCodingRows);

constexpr CodeRow TxLevelRows[] = {{1, "0 dB"}, {2, "-7.5 dB"}, {3, "-15 dB"}};
constinit const CodeTable TxLevel = BothWays(TxLevelRows);

constexpr CodeRow ClockSourceRows[] = {{0, "External"}, {1, "Internal"}};
constinit const CodeTable ClockSource = BothWays(ClockSourceRows);

constexpr CodeRow ErrorInsertTypeRows[] = {{0, "Frame Error"}, {1, "BPV"}, {2, "Bit Errors"},
                                           {3, "BER"},         {4, "RAI"}, {5, "AIS"}};
// "BER" doesn't lead back: a saved file that holds it uploads as code 0.
constexpr CodeRow ErrorInsertTypeTextRows[] = {
    {0, "Frame Error"}, {1, "BPV"}, {2, "Bit Errors"}, {4, "RAI"}, {5, "AIS"}};
constinit const CodeTable ErrorInsertType{.Rows = ErrorInsertTypeRows, .TextRows = ErrorInsertTypeTextRows};

constexpr CodeRow LoopCodeRows[] = {{0, "CSU"}, {1, "NIU"}, {2, "User 1"}, {3, "User 2"}};
constinit const CodeTable LoopCode = BothWays(LoopCodeRows);

constexpr CodeRow LoopTypeRows[] = {{0, "In Band"}, {1, "Data Link"}};
constinit const CodeTable LoopType = BothWays(LoopTypeRows);

constexpr CodeRow CRCTypeRows[] = {{0, "ANSI CRC"}, {1, "Japanese CRC"}};
constinit const CodeTable CRCType = BothWays(CRCTypeRows);

constexpr CodeRow E1T1DisplayRows[] = {{0, "Histogram"}, {1, "Raw Data"}, {2, "Vpp"}, {3, "VF Testor"}};
constinit const CodeTable E1T1Display = BothWays(E1T1DisplayRows);

constexpr CodeRow ImpedanceRows[] = {{1, "75 Ohm"}, {2, "120 Ohm"}};
constinit const CodeTable Impedance = BothWays(ImpedanceRows);

constexpr CodeRow BERPatternRows[] = {
    {1, "PRBS-9"},    {2, "PRBS-11"},    {3, "PRBS-15"},  {4, "PRBS-20(0.151)"}, {5, "PRBS-20(0.153)"},
    {6, "PRBS-23"},   {7, "QRSS"},       {8, "1 in 8"},   {9, "2 in 8"},         {10, "3 in 24"},
    {11, "All Ones"}, {12, "All Zeros"}, {13, "T1-DALY"}, {14, "User Defined"}};
// The one word that leads back to code 10 is "3 in 8". A saved "3 in 24" reads as the number that it begins
// with and uploads as that.
constexpr auto BERPatternTextRows = [] {
    auto rows = std::to_array(BERPatternRows);
    rows[9].Text = "3 in 8";
    return rows;
}();
constinit const CodeTable BERPattern{.Rows = BERPatternRows, .TextRows = BERPatternTextRows};

constexpr CodeRow AlarmStateRows[] = {
    {1, "Receiving AIS"}, {2, "Receiving RAI"}, {3, "Receiving E1 MMF error"}};
// Upload frames count alarms from 0, traces from 1.
constexpr CodeRow AlarmStateTextRows[] = {
    {0, "Receiving AIS"}, {1, "Receiving RAI"}, {2, "Receiving E1 MMF error"}};
constinit const CodeTable AlarmState{.Rows = AlarmStateRows,
                                     .TextRows = AlarmStateTextRows,
                                     .OtherCodes = CodeTable::Unknown::FixedText,
                                     .Otherwise = "None"};

constexpr CodeRow DataInversionRows[] = {{0, "Non-Inverted"}, {1, "Inverted"}};
constinit const CodeTable DataInversion = BothWays(DataInversionRows);

constexpr CodeRow TestDurationRows[] = {{0, "Manual"}, {1, "3 min."}, {2, "15 min."}, {3, "30 min."},
                                        {4, "1 hr."},  {5, "3 hrs."}, {6, "6 hrs."},  {7, "12 hrs."},
                                        {8, "1 day"},  {9, "2 days"}};
constinit const CodeTable TestDuration = BothWays(TestDurationRows);

constexpr CodeRow UpdateIntervalRows[] = {{0, "Auto"},    {1, "1 sec."}, {2, "15 sec."}, {3, "30 sec."},
                                          {4, "45 sec."}, {5, "1 min."}, {6, "15 min."}, {7, "30 min."},
                                          {8, "45 min."}, {9, "60 min."}};
constinit const CodeTable UpdateInterval = BothWays(UpdateIntervalRows);

constexpr CodeRow VFTerminationRows[] = {{0, "Terminate"}, {1, "Bridged"}};
constinit const CodeTable VFTermination = BothWays(VFTerminationRows);

constexpr CodeRow VFImpedanceRows[] = {{1, "75 Ohms"}, {2, "120 Ohms"}};
// "100 Ohms" comes in text files alone: its code has no text.
constexpr CodeRow VFImpedanceTextRows[] = {{0, "100 Ohms"}, {1, "75 Ohms"}, {2, "120 Ohms"}};
constinit const CodeTable VFImpedance{.Rows = VFImpedanceRows, .TextRows = VFImpedanceTextRows};

constexpr CodeRow SyncStateRows[] = {{0, "In Sync"}, {1, "Out-of-Sync"}};
constinit const CodeTable SyncState = BothWays(SyncStateRows);

// ---- Spectrum and GSM ----

constexpr CodeRow InterferenceTypeRows[] = {
    {0, "1250 kHz CDMA"}, {1, "GSM"},     {2, "TDMA"},
    {3, "AMPS"},          {4, "Unknown"}, {255, "Interference Analysis Measurement OFF"}};
constinit const CodeTable InterferenceType = BothWays(InterferenceTypeRows);

constexpr CodeRow SweepTriggerRows[] = {{0, "Single"}, {1, "Free Run"}, {2, "Video"}, {3, "External"}};
constinit const CodeTable SweepTrigger = BothWays(SweepTriggerRows);

constexpr CodeRow GSMDisplayRows[] = {{0, "Spectrum"}, {1, "Frame View"}, {2, "Slot View"}};
constinit const CodeTable GSMDisplay = BothWays(GSMDisplayRows);

constexpr CodeRow GSMUnitsRows[] = {{0, "dBm"}, {1, "Watts"}};
constinit const CodeTable GSMUnits = BothWays(GSMUnitsRows);

// ---- CDMA and EV-DO ----

// Nothing reads a CDMA display back from its text.
constexpr CodeRow CDMADisplayRows[] = {
    {0, "CDP Histogram"}, {1, "CDP Text only"}, {2, "Over the Air"}, {3, "RF Measurement"}};
constinit const CodeTable CDMADisplay{.Rows = CDMADisplayRows, .TextRows = {}};

constexpr CodeRow MeasurementTypeRows[] = {
    {0, "CDP"}, {1, "Text only"}, {2, "CDP Bit Reverse"}, {3, "Over the Air"}, {4, "RF Measurement"}};
constinit const CodeTable MeasurementType = BothWays(MeasurementTypeRows);

constexpr CodeRow ModulationRows[] = {{0, "Auto"}, {1, "QPSK"}, {2, "8-PSK"}, {4, "16-QAM"}, {8, "Idle"}};
constinit const CodeTable Modulation = BothWays(ModulationRows);

constexpr CodeRow CDMAChannelTypeRows[] = {{0, "PILOT"},      {1, "PAGE"},         {2, "SYNC"},
                                           {3, "QUICK PAGE"}, {4, "IS95 TRAFFIC"}, {5, "CDMA2000 TRAFFIC"},
                                           {6, "UNKNOWN"},    {7, "NOISE"}};
constinit const CodeTable CDMAChannelType = BothWays(CDMAChannelTypeRows);

constexpr CodeRow TriggerModeRows[] = {
    {0, "GPS Auto"}, {1, "GPS Manual"}, {2, "Ext Auto"}, {3, "Ext Manual"}, {4, "Untriggered"}};
constinit const CodeTable TriggerMode = BothWays(TriggerModeRows);

// The codes are bits, but they are compared whole: two bits at once are an unknown code.
constexpr CodeRow MeasurementStatusRows[] = {{0, "Measurement OK"},       {1, "Level Under"},
                                             {2, "Signal Abnormal"},      {4, "Short Code Not Found"},
                                             {8, "Amplifier Saturation"}, {16, "ADC OTR"},
                                             {32, "Overpower"},           {256, "Lock Fail"},
                                             {512, "DDC Not Responding"}, {1024, "No External Trigger"}};
constinit const CodeTable MeasurementStatus{.Rows = MeasurementStatusRows,
                                            .TextRows = MeasurementStatusRows,
                                            .OtherCodes = CodeTable::Unknown::HexDigits,
                                            .SmallestCode = -32768,
                                            .LargestCode = 32767};

constexpr CodeRow ValidStateRows[] = {{0, "Complete/Valid"}, {255, "In Progress/Invalid"}};
constinit const CodeTable ValidState = BothWays(ValidStateRows);

// The edge is bit 0 of a status byte whose other bits belong to others.
constexpr CodeRow TriggerEdgeRows[] = {{0, "Fall Edge"}, {1, "Rise Edge"}};
constinit const CodeTable TriggerEdge{.Rows = TriggerEdgeRows, .TextRows = TriggerEdgeRows, .CodeMask = 1};

// ---- Power modes ----

constexpr CodeRow LinkTypeRows[] = {{0, "N/A"}, {1, "Uplink"}, {2, "Downlink"}, {3, "Both"}};
constinit const CodeTable LinkType = BothWays(LinkTypeRows);

constexpr CodeRow OnOffRows[] = {{0, "OFF"}, {1, "ON"}};
constinit const CodeTable OnOff = BothWays(OnOffRows);

constexpr CodeRow AveragingLevelRows[] = {{0, "Off"}, {1, "Low"}, {2, "Medium"}, {3, "High"}};
constinit const CodeTable AveragingLevel{.Rows = AveragingLevelRows,
                                         .TextRows = AveragingLevelRows,
                                         .OtherCodes = CodeTable::Unknown::FixedText,
                                         .Otherwise = ""};

} // namespace Traces
