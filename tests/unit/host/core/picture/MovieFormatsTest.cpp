// Tests of the table of movie formats, and of the documents that list them.
#include "host/core/picture/MovieFormats.h"

#include "host/core/picture/ExportSetup.h"
#include "tests/support/Folders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

namespace corvane::host {
namespace {

using testing::HasSubstr;

struct Extension {
    const char* name;
    ExportFormat_e format;
};

class MovieExtension : public testing::TestWithParam<Extension> {};

TEST_P(MovieExtension, standsForItsFormat) {
    const std::string name = GetParam().name;
    for (const std::string& file : {"flight." + name, "/a.b/C.mp4." + name}) {
        const MovieFormat* const found = movieFormatForFile(file);
        ASSERT_NE(found, nullptr) << file;
        EXPECT_EQ(found->code, GetParam().format);
        EXPECT_EQ(found, movieFormatOf(GetParam().format));
    }
    EXPECT_THAT(movieExtensions(), HasSubstr("." + name));
}

INSTANTIATE_TEST_SUITE_P(All, MovieExtension,
                         testing::Values(Extension{"avi", ExportFormat_AVI},
                                         Extension{"flv", ExportFormat_FlashFLV},
                                         Extension{"swf", ExportFormat_FlashSWF},
                                         Extension{"mp4", ExportFormat_MPEG4},
                                         Extension{"rm", ExportFormat_RasterMetafile},
                                         Extension{"wmv", ExportFormat_WMV}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(MovieFormats, areFoundByExtensionsInCapitals) {
    ASSERT_NE(movieFormatForFile("FLIGHT.Avi"), nullptr);
    EXPECT_STREQ(movieFormatForFile("FLIGHT.Avi")->extension, ".avi");
}

TEST(MovieFormats, haveNoUnknownExtensionsAndCodes) {
    for (const char* const file :
         {"", "avi", ".avi", "flight", "flight.", "flight.mov", "flight.avi.gz"}) {
        EXPECT_EQ(movieFormatForFile(file), nullptr) << file;
    }
    for (const int code : {-1, 1, 2, 15, 23}) {
        EXPECT_EQ(movieFormatOf(code), nullptr) << code;
    }
}

TEST(MovieFormats, haveTheKeywordsOfTheExportSetUp) {
    std::vector<std::string> keywords;
    for (const MovieFormat& format : movieFormats()) {
        keywords.emplace_back(format.keyword);
        EXPECT_EQ(exportSettingFromText("ExportFormat", format.keyword),
                  StyleInput(static_cast<long>(format.code)));
    }
    EXPECT_EQ(exportSettingKeywords("ExportFormat"), keywords);
}

TEST(MovieFormats, areListedInSentences) {
    EXPECT_EQ(movieExtensions(), ".mp4, .avi, .flv, .swf, .wmv, .rm");
    EXPECT_EQ(movieDescriptions(), "MPEG-4, AVI, Flash (FLV), Flash (SWF), WMV or raster metafile");
}

/// Where a document lists the formats, and how it writes an extension.
struct Place {
    const char* file;
    const char* begin;
    const char* end;
    const char* extension; ///< a regular expression with one group
};

class MovieFormatsIn : public testing::TestWithParam<Place> {
protected:
    static std::string listing() {
        std::ifstream stream(test::sourceFile(GetParam().file));
        const std::string text{std::istreambuf_iterator<char>(stream), {}};
        const std::size_t begin = text.find(GetParam().begin);
        const std::size_t end = text.find(GetParam().end, begin);
        return begin == std::string::npos ? std::string() : text.substr(begin, end - begin);
    }

    static std::set<std::string> extensionsIn(const std::string& text) {
        const std::regex extension(GetParam().extension);
        std::set<std::string> found;
        for (std::sregex_iterator at(text.begin(), text.end(), extension), last; at != last; ++at) {
            found.insert("." + (*at)[1].str());
        }
        return found;
    }
};

TEST_P(MovieFormatsIn, areThoseOfTheTable) {
    std::set<std::string> expected;
    for (const MovieFormat& format : movieFormats()) {
        expected.insert(format.extension);
    }
    EXPECT_EQ(extensionsIn(listing()), expected) << listing();
}

INSTANTIATE_TEST_SUITE_P(
    Documents, MovieFormatsIn,
    testing::Values(Place{"README.md", "- **Writes** ", "\n- ", "[ `]\\.([a-z0-9]+)"},
                    Place{"docs/corvane.1", ".BI \\-\\-output ", "\n.TP", " \\.([a-z0-9]+)"},
                    Place{"packaging/corvane.bash-completion", "--output)\n", ";;",
                          "[\"|]([a-z0-9]+)"}));

} // namespace
} // namespace corvane::host
