// Tests of playing macros: files, includes, variables, errors, recording.
#include "host/core/commands/MacroPlayer.h"

#include "host/core/commands/MacroCommands.h"
#include "host/core/macro/MacroFile.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/host/core/commands/MacroTest.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

using MacroPlayerTest = MacroTest;

TEST_F(MacroPlayerTest, includesOtherMacrosInTheirFolders) {
    const test::TempFolder folder;
    std::filesystem::create_directory(folder.file("parts"));
    const std::string inner = folder.write("parts/data.mcr", "$!READDATA x.vtu\n$!BAD\n");
    const std::string outer = folder.write("scene.mcr", "\n$!INCLUDE parts/data.mcr\n");
    try {
        program.macros().playFile(outer);
        FAIL();
    } catch (const MacroError& error) {
        EXPECT_EQ(error.what(), inner + ":2: $!BAD\nThere is no command BAD.");
    }
    EXPECT_THAT(host.reader().reads(), ElementsAre(ElementsAre(folder.file("parts/x.vtu"))));
}

TEST_F(MacroPlayerTest, aMacroThatIncludesItselfEnds) {
    const test::TempFolder folder;
    const std::string file = folder.write("loop.mcr", "$!INCLUDE loop.mcr\n");
    try {
        program.macros().playFile(file);
        FAIL();
    } catch (const MacroError& error) {
        EXPECT_EQ(error.what(), file + ":1: $!INCLUDE loop.mcr\nMacros include each other more "
                                       "than 16 deep; does one include itself?");
    }
    EXPECT_FALSE(program.macros().isPlaying());
}

TEST_F(MacroPlayerTest, replacesVariables) {
    program.macros().variables().set("CASE", "wake b");
    play("$!SET CASE = other\n$!SET STEP = 4\n"
         "$!READDATA \"${CASE}_${STEP}.vtu\"\n$!STYLE Annotations/Title = \"$${CASE} $5 {x}\"\n");
    EXPECT_THAT(host.reader().reads(), ElementsAre(ElementsAre("/scenes/wake b_4.vtu")));
    EXPECT_EQ(frame().style.annotations.title, "${CASE} $5 {x}");
    EXPECT_THAT(causeOf("$!READDATA ${NONE}"), HasSubstr("There is no variable \"NONE\""));
    EXPECT_EQ(causeOf("$!READDATA ${NONE"), "A closing brace is missing behind \"${\".");
    EXPECT_THAT(causeOf("$!SET 5X = 1"), HasSubstr("no name of a variable"));
    EXPECT_EQ(causeOf("$!SET X"), "Expected name = value.");
}

TEST_F(MacroPlayerTest, aMacroKnowsItsFolder) {
    const test::TempFolder folder;
    std::filesystem::create_directory(folder.file("parts"));
    folder.write("parts/title.mcr", "$!STYLE Annotations/Title = \"${MACRO_FOLDER}\"\n");
    play("$!READDATA x\n$!INCLUDE " + quoted(folder.file("parts/title.mcr")) +
         "\n$!READDATA \"${MACRO_FOLDER}/y\"\n");
    EXPECT_EQ(host.reader().reads().back(), std::vector<std::string>{"/scenes/y"});
    play("$!INCLUDE " + quoted(folder.file("parts/title.mcr")));
    EXPECT_EQ(frame().style.annotations.title, folder.file("parts"));
}

TEST_F(MacroPlayerTest, recordsWhatIsPerformedAndSucceeds) {
    program.recorder().start();
    program.perform("READDATA", {"/there/a ${b}.vtu"});
    program.perform("STYLE", {"Slice/1/Show", "=", "true"});
    EXPECT_THROW(program.perform("STYLE", {"Slice/1/Axis", "=", "9"}), HostError);
    const std::vector<std::string> lines = program.recorder().stop();
    EXPECT_THAT(lines,
                ElementsAre("$!READDATA \"/there/a $${b}.vtu\"", "$!STYLE Slice/1/Show = true"));
    play(lines[0]);
    EXPECT_EQ(host.reader().reads().back(), host.reader().reads().front());
}

