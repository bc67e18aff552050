// Tests of the current host, its thread, and commands that are performed.
#include "host/core/Host.h"

#include "host/core/base/HostError.h"
#include "tests/support/MemoryHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

namespace corvane::host {
namespace {

using test::MemoryHost;
using testing::ElementsAre;
using testing::IsEmpty;

bool isHomeInAnotherThread() {
    bool isHome = false;
    std::thread([&isHome] { isHome = Host::isHomeThread(); }).join();
    return isHome;
}

TEST(CurrentHostTest, theMostRecentlyCreatedOneIsCurrent) {
    MemoryHost elder;
    EXPECT_EQ(Host::current(), &elder.program());
    {
        MemoryHost younger;
        EXPECT_EQ(Host::current(), &younger.program());
    }
    EXPECT_EQ(Host::current(), &elder.program());
}

TEST(CurrentHostTest, anElderOneMayGoFirst) {
    auto elder = std::make_unique<MemoryHost>();
    MemoryHost younger;
    elder.reset();
    EXPECT_EQ(Host::current(), &younger.program());
}

TEST(CurrentHostTest, thereIsNoneAfterTheLastOne) {
    { const MemoryHost host; }
    EXPECT_EQ(Host::current(), nullptr);
}

TEST(CurrentHostTest, itsThreadIsTheOneThatMadeIt) {
    const MemoryHost host;
    EXPECT_TRUE(Host::isHomeThread());
    EXPECT_FALSE(isHomeInAnotherThread());
}

TEST(CurrentHostTest, withoutOneEveryThreadIsHome) {
    { const MemoryHost host; }
    EXPECT_TRUE(Host::isHomeThread());
    EXPECT_TRUE(isHomeInAnotherThread());
}

TEST(CurrentHostTest, hearsOfMisuseOnAnyThread) {
    const MemoryHost elder;
    const MemoryHost younger;
    Host::tellMisuse("here");
    std::thread([] { Host::tellMisuse("there"); }).join();
    EXPECT_THAT(younger.misuse(), ElementsAre("here", "there"));
    EXPECT_THAT(elder.misuse(), IsEmpty());
}

TEST(CurrentHostTest, misuseWithoutOneIsNobodysConcern) {
    EXPECT_NO_THROW(Host::tellMisuse("nobody hears this"));
}

TEST(HostPerformTest, carriesOutCommandsAndRecordsThem) {
    MemoryHost host;
    host.program().recorder().start();
    host.program().perform("SOLUTIONTIME", {"=", "2"});
    EXPECT_EQ(host.frame().solutionTime, 2.0);
    EXPECT_THAT(host.program().recorder().stop(), ElementsAre("$!SOLUTIONTIME = 2"));
}

TEST(HostPerformTest, whatFailsIsNotRecorded) {
    MemoryHost host;
    host.program().recorder().start();
    EXPECT_THROW(host.program().perform("SOLUTIONTIME", {"=", "soon"}), HostError);
    EXPECT_THAT(host.program().recorder().stop(), IsEmpty());
}

TEST(HostPerformTest, recordsNothingUnlessAsked) {
    MemoryHost host;
    host.program().perform("SOLUTIONTIME", {"=", "2"});
    EXPECT_THAT(host.program().recorder().lines(), IsEmpty());
}

} // namespace
} // namespace corvane::host
