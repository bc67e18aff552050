// The reference page says what the program does.
#include "host/core/commands/MacroReference.h"

#include "host/core/commands/MacroCommands.h"
#include "tests/support/Folders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace corvane::host {
namespace {

using testing::HasSubstr;

TEST(MacroReference, namesAllCommandsAndValues) {
    const std::string text = macroReference();
    for (const MacroCommand& command : macroCommands()) {
        EXPECT_THAT(text, HasSubstr("\n## " + command.name + "\n")) << command.name;
        EXPECT_THAT(text, HasSubstr("`" + command.example + "`"));
    }
    EXPECT_THAT(text, HasSubstr("| `Slice/N/Axis` | whole number from 1 to 3 |"));
    EXPECT_THAT(text, HasSubstr("| `ThreeDView/ViewWidth` | number above 0 |"));
    EXPECT_THAT(text, HasSubstr("| `Contour/ColorMap` | one of Viridis, "));
    EXPECT_THAT(text, HasSubstr("| `ExportRegion` | one of CURRENTFRAME, ALLFRAMES, WORKAREA |"));
    EXPECT_THAT(text, testing::Not(HasSubstr("Slice/2")));
}

TEST(MacroReference, standsInTheDocumentation) {
    std::ifstream page(test::sourceFile("docs/macros.md"));
    const std::string text{std::istreambuf_iterator<char>(page), {}};
    EXPECT_EQ(text, macroReference())
        << "Make the page again: build/release/bin/corvane --macro-reference > docs/macros.md";
}

} // namespace
} // namespace corvane::host
