// Work that waits for the host's idle time.
#include "addon/base/OnIdleManager.h"

#include "tests/unit/addon/ShellTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::StartsWith;

class OnIdleManagerTest : public ShellTest {
protected:
    void add(const std::string& name) {
        manager.addCallback([this, name] { ran.push_back(name); });
    }

    OnIdleManager manager;
    std::vector<std::string> ran;
};

TEST_F(OnIdleManagerTest, waitsForIdleTime) {
    add("first");
    EXPECT_THAT(ran, ElementsAre());
    EXPECT_THAT(
        host.calls(),
        ElementsAre(lockStart, StartsWith("CorUtilOnIdleQueueAddCallback(non-null, "), lockFinish));
    host.runIdle();
    EXPECT_THAT(ran, ElementsAre("first"));
    host.runIdle();
    EXPECT_THAT(ran, ElementsAre("first"));
}

TEST_F(OnIdleManagerTest, keepsTheFirstOfTwo) {
    add("first");
    add("second");
    host.runIdle();
    EXPECT_THAT(ran, ElementsAre("first"));
    EXPECT_EQ(host.count("CorUtilOnIdleQueueAddCallback"), 1u);
    add("third");
    host.runIdle();
    EXPECT_THAT(ran, ElementsAre("first", "third"));
}

TEST_F(OnIdleManagerTest, managesEachOwnersWorkByItself) {
    OnIdleManager other;
    other.addCallback([this] { ran.push_back("other"); });
    add("own");
    host.runIdle();
    EXPECT_THAT(ran, ElementsAre("other", "own"));
}

TEST_F(OnIdleManagerTest, ignoresWhatTheRunningCallbackAsksFor) {
    manager.addCallback([this] { add("again"); });
    host.runIdle();
    host.runIdle();
    EXPECT_THAT(ran, ElementsAre());
    add("later");
    host.runIdle();
    EXPECT_THAT(ran, ElementsAre("later"));
}

TEST_F(OnIdleManagerTest, isFreeAgainAfterAnException) {
    manager.addCallback([] { throw std::runtime_error("work"); });
    EXPECT_THROW(manager.doCallback(), std::runtime_error);
    add("next");
    manager.doCallback();
    EXPECT_THAT(ran, ElementsAre("next"));
}

TEST_F(OnIdleManagerTest, refusesToRunNothing) {
    EXPECT_THROW(manager.doCallback(), boost::bad_function_call);
    add("once");
    manager.doCallback();
    EXPECT_THROW(OnIdleManager::onIdleCallback(reinterpret_cast<long>(&manager)),
                 boost::bad_function_call);
}

TEST_F(OnIdleManagerTest, queuesAnEmptyCallbackWhichThenFails) {
    manager.addCallback(boost::function<void()>());
    EXPECT_EQ(host.count("CorUtilOnIdleQueueAddCallback"), 1u);
    EXPECT_THROW(manager.doCallback(), boost::bad_function_call);
}

TEST_F(OnIdleManagerTest, releasesTheLockWhenTheHostThrows) {
    host.throwAt("CorUtilOnIdleQueueAddCallback");
    EXPECT_THROW(add("first"), std::runtime_error);
    EXPECT_EQ(lockDepth(), 0);
}

} // namespace
