#include "host/app/Options.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

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

TEST(Options, namesOfFilesMustNotBeEmpty) {
    for (const char* option :
         {"--macro", "--keyframes", "--output", "--add-on", "--trace", "--record"}) {
        const std::array<const char*, 3> arguments{"corvane", option, ""};
        try {
            app::parseCommandLine(3, arguments.data(), {});
            FAIL() << option;
        } catch (const app::UsageError& error) {
            EXPECT_THAT(error.what(), testing::HasSubstr(std::string(option) +
                                                         ": the name of a file is missing"));
        }
    }
    const std::array<const char*, 2> arguments{"corvane", ""};
    EXPECT_THROW(app::parseCommandLine(2, arguments.data(), {}), app::UsageError);
}

} // namespace corvane::test
