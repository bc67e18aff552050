// The help pages that the dialogs open.
#include "tests/support/Folders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

namespace {

const std::filesystem::path folder = corvane::test::sourceFile("docs/help");

class HelpPagesTest : public testing::TestWithParam<const char*> {
protected:
    std::string page() const {
        std::ifstream file(folder / GetParam());
        return {std::istreambuf_iterator<char>(file), {}};
    }

    // The values of this attribute.
    std::vector<std::string> values(const std::string& attribute) const {
        const std::string text = page();
        const std::regex pattern(attribute + "=\"([^\"]*)\"");
        std::vector<std::string> found;
        for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end;
             ++match) {
            found.push_back((*match)[1]);
        }
        return found;
    }
};

TEST_P(HelpPagesTest, standsInTheFolderOfHelpPages) {
    EXPECT_THAT(page(), testing::StartsWith("<!DOCTYPE html>\n<html lang=\"en\">"));
    EXPECT_THAT(page(), testing::HasSubstr("<link rel=\"stylesheet\" href=\"style.css\">"));
}

TEST_P(HelpPagesTest, leadsOnlyToItsOwnFolder) {
    for (const std::string& target : values("href")) {
        EXPECT_TRUE(std::filesystem::is_regular_file(folder / target)) << target;
    }
    for (const std::string& picture : values("src")) {
        EXPECT_THAT(picture, testing::StartsWith("../images/dialog-"));
    }
}

TEST_P(HelpPagesTest, describesItsPictures) {
    EXPECT_EQ(values("src").size(), 1u);
    ASSERT_EQ(values("alt").size(), 1u);
    EXPECT_FALSE(values("alt").front().empty());
}

INSTANTIATE_TEST_SUITE_P(EachDialog, HelpPagesTest,
                         testing::Values("key_frame_animation.html", "time_animation_options.html",
                                         "export_options.html"));

} // namespace
