#include "control/PlotEvents.h"
#include "support/RawSpectra.h"
#include "support/ShownTrace.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::RawBuilder;
using Testing::RawSpectrum;

class SPAView : public Testing::ShownTrace, protected PlotEvents {
protected:
    std::vector<std::pair<int, bool>> changes;

    void MarkerChanged(std::int16_t index, bool value) override { changes.emplace_back(index, value); }

    static RawBuilder Spectrum()
    {
        return RawSpectrum({-62.2, -48.5, -70}).Number(261, 4, 300).Number(265, 4, 1'000'000);
    }
};

TEST_F(SPAView, FrameTextsStandAtTheirPlaces)
{
    RawBuilder raw = Spectrum();
    raw.Number(306, 2, -1);
    ASSERT_TRUE(plot.ShowTrace(raw.Bytes()));
    plot.TraceName("Hill");
    struct Case {
        const char* text;
        float x, y;
    };
    static constexpr Case cases[] = {// the title is centred as "GSM-Hill" would be
                                     {"SPA-Hill", 283, 4},
                                     {"Ref Lvl -20.0 dBm", 2, 24},
                                     {"RBW 00 kHz", 200, 24},
                                     {"VBW 1000 kHz", 400, 24},
                                     {"10 dB/Div", 2, 80},
                                     {"Atten", 2, 100},
                                     {" 15 dB", 2, 116},
                                     {"Recall", 2, 136},
                                     {"Pos Peak", 2, 236},
                                     {"Swp Time", 2, 404},
                                     {" Recall", 2, 420},
                                     {"Start 925.000MHz", 80, 422},
                                     {"Stop 960.500MHz", 380, 422},
                                     {"Start=925.000000MHz", 2, 442},
                                     {"Stop=960.500000MHz", 2, 460},
                                     {"Std=GSM 900", 275, 442},
                                     {"Channel=N/A", 275, 460}};
    const DisplayList& picture = state.SPAHolder.Picture();
    ASSERT_EQ(picture.size(), 1 + std::size(cases) + 1);
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        const auto& drawn = std::get<TextCommand>(picture[i + 1]);
        EXPECT_EQ(drawn.Text, cases[i].text);
        EXPECT_EQ(drawn.At, (Point{cases[i].x, cases[i].y})) << cases[i].text;
        EXPECT_EQ(drawn.Font.Size, 10) << cases[i].text;
    }
    EXPECT_EQ(picture.back(), DrawCommand(LineCommand{{0, 440}, {600, 440}, {}}));
    EXPECT_FALSE(state.SPABox.AutoRedraw);
}

TEST_F(SPAView, TheChartRunsFromTheReferenceLevelToTenDivisionsBelowZeroAndHasMarkers)
{
    plot.Listen(this);
    ASSERT_TRUE(plot.ShowTrace(Spectrum().Bytes()));
    const DisplayList& picture = state.SPABox.Picture();
    ASSERT_EQ(picture.size(), 1 + 2 + 11 + 11U) << "no corner labels";
    EXPECT_EQ(std::get<LineCommand>(picture[1]).From, (Point{925, -62.2F}));
    state.SPAMarkers.MarkerIndex[2] = 1;
    plot.MarkerOn(2);
    EXPECT_EQ(changes, (std::vector<std::pair<int, bool>>{{2, true}}));
    EXPECT_EQ(std::get<LineCommand>(picture.back()),
              (LineCommand{{942.75F, -20}, {942.75F, -100}, {RGB(180, 255, 255), LineStyle::Dashed, 1}}));
    plot.Listen(nullptr);
}

} // namespace
} // namespace Traces
