// The keyword tables.
#include "addon/file/KeyFrameFile.h"
#include "addon/macro/MacroKeywords.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace corvane::corutiltools;

// Checks a whole table in the order of the values, which begin at 0.
template <typename T>
void expectTable(const std::vector<std::string>& keywords) {
    const EnumMap<T>& map = EnumMap<T>::instance();
    EXPECT_EQ(sizeof(T), 4u);
    for (std::size_t index = 0; index < keywords.size(); ++index) {
        const T value = static_cast<T>(index);
        EXPECT_EQ(map.toString(value), keywords[index]);
        T found{};
        EXPECT_TRUE(map.fromString(keywords[index], found)) << keywords[index];
        EXPECT_EQ(found, value);
    }
    for (const int stranger : {-1, static_cast<int>(keywords.size())}) {
        try {
            map.toString(static_cast<T>(stranger));
            FAIL() << "has a keyword: " << stranger;
        } catch (const std::out_of_range& error) {
            EXPECT_STREQ(error.what(), "Enumeration out of range.");
        }
    }
}

TEST(EnumMap, knowsTheMacroKeywords) {
    expectTable<Command_e>({"OpenSettingsFile", "Animate"});
    expectTable<Parameter_e>({"FileName", "AnimationDestination"});
    expectTable<Destination_e>({"OnScreen", "ToFile"});
}

TEST(EnumMap, knowsTheMovieFormatsThatNoCommandReads) {
    expectTable<AnimationDest_e>(
        {"Screen", "AVI", "RM", "Flash (SWF)", "Flash (FLV)", "MPEG-4", "WMV"});
}

TEST(EnumMap, knowsTheKeywordsOfTheKeyFrameFile) {
    expectTable<KeyFrameFile::Section_e>({"%Settings", "%KeyFrameView"});
    expectTable<KeyFrameFile::Setting_e>({"AnimateTime", "TimeAnimationOperation", "NumCycles",
                                          "AnimateStreamtraces", "FadeIn", "FadeOut"});
    expectTable<KeyFrameFile::KeyFrameItem_e>(
        {"Name", "Position", "Angle", "Width", "FrameCount", "SolutionTime"});
    expectTable<TimeAnimationOperation_e>({"Forward", "Loop", "Bounce", "AsCaptured"});
}

TEST(EnumMap, ignoresLetterCaseOnTheWayBack) {
    Destination_e value = Destination_OnScreen;
    EXPECT_TRUE(EnumMap<Destination_e>::instance().fromString("tofILE", value));
    EXPECT_EQ(value, Destination_ToFile);
}

TEST(EnumMap, leavesTheValueAloneForAnUnknownKeyword) {
    Destination_e value = Destination_ToFile;
    for (const std::string keyword : {"", "OnScree", "OnScreens", "On Screen", "AVI"}) {
        EXPECT_FALSE(EnumMap<Destination_e>::instance().fromString(keyword, value)) << keyword;
    }
    EXPECT_EQ(value, Destination_ToFile);
}

TEST(EnumMap, isMadeOnce) {
    EXPECT_EQ(&EnumMap<Command_e>::instance(), &EnumMap<Command_e>::instance());
}

TEST(ReverseMap, turnsPairsRoundAndKeepsTheFirstOfEqualKeywords) {
    const std::map<int, std::string> forward{{1, "one"}, {2, "two"}, {3, "ONE"}};
    std::map<std::string, int, CaseInsensitiveStringCompareObj> backward;
    ReverseMap(forward, backward);
    EXPECT_EQ(backward.size(), 2u);
    EXPECT_EQ(backward.at("One"), 1);
    EXPECT_EQ(backward.at("TWO"), 2);
}

} // namespace
