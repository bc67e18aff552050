// Files that are known until they change.
#include "host/scene/mesh/KnownFiles.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace corvane::test {
namespace {

using scene::fileState;
using scene::KnownFiles;

class KnownFilesTest : public testing::Test {
protected:
    TempFolder folder;
    const std::string whole = folder.write("whole", "12345");
    const std::string part = folder.write("part", "abc");
    KnownFiles known;

    void learn() { known.add(whole, {{whole, fileState(whole)}, {part, fileState(part)}}); }
};

TEST_F(KnownFilesTest, nothingIsKnownFromTheStart) {
    EXPECT_FALSE(known.has(whole));
    learn();
    EXPECT_TRUE(known.has(whole));
    EXPECT_FALSE(known.has(part));
}

TEST_F(KnownFilesTest, anotherLengthIsAnotherFile) {
    learn();
    folder.write("part", "abcd");
    EXPECT_FALSE(known.has(whole));
    learn();
    EXPECT_TRUE(known.has(whole));
}

TEST_F(KnownFilesTest, anotherTimeIsAnotherFile) {
    learn();
    std::filesystem::last_write_time(whole, std::filesystem::file_time_type{});
    EXPECT_FALSE(known.has(whole));
}

TEST_F(KnownFilesTest, aFileInItsPlaceIsAnother) {
    learn();
    const auto time = std::filesystem::last_write_time(whole);
    const std::string other = folder.write("other", "54321");
    std::filesystem::last_write_time(other, time);
    std::filesystem::rename(other, whole);
    EXPECT_FALSE(known.has(whole));
}

TEST_F(KnownFilesTest, whatIsNotThereIsNotKnown) {
    std::filesystem::remove(part);
    learn();
    EXPECT_FALSE(known.has(whole));
}

} // namespace
} // namespace corvane::test
