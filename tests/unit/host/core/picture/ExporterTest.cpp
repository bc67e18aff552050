// Tests of recording: what is refused, what is written, and what a failure leaves behind.
#include "host/core/picture/Exporter.h"

#include "host/core/addons/Locks.h"
#include "host/core/base/HostError.h"
#include "host/core/files/InputFiles.h"
#include "host/core/files/PartName.h"
#include "host/core/page/Page.h"
#include "host/core/picture/Drawing.h"
#include "host/core/picture/ExportSetup.h"
#include "tests/support/MemoryHost.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <exception>
#include <filesystem>
#include <string>
#include <vector>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ExporterTest : public testing::Test {
protected:
    ExporterTest() {
        page.createFrame({0, 0, 4, 3});
        setup.fileName = folder.file("movie.avi");
        setup.imageWidth = 40;
        folder.write("movie.avi", "older");
    }

    const test::MemoryMovie& movie() const { return movies.movies().at(0); }
    /// No movie came into being, and the one that was there is untouched.
    void expectNothingWritten() const {
        EXPECT_FALSE(exporter.isRecording());
        EXPECT_THAT(folder.names(), ElementsAre("movie.avi"));
        EXPECT_EQ(folder.read("movie.avi"), "older");
    }
    void expectRefused(const char* reason) {
        EXPECT_FALSE(exporter.start());
        EXPECT_THAT(exporter.failure(), HasSubstr(reason));
        EXPECT_THAT(movies.movies(), IsEmpty()) << "refused before anything is opened";
        EXPECT_EQ(renderer.renders(), 0U) << "refused before anything is drawn";
        expectNothingWritten();
    }

    test::TempFolder folder;
    const std::string part = PartName("movie.avi", 255).numbered(1);
    Page page;
    Locks locks;
    ExportSetup setup;
    test::MemoryRenderer renderer;
    test::MemoryMovies movies;
    Drawing drawing{page, locks, renderer, nullptr, nullptr};
    std::vector<std::string> told;
    Exporter exporter{page,     setup,  drawing,
                      renderer, movies, [this](const std::string& note) { told.push_back(note); }};
};

TEST_F(ExporterTest, recordsTheCurrentPictureFirstAndOneForEachCall) {
    EXPECT_TRUE(exporter.start());
    EXPECT_TRUE(exporter.isRecording());
    EXPECT_EQ(exporter.frames(), 1U);
    EXPECT_EQ(drawing.renders(), 1U);
    EXPECT_EQ(movie().pictures, 1U);
    EXPECT_TRUE(exporter.nextFrame());
    EXPECT_EQ(movie().pictures, 2U);
    EXPECT_EQ(folder.read("movie.avi"), "older");
    EXPECT_TRUE(exporter.finish());
    EXPECT_FALSE(exporter.isRecording());
    EXPECT_EQ(exporter.frames(), 2U);
    EXPECT_EQ(drawing.renders(), 2U);
    EXPECT_TRUE(movie().finished);
    EXPECT_THAT(folder.names(), ElementsAre("movie.avi"));
    EXPECT_EQ(folder.read("movie.avi"), "2 pictures\n");
    EXPECT_FALSE(exporter.hasFailed());
}

TEST_F(ExporterTest, handsTheSetupToTheWriter) {
    setup.format = ExportFormat_FlashSWF;
    setup.animationSpeed = 12.5;
    setup.aviCompression = AVICompression_ColorPreserving;
    setup.flashImageType = FlashImageType_JPEG;
    setup.flashCompressionType = FlashCompressionType_SmallestSize;
    ASSERT_TRUE(exporter.start());
    const MovieRequest& request = movie().request;
    EXPECT_EQ(request.path, folder.file(part));
    EXPECT_EQ(request.format, ExportFormat_FlashSWF);
    EXPECT_EQ(request.width, 40);
    EXPECT_EQ(request.height, 30);
    EXPECT_EQ(request.framesPerSecond, 12.5);
    EXPECT_EQ(request.aviCompression, AVICompression_ColorPreserving);
    EXPECT_EQ(request.flashImageType, FlashImageType_JPEG);
    EXPECT_EQ(request.flashCompression, FlashCompressionType_SmallestSize);
}

