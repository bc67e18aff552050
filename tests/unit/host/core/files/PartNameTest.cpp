// Tests of what files in the making are called.
#include "host/core/files/PartName.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <array>

namespace corvane::host {
namespace {

constexpr std::size_t longest = 255;

std::string thisHost() {
    std::array<char, 256> name{};
    ::gethostname(name.data(), name.size() - 1);
    return name.data();
}

std::string thisProcess() {
    return std::to_string(::getpid());
}

PartName nameFor(const std::string& fileName) {
    return {fileName, longest};
}

TEST(PartNameTest, tellsTheFileTheMachineAndTheProcess) {
    EXPECT_EQ(nameFor("movie.mp4").numbered(1),
              "movie.mp4." + thisHost() + "-" + thisProcess() + ".part");
    EXPECT_EQ(nameFor("movie.mp4").numbered(2),
              "movie.mp4." + thisHost() + "-" + thisProcess() + "-2.part");
}

TEST(PartNameTest, isRecognisedWhateverTheProcess) {
    const PartName name = nameFor("movie.mp4");
    EXPECT_TRUE(name.matches(name.numbered(1)));
    EXPECT_TRUE(name.matches(name.numbered(7)));
    EXPECT_TRUE(name.matches("movie.mp4." + thisHost() + "-1.part"));
    EXPECT_TRUE(name.matches("movie.mp4." + thisHost() + "-4194304-12.part"));
}

TEST(PartNameTest, isNotTakenForThatOfAnotherFile) {
    const PartName name = nameFor("movie.mp4");
    EXPECT_FALSE(name.matches(nameFor("movie.avi").numbered(1)));
    EXPECT_FALSE(name.matches(nameFor("my movie.mp4").numbered(1)));
    EXPECT_FALSE(name.matches("movie.mp4"));
    EXPECT_FALSE(name.matches("movie.mp4.part"));
    EXPECT_FALSE(name.matches("movie.mp4." + thisHost() + ".part"));
    EXPECT_FALSE(name.matches("movie.mp4." + thisHost() + "-.part"));
    EXPECT_FALSE(name.matches("movie.mp4." + thisHost() + "-12a.part"));
    EXPECT_FALSE(name.matches("movie.mp4." + thisHost() + "-12.parts"));
}

TEST(PartNameTest, isNotTakenForThatOfAnotherMachine) {
    EXPECT_FALSE(nameFor("movie.mp4").matches("movie.mp4." + thisHost() + "x-12.part"));
    EXPECT_FALSE(nameFor("movie.mp4").matches("movie.mp4.x" + thisHost() + "-12.part"));
    EXPECT_FALSE(isPartName("movie.mp4.x" + thisHost() + "-12.part"));
}

TEST(PartNameTest, thatOfAPartStandsForWhatThePartBecomes) {
    const PartName name = nameFor("movie.mp4");
    EXPECT_EQ(nameFor(name.numbered(1)).numbered(2), name.numbered(2));
}

TEST(PartNameTest, alwaysHasRoom) {
    for (const std::size_t length : {1U, 150U, 200U, 255U}) {
        const PartName name = nameFor(std::string(length, 'm'));
        EXPECT_LE(name.numbered(1000).size(), longest);
        EXPECT_TRUE(name.matches(name.numbered(1000)));
    }
}

TEST(PartNameTest, cutsNoCharacterInTwo) {
    for (const std::size_t before : {0U, 1U}) {
        std::string fileName(before, 'm');
        while (fileName.size() + 2 <= longest) {
            fileName += "\xC3\xA4"; // an umlaut
        }
        const std::string name = nameFor(fileName).numbered(1);
        const std::size_t end = name.find('.');
        EXPECT_EQ((end - before) % 2, 0U);
    }
}

TEST(PartNameTest, knowsThatOfAnyFile) {
    EXPECT_TRUE(isPartName(nameFor("movie.mp4").numbered(1)));
    EXPECT_FALSE(isPartName("movie.mp4"));
    EXPECT_FALSE(isPartName("movie.part"));
}

} // namespace
} // namespace corvane::host
