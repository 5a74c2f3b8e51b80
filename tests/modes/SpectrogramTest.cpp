#include "chart/ColourRamp.h"
#include "chart/Markers.h"
#include "control/ChartMenu.h"
#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "control/Input.h"
#include "control/Plot.h"
#include "control/PlotEvents.h"
#include "formats/Files.h"
#include "modes/spectrogram/SpectroTrace.h"
#include "support/Faults.h"
#include "support/RawScans.h"
#include "support/TraceFiles.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::RawBuilder;
using Testing::RawSpectrogram;
using Testing::WithChecksum;

/// A platform whose clock and events a test sets.
class SlowPlatform : public HeadlessPlatform {
public:
    std::uint32_t Step = 0; ///< of the clock, each time it is asked
    std::function<void()> OnEvents;
    std::uint32_t GetTickCount() override { return now += Step; }
    void DoEvents() override
    {
        if (OnEvents)
            std::exchange(OnEvents, nullptr)();
    }

private:
    std::uint32_t now = 0;
};

class Spectrogram : public testing::Test {
protected:
    SlowPlatform platform;
    std::unique_ptr<Plot> owned = std::make_unique<Plot>(platform);
    Plot& plot = *owned;
    Control& state = plot.Instance();

    std::string SavedText(int sweeps)
    {
        const Testing::TemporaryFolder folder;
        std::string name = folder / "a.spg";
        Plot other(platform);
        EXPECT_TRUE(other.SaveRawTraceB(RawSpectrogram(sweeps).AsText(), name));
        return ReadWholeFile(name).value_or("");
    }

    const ImageCommand& Map() const
    {
        for (const DrawCommand& command : state.SpectroBox.Picture())
            if (const auto* image = std::get_if<ImageCommand>(&command))
                return *image;
        throw std::runtime_error("no image");
    }
};

TEST_F(Spectrogram, IsToldByItsLengthAndReadsItsOwnHead)
{
    RawBuilder raw = RawSpectrogram(80);
    raw.Number(16, 1, 0).Number(1, 2, 100); // what a long buffer's head says of mode and length doesn't count
    ASSERT_TRUE(plot.ShowTrace(raw.Bytes()));
    EXPECT_EQ(state.CurrentMode, 87);
    EXPECT_EQ(state.Header.TraceLength, 32528);
    EXPECT_EQ(state.YScaleTop, 80);
    EXPECT_EQ(state.YScaleBottom, -10);
    const TraceSlot& slot = state.TraceSlots[0];
    EXPECT_EQ(slot.Length, 401);
    EXPECT_EQ(slot.X[400], 450);
    EXPECT_EQ(slot.Y[0], -177.5F + 79.0F / 2) << "the last sweep's";
    EXPECT_EQ(slot.Y[89], -77.5F);
    EXPECT_EQ(state.Spectro.SweepTime[79], 39.5F);
    const auto lines = plot.Parameters();
    ASSERT_EQ(lines.size(), 8U + 13 + 2 * 80);
    EXPECT_EQ(lines[0], "Date:\t11/22/2026");
    EXPECT_EQ(lines[2], "Mode:\tSpectro Mode");
    EXPECT_EQ(lines[20], "Sweeps:\t80");
    EXPECT_EQ(lines[23], "Sweep Time 2 =           0.5                   ");
    EXPECT_EQ(lines[24].substr(0, 27), "Sweep 2:\t-177\t-177.5\t-177.5");
    EXPECT_EQ(plot.ParametersToSave(), lines) << "a save begins the list anew";
    EXPECT_EQ(plot.GetUpLoadTrace(""), "");
    EXPECT_EQ(plot.GPSLocation().substr(0, 17), "GPS Latitude:\tN40");
}