TEST_F(ExporterTest, theHeightFollowsFromTheRegion) {
    setup.imageWidth = 33;
    page.active()->placement = {0, 0, 4, 1};
    ASSERT_TRUE(exporter.start());
    exporter.cancel();
    setup.region = ExportRegion_WorkArea; // 16 : 9
    ASSERT_TRUE(exporter.start());
    exporter.cancel();
    setup.imageWidth = 4;
    setup.region = ExportRegion_CurrentFrame;
    page.active()->placement = {0, 0, 100, 1};
    ASSERT_TRUE(exporter.start());
    EXPECT_THAT(renderer.requests(),
                ElementsAre(PictureRequest{ExportRegion_CurrentFrame, 33, 8, 1},
                            PictureRequest{ExportRegion_WorkArea, 33, 19, 1},
                            PictureRequest{ExportRegion_CurrentFrame, 4, 1, 1}));
}

TEST_F(ExporterTest, supersamplesOnlyWhenItIsOn) {
    setup.superSampleFactor = 4;
    ASSERT_TRUE(exporter.start());
    exporter.cancel();
    setup.useSuperSampleAntiAliasing = true;
    ASSERT_TRUE(exporter.start());
    EXPECT_EQ(renderer.requests()[0].supersample, 1);
    EXPECT_EQ(renderer.requests()[1].supersample, 4);
}

TEST_F(ExporterTest, keepsTheSizeOfItsPicturesWhateverChanges) {
    ASSERT_TRUE(exporter.start());
    page.active()->placement = {0, 0, 1, 9};
    setup.imageWidth = 999;
    ASSERT_TRUE(exporter.nextFrame());
    EXPECT_EQ(renderer.requests()[1], renderer.requests()[0]);
}

TEST_F(ExporterTest, refusesASecondMovieAndGoesOnWithTheFirst) {
    ASSERT_TRUE(exporter.start());
    EXPECT_FALSE(exporter.start());
    EXPECT_FALSE(exporter.hasFailed());
    EXPECT_TRUE(exporter.nextFrame());
    EXPECT_TRUE(exporter.finish());
    EXPECT_EQ(folder.read("movie.avi"), "2 pictures\n");
}

TEST_F(ExporterTest, refusesAFormatWithoutMovies) {
    setup.format = 5;
    expectRefused("The export format 5 holds no movies.");
}

TEST_F(ExporterTest, refusesAnEmptyFileName) {
    setup.fileName.clear();
    expectRefused("no file name");
}

TEST_F(ExporterTest, refusesAPageWithoutFrames) {
    page.deleteFrame(page.active()->id());
    expectRefused("no frame");
}

TEST_F(ExporterTest, refusesARegionWithoutExtent) {
    setup.region = ExportRegion_WorkArea;
    page.workArea.height = 0;
    expectRefused("Choose another region");
    page.workArea = {0, 0, 160};
    expectRefused("Choose another region");
}

TEST_F(ExporterTest, refusesPicturesTooLargeToDraw) {
    setup.useSuperSampleAntiAliasing = true; // 3 times
    renderer.setLargestSize(119);
    expectRefused("120 pixels");
    renderer.setLargestSize(120);
    EXPECT_TRUE(exporter.start());
}

TEST_F(ExporterTest, refusesPicturesTooHighToDraw) {
    page.active()->placement = {0, 0, 1, 500};
    renderer.setLargestSize(16384);
    expectRefused("20000 pixels");
}

TEST_F(ExporterTest, refusesAFolderThatIsMissing) {
    setup.fileName = folder.file("missing/movie.avi");
    expectRefused("there is no folder");
}

TEST_F(ExporterTest, aWriterThatCannotBeOpenedLeavesNothing) {
    movies.failOpen("There is no such encoder.");
    EXPECT_FALSE(exporter.start());
    EXPECT_EQ(exporter.failure(), "There is no such encoder.");
    EXPECT_EQ(renderer.renders(), 0U) << "it is opened before a picture is made";
    expectNothingWritten();
}

TEST_F(ExporterTest, aWriterThatCannotBeOpenedIsToldWithTheNameOfTheDestination) {
    movies.failOpen("The movie \"" + folder.file(part) + "\" has no encoder.");
    EXPECT_FALSE(exporter.start());
    EXPECT_EQ(exporter.failure(), "The movie \"" + folder.file("movie.avi") + "\" has no encoder.");
}

TEST_F(ExporterTest, whatAKilledRunHasLeftIsRemovedAndTold) {
    folder.write(part, "left");
    ASSERT_TRUE(exporter.start());
    EXPECT_THAT(told, ElementsAre(HasSubstr("Removed " + part)));
    EXPECT_TRUE(exporter.finish());
    EXPECT_THAT(folder.names(), ElementsAre("movie.avi"));
}

TEST_F(ExporterTest, aFileThatIsReadIsRefused) {
    inputFiles().add(folder.file("movie.avi"));
    expectRefused("this run reads that file");
}

