// The kinds of movies that the export options can ask for.
#pragma once

#include "host/core/ports/Ports.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace corvane::movie_test {

struct MovieKind {
    const char* name = "";
    ExportFormat_e format = ExportFormat_MPEG4;
    bool isLossless = false;
    int largestSide = 0; ///< pixels
    int widthStep = 1;   ///< pixels; the width is padded to a multiple of it
    int heightStep = 1;  ///< pixels; the height is padded to a multiple of it
    AVICompression_e aviCompression = AVICompression_LinePreserving;
    FlashImageType_e flashImageType = FlashImageType_Lossless;
    FlashCompressionType_e flashCompression = FlashCompressionType_BestSpeed;
};

/// All of them.
const std::vector<MovieKind>& movieKinds();

host::MovieRequest movieRequest(const MovieKind& kind, const std::string& path, int width,
                                int height, double framesPerSecond = 30.0);

std::string nameOfKind(const testing::TestParamInfo<MovieKind>& test);
std::ostream& operator<<(std::ostream& stream, const MovieKind& kind);

} // namespace corvane::movie_test
