// What moves while the camera stands: solution time, markers, light. Over real data, decoded again.
#include "host/app/Flight.h"
#include "tests/app/BatchHost.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/host/movie/DecodedMovie.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace corvane;
using namespace corvane::test;
using movie_test::DecodedMovie;
using movie_test::psnr;

namespace {

constexpr int stepCount = 24;
constexpr double stepLength = 0.6;
constexpr double lastTime = 13.8;

constexpr const char* scene = "$!INCLUDE \"wake.mcr\"\n$!STYLE Annotations/ShowTime = false\n"
                              "$!STYLE Annotations/ShowOutline = false\n";
constexpr const char* traces = "$!STYLE IsoSurface/1/Show = false\n"
                               "$!STYLE Streamtraces/Variable = U\n"
                               "$!STYLE Streamtraces/SeedStart/X = -2\n"
                               "$!STYLE Streamtraces/SeedStart/Y = -1\n"
                               "$!STYLE Streamtraces/SeedStart/Z = 1\n"
                               "$!STYLE Streamtraces/SeedEnd/X = -2\n"
                               "$!STYLE Streamtraces/SeedEnd/Y = 1\n"
                               "$!STYLE Streamtraces/SeedEnd/Z = 1\n"
                               "$!STYLE Streamtraces/SeedCount = 8\n"
                               "$!STYLE Streamtraces/Radius = 0.08\n"
                               "$!STYLE Streamtraces/Show = true\n"
                               "$!STYLE StreamAttributes/StreamTiming/DeltaTime = 2\n"
                               "$!STYLE StreamAttributes/StreamTiming/TimeAnchor = 0.25\n";

class MovingFlight : public testing::Test {
protected:
    MovingFlight() { host.play(scene); }

    /// Flies, and decodes the movie.
    std::vector<host::Picture> fly(const StandingFlight& flight) {
        app::Options options;
        options.keyFrames = folder.write("standing.keyframe", flight.keyFrameFile());
        options.output = folder.file("flight.mp4");
        options.width = host.width;
        options.height = host.height;
        app::fly(host.program, options);
        return DecodedMovie(options.output).pictures();
    }

    /// Stands where the flight stands.
    void takePlace() {
        host.play("$!VIEW SET Psi = 78 Theta = 0 Alpha = 0 X = 4.6 Y = -18.1 Z = 6.2\n"
                  "$!STYLE ThreeDAxis/FrameAxis/Show = false\n");
    }
    host::Picture pictureAt(double time) {
        host.program.session().setSolutionTime(time);
        return host.picture();
    }

