// Tests of the commands that make a scene: data, styles, views, frames, pictures.
#include "tests/support/TempFolder.h"
#include "tests/unit/host/core/commands/MacroTest.h"

#include <gmock/gmock.h>

#include <clocale>
#include <filesystem>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

using MacroSceneCommandsTest = MacroTest;

TEST_F(MacroSceneCommandsTest, sizesTheWorkArea) {
    play("$!READDATA x\n$!WORKAREA Width = 1000 Height = 500\n");
    EXPECT_EQ(session.page().workArea, (WorkArea{1000, 500, 125.0}));
    EXPECT_EQ(frame().placement, (Placement{0, 0, 8, 4}));
    play("$!WORKAREA height = 500 width = 1000 pixelsperinch = 50.5\n");
    EXPECT_EQ(session.page().workArea, (WorkArea{1000, 500, 50.5}));
    EXPECT_TRUE(session.drawing().isMarked());
}

TEST_F(MacroSceneCommandsTest, aSizeThatTheUserGaveShowsAsMuchPaper) {
    session.page().workArea = {320, 200, 40.0};
    program.macros().keepPictureSize();
    play("$!WORKAREA Width = 1000 Height = 500 PixelsPerInch = 50\n");
    EXPECT_EQ(session.page().workArea, (WorkArea{320, 200, 16.0}));
}

TEST_F(MacroSceneCommandsTest, refusesWorkAreasThatCannotBe) {
    const WorkArea before = session.page().workArea;
    for (const char* line : {"$!WORKAREA", "$!WORKAREA Width = 100", "$!WORKAREA Height = 100",
                             "$!WORKAREA 100 x 100"}) {
        EXPECT_THAT(causeOf(line), HasSubstr("Expected Width = pixels, Height = pixels")) << line;
    }
    EXPECT_EQ(causeOf("$!WORKAREA Width = 3 Height = 9"), "Width cannot be \"3\".");
    EXPECT_EQ(causeOf("$!WORKAREA Width = 9 Height = 32767"), "Height cannot be \"32767\".");
    EXPECT_EQ(causeOf("$!WORKAREA Width = 9 Height = 9 PixelsPerInch = 0"),
              "PixelsPerInch cannot be \"0\".");
    EXPECT_EQ(causeOf("$!WORKAREA Depth = 9"), "A work area has no value \"Depth\".");
    session.status().start("Flying", true, true);
    EXPECT_EQ(causeOf("$!WORKAREA Width = 100 Height = 100"), "An animation is running.");
    session.status().finish();
    EXPECT_EQ(session.page().workArea, before);
}

TEST_F(MacroSceneCommandsTest, readsDataRelativeToTheMacro) {
    play("$!READDATA \"wake.pvd\" \"/other/hull.vtp\" \"sub/a b.vtu\"");
    EXPECT_THAT(
        host.reader().reads(),
        ElementsAre(ElementsAre("/scenes/wake.pvd", "/other/hull.vtp", "/scenes/sub/a b.vtu")));
    EXPECT_NE(frame().data(), nullptr);
}

TEST_F(MacroSceneCommandsTest, dataThatCannotBeReadStopTheMacro) {
    host.reader().failNext("Cannot read wake.pvd: it is empty.");
    EXPECT_EQ(causeOf("$!READDATA wake.pvd\n"), "Cannot read wake.pvd: it is empty.");
    EXPECT_THAT(causeOf("$!READDATA\n"), HasSubstr("one or more file names"));
}

