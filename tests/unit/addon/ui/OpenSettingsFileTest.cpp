// Opening a key frame file for the user or a macro.
#include "addon/ui/OpenSettingsFile.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/ui/DialogMainTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

class OpenSettingsFileTest : public DialogMainTest {
protected:
    const TempFolder folder;
    ReadResult result;
};

TEST_F(OpenSettingsFileTest, readsTellsTheDialogAndRecords) {
    const std::string fileName =
        folder.write("my flight.kf", header + settingsBlock("FadeIn true\n") + block(""));
    host.program().recorder().start();
    OpenSettingsFile(fileName, result.model, result.settings);
    EXPECT_TRUE(result.settings.fadeIn);
    EXPECT_EQ(result.model.size(), 1u);
    EXPECT_EQ(dialog.currentFile().fileName(), fileName);
    EXPECT_EQ(dialog.currentFile().extension(), "kf");
    EXPECT_THAT(
        host.program().recorder().stop(),
        ElementsAre("$!EXTCOMMAND \"Key Frame Animation\" \"OpenSettingsFile FileName=\\\"" +
                    fileName + "\\\"\""));
}

TEST_F(OpenSettingsFileTest, leavesTheDialogsOwnListAndSettingsToTheCaller) {
    const std::string fileName =
        folder.write("a.keyframe", header + settingsBlock("FadeIn true\n") + block(""));
    OpenSettingsFile(fileName, result.model, result.settings);
    EXPECT_EQ(dialog.settings(), defaultSettings());
    EXPECT_EQ(dialog.model().size(), 0u);
}

TEST_F(OpenSettingsFileTest, asksTheHostNothingButWhetherItRecords) {
    OpenSettingsFile(folder.write("a.keyframe", header), result.model, result.settings);
    EXPECT_THAT(host.calls(), ElementsAre(lockStart, lockStart, "CorUtilMacroIsRecordingActive()",
                                          lockFinish, lockFinish));
}

TEST_F(OpenSettingsFileTest, tellsAndRecordsNothingAfterAnError) {
    host.program().recorder().start();
    EXPECT_THROW(OpenSettingsFile(folder.file("missing.kf"), result.model, result.settings),
                 KeyFrameError);
    EXPECT_THROW(OpenSettingsFile(folder.write("a.kf", "nonsense"), result.model, result.settings),
                 KeyFrameError);
    EXPECT_THROW(OpenSettingsFile(folder.write("b.kf", header + "%KeyFrameView\n%KeyFrameView\n"),
                                  result.model, result.settings),
                 std::out_of_range);
    EXPECT_EQ(dialog.currentFile().fileName(), "animation.keyframe");
    EXPECT_THAT(host.program().recorder().stop(), IsEmpty());
    EXPECT_THAT(host.calls(), IsEmpty());
}

} // namespace
