// Tests of the call trace: its lines, and whom it tells.
#include "host/core/addons/CallTrace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace corvane::host {
namespace {

class CallTraceTest : public testing::Test {
protected:
    TraceSinks remembering() {
        return {.onCall = [this](const TraceRecord& record) { told.push_back(record.call); },
                .onMisuse = [this](const std::string& what) { told.push_back(what); },
                .onException = [this](const std::string& what) { told.push_back(what); },
                .onEnter = [](const char* /*operation*/, bool hasResult) { return !hasResult; }};
    }
    void traceAll() const {
        trace.record({"call", "", 0});
        trace.misuse("misuse");
        trace.exception("exception");
    }

    CallTrace trace;
    std::vector<std::string> told;
};

TEST_F(CallTraceTest, showsCallResultAndDepth) {
    EXPECT_EQ(toString(TraceRecord{"CorUtilExportStart()", "TRUE", 1}),
              "CorUtilExportStart() = TRUE [1]");
    EXPECT_EQ(toString(TraceRecord{"CorUtilDrawGraphics(FALSE)", "", 0}),
              "CorUtilDrawGraphics(FALSE) [0]");
}

TEST_F(CallTraceTest, tellsItsSinks) {
    trace.connect(remembering());
    EXPECT_TRUE(trace.isRecording());
    traceAll();
    EXPECT_THAT(told, ElementsAre("call", "misuse", "exception"));
    EXPECT_FALSE(trace.mayProceed("operation", true));
    EXPECT_TRUE(trace.mayProceed("operation", false));
}

TEST_F(CallTraceTest, newSinksReplaceAllFormerOnes) {
    trace.connect(remembering());
    trace.connect({.onMisuse = [this](const std::string& what) { told.push_back("new " + what); }});
    EXPECT_FALSE(trace.isRecording());
    traceAll();
    EXPECT_THAT(told, ElementsAre("new misuse"));
}

TEST_F(CallTraceTest, afterDisconnectingNobodyIsToldAndEveryCallProceeds) {
    trace.connect(remembering());
    trace.disconnect();
    EXPECT_FALSE(trace.isRecording());
    traceAll();
    EXPECT_THAT(told, IsEmpty());
    EXPECT_TRUE(trace.mayProceed("operation", true));
}

} // namespace
} // namespace corvane::host