TEST_F(MacroSceneCommandsTest, setsStylesByTheirType) {
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

TEST_F(MacroSceneCommandsTest, readsNumbersTheSameWayInEveryCountry) {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    std::setlocale(LC_NUMERIC, "de_DE.UTF-8"); // where it is installed
    play("$!READDATA x\n$!STYLE Slice/1/Position = 0.25\n$!EXPORTSETUP AnimationSpeed = 12.5\n");
    std::setlocale(LC_NUMERIC, before.c_str());
    EXPECT_EQ(frame().style.slices[0].position, 0.25);
    EXPECT_EQ(session.exportSetup().animationSpeed, 12.5);
}

TEST_F(MacroSceneCommandsTest, stylesThatCannotBeSetNameTheirPath) {
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

TEST_F(MacroSceneCommandsTest, stylesThatCannotBeSetNowTellWhatTheyNeed) {
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

TEST_F(MacroSceneCommandsTest, stylesOfAFrameNeedOne) {
    EXPECT_THAT(causeOf("$!STYLE Slice/1/Show = true"), HasSubstr("Slice/1/Show"));
}

TEST_F(MacroSceneCommandsTest, setsThePlotType) {
    play("$!READDATA x\n$!PLOTTYPE = cartesian2d\n");
    EXPECT_EQ(frame().plotType, PlotType_Cartesian2D);
    play("$!PLOTTYPE = CARTESIAN3D\n");
    EXPECT_EQ(frame().plotType, PlotType_Cartesian3D);
    EXPECT_THAT(causeOf("$!PLOTTYPE = POLAR"), HasSubstr("CARTESIAN3D"));
    EXPECT_THAT(causeOf("$!PLOTTYPE CARTESIAN3D"), HasSubstr("Expected"));
    session.page().deleteFrame(frame().id());
    EXPECT_EQ(causeOf("$!PLOTTYPE = CARTESIAN3D"), "There is no frame.");
}

TEST_F(MacroSceneCommandsTest, fitsTheView) {
    play("$!READDATA x\n");
    const View3D fitted = frame().view;
    frame().view.position = {};
    play("$!VIEW fit\n");
    EXPECT_EQ(frame().view, fitted);
    EXPECT_EQ(causeOf("$!VIEW FILL"), "Expected FIT, AXIS = axis, or SET name = value.");
    EXPECT_EQ(causeOf("$!VIEW"), "Expected FIT, AXIS = axis, or SET name = value.");
    frame().attachData(nullptr);
    EXPECT_THAT(causeOf("$!VIEW FIT"), HasSubstr("no 3D data"));
}

TEST_F(MacroSceneCommandsTest, looksFromTheEndsOfTheAxes) {
    play("$!READDATA x\n");
    const std::vector<std::pair<std::string, Vec3>> towards{{"+X", {1, 0, 0}}, {"-X", {-1, 0, 0}},
                                                            {"+y", {0, 1, 0}}, {"-Y", {0, -1, 0}},
                                                            {"+Z", {0, 0, 1}}, {"-Z", {0, 0, -1}}};
    for (const auto& [axis, direction] : towards) {
        play("$!VIEW AXIS = " + axis + "\n");
        const ViewBasis basis = basisOf(frame().view);
        EXPECT_NEAR(length(basis.toViewer - direction), 0.0, 1e-12) << axis;
        if (direction.z == 0.0) {
            EXPECT_NEAR(length(basis.up - Vec3{0, 0, 1}), 0.0, 1e-12) << axis;
        }
        const View3D seen = frame().view;
        play("$!VIEW FIT\n");
        EXPECT_EQ(frame().view, seen) << axis;
    }
    EXPECT_THAT(causeOf("$!VIEW AXIS = Q"), HasSubstr("There is no axis \"Q\""));
    EXPECT_EQ(causeOf("$!VIEW AXIS +X"), "Expected AXIS = axis.");
}

TEST_F(MacroSceneCommandsTest, setsAViewAsAWholeOrNotAtAll) {
    play("$!READDATA x\n");
    play("$!VIEW SET Psi = 10 Theta=20 Alpha = -30 X = 1 Y = 2 Z = 3 originx = 4 OriginY = 5 "
         "OriginZ = 6 Perspective = false Width = 7.5 FieldOfView = 40 Perspective = true\n");
    View3D expected;
    expected.psi = 10;
    expected.theta = 20;
    expected.alpha = -30;
    expected.position = {1, 2, 3};
    expected.rotationOrigin = {4, 5, 6};
    expected.width = 7.5;
    expected.fieldOfView = 40;
    expected.perspective = true;
    EXPECT_EQ(frame().view, expected);
    EXPECT_EQ(causeOf("$!VIEW SET Psi = 1 Width = 2"),
              "The width of a view can be set without perspective only.");
    EXPECT_EQ(causeOf("$!VIEW SET Psi = 1 FieldOfView = 180"), "FieldOfView cannot be \"180\".");
    EXPECT_EQ(causeOf("$!VIEW SET Psi = 1 Tilt = 2"), "A view has no value \"Tilt\".");
    EXPECT_THAT(causeOf("$!VIEW SET Psi = 1 Theta"), HasSubstr("Expected SET"));
    EXPECT_THAT(causeOf("$!VIEW SET"), HasSubstr("Expected SET"));
    EXPECT_EQ(frame().view, expected);
    play("$!PLOTTYPE = CARTESIAN2D\n");
    EXPECT_EQ(causeOf("$!VIEW SET Psi = 1"), "There is no 3D frame that has a view.");
}

TEST_F(MacroSceneCommandsTest, makesAndArrangesFrames) {
    play("$!FRAME CREATE\n$!FRAME CREATE X = 4 y = 1 Width = 2 Height = 3\n");
    ASSERT_EQ(session.page().frames().size(), 2U);
    EXPECT_EQ(frame().id(), 2);
    EXPECT_EQ(frame().placement, (Placement{4, 1, 2, 3}));
    play("$!FRAME PLACE X = 5\n");
    EXPECT_EQ(frame().placement, (Placement{5, 1, 2, 3}));
    play("$!FRAME ACTIVATE = 1\n");
    EXPECT_EQ(frame().id(), 1);
    EXPECT_EQ(session.page().frames().front()->id(), 2);
    play("$!FRAME POP\n");
    EXPECT_EQ(session.page().frames().front()->id(), 1);
    play("$!FRAME PUSH\n");
    EXPECT_EQ(session.page().frames().front()->id(), 2);
    EXPECT_EQ(frame().id(), 1) << "the stack is one thing, the active frame another";
    play("$!FRAME DELETE\n");
    EXPECT_EQ(frame().id(), 2);
    play("$!FRAME DELETE\n");
    EXPECT_EQ(causeOf("$!FRAME DELETE"), "There is no frame.");
}

TEST_F(MacroSceneCommandsTest, framesThatCannotBeAreRefused) {
    play("$!FRAME CREATE\n");
    EXPECT_EQ(causeOf("$!FRAME CREATE Width = 0"), "Width cannot be \"0\".");
    EXPECT_EQ(causeOf("$!FRAME PLACE X = nan"), "X cannot be \"nan\".");
    EXPECT_EQ(causeOf("$!FRAME PLACE Z = 1"), "A frame has no value \"Z\".");
    EXPECT_EQ(causeOf("$!FRAME ACTIVATE = 7"), "There is no frame 7.");
    EXPECT_EQ(causeOf("$!FRAME ACTIVATE 7"), "Expected ACTIVATE = number.");
    EXPECT_EQ(causeOf("$!FRAME POP now"), "Expected nothing behind the word.");
    EXPECT_THAT(causeOf("$!FRAME FLY"), HasSubstr("Expected CREATE"));
    session.status().start("Playing", true, true);
    EXPECT_EQ(causeOf("$!FRAME DELETE"), "An animation is running.");
    session.status().finish();
    EXPECT_EQ(session.page().frames().size(), 1U);
}

TEST_F(MacroSceneCommandsTest, writesPictures) {
    const test::TempFolder folder;
    const std::string file = folder.file("a b.png");
    play("$!READDATA x\n$!PICTURE " + quoted(file) + " Width = 320 Supersample = 2\n");
    EXPECT_EQ(folder.read("a b.png"), "320 x 180");
    play("$!PICTURE " + quoted(file) + "\n");
    EXPECT_EQ(folder.read("a b.png"), "1280 x 720") << "as large as the work area";
    EXPECT_EQ(causeOf("$!PICTURE x.png Width = 3"), "Width cannot be \"3\".");
    EXPECT_EQ(causeOf("$!PICTURE x.png Supersample = 17"), "Supersample cannot be \"17\".");
    EXPECT_EQ(causeOf("$!PICTURE x.png Region = MOON"), "Region cannot be \"MOON\".");
    EXPECT_EQ(causeOf("$!PICTURE x.png Depth = 3"), "A picture has no value \"Depth\".");
    EXPECT_THAT(causeOf("$!PICTURE"), HasSubstr("Expected \"file\""));
    host.pictures().failNext("The disk is full.");
    EXPECT_EQ(causeOf("$!PICTURE " + quoted(file)), "The disk is full.");
    EXPECT_EQ(folder.read("a b.png"), "1280 x 720") << "the older picture stays";
    EXPECT_THAT(folder.names(), ElementsAre("a b.png"));
}

TEST_F(MacroSceneCommandsTest, setsTheSolutionTime) {
    play("$!READDATA x\n$!SOLUTIONTIME = 0.125\n");
    EXPECT_EQ(frame().solutionTime, 0.125);
    EXPECT_THAT(causeOf("$!SOLUTIONTIME = inf"), HasSubstr("not finite"));
    EXPECT_THAT(causeOf("$!SOLUTIONTIME = soon"), HasSubstr("\"soon\""));
    EXPECT_THAT(causeOf("$!SOLUTIONTIME 0.5"), HasSubstr("Expected = time"));
    EXPECT_EQ(frame().solutionTime, 0.125);
}

TEST_F(MacroSceneCommandsTest, redraws) {
    play("$!REDRAW\n");
    EXPECT_THAT(host.renderer().presented(), ElementsAre(true));
    EXPECT_THAT(causeOf("$!REDRAW now"), HasSubstr("nothing"));
}

TEST_F(MacroSceneCommandsTest, setsUpExports) {
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
