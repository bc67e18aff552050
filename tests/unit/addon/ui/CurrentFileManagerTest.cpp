// The current file, and asking the user for another one.
#include "addon/ui/CurrentFileManager.h"
#include "tests/support/HostTest.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/RegisteredAddOn.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

using Kind = ShownDialog::Kind;

std::string withExtension(std::string name, const std::string& extension) {
    addFileNameExtension(name, extension);
    return name;
}

TEST(AddFileNameExtension, appendsWhereThereIsNoDot) {
    EXPECT_EQ(withExtension("flight", "keyframe"), "flight.keyframe");
    EXPECT_EQ(withExtension("", "keyframe"), ".keyframe");
    EXPECT_EQ(withExtension("/a/b", "c"), "/a/b.c");
}

TEST(AddFileNameExtension, replacesWhatFollowsTheLastDot) {
    EXPECT_EQ(withExtension("flight.old", "keyframe"), "flight.keyframe");
    EXPECT_EQ(withExtension("flight.old.older", "keyframe"), "flight.old.keyframe");
    EXPECT_EQ(withExtension("flight.", "keyframe"), "flight.keyframe");
    EXPECT_EQ(withExtension("flight.keyframe", "keyframe"), "flight.keyframe");
    EXPECT_EQ(withExtension("flight.avi", ""), "flight.");
}

TEST(AddFileNameExtension, cutsAtTheDotOfADirectory) {
    EXPECT_EQ(withExtension("/my.flights/orbit", "keyframe"), "/my.keyframe");
    EXPECT_EQ(withExtension("../orbit", "keyframe"), "..keyframe");
}

TEST(FileExists, meansThatItCanBeRead) {
    const TempFolder folder;
    EXPECT_FALSE(fileExists(folder.file("a")));
    EXPECT_TRUE(fileExists(folder.write("a", "")));
}

TEST(CurrentFileManager, givesItsDefaultNameTheExtension) {
    EXPECT_EQ(CurrentFileManager("animation", "keyframe", "x").fileName(), "animation.keyframe");
    EXPECT_EQ(CurrentFileManager("animation.old", "keyframe", "x").fileName(),
              "animation.keyframe");
    const CurrentFileManager manager("a", "keyframe", "x");
    EXPECT_EQ(manager.extension(), "keyframe");
    EXPECT_FALSE(manager.fileHasBeenSelected());
}

TEST(CurrentFileManager, takesTheExtensionOfANewName) {
    CurrentFileManager manager("a", "keyframe", "x");
    manager.setFileName("/flights/b.kf");
    EXPECT_EQ(manager.fileName(), "/flights/b.kf");
    EXPECT_EQ(manager.extension(), "kf");
    EXPECT_FALSE(manager.fileHasBeenSelected());
}

TEST(CurrentFileManager, givesANewNameWithoutExtensionItsOwn) {
    for (const auto& [name, stored] : std::vector<std::pair<std::string, std::string>>{
             {"b", "b.keyframe"}, {"b.", "b.keyframe"}, {"", ".keyframe"}}) {
        CurrentFileManager manager("a", "keyframe", "x");
        manager.setFileName(name);
        EXPECT_EQ(manager.fileName(), stored);
        EXPECT_EQ(manager.extension(), "keyframe");
    }
}

TEST(CurrentFileManager, takesADirectorysDotForAnExtension) {
    CurrentFileManager manager("a", "keyframe", "x");
    manager.setFileName("/my.flights/b");
    EXPECT_EQ(manager.fileName(), "/my.flights/b");
    EXPECT_EQ(manager.extension(), "flights/b");
}

TEST(CurrentFileManager, appliesANewExtension) {
    CurrentFileManager manager("a", "avi", "x");
    manager.setExtension("mp4");
    EXPECT_EQ(manager.fileName(), "a.mp4");
    EXPECT_EQ(manager.extension(), "mp4");
}

std::string extensionQuestion(const std::string& name) {
    return "You have specified an extension other than the default file extension\n"
           "Are you sure you want to save the file as " +
           name + "\nClick \"No\" to restore the default file extension.";
}

std::string overwriteQuestion(const std::string& name) {
    return "The file: " + name + " exists.\nAre you sure you want to overwrite it?";
}

class FilePromptTest : public HostTest {
protected:
    // Chooses this name in the next prompt.
    bool choose(const std::string& name, SelectFileOption_e option) {
        host.prompts().answerFile(name);
        return manager.promptForFile(option);
    }

    std::vector<std::string> questions() { return host.prompts().shown(Kind::Question); }

    void expectUnchanged() const {
        EXPECT_EQ(manager.fileName(), "flight.keyframe");
        EXPECT_EQ(manager.extension(), "keyframe");
        EXPECT_FALSE(manager.fileHasBeenSelected());
    }

    const RegisteredAddOn registration;
    const TempFolder folder;
    CurrentFileManager manager{"flight", "keyframe", "Key Frames"};
};

TEST_F(FilePromptTest, asksTheHostUnderALock) {
    EXPECT_FALSE(manager.promptForFile(SelectFile_Write));
    expectUnchanged();
    EXPECT_THAT(host.prompts().shown(), ElementsAre(ShownDialog{Kind::FileToWrite, "Key Frames",
                                                                "flight.keyframe", "*.keyframe"}));
    EXPECT_THAT(host.callsOf("CorUtilLock"), ElementsAre(lockStart, lockFinish));
    EXPECT_EQ(host.records().at(host.records().size() - 2).depth, 1);
}

