#include "modes/spectrogram/SpectroTrace.h"

#include "control/Control.h"
#include "control/TextLoader.h"
#include "formats/Numbers.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"
#include "modes/spectrogram/SpectroFields.h"

#include <algorithm>
#include <cmath>

namespace Traces {

namespace {

constexpr std::size_t Points = SpectroRecord::Points;

/// Columns of a line "Sweep Time 1 =": where the time begins, and its width.
constexpr std::size_t TimeColumn = 25;
constexpr std::size_t TimeWidth = 22;

/// Room for the sweeps that the count tells, which is brought within bounds. Sweeps that stood there stay.
void SettleSweeps(SpectroRecord& record)
{
    record.SweepCount = std::clamp<std::int16_t>(record.SweepCount, 0, SpectroRecord::MaxSweeps);
    const auto sweeps = static_cast<std::size_t>(record.SweepCount);
    record.SweepTime.resize(sweeps);
    record.Level.resize(sweeps * Points);
}

void DecodeSweeps(const RawBuffer& buffer, SpectroRecord& record)
{
    const double lowest = static_cast<double>(record.RefLevel) - SpectroRange;
    for (std::size_t sweep = 0; sweep < record.SweepTime.size(); ++sweep) {
        const int offset = SpectroFirstSweep + SpectroSweepBytes * static_cast<int>(sweep);
        record.SweepTime[sweep] = static_cast<float>(ReadU32(buffer, offset).value_or(0) / SpectroTimeScale);
        for (std::size_t i = 0; i < Points; ++i) {
            const double byte = ReadByte(buffer, offset + 4 + static_cast<int>(i)).value_or(0);
            record.Level[sweep * Points + i] = static_cast<float>(lowest + byte / SpectroLevelsPerDecibel);
        }
    }
}

std::string TimeKey(std::size_t sweep)
{
    return "Sweep Time " + std::to_string(sweep + 1);
}

std::string LevelsKey(std::size_t sweep)
{
    return "Sweep " + std::to_string(sweep + 1) + ":";
}

void AddSweep(ParameterList& lines, const SpectroRecord& record, std::size_t sweep)
{
    std::string stamp = TimeKey(sweep) + " =";
    stamp.resize(TimeColumn, ' ');
    stamp += NumberText(record.SweepTime[sweep]);
    stamp.resize(TimeColumn + TimeWidth, ' ');
    lines.AddItem(stamp);
    std::string& line = lines.BeginLine();
    line += LevelsKey(sweep);
    for (std::size_t i = 0; i < Points; ++i) {
        line += '\t';
        AppendNumberText(line, record.Level[sweep * Points + i]);
    }
    lines.EndLine();
}

/// A sweep without its line of levels, or a point without a number, keeps what it held.
void LoadSweep(const TraceText& text, SpectroRecord& record, std::size_t sweep)
{
    LoadField(text.ParamSpectro(TimeKey(sweep)), &record.SweepTime[sweep], Through::FieldType);
    LineFields fields;
    if (!text.ParamFields(LevelsKey(sweep), fields))
        return;
    for (std::size_t i = 0; i < std::min(Points, fields.Parts.size()); ++i)
        LoadField(fields.Parts[i], &record.Level[sweep * Points + i], Through::FieldType);
}

/// The progress form of a load that takes its time. One that is over at once shows none.
class LoadProgress {
public:
    explicit LoadProgress(Platform& host) : platform(host), last(host.GetTickCount()) {}
    ~LoadProgress()
    {
        if (shown)
            platform.EndProgress();
    }
    LoadProgress(const LoadProgress&) = delete;
    LoadProgress& operator=(const LoadProgress&) = delete;

    /// False when the user has interrupted. Lets events through now and then.
    bool Tell(int percent)
    {
        constexpr std::uint32_t patience = 100;
        if (platform.GetTickCount() - last < patience)
            return true;
        if (!shown)
            platform.BeginProgress("File Open", "Reading the spectrogram...");
        shown = true;
        const bool goesOn = platform.UpdateProgress(percent);
        if (goesOn)
            WaitTicks(platform, 1);
        last = platform.GetTickCount();
        return goesOn;
    }