TEST_F(Spectrogram, ShortOnesGoByTheirModeAndARawSaveOfCharactersReadsThemAsAChannelScan)
{
    ASSERT_TRUE(plot.ShowTrace(RawSpectrogram(3).Number(113, 2, 200).Bytes()));
    EXPECT_EQ(state.Spectro.SweepCount, 80);
    EXPECT_EQ(state.Spectro.Level[3 * 401], -177.5F) << "a missing sweep is dark";
    ASSERT_TRUE(plot.ShowTrace(RawSpectrogram(3).Number(113, 2, 0).Bytes()));
    EXPECT_EQ(plot.count(), 401);
    const Testing::TemporaryFolder folder;
    std::string name = folder / "odd";
    ASSERT_TRUE(plot.SaveRawTrace(RawSpectrogram(2).AsText(), name));
    EXPECT_EQ(name, folder / "odd.SPG");
    EXPECT_EQ(state.CS.StartFreq, 440) << "the scan's record took it";
    EXPECT_EQ(state.Spectro.SweepCount, 0);
    EXPECT_EQ(plot.Parameters()[2], "Mode:\tSpectro Mode");
}

TEST_F(Spectrogram, SaveLoadAndSaveGiveTheSameFile)
{
    const std::string text = SavedText(5);
    plot.LoadSpectroText(text, {});
    EXPECT_TRUE(platform.Messages.empty());
    EXPECT_EQ(state.CurrentMode, 87);
    EXPECT_EQ(state.SpectroSweep, 4);
    EXPECT_EQ(state.Spectro.Level[401 + 11], -77.5F);
    EXPECT_TRUE(platform.ProgressTitles.empty()) << "over at once";
    const Testing::TemporaryFolder folder;
    std::string again = folder / "again";
    state.TraceSaved = true;
    ASSERT_TRUE(plot.SaveTrace(again));
    EXPECT_EQ(again, folder / "again.SPG");
    EXPECT_EQ(ReadWholeFile(again), text);

    plot.LoadSpectroText(WithChecksum("Sweeps:\t6\r\nSweep Time 2 =           7.25                  \r\n"
                                      "Sweep 2:\t-1\tx\t-3\r\nRef Level:\t-20\r\n"),
                         {});
    EXPECT_EQ(state.Spectro.SweepTime[1], 7.25F);
    EXPECT_EQ(state.Spectro.SweepTime[2], 1) << "no line";
    EXPECT_EQ(state.Spectro.Level[401], -1);
    EXPECT_EQ(state.Spectro.Level[402], -177.5F) << "no number";
    EXPECT_EQ(state.Spectro.Level[401 + 11], -77.5F) << "no field";
    EXPECT_EQ(state.Spectro.Level[5 * 401], 0) << "a sweep that no file gave";
    EXPECT_EQ(state.Spectro.RefLevel, -20);
}

TEST_F(Spectrogram, ALongLoadShowsItsProgressAndAnInterruptedOneChangesNothing)
{
    const std::string text = SavedText(40);
    ASSERT_TRUE(plot.ShowTrace(RawSpectrogram(3).Bytes()));
    const auto lines = plot.Parameters();
    platform.Step = 60;
    platform.InterruptAt = 50;
    plot.LoadSpectroText(text, {});
    EXPECT_EQ(platform.ProgressTitles, std::vector<std::string>{"File Open"});
    EXPECT_EQ(platform.OpenProgressForms, 0);
    EXPECT_GE(platform.ProgressPercents.back(), 50);
    EXPECT_EQ(state.Spectro.SweepCount, 3);
    EXPECT_EQ(plot.Parameters(), lines);
    platform.InterruptAt.reset();
    plot.LoadSpectroText(text, {});
    EXPECT_EQ(state.Spectro.SweepCount, 40);
    EXPECT_EQ(platform.OpenProgressForms, 0);
}

TEST_F(Spectrogram, AHostMayEndTheControlOrLoadAnotherTraceMeanwhile)
{
    const std::string text = SavedText(40);
    platform.Step = 60;
    platform.OnEvents = [&] { plot.ShowTrace(Testing::RawSpectrum({-50, -60}).Bytes()); };
    plot.LoadSpectroText(text, {});
    EXPECT_EQ(state.CurrentMode, 87) << "the load ends last";
    EXPECT_EQ(state.Spectro.SweepCount, 40);
    platform.OnEvents = [&] { owned.reset(); };
    LoadSpectroText(state, text, {});
    EXPECT_EQ(owned, nullptr);
}

