// Writing key frame files.
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/file/KeyFrameTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;

KeyFrame_s illustration() {
    return {View(1.5, 2, 30, 0, 45, -90, 12.25), "Key Frame 1", 20, 0.0};
}

const std::string illustratedSettings = "#!KeyFrame 1\n"
                                        "\n"
                                        "%Settings\n"
                                        " AnimateTime false\n"
                                        " TimeAnimationOperation Forward\n"
                                        " NumCycles 1\n"
                                        " AnimateStreamtraces false\n"
                                        " FadeIn false\n"
                                        " FadeOut false\n"
                                        "%Settings";

const std::string illustratedKeyFrame = "\n"
                                        "\n"
                                        "%KeyFrameView\n"
                                        " Name \"Key Frame 1\"\n"
                                        " Position 1.5 2 30\n"
                                        " Angle 0 45 -90\n"
                                        " Width 12.25\n"
                                        " FrameCount 20\n"
                                        " SolutionTime 0\n"
                                        "%KeyFrameView";

TEST(KeyFrameFileWrite, hasItsConstants) {
    EXPECT_STREQ(KeyFrameFile::m_headerToken, "#!KeyFrame");
    EXPECT_EQ(KeyFrameFile::m_version, 1);
    EXPECT_STREQ(KeyFrameFile::m_fileNameExtension, "keyframe");
}

TEST(KeyFrameFileWrite, writesTheLayoutWithoutAFinalLineFeed) {
    ListModelKeyFrame model;
    model.insertItem(0, illustration());
    EXPECT_EQ(written(defaultSettings(), model), illustratedSettings + illustratedKeyFrame);
}

TEST(KeyFrameFileWrite, writesKeyFramesInOrderAndAsTheyAreNow) {
    ListModelKeyFrame model;
    model.setDataList({illustration(), {View(), "", 0, 2.5}});
    EXPECT_EQ(written(defaultSettings(), model),
              illustratedSettings + illustratedKeyFrame +
                  "\n\n%KeyFrameView\n Name \"\"\n Position 0 0 0\n Angle 0 0 0\n Width 0\n"
                  " FrameCount 0\n SolutionTime 2.5\n%KeyFrameView");
}

TEST(KeyFrameFileWrite, writesEverySettingButTheDestination) {
    Settings_s settings{
        {true, TimeAnimationOperation_AsCaptured, 12}, Destination_ToFile, true, true, true};
    EXPECT_EQ(written(settings, ListModelKeyFrame()),
              "#!KeyFrame 1\n\n%Settings\n AnimateTime true\n TimeAnimationOperation AsCaptured\n"
              " NumCycles 12\n AnimateStreamtraces true\n FadeIn true\n FadeOut true\n%Settings");
}

TEST(KeyFrameFileWrite, keepsSixSignificantDigits) {
    ListModelKeyFrame model;
    model.setDataList(
        {{View(0.1234567, 1234567, -1e-7, 0, 359.99999, 1e20, 1.0 / 3), "x", 1234567, 100000}});
    EXPECT_THAT(written(defaultSettings(), model),
                testing::HasSubstr(" Position 0.123457 1.23457e+06 -1e-07\n"
                                   " Angle 0 360 1e+20\n"
                                   " Width 0.333333\n"
                                   " FrameCount 1234567\n"
                                   " SolutionTime 100000\n"));
}

TEST(KeyFrameFileWrite, writesNamesAsTheyStand) {
    ListModelKeyFrame model;
    model.setDataList({{View(), " a \"b\" \\ \xC3\xA4 ", 1, 0}});
    EXPECT_THAT(written(defaultSettings(), model),
                testing::HasSubstr("\n Name \" a \"b\" \\ \xC3\xA4 \"\n"));
}

TEST(KeyFrameFileWrite, isTheSameInEveryLocale) {
    const CommaLocale german;
    ListModelKeyFrame model;
    model.setDataList({{View(1234.5, 0, 0, 0, 0, 0, 0), "x", 1234567, 0}});
    const std::string text = written(defaultSettings(), model);
    EXPECT_THAT(text, testing::HasSubstr(" AnimateTime false\n"));
    EXPECT_THAT(text, testing::HasSubstr(" Position 1234.5 0 0\n"));
    EXPECT_THAT(text, testing::HasSubstr(" FrameCount 1234567\n"));
    const TempFolder folder;
    KeyFrameFile().saveFile(folder.file("a"), defaultSettings(), model);
    EXPECT_EQ(folder.read("a"), text);
}

