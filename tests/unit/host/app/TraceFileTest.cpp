// Tests of the file that the calls of add-ons go to.
#include "host/app/TraceFile.h"

#include "host/core/addons/CallTrace.h"
#include "host/core/base/HostError.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>
#include <iostream>
#include <optional>

namespace corvane::test {
namespace {

class TraceFileTest : public testing::Test {
protected:
    void open() {
        file.emplace(folder.file("calls.txt"), [](const std::string&) {});
    }
    /// What can be read, under whatever name.
    std::string content() const { return folder.read(*folder.names().begin()); }

    TempFolder folder;
    host::CallTrace trace;
    std::optional<app::TraceFile> file;
};

TEST_F(TraceFileTest, standsUnderItsNameAtTheEnd) {
    folder.write("calls.txt", "older");
    open();
    file->attachTo(trace);
    trace.misuse("one");
    EXPECT_EQ(folder.read("calls.txt"), "older");
    file->finish();
    EXPECT_EQ(folder.read("calls.txt"), "misuse: one\n");
    trace.misuse("after the end");
    EXPECT_EQ(folder.read("calls.txt"), "misuse: one\nmisuse: after the end\n");
    EXPECT_THAT(folder.names(), testing::ElementsAre("calls.txt"));
}

TEST_F(TraceFileTest, canBeReadWhileItGrows) {
    open();
    file->attachTo(trace);
    trace.exception("of whatever comes before a crash");
    EXPECT_EQ(content(), "exception: of whatever comes before a crash\n");
    EXPECT_TRUE(folder.hasParts());
}

TEST_F(TraceFileTest, tellsAtItsEndThatItIsNotWhole) {
    open();
    file->attachTo(trace);
    // The largest file that this process may write from now on.
    const rlimit none{0, RLIM_INFINITY};
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &none);
    trace.misuse("one");
    setrlimit(RLIMIT_FSIZE, &usual);
    EXPECT_THROW(file->finish(), host::HostError);
    file.reset();
    EXPECT_THAT(folder.names(), testing::IsEmpty());
}

TEST_F(TraceFileTest, refusesWhatIsNoRegularFile) {
    EXPECT_THROW(app::TraceFile("/dev/null", [](const std::string&) {}), host::HostError);
}

TEST_F(TraceFileTest, standardStreamsShowItAsItComes) {
    testing::internal::CaptureStderr();
    std::cerr << "before" << std::endl;
    file.emplace("/dev/stderr", [](const std::string&) {});
    file->attachTo(trace);
    trace.misuse("one");
    file->finish();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "before\nmisuse: one\n");
}

} // namespace
} // namespace corvane::test
