#include "host/app/Options.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::test {

TEST(Options, helpListsTheExtensionsOfDataFiles) {
    const std::array<const char*, 2> arguments{"corvane", "--help"};
    try {
        app::parseCommandLine(2, arguments.data(), {{{".one", ".two"}, "One"}, {{".b"}, "Other"}});
        FAIL() << "no help";
    } catch (const app::PrintAndExit& help) {
        EXPECT_THAT(help.what(), testing::HasSubstr("(.one .two .b)"));
    }
}

} // namespace corvane::test
