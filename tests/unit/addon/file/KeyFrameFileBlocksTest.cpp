// Reading the key frames of key frame files.
#include "tests/unit/addon/file/KeyFrameTexts.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;

TEST(KeyFrameBlock, hasDefaultsForWhatABlockLacks) {
    ReadResult result;
    read(header + block(""), result);
    EXPECT_EQ(result.first(), (KeyFrame_s{View(1, 2, 3, 4, 5, 6, 0), "", 0, 0}));
}

TEST(KeyFrameBlock, takesTheLaterOfRepeatedItems) {
    ReadResult result;
    read(header + block("Name \"a\"\nName \"b\"\nPosition 7 8 9\nWidth 1\nWidth 2\nFrameCount 3\n"
                        "FrameCount 4\nSolutionTime 5\nSolutionTime 6\n"),
         result);
    EXPECT_EQ(result.first(), (KeyFrame_s{View(7, 8, 9, 4, 5, 6, 2), "b", 4, 6}));
}

TEST(KeyFrameBlock, acceptsABlockThatRunsIntoTheEnd) {
    for (const std::string end : {"%KeyFrameView", "", "\n\n", "  "}) {
        ReadResult result;
        read(header + "%KeyFrameView\n" + place + "Width 7\n" + end, result);
        EXPECT_EQ(result.first().view.width(), 7) << end;
    }
}

TEST(KeyFrameBlock, doesNotLookAtALastItemWithoutLineFeed) {
    for (const std::string line : {"Width 7", "Width", "nonsense", "%Settings"}) {
        ReadResult result;
        read(header + "%KeyFrameView\n" + place + line, result);
        EXPECT_EQ(result.first().view.width(), 0) << line;
    }
}

TEST(KeyFrameBlock, closesAKeyFrameByTheFirstWord) {
    ReadResult result;
    read(header + "%KeyFrameView\n" + place + "%keyFRAMEview and so on\n" + fullBlock, result);
    EXPECT_EQ(result.model.size(), 2u);
}

TEST(KeyFrameBlock, missesTheEndOfAKeyFrame) {
    EXPECT_EQ(refusal(header + "%KeyFrameView\n" + place + "%Settings\n"),
              located("Missing end marker for KeyFrameView section.", 5));
}

TEST(KeyFrameBlock, refusesAnUnknownItem) {
    EXPECT_EQ(refusal(header + "%KeyFrameView\n" + place + "Colour red\n"),
              located("Unrecognized KeyFrameItem entry.", 5));
    EXPECT_EQ(refusal(header + "%KeyFrameView\nName\"x\"\n"),
              located("Unrecognized KeyFrameItem entry.", 3));
}

TEST(KeyFrameBlock, failsWithoutPlace) {
    for (const std::string items : {"", "Position 1 2 3\n", "Angle 1 2 3\n"}) {
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

TEST(KeyFrameBlock, namesThePlaceThatIsMissing) {
    ReadResult result;
    try {
        read(header + "%KeyFrameView\nPosition 1 2 3\n%KeyFrameView\n", result);
        ADD_FAILURE() << "a view without angles was read";
    } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), "The key frame view that ends on line number 4 of the key frame "
                                   "file has no Angle entry.");
    }
}

