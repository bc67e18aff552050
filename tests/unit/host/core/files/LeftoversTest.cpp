// Tests of what is removed, and above all of what is not.
#include "host/core/files/Leftovers.h"

#include "host/core/files/PartName.h"
#include "host/core/files/ScratchFile.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class LeftoversTest : public testing::Test {
protected:
    test::TempFolder folder;
    const std::string movie = folder.file("movie.mp4");
    const PartName names{"movie.mp4", 255};
};

TEST_F(LeftoversTest, areRemovedAndNamed) {
    folder.write("movie.mp4", "older");
    folder.write(names.numbered(1), "half");
    folder.write(names.numbered(2), "half");
    EXPECT_THAT(removeLeftovers(movie), UnorderedElementsAre(names.numbered(1), names.numbered(2)));
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
}

TEST_F(LeftoversTest, ofARunThatGoesOnAreNone) {
    const ScratchFile file(movie);
    EXPECT_THAT(removeLeftovers(movie), IsEmpty());
    EXPECT_THAT(folder.names(), ElementsAre(names.numbered(1)));
}

TEST_F(LeftoversTest, ofOtherFilesAndMachinesStay) {
    folder.write("movie.mp4.part", "not ours");
    folder.write("movie.mp4.elsewhere-12.part", "of another machine");
    folder.write(PartName("movie.avi", 255).numbered(1), "of another movie");
    EXPECT_THAT(removeLeftovers(movie), IsEmpty());
    EXPECT_EQ(folder.names().size(), 3U);
}

TEST_F(LeftoversTest, areRegularFilesOnly) {
    folder.write("precious", "precious");
    std::filesystem::create_symlink(folder.file("precious"), folder.file(names.numbered(1)));
    ASSERT_EQ(::mkfifo(folder.file(names.numbered(2)).c_str(), 0600), 0);
    std::filesystem::create_directory(folder.file(names.numbered(3)));
    EXPECT_THAT(removeLeftovers(movie), IsEmpty());
    EXPECT_EQ(folder.names().size(), 4U);
    EXPECT_EQ(folder.read("precious"), "precious");
}

TEST_F(LeftoversTest, areNotLookedForInAMissingFolder) {
    EXPECT_THAT(removeLeftovers(folder.file("missing/movie.mp4")), IsEmpty());
}

} // namespace
} // namespace corvane::host