TEST_F(FilePromptTest, keepsANameWithTheDefaultExtension) {
    const std::string name = folder.file("a.keyframe");
    EXPECT_TRUE(choose(name, SelectFile_Write));
    EXPECT_EQ(manager.fileName(), name);
    EXPECT_TRUE(manager.fileHasBeenSelected());
    EXPECT_THAT(questions(), IsEmpty());
}

TEST_F(FilePromptTest, givesANameWithoutExtensionTheDefaultWithoutAsking) {
    EXPECT_TRUE(choose("/flights/a", SelectFile_Read));
    EXPECT_EQ(manager.fileName(), "/flights/a.keyframe");
    EXPECT_TRUE(choose("/flights/b.", SelectFile_Read));
    EXPECT_EQ(manager.fileName(), "/flights/b.keyframe");
    EXPECT_THAT(questions(), IsEmpty());
}

TEST_F(FilePromptTest, asksAboutAnotherExtensionWhateverTheOption) {
    for (const SelectFileOption_e option : {SelectFile_Read, SelectFile_Write}) {
        host.prompts().clear();
        EXPECT_TRUE(choose("/flights/a.txt", option));
        EXPECT_THAT(questions(), ElementsAre(extensionQuestion("/flights/a.txt")));
        EXPECT_EQ(manager.fileName(), "/flights/a.keyframe");
    }
    EXPECT_THAT(host.callsOf("CorUtilDialogMessageBox").front(), testing::EndsWith(", 4)"));
}

TEST_F(FilePromptTest, keepsAnotherExtensionThatIsMeant) {
    host.prompts().answer("other than the default", true);
    EXPECT_TRUE(choose("/flights/a.txt", SelectFile_Read));
    EXPECT_EQ(manager.fileName(), "/flights/a.txt");
    EXPECT_EQ(manager.extension(), "keyframe");
    EXPECT_TRUE(manager.fileHasBeenSelected());
}

TEST_F(FilePromptTest, takesAnotherLetterCaseForAnotherExtension) {
    EXPECT_TRUE(choose("/flights/a.KeyFrame", SelectFile_Read));
    EXPECT_THAT(questions(), ElementsAre(extensionQuestion("/flights/a.KeyFrame")));
    EXPECT_EQ(manager.fileName(), "/flights/a.keyframe");
}

TEST_F(FilePromptTest, keepsTheOldFileWhenOverwritingIsDeclined) {
    const std::string name = folder.write("a.keyframe", "precious");
    EXPECT_FALSE(choose(name, SelectFile_Write));
    EXPECT_THAT(questions(), ElementsAre(overwriteQuestion(name)));
    expectUnchanged();
    EXPECT_EQ(folder.read("a.keyframe"), "precious");
}

TEST_F(FilePromptTest, takesAnExistingFileThatMayBeOverwritten) {
    host.prompts().answer("overwrite", true);
    const std::string name = folder.write("a.keyframe", "old");
    EXPECT_TRUE(choose(name, SelectFile_Write));
    EXPECT_EQ(manager.fileName(), name);
    EXPECT_TRUE(manager.fileHasBeenSelected());
}

TEST_F(FilePromptTest, asksAboutTheNameWithItsRestoredExtension) {
    const std::string name = folder.write("a.keyframe", "old");
    EXPECT_FALSE(choose(folder.file("a.txt"), SelectFile_Write));
    EXPECT_THAT(questions(),
                ElementsAre(extensionQuestion(folder.file("a.txt")), overwriteQuestion(name)));
    expectUnchanged();
}

TEST_F(FilePromptTest, doesNotAskAboutOverwritingWhenReading) {
    for (const int option : {0, 1, 2}) {
        EXPECT_TRUE(
            choose(folder.write("a.keyframe", "old"), static_cast<SelectFileOption_e>(option)));
    }
    EXPECT_THAT(questions(), IsEmpty());
}

TEST_F(FilePromptTest, locksForEachDialog) {
    folder.write("a.keyframe", "old");
    choose(folder.file("a.txt"), SelectFile_Write);
    std::vector<int> depths;
    for (const auto& record : host.records()) {
        if (record.call.starts_with("CorUtilDialog")) {
            depths.push_back(record.depth);
        }
    }
    EXPECT_THAT(depths, ElementsAre(1, 1, 1));
    EXPECT_EQ(host.count("CorUtilLockStart"), 3u);
}

TEST_F(FilePromptTest, takesAHostWithoutMemoryForACancel) {
    host.failNext("CorUtilStringAlloc");
    EXPECT_FALSE(choose("/flights/a.keyframe", SelectFile_Read));
    expectUnchanged();
}

TEST_F(FilePromptTest, releasesTheLockWhenTheHostThrows) {
    host.throwAt("CorUtilDialogGetFileName");
    EXPECT_THROW(manager.promptForFile(SelectFile_Read), std::runtime_error);
    expectUnchanged();
}

TEST_F(FilePromptTest, mayOverwriteWhatDoesNotExist) {
    EXPECT_TRUE(promptForFileOverwrite(folder.file("new")));
    EXPECT_THAT(host.prompts().shown(), IsEmpty());
}

TEST_F(FilePromptTest, asksBeforeOverwriting) {
    const std::string name = folder.write("a", "");
    EXPECT_FALSE(promptForFileOverwrite(name));
    host.prompts().answer("", true);
    EXPECT_TRUE(promptForFileOverwrite(name));
    EXPECT_THAT(questions(), ElementsAre(overwriteQuestion(name), overwriteQuestion(name)));
}

} // namespace