TEST(KeyFrameBlock, takesNamesBetweenTheFirstTwoQuotes) {
    for (const auto& [line, name] :
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

TEST(KeyFrameBlock, refusesNamesWithoutQuotes) {
    for (const std::string line : {"Name", "Name a", "Name \"a", "Name \""}) {
        EXPECT_EQ(refusal(header + "%KeyFrameView\n" + line + "\n"),
                  located("View name must be surrounded in quotation marks.", 3))
            << line;
    }
}

TEST(KeyFrameBlock, refusesAnEmptyName) {
    EXPECT_EQ(refusal(header + "%KeyFrameView\nName \"\"\n"),
              located("Unable to read view name.", 3));
    EXPECT_EQ(refusal(header + "%KeyFrameView\nName \"\"a\"\n"),
              located("Unable to read view name.", 3));
}

TEST(KeyFrameBlock, wantsThreeNumbers) {
    for (const std::string item : {"Position", "Angle"}) {
        for (const auto& [values, count] : std::vector<std::pair<std::string, std::string>>{
                 {"", "0"}, {" 1", "1"}, {" 1 2", "2"}, {" 1 2 3 4", "4"}}) {
            EXPECT_EQ(
                refusal(header + "%KeyFrameView\n" + item + values + "\n"),
                located("Mismatch between number of expected values and number of values that "
                        "could be read.\nNumber of expected values: 3\n"
                        "Number of values read: " +
                            count,
                        3));
        }
    }
}

TEST(KeyFrameBlock, namesTheWordThatIsNoNumber) {
    for (const auto& [values, word] :
         std::vector<std::pair<std::string, std::string>>{{"1 2 three", "three"},
                                                          {"x 2 3", "x"},
                                                          {"1 2 3 four", "four"},
                                                          {"1 2 3 -", "-"},
                                                          {"1 2 1e", "1e"},
                                                          {"1 2,5 3", ",5"},
                                                          {"1 2 3m", "m"},
                                                          {"1 nan 3", "nan"},
                                                          {"1 2 -inf 3", "-inf"},
                                                          {"1 2 1e999", "1e999"}}) {
        EXPECT_EQ(refusal(header + "%KeyFrameView\nPosition " + values + "\n"),
                  located("Error reading item from file.\n"
                          "Unable to convert input to appropriate value: " +
                              word,
                          3))
            << values;
    }
}

TEST(KeyFrameBlock, readsNumbersInEveryNotation) {
    ReadResult result;
    read(header + "%KeyFrameView\nPosition +1 .5 -2.\nAngle 1e2 1E-2 -0\nWidth 1e-320\n"
                  "%KeyFrameView\n",
         result);
    EXPECT_EQ(result.first().view, View(1, 0.5, -2, 100, 0.01, 0, 1e-320));
}

TEST(KeyFrameBlock, keepsWidthsWithinBounds) {
    for (const std::string value : {"1e150", "-1e150", "0", "12.25 wide"}) {
        ReadResult result;
        read(header + block("Width " + value + "\n"), result);
        EXPECT_EQ(result.first().view.width(), std::stod(value));
    }
    for (const std::string value : {"1.0000001e150", "-2e150", "1e300"}) {
        EXPECT_EQ(refusal(header + "%KeyFrameView\nWidth " + value + "\n"),
                  located("Invalid width value. Width must be between -1e150 and 1e150", 3));
    }
    for (const std::string value : {"", "wide", "1e999", "inf", "nan"}) {
        EXPECT_EQ(refusal(header + "%KeyFrameView\nWidth " + value + "\n"),
                  located("Unable to read width value.", 3));
    }
}

TEST(KeyFrameBlock, speaksOfTheWidthWhenAFrameCountCannotBeRead) {
    for (const std::string value :
         {"", "many", "-1", "-0", " -20", "18446744073709551616", "- 3", "--3"}) {
        EXPECT_EQ(refusal(header + "%KeyFrameView\nFrameCount " + value + "\n"),
                  located("Unable to read width value.", 3))
            << value;
    }
}

TEST(KeyFrameBlock, wantsAtLeastOneFrame) {
    EXPECT_EQ(refusal(header + "%KeyFrameView\nFrameCount 0\n"),
              located("Invalid frameCount value.", 3));
    ReadResult result;
    read(header + block("FrameCount 18446744073709551615 frames\n"), result);
    EXPECT_EQ(result.first().frameCount, std::numeric_limits<unsigned long>::max());
}

TEST(KeyFrameBlock, refusesASolutionTimeThatIsNoNumber) {
    for (const std::string value : {"", "now", "1e999"}) {
        EXPECT_EQ(refusal(header + "%KeyFrameView\nSolutionTime " + value + "\n"),
                  located("Unable to read solution time value.", 3));
    }
}

} // namespace
