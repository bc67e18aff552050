// The bytes of a file.
#include "host/scene/mesh/FileBytes.h"
#include "host/scene/mesh/ReadError.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

using scene::FileBytes;

/// Longer than the buffer.
std::string manyBytes() {
    std::string text(200'000, 'a');
    text[150'000] = '<';
    return text;
}

TEST(FileBytes, oneByOneToTheEnd) {
    const TempFolder folder;
    FileBytes bytes(folder.write("short", "ab"));
    EXPECT_EQ(bytes.size(), 2U);
    EXPECT_EQ(bytes.next(), 'a');
    EXPECT_EQ(bytes.peek(), 'b');
    EXPECT_EQ(bytes.left(), 1U);
    EXPECT_EQ(bytes.next(), 'b');
    EXPECT_EQ(bytes.next(), FileBytes::end);
    EXPECT_EQ(bytes.position(), 2U);
}

TEST(FileBytes, partsAreReadFromAnywhere) {
    const TempFolder folder;
    FileBytes bytes(folder.write("long", manyBytes()));
    std::string part(100'001, ' ');
    bytes.seek(50'000);
    EXPECT_TRUE(bytes.read(part.data(), part.size()));
    EXPECT_EQ(part.back(), '<');
    EXPECT_EQ(bytes.position(), 150'001U);
    EXPECT_FALSE(bytes.read(part.data(), part.size()));
    bytes.seek(1'000'000);
    EXPECT_EQ(bytes.peek(), FileBytes::end);
    EXPECT_EQ(bytes.left(), 0U);
}

TEST(FileBytes, aByteIsFoundBehindTheBuffer) {
    const TempFolder folder;
    FileBytes bytes(folder.write("long", manyBytes()));
    EXPECT_TRUE(bytes.skipTo('<'));
    EXPECT_EQ(bytes.position(), 150'000U);
    bytes.next();
    EXPECT_FALSE(bytes.skipTo('<'));
}

TEST(FileBytes, lines) {
    const TempFolder folder;
    const std::string longLine(200'000, 'a');
    FileBytes bytes(folder.write("lines", "one\n\n" + longLine + "\nlast"));
    std::string line;
    for (const std::string& expected : {std::string("one"), std::string(), longLine}) {
        EXPECT_TRUE(bytes.readLine(line));
        EXPECT_EQ(line, expected);
    }
    EXPECT_TRUE(bytes.readLine(line));
    EXPECT_EQ(line, "last");
    EXPECT_FALSE(bytes.readLine(line));
}

TEST(FileBytes, aFileThatIsNotThere) {
    const TempFolder folder;
    EXPECT_THROW(FileBytes(folder.file("none")), scene::ReadFailure);
}

} // namespace
} // namespace corvane::test
