// Reading key frame files.
#include "tests/support/TempFolder.h"
#include "tests/unit/addon_file/KeyFrameTexts.h"
#include "tests/unit/addon_lists/RecordingObserver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <vector>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;

// A key frame with all its items.
std::string const fullBlock = "%KeyFrameView\n"
                              " Name \"Key Frame 1\"\n"
                              " Position 1.5 2 30\n"
                              " Angle 0 45 -90\n"
                              " Width 12.25\n"
                              " FrameCount 20\n"
                              " SolutionTime 0.5\n"
                              "%KeyFrameView\n";

KeyFrame_s const fullKeyFrame{View(1.5, 2, 30, 0, 45, -90, 12.25), "Key Frame 1", 20, 0.5};

TEST(KeyFrameFileRead, readsSettingsAndKeyFrames) {
    ReadResult result;
    read(header +
             settingsBlock("AnimateTime true\nTimeAnimationOperation Bounce\nNumCycles 3\n"
                           "AnimateStreamtraces true\nFadeIn true\nFadeOut true\n") +
             fullBlock,
         result);
    EXPECT_EQ(
        result.settings,
        (Settings_s{
            {true, TimeAnimationOperation_Bounce, 3}, Destination_OnScreen, true, true, true}));
    ASSERT_EQ(result.model.size(), 1u);
    EXPECT_EQ(result.first(), fullKeyFrame);
}

TEST(KeyFrameFileRead, keepsTheDestinationAndWhatTheFileDoesNotMention) {
    ReadResult result;
    result.settings = {
        {true, TimeAnimationOperation_Loop, 7}, Destination_ToFile, true, true, true};
    read(header + settingsBlock("FadeIn false\n"), result);
    EXPECT_EQ(result.settings,
              (Settings_s{
                  {true, TimeAnimationOperation_Loop, 7}, Destination_ToFile, true, false, true}));
}

TEST(KeyFrameFileRead, takesBlocksInAnyOrderAndTheLaterSetting) {
    ReadResult result;
    read(header + settingsBlock("NumCycles 2\nFadeIn true\n") + fullBlock +
             settingsBlock("NumCycles 4\nNumCycles 5\n") + fullBlock,
         result);
    EXPECT_EQ(result.settings.timeOptions.numCycles, 5u);
    EXPECT_TRUE(result.settings.fadeIn);
    EXPECT_EQ(result.model.size(), 2u);
}

TEST(KeyFrameFileRead, replacesTheListWithOneReport) {
    ReadResult result;
    RecordingObserver observer;
    result.model.addObserver(observer);
    read(header + fullBlock + fullBlock, result);
    EXPECT_THAT(observer.changes,
                testing::ElementsAre(ChangeInfo_s{ListModelGenericInterface::ModelReset, {}}));
    read(header, result);
    EXPECT_EQ(result.model.size(), 0u);
}

// --- lines and words

TEST(KeyFrameFileRead, ignoresBlankLinesAndWhiteSpaceAroundLines) {
    ReadResult result;
    read("\n \t \n  #!KeyFrame\t1 \r\n\v\f\n\t%Settings \n\n NumCycles\t \t2\t\r\n%Settings\t\n" +
             std::string("\r\n%KeyFrameView\r\n\tPosition\t1\t2\t3\r\n\n Angle 4 5 6  \n\n") +
             "  %KeyFrameView\n\n\n",
         result);
    EXPECT_EQ(result.settings.timeOptions.numCycles, 2u);
    EXPECT_EQ(result.first().view, View(1, 2, 3, 4, 5, 6, 0));
}

TEST(KeyFrameFileRead, readsFilesWithCarriageReturns) {
    std::string text;
    for (char const character : header + settingsBlock("FadeIn true\n") + fullBlock)
        text += character == '\n' ? std::string("\r\n") : std::string(1, character);
    ReadResult result;
    read(text, result);
    EXPECT_TRUE(result.settings.fadeIn);
    EXPECT_EQ(result.first(), fullKeyFrame);
}

