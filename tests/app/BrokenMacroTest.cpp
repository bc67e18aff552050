// Macros that are no macros, that do not end, or that are wrong somewhere: exit code 1, one line
// that tells file, line, text and cause, and nothing half-written.
#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/TempFolder.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace corvane::test;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

constexpr std::uintmax_t mebibyte = 1024 * 1024;

class BrokenMacro : public testing::Test {
protected:
    ProgramResult play(const std::string& file) const {
        return runProgram({"--batch", "--macro", file, "--record", folder.file("record.mcr")});
    }

    /// What is said about the file, behind "corvane: ".
    std::string complaintAbout(const std::string& file) const {
        const auto before = folder.names();
        const ProgramResult result = play(file);
        EXPECT_EQ(result.exitCode, 1) << result.errors;
        EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
        EXPECT_THAT(result.errors, StartsWith("corvane: "));
        EXPECT_LT(result.errors.size(), 4096U);
        EXPECT_TRUE(std::none_of(result.errors.begin(), result.errors.end() - 1, [](char c) {
            return static_cast<unsigned char>(c) < 0x20 && c != '\t';
        })) << result.errors;
        EXPECT_EQ(folder.names(), before);
        const std::string start = "corvane: ";
        return result.errors.substr(start.size(), result.errors.size() - start.size() - 1);
    }

    /// The complaint about the line of a macro, behind its file.
    std::string complaintIn(const std::string& macro) const {
        const std::string file = folder.write("scene.mcr", macro);
        const std::string complaint = complaintAbout(file);
        EXPECT_THAT(complaint, StartsWith(file + ":"));
        return complaint.substr(std::min(complaint.size(), file.size() + 1));
    }

    void expectPlayed(const std::string& macro, const std::string& recorded) const {
        const ProgramResult result = play(folder.write("scene.mcr", macro));
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        EXPECT_EQ(result.errors, "");
        EXPECT_EQ(folder.read("record.mcr"), recorded);
    }

    /// A folder with macros that each include the next one, and the first of them.
    std::string chainOf(int count) const {
        for (int i = 1; i < count; ++i) {
            folder.write(std::to_string(i), "$!INCLUDE " + std::to_string(i + 1) + "\n");
        }
        folder.write(std::to_string(count), "$!EXPORTSETUP ImageWidth = 77\n");
        return folder.file("1");
    }

    const TempFolder folder;
};

TEST_F(BrokenMacro, isAProgram) {
    EXPECT_THAT(complaintAbout("/proc/self/exe"),
                testing::AllOf(StartsWith("/proc/self/exe:1: ?ELF"),
                               HasSubstr("A command begins with $!, a comment with #.")));
}

TEST_F(BrokenMacro, isNoiseOrZeroBytes) {
    std::string noise;
    for (unsigned value = 12345; noise.size() < 5000; value = value * 1103515245U + 12345U) {
        noise += static_cast<char>(value >> 16U);
    }
    EXPECT_THAT(complaintIn("\xff\xfe" + noise), HasSubstr("A command begins with $!"));
    EXPECT_THAT(complaintIn(std::string(5000, '\0')), StartsWith("1: ????"));
    EXPECT_EQ(complaintIn(std::string("$!PICTURE \"a\0b.png\"\n", 20)),
              "1: $!PICTURE \"a?b.png\" There is a zero byte in the line. Is this a macro?");
}

TEST_F(BrokenMacro, isOneLineThatFillsTheDisk) {
    const long usual = play(folder.write("empty.mcr", "")).peakMemory;
    const std::string file = folder.write("long.mcr", "$!REDRAW\n$!PICTURE ");
    {
        std::ofstream stream(file, std::ios::binary | std::ios::app);
        const std::string block(mebibyte, 'x');
        for (int i = 0; i < 100; ++i) {
            stream << block;
        }
    }
    EXPECT_THAT(complaintAbout(file),
                testing::AllOf(StartsWith(file + ":2: $!PICTURE xxx"),
                               HasSubstr("xxx… The line is longer than 1 MiB. Is this a macro?")));
    // Would take minutes to read to the end.
    fs::resize_file(file, 1'000'000 * mebibyte);
    const ProgramResult result = play(file);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_LT(result.peakMemory, usual + 20 * 1024);
}

TEST_F(BrokenMacro, namesAVeryLongWord) {
    const std::string word(mebibyte / 2, 'x');
    EXPECT_THAT(complaintIn("$!STYLE " + word + " = 1\n"), HasSubstr("There is no value xxx"));
    EXPECT_THAT(complaintIn("$!STYLE \x1b[2J = 1\n"), HasSubstr("There is no value ?[2J."));
}

TEST_F(BrokenMacro, includesItself) {
    const std::string why = "Macros include each other more than 16 deep; does one include itself?";
    const std::string self = folder.write("self.mcr", "# again\n$!INCLUDE self.mcr\n");
    EXPECT_EQ(complaintAbout(self), self + ":2: $!INCLUDE self.mcr " + why);
    const std::string one = folder.write("one.mcr", "$!INCLUDE two.mcr\n");
    const std::string two = folder.write("two.mcr", "$!INCLUDE one.mcr\n");
    EXPECT_EQ(complaintAbout(one), two + ":1: $!INCLUDE one.mcr " + why);
}

