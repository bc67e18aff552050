// Tests of the count of locks.
#include "host/core/addons/Locks.h"

#include "host/core/addons/AddOns.h"

#include <gtest/gtest.h>

namespace corvane::host {
namespace {

class LocksTest : public testing::Test {
protected:
    CorAddOn_s first;
    CorAddOn_s second;
    Locks locks;
};

TEST_F(LocksTest, countsByOwnerAndInTotal) {
    locks.start(&first);
    locks.start(&first);
    locks.start(&second);
    locks.start(nullptr);
    EXPECT_EQ(locks.depth(), 4);
    EXPECT_EQ(locks.depthOf(&first), 2);
    EXPECT_EQ(locks.depthOf(&second), 1);
    EXPECT_EQ(locks.depthOf(nullptr), 1);
}

TEST_F(LocksTest, refusesAFinishWithoutAStartOfThisOwner) {
    locks.start(&first);
    EXPECT_FALSE(locks.finish(&second));
    EXPECT_FALSE(locks.finish(nullptr));
    EXPECT_EQ(locks.depth(), 1);
    EXPECT_TRUE(locks.finish(&first));
    EXPECT_FALSE(locks.finish(&first));
    EXPECT_EQ(locks.depth(), 0);
    EXPECT_EQ(locks.depthOf(&first), 0);
}

TEST_F(LocksTest, restoresWhatWasHeld) {
    locks.start(&first);
    const Locks::Snapshot before = locks.snapshot();
    locks.start(&first);
    locks.start(&second);
    locks.restore(before);
    EXPECT_EQ(locks.depth(), 1);
    EXPECT_EQ(locks.depthOf(&first), 1);
    EXPECT_EQ(locks.depthOf(&second), 0);
    EXPECT_TRUE(locks.finish(&first));
    EXPECT_EQ(locks.depth(), 0);
}

TEST_F(LocksTest, balancedLocksLeaveTheSameSnapshot) {
    const Locks::Snapshot before = locks.snapshot();
    locks.start(&first);
    EXPECT_NE(locks.snapshot(), before);
    locks.finish(&first);
    EXPECT_EQ(locks.snapshot(), before);
}

} // namespace
} // namespace corvane::host
