// Tests of lines, words and quotes of macros.
#include "host/core/macro/MacroText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <streambuf>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

TEST(SplitWords, splitsAtBlanksAndEqualSigns) {
    EXPECT_THAT(splitWords("Slice/1/Position = 0.5"), ElementsAre("Slice/1/Position", "=", "0.5"));
    EXPECT_THAT(splitWords("a=b"), ElementsAre("a", "=", "b"));
    EXPECT_THAT(splitWords("\t a  \t b "), ElementsAre("a", "b"));
    EXPECT_THAT(splitWords("=="), ElementsAre("=", "="));
    EXPECT_THAT(splitWords(""), IsEmpty());
    EXPECT_THAT(splitWords(" \t "), IsEmpty());
}

TEST(SplitWords, takesQuotedWordsAsTheyAre) {
    EXPECT_THAT(splitWords(R"("a b" "" "c=d" "#")"), ElementsAre("a b", "", "c=d", "#"));
    EXPECT_THAT(splitWords(R"(x="a \"b\" \\ \n")"), ElementsAre("x", "=", "a \"b\" \\ \n"));
    EXPECT_THAT(splitWords(R"("a"=1)"), ElementsAre("a", "=", "1"));
    EXPECT_THAT(splitWords(R"(C:\data\x)"), ElementsAre(R"(C:\data\x)"));
}

TEST(SplitWords, refusesQuotesThatDoNotFit) {
    for (const char* text : {R"(")", R"("abc)", R"("abc\")", R"("a\)", R"("a\t")", R"(a"b")",
                             R"("a"b)", R"("a""b")"}) {
        EXPECT_THROW(splitWords(text), HostError) << text;
    }
}

TEST(Quoted, escapesWhatWouldEndTheWordOrTheLine) {
    EXPECT_EQ(quoted(""), R"("")");
    EXPECT_EQ(quoted("a \"b\" \\ c\nd"), R"("a \"b\" \\ c\nd")");
}

TEST(Quoted, survivesTheWayThroughAFileWithAnyByte) {
    std::string text;
    for (int c = 1; c < 256; ++c) {
        text += static_cast<char>(c);
    }
    for (const std::string& original :
         {text, std::string(text.rbegin(), text.rend()), std::string("\\n"), std::string("\\\\n\n"),
          std::string(" \t\r\n"), std::string("\""), std::string("\\")}) {
        std::istringstream file("$!COMMAND " + quoted(original) + "\n");
        MacroReader reader(file, "test");
        MacroLine line;
        ASSERT_TRUE(reader.next(line));
        EXPECT_THAT(line.words, ElementsAre(original));
        EXPECT_FALSE(reader.next(line));
    }
}

TEST(MacroLineText, quotesOnlyWhatNeedsIt) {
    EXPECT_EQ(macroLine("STYLE", {"Slice/1/Show", "=", "true"}), "$!STYLE Slice/1/Show = true");
    EXPECT_EQ(macroLine("READDATA", {"a b.vtu", ""}), "$!READDATA \"a b.vtu\" \"\"");
    EXPECT_EQ(macroLine("REDRAW", {}), "$!REDRAW");
}

class MacroReaderTest : public testing::Test {
protected:
    std::vector<MacroLine> read(const std::string& text) {
        std::istringstream stream(text);
        MacroReader reader(stream, "flight.macro");
        std::vector<MacroLine> lines;
        MacroLine line;
        while (reader.next(line)) {
            lines.push_back(line);
        }
        return lines;
    }
    std::string errorOf(const std::string& text) {
        try {
            read(text);
        } catch (const MacroError& error) {
            return error.what();
        }
        return {};
    }
};

TEST_F(MacroReaderTest, readsCommandsWithTheirLines) {
    const auto lines = read("# a comment\n\n  $!style Slice/1/Show = true  \n\t# more\n$!REDRAW");
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].name, "STYLE");
    EXPECT_THAT(lines[0].words, ElementsAre("Slice/1/Show", "=", "true"));
    EXPECT_EQ(lines[0].number, 3U);
    EXPECT_EQ(lines[0].text, "$!style Slice/1/Show = true");
    EXPECT_EQ(lines[1].name, "REDRAW");
    EXPECT_THAT(lines[1].words, IsEmpty());
    EXPECT_EQ(lines[1].number, 5U);
}

TEST_F(MacroReaderTest, readsLineEndsOfOtherSystems) {
    const auto lines = read("$!PLOTTYPE=CARTESIAN3D\r\n\r\n# x\r\n$!REDRAW\r\n");
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].name, "PLOTTYPE");
    EXPECT_THAT(lines[0].words, ElementsAre("=", "CARTESIAN3D"));
    EXPECT_EQ(lines[1].text, "$!REDRAW");
    EXPECT_EQ(lines[1].number, 4U);
}

TEST_F(MacroReaderTest, anEmptyFileHasNoCommands) {
    EXPECT_THAT(read(""), IsEmpty());
    EXPECT_THAT(read("\n\n#\n"), IsEmpty());
}

