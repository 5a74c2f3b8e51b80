// Pictures by the Qt layer against the same pictures by plain QPainter calls and QImage::save. Exits with 1
// when a ratio misses its limit.
#include "Measure.h"
#include "PlainPicture.h"
#include "SampleTraces.h"
#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "control/Plot.h"
#include "qt/PainterCanvas.h"
#include "qt/QtPictures.h"

#include <QImage>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/resource.h>

namespace {

using namespace Traces;
using namespace Traces::Bench;
namespace fs = std::filesystem;

constexpr int Width = 550;
constexpr int Height = 480;
constexpr int Pictures = 1000;

PlainPicture PlainPictureOf(const Plot& plot)
{
    PlainCanvas canvas;
    ReplayControl(plot.Instance(), canvas);
    return std::move(canvas.Picture);
}

Times MeasureReplay(const Plot& plot)
{
    const QtMetrics metrics;
    SizedFonts fonts(metrics);
    const PlainPicture plain = PlainPictureOf(plot);
    QImage image(Width, Height, QImage::Format_RGB32);
    const auto ours = [&](int) {
        QPainter painter(&image);
        PainterCanvas canvas(painter, fonts);
        ReplayControl(plot.Instance(), canvas);
    };
    const auto theirs = [&](int) {
        QPainter painter(&image);
        DrawPlainly(painter, plain);
    };
    return TimeInTurns(ours, theirs);
}

/// The process's highest memory in KiB, as Linux tells it; 0 elsewhere.
long PeakMemory()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        long kibibytes = 0;
        if (word == "VmHWM:" && status >> kibibytes)
            return kibibytes;
    }
    return 0;
}

/// From a raw trace to a PNG file.
void WriteOurs(Plot& plot, PictureBackEnd& pictures, const Bytes& trace, const fs::path& file)
{
    plot.ShowTrace(trace);
    const std::string png = pictures.Png(plot.Instance(), 1);
    std::ofstream(file, std::ios::binary) << png;
}

void WriteTheirs(const PlainPicture& plain, const fs::path& file)
{
    QImage image(Width, Height, QImage::Format_RGB32);
    {
        QPainter painter(&image);
        DrawPlainly(painter, plain);
    }
    image.save(QString::fromStdString(file.string()), "PNG");
}

struct FilesResult {
    Times Microseconds; ///< of a picture
    std::uintmax_t Ours = 0, Theirs = 0;
};

/// Theirs starts with the primitives at hand, ours with the raw trace.
FilesResult MeasureFiles(Plot& plot, PictureBackEnd& pictures, const Bytes& sample, const fs::path& folder)
{
    FilesResult result{{0, 0}};
    for (int i = 0; i < Pictures; ++i) {
        const Bytes trace = MakeVariant(sample, i);
        const fs::path ours = folder / (std::to_string(i) + "-ours.png");
        const fs::path theirs = folder / (std::to_string(i) + "-theirs.png");
        double begin = ProcessorMicroseconds();
        WriteOurs(plot, pictures, trace, ours);
        result.Microseconds.Ours += (ProcessorMicroseconds() - begin) / Pictures;
        const PlainPicture plain = PlainPictureOf(plot);
        begin = ProcessorMicroseconds();
        WriteTheirs(plain, theirs);
        result.Microseconds.Theirs += (ProcessorMicroseconds() - begin) / Pictures;
        result.Ours += fs::file_size(ours);
        result.Theirs += fs::file_size(theirs);
    }
    return result;
}

/// Processor time of a whole process, its start and end included, in microseconds.
double RunProcess(const std::string& command)
{
    const auto childrenTime = [] {
        rusage usage{};
        getrusage(RUSAGE_CHILDREN, &usage);
        return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1E6 +
               static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec);
    };
    const double begin = childrenTime();
    if (std::system(command.c_str()) != 0)
        std::printf("failed: %s\n", command.c_str());
    return childrenTime() - begin;
}

/// The median of many: what a process costs varies with what the kernel has at hand.
Times MeasureProcesses(const fs::path& folder)
{
    constexpr std::size_t rounds = 41;
    const std::string png = (folder / "process.png").string();
    std::vector<double> ours;
    std::vector<double> theirs;
    for (std::size_t i = 0; i < rounds; ++i) {
        ours.push_back(RunProcess(
            TRACES_PROGRAM " render " TRACES_SAMPLES_FOLDER "/rl_dualband_antenna_601pts.raw -o " + png));
        theirs.push_back(
            RunProcess("QT_QPA_PLATFORM=offscreen " TRACES_BARE_PROGRAM " " + png + " 2>/dev/null"));
    }
    std::ranges::sort(ours);
    std::ranges::sort(theirs);
    return {ours[rounds / 2], theirs[rounds / 2]};
}

bool MemoryStaysFlat(Plot& plot, PictureBackEnd& pictures, const Bytes& sample, const fs::path& folder)
{
    constexpr int settled = 100;
    constexpr double tolerance = 1.01;
    long early = 0;
    for (int i = 0; i < Pictures; ++i) {
        WriteOurs(plot, pictures, MakeVariant(sample, i), folder / "memory.png");
        if (i == settled - 1)
            early = PeakMemory();
    }
    const long late = PeakMemory();
    std::printf("peak memory after %d pictures %ld KiB, after %d %ld KiB\n", settled, early, Pictures, late);
    return static_cast<double>(late) <= static_cast<double>(early) * tolerance;
}

} // namespace

int main()
{
    PictureBackEnd& pictures = *TracesPictureBackEnd();
    HeadlessPlatform platform(pictures.Metrics());
    Plot plot(platform);
    plot.Resize(Width, Height);
    const Bytes sample = ReadSample();
    plot.ShowTrace(sample);

    const fs::path folder =
        fs::temp_directory_path() /
        ("traces-bench-" + std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()));
    fs::create_directory(folder);
    // First, while nothing else has raised the peak.
    bool kept = MemoryStaysFlat(plot, pictures, sample, folder);
    Report report;
    report.Add("replay of a sweep's view / plain QPainter calls", MeasureReplay(plot), 1.15);
    for (const FamilySample& family : FamilySamples) {
        Plot other(platform);
        other.Resize(Width, Height);
        other.ShowTrace(ReadSample(family.File));
        report.Add("the same: " + std::string(family.What), MeasureReplay(other), 1.15);
    }
    const FilesResult files = MeasureFiles(plot, pictures, sample, folder);
    report.Add("raw trace to PNG file / QPainter and QImage::save", files.Microseconds, 0.4);
    std::printf("%d files: ours %ju bytes, theirs %ju bytes\n", Pictures, files.Ours, files.Theirs);
    kept = kept && files.Ours <= files.Theirs;
    report.Add("process: traces render x.raw -o x.png / bare QPainter", MeasureProcesses(folder), 1);
    fs::remove_all(folder);
    return kept ? report.ExitStatus() : 1;
}