TEST_F(ExporterTest, aFirstPictureThatCannotBeDrawnLeavesNothing) {
    renderer.failAt(1);
    EXPECT_FALSE(exporter.start());
    EXPECT_EQ(exporter.failure(), "The picture could not be drawn.");
    EXPECT_TRUE(movie().abandoned);
    EXPECT_EQ(exporter.frames(), 0U);
    expectNothingWritten();
}

TEST_F(ExporterTest, aFirstPictureThatCannotBeWrittenLeavesNothing) {
    movies.failAt(1);
    EXPECT_FALSE(exporter.start());
    EXPECT_EQ(exporter.failure(), "The picture could not be encoded.");
    expectNothingWritten();
}

TEST_F(ExporterTest, aFailureWithoutATextHasOneAllTheSame) {
    movies.failAt(1, std::make_exception_ptr(7));
    EXPECT_FALSE(exporter.start());
    EXPECT_TRUE(exporter.hasFailed());
    expectNothingWritten();
}

TEST_F(ExporterTest, remembersTheFirstFailureAndRefusesFurtherPictures) {
    movies.failAt(2);
    ASSERT_TRUE(exporter.start());
    EXPECT_FALSE(exporter.nextFrame());
    EXPECT_EQ(exporter.failure(), "The picture could not be encoded.");
    EXPECT_TRUE(exporter.isRecording()) << "until the add-on cancels or finishes it";
    EXPECT_FALSE(exporter.nextFrame());
    EXPECT_EQ(drawing.renders(), 2U);
    EXPECT_EQ(exporter.frames(), 1U);
    EXPECT_TRUE(exporter.cancel());
    EXPECT_EQ(exporter.failure(), "The picture could not be encoded.");
    expectNothingWritten();
}

TEST_F(ExporterTest, finishingAfterAFailureFailsAndLeavesNothing) {
    movies.failAt(2);
    ASSERT_TRUE(exporter.start());
    EXPECT_FALSE(exporter.nextFrame());
    EXPECT_FALSE(exporter.finish());
    EXPECT_EQ(exporter.failure(), "The picture could not be encoded.");
    EXPECT_TRUE(movie().abandoned);
    expectNothingWritten();
}

TEST_F(ExporterTest, aFinishThatFailsLeavesNothing) {
    movies.failFinish();
    ASSERT_TRUE(exporter.start());
    EXPECT_FALSE(exporter.finish());
    EXPECT_EQ(exporter.failure(), "The movie could not be completed.");
    expectNothingWritten();
}

TEST_F(ExporterTest, aMovieThatCannotTakeItsPlaceLeavesNothing) {
    ASSERT_TRUE(exporter.start());
    std::filesystem::remove(folder.file("movie.avi"));
    std::filesystem::create_directory(folder.file("movie.avi"));
    EXPECT_FALSE(exporter.finish());
    EXPECT_THAT(exporter.failure(), HasSubstr(folder.file("movie.avi")));
    EXPECT_FALSE(exporter.isRecording());
    EXPECT_THAT(folder.names(), ElementsAre("movie.avi"));
}

TEST_F(ExporterTest, cancelClosesTheWriterAndRemovesThePart) {
    ASSERT_TRUE(exporter.start());
    EXPECT_THAT(folder.names(), ElementsAre("movie.avi", part));
    EXPECT_TRUE(exporter.cancel());
    EXPECT_TRUE(movie().abandoned);
    EXPECT_FALSE(exporter.hasFailed());
    expectNothingWritten();
}

TEST_F(ExporterTest, withoutARecordingThereIsNothingToDo) {
    EXPECT_FALSE(exporter.nextFrame());
    EXPECT_FALSE(exporter.finish());
    EXPECT_FALSE(exporter.cancel());
    EXPECT_FALSE(exporter.hasFailed());
    EXPECT_THAT(movies.movies(), IsEmpty());
}

TEST_F(ExporterTest, aNewMovieForgetsTheFailureOfTheLast) {
    movies.failAt(1);
    EXPECT_FALSE(exporter.start());
    EXPECT_TRUE(exporter.start());
    EXPECT_FALSE(exporter.hasFailed());
    EXPECT_EQ(exporter.frames(), 1U);
}

TEST_F(ExporterTest, itsEndRemovesAMovieThatIsNotComplete) {
    {
        Exporter other(page, setup, drawing, renderer, movies, {});
        ASSERT_TRUE(other.start());
    }
    EXPECT_TRUE(movie().abandoned);
    expectNothingWritten();
}

} // namespace
} // namespace corvane::host
