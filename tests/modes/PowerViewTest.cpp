#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "control/Input.h"
#include "control/Plot.h"
#include "modes/power/PowerLadder.h"
#include "modes/power/PowerPanel.h"
#include "support/RawPower.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::RawBuilder;
using Testing::RawPower;
using Testing::RawZephra;

constexpr Colour Red = 255;
constexpr Colour Green = 65280;

class PowerView : public testing::Test {
protected:
    HeadlessPlatform platform;
    Plot plot{platform};
    Control& state = plot.Instance();

    void Show(const RawBuilder& raw) { ASSERT_TRUE(plot.ShowTrace(raw.Bytes())); }

    /// A reading in thousandths of a dBm, shown in watts.
    static RawBuilder Watts(int mode, int reading)
    {
        return RawPower(mode).Number(58, 1, 2).Number(151, 4, reading);
    }

    static std::vector<TextCommand> Texts(const ChartSurface& surface)
    {
        std::vector<TextCommand> texts;
        for (const DrawCommand& command : surface.Picture())
            if (const auto* text = std::get_if<TextCommand>(&command))
                texts.push_back(*text);
        return texts;
    }

    /// The text at a place, with "red " in front of one in red; "-" when there is none.
    std::string TextAt(Point at) const
    {
        const auto texts = Texts(state.ZephraHolder);
        const auto found = std::ranges::find(texts, at, &TextCommand::At);
        return found == texts.end() ? "-" : (found->Ink == Red ? "red " : "") + found->Text;
    }

    /// How far the bar is filled, in its own units.
    FillCommand Bar() const { return std::get<FillCommand>(state.PowerBar.Picture().back()); }
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
}

TEST_F(PowerView, ScientificPartsRoundToTwoDecimals)
{
    const struct {
        double value, mantissa;
        const char* exponent;
    } cases[] = {{0.01, 1, "-02"},        {0, 0, "+00"},         {1, 1, "+00"},
                 {9.994E-7, 9.99, "-07"}, {9.995E-7, 1, "-06"},  {1.005E-4, 1.01, "-04"},
                 {2.5E-123, 2.5, "-123"}, {-31.62, -3.16, "+01"}};
    for (const auto& c : cases) {
        const ScientificParts parts = ScientificPartsOf(c.value);
        EXPECT_DOUBLE_EQ(parts.Mantissa, c.mantissa) << c.value;
        EXPECT_EQ(parts.Exponent, c.exponent) << c.value;
    }
}

