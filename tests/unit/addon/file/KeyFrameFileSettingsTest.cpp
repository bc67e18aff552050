// Reading the settings of key frame files.
#include "tests/unit/addon/file/KeyFrameTexts.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;

TEST(SettingsBlock, closesSettingsByTheFirstWord) {
    ReadResult result;
    read(header + "%Settings\nFadeIn true\n%settings done\n" + fullBlock, result);
    EXPECT_TRUE(result.settings.fadeIn);
    EXPECT_EQ(result.model.size(), 1u);
}

TEST(SettingsBlock, missesTheEndOfSettings) {
    EXPECT_EQ(refusal(header + "%Settings\nFadeIn true\n%KeyFrameView\n"),
              located("Missing end marker for Settings section.", 4));
    EXPECT_EQ(refusal(header + "%Settings\n%KeyFrameView"),
              located("Missing end marker for Settings section.", 3));
}

TEST(SettingsBlock, refusesAnUnknownSetting) {
    EXPECT_EQ(refusal(header + "%Settings\n\nFade true\n"),
              located("Unrecognized setting entry.", 4));
    EXPECT_EQ(refusal(header + "%Settings\nFadeIn=true\n"),
              located("Unrecognized setting entry.", 3));
}

TEST(SettingsBlock, takesBooleansAsLowerCaseWordsAlone) {
    for (const std::string value :
         {"1", "0", "TRUE", "True", "FALSE", "trueish", "tru", "", "yes"}) {
        for (const std::string setting :
             {"AnimateTime", "AnimateStreamtraces", "FadeIn", "FadeOut"}) {
            EXPECT_EQ(refusal(header + "%Settings\n" + setting + " " + value + "\n%Settings\n"),
                      located("Invalid value for " + setting +
                                  " setting.\nValue must be \"true\" or \"false\".",
                              3))
                << value;
        }
    }
}

TEST(SettingsBlock, namesASettingAsTheTableDoes) {
    EXPECT_EQ(refusal(header + "%Settings\nFADEin maybe\n"),
              located("Invalid value for FadeIn setting.\n"
                      "Value must be \"true\" or \"false\".",
                      3));
}

TEST(SettingsBlock, readsEveryOperation) {
    const std::vector<std::string> keywords{"Forward", "Loop", "Bounce", "AsCaptured"};
    for (std::size_t value = 0; value < keywords.size(); ++value) {
        ReadResult result;
        read(header + settingsBlock("TimeAnimationOperation " + keywords[value] + "\n"), result);
        EXPECT_EQ(static_cast<std::size_t>(result.settings.timeOptions.operation), value);
    }
}

TEST(SettingsBlock, refusesAnUnknownOperation) {
    for (const std::string value : {"Backward", "", "1"}) {
        EXPECT_EQ(refusal(header + "%Settings\nTimeAnimationOperation " + value + "\n%Settings\n"),
                  located("Invalid value for TimeAnimationOperation setting.", 3));
    }
}

TEST(SettingsBlock, acceptsASingleCycleInSpiteOfTheMessage) {
    for (const auto& [text, value] : std::vector<std::pair<std::string, unsigned long>>{
             {"1", 1}, {"2147483647", 2147483647}, {"+3", 3}, {"4.9", 4}, {"5 cycles", 5}}) {
        ReadResult result;
        read(header + settingsBlock("NumCycles " + text + "\n"), result);
        EXPECT_EQ(result.settings.timeOptions.numCycles, value) << text;
    }
}

TEST(SettingsBlock, refusesOtherNumbersOfCycles) {
    for (const std::string value : {"0", "-1", "-2147483649", "2147483648", "many", ""}) {
        EXPECT_EQ(refusal(header + "%Settings\nNumCycles " + value + "\n%Settings\n"),
                  located("Invalid value for NumCycles setting.\n"
                          "Value must be an integer greater than 1.",
                          3))
            << value;
    }
}

TEST(SettingsBlock, ignoresWhatFollowsASetting) {
    ReadResult result;
    read(header + settingsBlock("FadeIn true or so\nTimeAnimationOperation Loop Bounce\n"), result);
    EXPECT_TRUE(result.settings.fadeIn);
    EXPECT_EQ(result.settings.timeOptions.operation, TimeAnimationOperation_Loop);
}

TEST(SettingsBlock, keepsTheSettingsOfAFileCutShort) {
    for (const std::string text :
         {"%Settings\nFadeIn true", "%Settings\nFadeIn true\n", "%Settings\nFadeIn true\n\n  ",
          "%Settings\nFadeIn true\n%Settings"}) {
        ReadResult result;
        read(header + text, result);
        EXPECT_TRUE(result.settings.fadeIn) << text;
    }
    ReadResult result;
    read(header + "%Settings\n", result);
    EXPECT_EQ(result.settings, defaultSettings());
}

TEST(SettingsBlock, looksAtALastSettingWithoutLineFeed) {
    EXPECT_EQ(refusal(header + "%Settings\nFadeIn tr"),
              located("Invalid value for FadeIn setting.\n"
                      "Value must be \"true\" or \"false\".",
                      3));
}

} // namespace
