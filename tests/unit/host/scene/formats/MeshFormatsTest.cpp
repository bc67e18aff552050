// The table of data formats.
#include "host/scene/formats/MeshFormats.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>

namespace corvane::test {

TEST(MeshFormats, eachHasOneReaderAndADescription) {
    for (const scene::MeshFormat& row : scene::meshFormats()) {
        EXPECT_NE(row.open == nullptr, row.readList == nullptr) << row.format.description;
        EXPECT_FALSE(row.format.description.empty());
        EXPECT_FALSE(row.format.extensions.empty()) << row.format.description;
    }
}

TEST(MeshFormats, extensionsAreInLowerCaseAndUnique) {
    std::set<std::string> known;
    for (const scene::MeshFormat& row : scene::meshFormats()) {
        for (const std::string& extension : row.format.extensions) {
            EXPECT_TRUE(known.insert(extension).second) << extension;
            EXPECT_EQ(extension.front(), '.');
            EXPECT_TRUE(std::ranges::none_of(extension, [](unsigned char c) {
                return std::isupper(c) != 0;
            })) << extension;
        }
    }
}

} // namespace corvane::test
