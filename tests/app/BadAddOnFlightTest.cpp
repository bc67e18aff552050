// A flight beside an add-on that breaks the rules.
#include "tests/app/BadAddOnTest.h"
#include "tests/unit/host/movie/DecodedMovie.h"

#include <gmock/gmock.h>

namespace corvane::test {
namespace {

using movie_test::DecodedMovie;
using testing::HasSubstr;

using BadAddOnFlightTest = BadAddOnTest;

TEST_F(BadAddOnFlightTest, isTheSameAsWithout) {
    ASSERT_EQ(runProgram(shortRun(folder, folder.file("good.mp4"))).exitCode, 0);
    const ProgramResult result =
        perform({"leave a lock", "give back a lock of nobody", "leave drawing suspended",
                 "free a string twice", "free a string of its own", "free a list twice",
                 "free a set twice", "call from a thread", "use an id of nobody", "listen badly"},
                shortRun(folder, folder.file("bad.mp4")));
    ASSERT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.errors, HasSubstr("the listener has no ears"));
    EXPECT_TRUE(DecodedMovie(folder.file("bad.mp4")).pictures() ==
                DecodedMovie(folder.file("good.mp4")).pictures());
}

} // namespace
} // namespace corvane::test
