// The main dialog without its window.
#include "tests/unit/addon/ui/DialogMainTest.h"

#include "tests/unit/addon/lists/RecordingObserver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

const KeyFrame_s keyFrame{View(1, 2, 3, 4, 5, 6, 7), "View 1", 30, 0.5};

TEST_F(DialogMainTest, startsWithItsDefaults) {
    EXPECT_EQ(dialog.settings(), defaultSettings());
    EXPECT_EQ(dialog.model().size(), 0u);
    EXPECT_EQ(dialog.currentFile().fileName(), "animation.keyframe");
    EXPECT_EQ(dialog.currentFile().extension(), "keyframe");
    EXPECT_FALSE(dialog.currentFile().fileHasBeenSelected());
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(DialogMainTest, isOneForTheProcess) {
    EXPECT_EQ(&DialogMain::instance(), &dialog);
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(DialogMainTest, namesItsFilesInPrompts) {
    EXPECT_FALSE(dialog.currentFile().promptForFile(SelectFile_Read));
    EXPECT_THAT(host.prompts().shown(),
                ElementsAre(ShownDialog{ShownDialog::Kind::FileToRead, "Key Frame Animation",
                                        "animation.keyframe", "*.keyframe"}));
}

TEST_F(DialogMainTest, takesOverSettings) {
    const Settings_s settings{
        {true, TimeAnimationOperation_Bounce, 5}, Destination_ToFile, true, true, true};
    dialog.applySettings(settings);
    EXPECT_EQ(dialog.settings(), settings);
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(DialogMainTest, takesOverKeyFramesWithOneReport) {
    RecordingObserver observer;
    dialog.model().addObserver(observer);
    ListModelKeyFrame model;
    model.setDataList({keyFrame, keyFrame});
    dialog.applyDataModel(model);
    EXPECT_THAT(dialog.model().dataList(), ElementsAre(keyFrame, keyFrame));
    EXPECT_THAT(observer.changes,
                ElementsAre(ChangeInfo_s{ListModelGenericInterface::ModelReset, {}}));
    EXPECT_EQ(model.size(), 2u);
    dialog.model().removeObserver(observer);
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(DialogMainTest, makesAFileThatWasReadTheCurrentOne) {
    dialog.onSettingsFileRead("/flights/orbit.kf");
    EXPECT_EQ(dialog.currentFile().fileName(), "/flights/orbit.kf");
    EXPECT_EQ(dialog.currentFile().extension(), "kf");
    EXPECT_FALSE(dialog.currentFile().fileHasBeenSelected());
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(DialogMainTest, mayBeLaunchedOverASpatialPlot) {
    EXPECT_TRUE(DialogMain::okToLaunch());
    EXPECT_THAT(host.calls(), ElementsAre(lockStart, "CorUtilFrameGetCount()",
                                          "CorUtilFrameGetPlotType()", lockFinish));
}

TEST_F(DialogMainTest, mayBeLaunchedWithoutData) {
    host.setData(nullptr);
    EXPECT_TRUE(DialogMain::okToLaunch());
}

TEST_F(DialogMainTest, mayNotBeLaunchedOverAnotherPlot) {
    for (const PlotType_e type : {PlotType_Cartesian2D, PlotType_None}) {
        host.setPlotType(type);
        EXPECT_FALSE(DialogMain::okToLaunch());
    }
}

TEST_F(DialogMainTest, mayNotBeLaunchedWithoutFrame) {
    host.session().silentPage().deleteFrame(host.frame().id());
    EXPECT_FALSE(DialogMain::okToLaunch());
}

TEST_F(DialogMainTest, releasesTheLockWhenTheHostThrows) {
    host.throwAt("CorUtilFrameGetPlotType");
    EXPECT_THROW(DialogMain::okToLaunch(), std::runtime_error);
}

} // namespace
