// Tests of files that appear under their name only when they are complete.
#include "host/core/files/PartFile.h"

#include "host/core/base/HostError.h"
#include "host/core/files/InputFiles.h"
#include "host/core/files/PartName.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <vector>

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

    /// Why a part file of this destination, which holds "newer", cannot be completed.
    static std::string failureToCommit(PartFile& file) {
        std::ofstream(file.path()) << "newer";
        try {
            file.commit();
        } catch (const HostError& error) {
            return error.what();
        }
        return {};
    }

    test::TempFolder folder;
    const std::string part = PartName("movie.mp4", 255).numbered(1);
};

TEST_F(PartFileTest, standsBesideItsDestination) {
    const PartFile file(folder.file("movie.mp4"));
    EXPECT_EQ(file.destination(), folder.file("movie.mp4"));
    EXPECT_EQ(file.path(), folder.file(part));
    EXPECT_THAT(folder.names(), ElementsAre(part));
}

TEST_F(PartFileTest, namesItsDestinationInMessagesAboutItsPath) {
    const PartFile file(folder.file("movie.mp4"));
    EXPECT_EQ(file.namingDestination("No room for " + file.path() + " (" + file.path() + ")."),
              "No room for " + file.destination() + " (" + file.destination() + ").");
    EXPECT_EQ(file.namingDestination("The disk is full."), "The disk is full.");
}

TEST_F(PartFileTest, disappearsUnlessItIsCommitted) {
    folder.write("movie.mp4", "older");
    {
        const PartFile file(folder.file("movie.mp4"));
        folder.write(part, "half");
    }
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
    EXPECT_EQ(folder.read("movie.mp4"), "older");
}

TEST_F(PartFileTest, takesThePlaceOfTheOlderFileWhenItIsCommitted) {
    folder.write("movie.mp4", "older");
    {
        PartFile file(folder.file("movie.mp4"));
        folder.write(part, "newer");
        EXPECT_EQ(folder.read("movie.mp4"), "older");
        file.commit();
    }
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
    EXPECT_EQ(folder.read("movie.mp4"), "newer");
}

TEST_F(PartFileTest, severalOfOneDestinationMakeWholeFilesEach) {
    PartFile first(folder.file("movie.mp4"));
    PartFile second(folder.file("movie.mp4"));
    std::ofstream(first.path()) << "first";
    std::ofstream(second.path()) << "second";
    second.commit();
    EXPECT_EQ(folder.read("movie.mp4"), "second");
    first.commit();
    EXPECT_EQ(folder.read("movie.mp4"), "first");
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
}

TEST_F(PartFileTest, removesWhatAKilledRunHasLeftAndTellsIt) {
    folder.write(part, "left by a crash");
    std::vector<std::string> told;
    const PartFile file(folder.file("movie.mp4"),
                        [&told](const std::string& note) { told.push_back(note); });
    EXPECT_EQ(folder.read(part), "");
    EXPECT_THAT(told, ElementsAre("Removed " + part + ", which a run that was killed had left."));
}

TEST_F(PartFileTest, leavesAloneWhatIsCalledAlmostLikeIt) {
    folder.write("precious", "precious");
    for (const char* name : {"movie.mp4.part", "movie.mp4.part.plain"}) {
        std::filesystem::create_symlink("precious", folder.file(name));
    }
    PartFile file(folder.file("movie.mp4"));
    EXPECT_EQ(failureToCommit(file), "");
    EXPECT_EQ(folder.read("precious"), "precious");
    EXPECT_EQ(folder.read("movie.mp4.part"), "precious");
}

TEST_F(PartFileTest, writesWhatALinkNames) {
    std::filesystem::create_directory(folder.file("disk"));
    folder.write("disk/target.mp4", "older");
    std::filesystem::create_symlink("disk/target.mp4", folder.file("link.mp4"));
    std::filesystem::create_symlink(folder.file("link.mp4"), folder.file("movie.mp4"));
    PartFile file(folder.file("movie.mp4"));
    EXPECT_EQ(file.path(), folder.file("disk/" + PartName("target.mp4", 255).numbered(1)));
    EXPECT_EQ(failureToCommit(file), "");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.file("movie.mp4")));
    EXPECT_EQ(folder.read("disk/target.mp4"), "newer");
}