TEST_F(MacroReaderTest, errorsNameFileLineTextAndCause) {
    EXPECT_EQ(errorOf("$!REDRAW\n\nSTYLE x = 1\n"),
              "flight.macro:3: STYLE x = 1\nA command begins with $!, a comment with #.");
    EXPECT_EQ(errorOf("$!READDATA \"x\n"),
              "flight.macro:1: $!READDATA \"x\nA closing quote is missing.");
    EXPECT_THAT(errorOf("$!\n"), HasSubstr("name of a command is missing"));
    EXPECT_THAT(errorOf("$! STYLE\n"), HasSubstr("name of a command is missing"));
    EXPECT_THAT(errorOf("$!\"STYLE\"\n"), HasSubstr("name of a command is missing"));
}

TEST_F(MacroReaderTest, binaryFilesEndWithAShortHarmlessMessage) {
    std::string binary("\x7f\x45LF\x02\x01\0\x1b[31m", 12);
    binary += std::string(5000, '\xff');
    const std::string error = errorOf(binary);
    EXPECT_THAT(error, StartsWith("flight.macro:1: ?ELF???"));
    EXPECT_THAT(error, HasSubstr("A command begins with $!"));
    EXPECT_LT(error.size(), 400U);
    EXPECT_EQ(error.find('\x1b'), std::string::npos);
    EXPECT_EQ(error.find('\0'), std::string::npos);
}

TEST_F(MacroReaderTest, cutsALongLineBetweenCharacters) {
    std::string text(199, 'x');
    text += "äöü and more";
    EXPECT_THAT(errorOf(text), HasSubstr("flight.macro:1: " + std::string(199, 'x') + "…\n"));
}

TEST_F(MacroReaderTest, showsMuchOfALongLineThatIsNoText) {
    EXPECT_THAT(errorOf(std::string(5000, '\x8a')),
                StartsWith("flight.macro:1: " + std::string(197, '\x8a') + "…\n"));
}

TEST_F(MacroReaderTest, skipsAByteOrderMarkAtTheBeginningAlone) {
    EXPECT_EQ(read("\xef\xbb\xbf$!REDRAW\n").size(), 1U);
    EXPECT_THAT(read("\xef\xbb\xbf# nothing\n"), IsEmpty());
    EXPECT_THAT(errorOf("$!REDRAW\n\xef\xbb\xbf$!REDRAW\n"), HasSubstr("begins with $!"));
    EXPECT_THAT(errorOf("\xef\xbb$!REDRAW\n"), HasSubstr("begins with $!"));
}

TEST_F(MacroReaderTest, refusesZeroBytesThatWouldEndNames) {
    EXPECT_EQ(errorOf(std::string("$!READDATA \"a\0b\"\n", 17)),
              "flight.macro:1: $!READDATA \"a?b\"\nThere is a zero byte in the line. Is this a "
              "macro?");
}

TEST(MacroErrorText, isShortAndHarmless) {
    const MacroError error("a\x1b.mcr", 7, "$!X", "A\tcause\x1b\nin " + std::string(9000, 'x'));
    EXPECT_THAT(error.what(), StartsWith("a?.mcr:7: $!X\nA\tcause?\nin xxx"));
    EXPECT_LT(std::string(error.what()).size(), 2100U);
}

TEST_F(MacroReaderTest, takesLinesOfAMebibyte) {
    const std::string start = "$!COMMAND ";
    const std::string word((std::size_t{1} << 20U) - start.size(), 'x');
    const auto lines = read(start + word + "\n$!REDRAW\n");
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].words[0].size(), word.size());
    EXPECT_THAT(errorOf(start + word + "x\n$!REDRAW\n"), HasSubstr("longer than 1 MiB"));
}

/// A file without end and without line ends, that counts what is taken of it.
class EndlessBuffer : public std::streambuf {
public:
    std::size_t taken = 0;

private:
    int_type underflow() override {
        taken += m_block.size();
        setg(m_block.data(), m_block.data(), m_block.data() + m_block.size());
        return traits_type::to_int_type(m_block.front());
    }
    std::string m_block = std::string(4096, '$');
};

TEST_F(MacroReaderTest, givesUpALineWithoutEndBeforeItFillsTheMemory) {
    EndlessBuffer buffer;
    std::istream stream(&buffer);
    MacroReader reader(stream, "endless");
    MacroLine line;
    EXPECT_THROW(reader.next(line), MacroError);
    EXPECT_LT(buffer.taken, std::size_t{2} << 20U);
}

/// A disk that fails in the middle of a file.
class FailingBuffer : public std::streambuf {
    int_type underflow() override { throw std::runtime_error("bad sector"); }
};

TEST_F(MacroReaderTest, tellsWhenTheFileCannotBeRead) {
    FailingBuffer buffer;
    std::istream stream(&buffer);
    MacroReader reader(stream, "broken");
    MacroLine line;
    try {
        reader.next(line);
        FAIL() << "a broken file must not look like an empty one";
    } catch (const MacroError& error) {
        EXPECT_THAT(error.what(), HasSubstr("The file cannot be read."));
    }
}

} // namespace
} // namespace corvane::host