TEST_F(MacroPlayerTest, recordsAMacroThatIsPlayedLineByLine) {
    const test::TempFolder folder;
    const std::string inner = folder.write("inner.mcr", "$!STYLE Slice/1/Show = ${SHOW}\n");
    session.addOnCommands().add("A", [this](const std::string& command) {
        program.recorder().recordAddOnCommand("A", command);
        return std::nullopt;
    });
    program.recorder().start();
    play("$!READDATA sub/../x.vtu\n$!SET SHOW = true\n$!INCLUDE " + quoted(inner) +
         "\n$!EXTCOMMAND A \"go ${SHOW}\"\n");
    EXPECT_THAT(program.recorder().stop(),
                ElementsAre("$!READDATA /scenes/x.vtu", "$!STYLE Slice/1/Show = true",
                            "$!EXTCOMMAND \"A\" \"go true\""));
}

TEST_F(MacroPlayerTest, aMacroFileIsWrittenWholeOrNotAtAll) {
    const test::TempFolder folder;
    const auto tellNobody = [](const std::string&) {};
    writeMacro({"$!REDRAW", "$!VIEW FIT"}, folder.file("a.mcr"), tellNobody);
    EXPECT_EQ(folder.read("a.mcr"), "$!REDRAW\n$!VIEW FIT\n");
    EXPECT_THROW(writeMacro({"$!REDRAW"}, folder.file("none/a.mcr"), tellNobody), HostError);
    EXPECT_THAT(folder.names(), ElementsAre("a.mcr"));
}

TEST_F(MacroPlayerTest, filesThatMayHaveNoEndAreRefused) {
    for (const char* file : {"/dev/zero", "/dev/null"}) {
        EXPECT_EQ(causeOf(std::string("$!INCLUDE ") + file),
                  std::string("Cannot open the macro file ") + file +
                      ": it is not a regular file.");
    }
}

TEST_F(MacroPlayerTest, takesMacrosFromElsewhere) {
    program.macros().openWith([](const std::string& name) {
        return std::make_unique<std::istringstream>("$!READDATA " + name + ".vtu\n");
    });
    program.macros().playFile("any");
    EXPECT_EQ(host.reader().reads().back(), std::vector<std::string>{"any.vtu"});
}

TEST_F(MacroPlayerTest, stopsBetweenLines) {
    int asked = 0;
    program.macros().stopWhen([&asked] { return ++asked == 2; });
    EXPECT_EQ(causeOf("$!READDATA x\n$!READDATA y\n"), "The macro was stopped.");
    EXPECT_EQ(host.reader().reads().size(), 1U);
}

TEST_F(MacroPlayerTest, variablesThatHoldEachOtherStayWithinALine) {
    std::string macro = "$!SET A = xxxxxxxx\n";
    for (int i = 0; i < 16; ++i) {
        macro += "$!SET A = ${A}${A}\n";
    }
    const std::string cause = "With the values of its variables the line is longer than 1 MiB.";
    EXPECT_EQ(causeOf(macro + "$!READDATA ${A} ${A}\n"), "");
    EXPECT_EQ(causeOf("$!READDATA ${A} ${A} x\n"), cause);
    EXPECT_EQ(causeOf("$!READDATA ${A}${A}x\n"), cause);
    EXPECT_EQ(host.reader().reads().size(), 1U);
}

TEST_F(MacroPlayerTest, recordsNamesThatHoldInEveryFolder) {
    const test::TempFolder folder;
    folder.write("scene.mcr", "$!READDATA x\n$!EXPORTSETUP exportfname = sub/../a.mp4\n"
                              "$!STYLE Annotations/Title = \"${MACRO_FOLDER}\"\n"
                              "$!EXPORTSETUP ImageWidth = 64\n");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    program.recorder().start();
    program.macros().playFile("scene.mcr");
    std::filesystem::current_path(before);
    EXPECT_THAT(program.recorder().stop(),
                ElementsAre("$!READDATA " + folder.file("x"),
                            "$!EXPORTSETUP exportfname = " + folder.file("a.mp4"),
                            "$!STYLE Annotations/Title = " + folder.path().string(),
                            "$!EXPORTSETUP ImageWidth = 64"));
    EXPECT_EQ(session.exportSetup().fileName, "sub/../a.mp4");
}

