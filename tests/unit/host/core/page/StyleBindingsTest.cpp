// Tests of the paths of a frame and what they reach.
#include "host/core/page/Frame.h"
#include "host/core/page/PointList.h"

#include "tests/support/MemoryHost.h"

#include <gtest/gtest.h>

#include <limits>

namespace corvane::host {
namespace {

class StyleBindingsTest : public testing::Test {
protected:
    StyleSetResult_e set(const std::string& path, const StyleInput& value) {
        return frame.styles().set(stylePathFromString(path), value);
    }

    Frame frame{1, Placement{}};
};

TEST_F(StyleBindingsTest, theViewIsReachedByItsPaths) {
    frame.view.perspective = false;
    EXPECT_EQ(set("ThreeDView/PSIAngle", 1000.0), StyleSet_Ok);
    EXPECT_EQ(set("ThreeDView/ThetaAngle", -1000.0), StyleSet_Ok);
    EXPECT_EQ(set("ThreeDView/AlphaAngle", 3.0), StyleSet_Ok);
    EXPECT_EQ(set("ThreeDView/ViewerPosition/X", 4.0), StyleSet_Ok);
    EXPECT_EQ(set("ThreeDView/ViewerPosition/Y", 5.0), StyleSet_Ok);
    EXPECT_EQ(set("ThreeDView/ViewerPosition/Z", 6.0), StyleSet_Ok);
    EXPECT_EQ(set("ThreeDView/ViewWidth", 7.0), StyleSet_Ok);
    EXPECT_EQ(set("ThreeDView/FieldOfView", 8.0), StyleSet_Ok);
    EXPECT_EQ(set("ThreeDView/RotationOrigin/X", 9.0), StyleSet_Ok);
    EXPECT_EQ(set("ThreeDView/RotationOrigin/Y", 10.0), StyleSet_Ok);
    EXPECT_EQ(set("ThreeDView/RotationOrigin/Z", 11.0), StyleSet_Ok);
    EXPECT_EQ(frame.view, (View3D{1000.0, -1000.0, 3.0, {4, 5, 6}, 7.0, false, 8.0, {9, 10, 11}}));
}

TEST_F(StyleBindingsTest, perspectiveSwitchesNothingElse) {
    frame.view.width = 12.5;
    View3D expected = frame.view;
    EXPECT_EQ(set("ThreeDView/DrawInPerspective", 0L), StyleSet_Ok);
    expected.perspective = false;
    EXPECT_EQ(frame.view, expected);
    EXPECT_EQ(set("ThreeDView/DrawInPerspective", 1L), StyleSet_Ok);
    expected.perspective = true;
    EXPECT_EQ(frame.view, expected);
}

TEST_F(StyleBindingsTest, theWidthCanBeSetWithoutPerspectiveOnly) {
    EXPECT_EQ(set("ThreeDView/ViewWidth", 7.0), StyleSet_NotAllowed);
    EXPECT_EQ(frame.view.width, 1.0);
    frame.view.perspective = false;
    EXPECT_EQ(set("ThreeDView/ViewWidth", 0.0), StyleSet_BadValue);
    EXPECT_EQ(set("ThreeDView/ViewWidth", -1.0), StyleSet_BadValue);
    EXPECT_EQ(set("ThreeDView/ViewWidth", 1e-300), StyleSet_Ok);
}

TEST_F(StyleBindingsTest, allOfTheViewAndNothingElseHasTheEffectView) {
    frame.attachData(test::makeVolumeData());
    for (const StyleLeaf& leaf : frame.styles().leaves()) {
        const bool isView = leaf.path.front() == "ThreeDView";
        EXPECT_EQ(leaf.effect, isView ? StyleEffect::View : StyleEffect::Picture)
            << toString(leaf.path);
    }
}

TEST_F(StyleBindingsTest, everyNumberRefusesWhatIsNotFinite) {
    frame.attachData(test::makeVolumeData());
    frame.view.perspective = false;
    const FrameStyle style = frame.style;
    const View3D view = frame.view;
    int numbers = 0;
    for (const StyleLeaf& leaf : frame.styles().leaves()) {
        if (std::holds_alternative<double*>(leaf.target)) {
            ++numbers;
            for (const double value :
                 {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                  -std::numeric_limits<double>::infinity()}) {
                EXPECT_EQ(StyleTree::set(leaf, value), StyleSet_BadValue) << toString(leaf.path);
            }
        }
    }
    EXPECT_GT(numbers, 50);
    EXPECT_EQ(frame.style, style);
    EXPECT_EQ(frame.view, view);
}

struct Range {
    const char* path;
    double minimum;
    double maximum;
};

class StyleBindingsRangeTest : public StyleBindingsTest,
                               public testing::WithParamInterface<Range> {};

TEST_P(StyleBindingsRangeTest, acceptsItsEndsAndNothingBeyond) {
    frame.attachData(test::makeVolumeData());
    const Range& range = GetParam();
    const StyleLeaf* leaf = frame.styles().find(stylePathFromString(range.path));
    ASSERT_NE(leaf, nullptr);
    const bool isInteger = std::holds_alternative<int*>(leaf->target);
    const auto input = [isInteger](double value) {
        return isInteger ? StyleInput(static_cast<long>(value)) : StyleInput(value);
    };
    const double step = isInteger ? 1.0 : 1e-6;
    EXPECT_NE(StyleTree::set(*leaf, input(range.minimum)), StyleSet_BadValue);
    EXPECT_NE(StyleTree::set(*leaf, input(range.maximum)), StyleSet_BadValue);
    EXPECT_EQ(StyleTree::set(*leaf, input(range.minimum - step)), StyleSet_BadValue);
    if (range.maximum < 1e300) {
        EXPECT_EQ(StyleTree::set(*leaf, input(range.maximum + step)), StyleSet_BadValue);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Paths, StyleBindingsRangeTest,
    testing::Values(Range{"ThreeDView/FieldOfView", 0.1, 179}, //
                    Range{"GlobalThreeD/LightSource/Intensity", 0, 100},
                    Range{"GlobalThreeD/LightSource/BackgroundLight", 0, 100},
                    Range{"StreamAttributes/StreamTiming/DeltaTime", 1e-300, 1e300},
                    Range{"Surface/1/Opacity", 0, 1}, Range{"Surface/1/Color/Red", 0, 1},
                    Range{"Slice/6/Axis", 1, 3}, Range{"Slice/1/Opacity", 0, 1},
                    Range{"IsoSurface/6/Opacity", 0, 1}, Range{"Streamtraces/SeedKind", 1, 3},
                    Range{"Streamtraces/SeedCount", 1, 10000},
                    Range{"Streamtraces/Direction", 1, 3}, Range{"Streamtraces/Radius", 0, 1e300},
                    Range{"Annotations/Background/Blue", 0, 1}));

TEST_F(StyleBindingsTest, addOnsReachWhatTheirContractNames) {
    EXPECT_EQ(set("StreamAttributes/StreamTiming/TimeAnchor", -2.5), StyleSet_Ok);
    EXPECT_EQ(set("StreamAttributes/StreamTiming/ShowMarkers", 1L), StyleSet_Ok);
    EXPECT_EQ(set("StreamAttributes/StreamTiming/ShowDashes", 1L), StyleSet_Ok);
    EXPECT_EQ(set("GlobalThreeD/LightSource/Intensity", 0.0), StyleSet_Ok);
    EXPECT_EQ(set("GlobalThreeD/LightSource/BackgroundLight", 1.0), StyleSet_Ok);
    EXPECT_EQ(set("ThreeDAxis/FrameAxis/Show", 0L), StyleSet_Ok);
    EXPECT_EQ(frame.style.streamTiming, (StreamTimingStyle{-2.5, 1.0, true, true}));
    EXPECT_EQ(frame.style.light, (LightStyle{0.0, 1.0}));
    EXPECT_FALSE(frame.style.annotations.showAxis);
}

TEST_F(StyleBindingsTest, numberedPlotsCountFromOne) {
    EXPECT_EQ(set("Slice/6/Position", 0.25), StyleSet_Ok);
    EXPECT_EQ(frame.style.slices[5].position, 0.25);
    EXPECT_EQ(set("IsoSurface/1/Value", 0.75), StyleSet_Ok);
    EXPECT_EQ(frame.style.isoSurfaces[0].value, 0.75);
    EXPECT_EQ(set("Slice/0/Position", 0.5), StyleSet_BadPath);
    EXPECT_EQ(set("Slice/7/Position", 0.5), StyleSet_BadPath);
}

TEST_F(StyleBindingsTest, eachBlockHasASurface) {
    EXPECT_EQ(set("Surface/1/Show", 1L), StyleSet_BadPath);
    auto data = std::make_shared<DataSet>();
    data->blocks = {{"a", 2}, {"b", 2}};
    frame.attachData(data);
    EXPECT_EQ(set("Surface/2/ShowMesh", 1L), StyleSet_Ok);
    EXPECT_TRUE(frame.style.surfaces[1].showMesh);
    EXPECT_EQ(set("Surface/3/Show", 1L), StyleSet_BadPath);
    frame.attachData(test::makeVolumeData());
    EXPECT_EQ(frame.style.surfaces.size(), 1U);
    EXPECT_EQ(set("Surface/1/Show", 1L), StyleSet_Ok);
    EXPECT_EQ(set("Surface/2/Show", 1L), StyleSet_BadPath);
    frame.attachData(nullptr);
    EXPECT_EQ(set("Surface/1/Show", 1L), StyleSet_BadPath);
}

TEST_F(StyleBindingsTest, colourMapsAreThoseThatAreKnown) {
    EXPECT_EQ(set("Contour/ColorMap", std::string("coolwarm")), StyleSet_Ok);
    EXPECT_EQ(frame.style.contour.colorMap, "CoolWarm");
    EXPECT_EQ(set("Contour/ColorMap", std::string("Jet")), StyleSet_BadValue);
    EXPECT_EQ(frame.style.contour.colorMap, "CoolWarm");
}

TEST_F(StyleBindingsTest, variablesAreThoseOfTheData) {
    frame.attachData(test::makeVolumeData());
    EXPECT_EQ(set("Contour/Variable", std::string("U:Z")), StyleSet_Ok);
    EXPECT_EQ(set("Contour/Variable", std::string("Preasure")), StyleSet_BadValue);
    EXPECT_EQ(set("Contour/Variable", std::string()), StyleSet_Ok);
    EXPECT_EQ(set("IsoSurface/2/Variable", std::string("p")), StyleSet_Ok);
    EXPECT_EQ(set("IsoSurface/2/Variable", std::string("q")), StyleSet_BadValue);
    EXPECT_EQ(set("Streamtraces/Variable", std::string("U")), StyleSet_Ok);
    EXPECT_EQ(set("Streamtraces/Variable", std::string("p")), StyleSet_BadValue);
}

TEST_F(StyleBindingsTest, seedsAreAListOfPoints) {
    const std::string path = "Streamtraces/SeedPoints";
    EXPECT_EQ(set(path, std::string("1 0 2.5;-1e2\t.5 3 ")), StyleSet_Ok);
    EXPECT_EQ(pointsFromText(frame.style.streamtraces.seedPoints),
              (std::vector<Vec3>{{1, 0, 2.5}, {-100, 0.5, 3}}));
    for (const char* text : {"1 2", "1 2 3 4", "1 2 3;", ";", "1,2,3", "1 2 x", "1 2 3x", "nan 0 0",
                             "1 inf 0", "1 2 1e999", "1 2 3; 4 5"}) {
        EXPECT_EQ(set(path, std::string(text)), StyleSet_BadValue) << text;
    }
    EXPECT_EQ(set(path, std::string()), StyleSet_Ok);
    EXPECT_EQ(pointsFromText(frame.style.streamtraces.seedPoints), std::vector<Vec3>{});
}

TEST_F(StyleBindingsTest, listsOfPointsHaveALimit) {
    std::string text = "0 0 0";
    for (std::size_t i = 1; i < mostListedPoints; ++i) {
        text += ";0 0 0";
    }
    EXPECT_EQ(set("Streamtraces/SeedPoints", text), StyleSet_Ok);
    EXPECT_EQ(pointsFromText(text)->size(), mostListedPoints);
    EXPECT_EQ(set("Streamtraces/SeedPoints", text + ";0 0 0"), StyleSet_BadValue);
}

TEST_F(StyleBindingsTest, streamtracesCanBeShown) {
    frame.attachData(test::makeVolumeData());
    EXPECT_EQ(set("Streamtraces/Show", 1L), StyleSet_Ok);
    EXPECT_TRUE(frame.style.streamtraces.show);
}

TEST_F(StyleBindingsTest, anyVariableCanBeNamedBeforeThereAreData) {
    EXPECT_EQ(set("Contour/Variable", std::string("later")), StyleSet_Ok);
}

} // namespace
} // namespace corvane::host
