// The end of a chain that goes into an animation file.
#include "addon/engine/AnimatorToFile.h"

#include "addon/base/KeyFrameError.h"
#include "hostapi/CorHost.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/EngineTest.h"

#include <memory>

namespace corvane::test {
namespace {

using corutiltools::AnimatorToFile;
using corutiltools::KeyFrameError;

class AnimatorToFileTest : public EngineTest {
protected:
    AnimatorToFileTest() {
        chooseFormat(ExportFormat_AVI);
        host.session().exportSetup().fileName = folder.file("flight.avi");
    }

    // Codes beyond the enumeration stand for still pictures.
    void chooseFormat(int code) { host.session().exportSetup().format = code; }

    static std::string errorOf(AnimatorToFile& animator) {
        try {
            animator.drawFrameAtIndex(0);
        } catch (const KeyFrameError& error) {
            return error.what();
        }
        return "";
    }

    const TempFolder folder;
    const KeyFrames keyFrames = keyFramesForFrames(10);
};

TEST_F(AnimatorToFileTest, opensTheExportWithTheFirstFrameAndClosesItAtTheEnd) {
    {
        AnimatorToFile animator(keyFrames);
        EXPECT_THAT(calls(), IsEmpty());
        for (unsigned long i = 0; i < 10; ++i) {
            animator.drawFrame(i);
        }
        EXPECT_EQ(callsTo("CorUtilExportStart").size(), 1u);
        EXPECT_EQ(callsTo("CorUtilExportNextFrame").size(), 9u);
        EXPECT_EQ(callsTo("CorUtilExportFinish").size(), 0u);
    }
    EXPECT_EQ(callsTo("CorUtilExportFinish").size(), 1u);
    EXPECT_EQ(callsTo("CorUtilExportCancel").size(), 0u);
    EXPECT_FALSE(host.session().exporter().isRecording());
}

TEST_F(AnimatorToFileTest, checksTheExportInOrder) {
    {
        AnimatorToFile animator(keyFrames);
        animator.drawFrameAtIndex(0);
        animator.drawFrameAtIndex(1);
    }
    EXPECT_THAT(callNames(), ElementsAre("CorUtilExportIsRecording", "CorUtilStyleGet",
                                         "CorUtilExportStart", "CorUtilExportNextFrame",
                                         "CorUtilExportIsRecording", "CorUtilExportFinish"));
}

TEST_F(AnimatorToFileTest, takesFramesAsTheyCome) {
    AnimatorToFile animator(keyFrames);
    animator.drawFrameAtIndex(7);
    animator.drawFrameAtIndex(7);
    animator.drawFrameAtIndex(2);
    EXPECT_EQ(callsTo("CorUtilExportStart").size(), 1u);
    EXPECT_EQ(callsTo("CorUtilExportNextFrame").size(), 2u);
}

TEST_F(AnimatorToFileTest, acceptsTheSixAnimationFormats) {
    for (int code : {0, 14, 17, 20, 21, 22}) {
        chooseFormat(code);
        AnimatorToFile animator(keyFrames);
        EXPECT_EQ(errorOf(animator), "") << code;
    }
}

TEST_F(AnimatorToFileTest, refusesOtherFormats) {
    for (int code : {-1, 1, 13, 15, 16, 18, 19, 23, 100}) {
        chooseFormat(code);
        host.clearCalls();
        AnimatorToFile animator(keyFrames);
        EXPECT_EQ(errorOf(animator), "The export file format must be set to an animation format \n"
                                     "before animating to file.")
            << code;
        EXPECT_THAT(callsTo("CorUtilExportStart"), IsEmpty());
    }
}

TEST_F(AnimatorToFileTest, refusesAFormatThatCannotBeRead) {
    AnimatorToFile animator(keyFrames);
    host.failNext("CorUtilStyleGet");
    EXPECT_EQ(errorOf(animator), "The export file format must be set to an animation format \n"
                                 "before animating to file.");
}

TEST_F(AnimatorToFileTest, thatCannotStartFinishesNothing) {
    {
        AnimatorToFile animator(keyFrames);
        host.failNext("CorUtilExportStart");
        EXPECT_EQ(errorOf(animator), "Unable to start animation export.");
    }
    EXPECT_THAT(callsTo("CorUtilExportFinish"), IsEmpty());
}

TEST_F(AnimatorToFileTest, triesAgainAfterAFailedStart) {
    AnimatorToFile animator(keyFrames);
    host.failNext("CorUtilExportStart");
    EXPECT_NE(errorOf(animator), "");
    EXPECT_EQ(errorOf(animator), "");
    EXPECT_TRUE(host.session().exporter().isRecording());
}

TEST_F(AnimatorToFileTest, leavesAnExportOfSomebodyElseAlone) {
    ASSERT_TRUE(CorUtilExportStart());
    host.clearCalls();
    {
        AnimatorToFile animator(keyFrames);
        EXPECT_EQ(errorOf(animator),
                  "Unable to start animation export. Another export is already in progress.");
    }
    EXPECT_TRUE(host.session().exporter().isRecording());
    EXPECT_THAT(calls(), ElementsAre("CorUtilExportIsRecording()"));
    CorUtilExportCancel();
}

TEST_F(AnimatorToFileTest, cancelLeavesNothingToFinish) {
    {
        AnimatorToFile animator(keyFrames);
        animator.drawFrameAtIndex(0);
        animator.cancelAnimation();
    }
    EXPECT_EQ(callsTo("CorUtilExportCancel").size(), 1u);
    EXPECT_THAT(callsTo("CorUtilExportFinish"), IsEmpty());
}

TEST_F(AnimatorToFileTest, cancelBeforeTheFirstFrameDoesNothing) {
    AnimatorToFile animator(keyFrames);
    animator.cancelAnimation();
    EXPECT_THAT(calls(), ElementsAre("CorUtilExportIsRecording()"));
}

TEST_F(AnimatorToFileTest, ignoresFramesThatCannotBeAppended) {
    AnimatorToFile animator(keyFrames);
    animator.drawFrameAtIndex(0);
    host.failNext("CorUtilExportNextFrame");
    animator.drawFrameAtIndex(1);
    animator.drawFrameAtIndex(2);
    EXPECT_EQ(callsTo("CorUtilExportNextFrame").size(), 2u);
}

TEST_F(AnimatorToFileTest, refusesFewerThanTwoKeyFrames) {
    EXPECT_THROW(AnimatorToFile(keyFramesWithCounts({5})), KeyFrameError);
    EXPECT_THAT(calls(), IsEmpty());
}

} // namespace
} // namespace corvane::test
