// What the trace records of a call.
#include "host/api/TracedCall.h"
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

#include <cstdlib>
#include <limits>
#include <new>
#include <stdexcept>
#include <thread>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

template <class T>
std::string textOf(T value) {
    std::string text;
    host::appendValue(text, value);
    return text;
}

TEST(CallTextTest, argumentsHaveAReadableForm) {
    EXPECT_EQ(textOf(true), "TRUE");
    EXPECT_EQ(textOf(false), "FALSE");
    EXPECT_EQ(textOf(-7), "-7");
    EXPECT_EQ(textOf(1L << 40), "1099511627776");
    EXPECT_EQ(textOf(RotateAxis_Theta), "4");
    EXPECT_EQ(textOf(static_cast<const char*>("a\"b\\c\nd")), "\"a\\\"b\\\\c\\nd\"");
    EXPECT_EQ(textOf(static_cast<const char*>(nullptr)), "NULL");
    EXPECT_EQ(textOf(&CorUtilLockOn), "non-null");
    EXPECT_EQ(textOf(static_cast<double*>(nullptr)), "NULL");
    EXPECT_EQ(textOf(static_cast<CorArgList>(nullptr)), "NULL");
}

TEST(CallTextTest, numbersReadBackAsTheSame) {
    EXPECT_EQ(textOf(1.5), "1.5");
    EXPECT_EQ(textOf(30.0), "30");
    EXPECT_EQ(textOf(0.1), "0.1");
    EXPECT_EQ(textOf(-0.0), "-0");
    EXPECT_EQ(textOf(1e-9), "1e-09");
    EXPECT_EQ(textOf(std::numeric_limits<double>::infinity()), "inf");
    for (const double value : {1.0 / 3.0, std::numeric_limits<double>::max(),
                               std::numeric_limits<double>::denorm_min(), 65.00000000000001}) {
        EXPECT_EQ(std::strtod(textOf(value).c_str(), nullptr), value);
    }
}

class TracedCallTest : public EmptyHostTest {
protected:
    std::string lastLine() const { return host::toString(host.records().back()); }
};

TEST_F(TracedCallTest, resultsAndDepthAreThoseAfterTheCall) {
    CorUtilLockStart(nullptr);
    EXPECT_EQ(lastLine(), "CorUtilLockStart(NULL) [1]");
    CorUtilFrameGetCount();
    EXPECT_EQ(lastLine(), "CorUtilFrameGetCount() = 0 [1]");
    CorUtilConvertXDimension(0.5, CoordSys_Paper, CoordSys_Screen);
    EXPECT_EQ(lastLine(), "CorUtilConvertXDimension(0.5, 3, 4) = 80 [1]");
    CorUtilLockFinish(nullptr);
    EXPECT_EQ(lastLine(), "CorUtilLockFinish(NULL) [0]");
}

TEST_F(TracedCallTest, noTextIsMadeWhenNobodyListens) {
    host.stopRemembering();
    // Making a text of this argument would crash.
    const auto unreadable = reinterpret_cast<CorArgList>(sizeof(void*));
    bool worked = false;
    host::TracedCall("Operation", unreadable).perform([&](host::Session&) { worked = true; });
    EXPECT_TRUE(worked);
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(TracedCallTest, exceptionsOfTheHostBecomeTheFailureValue) {
    host.expectMisuse("First: broken");
    host.expectMisuse("Second: failed for an unknown reason");
    host.expectMisuse("Third: std::bad_alloc");
    const int first = host::TracedCall("First").answer(
        -1, [](host::Session&) -> int { throw std::runtime_error("broken"); });
    const int second =
        host::TracedCall("Second").answer(-2, [](host::Session&) -> int { throw 7; });
    host::TracedCall("Third").perform([](host::Session&) { throw std::bad_alloc(); });
    EXPECT_EQ(first, -1);
    EXPECT_EQ(second, -2);
    EXPECT_EQ(lastLine(), "Third() [0]");
    EXPECT_EQ(host::toString(host.records().front()), "First() = -1 [0]");
}

TEST_F(TracedCallTest, aListenerThatTakesItselfAwayDuringACallGetsNoRecord) {
    host::TracedCall("Operation").perform([](host::Session& session) {
        session.trace().disconnect();
    });
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(TracedCallTest, misuseAnswersFalseAndNamesTheLibraryThatCalled) {
    host.expectMisuse("unit_host_api: Operation: wrong");
    EXPECT_FALSE(host::TracedCall("Operation").misuse("wrong"));
}

TEST_F(TracedCallTest, otherThreadsAreRefused) {
    host.expectMisuse("unit_host_api: CorUtilLockStart: called on another thread");
    host.expectMisuse("unit_host_api: CorUtilFrameGetCount: called on another thread");
    host.expectMisuse("unit_host_api: CorUtilStringAlloc: called on another thread");
    host.expectMisuse("unit_host_api: CorUtilArgListAlloc: called on another thread");
    std::thread([] {
        CorUtilLockStart(nullptr);
        EXPECT_EQ(CorUtilFrameGetCount(), 0);
        EXPECT_EQ(CorUtilStringAlloc(5), nullptr);
        EXPECT_EQ(CorUtilArgListAlloc(), nullptr);
    }).join();
    EXPECT_EQ(host.session().locks().depth(), 0);
    EXPECT_EQ(host.misuse().size(), 4U);
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(TracedCallTest, codeOfTheHostHasNoName) {
    EXPECT_EQ(host::libraryAt(reinterpret_cast<const void*>(&CorUtilLockOn)), "");
    EXPECT_EQ(host::libraryAt(nullptr), "");
}

} // namespace
} // namespace corvane::test