TEST_F(Spectrogram, TheMapIsOneImageWithALegendAtItsFoot)
{
    ASSERT_TRUE(plot.ShowTrace(RawSpectrogram(80).Bytes()));
    std::size_t images = 0;
    for (const DrawCommand& command : state.SpectroBox.Picture())
        images += std::holds_alternative<ImageCommand>(command) ? 1U : 0U;
    EXPECT_EQ(images, 2U) << "map and legend";
    const ImageCommand& map = Map();
    EXPECT_EQ(map.From, (Point{439.9875F, 0})) << "a cell stands around its frequency";
    EXPECT_EQ(map.To, (Point{450.0125F, 80}));
    ASSERT_TRUE(map.Cells.IsWhole());
    EXPECT_EQ(map.Cells.Places[0], 0) << "-177.5 is below the scale's -110";
    EXPECT_EQ(map.Cells.Places[10], static_cast<int>((110 - 77.5) / 60 * 128));
    EXPECT_EQ(state.SpectroBox.ScaleTop, 80);
    EXPECT_EQ(state.SpectroBox.ScaleHeight, -90);
    EXPECT_EQ(state.SpectroHolder.ScaleHeight, 580) << "so that the readouts stand on the control";
    // Sweeps stay sweeps under autoscale, and a zoom cuts the same image.
    plot.AutoScaleY(true);
    state.ZoomActive = true;
    state.ZoomX1 = 442;
    state.ZoomX2 = 444;
    state.ZoomY1 = 10;
    state.ZoomY2 = 30;
    plot.RedrawTrace();
    EXPECT_EQ(Map(), map);
    EXPECT_EQ(state.SpectroBox.ScaleTop, 30);
    state.ZoomY2 = 1E38F;
    EXPECT_EQ(Testing::FaultOf([&] { plot.RedrawTrace(); }), std::nullopt) << "sweeps beyond all numbers";
    state.ZoomActive = false;
    plot.RedrawTrace();
    EXPECT_EQ(state.SpectroBox.ScaleTop, 80);
}

TEST_F(Spectrogram, APressChoosesASweepAndADoubleClickShowsItAlone)
{
    ASSERT_TRUE(plot.ShowTrace(RawSpectrogram(80).Bytes()));
    plot.MarkerOn(0);
    ChartSurface& box = state.SpectroBox;
    const auto readout = [&] {
        for (const DrawCommand& command : state.SpectroHolder.Picture())
            if (const auto* text = std::get_if<TextCommand>(&command);
                text != nullptr && text->Text.starts_with("M1"))
                return text->Text;
        return std::string();
    };
    EXPECT_EQ(readout(), "M1: 440.000 MHz, -138.0 dBm");
    EXPECT_TRUE(plot.MarkerState(4)) << "one answer for all";
    MouseDown(state, box, MouseButton::Left, 0, 445, 12.9F);
    MouseMove(state, box, MouseButton::Left, 0, 440.55F, 12.9F);
    EXPECT_EQ(state.SpectroCoords.Caption, "440.550 MHz, 6.00 s, -77.5 dBm");
    MouseUp(state, box, MouseButton::Left, 0, 440.55F, 12.9F);
    EXPECT_EQ(state.SpectroSweep, 12);
    EXPECT_EQ(state.TraceSlots[0].Y[22], -77.5F);
    EXPECT_EQ(readout(), "M1: 440.000 MHz, -171.5 dBm");

    DblClick(state, box);
    EXPECT_EQ(state.CurrentMode, 89);
    EXPECT_TRUE(state.SpectroHolder.Visible) << "by its own view";
    EXPECT_EQ(box.ScaleTop, -50);
    EXPECT_EQ(box.ScaleHeight, -60);
    EXPECT_FALSE(plot.MarkerState(0)) << "the sweep alone has no markers of its own";
    EXPECT_EQ(plot.GPSLocation().substr(14, 3), "N/A");
    EXPECT_FALSE(ChartMenu(state, &state.SpectroMarkers).Items.back().Visible);
    EXPECT_EQ(plot.ParametersToSave()[2], "Mode:\tSpectro Mode")
        << "it is still the spectrogram that is saved";
    DblClick(state, box);
    EXPECT_EQ(state.CurrentMode, 87);
    EXPECT_EQ(state.SpectroSweep, 12);
    EXPECT_FALSE(ChartMenu(state, &state.SpectroMarkers).Items.front().Visible) << "AutoScale";
    plot.ClearMarkers();
    EXPECT_EQ(readout(), "");
}

