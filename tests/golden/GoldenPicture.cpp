// Compares a picture with one that somebody has looked at.
#include "tests/golden/GoldenPicture.h"

#include "tests/golden/PngFile.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace corvane::test {

namespace {

std::string resultPath(const std::string& name, const std::string& kind) {
    const std::filesystem::path folder(CORVANE_GOLDEN_RESULTS);
    std::filesystem::create_directories(folder);
    return (folder / (name + "." + kind + ".png")).string();
}

std::string writeResult(const std::string& name, const std::string& kind,
                        const host::Picture& picture) {
    const std::string path = resultPath(name, kind);
    writePng(path, picture);
    return path;
}

/// The differences of all channels, four times as strong as they are.
host::Picture differencePicture(const host::Picture& a, const host::Picture& b) {
    host::Picture result = a;
    for (std::size_t i = 0; i < a.rgba.size(); ++i) {
        if (i % 4 != 3) {
            result.rgba[i] =
                static_cast<std::uint8_t>(std::min(255, 4 * std::abs(a.rgba[i] - b.rgba[i])));
        }
    }
    return result;
}

} // namespace

PictureDifference difference(const host::Picture& a, const host::Picture& b) {
    constexpr int rounding = 1;
    PictureDifference result;
    double sum = 0.0;
    for (std::size_t i = 0; i < a.rgba.size(); ++i) {
        const int distance = std::abs(a.rgba[i] - b.rgba[i]);
        result.worst = std::max(result.worst, distance);
        sum += std::max(0, distance - rounding);
    }
    const std::size_t colors = a.rgba.size() / 4 * 3;
    result.mean = colors == 0 ? 0.0 : sum / static_cast<double>(colors);
    return result;
}

testing::AssertionResult matchesGolden(const std::string& name, const host::Picture& picture,
                                       const GoldenLimits& limits) {
    const std::string golden = std::string(CORVANE_GOLDEN_PICTURES) + "/" + name + ".png";
    if (!std::filesystem::exists(golden)) {
        return testing::AssertionFailure()
               << "there is no picture " << golden << " to compare with; a candidate is "
               << writeResult(name, "candidate", picture);
    }
    const host::Picture expected = readPng(golden);
    if (expected.width != picture.width || expected.height != picture.height) {
        return testing::AssertionFailure()
               << golden << " has " << expected.width << " x " << expected.height
               << " pixels, the picture " << picture.width << " x " << picture.height << "; see "
               << writeResult(name, "actual", picture);
    }
    const PictureDifference found = difference(expected, picture);
    if (found.worst <= limits.worst && found.mean <= limits.mean) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure()
           << "worst pixel " << found.worst << " (limit " << limits.worst << "), mean "
           << found.mean << " (limit " << limits.mean << ")\n  expected:   " << golden
           << "\n  actual:     " << writeResult(name, "actual", picture) << "\n  difference: "
           << writeResult(name, "difference", differencePicture(expected, picture));
}

} // namespace corvane::test
