// Key frame files that were written are read back.
#include "tests/cases/FlightCases.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/file/KeyFrameTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <streambuf>
#include <string>
#include <vector>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;

class KeyFrameFileRoundTrip : public testing::TestWithParam<FlightCase> {};

TEST_P(KeyFrameFileRoundTrip, keepsFlightsToSixDigits) {
    ListModelKeyFrame model;
    model.setDataList(GetParam().keyFrames);
    const Settings_s settings{
        {true, TimeAnimationOperation_Loop, 4}, Destination_OnScreen, true, false, true};
    const std::string text = written(settings, model);
    const bool hasStill =
        std::any_of(GetParam().keyFrames.begin(), GetParam().keyFrames.end(),
                    [](const KeyFrame_s& keyFrame) { return keyFrame.frameCount == 0; });
    if (hasStill) {
        EXPECT_THAT(refusal(text), testing::HasSubstr("Invalid frameCount value."));
        return;
    }
    ReadResult result;
    read(text, result);
    EXPECT_EQ(result.settings, settings);
    ASSERT_EQ(result.model.size(), model.size());
    for (unsigned long index = 0; index < model.size(); ++index) {
        EXPECT_EQ(result.model.name(index), model.name(index));
        EXPECT_EQ(result.model.frameCount(index), model.frameCount(index));
        const View& before = model.data(index).view;
        const View& after = result.model.data(index).view;
        const auto expectClose = [](double value, double expected) {
            EXPECT_NEAR(value, expected, 5e-6 * std::abs(expected));
        };
        expectClose(after.x(), before.x());
        expectClose(after.y(), before.y());
        expectClose(after.z(), before.z());
        expectClose(after.psi(), before.psi());
        expectClose(after.theta(), before.theta());
        expectClose(after.alpha(), before.alpha());
        expectClose(after.width(), before.width());
        expectClose(result.model.solutionTime(index), model.solutionTime(index));
    }
    EXPECT_EQ(written(result.settings, result.model), text);
}

INSTANTIATE_TEST_SUITE_P(Flights, KeyFrameFileRoundTrip, testing::ValuesIn(flightCases()),
                         [](const auto& flight) { return flight.param.name; });

// Hands out a file in pieces and counts its bytes; going back is refused.
class CountingBuffer : public std::streambuf {
public:
    explicit CountingBuffer(const std::string& fileName) { m_file.open(fileName, std::ios::in); }

    unsigned long bytes = 0;

private:
    int_type underflow() override {
        const auto count = m_file.sgetn(m_piece, sizeof m_piece);
        bytes += static_cast<unsigned long>(count);
        setg(m_piece, m_piece, m_piece + count);
        return count == 0 ? traits_type::eof() : traits_type::to_int_type(*m_piece);
    }

    std::filebuf m_file;
    char m_piece[4096];
};

TEST(KeyFrameFileSize, takesEveryByteAndLineOfAHundredThousandKeyFramesOnce) {
    constexpr unsigned long keyFrameCount = 100'000;
    std::vector<KeyFrame_s> keyFrames;
    for (unsigned long index = 0; index < keyFrameCount; ++index) {
        const double value = static_cast<double>(index);
        keyFrames.push_back({View(value, -value, 0.5, 10, 20, 30, 1 + value),
                             "View " + std::to_string(index + 1), index + 1, value});
    }
    ListModelKeyFrame model;
    model.setDataList(keyFrames);
    const TempFolder folder;
    const std::string fileName = folder.file("long.keyframe");
    KeyFrameFile().saveFile(fileName, defaultSettings(), model);
    const std::string text = folder.read("long.keyframe");
    // Ten lines before the first key frame, and nine for each, the blank ones included.
    const unsigned long lineCount = 10 + 9 * keyFrameCount;
    EXPECT_EQ(static_cast<unsigned long>(std::count(text.begin(), text.end(), '\n')),
              lineCount - 1);

    CountingBuffer buffer(fileName);
    std::istream stream(&buffer);
    ReadResult result;
    KeyFrameFile().read(stream, result.settings, result.model);
    EXPECT_EQ(buffer.bytes, text.size());
    EXPECT_EQ(result.model.dataList(), keyFrames);

    EXPECT_EQ(refusal(text + "\nlast words\n"),
              located("Unknown section header: last words", lineCount + 1));
}

} // namespace
