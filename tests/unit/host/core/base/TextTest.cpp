// Tests of texts compared, trimmed and turned into numbers.
#include "host/core/base/Text.h"

#include <gtest/gtest.h>

#include <limits>

namespace corvane::host {
namespace {

TEST(Text, foldsTheCaseOfAsciiLettersOnly) {
    EXPECT_EQ(lowerCase("FLIGHT.Avi @[`{ 09"), "flight.avi @[`{ 09");
    EXPECT_EQ(upperCase("readData @[`{ 09"), "READDATA @[`{ 09");
    EXPECT_EQ(lowerCase("\u00c4"), "\u00c4");
    EXPECT_EQ(upperCase("\u00e4"), "\u00e4");
}

TEST(Text, comparesWithoutRegardToCase) {
    EXPECT_TRUE(equalIgnoringCase("", ""));
    EXPECT_TRUE(equalIgnoringCase("ExportFormat", "EXPORTformat"));
    EXPECT_FALSE(equalIgnoringCase("Export", "ExportFormat"));
    EXPECT_FALSE(equalIgnoringCase("ExportFormat", "Export"));
    EXPECT_FALSE(equalIgnoringCase("[", "{")) << "as far apart as A and a";
    EXPECT_FALSE(equalIgnoringCase("\u00c4", "\u00e4"));
}

TEST(Text, tellsLettersAndDigitsFromTheirNeighbours) {
    for (const char c : {'a', 'z', 'A', 'Z'}) {
        EXPECT_TRUE(isLetter(c)) << c;
        EXPECT_FALSE(isDigit(c)) << c;
    }
    for (const char c : {'0', '9'}) {
        EXPECT_TRUE(isDigit(c)) << c;
        EXPECT_FALSE(isLetter(c)) << c;
    }
    for (const char c : {'/', ':', '@', '[', '`', '{', '_', '\0', '\xe4'}) {
        EXPECT_FALSE(isLetter(c)) << c;
        EXPECT_FALSE(isDigit(c)) << c;
    }
}

TEST(Text, isTrimmedAtBothEnds) {
    EXPECT_EQ(trimmed(" \t\r\n\v\f two words \f\v\n\r\t "), "two words");
    EXPECT_EQ(trimmed("word"), "word");
    EXPECT_EQ(trimmed(" \n "), "");
    EXPECT_EQ(trimmed(""), "");
    EXPECT_EQ(trimmed("\v word\v ", " "), "\v word\v");
}

TEST(Text, isTrimmedAtTheEnd) {
    EXPECT_EQ(trimmedAtEnd("  words. \n"), "  words.");
    EXPECT_EQ(trimmedAtEnd("  words. ...", " ."), "  words");
    EXPECT_EQ(trimmedAtEnd("...", " ."), "");
    EXPECT_EQ(trimmedAtEnd(""), "");
}

TEST(Text, isANumberAsAWholeOrNot) {
    EXPECT_EQ(parsedNumber<int>("-17"), -17);
    EXPECT_EQ(parsedNumber<long>("99999999999"), 99999999999L);
    EXPECT_EQ(parsedNumber<double>("1.5e2"), 150.0);
    EXPECT_EQ(parsedNumber<double>("-inf"), -std::numeric_limits<double>::infinity());
    for (const char* const text : {"", " 1", "1 ", "+1", "1,5", "0x10", "one", "1x", "-"}) {
        EXPECT_EQ(parsedNumber<int>(text), std::nullopt) << text;
        EXPECT_EQ(parsedNumber<double>(text), std::nullopt) << text;
    }
    EXPECT_EQ(parsedNumber<int>("1.5"), std::nullopt);
    EXPECT_EQ(parsedNumber<int>("99999999999"), std::nullopt);
    EXPECT_EQ(parsedNumber<double>("1e999"), std::nullopt);
}

TEST(Text, ofANumberReadsAsTheSameNumber) {
    EXPECT_EQ(exactText(30.0), "30");
    EXPECT_EQ(exactText(0.1), "0.1");
    for (const double number : {0.1 + 0.2, 1.0 / 3.0, -1e-310, -1.7976931348623157e308}) {
        EXPECT_EQ(parsedNumber<double>(exactText(number)), number);
    }
}

} // namespace
} // namespace corvane::host
