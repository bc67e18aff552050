// Tests of files that appear under their name only when they are complete.
#include "host/core/base/PartFile.h"

#include "host/core/base/HostError.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class PartFileTest : public testing::Test {
protected:
    static std::string failureOf(const std::string& destination) {
        try {
            const PartFile file(destination);
        } catch (const HostError& error) {
            return error.what();
        }
        return {};
    }

    test::TempFolder folder;
};

TEST_F(PartFileTest, standsBesideItsDestination) {
    const PartFile file(folder.file("movie.mp4"));
    EXPECT_EQ(file.destination(), folder.file("movie.mp4"));
    EXPECT_EQ(file.path(), folder.file("movie.mp4.part"));
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4.part"));
}

TEST_F(PartFileTest, namesItsDestinationInMessagesAboutItsPath) {
    const PartFile file(folder.file("a.part"));
    EXPECT_EQ(file.namingDestination("No room for " + file.path() + " (" + file.path() + ")."),
              "No room for " + file.destination() + " (" + file.destination() + ").");
    EXPECT_EQ(file.namingDestination("The disk is full."), "The disk is full.");
}

TEST_F(PartFileTest, disappearsUnlessItIsCommitted) {
    folder.write("movie.mp4", "older");
    {
        const PartFile file(folder.file("movie.mp4"));
        folder.write("movie.mp4.part", "half");
    }
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
    EXPECT_EQ(folder.read("movie.mp4"), "older");
}

TEST_F(PartFileTest, takesThePlaceOfTheOlderFileWhenItIsCommitted) {
    folder.write("movie.mp4", "older");
    {
        PartFile file(folder.file("movie.mp4"));
        folder.write("movie.mp4.part", "newer");
        EXPECT_EQ(folder.read("movie.mp4"), "older");
        file.commit();
    }
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
    EXPECT_EQ(folder.read("movie.mp4"), "newer");
}

TEST_F(PartFileTest, overwritesThePartOfAnEarlierCrash) {
    folder.write("movie.mp4.part", "left by a crash");
    PartFile file(folder.file("movie.mp4"));
    EXPECT_EQ(folder.read("movie.mp4.part"), "");
}

TEST_F(PartFileTest, worksInTheCurrentFolder) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    PartFile file("movie.mp4");
    file.commit();
    std::filesystem::current_path(before);
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
}

TEST_F(PartFileTest, refusesAMissingFolder) {
    const std::string failure = failureOf(folder.file("missing/movie.mp4"));
    EXPECT_THAT(failure, HasSubstr(folder.file("missing/movie.mp4")));
    EXPECT_THAT(failure, HasSubstr("there is no folder " + folder.file("missing")));
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(PartFileTest, refusesAFileInPlaceOfTheFolder) {
    folder.write("file", "");
    EXPECT_THAT(failureOf(folder.file("file/movie.mp4")), HasSubstr("there is no folder"));
}

TEST_F(PartFileTest, refusesAFolderAsDestination) {
    std::filesystem::create_directory(folder.file("movie.mp4"));
    EXPECT_THAT(failureOf(folder.file("movie.mp4")), HasSubstr("it is a folder"));
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
}

TEST_F(PartFileTest, refusesToReplaceWhatIsNoRegularFile) {
    ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
    EXPECT_THAT(failureOf(folder.file("pipe")), HasSubstr("it is not a regular file"));
    EXPECT_THAT(folder.names(), ElementsAre("pipe"));
}

TEST_F(PartFileTest, refusesANameThatTheDiskCannotHold) {
    EXPECT_THAT(failureOf(folder.file(std::string(255, 'm'))), HasSubstr("Cannot write"));
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(PartFileTest, refusesAFolderThatCannotBeWrittenTo) {
    // Permissions do not bind everybody; nobody makes files in /proc.
    EXPECT_THAT(failureOf("/proc/movie.mp4"), HasSubstr("Cannot write /proc/movie.mp4: "));
}

TEST_F(PartFileTest, aCommitThatFailsLeavesTheOlderFileAlone) {
    folder.write("movie.mp4", "older");
    PartFile file(folder.file("movie.mp4"));
    std::filesystem::remove(folder.file("movie.mp4.part"));
    EXPECT_THROW(file.commit(), HostError);
    EXPECT_EQ(folder.read("movie.mp4"), "older");
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
}

TEST_F(PartFileTest, aCommitThatCannotRenameRemovesThePart) {
    PartFile file(folder.file("movie.mp4"));
    std::filesystem::create_directory(folder.file("movie.mp4")); // meanwhile, by somebody else
    EXPECT_THROW(file.commit(), HostError);
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
}

} // namespace
} // namespace corvane::host
