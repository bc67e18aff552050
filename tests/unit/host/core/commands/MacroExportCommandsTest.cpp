// Tests of the commands that write pictures and run commands of add-ons, and of the movies that
// those make.
#include "host/core/files/PartName.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/host/core/commands/MacroTest.h"

#include <gmock/gmock.h>

#include <optional>
#include <string>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

using MacroExportCommandsTest = MacroTest;

TEST_F(MacroExportCommandsTest, writesPictures) {
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

TEST_F(MacroExportCommandsTest, picturesNeedANameOfTheirKind) {
    const test::TempFolder folder;
    for (const char* name : {"body.vtp", "picture", "picture.png.mcr"}) {
        const std::string file = folder.write(name, "precious");
        EXPECT_EQ(causeOf("$!READDATA x\n$!PICTURE " + quoted(file)),
                  "Pictures are PNG files, and the name \"" + file + "\" does not end in .png.");
        EXPECT_EQ(folder.read(name), "precious");
    }
    EXPECT_EQ(causeOf("$!PICTURE \"\""),
              "The picture has no file name. Give it one that ends in .png.");
    play("$!PICTURE " + quoted(folder.file("A.PNG")) + "\n");
    EXPECT_TRUE(folder.has("A.PNG"));
}

TEST_F(MacroExportCommandsTest, tellsWhatAKilledRunHasLeftOfAPicture) {
    const test::TempFolder folder;
    const std::string part = folder.write(PartName("a.png", 255).numbered(1), "half");
    play("$!READDATA x\n$!PICTURE " + quoted(folder.file("a.png")) + "\n");
    EXPECT_THAT(host.told(), ElementsAre(HasSubstr("Removed a.png.")));
    EXPECT_THAT(folder.names(), ElementsAre("a.png"));
}

TEST_F(MacroExportCommandsTest, pictureFilesThatFailAreToldByTheirName) {
    const test::TempFolder folder;
    const std::string file = folder.file("a.png");
    const std::string part = folder.file(PartName("a.png", 255).numbered(1));
    host.pictures().failNext("Cannot write the picture " + part + ": the disk is full.");
    EXPECT_EQ(causeOf("$!READDATA x\n$!PICTURE " + quoted(file)),
              "Cannot write the picture " + file + ": the disk is full.");
}

TEST_F(MacroExportCommandsTest, runsCommandsOfAddOns) {
    std::vector<std::string> commands;
    session.addOnCommands().add("Key Frames", [&commands](const std::string& command) {
        commands.push_back(command);
        return std::nullopt;
    });
    play("$!EXTCOMMAND \"Key Frames\" \"LOAD \\\"a b\\\"\"\n"
         "$!EXTCOMMAND \"Key Frames\" \"\"\n");
    EXPECT_THAT(commands, ElementsAre("LOAD \"a b\"", ""));
}

TEST_F(MacroExportCommandsTest, commandsThatFailTellTheirCause) {
    session.addOnCommands().add("A", [](const std::string& text) { return "No " + text + "."; });
    EXPECT_EQ(causeOf("$!EXTCOMMAND A \"key frames\""), "No key frames.");
    EXPECT_THAT(causeOf("$!EXTCOMMAND B go"), HasSubstr("There is no add-on \"B\""));
    EXPECT_EQ(causeOf("$!EXTCOMMAND A"), "Expected \"add-on\" \"command\".");
    EXPECT_EQ(causeOf("$!EXTCOMMAND A b c"), "Expected \"add-on\" \"command\".");
}

TEST_F(MacroExportCommandsTest, noCommandRunsDuringAnAnimation) {
    int runs = 0;
    session.addOnCommands().add("A", [&runs](const std::string&) {
        ++runs;
        return std::nullopt;
    });
    session.status().start("Playing", true, true);
    EXPECT_EQ(causeOf("$!EXTCOMMAND A go"), "An animation is running.");
    session.status().finish();
    EXPECT_EQ(runs, 0);
    play("$!EXTCOMMAND A go");
    EXPECT_EQ(runs, 1);
}

/// An add-on that records a movie of one picture more than can be written.
class MacroMovieTest : public MacroTest {
protected:
    MacroMovieTest() {
        play("$!READDATA x\n$!EXPORTSETUP ImageWidth = 8\n");
        session.exportSetup().fileName = folder.file("movie.avi");
        host.movies().failAt(2);
    }
    void addCommand(const std::optional<std::string>& reported) {
        session.addOnCommands().add("A", [this, reported](const std::string&) {
            session.exporter().start();
            session.exporter().nextFrame();
            session.exporter().cancel();
            return reported;
        });
    }

    test::TempFolder folder;
};

TEST_F(MacroMovieTest, theCauseOfAFailedMovieWinsOverWhatTheAddOnKnows) {
    addCommand("Animation canceled.");
    EXPECT_EQ(causeOf("$!EXTCOMMAND A go"), "The picture could not be encoded.");
}

TEST_F(MacroMovieTest, aFailedMovieStopsTheMacroThoughTheAddOnIsContent) {
    addCommand(std::nullopt);
    EXPECT_EQ(causeOf("$!EXTCOMMAND A go"), "The picture could not be encoded.");
}

TEST_F(MacroMovieTest, anOlderFailureIsForgotten) {
    session.exporter().start();
    session.exporter().nextFrame();
    session.exporter().cancel();
    ASSERT_TRUE(session.exporter().hasFailed());
    session.addOnCommands().add("Idle", [](const std::string&) { return std::nullopt; });
    play("$!EXTCOMMAND Idle go");
    EXPECT_FALSE(session.exporter().hasFailed());
}

TEST_F(MacroMovieTest, noCommandRunsWhileAMovieIsRecorded) {
    addCommand(std::nullopt);
    ASSERT_TRUE(session.exporter().start());
    EXPECT_EQ(causeOf("$!EXTCOMMAND A go"), "An animation is running.");
    EXPECT_EQ(causeOf("$!EXPORTSETUP ImageWidth = 9"),
              "ImageWidth cannot be set now. A movie is being recorded.");
    EXPECT_TRUE(session.exporter().isRecording());
    session.exporter().cancel();
}

} // namespace
} // namespace corvane::host