TEST(KeyFrameFileWrite, refusesASettingWithoutKeywordAndLeavesThePartBefore) {
    const TempFolder folder;
    ListModelKeyFrame model;
    model.insertItem(0, illustration());
    Settings_s settings = defaultSettings();
    settings.timeOptions.operation = static_cast<TimeAnimationOperation_e>(4);
    try {
        KeyFrameFile().saveFile(folder.file("a.keyframe"), settings, model);
        FAIL() << "was written";
    } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), "Enumeration out of range.");
    }
    EXPECT_THAT(folder.read("a.keyframe"),
                testing::StartsWith("#!KeyFrame 1\n\n%Settings\n AnimateTime false"));
}

TEST(KeyFrameFileWrite, savesToAFileAndReplacesWhatWasThere) {
    const TempFolder folder;
    const std::string fileName = folder.write("a.keyframe", std::string(10000, 'x'));
    ListModelKeyFrame model;
    model.insertItem(0, illustration());
    KeyFrameFile().saveFile(fileName, defaultSettings(), model);
    EXPECT_EQ(folder.read("a.keyframe"), illustratedSettings + illustratedKeyFrame);
}

TEST(KeyFrameFileWrite, makesNoFileWithoutKeyFrames) {
    const TempFolder folder;
    try {
        KeyFrameFile().saveFile(folder.file("a.keyframe"), defaultSettings(), ListModelKeyFrame());
        FAIL() << "was written";
    } catch (const KeyFrameError& error) {
        EXPECT_STREQ(error.what(), "No Key Frames established.");
    }
    EXPECT_FALSE(folder.has("a.keyframe"));
}

TEST(KeyFrameFileWrite, asksTheModelForItsMessage) {
    class OtherModel : public ListModelKeyFrame {
        std::string emptyModelMessage() const override { return "Nothing."; }
    };
    try {
        KeyFrameFile().saveFile("never made", defaultSettings(), OtherModel());
        FAIL() << "was written";
    } catch (const KeyFrameError& error) {
        EXPECT_STREQ(error.what(), "Nothing.");
    }
}

TEST(KeyFrameFileWrite, saysWhenTheFileCannotBeOpened) {
    const TempFolder folder;
    ListModelKeyFrame model;
    model.insertItem(0, illustration());
    for (const std::string& fileName :
         {folder.path().string(), folder.file("missing/a.keyframe")}) {
        try {
            KeyFrameFile().saveFile(fileName, defaultSettings(), model);
            FAIL() << "was written";
        } catch (const KeyFrameError& error) {
            EXPECT_STREQ(error.what(), "Unable to open file for writing.");
        }
    }
}

TEST(KeyFrameFileWrite, saysWhenTheDiskIsFull) {
    ListModelKeyFrame model;
    model.insertItem(0, illustration());
    // Little enough to stay in the stream's buffer to the end, and too much for it.
    for (const unsigned long count : {1ul, 1000ul}) {
        model.setDataList(std::vector<KeyFrame_s>(count, illustration()));
        try {
            KeyFrameFile().saveFile("/dev/full", defaultSettings(), model);
            FAIL() << "was written";
        } catch (const KeyFrameError& error) {
            EXPECT_STREQ(error.what(), "Error during file write.");
        }
    }
}

TEST(KeyFrameFileWrite, fetchesKeyFramesOneByOneAndAsksForTheirNumberBeforeEach) {
    class ListeningModel : public ListModelKeyFrame {
    public:
        unsigned long size() const override {
            calls += 's';
            return ListModelKeyFrame::size();
        }
        const KeyFrame_s& data(unsigned long index) const override {
            calls += static_cast<char>('0' + index);
            return ListModelKeyFrame::data(index);
        }
        mutable std::string calls;
    };
    ListeningModel model;
    model.setDataList({illustration(), illustration()});
    model.calls.clear();
    written(defaultSettings(), model);
    EXPECT_EQ(model.calls, "s0s1s");
}

} // namespace
