// From values to colours.
#include "host/scene/style/ColorMaps.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace corvane::test {

namespace {

unsigned rgb(vtkLookupTable& table, double value) {
    std::array<double, 3> color{};
    table.GetColor(value, color.data());
    unsigned result = 0;
    for (const double channel : color) {
        result = 256U * result + static_cast<unsigned>(std::lround(255.0 * channel));
    }
    return result;
}

double lightness(vtkLookupTable& table, double value) {
    std::array<double, 3> color{};
    table.GetColor(value, color.data());
    return 0.2126 * color[0] + 0.7152 * color[1] + 0.0722 * color[2];
}

} // namespace

TEST(ColorMaps, ends) {
    EXPECT_EQ(rgb(*scene::makeColorMap("Viridis"), 0.0), 0x440154U);
    EXPECT_EQ(rgb(*scene::makeColorMap("Viridis"), 1.0), 0xFDE725U);
    EXPECT_EQ(rgb(*scene::makeColorMap("Plasma"), 0.0), 0x0D0887U);
    EXPECT_EQ(rgb(*scene::makeColorMap("CoolWarm"), 1.0), 0xB40426U);
    EXPECT_EQ(rgb(*scene::makeColorMap("Rainbow"), 0.0), 0x0000FFU);
    EXPECT_EQ(rgb(*scene::makeColorMap("Gray"), 1.0), 0xFFFFFFU);
}

TEST(ColorMaps, lightnessRisesAllTheWay) {
    for (const char* name : {"Viridis", "Plasma", "Gray"}) {
        const auto table = scene::makeColorMap(name);
        for (int i = 1; i < 256; ++i) {
            EXPECT_GE(lightness(*table, i / 255.0), lightness(*table, (i - 1) / 255.0) - 2e-3)
                << name << " " << i;
        }
    }
}

TEST(ColorMaps, theDivergingMapIsLightestInTheMiddle) {
    const auto table = scene::makeColorMap("CoolWarm");
    EXPECT_GT(lightness(*table, 0.5), 0.8);
    EXPECT_LT(lightness(*table, 0.0), 0.45);
    EXPECT_LT(lightness(*table, 1.0), 0.45);
}

TEST(ColorMaps, letterCaseAndUnknownNames) {
    EXPECT_EQ(rgb(*scene::makeColorMap("pLASMA"), 0.0), 0x0D0887U);
    EXPECT_EQ(rgb(*scene::makeColorMap("none of these"), 0.0), 0x440154U);
}

} // namespace corvane::test