TEST_F(MacroPlayerTest, unknownCommandsAreErrors) {
    EXPECT_EQ(causeOf("$!FLY 1"), "There is no command FLY.");
}

TEST_F(MacroPlayerTest, aFailingLineStopsAndKeepsWhatWasDone) {
    try {
        play("$!EXPORTSETUP ImageWidth = 64\n\n$!BAD\n$!EXPORTSETUP ImageWidth = 128\n");
        FAIL();
    } catch (const MacroError& error) {
        EXPECT_STREQ(error.what(), "test.macro:3: $!BAD\nThere is no command BAD.");
    }
    EXPECT_EQ(session.exportSetup().imageWidth, 64);
    EXPECT_FALSE(program.macros().isPlaying());
}

TEST_F(MacroPlayerTest, tellsThatItPlays) {
    bool playing = false;
    session.addOnCommands().add("A", [this, &playing](const std::string&) {
        playing = program.macros().isPlaying();
        return std::nullopt;
    });
    EXPECT_FALSE(program.macros().isPlaying());
    play("$!EXTCOMMAND A go");
    EXPECT_TRUE(playing);
    EXPECT_FALSE(program.macros().isPlaying());
}

TEST_F(MacroPlayerTest, playsFilesInTheirFolder) {
    const test::TempFolder folder;
    const std::string file = folder.write("scene.macro", "$!READDATA data/x.vtu\n$!BAD\n");
    try {
        program.macros().playFile(file);
        FAIL();
    } catch (const MacroError& error) {
        EXPECT_THAT(error.what(), HasSubstr(file + ":2: $!BAD"));
    }
    EXPECT_THAT(host.reader().reads(), ElementsAre(ElementsAre(folder.file("data/x.vtu"))));
}

TEST_F(MacroPlayerTest, aFileOfTheCurrentFolderNeedsNoPath) {
    const test::TempFolder folder;
    folder.write("scene.macro", "$!READDATA x.vtu\n");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    program.macros().playFile("scene.macro");
    std::filesystem::current_path(before);
    EXPECT_THAT(host.reader().reads(), ElementsAre(ElementsAre("x.vtu")));
}

TEST_F(MacroPlayerTest, filesThatCannotBeOpenedAreNamed) {
    const test::TempFolder folder;
    for (const std::string& file : {folder.file("missing.macro"), folder.path().string()}) {
        try {
            program.macros().playFile(file);
            FAIL() << file;
        } catch (const HostError& error) {
            EXPECT_THAT(error.what(), StartsWith("Cannot open the macro file " + file + ": "));
        }
    }
}

TEST_F(MacroPlayerTest, aSingleCommandCanBeRun) {
    program.macros().run("EXPORTSETUP", {"ImageWidth", "=", "77"});
    EXPECT_EQ(session.exportSetup().imageWidth, 77);
    program.macros().run("readdata", {"x.vtu"}, "/there");
    EXPECT_THAT(host.reader().reads(), ElementsAre(ElementsAre("/there/x.vtu")));
    EXPECT_THROW(program.macros().run("FLY", {}), HostError);
    EXPECT_THROW(program.macros().run("VIEW", {"UP"}), HostError);
    host.reader().failNext("Cannot read it.");
    EXPECT_THROW(program.macros().run("READDATA", {"y"}), HostError);
}

TEST_F(MacroPlayerTest, theLanguageIsDescribedInFull) {
    std::vector<std::string> names;
    for (const MacroCommand& command : macroCommands()) {
        names.push_back(command.name);
        EXPECT_THAT(command.purpose, EndsWith(".")) << command.name;
        EXPECT_THAT(command.example, StartsWith("$!" + command.name));
        EXPECT_FALSE(command.arguments.empty());
        EXPECT_NE(command.run, nullptr);
    }
    EXPECT_THAT(names, ElementsAre("READDATA", "STYLE", "PLOTTYPE", "VIEW", "SOLUTIONTIME", "FRAME",
                                   "WORKAREA", "REDRAW", "EXPORTSETUP", "PICTURE", "EXTCOMMAND",
                                   "INCLUDE", "SET"));
}

} // namespace
} // namespace corvane::host
