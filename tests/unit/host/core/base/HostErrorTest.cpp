// Tests of the sentences that users read about exceptions.
#include "host/core/base/HostError.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <stdexcept>
#include <system_error>

namespace corvane::host {
namespace {

namespace fs = std::filesystem;

const std::error_code fullDisk = std::make_error_code(std::errc::no_space_on_device);

TEST(HostErrorTest, itsOwnSentenceIsTakenAsItIs) {
    EXPECT_EQ(messageOf(HostError("Cannot read a.pvd: it is empty.")),
              "Cannot read a.pvd: it is empty.");
}

TEST(HostErrorTest, whatDerivesFromItKeepsItsSentenceToo) {
    struct Special : HostError {
        using HostError::HostError;
    };
    EXPECT_EQ(messageOf(Special("Line 3 is too long.")), "Line 3 is too long.");
}

TEST(HostErrorTest, missingMemoryTellsWhatToDo) {
    EXPECT_EQ(
        messageOf(std::bad_alloc()),
        "There is not enough memory. Close other programs, or use less data, smaller pictures "
        "or less supersampling.");
    EXPECT_EQ(messageOf(std::bad_array_new_length()), messageOf(std::bad_alloc()));
}

TEST(HostErrorTest, fileSystemsNameThePathAndTheReason) {
    EXPECT_EQ(messageOf(fs::filesystem_error("cannot copy", "/there/a.avi", fullDisk)),
              "Cannot use /there/a.avi: " + fullDisk.message() + ".");
}

TEST(HostErrorTest, fileSystemsWithoutAPathTellTheReason) {
    EXPECT_EQ(messageOf(fs::filesystem_error("cannot get the current path", fullDisk)),
              "The file system failed: " + fullDisk.message() + ".");
}

TEST(HostErrorTest, everythingElseIsOurMistake) {
    EXPECT_EQ(messageOf(std::out_of_range("vector::at")),
              "The program has made a mistake; please report it: vector::at");
}

} // namespace
} // namespace corvane::host
