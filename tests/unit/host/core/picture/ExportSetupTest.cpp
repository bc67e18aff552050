// Tests of the export settings, their ranges and their words in macros.
#include "host/core/picture/ExportSetup.h"

#include <gtest/gtest.h>

namespace corvane::host {
namespace {

class ExportSetupTest : public testing::Test {
protected:
    ExportSetupTest() {
        bindExportSetup(tree, setup, [this] { return allowed; });
    }
    StyleSetResult_e set(const std::string& name, const StyleInput& value) {
        return tree.set({"ExportSetup", name}, value);
    }

    bool allowed = true;
    ExportSetup setup;
    StyleTree tree;
};

TEST_F(ExportSetupTest, startsWithSensibleValues) {
    EXPECT_EQ(setup.format, 14);
    EXPECT_EQ(setup.aviCompression, 1);
    EXPECT_EQ(setup.flashImageType, 0);
    EXPECT_EQ(setup.flashCompressionType, 0);
    EXPECT_EQ(setup.region, 0);
    EXPECT_EQ(setup.imageWidth, 512);
    EXPECT_EQ(setup.animationSpeed, 30.0);
    EXPECT_FALSE(setup.useSuperSampleAntiAliasing);
    EXPECT_EQ(setup.superSampleFactor, 3);
    EXPECT_TRUE(setup.fileName.empty());
}

TEST_F(ExportSetupTest, eachNameReachesItsValue) {
    EXPECT_EQ(set("ExportFormat", 21L), StyleSet_Ok);
    EXPECT_EQ(set("AVICompression", 2L), StyleSet_Ok);
    EXPECT_EQ(set("FlashImageType", 2L), StyleSet_Ok);
    EXPECT_EQ(set("FlashCompressionType", 1L), StyleSet_Ok);
    EXPECT_EQ(set("ExportRegion", 2L), StyleSet_Ok);
    EXPECT_EQ(set("ImageWidth", 640L), StyleSet_Ok);
    EXPECT_EQ(set("AnimationSpeed", 12.5), StyleSet_Ok);
    EXPECT_EQ(set("UseSuperSampleAntiAliasing", 1L), StyleSet_Ok);
    EXPECT_EQ(set("SuperSampleFactor", 4L), StyleSet_Ok);
    EXPECT_EQ(set("ExportFName", std::string("a b.mp4")), StyleSet_Ok);
    EXPECT_EQ(setup.format, 21);
    EXPECT_EQ(setup.aviCompression, 2);
    EXPECT_EQ(setup.flashImageType, 2);
    EXPECT_EQ(setup.flashCompressionType, 1);
    EXPECT_EQ(setup.region, 2);
    EXPECT_EQ(setup.imageWidth, 640);
    EXPECT_EQ(setup.animationSpeed, 12.5);
    EXPECT_TRUE(setup.useSuperSampleAntiAliasing);
    EXPECT_EQ(setup.superSampleFactor, 4);
    EXPECT_EQ(setup.fileName, "a b.mp4");
}

TEST_F(ExportSetupTest, refusesWhatIsOutOfRange) {
    EXPECT_EQ(set("ExportFormat", -1L), StyleSet_BadValue);
    EXPECT_EQ(set("AVICompression", 3L), StyleSet_BadValue);
    EXPECT_EQ(set("FlashImageType", 3L), StyleSet_BadValue);
    EXPECT_EQ(set("FlashCompressionType", 255L), StyleSet_BadValue);
    EXPECT_EQ(set("ExportRegion", 3L), StyleSet_BadValue);
    for (const long width : {3L, 32767L}) {
        EXPECT_EQ(set("ImageWidth", width), StyleSet_BadValue);
    }
    for (const double speed : {0.00099, 200.1, -1.0}) {
        EXPECT_EQ(set("AnimationSpeed", speed), StyleSet_BadValue);
    }
    for (const long factor : {1L, 17L}) {
        EXPECT_EQ(set("SuperSampleFactor", factor), StyleSet_BadValue);
    }
}

TEST_F(ExportSetupTest, acceptsTheEndsOfItsRanges) {
    for (const long width : {4L, 32766L}) {
        EXPECT_EQ(set("ImageWidth", width), StyleSet_Ok);
    }
    for (const double speed : {0.001, 200.0}) {
        EXPECT_EQ(set("AnimationSpeed", speed), StyleSet_Ok);
    }
    for (const long factor : {2L, 16L}) {
        EXPECT_EQ(set("SuperSampleFactor", factor), StyleSet_Ok);
    }
}

TEST_F(ExportSetupTest, anyFormatCanBeSetAndSomeAreMovies) {
    for (const int format : {0, 14, 17, 20, 21, 22}) {
        setup.format = format;
        EXPECT_TRUE(setup.isAnimationFormat()) << format;
    }
    for (const int format : {1, 2, 15, 23}) {
        EXPECT_EQ(set("ExportFormat", static_cast<long>(format)), StyleSet_Ok);
        EXPECT_FALSE(setup.isAnimationFormat()) << format;
    }
}

TEST_F(ExportSetupTest, canBeClosedAgainstWrites) {
    allowed = false;
    for (const StyleLeaf& leaf : tree.leaves()) {
        EXPECT_EQ(StyleTree::set(leaf, 5L), StyleSet_NotAllowed) << toString(leaf.path);
        EXPECT_EQ(leaf.effect, StyleEffect::None);
    }
    EXPECT_EQ(tree.leaves().size(), 10U);
}

struct MacroWord {
    const char* name;
    const char* text;
    StyleInput value;
};

class ExportSettingText : public testing::TestWithParam<MacroWord> {};

TEST_P(ExportSettingText, isTurnedIntoTheValueItStandsFor) {
    const auto value = exportSettingFromText(GetParam().name, GetParam().text);
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(*value, GetParam().value);
    ExportSetup setup;
    StyleTree tree;
    bindExportSetup(tree, setup, {});
    const StyleSetResult_e result = tree.set({"ExportSetup", GetParam().name}, *value);
    EXPECT_TRUE(result == StyleSet_Ok || result == StyleSet_Unchanged);
}

INSTANTIATE_TEST_SUITE_P(
    Words, ExportSettingText,
    testing::Values(
        MacroWord{"ExportFormat", "AVI", 14L}, MacroWord{"ExportFormat", "FLV", 20L},
        MacroWord{"ExportFormat", "FLASH", 17L}, MacroWord{"ExportFormat", "MPEG4", 21L},
        MacroWord{"ExportFormat", "RASTERMETAFILE", 0L}, MacroWord{"exportformat", "wmv", 22L},
        MacroWord{"ExportFormat", "7", 7L}, MacroWord{"ExportRegion", "CURRENTFRAME", 0L},
        MacroWord{"ExportRegion", "ALLFRAMES", 1L}, MacroWord{"ExportRegion", "WORKAREA", 2L},
        MacroWord{"FlashImageType", "LOSSLESS", 0L}, MacroWord{"FlashImageType", "JPEG", 1L},
        MacroWord{"FlashImageType", "256COLOR", 2L},
        MacroWord{"FlashCompressionType", "BESTSPEED", 0L},
        MacroWord{"FlashCompressionType", "SMALLESTSIZE", 1L},
        MacroWord{"AVICompression", "COLORPRESERVING", 0L},
        MacroWord{"AVICompression", "LINEPRESERVING", 1L},
        MacroWord{"AVICompression", "LOSSLESSUNCOMPRESSED", 2L},
        MacroWord{"UseSuperSampleAntiAliasing", "true", 1L},
        MacroWord{"UseSuperSampleAntiAliasing", "FALSE", 0L},
        MacroWord{"SuperSampleFactor", "16", 16L}, MacroWord{"ImageWidth", "800", 800L},
        MacroWord{"AnimationSpeed", "30", 30.0}, MacroWord{"AnimationSpeed", "0.001", 0.001},
        MacroWord{"AnimationSpeed", "1e2", 100.0},
        MacroWord{"ExportFName", "AVI", std::string("AVI")},
        MacroWord{"ExportFName", "", std::string()}));

TEST(ExportSettingTextErrors, answersNothingForWhatDoesNotFit) {
    for (const auto& [name, text] :
         {std::pair{"ExportFormat", "MPEG"}, std::pair{"ExportFormat", ""},
          std::pair{"ImageWidth", "12px"}, std::pair{"ImageWidth", "1.5"},
          std::pair{"ImageWidth", "99999999999999999999"}, std::pair{"AnimationSpeed", "fast"},
          std::pair{"AnimationSpeed", "1,5"}, std::pair{"UseSuperSampleAntiAliasing", "1"},
          std::pair{"UseSuperSampleAntiAliasing", "yes"}, std::pair{"Nothing", "1"}}) {
        EXPECT_EQ(exportSettingFromText(name, text), std::nullopt) << name << " = " << text;
    }
}

} // namespace
} // namespace corvane::host