TEST(KeyFrameFileRead, ignoresLetterCaseOfKeywords) {
    ReadResult result;
    read("#!KEYFRAME 1\n%sETTINGS\nANIMATEtime true\ntimeanimationoperation ASCAPTURED\n%Settings\n"
         "%KEYFRAMEVIEW\nposition 1 2 3\nANGLE 4 5 6\nNAME \"x\"\nWidtH 7\nframecount 8\n"
         "SOLUTIONTIME 9\n%keyframeview\n",
         result);
    EXPECT_TRUE(result.settings.timeOptions.animateTime);
    EXPECT_EQ(result.settings.timeOptions.operation, TimeAnimationOperation_AsCaptured);
    EXPECT_EQ(result.first(), (KeyFrame_s{View(1, 2, 3, 4, 5, 6, 7), "x", 8, 9}));
}

TEST(KeyFrameFileRead, hasNoComments) {
    EXPECT_EQ(refusal(header + "# a comment\n"), located("Unknown section header: # a comment", 2));
}

TEST(KeyFrameFileRead, isTheSameInEveryLocale) {
    CommaLocale const german;
    ReadResult result;
    read(header + settingsBlock("FadeIn true\n") + block("Width 1234.5\nFrameCount 1000\n"),
         result);
    EXPECT_TRUE(result.settings.fadeIn);
    EXPECT_EQ(result.first().view.width(), 1234.5);
    EXPECT_EQ(result.first().frameCount, 1000u);
    EXPECT_THAT(refusal(header + "%KeyFrameView\nPosition 1,5 2 3\n"),
                testing::HasSubstr("Unable to convert input to appropriate value: ,5\n"));
}

// --- header

TEST(KeyFrameFileRead, acceptsHeadersWithoutANewerVersion) {
    for (std::string const line :
         {"#!KEYFRAME 1", "#!keyframe", "#!KeyFrame 0", "#!KeyFrame -7", "#!KeyFrame one",
          "#!KeyFrame 1 and more", "#!KeyFrame 1.9", "\n\n  #!KeyFrame 1"}) {
        ReadResult result;
        EXPECT_NO_THROW(read(line + "\n" + fullBlock, result)) << line;
        EXPECT_EQ(result.model.size(), 1u) << line;
    }
}

TEST(KeyFrameFileRead, refusesANewerVersion) {
    for (std::string const line : {"#!KeyFrame 2", "#!KeyFrame 99999999999999999999"})
        EXPECT_EQ(refusal(line + "\n" + fullBlock),
                  "File created with a newer version of the Key Frame add-on.");
}

TEST(KeyFrameFileRead, refusesAnotherHeader) {
    for (std::string const text : {"", "\n", "   ", " \n\t\n", "KeyFrame 1\n", "#!KeyFrame1\n",
                                   "#!KeyFrames 1\n", "# !KeyFrame 1\n", "%Settings\n"})
        EXPECT_EQ(refusal(text), "Invalid file header.") << text;
}

TEST(KeyFrameFileRead, readsAFileOfAHeaderAlone) {
    ReadResult result;
    result.model.insertItem(0, fullKeyFrame);
    read("#!KeyFrame 1", result);
    EXPECT_EQ(result.model.size(), 0u);
    EXPECT_EQ(result.settings, defaultSettings());
}

// --- sections

TEST(KeyFrameFileRead, refusesAnUnknownSectionByItsWholeLine) {
    EXPECT_EQ(refusal(header + "\n  %settings please \n"),
              located("Unknown section header: %settings please", 3));
    EXPECT_EQ(refusal(header + fullBlock + "%KeyFrame\n"),
              located("Unknown section header: %KeyFrame", 10));
}

TEST(KeyFrameFileRead, doesNotLookAtALastLineWithoutLineFeedBetweenBlocks) {
    for (std::string const line : {"nonsense", "%Settings", "%KeyFrameView"}) {
        ReadResult result;
        read(header + fullBlock + line, result);
        EXPECT_EQ(result.model.size(), 1u) << line;
    }
}

// --- settings

TEST(KeyFrameFileRead, closesSettingsByTheFirstWord) {
    ReadResult result;
    read(header + "%Settings\nFadeIn true\n%settings done\n" + fullBlock, result);
    EXPECT_TRUE(result.settings.fadeIn);
    EXPECT_EQ(result.model.size(), 1u);
}

TEST(KeyFrameFileRead, missesTheEndOfSettings) {
    EXPECT_EQ(refusal(header + "%Settings\nFadeIn true\n%KeyFrameView\n"),
              located("Missing end marker for Settings section.", 4));
    EXPECT_EQ(refusal(header + "%Settings\n%KeyFrameView"),
              located("Missing end marker for Settings section.", 3));
}

