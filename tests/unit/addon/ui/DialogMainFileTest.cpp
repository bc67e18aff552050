// The main dialog: opening and saving key frame files.
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/UiTest.h"
#include "tests/unit/addon/file/KeyFrameTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Kind = ShownDialog::Kind;

class DialogMainFileTest : public DialogMainWindowTest {
protected:
    void choose(const std::string& item) {
        window().menu("File").item(item).choose();
        host.runIdle();
    }

    void open(const std::string& fileName) {
        host.prompts().answerFile(fileName);
        choose("Open Animation File...");
    }

    std::size_t prompts() {
        return host.prompts().shown(Kind::FileToWrite).size() +
               host.prompts().shown(Kind::FileToRead).size();
    }

    const TempFolder folder;
};

TEST_F(DialogMainFileTest, opensAFile) {
    const std::string file =
        folder.write("orbit.keyframe", header + settingsBlock("FadeIn true\nAnimateTime true\n") +
                                           block("Name \"Bow\"\n") + block("Name \"Stern\"\n"));
    host.program().recorder().start();
    open(file);
    EXPECT_THAT(rows(), ElementsAre("Bow", "Stern"));
    EXPECT_TRUE(window().menu("Options").toggle("Fade In").isOn());
    EXPECT_TRUE(window().menu("Options").toggle("Animate Time Concurrently").isOn());
    EXPECT_TRUE(window().button("Animate All").isSensitive());
    EXPECT_EQ(dialog().currentFile().fileName(), file);
    EXPECT_THAT(host.program().recorder().stop(),
                ElementsAre(HasSubstr("OpenSettingsFile FileName=" + file)));
    EXPECT_THAT(errors(), IsEmpty());
}

TEST_F(DialogMainFileTest, changesNothingWhenThePromptIsCancelled) {
    capture(1);
    choose("Open Animation File...");
    EXPECT_THAT(rows(), ElementsAre("View 1"));
    EXPECT_EQ(dialog().currentFile().fileName(), "animation.keyframe");
}

TEST_F(DialogMainFileTest, leavesEverythingAsItWasAfterAFailure) {
    capture(1);
    open(folder.write("broken.keyframe", header + settingsBlock("FadeIn true\n") +
                                             "%KeyFrameView\nWidth wide\n%KeyFrameView\n"));
    EXPECT_THAT(errors(), ElementsAre(HasSubstr("Error reading key frame settings file.")));
    EXPECT_THAT(rows(), ElementsAre("View 1"));
    EXPECT_EQ(dialog().settings(), defaultSettings());
    EXPECT_EQ(dialog().currentFile().fileName(), "animation.keyframe");
    EXPECT_FALSE(dialog().currentFile().fileHasBeenSelected());
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogMainFileTest, saysSoWhenAKeyFrameHasNoPlace) {
    capture(1);
    open(folder.write("nowhere.keyframe", header + "%KeyFrameView\nName \"Bow\"\n%KeyFrameView\n"));
    EXPECT_THAT(errors(),
                ElementsAre(testing::StartsWith("Error reading key frame settings file.\n\n")));
    EXPECT_GT(errors().front().size(),
              std::string("Error reading key frame settings file.\n\n").size());
    EXPECT_THAT(rows(), ElementsAre("View 1"));
    EXPECT_FALSE(dialog().currentFile().fileHasBeenSelected());
}

TEST_F(DialogMainFileTest, keepsAnEarlierFileAfterAFailure) {
    const std::string good = folder.write("good.keyframe", header + block("Name \"Bow\"\n"));
    open(good);
    open(folder.file("missing.keyframe"));
    EXPECT_EQ(errors().size(), 1u);
    EXPECT_EQ(dialog().currentFile().fileName(), good);
    EXPECT_TRUE(dialog().currentFile().fileHasBeenSelected());
}

TEST_F(DialogMainFileTest, hasNothingToSaveWithoutKeyFrames) {
    choose("Save Animation File");
    choose("Save Animation File As...");
    EXPECT_THAT(errors(), ElementsAre("No Key Frames established.", "No Key Frames established."));
    EXPECT_EQ(prompts(), 0u);
}

TEST_F(DialogMainFileTest, asksForAFileOnce) {
    capture(1);
    host.prompts().answerFile(folder.file("orbit.keyframe"));
    choose("Save Animation File");
    EXPECT_THAT(folder.read("orbit.keyframe"), HasSubstr("View 1"));
    EXPECT_THAT(host.prompts().shown().back(),
                (ShownDialog{Kind::FileToWrite, "Key Frame Animation", "animation.keyframe",
                             "*.keyframe"}));
    capture(1);
    choose("Save Animation File");
    EXPECT_THAT(folder.read("orbit.keyframe"), HasSubstr("View 2"));
    EXPECT_EQ(prompts(), 1u);
    EXPECT_THAT(errors(), IsEmpty());
}

TEST_F(DialogMainFileTest, savesNothingWhenThePromptIsCancelled) {
    capture(1);
    choose("Save Animation File");
    choose("Save Animation File As...");
    EXPECT_EQ(prompts(), 2u);
    EXPECT_FALSE(dialog().currentFile().fileHasBeenSelected());
}

TEST_F(DialogMainFileTest, alwaysAsksToSaveAs) {
    capture(1);
    host.prompts().answerFile(folder.file("one.keyframe"));
    choose("Save Animation File As...");
    host.prompts().answerFile(folder.file("two.keyframe"));
    choose("Save Animation File As...");
    EXPECT_TRUE(folder.has("one.keyframe"));
    EXPECT_TRUE(folder.has("two.keyframe"));
    EXPECT_EQ(dialog().currentFile().fileName(), folder.file("two.keyframe"));
}

TEST_F(DialogMainFileTest, savesToTheOpenedFileWithoutAsking) {
    open(folder.write("orbit.keyframe", header + block("Name \"Bow\"\n")));
    model().setName(0, "Mast");
    choose("Save Animation File");
    EXPECT_EQ(prompts(), 1u);
    EXPECT_THAT(folder.read("orbit.keyframe"), HasSubstr("Mast"));
}

TEST_F(DialogMainFileTest, asksWhereToSaveWhatAMacroOpened) {
    capture(1);
    dialog().onSettingsFileRead(folder.file("macro.keyframe"));
    choose("Save Animation File");
    EXPECT_EQ(prompts(), 1u);
    EXPECT_EQ(host.prompts().shown().back().defaultName, folder.file("macro.keyframe"));
}

TEST_F(DialogMainFileTest, saysWhenAFileCannotBeWritten) {
    capture(1);
    host.prompts().answerFile(folder.file("no such folder/orbit.keyframe"));
    choose("Save Animation File");
    EXPECT_EQ(errors().size(), 1u);
    EXPECT_EQ(lockDepth(), 0);
}

} // namespace