TEST_F(PowerView, CaptionsFollowUnitRelativeAndZero)
{
    const auto relative = [](RawBuilder raw) { return raw.Number(80, 1, 1); };
    const auto zeroed = [](RawBuilder raw) { return raw.Number(86, 1, 1); };
    const struct {
        const char* what;
        RawBuilder raw;
        const char* caption;
    } cases[] = {
        {"meter", RawPower(), "-36.57 dBm"},
        {"meter, relative", relative(RawPower()), "-36.57 dBm"},
        {"meter, watts", Watts(64, 0), "1.00 mW"},
        {"meter, watts, relative", relative(Watts(64, -3000)), "501.19 uW"},
        {"meter, watts, zeroed", zeroed(Watts(64, 0)), "0.01 mW"},
        {"meter above a watt, of the trace before", Watts(64, 35'000), "1.00 W"},
        {"monitor", RawPower(65), "-36.6 dBm"},
        {"monitor, relative", relative(RawPower(65)), "-36.6 dB"},
        {"monitor, watts", Watts(65, 0), "1.0 mW"},
        {"monitor, watts, relative", relative(Watts(65, -3000)), "50.1 %"},
        {"monitor, watts, zeroed before relative", zeroed(relative(Watts(65, -3000))), "0.0 uW"},
    };
    for (const auto& c : cases) {
        Show(c.raw);
        EXPECT_EQ(state.PowerLabel.Caption, c.caption) << c.what;
    }
}

TEST_F(PowerView, AMetersPanelIsDrawnFromItsFrameToItsFoot)
{
    plot.TraceName("CH35");
    Show(RawPower());
    const DisplayList& picture = state.PMHolder.Picture();
    const Pen light{RGB(250, 250, 250)};
    const DisplayList frame = {UserScale{0, 0, 550, 480},
                               FillCommand{{30, 30}, {520, 400}, PanelGrey},
                               LineCommand{{30, 30}, {520, 30}, light},
                               LineCommand{{30, 30}, {30, 400}, light},
                               LineCommand{{520, 30}, {520, 400}, {}},
                               LineCommand{{30, 400}, {520, 400}, {}}};
    ASSERT_GT(picture.size(), frame.size());
    EXPECT_TRUE(std::equal(frame.begin(), frame.end(), picture.begin()));
    struct Case {
        const char* text;
        float x, y, size;
        Colour ink;
    };
    static constexpr Case cases[] = {
        {"PMET-CH35", 237, 4, 10, Black},
        {"Power Meter", 70, 42, 12, White},
        {"Power", 56, 86, 10, White},
        {"-40", 60, 304, 10, White}, // centred on its tick at 70
        {"-35", 160, 304, 10, White},
        {"-30", 260, 304, 10, White},
        {"Center=599.25 MHz", 2, 424, 10, Black},
        {"Span=6.50 MHz", 2, 442, 10, Black},
        {"Relative:OFF", 2, 460, 10, Black},
        {"Std=UHF TV channel 35", 275, 424, 10, Black},
        {"Channel=35", 275, 442, 10, Black},
        {"Offset:ON", 275, 460, 10, Black},
    };
    const auto texts = Texts(state.PMHolder);
    ASSERT_EQ(texts.size(), std::size(cases));
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(texts[i].Text, cases[i].text);
        EXPECT_EQ(texts[i].At, (Point{cases[i].x, cases[i].y})) << cases[i].text;
        EXPECT_EQ(texts[i].Font.Size, cases[i].size) << cases[i].text;
        EXPECT_EQ(texts[i].Ink, cases[i].ink) << cases[i].text;
    }
    EXPECT_TRUE(state.PMHolder.Visible);
    EXPECT_FALSE(state.PMHolder.AutoRedraw);
    EXPECT_FALSE(state.PowerBar.AutoRedraw);
}

TEST_F(PowerView, BarAndTicksSpanADecade)
{
    const auto ticks = [&] {
        std::vector<float> heights;
        for (const DrawCommand& command : state.PMHolder.Picture())
            if (const auto* fill = std::get_if<FillCommand>(&command);
                fill != nullptr && fill->Ink == White) {
                EXPECT_EQ(fill->From.X, 50 + 20 * static_cast<float>(heights.size()));
                heights.push_back(fill->To.Y - fill->From.Y);
            }
        return heights;
    };
    Show(RawPower(65).Number(151, 4, -50'000));
    EXPECT_EQ(ticks(), (std::vector<float>{6, 12, 6, 6, 6, 6, 12, 6, 6, 6, 6, 12, 6}));
    EXPECT_EQ(Bar(), (FillCommand{{-51, 1}, {-50, 0}, BarGreen}));
    EXPECT_EQ(state.PowerBar.ScaleLeft, -51.5F);
    EXPECT_EQ(state.PowerBar.ScaleWidth, 13);
    EXPECT_EQ(state.PowerBar.Width, 260) << "20 a tick";

    Show(Watts(64, -12'345)); // 5.83E-05 W
    EXPECT_EQ(ticks(), (std::vector<float>{12, 6, 6, 6, 6, 12, 6, 6, 6, 6, 12, 6}));
    EXPECT_EQ(Bar(), (FillCommand{{0, 1}, {5.83F, 0}, BarGreen}));
    EXPECT_EQ(state.PowerBar.Width, 240);
    EXPECT_EQ(state.PowerBar.Left, 40);
    EXPECT_EQ(Texts(state.PMHolder)[3].Text, "1");
    EXPECT_EQ(Texts(state.PMHolder)[5].Text, "10E-05");
    Show(Watts(64, -12'345).Number(86, 1, 1));
    EXPECT_EQ(Bar().To.X, 1) << "zeroed";
    EXPECT_EQ(Texts(state.PMHolder)[3].Text, "0");
    EXPECT_EQ(Texts(state.PMHolder)[5].Text, "10E-02");

    state.Power.PowerReading = 3E38F;
    state.Power.PowerUnit = 1;
    EXPECT_NO_THROW(plot.RedrawTrace());
    EXPECT_TRUE(ticks().empty()) << "a level that no scale has";
}

TEST_F(PowerView, TheLimitTestColoursTheCaptionsUnlessAnErrorTakesItsPlace)
{
    const Colour grey = PanelGrey;
    const auto limits = [](int reading, int upper, int lower) {
        return RawZephra().Number(61, 2, reading).Number(103, 2, upper).Number(105, 2, lower);
    };
    const struct {
        const char* what;
        RawBuilder raw;
        Colour back;
        const char *verdict, *warning;
    } cases[] = {
        {"no limits", RawZephra().Number(102, 1, 0), grey, "-", "-"},
        {"at the upper one", limits(-500, -500, -600), Green, "PASS", "-"},
        {"colour stays without limits", RawZephra().Number(102, 1, 0), Green, "-", "-"},
        {"above", limits(-499, -500, -600), Red, "FAIL", "-"},
        {"at the lower one", limits(-600, -500, -600), Green, "PASS", "-"},
        {"below", limits(-601, -500, -600), Red, "FAIL", "-"},
        {"an error in range", RawZephra().Number(108, 1, 1), Green, "-", "red Warning! Power Supply Error."},
        {"an error out of range", limits(0, -500, -600).Number(108, 1, 2), Red, "-",
         "red Warning! RF power level is too high."},
        {"two errors at once", RawZephra().Number(102, 1, 0).Number(108, 1, 3), Red, "-", "red "},
    };
    for (const auto& c : cases) {
        Show(c.raw);
        EXPECT_EQ(state.ZephraPowerLabel.BackColor, c.back) << c.what;
        EXPECT_EQ(state.ZephraPowerLabelUnit.BackColor, c.back) << c.what;
        EXPECT_EQ(TextAt({250, 210}), c.verdict) << c.what;
        EXPECT_EQ(TextAt({56, 210}), c.warning) << c.what;
    }
    const auto texts = Texts(state.ZephraHolder);
    EXPECT_EQ(texts.back().Text, "Offset:OFF");
    EXPECT_EQ(texts.back().Ink, Black);
    EXPECT_TRUE(texts.back().Font.Bold) << "from the band on";
    EXPECT_FALSE(texts.front().Font.Bold);
}

TEST_F(PowerView, AHighAccuracyReadingHasTwoCaptions)
{
    const auto relative = [](int reading, int reference) {
        return RawZephra().Number(61, 2, reading).Number(70, 2, reference).Number(72, 1, 1);
    };
    const struct {
        const char* what;
        RawBuilder raw;
        const char* level;
        const char* unit;
    } cases[] = {
        {"a reference of which nothing is known", relative(3500, 3600), "-1.00 dB", ""},
        {"plain", RawZephra(), "-12.3 dBm", "58.34 uW"},
        {"zeroed", RawZephra().Number(101, 1, 1), "0.0 uW", "58.34 uW"},
        // 501.19 uW against 1 mW, as the ladder scales them
        {"relative, each by its own prefix", relative(-300, 0), "-3.00 dB", "50118.72 %"},
        {"above a watt, of the level before", relative(3500, 0), "35.00 dB", "100.00 %"},
    };
    for (const auto& c : cases) {
        Show(c.raw);
        EXPECT_EQ(state.ZephraPowerLabel.Caption, c.level) << c.what;
        EXPECT_EQ(state.ZephraPowerLabelUnit.Caption, c.unit) << c.what;
    }
    EXPECT_EQ(state.PowerBar.Width, 240);
}

TEST_F(PowerView, PanesListTheSettingsInPairsOfLabelAndValue)
{
    plot.ShowParams(true);
    plot.Resize(911, 480);
    const auto expect = [&](const char* what, std::string_view expected) {
        EXPECT_TRUE(state.ParamBox.Visible) << what;
        std::string shown;
        for (const TextCommand& text : Texts(state.ParamBox))
            shown += (shown.empty() ? "" : "|") + text.Text;
        EXPECT_EQ(shown, expected) << what;
    };
    Show(RawPower(65));
    expect("monitor",
           "Power Monitor|Units :|dBm|Relative: |OFF|Offset: |12.5dB(ON)|Zero Adj:|OFF|Model:|TRC-100|"
           "Measure Date:|11/22/2026|Measure Time:|10:20:30|GPS-Latitude:|N44*58.817'|GPS-Longitude:|"
           "W93*15.9'|GPS-Altitude:|253m");
    EXPECT_EQ(Texts(state.ParamBox)[0].At, (Point{90, 30}));
    EXPECT_EQ(Texts(state.ParamBox)[1].At, (Point{14, 104}));
    Show(RawPower().Number(106, 4, -1).Number(110, 4, -1));
    expect("meter",
           "Center Freq:|599.25 MHz|Freq. Span:|6.50 MHz|Start Freq:|596.00 MHz|Stop Freq:|602.50 MHz|"
           "Power Rel. Ref:|-50.25 dB|Power Offset:|12.50 dB|RMS Averaging:|Medium|Signal Std:|"
           "UHF TV channel 35|Uplink/Downlink:|Downlink|Channel:|35|Model:|TRC-100|Measure Date:|"
           "11/22/2026|Measure Time:|10:20:30|GPS-Latitude:|N/A|GPS-Longitude:|N/A|GPS-Altitude:|N/A");
    Show(RawZephra());
    expect("high accuracy",
           "Center Freq:|2140.00 MHz|MaxHold:|ON|Upper Limit:|10.00 dBm|Lower limit:|-30.50 dBm|"
           "Power Offset:|OFF|Zero Adj:|OFF|Limits:|ON|Signal Std:|UMTS/WCDMA/3G|Averages:|OFF|Model:|"
           "TRC-100|Measure Date:|11/22/2026|Measure Time:|10:20:30|UTC Time:|23:59:58|GPS-Latitude:|"
           "S33*51.2345'|GPS-Longitude:|E151*12.3456'|GPS-Altitude:|58m");
    EXPECT_EQ(Texts(state.ParamBox)[15].At.Y, 204) << "four above its label";
    state.Zephra.MaxHold = "1.6";
    state.Zephra.ZeroStatus = "0.256";
    plot.RedrawTrace();
    EXPECT_EQ(Texts(state.ParamBox)[3].Text, "2");
    EXPECT_EQ(Texts(state.ParamBox)[11].Text, "0.26");
    plot.ShowParams(false);
    plot.RedrawTrace();
    EXPECT_FALSE(state.ParamBox.Visible);
}

TEST_F(PowerView, ARightClickOpensThePowerMenu)
{
    const auto clicked = [&](ChartSurface& surface) {
        platform.Menus.clear();
        MouseDown(state, surface, 2, 0, 100, 100);
        return platform.Menus.empty() ? "" : std::string(platform.Menus[0].Name);
    };
    Show(RawPower());
    EXPECT_EQ(clicked(state.PMHolder), "menuPMPopupHeader");
    EXPECT_EQ(clicked(state.PowerBar), "menuPMPopupHeader");
    EXPECT_EQ(&SurfaceAt(state, 200, 150), &state.PMHolder) << "a label is no surface of its own";
    EXPECT_EQ(clicked(state.ParamBox), "menuPopUpHeader");
    platform.Choices.push_back({"menuPMTraceInfo", -1});
    clicked(state.PMHolder);
    ASSERT_EQ(platform.ShownParameters.size(), 1U);
    EXPECT_EQ(platform.ShownParameters[0].back(), "Power Meter Reading:\t-36.57");
    Show(RawZephra());
    EXPECT_EQ(clicked(state.ZephraHolder), "menuPMPopupHeader");
    plot.AllowPopupMenu(false);
    EXPECT_EQ(clicked(state.ZephraHolder), "");
}

} // namespace
} // namespace Traces
