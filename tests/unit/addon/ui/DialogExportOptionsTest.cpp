// The export options: what they show, and how they depend on each other.
#include "tests/unit/addon/ui/DialogExportOptionsTest.h"

#include "addon/ui/ImageDimensions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(DialogExportOptionsTest, offersItsChoices) {
    launch();
    EXPECT_THAT(format().items(), ElementsAre("AVI", "Flash (FLV)", "Flash (SWF)", "MPEG-4",
                                              "Raster Metafile", "WMV"));
    EXPECT_THAT(region().items(), ElementsAre("Active Frame", "All Frames", "Work Area"));
    EXPECT_THAT(aviCompression().items(), ElementsAre("Line Preserving", "Lossless Uncompressed"));
    EXPECT_THAT(imageType().items(), ElementsAre("True Color", "JPEG", "256 Colors"));
    EXPECT_THAT(widthChoice().items(),
                ElementsAre("&Use Width of Image on Screen", "&Enter Width:"));
    EXPECT_THAT(optimization().items(),
                ElementsAre("Optimize for &Speed", "Optimize for &File Size"));
    EXPECT_EQ(width().text(), "300");
    EXPECT_EQ(widthChoice().chosen(), 1);
    EXPECT_EQ(antialiasing().label(), "&Antialiasing");
    for (const char* const label :
         {"Format:", "Region:", "Animation Speed (frames/sec):", "Supersample Factor (2-16):",
          "AVI Compression:", "Image Type:"}) {
        EXPECT_NO_THROW(window().label(label)) << label;
    }
    window().cancel();
}

TEST_F(DialogExportOptionsTest, holdsTheLockWhileItIsUp) {
    launch();
    EXPECT_EQ(lockDepth(), 1);
    EXPECT_TRUE(isUp());
    window().cancel();
    EXPECT_EQ(lockDepth(), 0);
    EXPECT_FALSE(isUp());
    EXPECT_EQ(confirmations, 0);
}

TEST_F(DialogExportOptionsTest, isCancelledByItsWindowToo) {
    launch();
    window().closeByWindow();
    EXPECT_EQ(lockDepth(), 0);
    launch();
    window().pressEscape();
    EXPECT_EQ(lockDepth(), 0);
    EXPECT_FALSE(isUp());
    EXPECT_EQ(host.count("CorUtilExportSetup"), 0u);
    EXPECT_EQ(confirmations, 0);
}

TEST_F(DialogExportOptionsTest, holdsNoLockWhenTheHostCannotMakeIt) {
    host.failNext("CorGUIDialogCreateModal");
    launch();
    EXPECT_FALSE(isUp());
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogExportOptionsTest, holdsNoLockWhenItsLaunchThrows) {
    host.throwAt("CorGUIOptionMenuAppendItem");
    EXPECT_THROW(launch(), std::runtime_error);
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogExportOptionsTest, showsTheSetUpOfTheHost) {
    auto& setup = host.session().exportSetup();
    setup.format = ExportFormat_FlashSWF;
    setup.animationSpeed = 12.5;
    setup.useSuperSampleAntiAliasing = true;
    setup.superSampleFactor = 8;
    setup.aviCompression = AVICompression_LosslessUncompressed;
    setup.flashImageType = FlashImageType_256Color;
    setup.flashCompressionType = FlashCompressionType_SmallestSize;
    launch();
    EXPECT_EQ(format().chosenText(), "Flash (SWF)");
    EXPECT_EQ(speed().text(), "12.5");
    EXPECT_TRUE(antialiasing().isOn());
    EXPECT_EQ(factor().text(), "8");
    EXPECT_EQ(aviCompression().chosenText(), "Lossless Uncompressed");
    EXPECT_EQ(imageType().chosenText(), "256 Colors");
    EXPECT_EQ(optimization().chosen(), 2);
    window().cancel();
    setup.flashCompressionType = FlashCompressionType_BestSpeed;
    setup.useSuperSampleAntiAliasing = false;
    launch();
    EXPECT_EQ(optimization().chosen(), 1);
    EXPECT_FALSE(antialiasing().isOn());
    window().cancel();
}

TEST_F(DialogExportOptionsTest, readsTheSetUpInThisOrder) {
    launch();
    std::vector<std::string> keywords;
    for (const std::string& call : host.callsOf("CorUtilStyleGet(\"ExportSetup\",")) {
        const auto begin = call.find(",\"") + 2;
        keywords.push_back(call.substr(begin, call.find('"', begin) - begin));
    }
    EXPECT_THAT(keywords, ElementsAre("ExportFormat", "AnimationSpeed",
                                      "UseSuperSampleAntiAliasing", "SuperSampleFactor",
                                      "AVICompression", "FlashImageType", "FlashCompressionType"));
    window().cancel();
}