TEST(KeyFrameFileRead, refusesAnUnknownSetting) {
    EXPECT_EQ(refusal(header + "%Settings\n\nFade true\n"),
              located("Unrecognized setting entry.", 4));
    EXPECT_EQ(refusal(header + "%Settings\nFadeIn=true\n"),
              located("Unrecognized setting entry.", 3));
}

TEST(KeyFrameFileRead, takesBooleansAsLowerCaseWordsAlone) {
    for (std::string const value : {"1", "0", "TRUE", "True", "FALSE", "trueish", "tru", "", "yes"})
        for (std::string const setting :
             {"AnimateTime", "AnimateStreamtraces", "FadeIn", "FadeOut"})
            EXPECT_EQ(refusal(header + "%Settings\n" + setting + " " + value + "\n%Settings\n"),
                      located("Invalid value for " + setting +
                                  " setting.\nValue must be \"true\" or \"false\".",
                              3))
                << value;
}

TEST(KeyFrameFileRead, namesASettingAsTheTableDoes) {
    EXPECT_EQ(refusal(header + "%Settings\nFADEin maybe\n"),
              located("Invalid value for FadeIn setting.\n"
                      "Value must be \"true\" or \"false\".",
                      3));
}

TEST(KeyFrameFileRead, readsEveryOperation) {
    std::vector<std::string> const keywords{"Forward", "Loop", "Bounce", "AsCaptured"};
    for (std::size_t value = 0; value < keywords.size(); ++value) {
        ReadResult result;
        read(header + settingsBlock("TimeAnimationOperation " + keywords[value] + "\n"), result);
        EXPECT_EQ(static_cast<std::size_t>(result.settings.timeOptions.operation), value);
    }
}

TEST(KeyFrameFileRead, refusesAnUnknownOperation) {
    for (std::string const value : {"Backward", "", "1"})
        EXPECT_EQ(refusal(header + "%Settings\nTimeAnimationOperation " + value + "\n%Settings\n"),
                  located("Invalid value for TimeAnimationOperation setting.", 3));
}

TEST(KeyFrameFileRead, acceptsASingleCycleInSpiteOfTheMessage) {
    for (auto const& [text, value] : std::vector<std::pair<std::string, unsigned long>>{
             {"1", 1}, {"2147483647", 2147483647}, {"+3", 3}, {"4.9", 4}, {"5 cycles", 5}}) {
        ReadResult result;
        read(header + settingsBlock("NumCycles " + text + "\n"), result);
        EXPECT_EQ(result.settings.timeOptions.numCycles, value) << text;
    }
}

TEST(KeyFrameFileRead, refusesOtherNumbersOfCycles) {
    for (std::string const value : {"0", "-1", "-2147483649", "2147483648", "many", ""})
        EXPECT_EQ(refusal(header + "%Settings\nNumCycles " + value + "\n%Settings\n"),
                  located("Invalid value for NumCycles setting.\n"
                          "Value must be an integer greater than 1.",
                          3))
            << value;
}

TEST(KeyFrameFileRead, ignoresWhatFollowsASetting) {
    ReadResult result;
    read(header + settingsBlock("FadeIn true or so\nTimeAnimationOperation Loop Bounce\n"), result);
    EXPECT_TRUE(result.settings.fadeIn);
    EXPECT_EQ(result.settings.timeOptions.operation, TimeAnimationOperation_Loop);
}