    /// The control is gone, and perhaps its platform with it.
    void Forget() { shown = false; }

private:
    Platform& platform;
    std::uint32_t last;
    bool shown = false;
};

/// Reads a whole record; false when the user interrupted or the control went.
bool LoadSpectroRecord(Control& control, const TraceText& text, SpectroRecord& record)
{
    const SpectroRecord before = record;
    LoadFields(text, record, SpectroFields, Through::FieldType);
    // A text without a value keeps what it held, as a number does.
    constexpr std::size_t antennaWidth = 16;
    record.AntennaName =
        record.AntennaName.empty() ? before.AntennaName : FixedText(record.AntennaName, antennaWidth);
    if (record.SignalStandard.empty())
        record.SignalStandard = before.SignalStandard;
    SettleSweeps(record);
    const LifeWatch watch(control);
    LoadProgress progress(control.Platform);
    for (std::size_t sweep = 0; sweep < record.SweepTime.size(); ++sweep) {
        constexpr std::size_t whole = 100;
        const bool goesOn = progress.Tell(static_cast<int>(sweep * whole / record.SweepTime.size()));
        if (watch.Gone())
            progress.Forget();
        if (!goesOn || watch.Gone())
            return false;
        LoadSweep(text, record, sweep);
    }
    return true;
}

} // namespace

float LevelAt(const SpectroRecord& record, std::int16_t sweep, std::size_t point)
{
    const std::size_t place = static_cast<std::size_t>(std::max<std::int16_t>(sweep, 0)) * Points + point;
    return place < record.Level.size() ? record.Level[place]
                                       : record.RefLevel - static_cast<float>(SpectroRange);
}

void DecodeSpectroTrace(Control& control, const RawBuffer& buffer)
{
    TraceHeader head;
    DecodeHeader(buffer, head, control.lstParameters);
    head.Mode = TraceMode::Spectrogram;
    head.TraceLength = control.Header.TraceLength;
    head.DataPoints = Points;
    control.Header = head;
    DecodeFields(buffer, control.Spectro, SpectroFields);
    SettleSweeps(control.Spectro);
    DecodeSweeps(buffer, control.Spectro);
    control.lstParameters.Clear();
    SpectroParams(control, control.lstParameters);
    control.TraceSaved = false;
}

void SpectroParams(const Control& control, ParameterList& lines)
{
    const TraceHeader& header = control.Header;
    lines.AddLine("Date:", header.Date);
    lines.AddLine("Time:", header.Time);
    lines.AddLine("Mode:", ModeName(TraceMode::Spectrogram));
    lines.AddLine("Trace length:", NumberText(header.TraceLength));
    lines.AddLine("Model:", header.Model);
    lines.AddLine("Version:", header.Version);
    lines.AddLine("Ref Number:", StripToBaseName(header.RefNumber));
    lines.AddLine("DataPoints:", NumberText(header.DataPoints));
    AddParamLines(lines, control.Spectro, SpectroFields);
    for (std::size_t sweep = 0; sweep < control.Spectro.SweepTime.size(); ++sweep)
        AddSweep(lines, control.Spectro, sweep);
}

void ChooseSweep(Control& control, float sweep)
{
    const SpectroRecord& record = control.Spectro;
    const auto last = static_cast<float>(std::max<int>(record.SweepCount - 1, 0));
    // What is no number chooses the first.
    control.SpectroSweep =
        sweep > 0 ? static_cast<std::int16_t>(std::min(std::floor(sweep), last)) : std::int16_t{0};
    TraceSlot& slot = control.TraceSlots[0];
    slot.Length = Points;
    slot.X.resize(Points);
    slot.Y.resize(Points);
    for (std::size_t i = 0; i < Points; ++i) {
        slot.X[i] =
            (record.StopFreq - record.StartFreq) / (Points - 1) * static_cast<float>(i) + record.StartFreq;
        slot.Y[i] = LevelAt(record, control.SpectroSweep, i);
    }
}

void FillSpectroCurve(Control& control)
{
    control.YScaleTop = 80;
    control.YScaleBottom = -10;
    ChooseSweep(control, control.Spectro.SweepCount);
}

void LoadSpectroText(Control& control, std::string_view text, const std::string& path)
{
    if (!VerifyTraceChecksum(control.Platform, text, path))
        return;
    const TraceText traceText(text);
    SpectroRecord record = control.Spectro;
    if (!LoadSpectroRecord(control, traceText, record))
        return;
    control.Spectro = std::move(record);
    TakeTextHead(control, traceText);
    // The mode's name in the file leads to no code.
    control.Header.Mode = TraceMode::Spectrogram;
    control.Header.DataPoints = Points;
    FillSpectroCurve(control);
    control.lstParameters.Clear();
    SpectroParams(control, control.lstParameters);
    EndTextLoad(control);
}

} // namespace Traces
