// Tests of the delivery of state changes.
#include "host/core/addons/StateChanges.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<StateChange_e> g_told; ///< by the callback, which has no client data

void tellGlobal(StateChange_e change) {
    g_told.push_back(change);
}

struct Ear {
    StateChanges& changes;
    std::vector<StateChange_e> told;
    std::vector<Ear*> removes; ///< whom it removes when it is told

    static void listen(StateChange_e change, void* clientData) {
        auto* ear = static_cast<Ear*>(clientData);
        ear->told.push_back(change);
        for (Ear* other : ear->removes) {
            ear->changes.removeListener(&Ear::listen, other);
        }
    }
    static void listenToo(StateChange_e change, void* clientData) { listen(change, clientData); }
};

class StateChangesTest : public testing::Test {
protected:
    StateChangesTest() { g_told.clear(); }

    StateChanges changes;
    Ear first{changes, {}, {}};
    Ear second{changes, {}, {}};
};

TEST_F(StateChangesTest, tellsEveryoneOfEveryChange) {
    changes.addCallback(&tellGlobal);
    changes.addListener(&Ear::listen, &first);
    changes.addListener(&Ear::listen, &second);
    changes.notify(StateChange_ViewChanged);
    changes.notify(StateChange_ViewChanged);
    EXPECT_THAT(g_told, ElementsAre(StateChange_ViewChanged, StateChange_ViewChanged));
    EXPECT_EQ(first.told.size(), 2U);
    EXPECT_EQ(second.told.size(), 2U);
}

TEST_F(StateChangesTest, aPairCountsOnce) {
    changes.addListener(&Ear::listen, &first);
    changes.addListener(&Ear::listen, &first);
    changes.notify(StateChange_HostQuit);
    EXPECT_THAT(first.told, ElementsAre(StateChange_HostQuit));
    EXPECT_TRUE(changes.removeListener(&Ear::listen, &first));
    EXPECT_FALSE(changes.removeListener(&Ear::listen, &first));
    changes.notify(StateChange_HostQuit);
    EXPECT_EQ(first.told.size(), 1U);
}

TEST_F(StateChangesTest, aPairIsFunctionAndData) {
    changes.addListener(&Ear::listen, &first);
    changes.addListener(&Ear::listenToo, &first);
    EXPECT_FALSE(changes.removeListener(&Ear::listen, &second));
    changes.notify(StateChange_HostQuit);
    EXPECT_EQ(first.told.size(), 2U);
}

TEST_F(StateChangesTest, aListenerMayRemoveItselfWhileItIsTold) {
    first.removes = {&first};
    changes.addListener(&Ear::listen, &first);
    changes.addListener(&Ear::listen, &second);
    changes.notify(StateChange_HostQuit);
    changes.notify(StateChange_HostQuit);
    EXPECT_EQ(first.told.size(), 1U);
    EXPECT_EQ(second.told.size(), 2U);
}

TEST_F(StateChangesTest, aListenerThatWasRemovedMeanwhileIsNotTold) {
    first.removes = {&second};
    changes.addListener(&Ear::listen, &first);
    changes.addListener(&Ear::listen, &second);
    changes.notify(StateChange_HostQuit);
    EXPECT_EQ(first.told.size(), 1U);
    EXPECT_THAT(second.told, IsEmpty());
}

TEST_F(StateChangesTest, callsThroughTheCaller) {
    int calls = 0;
    StateChanges called([&calls](const std::string&, const std::function<void()>& work) {
        ++calls;
        work();
    });
    called.addCallback(&tellGlobal);
    called.addListener(&Ear::listen, &first);
    called.notify(StateChange_PageChanged);
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(g_told.size(), 1U);
    EXPECT_EQ(first.told.size(), 1U);
}

} // namespace
} // namespace corvane::host
