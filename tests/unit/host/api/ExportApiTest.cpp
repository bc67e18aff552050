// Recording of movies.
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"
#include "tests/support/TempFolder.h"

#include <limits>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class ExportApiTest : public HostTest {
protected:
    ExportApiTest() {
        host.session().exportSetup().fileName = folder.file("flight.avi");
        host.session().exportSetup().imageWidth = 16;
    }

    void expectNothingWritten() const {
        EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
        EXPECT_EQ(CorUtilExportIsRecording(), FALSE);
    }

    TempFolder folder;
};

TEST_F(ExportApiTest, theStartRecordsTheFirstPicture) {
    ASSERT_EQ(CorUtilExportStart(), TRUE);
    EXPECT_EQ(CorUtilExportIsRecording(), TRUE);
    EXPECT_EQ(CorUtilExportNextFrame(), TRUE);
    EXPECT_EQ(CorUtilExportFinish(), TRUE);
    EXPECT_EQ(CorUtilExportIsRecording(), FALSE);
    ASSERT_THAT(host.movies().movies(), SizeIs(1));
    EXPECT_EQ(host.movies().movies().front().pictures, 2U);
    EXPECT_TRUE(host.movies().movies().front().finished);
    EXPECT_EQ(folder.read("flight.avi"), "2 pictures\n");
    EXPECT_EQ(host.renderer().renders(), 2U);
    EXPECT_FALSE(host.renderer().states().front().onScreen);
}

TEST_F(ExportApiTest, picturesShowThePresentStateUnderLocksAndWithoutDrawing) {
    CorUtilLockStart(nullptr);
    CorUtilDrawGraphics(FALSE);
    CorUtilExportStart();
    CorUtilSolutionTimeSetCurrent(2.0);
    CorUtilExportNextFrame();
    CorUtilExportFinish();
    CorUtilDrawGraphics(TRUE);
    ASSERT_EQ(host.renderer().renders(), 2U);
    EXPECT_EQ(host.renderer().states()[0].solutionTime, 0.0);
    EXPECT_EQ(host.renderer().states()[1].solutionTime, 2.0);
    CorUtilLockFinish(nullptr);
}

TEST_F(ExportApiTest, aCancelledMovieLeavesWhatStoodThere) {
    folder.write("flight.avi", "older");
    CorUtilExportStart();
    EXPECT_EQ(CorUtilExportCancel(), TRUE);
    EXPECT_EQ(folder.read("flight.avi"), "older");
    EXPECT_FALSE(folder.hasParts());
    EXPECT_TRUE(host.movies().movies().front().abandoned);
}

TEST_F(ExportApiTest, aStartThatFailsLeavesNothing) {
    host.movies().failOpen();
    EXPECT_EQ(CorUtilExportStart(), FALSE);
    expectNothingWritten();
    host.movies().failAt(1);
    EXPECT_EQ(CorUtilExportStart(), FALSE);
    expectNothingWritten();
    host.renderer().failAt(1);
    EXPECT_EQ(CorUtilExportStart(), FALSE);
    expectNothingWritten();
}

TEST_F(ExportApiTest, withoutNameFrameOrMovieFormatNothingStarts) {
    host.session().exportSetup().fileName.clear();
    EXPECT_EQ(CorUtilExportStart(), FALSE);
    host.session().exportSetup().fileName = folder.file("flight.avi");
    host.session().exportSetup().format = 3;
    EXPECT_EQ(CorUtilExportStart(), FALSE);
    host.session().exportSetup().format = ExportFormat_AVI;
    host.session().silentPage().deleteFrame(host.frame().id());
    EXPECT_EQ(CorUtilExportStart(), FALSE);
    expectNothingWritten();
}

TEST_F(ExportApiTest, aSecondStartIsMisuseAndTheMovieGoesOn) {
    host.expectMisuse("CorUtilExportStart: a movie is being recorded already");
    CorUtilExportStart();
    EXPECT_EQ(CorUtilExportStart(), FALSE);
    EXPECT_EQ(CorUtilExportNextFrame(), TRUE);
    EXPECT_EQ(CorUtilExportFinish(), TRUE);
    EXPECT_EQ(folder.read("flight.avi"), "2 pictures\n");
}

TEST_F(ExportApiTest, withoutAMovieThereIsNothingToGoOnWith) {
    host.expectMisuse("CorUtilExportNextFrame: nothing is recorded");
    host.expectMisuse("CorUtilExportFinish: nothing is recorded");
    host.expectMisuse("CorUtilExportCancel: nothing is recorded");
    EXPECT_EQ(CorUtilExportNextFrame(), FALSE);
    EXPECT_EQ(CorUtilExportFinish(), FALSE);
    EXPECT_EQ(CorUtilExportCancel(), FALSE);
}

TEST_F(ExportApiTest, aFailureStopsTheNextCheckAndIsRemembered) {
    CorUtilStatusStartPercentDone("Exporting", TRUE, TRUE);
    CorUtilExportStart();
    EXPECT_EQ(CorUtilStatusCheckPercentDone(10), TRUE);
    host.movies().failAt(1);
    EXPECT_EQ(CorUtilExportNextFrame(), FALSE);
    EXPECT_EQ(CorUtilStatusCheckPercentDone(20), FALSE);
    EXPECT_EQ(CorUtilExportNextFrame(), FALSE);
    EXPECT_EQ(CorUtilExportCancel(), TRUE);
    CorUtilStatusFinishPercentDone();
    EXPECT_EQ(host.session().exporter().failure(), "The picture could not be encoded.");
    expectNothingWritten();
}