TEST(KeyFrameFileRead, keepsTheSettingsOfAFileCutShort) {
    for (std::string const text :
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

TEST(KeyFrameFileRead, looksAtALastSettingWithoutLineFeed) {
    EXPECT_EQ(refusal(header + "%Settings\nFadeIn tr"),
              located("Invalid value for FadeIn setting.\n"
                      "Value must be \"true\" or \"false\".",
                      3));
}

// --- key frames

TEST(KeyFrameFileRead, hasDefaultsForWhatABlockLacks) {
    ReadResult result;
    read(header + block(""), result);
    EXPECT_EQ(result.first(), (KeyFrame_s{View(1, 2, 3, 4, 5, 6, 0), "", 0, 0}));
}

TEST(KeyFrameFileRead, takesTheLaterOfRepeatedItems) {
    ReadResult result;
    read(header + block("Name \"a\"\nName \"b\"\nPosition 7 8 9\nWidth 1\nWidth 2\nFrameCount 3\n"
                        "FrameCount 4\nSolutionTime 5\nSolutionTime 6\n"),
         result);
    EXPECT_EQ(result.first(), (KeyFrame_s{View(7, 8, 9, 4, 5, 6, 2), "b", 4, 6}));
}

TEST(KeyFrameFileRead, acceptsABlockThatRunsIntoTheEnd) {
    for (std::string const end : {"%KeyFrameView", "", "\n\n", "  "}) {
        ReadResult result;
        read(header + "%KeyFrameView\n" + place + "Width 7\n" + end, result);
        EXPECT_EQ(result.first().view.width(), 7) << end;
    }
}

TEST(KeyFrameFileRead, doesNotLookAtALastItemWithoutLineFeed) {
    for (std::string const line : {"Width 7", "Width", "nonsense", "%Settings"}) {
        ReadResult result;
        read(header + "%KeyFrameView\n" + place + line, result);
        EXPECT_EQ(result.first().view.width(), 0) << line;
    }
}

TEST(KeyFrameFileRead, closesAKeyFrameByTheFirstWord) {
    ReadResult result;
    read(header + "%KeyFrameView\n" + place + "%keyFRAMEview and so on\n" + fullBlock, result);
    EXPECT_EQ(result.model.size(), 2u);
}

TEST(KeyFrameFileRead, missesTheEndOfAKeyFrame) {
    EXPECT_EQ(refusal(header + "%KeyFrameView\n" + place + "%Settings\n"),
              located("Missing end marker for KeyFrameView section.", 5));
}

TEST(KeyFrameFileRead, refusesAnUnknownItem) {
    EXPECT_EQ(refusal(header + "%KeyFrameView\n" + place + "Colour red\n"),
              located("Unrecognized KeyFrameItem entry.", 5));
    EXPECT_EQ(refusal(header + "%KeyFrameView\nName\"x\"\n"),
              located("Unrecognized KeyFrameItem entry.", 3));
}

TEST(KeyFrameFileRead, failsWithoutPlace) {
    for (std::string const items : {"", "Position 1 2 3\n", "Angle 1 2 3\n"}) {
        ReadResult result;
        result.settings.fadeIn = true;
        result.model.insertItem(0, fullKeyFrame);
        EXPECT_THROW(read(header + settingsBlock("FadeIn false\n") + "%KeyFrameView\n" + items +
                              "%KeyFrameView\n",
                          result),
                     std::out_of_range);
        EXPECT_TRUE(result.settings.fadeIn);
        EXPECT_EQ(result.model.size(), 1u);
    }
}

TEST(KeyFrameFileRead, namesThePlaceThatIsMissing) {
    ReadResult result;
    try {
        read(header + "%KeyFrameView\nPosition 1 2 3\n%KeyFrameView\n", result);
        ADD_FAILURE() << "a view without angles was read";
    } catch (std::out_of_range const& error) {
        EXPECT_STREQ(error.what(), "The key frame view that ends on line number 4 of the key frame "
                                   "file has no Angle entry.");
    }
}

TEST(KeyFrameFileRead, takesNamesBetweenTheFirstTwoQuotes) {
    for (auto const& [line, name] :
         std::vector<std::pair<std::string, std::string>>{{"Name \"a\"", "a"},
                                                          {"Name \"a\" and \"b\"", "a"},
                                                          {"Name my \"a\"", "a"},
                                                          {"Name \"a\"b\"", "a"},
                                                          {"Name \" a\tb \"", " a\tb "},
                                                          {"Name \"a\\\"", "a\\"},
                                                          {"Name \"\xC3\xA4\"", "\xC3\xA4"}}) {
        ReadResult result;
        read(header + block(line + "\n"), result);
        EXPECT_EQ(result.first().name, name) << line;
    }
}

TEST(KeyFrameFileRead, refusesNamesWithoutQuotes) {
    for (std::string const line : {"Name", "Name a", "Name \"a", "Name \""})
        EXPECT_EQ(refusal(header + "%KeyFrameView\n" + line + "\n"),
                  located("View name must be surrounded in quotation marks.", 3))
            << line;
}

TEST(KeyFrameFileRead, refusesAnEmptyName) {
    EXPECT_EQ(refusal(header + "%KeyFrameView\nName \"\"\n"),
              located("Unable to read view name.", 3));
    EXPECT_EQ(refusal(header + "%KeyFrameView\nName \"\"a\"\n"),
              located("Unable to read view name.", 3));
}

TEST(KeyFrameFileRead, wantsThreeNumbers) {
    for (std::string const item : {"Position", "Angle"})
        for (auto const& [values, count] : std::vector<std::pair<std::string, std::string>>{
                 {"", "0"}, {" 1", "1"}, {" 1 2", "2"}, {" 1 2 3 4", "4"}})
            EXPECT_EQ(
                refusal(header + "%KeyFrameView\n" + item + values + "\n"),
                located("Mismatch between number of expected values and number of values that "
                        "could be read.\nNumber of expected values: 3\n"
                        "Number of values read: " +
                            count,
                        3));
}

TEST(KeyFrameFileRead, namesTheWordThatIsNoNumber) {
    for (auto const& [values, word] :
         std::vector<std::pair<std::string, std::string>>{{"1 2 three", "three"},
                                                          {"x 2 3", "x"},
                                                          {"1 2 3 four", "four"},
                                                          {"1 2 3 -", "-"},
                                                          {"1 2 1e", "1e"},
                                                          {"1 2,5 3", ",5"},
                                                          {"1 2 3m", "m"},
                                                          {"1 nan 3", "nan"},
                                                          {"1 2 -inf 3", "-inf"},
                                                          {"1 2 1e999", "1e999"}})
        EXPECT_EQ(refusal(header + "%KeyFrameView\nPosition " + values + "\n"),
                  located("Error reading item from file.\n"
                          "Unable to convert input to appropriate value: " +
                              word,
                          3))
            << values;
}

TEST(KeyFrameFileRead, readsNumbersInEveryNotation) {
    ReadResult result;
    read(header + "%KeyFrameView\nPosition +1 .5 -2.\nAngle 1e2 1E-2 -0\nWidth 1e-320\n"
                  "%KeyFrameView\n",
         result);
    EXPECT_EQ(result.first().view, View(1, 0.5, -2, 100, 0.01, 0, 1e-320));
}

TEST(KeyFrameFileRead, keepsWidthsWithinBounds) {
    for (std::string const value : {"1e150", "-1e150", "0", "12.25 wide"}) {
        ReadResult result;
        read(header + block("Width " + value + "\n"), result);
        EXPECT_EQ(result.first().view.width(), std::stod(value));
    }
    for (std::string const value : {"1.0000001e150", "-2e150", "1e300"})
        EXPECT_EQ(refusal(header + "%KeyFrameView\nWidth " + value + "\n"),
                  located("Invalid width value. Width must be between -1e150 and 1e150", 3));
    for (std::string const value : {"", "wide", "1e999", "inf", "nan"})
        EXPECT_EQ(refusal(header + "%KeyFrameView\nWidth " + value + "\n"),
                  located("Unable to read width value.", 3));
}

TEST(KeyFrameFileRead, speaksOfTheWidthWhenAFrameCountCannotBeRead) {
    for (std::string const value :
         {"", "many", "-1", "-0", " -20", "18446744073709551616", "- 3", "--3"})
        EXPECT_EQ(refusal(header + "%KeyFrameView\nFrameCount " + value + "\n"),
                  located("Unable to read width value.", 3))
            << value;
}

TEST(KeyFrameFileRead, wantsAtLeastOneFrame) {
    EXPECT_EQ(refusal(header + "%KeyFrameView\nFrameCount 0\n"),
              located("Invalid frameCount value.", 3));
    ReadResult result;
    read(header + block("FrameCount 18446744073709551615 frames\n"), result);
    EXPECT_EQ(result.first().frameCount, std::numeric_limits<unsigned long>::max());
}

TEST(KeyFrameFileRead, refusesASolutionTimeThatIsNoNumber) {
    for (std::string const value : {"", "now", "1e999"})
        EXPECT_EQ(refusal(header + "%KeyFrameView\nSolutionTime " + value + "\n"),
                  located("Unable to read solution time value.", 3));
}

// --- failures

TEST(KeyFrameFileRead, changesNothingOnAnError) {
    ReadResult result;
    result.model.insertItem(0, fullKeyFrame);
    RecordingObserver observer;
    result.model.addObserver(observer);
    EXPECT_THROW(read(header + settingsBlock("FadeIn true\n") + block("") + "nonsense\n", result),
                 KeyFrameError);
    EXPECT_EQ(result.settings, defaultSettings());
    EXPECT_THAT(result.model.dataList(), testing::ElementsAre(fullKeyFrame));
    EXPECT_TRUE(observer.changes.empty());
}

TEST(KeyFrameFileRead, countsPhysicalLines) {
    EXPECT_EQ(refusal("\n\n" + header + "\n \r\n\t\n%Settings\n\n\nnonsense\n"),
              located("Unrecognized setting entry.", 10));
}

// Gives the text and then fails as a broken disk does.
class BreakingBuffer : public std::streambuf {
public:
    explicit BreakingBuffer(std::string text) : m_text(std::move(text)) {
        setg(m_text.data(), m_text.data(), m_text.data() + m_text.size());
    }

private:
    int_type underflow() override { throw std::runtime_error("the disk is broken"); }

    std::string m_text;
};

std::string refusalOfBrokenFile(std::string const& text) {
    BreakingBuffer buffer(text);
    std::istream stream(&buffer);
    ReadResult result;
    try {
        KeyFrameFile().read(stream, result.settings, result.model);
    } catch (KeyFrameError const& error) {
        return error.what();
    }
    ADD_FAILURE() << "was read:\n" << text;
    return {};
}

TEST(KeyFrameFileRead, saysWhenReadingFailed) {
    EXPECT_EQ(refusalOfBrokenFile(header + fullBlock), located("Error during file read.", 10));
    EXPECT_EQ(refusalOfBrokenFile(header + "%Settings\n"), located("Error during file read.", 3));
    EXPECT_EQ(refusalOfBrokenFile(header + "%KeyFrameView\n" + place),
              located("Error during file read.", 5));
    EXPECT_EQ(refusalOfBrokenFile("\n"), "Invalid file header.");
}

TEST(KeyFrameFileRead, saysWhenTheFileCannotBeOpened) {
    TempFolder const folder;
    ReadResult result;
    try {
        KeyFrameFile().readFile(folder.file("missing"), result.settings, result.model);
        FAIL() << "was read";
    } catch (KeyFrameError const& error) {
        EXPECT_STREQ(error.what(), "Unable to open file for reading.");
    }
}

TEST(KeyFrameFileRead, takesAFolderForNoKeyFrameFile) {
    TempFolder const folder;
    ReadResult result;
    try {
        KeyFrameFile().readFile(folder.path().string(), result.settings, result.model);
        FAIL() << "was read";
    } catch (KeyFrameError const& error) {
        EXPECT_STREQ(error.what(), "Invalid file header.");
    }
}

TEST(KeyFrameFileRead, readsFiles) {
    TempFolder const folder;
    std::string const fileName =
        folder.write("a.keyframe", header + settingsBlock("FadeOut true\n") + fullBlock);
    ReadResult result;
    KeyFrameFile().readFile(fileName, result.settings, result.model);
    EXPECT_TRUE(result.settings.fadeOut);
    EXPECT_EQ(result.first(), fullKeyFrame);
}

// --- strange bytes

TEST(KeyFrameFileRead, readsZeroBytesLikeOthers) {
    using namespace std::string_literals;
    ReadResult result;
    read(header + block("Name \"a\0b\"\n"s), result);
    EXPECT_EQ(result.first().name, "a\0b"s);
    EXPECT_THROW(read(header + "\0\n"s, result), KeyFrameError);
    EXPECT_THROW(read("\0\0\0\0"s, result), KeyFrameError);
    EXPECT_THROW(read(header + block("Width \0001\n"s), result), KeyFrameError);
    EXPECT_THROW(read(header + "%KeyFrameView\nPosition 1 2\0 3\n"s, result), KeyFrameError);
}

TEST(KeyFrameFileRead, readsLongLines) {
    std::string const longName(8'000'000, 'n');
    ReadResult result;
    read(header + block("Name \"" + longName + "\"\n"), result);
    EXPECT_EQ(result.first().name, longName);
    EXPECT_EQ(refusal(std::string(8'000'000, '#')), "Invalid file header.");
    EXPECT_EQ(refusal(std::string(8'000'000, ' ')), "Invalid file header.");
    std::string numbers;
    for (int count = 0; count < 100'000; ++count)
        numbers += " 1";
    EXPECT_THAT(refusal(header + "%KeyFrameView\nPosition" + numbers + "\n"),
                testing::HasSubstr("\nNumber of values read: 100000\n"));
}

} // namespace
