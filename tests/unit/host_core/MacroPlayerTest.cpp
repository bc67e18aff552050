// Tests of the commands of the macro language.
#include "host/core/MacroPlayer.h"

#include "host/core/MacroCommands.h"
#include "host/core/MacroFile.h"

#include "tests/unit/host_core/Fakes.h"
#include "tests/unit/host_core/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>
#include <sstream>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class MacroPlayerTest : public testing::Test {
protected:
    MacroPlayerTest() { host.reader.data = fakes::volumeData(); }

    void play(const std::string& text) {
        std::istringstream macro(text);
        app.macros().play(macro, "test.macro", "/scenes");
    }
    /// The cause alone, without file, line and text.
    std::string causeOf(const std::string& text) {
        try {
            play(text);
        } catch (const MacroError& error) {
            const std::string what = error.what();
            return what.substr(what.find('\n') + 1);
        }
        return {};
    }
    Frame& frame() { return *app.page().active(); }

    fakes::FakeHost host;
    Application& app = host.app;
};

TEST_F(MacroPlayerTest, ReadsDataRelativeToTheMacro) {
    play("$!READDATA \"wake.pvd\" \"/other/hull.vtp\" \"sub/a b.vtu\"");
    EXPECT_THAT(host.reader.calls, ElementsAre(ElementsAre("/scenes/wake.pvd", "/other/hull.vtp",
                                                           "/scenes/sub/a b.vtu")));
    EXPECT_NE(frame().data(), nullptr);
}

TEST_F(MacroPlayerTest, DataThatCannotBeReadStopTheMacro) {
    host.reader.failure = "Cannot read wake.pvd: it is empty.";
    EXPECT_EQ(causeOf("$!READDATA wake.pvd\n"), "Cannot read wake.pvd: it is empty.");
    EXPECT_THAT(causeOf("$!READDATA\n"), HasSubstr("one or more file names"));
}

TEST_F(MacroPlayerTest, SetsStylesByTheirType) {
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
    EXPECT_EQ(app.getStyle({"Interface", "UseDisplayLists"}, value), StyleGet_Ok);
    EXPECT_EQ(value, StyleInput(0L));
}

TEST_F(MacroPlayerTest, ReadsNumbersTheSameWayInEveryCountry) {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    std::setlocale(LC_NUMERIC, "de_DE.UTF-8"); // where it is installed
    play("$!READDATA x\n$!STYLE Slice/1/Position = 0.25\n$!EXPORTSETUP AnimationSpeed = 12.5\n");
    std::setlocale(LC_NUMERIC, before.c_str());
    EXPECT_EQ(frame().style.slices[0].position, 0.25);
    EXPECT_EQ(app.exportSetup().animationSpeed, 12.5);
}

