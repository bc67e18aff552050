// Reading key frame files.
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/file/KeyFrameTexts.h"
#include "tests/unit/addon/lists/RecordingObserver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <streambuf>
#include <string>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;

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
    for (const char character : header + settingsBlock("FadeIn true\n") + fullBlock) {
        text += character == '\n' ? std::string("\r\n") : std::string(1, character);
    }
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
    const CommaLocale german;
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
    for (const std::string line :
         {"#!KEYFRAME 1", "#!keyframe", "#!KeyFrame 0", "#!KeyFrame -7", "#!KeyFrame one",
          "#!KeyFrame 1 and more", "#!KeyFrame 1.9", "\n\n  #!KeyFrame 1"}) {
        ReadResult result;
        EXPECT_NO_THROW(read(line + "\n" + fullBlock, result)) << line;
        EXPECT_EQ(result.model.size(), 1u) << line;
    }
}

TEST(KeyFrameFileRead, refusesANewerVersion) {
    for (const std::string line : {"#!KeyFrame 2", "#!KeyFrame 99999999999999999999"}) {
        EXPECT_EQ(refusal(line + "\n" + fullBlock),
                  "File created with a newer version of the Key Frame add-on.");
    }
}

TEST(KeyFrameFileRead, refusesAnotherHeader) {
    for (const std::string text : {"", "\n", "   ", " \n\t\n", "KeyFrame 1\n", "#!KeyFrame1\n",
                                   "#!KeyFrames 1\n", "# !KeyFrame 1\n", "%Settings\n"}) {
        EXPECT_EQ(refusal(text), "Invalid file header.") << text;
    }
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
    for (const std::string line : {"nonsense", "%Settings", "%KeyFrameView"}) {
        ReadResult result;
        read(header + fullBlock + line, result);
        EXPECT_EQ(result.model.size(), 1u) << line;
    }
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

std::string refusalOfBrokenFile(const std::string& text) {
    BreakingBuffer buffer(text);
    std::istream stream(&buffer);
    ReadResult result;
    try {
        KeyFrameFile().read(stream, result.settings, result.model);
    } catch (const KeyFrameError& error) {
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
    const TempFolder folder;
    ReadResult result;
    try {
        KeyFrameFile().readFile(folder.file("missing"), result.settings, result.model);
        FAIL() << "was read";
    } catch (const KeyFrameError& error) {
        EXPECT_STREQ(error.what(), "Unable to open file for reading.");
    }
}

TEST(KeyFrameFileRead, takesAFolderForNoKeyFrameFile) {
    const TempFolder folder;
    ReadResult result;
    try {
        KeyFrameFile().readFile(folder.path().string(), result.settings, result.model);
        FAIL() << "was read";
    } catch (const KeyFrameError& error) {
        EXPECT_STREQ(error.what(), "Invalid file header.");
    }
}

TEST(KeyFrameFileRead, readsFiles) {
    const TempFolder folder;
    const std::string fileName =
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
    const std::string longName(8'000'000, 'n');
    ReadResult result;
    read(header + block("Name \"" + longName + "\"\n"), result);
    EXPECT_EQ(result.first().name, longName);
    EXPECT_EQ(refusal(std::string(8'000'000, '#')), "Invalid file header.");
    EXPECT_EQ(refusal(std::string(8'000'000, ' ')), "Invalid file header.");
    std::string numbers;
    for (int count = 0; count < 100'000; ++count) {
        numbers += " 1";
    }
    EXPECT_THAT(refusal(header + "%KeyFrameView\nPosition" + numbers + "\n"),
                testing::HasSubstr("\nNumber of values read: 100000\n"));
}

} // namespace
