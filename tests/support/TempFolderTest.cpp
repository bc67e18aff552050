// A folder that lives as long as the object.
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

namespace corvane::test {
namespace {

TEST(TempFolderTest, livesAsLongAsTheObject) {
    std::filesystem::path path;
    {
        const TempFolder folder;
        const TempFolder other;
        path = folder.path();
        EXPECT_NE(path, other.path());
        EXPECT_EQ(folder.write("a.txt", "text"), folder.file("a.txt"));
        EXPECT_TRUE(folder.has("a.txt"));
        EXPECT_EQ(folder.read("a.txt"), "text");
        EXPECT_THROW(folder.read("b.txt"), std::runtime_error);
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

} // namespace
} // namespace corvane::test