TEST_F(DialogExportOptionsTest, keepsWhatTheMenusDoNotOffer) {
    launch();
    aviCompression().choose("Lossless Uncompressed");
    format().choose("WMV");
    window().cancel();
    host.session().exportSetup().aviCompression = AVICompression_ColorPreserving;
    host.session().exportSetup().format = 1;
    launch();
    EXPECT_EQ(aviCompression().chosenText(), "Lossless Uncompressed");
    EXPECT_EQ(format().chosenText(), "WMV");
    window().cancel();
}

TEST_F(DialogExportOptionsTest, keepsWhatCannotBeRead) {
    auto& setup = host.session().exportSetup();
    setup.animationSpeed = 12.5;
    setup.superSampleFactor = 8;
    setup.useSuperSampleAntiAliasing = true;
    host.failNext("CorUtilStyleGet", 7);
    launch();
    EXPECT_EQ(format().chosen(), 1);
    EXPECT_EQ(speed().text(), "30");
    EXPECT_EQ(factor().text(), "3");
    EXPECT_FALSE(antialiasing().isOn());
    EXPECT_EQ(optimization().chosen(), 1);
    window().cancel();
}

TEST_F(DialogExportOptionsTest, bringsTheNumbersOfTheHostIntoRange) {
    auto& setup = host.session().exportSetup();
    setup.animationSpeed = 500.0;
    setup.superSampleFactor = 64;
    launch();
    EXPECT_EQ(speed().text(), "200");
    EXPECT_EQ(factor().text(), "16");
    window().cancel();
    setup.animationSpeed = 0.0;
    setup.superSampleFactor = -5;
    launch();
    EXPECT_EQ(speed().text(), "0.001");
    EXPECT_EQ(factor().text(), "2");
    window().cancel();
}

TEST_F(DialogExportOptionsTest, keepsRegionAndWidthAndForgetsTheRest) {
    launch();
    region().choose("Work Area");
    enterWidth("640");
    format().choose("WMV");
    antialiasing().click();
    window().cancel();
    launch();
    EXPECT_EQ(region().chosenText(), "Work Area");
    EXPECT_EQ(widthChoice().chosen(), 2);
    EXPECT_EQ(width().text(), "640");
    EXPECT_EQ(dimensions(), "Dimensions: 640 x 360");
    EXPECT_EQ(format().chosenText(), "AVI");
    EXPECT_FALSE(antialiasing().isOn());
    window().cancel();
}

TEST_F(DialogExportOptionsTest, offersWhatSuitsTheFormat) {
    launch();
    for (const char* const name :
         {"AVI", "Flash (FLV)", "Flash (SWF)", "MPEG-4", "Raster Metafile", "WMV"}) {
        format().choose(name);
        const bool isAvi = name == std::string("AVI");
        const bool isSwf = name == std::string("Flash (SWF)");
        const bool hasSpeed = name != std::string("Raster Metafile");
        EXPECT_EQ(aviCompression().isSensitive(), isAvi) << name;
        EXPECT_EQ(window().label("AVI Compression:").isSensitive(), isAvi) << name;
        EXPECT_EQ(imageType().isSensitive(), isSwf) << name;
        EXPECT_EQ(window().label("Image Type:").isSensitive(), isSwf) << name;
        EXPECT_EQ(optimization().isSensitive(), isSwf) << name;
        EXPECT_EQ(speed().isSensitive(), hasSpeed) << name;
        EXPECT_EQ(window().label("Animation Speed (frames/sec):").isSensitive(), hasSpeed) << name;
    }
    window().cancel();
}

TEST_F(DialogExportOptionsTest, offersTheFactorWithAntialiasingAlone) {
    launch();
    EXPECT_FALSE(factor().isSensitive());
    antialiasing().click();
    EXPECT_TRUE(factor().isSensitive());
    EXPECT_TRUE(window().label("Supersample Factor (2-16):").isSensitive());
    antialiasing().click();
    EXPECT_FALSE(factor().isSensitive());
    EXPECT_FALSE(window().label("Supersample Factor (2-16):").isSensitive());
    window().cancel();
}

TEST_F(DialogExportOptionsTest, offersTheWidthWhenItIsToBeEntered) {
    launch();
    EXPECT_FALSE(width().isSensitive());
    widthChoice().choose("Enter Width:");
    EXPECT_TRUE(width().isSensitive());
    widthChoice().choose("Use Width of Image on Screen");
    EXPECT_FALSE(width().isSensitive());
    window().cancel();
}

TEST_F(DialogExportOptionsTest, measuresTheActiveFrame) {
    measure(800, 600);
    launch();
    EXPECT_EQ(dimensions(), "Dimensions: 800 x 600");
    enterWidth("300");
    EXPECT_EQ(dimensions(), "Dimensions: 300 x 225");
    enterWidth("4");
    EXPECT_EQ(dimensions(), "Dimensions: 4 x 3");
    widthChoice().choose("Use Width of Image on Screen");
    EXPECT_EQ(dimensions(), "Dimensions: 800 x 600");
    window().cancel();
}