TEST_F(BrokenMacro, isIncludedSixteenDeepAndNotSeventeen) {
    const ProgramResult result = play(chainOf(16));
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(folder.read("record.mcr"), "$!EXPORTSETUP ImageWidth = 77\n");
    EXPECT_THAT(complaintAbout(chainOf(17)), StartsWith(folder.file("16") + ":1: $!INCLUDE 17 "));
}

TEST_F(BrokenMacro, isNoFile) {
    const auto complaint = [](const std::string& file, const std::string& why) {
        return "Cannot open the macro file " + file + ": " + why + ".";
    };
    const std::string none = folder.file("none.mcr");
    EXPECT_EQ(complaintAbout(none), complaint(none, "No such file or directory"));
    const std::string inside = folder.write("file", "") + "/a.mcr";
    EXPECT_EQ(complaintAbout(inside), complaint(inside, "Not a directory"));
    EXPECT_EQ(complaintAbout(folder.path()), complaint(folder.path(), "it is a folder"));
}

TEST_F(BrokenMacro, neverEndsOrNeverBegins) {
    const auto irregular = [](const std::string& file) {
        return "Cannot open the macro file " + file + ": it is not a regular file.";
    };
    EXPECT_EQ(complaintAbout("/dev/zero"), irregular("/dev/zero"));
    const std::string pipe = folder.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(complaintAbout(pipe), irregular(pipe));
    EXPECT_EQ(complaintIn("$!INCLUDE pipe\n"), "1: $!INCLUDE pipe " + irregular(pipe));
}

TEST_F(BrokenMacro, cannotBeRead) {
    // A regular file that opens, and whose reading fails.
    EXPECT_EQ(complaintAbout("/proc/self/mem"), "/proc/self/mem:1: The file cannot be read.");
}

TEST_F(BrokenMacro, isClosedToTheUser) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "nothing keeps this user from reading a file";
    }
    const std::string closed = folder.write("closed.mcr", "$!REDRAW\n");
    fs::permissions(closed, fs::perms::none);
    EXPECT_EQ(complaintAbout(closed),
              "Cannot open the macro file " + closed + ": Permission denied.");
}

TEST_F(BrokenMacro, isWrongInOneLine) {
    const std::string good = "# a scene\n$!EXPORTSETUP ImageWidth = 64\n";
    const auto complaint = [&](const std::string& line) { return complaintIn(good + line + "\n"); };
    EXPECT_EQ(complaint("$!READDATA \"wake.pvd"),
              "3: $!READDATA \"wake.pvd A closing quote is missing.");
    EXPECT_EQ(complaint("$!FLY = 1"), "3: $!FLY = 1 There is no command FLY.");
    EXPECT_EQ(complaint("$!EXPORTSETUP ImageWidth = wide"),
              "3: $!EXPORTSETUP ImageWidth = wide ImageWidth cannot be \"wide\".");
    EXPECT_EQ(complaint("$!EXPORTSETUP AnimationSpeed = 12,5"),
              "3: $!EXPORTSETUP AnimationSpeed = 12,5 AnimationSpeed cannot be \"12,5\".");
    EXPECT_EQ(complaint("$!FRAME CREATE Width = 1e"),
              "3: $!FRAME CREATE Width = 1e \"1e\" is not a number that fits here.");
}

TEST_F(BrokenMacro, hasVariablesThatLeadNowhere) {
    EXPECT_EQ(complaintIn("$!PICTURE ${OUTPUT}\n"),
              "1: $!PICTURE ${OUTPUT} There is no variable \"OUTPUT\". Give it a value with --set "
              "OUTPUT=VALUE, or with $!SET.");
    EXPECT_THAT(complaintIn("$!SET A = \"${A}b\"\n"), HasSubstr("There is no variable \"A\"."));
    EXPECT_EQ(complaintIn("$!PICTURE ${OUTPUT\n"),
              "1: $!PICTURE ${OUTPUT A closing brace is missing behind \"${\".");
    // Each line doubles what the one before made.
    std::string macro = "$!SET A = xxxxxxxx\n";
    for (int line = 2; line <= 60; ++line) {
        macro += "$!SET A = ${A}${A}\n";
    }
    EXPECT_EQ(complaintIn(macro), "18: $!SET A = ${A}${A} With the values of its variables the "
                                  "line is longer than 1 MiB.");
}

TEST_F(BrokenMacro, isNotWhatOneOfAnotherSystemIs) {
    const std::string recorded = "$!EXPORTSETUP ImageWidth = 64\n";
    expectPlayed("\xef\xbb\xbf$!EXPORTSETUP ImageWidth = 64\n", recorded);
    expectPlayed("# a scene\r\n\r\n$!EXPORTSETUP ImageWidth = 64\r\n", recorded);
    expectPlayed("$!EXPORTSETUP ImageWidth = 64", recorded);
    EXPECT_THAT(complaintIn("$!REDRAW\n\xef\xbb\xbf$!REDRAW\n"),
                HasSubstr("A command begins with $!"));
}

TEST_F(BrokenMacro, isNotOneThatSaysNothing) {
    for (const char* macro : {"", "\n", "# nothing\n\n \t \n#$!FLY", "\xef\xbb\xbf", "\r\n"}) {
        expectPlayed(macro, "");
    }
}

} // namespace
