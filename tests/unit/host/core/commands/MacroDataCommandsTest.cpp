// Tests of the commands about data, styles and export settings.
#include "tests/unit/host/core/commands/MacroTest.h"

#include <gmock/gmock.h>

#include <clocale>
#include <string>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

using MacroDataCommandsTest = MacroTest;

TEST_F(MacroDataCommandsTest, readsDataRelativeToTheMacro) {
    play("$!READDATA \"wake.pvd\" \"/other/hull.vtp\" \"sub/a b.vtu\"");
    EXPECT_THAT(
        host.reader().reads(),
        ElementsAre(ElementsAre("/scenes/wake.pvd", "/other/hull.vtp", "/scenes/sub/a b.vtu")));
    EXPECT_NE(frame().data(), nullptr);
}

TEST_F(MacroDataCommandsTest, dataThatCannotBeReadStopTheMacro) {
    host.reader().failNext("Cannot read wake.pvd: it is empty.");
    EXPECT_EQ(causeOf("$!READDATA wake.pvd\n"), "Cannot read wake.pvd: it is empty.");
    EXPECT_THAT(causeOf("$!READDATA\n"), HasSubstr("one or more file names"));
}

TEST_F(MacroDataCommandsTest, setsStylesByTheirType) {
    play("$!READDATA x\n"
         "$!STYLE Slice/2/Show = TRUE\n"
         "$!STYLE Slice/2/Axis = 1\n"
         "$!STYLE slice/2/position=-1.5e-3\n"
         "$!STYLE Annotations/Title = \"a = b\"\n"
         "$!STYLE Contour/ColorMap = gray\n"
         "$!STYLE Interface/UseDisplayLists = false\n");
    EXPECT_TRUE(frame().style.slices[1].show);
    EXPECT_EQ(frame().style.slices[1].axis, 1);
    EXPECT_EQ(frame().style.slices[1].position, -0.0015);
    EXPECT_EQ(frame().style.annotations.title, "a = b");
    EXPECT_EQ(frame().style.contour.colorMap, "Gray");
    StyleInput value;
    EXPECT_EQ(session.getStyle({"Interface", "UseDisplayLists"}, value), StyleGet_Ok);
    EXPECT_EQ(value, StyleInput(0L));
}

TEST_F(MacroDataCommandsTest, readsNumbersTheSameWayInEveryCountry) {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    std::setlocale(LC_NUMERIC, "de_DE.UTF-8"); // where it is installed
    play("$!READDATA x\n$!STYLE Slice/1/Position = 0.25\n$!EXPORTSETUP AnimationSpeed = 12.5\n");
    std::setlocale(LC_NUMERIC, before.c_str());
    EXPECT_EQ(frame().style.slices[0].position, 0.25);
    EXPECT_EQ(session.exportSetup().animationSpeed, 12.5);
}

TEST_F(MacroDataCommandsTest, stylesThatCannotBeSetNameTheirPath) {
    play("$!READDATA x\n");
    EXPECT_EQ(causeOf("$!STYLE Slice/9/Show = true"), "There is no value Slice/9/Show.");
    EXPECT_EQ(causeOf("$!STYLE Slice/1/Show = yes"), "\"yes\" is neither true nor false.");
    EXPECT_EQ(causeOf("$!STYLE Slice/1/Axis = 4"), "Slice/1/Axis cannot be \"4\".");
    EXPECT_EQ(causeOf("$!STYLE Slice/1/Axis = 1.0"), "\"1.0\" is not a number that fits here.");
    EXPECT_EQ(causeOf("$!STYLE Slice/1/Position = 1,5"), "\"1,5\" is not a number that fits here.");
    EXPECT_EQ(causeOf("$!STYLE Slice/1/Position = nan"), "Slice/1/Position cannot be \"nan\".");
    EXPECT_EQ(causeOf("$!STYLE Contour/Variable = Preasure"),
              "Contour/Variable cannot be \"Preasure\".");
    EXPECT_THAT(causeOf("$!STYLE ThreeDView/ViewWidth = 2"), HasSubstr("ThreeDView/ViewWidth"));
    for (const char* line : {"$!STYLE", "$!STYLE Slice/1/Show true",
                             "$!STYLE Slice/1/Show = ", "$!STYLE Annotations/Title = two words"}) {
        EXPECT_EQ(causeOf(line), "Expected path = value.") << line;
    }
}

TEST_F(MacroDataCommandsTest, stylesThatCannotBeSetNowTellWhatTheyNeed) {
    const auto data = test::makeVolumeData();
    data->variables = {{"p", 1, 0.0, 1.0}};
    host.reader().provide(data);
    play("$!READDATA x\n");
    EXPECT_EQ(causeOf("$!STYLE Streamtraces/Show = true"),
              "Streamtraces/Show cannot be set now. Streamtraces follow a vector variable, and the "
              "data have none.");
    EXPECT_EQ(causeOf("$!STYLE ThreeDView/ViewWidth = 2"),
              "ThreeDView/ViewWidth cannot be set now. Switch perspective off first.");
}

TEST_F(MacroDataCommandsTest, stylesOfAFrameNeedOne) {
    EXPECT_THAT(causeOf("$!STYLE Slice/1/Show = true"), HasSubstr("Slice/1/Show"));
}

TEST_F(MacroDataCommandsTest, setsTheSolutionTime) {
    play("$!READDATA x\n$!SOLUTIONTIME = 0.125\n");
    EXPECT_EQ(frame().solutionTime, 0.125);
    EXPECT_THAT(causeOf("$!SOLUTIONTIME = inf"), HasSubstr("not finite"));
    EXPECT_THAT(causeOf("$!SOLUTIONTIME = soon"), HasSubstr("\"soon\""));
    EXPECT_THAT(causeOf("$!SOLUTIONTIME 0.5"), HasSubstr("Expected = time"));
    EXPECT_EQ(frame().solutionTime, 0.125);
}

TEST_F(MacroDataCommandsTest, setsUpExports) {
    play("$!EXPORTSETUP ExportFormat = MPEG4\n"
         "$!EXPORTSETUP exportregion = WORKAREA\n"
         "$!EXPORTSETUP ImageWidth = 640\n"
         "$!EXPORTSETUP UseSuperSampleAntiAliasing = true\n"
         "$!EXPORTSETUP ExportFName = \"movies/a \\\"b\\\".mp4\"\n");
    EXPECT_EQ(session.exportSetup().format, ExportFormat_MPEG4);
    EXPECT_EQ(session.exportSetup().region, ExportRegion_WorkArea);
    EXPECT_EQ(session.exportSetup().imageWidth, 640);
    EXPECT_TRUE(session.exportSetup().useSuperSampleAntiAliasing);
    EXPECT_EQ(session.exportSetup().fileName, "movies/a \"b\".mp4") << "of the current folder";
    EXPECT_EQ(causeOf("$!EXPORTSETUP ImageHeight = 3"), "There is no export setting ImageHeight.");
    EXPECT_EQ(causeOf("$!EXPORTSETUP ImageWidth = 3"), "ImageWidth cannot be \"3\".");
    EXPECT_EQ(causeOf("$!EXPORTSETUP ExportFormat = MOV"), "ExportFormat cannot be \"MOV\".");
    EXPECT_EQ(causeOf("$!EXPORTSETUP ImageWidth 3"), "Expected name = value.");
}

} // namespace
} // namespace corvane::host