TEST_F(PartFileTest, makesWhatALinkNames) {
    std::filesystem::create_symlink("target.mp4", folder.file("movie.mp4"));
    PartFile file(folder.file("movie.mp4"));
    EXPECT_EQ(failureToCommit(file), "");
    EXPECT_EQ(folder.read("target.mp4"), "newer");
}

TEST_F(PartFileTest, refusesALinkThatNamesItself) {
    std::filesystem::create_symlink("movie.mp4", folder.file("movie.mp4"));
    EXPECT_THAT(failureOf(folder.file("movie.mp4")), HasSubstr("symbolic links"));
}

TEST_F(PartFileTest, refusesWhatThisProcessReads) {
    inputFiles().add(folder.write("data.vtu", "data"));
    std::filesystem::create_symlink("data.vtu", folder.file("movie.mp4"));
    for (const char* name : {"data.vtu", "movie.mp4"}) {
        EXPECT_EQ(failureOf(folder.file(name)),
                  "Cannot write " + folder.file(name) +
                      ": this run reads that file; choose another name.");
    }
    EXPECT_EQ(folder.read("data.vtu"), "data");
}

TEST_F(PartFileTest, refusesWhatThisProcessHasReadMeanwhile) {
    PartFile file(folder.write("data.vtu", "data"));
    inputFiles().add(folder.file("data.vtu"));
    EXPECT_THAT(failureToCommit(file), HasSubstr("this run reads that file"));
    EXPECT_EQ(folder.read("data.vtu"), "data");
}

TEST_F(PartFileTest, refusesNamesOfFilesInTheMaking) {
    EXPECT_THAT(failureOf(folder.file(part)), HasSubstr("those of files in the making"));
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

TEST_F(PartFileTest, worksForTheLongestName) {
    const std::string name = std::string(251, 'm') + ".mp4";
    PartFile file(folder.file(name));
    EXPECT_EQ(failureToCommit(file), "");
    EXPECT_THAT(folder.names(), ElementsAre(name));
}

TEST_F(PartFileTest, refusesANameThatTheDiskCannotHold) {
    EXPECT_THAT(failureOf(folder.file(std::string(256, 'm'))),
                HasSubstr("its name has 256 bytes, and 255 are possible there"));
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(PartFileTest, refusesAFolderThatCannotBeWrittenTo) {
    // Permissions do not bind everybody; nobody makes files in /proc.
    EXPECT_THAT(failureOf("/proc/movie.mp4"), HasSubstr("Cannot write /proc/movie.mp4: "));
}

TEST_F(PartFileTest, aCommitThatFailsLeavesTheOlderFileAlone) {
    folder.write("movie.mp4", "older");
    PartFile file(folder.file("movie.mp4"));
    std::filesystem::remove(folder.file(part));
    try {
        file.commit();
        FAIL();
    } catch (const HostError& error) {
        EXPECT_EQ(std::string(error.what()),
                  "Cannot write " + folder.file("movie.mp4") +
                      ": somebody has removed what was written so far, or its folder.");
    }
    EXPECT_EQ(folder.read("movie.mp4"), "older");
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
}

TEST_F(PartFileTest, aCommitThatCannotRenameRemovesThePart) {
    {
        PartFile file(folder.file("movie.mp4"));
        std::filesystem::create_directory(folder.file("movie.mp4")); // meanwhile, by somebody else
        EXPECT_THAT(failureToCommit(file), HasSubstr("it is a folder"));
    }
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
}

TEST_F(PartFileTest, aCommitIntoAFolderThatIsGoneTellsSo) {
    std::filesystem::create_directory(folder.file("films"));
    PartFile file(folder.file("films/movie.mp4"));
    std::filesystem::remove_all(folder.file("films"));
    try {
        file.commit();
        FAIL();
    } catch (const HostError& error) {
        EXPECT_THAT(error.what(), HasSubstr("there is no folder " + folder.file("films")));
    }
}

} // namespace
} // namespace corvane::host
