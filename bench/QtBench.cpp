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

#include <QGuiApplication>
#include <QImage>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

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
void WriteOurs(Plot& plot, QtPictures& pictures, const Bytes& trace, const fs::path& file)
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
FilesResult MeasureFiles(Plot& plot, QtPictures& pictures, const Bytes& sample, const fs::path& folder)
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

bool MemoryStaysFlat(Plot& plot, QtPictures& pictures, const Bytes& sample, const fs::path& folder)
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

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QtPictures pictures;
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
    const FilesResult files = MeasureFiles(plot, pictures, sample, folder);
    report.Add("raw trace to PNG file / QPainter and QImage::save", files.Microseconds, 0.4);
    std::printf("%d files: ours %ju bytes, theirs %ju bytes\n", Pictures, files.Ours, files.Theirs);
    kept = kept && files.Ours <= files.Theirs;
    fs::remove_all(folder);
    return kept ? report.ExitStatus() : 1;
}
