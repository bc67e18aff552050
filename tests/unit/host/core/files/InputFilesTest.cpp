// Tests of what a process knows of the files that it reads.
#include "host/core/files/InputFiles.h"

#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace corvane::host {
namespace {

namespace fs = std::filesystem;

class InputFilesTest : public testing::Test {
protected:
    test::TempFolder folder;
    const std::string data = folder.write("data.vtu", "data");
    InputFiles inputs;
};

TEST_F(InputFilesTest, areThoseThatWereAdded) {
    EXPECT_FALSE(inputs.contains(data));
    inputs.add(data);
    EXPECT_TRUE(inputs.contains(data));
    EXPECT_FALSE(inputs.contains(folder.write("other.vtu", "data")));
    EXPECT_FALSE(inputs.contains(folder.file("missing.vtu")));
}

TEST_F(InputFilesTest, areKnownHoweverTheyAreSpelled) {
    inputs.add(data);
    fs::create_directory(folder.file("sub"));
    EXPECT_TRUE(inputs.contains(folder.file("sub/.././data.vtu")));
    fs::create_symlink(folder.path(), folder.file("here"));
    EXPECT_TRUE(inputs.contains(folder.file("here/data.vtu")));
    fs::create_symlink("data.vtu", folder.file("link"));
    EXPECT_TRUE(inputs.contains(folder.file("link")));
    fs::create_hard_link(data, folder.file("twin"));
    EXPECT_TRUE(inputs.contains(folder.file("twin")));

    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    EXPECT_TRUE(inputs.contains("data.vtu"));
    fs::current_path(before);
}

TEST_F(InputFilesTest, mayBeMissingWhenTheyAreAdded) {
    inputs.add(folder.file("later.vtu"));
    EXPECT_TRUE(inputs.contains(folder.file("later.vtu")));
}

TEST_F(InputFilesTest, areKnownByNameWhenTheyWereWrittenAnew) {
    inputs.add(data);
    fs::rename(folder.write("new.vtu", "new data"), data);
    EXPECT_TRUE(inputs.contains(data));
}

TEST_F(InputFilesTest, doNotReturnAsOtherFilesOfTheSameNumber) {
    inputs.add(data);
    fs::create_hard_link(data, folder.file("output.png")); // as if the number were used again
    fs::remove(data);
    EXPECT_FALSE(inputs.contains(folder.file("output.png")));
}

TEST_F(InputFilesTest, areAllThatLiesInAFolder) {
    fs::create_directories(folder.file("case/constant/polyMesh"));
    const std::string faces = folder.write("case/constant/polyMesh/faces", "");
    const std::string beside = folder.write("case/movie.mp4", "");
    inputs.add(folder.file("case/constant"));
    EXPECT_TRUE(inputs.contains(faces));
    EXPECT_FALSE(inputs.contains(beside));
    EXPECT_FALSE(inputs.contains(folder.file("case/constant/new.mp4")));
}

} // namespace
} // namespace corvane::host
