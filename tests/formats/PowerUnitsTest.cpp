#include "formats/PowerUnits.h"

#include "formats/LibraryValues.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

TEST(Log10, OfZeroIsZero)
{
    EXPECT_EQ(Log10(0), 0);
    EXPECT_NEAR(Log10(0.01), -2, 1e-14);
}

TEST(DbmToWattsUnit, ChangesUnitAtEachThousand)
{
    struct Case {
        double Level, Value;
        std::string_view Unit;
    };
    for (const auto& c : std::initializer_list<Case>{
             {30, 1, "W"},
             {29, 794.328234724281, "mW"},
             {0, 1, "mW"},
             {-0.1, 977.237220955811, "uW"},
             {-30, 1, "uW"},
             {-60, 1, "nW"},
             {-61, 794.328234724281, "pW"},
             {-130, 0.0001, "pW"},
         }) {
        const PowerInUnit power = DbmToWattsUnit(c.Level);
        EXPECT_NEAR(power.Value, c.Value, 1e-12 * c.Value) << c.Level;
        EXPECT_EQ(power.Unit, c.Unit) << c.Level;
    }
    EXPECT_EQ(DbmToWattsUnit(30).Value, 1);
    EXPECT_EQ(DbmToWattsUnit(0).Value, 1);
}

TEST(DbmToWattsRounded, ShowsFewerPlacesForLargerValues)
{
    EXPECT_EQ(DbmToWattsRounded(-12.345, false), "-12.35");
    EXPECT_EQ(DbmToWattsRounded(0, true), "1.000 mW");
    EXPECT_EQ(DbmToWattsRounded(9.99999, true), "10.000 mW"); // chosen before rounding
    EXPECT_EQ(DbmToWattsRounded(10, true), "10.00 mW");
    EXPECT_EQ(DbmToWattsRounded(-10, true), "100.0 uW");
}

TEST(DbmToPowerScale, SetsTheLibrarysPowerDownToItsLowestRung)
{
    struct Case {
        double Level, Watts, Scaled;
        std::string_view Unit;
    };
    for (const auto& c : std::initializer_list<Case>{
             {33, 1.99526231496888, 1.99526231496888, "W"},
             {0, 1e-3, 1, "mW"},
             {-30, 1e-6, 1, "uW"},
             {-60, 1e-9, 1, "nW"},
             {-119, 1.25892541179417e-15, 1.25892541179417e-6, "nW"},
             {-130, 1e-16, 1.25892541179417e-6, "nW"}, // too small: value and unit stay
         }) {
        double level = c.Level;
        DbmToPowerScale(level);
        EXPECT_NEAR(level, c.Watts, 1e-12 * c.Watts) << c.Level;
        EXPECT_NEAR(Library().ScaledPower, c.Scaled, 1e-12 * c.Scaled) << c.Level;
        EXPECT_EQ(Library().PowerUnit, c.Unit) << c.Level;
    }
}

TEST(CDMALevelWattsText, KeepsItsOddUnits)
{
    const std::pair<double, const char*> cases[] = {
        {-1000, "0.00 pW"}, {-70, "100.0 pW"}, {-63.1, "489.8 pW"}, {-63, "0.50 uW"},
        {-50.1, "9.77 uW"}, {-49, "0.01 mW"},  {-20.1, "9.77 mW"},  {-19, "0.013 W"},
        {9.9, "9.772 W"},   {10, "0.010 W"},   {40, "10.000 W"},
    };
    for (const auto& [level, text] : cases)
        EXPECT_EQ(CDMALevelWattsText(level), text) << level;
    EXPECT_EQ(CDMALevelWattsText(1e6), CDMALevelWattsText(390)); // beyond a float: its largest value
}

TEST(DecadeScale, IsLinearWithinDecades)
{
    const float counts[] = {-5, 0.99F, 1, 5.5F, 10, 55, 100, 550, 1000, 5500, 10000, 1e9F};
    const float places[] = {0, 0, 1, 1.5F, 2, 2.5F, 3, 3.5F, 4, 4.5F, 5, 5};
    for (std::size_t i = 0; i < std::size(counts); ++i)
        EXPECT_EQ(DecadeScale(counts[i]), places[i]) << counts[i];
}

TEST(BitReverse, DropsTheHigherBits)
{
    EXPECT_EQ(BitReverse6(1), 32);
    EXPECT_EQ(BitReverse6(0b001011), 0b110100);
    EXPECT_EQ(BitReverse6(64), 0);
    EXPECT_EQ(BitReverse7(1), 64);
    EXPECT_EQ(BitReverse7(0b0001011), 0b1101000);
    EXPECT_EQ(BitReverse7(-1), 127);
}

} // namespace
} // namespace Traces
