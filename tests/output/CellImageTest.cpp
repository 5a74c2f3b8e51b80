#include "output/CellImage.h"

#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "control/ModeTable.h"
#include "output/Svg.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>

namespace Traces {
namespace {

using Places = std::vector<std::uint8_t>;

TEST(CellImage, ShowsWhatLiesWithinUprightAndNothingFarOff)
{
    const ColourCells grid = {3, 2, {1, 2, 3, 4, 5, 6}, {Black}};
    const struct {
        const char* what;
        DevicePoint from, to;
        int columns, rows;
        Places places;
        DeviceRect place;
    } cases[] = {
        {"as it is", {10, 20}, {40, 40}, 3, 2, {1, 2, 3, 4, 5, 6}, {10, 20, 40, 40}},
        {"upwards", {10, 40}, {40, 20}, 3, 2, {4, 5, 6, 1, 2, 3}, {10, 20, 40, 40}},
        {"leftwards", {40, 20}, {10, 40}, 3, 2, {3, 2, 1, 6, 5, 4}, {10, 20, 40, 40}},
        {"cut on the left and below", {-45, 90}, {45, 190}, 2, 1, {2, 3}, {-15, 90, 45, 140}},
        {"cut and upwards", {10, 110}, {40, -10}, 3, 2, {4, 5, 6, 1, 2, 3}, {10, -10, 40, 110}},
        {"beside the surface", {200, 20}, {240, 40}, 0, 0, {}, {}},
        {"no width", {10, 20}, {10, 40}, 0, 0, {}, {}},
        {"no number", {NAN, 20}, {40, 40}, 0, 0, {}, {}},
    };
    for (const auto& c : cases) {
        const ShownCells shown = CellsWithin({0, 0, 100, 100}, grid, c.from, c.to);
        EXPECT_EQ(shown.Cells.Columns, c.columns) << c.what;
        EXPECT_EQ(shown.Cells.Rows, c.rows) << c.what;
        EXPECT_EQ(shown.Cells.Places, c.places) << c.what;
        const DeviceRect& at = shown.Place;
        EXPECT_EQ((std::array{at.Left, at.Top, at.Right, at.Bottom}),
                  (std::array{c.place.Left, c.place.Top, c.place.Right, c.place.Bottom}))
            << c.what;
    }
}

TEST(CellImage, CellsLargerThanTheSurfaceStayOnIt)
{
    const ColourCells grid = {2, 1, {7, 8}, {Black}};
    const ShownCells shown = CellsWithin({0, 0, 10, 4}, grid, {-1E9, 0}, {1E9 + 8, 4});
    EXPECT_EQ(shown.Cells.Places, (Places{7, 7, 7, 7, 8, 8, 8, 8, 8, 8}));
    EXPECT_EQ(shown.Place.Left, 0);
    EXPECT_EQ(shown.Place.Right, 10);
    // A device of senseless size costs no more than its cells.
    EXPECT_EQ(CellsWithin({0, 0, 2E9, 4}, grid, {0, 0}, {2E9, 4}).Cells.Columns, 2);
}

TEST(CellImage, EmbedsWholeGridsAlone)
{
    EXPECT_TRUE(
        PalettePng({1, 1, {0}, {Black}}).ends_with(std::string_view("\0\0\0\0IEND\xAE\x42\x60\x82", 12)));
    EXPECT_EQ(PalettePng({2, 2, {0, 1, 1}, {Black}}), "") << "a cell is missing";
    EXPECT_EQ(Base64("light work"), "bGlnaHQgd29yaw==");
    EXPECT_EQ(Base64("light wor"), "bGlnaHQgd29y");
    EXPECT_EQ(Base64("light wo"), "bGlnaHQgd28=");
}

TEST(CellImage, IsOneImageInAnSvg)
{
    HeadlessPlatform platform;
    Control control(platform, AllFamilies);
    control.VNAHolder.Visible = true;
    control.VNABox.AutoRedraw = true;
    control.VNABox.Scale(0, 10, 100, -10);
    control.VNABox.Image(0, -10, 100, 0, {1, 1, {0}, {White}});
    const std::string svg = SvgPicture(control);
    EXPECT_NE(svg.find("<image x=\"4\" y=\"232\" width=\"542\" height=\"190\""), std::string::npos);
    EXPECT_NE(svg.find("base64,iVBORw0KGgo"), std::string::npos);
}

} // namespace
} // namespace Traces
