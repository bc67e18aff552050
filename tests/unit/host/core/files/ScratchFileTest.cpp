// Tests of files of one run alone.
#include "host/core/files/ScratchFile.h"

#include "host/core/files/PartName.h"
#include "tests/support/TempFolder.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <optional>
#include <system_error>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

class ScratchFileTest : public testing::Test {
protected:
    static bool isLocked(const std::string& path) {
        const int file = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
        const bool isFree = ::flock(file, LOCK_EX | LOCK_NB) == 0;
        ::close(file);
        return !isFree;
    }

    test::TempFolder folder;
    const std::string movie = folder.file("movie.mp4");
    const PartName names{"movie.mp4", 255};
};

TEST_F(ScratchFileTest, standsBesideItsDestinationAndGoes) {
    {
        const ScratchFile file(movie);
        EXPECT_EQ(file.path(), folder.file(names.numbered(1)));
        EXPECT_THAT(folder.names(), ElementsAre(names.numbered(1)));
    }
    EXPECT_THAT(folder.names(), ElementsAre());
}

TEST_F(ScratchFileTest, hasTheRightsOfAnyNewFile) {
    const ScratchFile file(movie);
    const auto usual = std::filesystem::status(folder.write("usual", "")).permissions();
    EXPECT_EQ(std::filesystem::status(file.path()).permissions(), usual);
}

TEST_F(ScratchFileTest, isLockedWhoeverWritesToIt) {
    std::optional<ScratchFile> file(std::in_place, movie);
    folder.write(names.numbered(1), "written by others");
    EXPECT_TRUE(isLocked(file->path()));
    file->moveTo(movie);
    EXPECT_TRUE(isLocked(movie));
    file.reset();
    EXPECT_FALSE(isLocked(movie));
    EXPECT_EQ(folder.read("movie.mp4"), "written by others");
}

TEST_F(ScratchFileTest, leavesAloneWhatHasItsName) {
    folder.write(names.numbered(1), "precious");
    folder.write("target", "precious");
    std::filesystem::create_symlink(folder.file("target"), folder.file(names.numbered(2)));
    ASSERT_EQ(::mkfifo(folder.file(names.numbered(3)).c_str(), 0600), 0);
    std::filesystem::create_symlink("nowhere", folder.file(names.numbered(4)));
    {
        const ScratchFile file(movie);
        EXPECT_EQ(file.path(), folder.file(names.numbered(5)));
    }
    EXPECT_EQ(folder.read(names.numbered(1)), "precious");
    EXPECT_EQ(folder.read("target"), "precious");
    EXPECT_THAT(folder.names(), UnorderedElementsAre("target", names.numbered(1), names.numbered(2),
                                                     names.numbered(3), names.numbered(4)));
}

TEST_F(ScratchFileTest, severalHaveNamesOfTheirOwn) {
    const ScratchFile one(movie);
    const ScratchFile another(movie);
    const ScratchFile third(one.path());
    EXPECT_THAT(folder.names(),
                UnorderedElementsAre(names.numbered(1), names.numbered(2), names.numbered(3)));
}

TEST_F(ScratchFileTest, worksForTheLongestName) {
    const std::string name(255, 'm');
    ScratchFile file(folder.file(name));
    file.moveTo(folder.file(name));
    EXPECT_THAT(folder.names(), ElementsAre(name));
}

TEST_F(ScratchFileTest, tellsWhyItCannotBeMade) {
    try {
        const ScratchFile file(folder.file("missing/movie.mp4"));
        FAIL();
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
    }
}

TEST_F(ScratchFileTest, aMoveThatFailsLeavesNothing) {
    std::filesystem::create_directory(movie);
    {
        ScratchFile file(movie);
        EXPECT_THROW(file.moveTo(movie), std::system_error);
    }
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
}

} // namespace
} // namespace corvane::host
