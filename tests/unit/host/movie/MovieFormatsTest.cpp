// The formats that an extension stands for.
#include "host/app/MovieFormats.h"

#include "host/core/picture/ExportSetup.h"
#include "hostapi/CorEnums.h"

#include <gtest/gtest.h>

#include <string>

namespace corvane::movie_test {
namespace {

struct Extension {
    const char* name;
    ExportFormat_e format;
};

class MovieExtension : public testing::TestWithParam<Extension> {};

TEST_P(MovieExtension, standsForItsFormat) {
    const std::string name = GetParam().name;
    for (const std::string& file : {"flight." + name, "/a.b/C.mp4." + name}) {
        const app::MovieFormat* const found = app::movieFormatFor(file);
        ASSERT_NE(found, nullptr) << file;
        EXPECT_EQ(host::exportSettingFromText("ExportFormat", found->keyword),
                  host::StyleInput(static_cast<long>(GetParam().format)));
    }
    EXPECT_NE(app::movieExtensions().find("." + name), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(All, MovieExtension,
                         testing::Values(Extension{"avi", ExportFormat_AVI},
                                         Extension{"flv", ExportFormat_FlashFLV},
                                         Extension{"swf", ExportFormat_FlashSWF},
                                         Extension{"mp4", ExportFormat_MPEG4},
                                         Extension{"rm", ExportFormat_RasterMetafile},
                                         Extension{"wmv", ExportFormat_WMV}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(MovieExtensions, mayBeInCapitals) {
    ASSERT_NE(app::movieFormatFor("FLIGHT.Avi"), nullptr);
    EXPECT_STREQ(app::movieFormatFor("FLIGHT.Avi")->extension, ".avi");
}

TEST(MovieExtensions, standForNothingWhenTheyAreUnknown) {
    for (const char* file :
         {"", "avi", ".avi", "flight", "flight.", "flight.mov", "flight.avi.gz"}) {
        EXPECT_EQ(app::movieFormatFor(file), nullptr) << file;
    }
}

} // namespace
} // namespace corvane::movie_test
