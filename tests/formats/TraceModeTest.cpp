#include "formats/TraceMode.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

constexpr std::uint8_t modes[] = {0, 1, 2, 16, 17, 48, 57, 64, 65, 67, 87, 96, 112, 144, 145, 146, 147, 148};

TEST(TraceModes, NamesLeadBackButForTheScannerAndTheSpectrogram)
{
    for (std::uint8_t mode : modes) {
        const bool hasNoWayBack = mode == TraceMode::ChannelScanner || mode == TraceMode::Spectrogram;
        EXPECT_EQ(ModeName(mode).find("Unknown"), std::string::npos) << int{mode};
        EXPECT_EQ(ModeCode(ModeName(mode)), hasNoWayBack ? 0 : mode) << int{mode};
        const SaveFilter filter = ModeSaveFilter(mode);
        EXPECT_TRUE(filter.Text.ends_with(" Files (" + std::string(filter.Pattern) + ")")) << filter.Text;
    }
}

TEST(TraceModes, ATextThatIsNoNameReadsAsTheDecimalNumberInIt)
{
    const std::pair<std::string_view, int> cases[] = {
        {"57", 0}, // a bare number, but one that is looked up
        {"87", 0},   {"Unknown(57)", 57},   {"48", 48},          {"gsm", 0},
        {"GSM ", 0}, {"Unknown(255)", 255}, {"Unknown(300)", 0}, {"Unknown(-1)", 0},
    };
    for (const auto& [text, code] : cases)
        EXPECT_EQ(ModeCode(text), code) << text;
}

TEST(TraceModes, OddRowsGiveTheirOwnTextsExtensionsAndFilters)
{
    const struct {
        std::uint8_t Mode;
        std::string_view Name, TraceType, Extension, Pattern, DefaultExtension;
    } cases[] = {
        {0, "RL Frequency", "RL", ".VNA", "*.vna", "vna"},
        {16, "RL Distance", "CL", ".VNA", "*.vna", "vna"},
        {17, "SWR Distance", "SWR", ".VNA", "*.vna", "vna"},
        {57, "CS", "", "", "*.cs", "cs"},
        {67, "High Accuracy Power Meter Mode", "", ".HIPM", "*.hipm", "HIPM"},
        {87, "Spectro Mode", "", ".SPG", "*.spg", "spg"},
        {146, "EVDO", "EVDO", ".EVDO", "*.evdo", "evdo"},
        {147, "iDen Mode", "", ".IDEN", "*.iden", "iden"},
        // no rows
        {7, "Unknown(07)", "", "", "", ""},
        {89, "Unknown(59)", "", "", "", ""},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(int{each.Mode});
        EXPECT_EQ(ModeName(each.Mode), each.Name);
        EXPECT_EQ(TraceTypeName(each.Mode), each.TraceType);
        EXPECT_EQ(ModeExtension(each.Mode), each.Extension);
        EXPECT_EQ(ModeSaveFilter(each.Mode).Pattern, each.Pattern);
        EXPECT_EQ(ModeSaveFilter(each.Mode).DefaultExtension, each.DefaultExtension);
    }
}

} // namespace
} // namespace Traces