TEST_F(Spectrogram, AMarkerStepsNoFurtherThanTheEnds)
{
    ASSERT_TRUE(plot.ShowTrace(RawSpectrogram(3).Bytes()));
    plot.MarkerOn(0);
    MarkerSet& markers = state.SpectroMarkers;
    markers.SelectedMarker = 0;
    for (const auto& [key, end] : {std::pair{KeyCodes::Left, 0}, std::pair{KeyCodes::Right, 400}}) {
        markers.MarkerIndex[0] = static_cast<std::int16_t>(end);
        StepMarker(state, markers, key);
        EXPECT_EQ(markers.MarkerIndex[0], end);
    }
    // A buffer that is refused tells its mode all the same; a sweep's markers stay a sweep's.
    ASSERT_TRUE(plot.ShowTrace(Testing::RawSweep(0, {1000, 500}).Bytes()));
    EXPECT_THROW(plot.ShowTrace(RawBuilder(32768).Bytes()), HostFault);
    state.VNAMarkers.MarkerX[1] = 830;
    MarkerAtX(state, state.VNAMarkers, 1);
    EXPECT_EQ(state.VNAMarkers.MarkerText[1], "830.000");
}

TEST_F(Spectrogram, ABufferOfTheSweepsModeDecodesNothingAndDrawsAnEmptyFrame)
{
    EXPECT_FALSE(plot.ShowTrace(Testing::RawHeader(200, 89, 5).Bytes()));
    EXPECT_EQ(state.CurrentMode, 89);
    EXPECT_EQ(Testing::FaultOf([&] { plot.TraceName("still here"); }), std::nullopt);
    EXPECT_TRUE(state.SpectroHolder.Visible);
}

/// Lightness and the two colour axes of CIELAB, from the screen's channels.
std::array<double, 3> LabOf(Colour colour)
{
    const auto linear = [&](int shift) {
        const double value = (colour >> shift & 0xFF) / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    const double r = linear(0);
    const double g = linear(8);
    const double b = linear(16);
    const auto f = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; };
    const double x = f((0.4124 * r + 0.3576 * g + 0.1805 * b) / 0.9505);
    const double y = f(0.2126 * r + 0.7152 * g + 0.0722 * b);
    const double z = f((0.0193 * r + 0.1192 * g + 0.9505 * b) / 1.089);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

TEST(ColourRamps, StepsAreEvenToTheEyeAndAlwaysLighter)
{
    const std::vector<Colour>& ramp = ColourRamp();
    ASSERT_EQ(ramp.size(), 128U);
    constexpr std::size_t stride = 8; // single steps are about as small as the rounding of channels
    double smallest = 1000;
    double largest = 0;
    for (std::size_t i = stride; i < ramp.size(); i += stride) {
        const auto a = LabOf(ramp[i - stride]);
        const auto b = LabOf(ramp[i]);
        EXPECT_GT(b[0], a[0] + 2) << i;
        const double step = std::hypot(b[0] - a[0], b[1] - a[1], b[2] - a[2]);
        smallest = std::min(smallest, step);
        largest = std::max(largest, step);
    }
    EXPECT_LT(largest / smallest, 1.15);
    EXPECT_GT(smallest, 8);
}

} // namespace
} // namespace Traces
