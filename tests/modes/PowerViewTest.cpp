#include "chart/Panel.h"
#include "control/Input.h"
#include "formats/Numbers.h"
#include "modes/power/PowerLadder.h"
#include "output/Describe.h"
#include "support/RawPower.h"
#include "support/ShownTrace.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <span>

namespace Traces {
namespace {

using Testing::RawBuilder;
using Testing::RawPower;
using Testing::RawZephra;

constexpr Colour Red = 255;
constexpr Colour Green = 65280;

class PowerView : public Testing::ShownTrace {
protected:
    void Show(const RawBuilder& raw) { ASSERT_TRUE(plot.ShowTrace(raw.Bytes())); }

    /// A reading in thousandths of a dBm, shown in watts.
    static RawBuilder Watts(int mode, int reading)
    {
        return RawPower(mode).Number(58, 1, 2).Number(151, 4, reading);
    }

    /// A surface's texts with "|" between them, each behind its place; in front of it "w" for white, "r" for
    /// red.
    static std::string Texts(const ChartSurface& surface, bool placed = true)
    {
        std::string shown;
        for (const TextCommand& text : CommandsOf<TextCommand>(surface)) {
            const std::string ink = text.Ink == White ? "w" : text.Ink == Red ? "r" : "";
            shown += shown.empty() ? "" : "|";
            if (placed)
                shown += ink + NumberText(text.At.X) + "," + NumberText(text.At.Y) + " ";
            shown += text.Text;
        }
        return shown;
    }

    /// The heights of the white ticks, which must stand 20 apart.
    std::vector<float> Ticks() const
    {
        std::vector<float> heights;
        for (const FillCommand& tick : Fills(state.PMHolder, White)) {
            EXPECT_EQ(tick.From.X, 50 + 20 * static_cast<float>(heights.size()));
            heights.push_back(tick.To.Y - tick.From.Y);
        }
        return heights;
    }

