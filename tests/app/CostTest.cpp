// What a flight through real data costs, counted: renders, reads, contours, integrations, memory.
#include "host/app/Flight.h"
#include "tests/app/BatchHost.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <fstream>

using namespace corvane;
using namespace corvane::test;

namespace {

constexpr int stepCount = 24;

class Cost : public testing::Test {
protected:
    void fly(const StandingFlight& flight) {
        app::Options options;
        options.keyFrames = folder.write("standing.keyframe", flight.keyFrameFile());
        options.output = folder.file("flight.mp4");
        options.width = host.width;
        options.height = host.height;
        app::fly(host.program, options);
    }

    TempFolder folder;
    BatchHost host{96, 54};
};

/// The largest resident size of this process so far, in kB.
long peakMemory() {
    std::ifstream status("/proc/self/status");
    std::string word;
    long size = 0;
    while (status >> word) {
        if (word == "VmHWM:") {
            status >> size;
        }
    }
    return size;
}

TEST_F(Cost, eachStepIsReadContouredAndIntegratedOnce) {
    host.play("$!INCLUDE \"wake.mcr\"\n"
              "$!STYLE Streamtraces/Variable = U\n$!STYLE Streamtraces/Show = true\n"
              "$!STYLE StreamAttributes/StreamTiming/ShowMarkers = true\n");
    fly({.frames = 300, .timeOperation = "Forward", .streamtraces = true, .fadeIn = true});
    EXPECT_EQ(host.program.session().drawing().renders(), 300U);
    EXPECT_EQ(host.statistics->renders, 300);
    // The scene's macro read the data again, so the body and three steps count twice.
    EXPECT_EQ(host.statistics->fileReads, stepCount + 1 + 4);
    EXPECT_EQ(host.statistics->contourRuns, stepCount);
    EXPECT_EQ(host.statistics->sliceRuns, stepCount);
    EXPECT_EQ(host.statistics->streamRuns, stepCount);
    EXPECT_EQ(host.statistics->surfaceRuns, 1) << "the body does not change";
}

TEST_F(Cost, timeThatComesBackCostsNothingNew) {
    host.play("$!INCLUDE \"wake.mcr\"\n");
    fly({.frames = 200, .timeOperation = "Bounce", .cycles = 2});
    EXPECT_EQ(host.statistics->contourRuns, stepCount);
    EXPECT_EQ(host.statistics->fileReads, stepCount + 1 + 4);
}

TEST_F(Cost, aCameraAndALightCostAPictureAlone) {
    host.play("$!INCLUDE \"wake.mcr\"\n");
    host.picture();
    const long reads = host.statistics->fileReads;
    fly({.frames = 40, .fadeIn = true, .fadeOut = true});
    EXPECT_EQ(host.statistics->fileReads, reads);
    EXPECT_EQ(host.statistics->contourRuns, 1);
    EXPECT_EQ(host.statistics->surfaceRuns, 1);
    EXPECT_EQ(host.statistics->sliceRuns, 1);
}

TEST_F(Cost, memoryIsFlatOver2000Frames) {
    host.play("$!INCLUDE \"wake.mcr\"\n$!STYLE Streamtraces/Show = true\n"
              "$!STYLE StreamAttributes/StreamTiming/ShowDashes = true\n");
    long early = 0;
    host.movies.onPicture = [&early](long picture) {
        if (picture == 100) {
            early = peakMemory();
        }
    };
    // Fifty frames a cycle, so that all steps have been shown after a hundred.
    fly({.frames = 2000, .timeOperation = "Loop", .cycles = 40, .streamtraces = true});
    ASSERT_GT(early, 0);
    EXPECT_LE(peakMemory(), early + early / 20);
}

} // namespace
