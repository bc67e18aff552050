// A key frame file becomes a movie: the program's main job, over real data, decoded again.
#include "host/app/Flight.h"
#include "tests/app/BatchHost.h"
#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/host/movie/DecodedMovie.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using namespace corvane;
using namespace corvane::test;
using movie_test::DecodedMovie;
using movie_test::psnr;

namespace {

constexpr int width = 320;
constexpr int height = 180;

TEST(Flight, becomesAMovieOfItsFramesSizeAndRate) {
    const TempFolder folder;
    const std::string movie = folder.file("flight.mp4");
    writeFile(movie, "an older movie");
    const ProgramResult result = runProgram(shortRun(folder, movie));
    ASSERT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, testing::HasSubstr("flight.mp4: 12 frames in "));

    const DecodedMovie decoded(movie);
    EXPECT_EQ(decoded.frames, static_cast<long>(shortFlightFrames));
    EXPECT_EQ(decoded.width, width);
    EXPECT_EQ(decoded.height, height);
    EXPECT_EQ(decoded.rateNumerator, 30);
    EXPECT_EQ(decoded.rateDenominator, 1);
    EXPECT_NEAR(decoded.duration, 12 / 30.0, 1e-3);
    EXPECT_FALSE(folder.hasParts());
}

TEST(Flight, takesRateAndSizeFromTheCommandLine) {
    const TempFolder folder;
    const std::string movie = folder.file("flight.mp4");
    auto arguments = shortRun(folder, movie);
    arguments.back() = "161x91";
    arguments.insert(arguments.end(), {"--fps", "23.976", "--supersample", "2"});
    const ProgramResult result = runProgram(arguments);
    ASSERT_EQ(result.exitCode, 0) << result.errors;

    const DecodedMovie decoded(movie);
    EXPECT_EQ(decoded.frames, static_cast<long>(shortFlightFrames));
    EXPECT_EQ(decoded.width, 162); // padded: the codec needs even sizes
    EXPECT_EQ(decoded.height, 92);
    EXPECT_EQ(decoded.rateNumerator, 2997); // 23.976
    EXPECT_EQ(decoded.rateDenominator, 125);
}

TEST(Flight, takesTheSpeedThatAMacroSets) {
    const TempFolder folder;
    const std::string movie = folder.file("flight.mp4");
    auto arguments = shortRun(folder, movie);
    writeFile(folder.file("speed.mcr"), "$!EXPORTSETUP AnimationSpeed = 12.5\n");
    arguments.insert(arguments.end(), {"--macro", folder.file("speed.mcr")});
    ASSERT_EQ(runProgram(arguments).exitCode, 0);
    const DecodedMovie decoded(movie);
    EXPECT_EQ(decoded.rateNumerator, 25);
    EXPECT_EQ(decoded.rateDenominator, 2);
}

TEST(Flight, beginsAndEndsWithTheKeyViews) {
    const TempFolder folder;
    const std::string movie = folder.file("flight.mp4");
    ASSERT_EQ(runProgram(shortRun(folder, movie)).exitCode, 0);
    const DecodedMovie decoded(movie);

    BatchHost host;
    const host::Picture first = host.pictureFrom({4, -24, 11}, 70, 0, 0);
    const host::Picture second = host.pictureFrom({-14, -16, 11}, 70, 48, 0);
    const host::Picture last = host.pictureFrom({-6, -9, 18}, 40, 48, 5);
    EXPECT_GE(psnr(decoded.picture(0), first), 30.0);
    EXPECT_GE(psnr(decoded.picture(6), second), 30.0);
    EXPECT_GE(psnr(decoded.picture(11), last), 30.0);
    // The views are not alike, so the figures above say something.
    EXPECT_LT(psnr(first, last), 25.0);
    EXPECT_LT(psnr(first, second), 25.0);
}

TEST(Flight, drawsEachFrameOnceAndNothingElse) {
    const TempFolder folder;
    BatchHost host;
    app::Options options;
    options.keyFrames = folder.file("short.keyframe");
    options.output = folder.file("flight.mp4");
    options.width = width;
    options.height = height;
    writeFile(options.keyFrames, shortFlight());

    ASSERT_EQ(host.program.session().drawing().renders(), 0U);
    app::fly(host.program, options);
    EXPECT_EQ(host.program.session().drawing().renders(), shortFlightFrames);
    EXPECT_EQ(host.program.session().exporter().frames(), shortFlightFrames);
    EXPECT_EQ(host.program.session().locks().depth(), 0);
    EXPECT_EQ(host.program.session().drawing().suspensions(), 0);
}

TEST(Flight, isMadeAgainByTheMacroRecordedOfIt) {
    const TempFolder folder;
    const std::string movie = folder.file("flight.mp4");
    auto arguments = shortRun(folder, movie);
    arguments.insert(arguments.end(), {"--record", folder.file("flight.mcr")});
    ASSERT_EQ(runProgram(arguments).exitCode, 0);
    const auto pictures = DecodedMovie(movie).pictures();
    fs::remove(movie);

    const ProgramResult result = runProgram({"--batch", "--macro", folder.file("flight.mcr")});
    ASSERT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_TRUE(DecodedMovie(movie).pictures() == pictures);
}

TEST(Flight, canBeTraced) {
    const TempFolder folder;
    const std::string trace = folder.file("calls.txt");
    auto arguments = shortRun(folder, folder.file("flight.mp4"));
    arguments.insert(arguments.end(), {"--trace", trace});
    ASSERT_EQ(runProgram(arguments).exitCode, 0);
    const std::string calls = readFile(trace);
    EXPECT_THAT(calls, testing::HasSubstr("CorUtilAddOnRegister(110, \"Key Frame Animation\""));
    EXPECT_THAT(calls, testing::HasSubstr("CorUtilExportStart() = TRUE"));
    EXPECT_THAT(calls, testing::Not(testing::HasSubstr("misuse")));
}

} // namespace