    TempFolder folder;
    BatchHost host;
};

/// Which of the pictures this one is most like.
std::size_t mostLike(const host::Picture& picture, const std::vector<host::Picture>& candidates) {
    std::vector<double> likeness;
    for (const host::Picture& candidate : candidates) {
        likeness.push_back(psnr(picture, candidate));
    }
    return static_cast<std::size_t>(std::max_element(likeness.begin(), likeness.end()) -
                                    likeness.begin());
}

class FlightThroughTime : public MovingFlight {
protected:
    /// The time steps that the movie's pictures show.
    std::vector<int> stepsOf(const StandingFlight& flight) {
        host.play("$!STYLE ThreeDAxis/FrameAxis/Show = false\n");
        const std::vector<host::Picture> movie = fly(flight);
        takePlace();
        std::vector<host::Picture> steps;
        for (int step = 0; step < stepCount; ++step) {
            steps.push_back(pictureAt(step * stepLength));
        }
        std::vector<int> shown;
        for (const host::Picture& picture : movie) {
            shown.push_back(static_cast<int>(mostLike(picture, steps)));
        }
        return shown;
    }
};

/// The step shown at a time.
int stepAt(double time) {
    return static_cast<int>(time / stepLength + 1e-6);
}

/// Steps of evenly spaced times, both ends included.
std::vector<int> evenly(int count, double from, double to) {
    std::vector<int> steps;
    for (int i = 0; i < count; ++i) {
        steps.push_back(stepAt(from + i * (to - from) / (count - 1)));
    }
    return steps;
}

std::vector<int> joined(std::initializer_list<std::vector<int>> lists) {
    std::vector<int> all;
    for (const std::vector<int>& list : lists) {
        all.insert(all.end(), list.begin(), list.end());
    }
    return all;
}

std::vector<int> reversed(std::vector<int> list) {
    std::reverse(list.begin(), list.end());
    return list;
}

TEST_F(FlightThroughTime, forwardRunsOnceFromTheFirstStepToTheLast) {
    EXPECT_EQ(stepsOf({.frames = 31, .timeOperation = "Forward", .cycles = 5}),
              evenly(31, 0.0, lastTime));
}

TEST_F(FlightThroughTime, loopStartsAgainAndWaitsAtTheEnd) {
    const auto one = evenly(15, 0.0, lastTime);
    EXPECT_EQ(stepsOf({.frames = 31, .timeOperation = "Loop", .cycles = 2}),
              joined({one, one, {23}}));
}

TEST_F(FlightThroughTime, bounceTurnsTwiceAndEndsAtTheLastStep) {
    const auto up = evenly(8, 0.0, lastTime);
    EXPECT_EQ(stepsOf({.frames = 33, .timeOperation = "Bounce", .cycles = 2}),
              joined({up, reversed(up), up, reversed(up), {23}}));
}

TEST_F(FlightThroughTime, asCapturedGoesFromOneCapturedTimeToTheNext) {
    EXPECT_EQ(
        stepsOf({.frames = 17, .timeOperation = "AsCaptured", .firstTime = 12.0, .lastTime = 2.4}),
        evenly(17, 12.0, 2.4));
}

class FlightWithTraces : public MovingFlight, public testing::WithParamInterface<const char*> {};

TEST_P(FlightWithTraces, advancesTheAnchorByAFifthOfTheDeltaBeforeEachFrame) {
    host.play(traces);
    host.play(std::string("$!STYLE StreamAttributes/StreamTiming/") + GetParam() + " = true\n");
    host.play("$!STYLE ThreeDAxis/FrameAxis/Show = false\n");
    const std::vector<host::Picture> movie = fly({.frames = 4, .streamtraces = true});
    takePlace();
    host::StreamTimingStyle& timing =
        host.program.session().silentPage().active()->style.streamTiming;
    EXPECT_EQ(timing.timeAnchor, 0.25);
    std::vector<host::Picture> fifths;
    for (int fifth = 0; fifth < 5; ++fifth) {
        timing.timeAnchor = 0.25 + fifth * 0.4;
        fifths.push_back(host.picture());
    }
    ASSERT_EQ(movie.size(), 4U);
    for (std::size_t frame = 0; frame < movie.size(); ++frame) {
        EXPECT_EQ(mostLike(movie[frame], fifths), frame + 1);
        EXPECT_GE(psnr(movie[frame], fifths[frame + 1]), 30.0);
    }
}

INSTANTIATE_TEST_SUITE_P(Timing, FlightWithTraces, testing::Values("ShowMarkers", "ShowDashes"),
                         [](const auto& name) { return std::string(name.param); });

class FadingFlight : public MovingFlight {
protected:
    /// With the light at a part of what it is.
    host::Picture pictureAtLight(double part) {
        host::LightStyle& light = host.program.session().silentPage().active()->style.light;
        const host::LightStyle full = light;
        light = {full.intensity * part, full.backgroundLight * part};
        host::Picture picture = host.picture();
        light = full;
        return picture;
    }
};

/// How much of a picture is black, 0..1.
double blackPart(const host::Picture& picture) {
    long black = 0;
    for (std::size_t i = 0; i < picture.rgba.size(); i += 4) {
        black += picture.rgba[i] < 24 && picture.rgba[i + 1] < 24 && picture.rgba[i + 2] < 24;
    }
    return static_cast<double>(black) / (picture.width * picture.height);
}

TEST_F(FadingFlight, beginsAndEndsWithBlackSurfaces) {
    const std::vector<host::Picture> movie = fly({.frames = 40, .fadeIn = true, .fadeOut = true});
    takePlace();
    ASSERT_EQ(movie.size(), 40U); // so both fades take 4 frames
    const std::vector<std::pair<std::size_t, double>> light{
        {0, 0.0},  {1, 0.25},  {2, 0.5},  {4, 1.0},   {5, 1.0},
        {35, 1.0}, {36, 0.75}, {37, 0.5}, {38, 0.25}, {39, 0.0}};
    for (const auto& [frame, part] : light) {
        EXPECT_GE(psnr(movie[frame], pictureAtLight(part)), 30.0) << frame;
    }
    EXPECT_GT(blackPart(movie.front()), 0.2) << "of the wall and the body";
    EXPECT_GT(blackPart(movie.back()), 0.2);
    EXPECT_LT(blackPart(movie[20]), 0.1);
}

TEST_F(FadingFlight, hidesTheOrientationAxisAllTheWay) {
    const host::Picture withAxis = [&] {
        takePlace();
        host.play("$!STYLE ThreeDAxis/FrameAxis/Show = true\n");
        return host.picture();
    }();
    const std::vector<host::Picture> movie = fly({.frames = 20, .fadeOut = true});
    EXPECT_TRUE(host.program.session().page().active()->style.annotations.showAxis);
    takePlace();
    const host::Picture withoutAxis = host.picture();
    EXPECT_GT(psnr(movie[10], withoutAxis), psnr(movie[10], withAxis));
}

} // namespace