TEST_F(ExportApiTest, aFinishThatFailsLeavesNothing) {
    CorUtilExportStart();
    host.movies().failFinish();
    EXPECT_EQ(CorUtilExportFinish(), FALSE);
    expectNothingWritten();
}

TEST_F(ExportApiTest, settingsTakeTheArgumentOfTheirType) {
    EXPECT_EQ(CorUtilExportSetup("ExportFormat", nullptr, ExportFormat_WMV, 0.0), TRUE);
    EXPECT_EQ(CorUtilExportSetup("exportregion", nullptr, ExportRegion_WorkArea, 0.0), TRUE);
    EXPECT_EQ(CorUtilExportSetup("ImageWidth", nullptr, 640, 0.0), TRUE);
    EXPECT_EQ(CorUtilExportSetup("AnimationSpeed", nullptr, 0, 12.5), TRUE);
    EXPECT_EQ(CorUtilExportSetup("UseSuperSampleAntiAliasing", nullptr, 1, 0.0), TRUE);
    EXPECT_EQ(CorUtilExportSetup("SuperSampleFactor", nullptr, 2, 0.0), TRUE);
    EXPECT_EQ(CorUtilExportSetup("AVICompression", nullptr, 2, 0.0), TRUE);
    EXPECT_EQ(CorUtilExportSetup("FlashImageType", nullptr, 1, 0.0), TRUE);
    EXPECT_EQ(CorUtilExportSetup("FlashCompressionType", nullptr, 1, 0.0), TRUE);
    EXPECT_EQ(CorUtilExportSetup("ExportFName", "a.wmv", 0, 0.0), TRUE);
    const host::ExportSetup& setup = host.session().exportSetup();
    EXPECT_EQ(setup.format, ExportFormat_WMV);
    EXPECT_EQ(setup.region, ExportRegion_WorkArea);
    EXPECT_EQ(setup.imageWidth, 640);
    EXPECT_EQ(setup.animationSpeed, 12.5);
    EXPECT_TRUE(setup.useSuperSampleAntiAliasing);
    EXPECT_EQ(setup.superSampleFactor, 2);
    EXPECT_EQ(setup.aviCompression, 2);
    EXPECT_EQ(setup.flashImageType, 1);
    EXPECT_EQ(setup.flashCompressionType, 1);
    EXPECT_EQ(setup.fileName, "a.wmv");
}

TEST_F(ExportApiTest, theSameValueAgainIsFine) {
    EXPECT_EQ(CorUtilExportSetup("ImageWidth", nullptr, 16, 0.0), TRUE);
}

TEST_F(ExportApiTest, settingsAndStyleValuesAreTheSame) {
    CorUtilExportSetup("AnimationSpeed", nullptr, 0, 12.5);
    double speed = 0.0;
    EXPECT_EQ(toolbox::StyleValue("ExportSetup").getDouble(speed, "AnimationSpeed"), StyleGet_Ok);
    EXPECT_EQ(speed, 12.5);
}

TEST_F(ExportApiTest, badSettingsAreRefused) {
    EXPECT_EQ(CorUtilExportSetup("Colour", nullptr, 1, 0.0), FALSE);
    EXPECT_EQ(CorUtilExportSetup("", nullptr, 1, 0.0), FALSE);
    EXPECT_EQ(CorUtilExportSetup("ImageWidth", nullptr, 3, 0.0), FALSE);
    EXPECT_EQ(CorUtilExportSetup("ImageWidth", nullptr, 32767, 0.0), FALSE);
    EXPECT_EQ(CorUtilExportSetup("AnimationSpeed", nullptr, 30, 0.0), FALSE);
    EXPECT_EQ(
        CorUtilExportSetup("AnimationSpeed", nullptr, 0, std::numeric_limits<double>::quiet_NaN()),
        FALSE);
    EXPECT_EQ(CorUtilExportSetup("ExportFName", nullptr, 0, 0.0), FALSE);
    EXPECT_EQ(host.session().exportSetup().imageWidth, 16);
    EXPECT_EQ(host.session().exportSetup().animationSpeed, 30.0);
    EXPECT_EQ(host.session().exportSetup().fileName, folder.file("flight.avi"));
}

TEST_F(ExportApiTest, settingsStayWhileAMovieIsRecorded) {
    CorUtilExportStart();
    EXPECT_EQ(CorUtilExportSetup("ImageWidth", nullptr, 640, 0.0), FALSE);
    CorUtilExportCancel();
    EXPECT_EQ(CorUtilExportSetup("ImageWidth", nullptr, 640, 0.0), TRUE);
}

TEST_F(ExportApiTest, aSettingWithoutNameIsMisuse) {
    host.expectMisuse("CorUtilExportSetup: name is NULL");
    EXPECT_EQ(CorUtilExportSetup(nullptr, "a", 1, 1.0), FALSE);
}

TEST_F(ExportApiTest, callsAreTraced) {
    CorUtilExportSetup("ExportFName", "a \"b\".avi", 0, 0.0);
    CorUtilExportSetup("AnimationSpeed", nullptr, 0, 0.1);
    EXPECT_THAT(host.calls(),
                ElementsAre("CorUtilExportSetup(\"ExportFName\", \"a \\\"b\\\".avi\", 0, 0)",
                            "CorUtilExportSetup(\"AnimationSpeed\", NULL, 0, 0.1)"));
}

} // namespace
} // namespace corvane::test