TEST_F(MacroPlayerTest, StylesThatCannotBeSetNameTheirPath) {
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

TEST_F(MacroPlayerTest, StylesThatCannotBeSetNowTellWhatTheyNeed) {
    host.reader.data->variables = {{"p", 1, 0.0, 1.0}};
    play("$!READDATA x\n");
    EXPECT_EQ(causeOf("$!STYLE Streamtraces/Show = true"),
              "Streamtraces/Show cannot be set now. Streamtraces follow a vector variable, and the "
              "data have none.");
    EXPECT_EQ(causeOf("$!STYLE ThreeDView/ViewWidth = 2"),
              "ThreeDView/ViewWidth cannot be set now. Switch perspective off first.");
}

TEST_F(MacroPlayerTest, StylesOfAFrameNeedOne) {
    EXPECT_THAT(causeOf("$!STYLE Slice/1/Show = true"), HasSubstr("Slice/1/Show"));
}

TEST_F(MacroPlayerTest, SetsThePlotType) {
    play("$!READDATA x\n$!PLOTTYPE = cartesian2d\n");
    EXPECT_EQ(frame().plotType, PlotType_Cartesian2D);
    play("$!PLOTTYPE = CARTESIAN3D\n");
    EXPECT_EQ(frame().plotType, PlotType_Cartesian3D);
    EXPECT_THAT(causeOf("$!PLOTTYPE = POLAR"), HasSubstr("CARTESIAN3D"));
    EXPECT_THAT(causeOf("$!PLOTTYPE CARTESIAN3D"), HasSubstr("Expected"));
    app.page().deleteFrame(frame().id());
    EXPECT_EQ(causeOf("$!PLOTTYPE = CARTESIAN3D"), "There is no frame.");
}

TEST_F(MacroPlayerTest, FitsTheView) {
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

TEST_F(MacroPlayerTest, LooksFromTheEndsOfTheAxes) {
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

TEST_F(MacroPlayerTest, SetsAViewAsAWholeOrNotAtAll) {
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

TEST_F(MacroPlayerTest, MakesAndArrangesFrames) {
    play("$!FRAME CREATE\n$!FRAME CREATE X = 4 y = 1 Width = 2 Height = 3\n");
    ASSERT_EQ(app.page().frames().size(), 2U);
    EXPECT_EQ(frame().id(), 2);
    EXPECT_EQ(frame().placement, (Placement{4, 1, 2, 3}));
    play("$!FRAME PLACE X = 5\n");
    EXPECT_EQ(frame().placement, (Placement{5, 1, 2, 3}));
    play("$!FRAME ACTIVATE = 1\n");
    EXPECT_EQ(frame().id(), 1);
    EXPECT_EQ(app.page().frames().front()->id(), 2);
    play("$!FRAME POP\n");
    EXPECT_EQ(app.page().frames().front()->id(), 1);
    play("$!FRAME PUSH\n");
    EXPECT_EQ(app.page().frames().front()->id(), 2);
    EXPECT_EQ(frame().id(), 1) << "the stack is one thing, the active frame another";
    play("$!FRAME DELETE\n");
    EXPECT_EQ(frame().id(), 2);
    play("$!FRAME DELETE\n");
    EXPECT_EQ(causeOf("$!FRAME DELETE"), "There is no frame.");
}

TEST_F(MacroPlayerTest, FramesThatCannotBeAreRefused) {
    play("$!FRAME CREATE\n");
    EXPECT_EQ(causeOf("$!FRAME CREATE Width = 0"), "Width cannot be \"0\".");
    EXPECT_EQ(causeOf("$!FRAME PLACE X = nan"), "X cannot be \"nan\".");
    EXPECT_EQ(causeOf("$!FRAME PLACE Z = 1"), "A frame has no value \"Z\".");
    EXPECT_EQ(causeOf("$!FRAME ACTIVATE = 7"), "There is no frame 7.");
    EXPECT_EQ(causeOf("$!FRAME ACTIVATE 7"), "Expected ACTIVATE = number.");
    EXPECT_EQ(causeOf("$!FRAME POP now"), "Expected nothing behind the word.");
    EXPECT_THAT(causeOf("$!FRAME FLY"), HasSubstr("Expected CREATE"));
    app.status().start("Playing", true, true);
    EXPECT_EQ(causeOf("$!FRAME DELETE"), "An animation is running.");
    app.status().finish();
    EXPECT_EQ(app.page().frames().size(), 1U);
}

TEST_F(MacroPlayerTest, WritesPictures) {
    const fakes::TemporaryFolder folder;
    const std::string file = folder.path("a b.png");
    play("$!READDATA x\n$!PICTURE " + quoted(file) + " Width = 320 Supersample = 2\n");
    EXPECT_EQ(folder.read("a b.png"), "320 x 180");
    play("$!PICTURE " + quoted(file) + "\n");
    EXPECT_EQ(folder.read("a b.png"), "1280 x 720") << "as large as the work area";
    EXPECT_EQ(causeOf("$!PICTURE x.png Width = 3"), "Width cannot be \"3\".");
    EXPECT_EQ(causeOf("$!PICTURE x.png Supersample = 17"), "Supersample cannot be \"17\".");
    EXPECT_EQ(causeOf("$!PICTURE x.png Region = MOON"), "Region cannot be \"MOON\".");
    EXPECT_EQ(causeOf("$!PICTURE x.png Depth = 3"), "A picture has no value \"Depth\".");
    EXPECT_THAT(causeOf("$!PICTURE"), HasSubstr("Expected \"file\""));
    host.pictures.failure = "The disk is full.";
    EXPECT_EQ(causeOf("$!PICTURE " + quoted(file)), "The disk is full.");
    EXPECT_EQ(folder.read("a b.png"), "1280 x 720") << "the older picture stays";
    EXPECT_THAT(folder.names(), ElementsAre("a b.png"));
}

TEST_F(MacroPlayerTest, IncludesOtherMacrosInTheirFolders) {
    const fakes::TemporaryFolder folder;
    std::filesystem::create_directory(folder.path("parts"));
    const std::string inner = folder.write("parts/data.mcr", "$!READDATA x.vtu\n$!BAD\n");
    const std::string outer = folder.write("scene.mcr", "\n$!INCLUDE parts/data.mcr\n");
    try {
        app.macros().playFile(outer);
        FAIL();
    } catch (const MacroError& error) {
        EXPECT_EQ(error.what(), inner + ":2: $!BAD\nThere is no command BAD.");
    }
    EXPECT_THAT(host.reader.calls, ElementsAre(ElementsAre(folder.path("parts/x.vtu"))));
}

TEST_F(MacroPlayerTest, AMacroThatIncludesItselfEnds) {
    const fakes::TemporaryFolder folder;
    const std::string file = folder.write("loop.mcr", "$!INCLUDE loop.mcr\n");
    try {
        app.macros().playFile(file);
        FAIL();
    } catch (const MacroError& error) {
        EXPECT_EQ(error.what(), file + ":1: $!INCLUDE loop.mcr\nMacros include each other more "
                                       "than 16 deep; does one include itself?");
    }
    EXPECT_FALSE(app.macros().isPlaying());
}

TEST_F(MacroPlayerTest, ReplacesVariables) {
    app.macros().variables().set("CASE", "wake b");
    play("$!SET CASE = other\n$!SET STEP = 4\n"
         "$!READDATA \"${CASE}_${STEP}.vtu\"\n$!STYLE Annotations/Title = \"$${CASE} $5 {x}\"\n");
    EXPECT_THAT(host.reader.calls, ElementsAre(ElementsAre("/scenes/wake b_4.vtu")));
    EXPECT_EQ(frame().style.annotations.title, "${CASE} $5 {x}");
    EXPECT_THAT(causeOf("$!READDATA ${NONE}"), HasSubstr("There is no variable \"NONE\""));
    EXPECT_EQ(causeOf("$!READDATA ${NONE"), "A closing brace is missing behind \"${\".");
    EXPECT_THAT(causeOf("$!SET 5X = 1"), HasSubstr("no name of a variable"));
    EXPECT_EQ(causeOf("$!SET X"), "Expected name = value.");
}

TEST_F(MacroPlayerTest, AMacroKnowsItsFolder) {
    const fakes::TemporaryFolder folder;
    std::filesystem::create_directory(folder.path("parts"));
    folder.write("parts/title.mcr", "$!STYLE Annotations/Title = \"${MACRO_FOLDER}\"\n");
    play("$!READDATA x\n$!INCLUDE " + quoted(folder.path("parts/title.mcr")) +
         "\n$!READDATA \"${MACRO_FOLDER}/y\"\n");
    EXPECT_EQ(host.reader.calls.back(), std::vector<std::string>{"/scenes/y"});
    play("$!INCLUDE " + quoted(folder.path("parts/title.mcr")));
    EXPECT_EQ(frame().style.annotations.title, folder.path("parts"));
}

TEST_F(MacroPlayerTest, RecordsWhatIsPerformedAndSucceeds) {
    app.recorder().start();
    app.perform("READDATA", {"/there/a ${b}.vtu"});
    app.perform("STYLE", {"Slice/1/Show", "=", "true"});
    EXPECT_THROW(app.perform("STYLE", {"Slice/1/Axis", "=", "9"}), std::invalid_argument);
    const std::vector<std::string> lines = app.recorder().stop();
    EXPECT_THAT(lines,
                ElementsAre("$!READDATA \"/there/a $${b}.vtu\"", "$!STYLE Slice/1/Show = true"));
    play(lines[0]);
    EXPECT_EQ(host.reader.calls.back(), host.reader.calls.front());
}

TEST_F(MacroPlayerTest, RecordsAMacroThatIsPlayedLineByLine) {
    const fakes::TemporaryFolder folder;
    const std::string inner = folder.write("inner.mcr", "$!STYLE Slice/1/Show = ${SHOW}\n");
    app.addOnCommands().add("A", [this](const std::string& command) {
        app.recorder().recordAddOnCommand("A", command);
        return std::nullopt;
    });
    app.recorder().start();
    play("$!READDATA sub/../x.vtu\n$!SET SHOW = true\n$!INCLUDE " + quoted(inner) +
         "\n$!EXTCOMMAND A \"go ${SHOW}\"\n");
    EXPECT_THAT(app.recorder().stop(),
                ElementsAre("$!READDATA /scenes/x.vtu", "$!STYLE Slice/1/Show = true",
                            "$!EXTCOMMAND \"A\" \"go true\""));
}

TEST_F(MacroPlayerTest, AMacroFileIsWrittenWholeOrNotAtAll) {
    const fakes::TemporaryFolder folder;
    writeMacro({"$!REDRAW", "$!VIEW FIT"}, folder.path("a.mcr"));
    EXPECT_EQ(folder.read("a.mcr"), "$!REDRAW\n$!VIEW FIT\n");
    EXPECT_THROW(writeMacro({"$!REDRAW"}, folder.path("none/a.mcr")), HostError);
    EXPECT_THAT(folder.names(), ElementsAre("a.mcr"));
}

TEST_F(MacroPlayerTest, SetsTheSolutionTime) {
    play("$!READDATA x\n$!SOLUTIONTIME = 0.125\n");
    EXPECT_EQ(frame().solutionTime, 0.125);
    EXPECT_THAT(causeOf("$!SOLUTIONTIME = inf"), HasSubstr("not finite"));
    EXPECT_THAT(causeOf("$!SOLUTIONTIME = soon"), HasSubstr("\"soon\""));
    EXPECT_THAT(causeOf("$!SOLUTIONTIME 0.5"), HasSubstr("Expected = time"));
    EXPECT_EQ(frame().solutionTime, 0.125);
}

TEST_F(MacroPlayerTest, Redraws) {
    play("$!REDRAW\n");
    EXPECT_THAT(host.screen.presented, ElementsAre(true));
    EXPECT_THAT(causeOf("$!REDRAW now"), HasSubstr("nothing"));
}

TEST_F(MacroPlayerTest, SetsUpExports) {
    play("$!EXPORTSETUP ExportFormat = MPEG4\n"
         "$!EXPORTSETUP exportregion = WORKAREA\n"
         "$!EXPORTSETUP ImageWidth = 640\n"
         "$!EXPORTSETUP UseSuperSampleAntiAliasing = true\n"
         "$!EXPORTSETUP ExportFName = \"movies/a \\\"b\\\".mp4\"\n");
    EXPECT_EQ(app.exportSetup().format, ExportFormat_MPEG4);
    EXPECT_EQ(app.exportSetup().region, ExportRegion_WorkArea);
    EXPECT_EQ(app.exportSetup().imageWidth, 640);
    EXPECT_TRUE(app.exportSetup().useSuperSampleAntiAliasing);
    EXPECT_EQ(app.exportSetup().fileName, "movies/a \"b\".mp4") << "of the current folder";
    EXPECT_EQ(causeOf("$!EXPORTSETUP ImageHeight = 3"), "There is no export setting ImageHeight.");
    EXPECT_EQ(causeOf("$!EXPORTSETUP ImageWidth = 3"), "ImageWidth cannot be \"3\".");
    EXPECT_EQ(causeOf("$!EXPORTSETUP ExportFormat = MOV"), "ExportFormat cannot be \"MOV\".");
    EXPECT_EQ(causeOf("$!EXPORTSETUP ImageWidth 3"), "Expected name = value.");
}

TEST_F(MacroPlayerTest, RunsCommandsOfAddOnsWithoutTrailingBlanks) {
    std::vector<std::string> commands;
    app.addOnCommands().add("Key Frames", [&commands](const std::string& command) {
        commands.push_back(command);
        return std::nullopt;
    });
    play("$!EXTCOMMAND \"Key Frames\" \"LOAD \\\"a b\\\" \t \"\n"
         "$!EXTCOMMAND \"Key Frames\" \"  \"\n");
    EXPECT_THAT(commands, ElementsAre("LOAD \"a b\"", ""));
}

TEST_F(MacroPlayerTest, CommandsThatFailTellTheirCause) {
    app.addOnCommands().add("A", [](const std::string& text) { return "No " + text + "."; });
    EXPECT_EQ(causeOf("$!EXTCOMMAND A \"key frames\""), "No key frames.");
    EXPECT_THAT(causeOf("$!EXTCOMMAND B go"), HasSubstr("There is no add-on \"B\""));
    EXPECT_EQ(causeOf("$!EXTCOMMAND A"), "Expected \"add-on\" \"command\".");
    EXPECT_EQ(causeOf("$!EXTCOMMAND A b c"), "Expected \"add-on\" \"command\".");
}

TEST_F(MacroPlayerTest, NoCommandRunsDuringAnAnimation) {
    int runs = 0;
    app.addOnCommands().add("A", [&runs](const std::string&) {
        ++runs;
        return std::nullopt;
    });
    app.status().start("Playing", true, true);
    EXPECT_EQ(causeOf("$!EXTCOMMAND A go"), "An animation is running.");
    app.status().finish();
    EXPECT_EQ(runs, 0);
    play("$!EXTCOMMAND A go");
    EXPECT_EQ(runs, 1);
}

/// An add-on that records a movie of one picture more than can be written.
class MacroPlayerMovieTest : public MacroPlayerTest {
protected:
    MacroPlayerMovieTest() {
        play("$!READDATA x\n$!EXPORTSETUP ImageWidth = 8\n");
        app.exportSetup().fileName = folder.path("movie.avi");
        host.movies.failAdd = 2;
    }
    void addCommand(const std::optional<std::string>& reported) {
        app.addOnCommands().add("A", [this, reported](const std::string&) {
            app.exporter().start();
            app.exporter().nextFrame();
            app.exporter().cancel();
            return reported;
        });
    }

    fakes::TemporaryFolder folder;
};

TEST_F(MacroPlayerMovieTest, TheCauseOfAFailedMovieWinsOverWhatTheAddOnKnows) {
    addCommand("Animation canceled.");
    EXPECT_EQ(causeOf("$!EXTCOMMAND A go"), "The disk is full.");
}

TEST_F(MacroPlayerMovieTest, AFailedMovieStopsTheMacroThoughTheAddOnIsContent) {
    addCommand(std::nullopt);
    EXPECT_EQ(causeOf("$!EXTCOMMAND A go"), "The disk is full.");
}

TEST_F(MacroPlayerMovieTest, AnOlderFailureIsForgotten) {
    app.exporter().start();
    app.exporter().nextFrame();
    app.exporter().cancel();
    ASSERT_TRUE(app.exporter().hasFailed());
    app.addOnCommands().add("Idle", [](const std::string&) { return std::nullopt; });
    play("$!EXTCOMMAND Idle go");
    EXPECT_FALSE(app.exporter().hasFailed());
}

TEST_F(MacroPlayerMovieTest, NoCommandRunsWhileAMovieIsRecorded) {
    addCommand(std::nullopt);
    ASSERT_TRUE(app.exporter().start());
    EXPECT_EQ(causeOf("$!EXTCOMMAND A go"), "An animation is running.");
    EXPECT_EQ(causeOf("$!EXPORTSETUP ImageWidth = 9"),
              "ImageWidth cannot be set now. A movie is being recorded.");
    EXPECT_TRUE(app.exporter().isRecording());
}

TEST_F(MacroPlayerTest, UnknownCommandsAreErrors) {
    EXPECT_EQ(causeOf("$!FLY 1"), "There is no command FLY.");
}

TEST_F(MacroPlayerTest, AFailingLineStopsAndKeepsWhatWasDone) {
    try {
        play("$!EXPORTSETUP ImageWidth = 64\n\n$!BAD\n$!EXPORTSETUP ImageWidth = 128\n");
        FAIL();
    } catch (const MacroError& error) {
        EXPECT_STREQ(error.what(), "test.macro:3: $!BAD\nThere is no command BAD.");
    }
    EXPECT_EQ(app.exportSetup().imageWidth, 64);
    EXPECT_FALSE(app.macros().isPlaying());
}

TEST_F(MacroPlayerTest, TellsThatItPlays) {
    bool playing = false;
    app.addOnCommands().add("A", [this, &playing](const std::string&) {
        playing = app.macros().isPlaying();
        return std::nullopt;
    });
    EXPECT_FALSE(app.macros().isPlaying());
    play("$!EXTCOMMAND A go");
    EXPECT_TRUE(playing);
    EXPECT_FALSE(app.macros().isPlaying());
}

TEST_F(MacroPlayerTest, PlaysFilesInTheirFolder) {
    const fakes::TemporaryFolder folder;
    const std::string file = folder.write("scene.macro", "$!READDATA data/x.vtu\n$!BAD\n");
    try {
        app.macros().playFile(file);
        FAIL();
    } catch (const MacroError& error) {
        EXPECT_THAT(error.what(), HasSubstr(file + ":2: $!BAD"));
    }
    EXPECT_THAT(host.reader.calls, ElementsAre(ElementsAre(folder.path("data/x.vtu"))));
}

TEST_F(MacroPlayerTest, AFileOfTheCurrentFolderNeedsNoPath) {
    const fakes::TemporaryFolder folder;
    folder.write("scene.macro", "$!READDATA x.vtu\n");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    app.macros().playFile("scene.macro");
    std::filesystem::current_path(before);
    EXPECT_THAT(host.reader.calls, ElementsAre(ElementsAre("x.vtu")));
}

TEST_F(MacroPlayerTest, FilesThatCannotBeOpenedAreNamed) {
    const fakes::TemporaryFolder folder;
    for (const std::string& file : {folder.path("missing.macro"), folder.path()}) {
        try {
            app.macros().playFile(file);
            FAIL() << file;
        } catch (const HostError& error) {
            EXPECT_EQ(error.what(), "Cannot open the macro file " + file + ".");
        }
    }
}

TEST_F(MacroPlayerTest, ASingleCommandCanBeRun) {
    app.macros().run("EXPORTSETUP", {"ImageWidth", "=", "77"});
    EXPECT_EQ(app.exportSetup().imageWidth, 77);
    app.macros().run("readdata", {"x.vtu"}, "/there");
    EXPECT_THAT(host.reader.calls, ElementsAre(ElementsAre("/there/x.vtu")));
    EXPECT_THROW(app.macros().run("FLY", {}), std::invalid_argument);
    EXPECT_THROW(app.macros().run("VIEW", {"UP"}), std::invalid_argument);
    host.reader.failure = "Cannot read it.";
    EXPECT_THROW(app.macros().run("READDATA", {"y"}), HostError);
}

TEST_F(MacroPlayerTest, TheLanguageIsDescribedInFull) {
    std::vector<std::string> names;
    for (const MacroCommand& command : macroCommands()) {
        names.push_back(command.name);
        EXPECT_THAT(command.purpose, EndsWith(".")) << command.name;
        EXPECT_THAT(command.example, StartsWith("$!" + command.name));
        EXPECT_FALSE(command.arguments.empty());
        EXPECT_NE(command.run, nullptr);
    }
    EXPECT_THAT(names,
                ElementsAre("READDATA", "STYLE", "PLOTTYPE", "VIEW", "SOLUTIONTIME", "FRAME",
                            "REDRAW", "EXPORTSETUP", "PICTURE", "EXTCOMMAND", "INCLUDE", "SET"));
}

} // namespace
} // namespace corvane::host