TEST_F(DialogExportOptionsTest, roundsDown) {
    host.frame().placement.width = 4.0;
    host.frame().placement.height = 3.0;
    host.session().silentPage().workArea.pixelsPerInch = 100.4;
    launch();
    EXPECT_EQ(dimensions(), "Dimensions: 401 x 301");
    enterWidth("333");
    EXPECT_EQ(dimensions(), "Dimensions: 333 x 249");
    window().cancel();
}

TEST_F(DialogExportOptionsTest, measuresTheBoxOfAllFrames) {
    host.frame().placement = {.x = 1.0, .y = 2.0, .width = 3.0, .height = 2.0};
    host.addFrame({.x = 0.5, .y = 3.0, .width = 1.0, .height = 4.0});
    host.addFrame({.x = 2.0, .y = 2.5, .width = 4.0, .height = 1.0});
    host.session().silentPage().workArea.pixelsPerInch = 100.0;
    const long active = host.frame().id();
    launch();
    region().choose("All Frames");
    EXPECT_EQ(dimensions(), "Dimensions: 550 x 500");
    EXPECT_EQ(host.frame().id(), active);
    EXPECT_EQ(host.count("CorUtilFrameLightweightPopEnd"), 1u);
    window().cancel();
}

TEST_F(DialogExportOptionsTest, measuresTheWorkArea) {
    launch();
    region().choose("Work Area");
    EXPECT_EQ(dimensions(), "Dimensions: 1600 x 900");
    enterWidth("32766");
    EXPECT_EQ(dimensions(), "Dimensions: 32766 x 18430");
    window().cancel();
}

TEST_F(DialogExportOptionsTest, doesNotDivideByAWidthOfZero) {
    host.session().silentPage().workArea.width = 0;
    launch();
    region().choose("Work Area");
    enterWidth("640");
    EXPECT_EQ(dimensions(), "Dimensions: 640 x 900");
    window().cancel();
}

TEST_F(DialogExportOptionsTest, measuresNothingWithoutFrames) {
    host.session().silentPage().deleteFrame(host.frame().id());
    int width = -1;
    int height = -1;
    measureRegion(ExportRegion_AllFrames, width, height);
    EXPECT_EQ(width, 0);
    EXPECT_EQ(height, 0);
    measureRegion(ExportRegion_CurrentFrame, width, height);
    EXPECT_EQ(width, 0);
    EXPECT_EQ(height, 0);
}

TEST(ScaleToWidth, doesNotOverflow) {
    int width = 2;
    int height = 2147483647;
    scaleToWidth(32766, width, height);
    EXPECT_EQ(width, 32766);
    EXPECT_EQ(height, 2147483647);
    width = 100000;
    height = 100000;
    scaleToWidth(32766, width, height);
    EXPECT_EQ(height, 32766);
}

TEST_F(DialogExportOptionsTest, refusesNumbersOutOfRange) {
    launch();
    enterWidth("3");
    enterWidth("32767");
    EXPECT_EQ(width().text(), "300");
    speed().type("0.0001");
    speed().commit();
    speed().type("201");
    speed().commit();
    EXPECT_EQ(speed().text(), "30");
    antialiasing().click();
    factor().type("1");
    factor().commit();
    factor().type("17");
    factor().commit();
    EXPECT_EQ(factor().text(), "3");
    const std::string refusal = "Invalid input. Input must be a number between ";
    EXPECT_THAT(errors(), ElementsAre(refusal + "4 and 32766.", refusal + "4 and 32766.",
                                      refusal + "0.001 and 200.", refusal + "0.001 and 200.",
                                      refusal + "2 and 16.", refusal + "2 and 16."));
    window().cancel();
}

TEST_F(DialogExportOptionsTest, takesTheBoundsThemselves) {
    launch();
    for (const char* const bound : {"4", "32766"}) {
        enterWidth(bound);
        EXPECT_EQ(width().text(), bound);
    }
    for (const char* const bound : {"0.001", "200"}) {
        speed().type(bound);
        speed().commit();
        EXPECT_EQ(speed().text(), bound);
    }
    antialiasing().click();
    for (const char* const bound : {"2", "16"}) {
        factor().type(bound);
        factor().commit();
        EXPECT_EQ(factor().text(), bound);
    }
    EXPECT_THAT(errors(), IsEmpty());
    window().cancel();
}

TEST_F(DialogExportOptionsTest, helps) {
    launch();
    host.clearCalls();
    window().help();
    EXPECT_THAT(
        host.calls(),
        ElementsAre(lockStart, "CorUtilHelp(\"export_options.html\", FALSE, 0)", lockFinish));
    window().cancel();
}

} // namespace
