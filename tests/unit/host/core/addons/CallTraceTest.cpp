// Tests of the call trace's lines.
#include "host/core/addons/CallTrace.h"

#include <gtest/gtest.h>

namespace corvane::host {
namespace {

TEST(TraceRecordText, showsCallResultAndDepth) {
    EXPECT_EQ(toString(TraceRecord{"CorUtilExportStart()", "TRUE", 1}),
              "CorUtilExportStart() = TRUE [1]");
    EXPECT_EQ(toString(TraceRecord{"CorUtilDrawGraphics(FALSE)", "", 0}),
              "CorUtilDrawGraphics(FALSE) [0]");
}

} // namespace
} // namespace corvane::host
