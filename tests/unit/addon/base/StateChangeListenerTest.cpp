// Hearing of the host's state changes.
#include "addon/base/StateChangeListener.h"

#include "tests/unit/addon/ShellTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using corvane::toolbox::StateChangeEventInterface;
using corvane::toolbox::StateChangeNotifierInterface;
using testing::ElementsAre;

class StateChangeListenerTest : public ShellTest {
protected:
    void tell(StateChange_e code) { host.session().stateChanges().notify(code); }

    std::vector<int> heard;
    std::vector<int> depths;
    StateChangeListener listener{
        [this](const StateChangeEventInterface& event, StateChangeNotifierInterface&) {
            heard.push_back(event.stateChange());
            depths.push_back(lockDepth());
        }};
};

TEST_F(StateChangeListenerTest, hearsNothingBeforeItStarts) {
    tell(StateChange_FrameCreated);
    EXPECT_THAT(heard, ElementsAre());
}

TEST_F(StateChangeListenerTest, hearsEveryChangeUnderTheLock) {
    listener.startListening();
    tell(StateChange_FrameCreated);
    tell(StateChange_ViewChanged);
    EXPECT_THAT(heard, ElementsAre(2, 4));
    EXPECT_THAT(depths, ElementsAre(1, 1));
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(StateChangeListenerTest, hearsOnceHoweverOftenItStarts) {
    listener.startListening();
    listener.startListening();
    tell(StateChange_FrameCreated);
    EXPECT_THAT(heard, ElementsAre(2));
}

TEST_F(StateChangeListenerTest, stopsAndStartsAgain) {
    listener.startListening();
    listener.stopListening();
    tell(StateChange_FrameCreated);
    EXPECT_THAT(heard, ElementsAre());
    listener.startListening();
    tell(StateChange_FrameDeleted);
    EXPECT_THAT(heard, ElementsAre(3));
}

TEST_F(StateChangeListenerTest, stopsByItselfWhenTheHostQuits) {
    listener.startListening();
    tell(StateChange_HostQuit);
    EXPECT_THAT(heard, ElementsAre(15));
    tell(StateChange_FrameDeleted);
    tell(StateChange_HostQuit);
    EXPECT_THAT(heard, ElementsAre(15));
}

TEST_F(StateChangeListenerTest, takesALockOfItsOwnToStop) {
    listener.startListening();
    host.clearCalls();
    tell(StateChange_HostQuit);
    EXPECT_THAT(host.calls(), ElementsAre(lockStart, lockStart, lockFinish, lockFinish));
}

TEST_F(StateChangeListenerTest, locksWhileItRegisters) {
    host.clearCalls();
    const StateChangeListener another{
        [](const StateChangeEventInterface&, StateChangeNotifierInterface&) {}};
    EXPECT_THAT(
        host.calls(),
        ElementsAre(lockStart, "CorUtilStateChangeAddListener(2, non-null, non-null)", lockFinish));
}

// An event as the host's toolbox makes them.
class Event : public StateChangeEventInterface {
public:
    StateChange_e stateChange() const override { return StateChange_FrameCreated; }
};

TEST_F(StateChangeListenerTest, releasesTheLockWhenItsHandlerThrows) {
    StateChangeListener throwing{
        [](const StateChangeEventInterface&, StateChangeNotifierInterface&) {
            throw std::runtime_error("handler");
        }};
    corvane::toolbox::StateChangeNotifier notifier(StateChangeMode_Synchronous);
    EXPECT_THROW(throwing.stateChanged(Event(), notifier), std::runtime_error);
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(StateChangeListenerTest, refusesAnEmptyHandler) {
    StateChangeListener empty{StateChangeListener::Handler()};
    corvane::toolbox::StateChangeNotifier notifier(StateChangeMode_Synchronous);
    EXPECT_THROW(empty.stateChanged(Event(), notifier), boost::bad_function_call);
    EXPECT_EQ(lockDepth(), 0);
}

} // namespace