    DrawCommand Bar() const { return state.PowerBar.Picture().back(); }
};

TEST_F(PowerView, TheLadderHasItsTwoGaps)
{
    const struct {
        double level, value;
        const char* unit;
    } cases[] = {
        // In order: each begins with what the one before left.
        {0, 1, "mW"},          {29.9, 977.2, "mW"}, {30, 977.2, "W"},   {45, 977.2, "W"}, {-30, 1, "uW"},
        {-36.57, 220.3, "nW"}, {-120, 1E-6, "nW"},  {-121, 1E-6, "nW"}, {46, 1E-6, "W"},  {-130, 1E-6, "W"},
    };
    for (const auto& c : cases) {
        double level = c.level;
        PowerLadder(state, level);
        EXPECT_NEAR(state.PowerLadderValue / c.value, 1, 1E-4) << c.level;
        EXPECT_EQ(state.PowerLadderUnit, c.unit) << c.level;
        EXPECT_NEAR(level / WattsOfDbm(c.level), 1, 1E-12) << c.level;
    }
    EXPECT_EQ(WattsOfDbm(1E9), 0) << "no number holds it";
    for (const auto& [value, text] :
         {std::pair(0.0, "0E+00"), {9.994E-7, "9.99E-07"}, {9.995E-7, "1E-06"}, {-31.62, "-3.16E+01"}})
        EXPECT_EQ(NumberText(ScientificPartsOf(value).Mantissa) + "E" + ScientificPartsOf(value).Exponent,
                  text);
}

TEST_F(PowerView, CaptionsFollowUnitRelativeAndZero)
{
    const auto relative = [](RawBuilder raw) { return raw.Number(80, 1, 1); };
    const auto zeroed = [](RawBuilder raw) { return raw.Number(86, 1, 1); };
    const std::pair<RawBuilder, const char*> cases[] = {
        {RawPower(), "-36.57 dBm"},
        {relative(RawPower()), "-36.57 dBm"}, // a meter has no other form
        {relative(Watts(64, -3000)), "501.19 uW"},
        {zeroed(Watts(64, 0)), "0.01 mW"},
        {Watts(64, 0), "1.00 mW"},
        {Watts(64, 35'000), "1.00 W"}, // of the trace before
        {RawPower(65), "-36.6 dBm"},
        {relative(RawPower(65)), "-36.6 dB"},
        {Watts(65, 0), "1.0 mW"},
        {relative(Watts(65, -3000)), "50.1 %"},
        {zeroed(relative(Watts(65, -3000))), "0.0 uW"},
    };
    for (const auto& [raw, caption] : cases) {
        Show(raw);
        EXPECT_EQ(state.PowerLabel.Caption, caption);
    }
}

TEST_F(PowerView, AMetersPanelIsDrawnFromItsFrameToItsFoot)
{
    plot.TraceName("CH35");
    Show(RawPower());
    const Pen light{RGB(250, 250, 250)};
    const DisplayList frame = {
        FillCommand{{30, 30}, {520, 400}, PanelGrey}, LineCommand{{30, 30}, {520, 30}, light},
        LineCommand{{30, 30}, {30, 400}, light}, LineCommand{{520, 30}, {520, 400}, {}},
        LineCommand{{30, 400}, {520, 400}, {}}};
    EXPECT_TRUE(std::ranges::equal(frame, std::span(state.PMHolder.Picture()).subspan(1, frame.size())));
    // The levels are centred on their ticks.
    EXPECT_EQ(Texts(state.PMHolder),
              "237,4 PMET-CH35|w70,42 Power Meter|w56,86 Power|w60,304 -40|w160,304 -35|w260,304 -30|"
              "2,424 Center=599.25 MHz|2,442 Span=6.50 MHz|2,460 Relative:OFF|"
              "275,424 Std=UHF TV channel 35|275,442 Channel=35|275,460 Offset:ON");
    EXPECT_EQ(DescribePlot(state), "Power Meter Mode \"CH35\", -36.57 dBm.");
    EXPECT_FALSE(state.PMHolder.AutoRedraw || state.PowerBar.AutoRedraw);
    MouseDown(state, SurfaceAt(state, 200, 150), 2, 0, 200, 150); // on the level
    MouseDown(state, state.PowerBar, 2, 0, 5, 1);
    ASSERT_EQ(platform.Menus.size(), 2U);
    EXPECT_EQ(platform.Menus[1].Name, "menuPMPopupHeader");
}

TEST_F(PowerView, BarAndTicksSpanADecade)
{
    Show(RawPower(65).Number(151, 4, -50'000));
    EXPECT_EQ(Ticks(), (std::vector<float>{6, 12, 6, 6, 6, 6, 12, 6, 6, 6, 6, 12, 6}));
    EXPECT_EQ(Bar(), DrawCommand(FillCommand{{-51, 1}, {-50, 0}, BarGreen}));
    EXPECT_EQ(state.PowerBar.ScaleLeft, -51.5F);
    EXPECT_EQ(state.PowerBar.Width, 20 * state.PowerBar.ScaleWidth);
    Show(Watts(64, -12'345)); // 5.83E-05 W
    EXPECT_EQ(Ticks(), (std::vector<float>{12, 6, 6, 6, 6, 12, 6, 6, 6, 6, 12, 6}));
    EXPECT_EQ(Bar(), DrawCommand(FillCommand{{0, 1}, {5.83F, 0}, BarGreen}));
    EXPECT_EQ(state.PowerBar.Width, 240);
    EXPECT_NE(Texts(state.PMHolder, false).find("Power|1|5|10E-05|Center"), std::string::npos);
    Show(Watts(64, -12'345).Number(86, 1, 1));
    EXPECT_EQ(Bar(), DrawCommand(FillCommand{{0, 1}, {1, 0}, BarGreen})) << "zeroed";
    EXPECT_NE(Texts(state.PMHolder, false).find("Power|0|5|10E-02|Center"), std::string::npos);
    state.Power.PowerReading = 3E38F;
    state.Power.PowerUnit = 1;
    plot.RedrawTrace();
    EXPECT_TRUE(Ticks().empty()) << "a level that no scale has";
}

TEST_F(PowerView, TheLimitTestColoursTheCaptionsUnlessAnErrorTakesItsPlace)
{
    const auto limits = [](int reading, int upper, int lower) {
        return RawZephra().Number(61, 2, reading).Number(103, 2, upper).Number(105, 2, lower);
    };
    const RawBuilder noLimits = RawZephra().Number(102, 1, 0);
    const struct {
        RawBuilder raw;
        Colour back;
        const char* shown;
    } cases[] = {
        {noLimits, PanelGrey, ""},
        {limits(-500, -500, -600), Green, "|250,210 PASS"},
        {noLimits, Green, ""}, // the colour stays
        {limits(-499, -500, -600), Red, "|250,210 FAIL"},
        {limits(-600, -500, -600), Green, "|250,210 PASS"},
        {limits(-601, -500, -600), Red, "|250,210 FAIL"},
        {RawZephra().Number(108, 1, 1), Green, "|r56,210 Warning! Power Supply Error."},
        {limits(0, -500, -600).Number(108, 1, 2), Red, "|r56,210 Warning! RF power level is too high."},
        {RawZephra().Number(102, 1, 0).Number(108, 1, 3), Red, "|r56,210 "}, // two errors at once
    };
    plot.TraceName("S");
    for (const auto& c : cases) {
        Show(c.raw);
        EXPECT_EQ(state.ZephraPowerLabel.BackColor, c.back) << c.shown;
        EXPECT_EQ(state.ZephraPowerLabelUnit.BackColor, c.back) << c.shown;
        EXPECT_EQ(Texts(state.ZephraHolder),
                  "252,4 HIPM-S|w70,42 High Accuracy Power Meter|w56,86 Power" + std::string(c.shown) +
                      "|2,424 Center=2140.00 MHz|2,460 Relative:OFF|275,424 Std=UMTS/WCDMA/3G|"
                      "275,460 Offset:OFF");
    }
    EXPECT_TRUE(state.ZephraHolder.Font.Bold) << "from the band on";
}

TEST_F(PowerView, AHighAccuracyReadingHasTwoCaptions)
{
    const auto relative = [](int reading, int reference) {
        return RawZephra().Number(61, 2, reading).Number(70, 2, reference).Number(72, 1, 1);
    };
    const std::pair<RawBuilder, const char*> cases[] = {
        {relative(3500, 3600), "-1.00 dB|"}, // a reference that the ladder left at 0
        {RawZephra(), "-12.3 dBm|58.34 uW"},        {RawZephra().Number(101, 1, 1), "0.0 uW|58.34 uW"},
        {relative(-300, 0), "-3.00 dB|50118.72 %"}, // 501.19 uW against 1 mW, each by its own prefix
        {relative(3500, 0), "35.00 dB|100.00 %"},   // above a watt: of the level before
    };
    for (const auto& [raw, captions] : cases) {
        Show(raw);
        EXPECT_EQ(state.ZephraPowerLabel.Caption + "|" + state.ZephraPowerLabelUnit.Caption, captions);
    }
}

TEST_F(PowerView, PanesListTheSettingsInPairsOfLabelAndValue)
{
    plot.ShowParams(true);
    plot.Resize(911, 480);
    Show(RawPower(65));
    EXPECT_EQ(Texts(state.ParamBox, false),
              "Power Monitor|Units :|dBm|Relative: |OFF|Offset: |12.5dB(ON)|Zero Adj:|OFF|Model:|TRC-100|"
              "Measure Date:|11/22/2026|Measure Time:|10:20:30|GPS-Latitude:|N44*58.817'|GPS-Longitude:|"
              "W93*15.9'|GPS-Altitude:|253m");
    EXPECT_TRUE(Texts(state.ParamBox).starts_with("90,30 Power Monitor|14,104 Units :"));
    Show(RawPower().Number(106, 4, -1).Number(110, 4, -1));
    EXPECT_EQ(Texts(state.ParamBox, false),
              "Center Freq:|599.25 MHz|Freq. Span:|6.50 MHz|Start Freq:|596.00 MHz|Stop Freq:|602.50 MHz|"
              "Power Rel. Ref:|-50.25 dB|Power Offset:|12.50 dB|RMS Averaging:|Medium|Signal Std:|"
              "UHF TV channel 35|Uplink/Downlink:|Downlink|Channel:|35|Model:|TRC-100|Measure Date:|"
              "11/22/2026|Measure Time:|10:20:30|GPS-Latitude:|N/A|GPS-Longitude:|N/A|GPS-Altitude:|N/A");
    Show(RawZephra());
    state.Zephra.MaxHold = "1.6";
    plot.RedrawTrace();
    EXPECT_EQ(Texts(state.ParamBox, false),
              "Center Freq:|2140.00 MHz|MaxHold:|2|Upper Limit:|10.00 dBm|Lower limit:|-30.50 dBm|"
              "Power Offset:|OFF|Zero Adj:|OFF|Limits:|ON|Signal Std:|UMTS/WCDMA/3G|Averages:|OFF|Model:|"
              "TRC-100|Measure Date:|11/22/2026|Measure Time:|10:20:30|UTC Time:|23:59:58|GPS-Latitude:|"
              "S33*51.2345'|GPS-Longitude:|E151*12.3456'|GPS-Altitude:|58m");
    EXPECT_NE(Texts(state.ParamBox).find(",204 UMTS"), std::string::npos) << "four above its label";
    plot.ShowParams(false);
    plot.RedrawTrace();
    EXPECT_FALSE(state.ParamBox.Visible);
}

} // namespace
} // namespace Traces
