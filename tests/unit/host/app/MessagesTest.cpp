// Messages take one line each.
#include "host/app/Messages.h"

#include <gtest/gtest.h>

using corvane::app::onOneLine;

TEST(Messages, lineBreaksBecomeSingleBlanks) {
    EXPECT_EQ(onOneLine("Error reading file.\n\nOn line 4.\n"), "Error reading file. On line 4.");
    EXPECT_EQ(onOneLine("format \nbefore"), "format before");
    EXPECT_EQ(onOneLine("\r\n"), "");
    EXPECT_EQ(onOneLine("a  b"), "a  b");
}

TEST(Messages, holdNothingThatATerminalObeys) {
    EXPECT_EQ(onOneLine("a\x1b[2J\x07 b\tü\x7f"), "a?[2J? b\tü?");
}
