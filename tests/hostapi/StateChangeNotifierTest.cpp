// Tests of the listeners' notifier against the host that tells it.
#include "hostapi/toolbox/StateChangeNotifier.h"

#include "tests/support/HostTest.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace corvane::toolbox {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Writes into a log shared by the listeners of a test, then does what the test asks for.
class LoggingListener : public StateChangeListenerInterface {
public:
    LoggingListener(std::string name, std::vector<std::string>& log)
        : m_name(std::move(name)), m_log(log) {}

    void stateChanged(const StateChangeEventInterface& event,
                      StateChangeNotifierInterface& notifier) override {
        m_log.push_back(m_name + std::to_string(event.stateChange()));
        if (onChange) {
            onChange(notifier);
        }
    }

    std::function<void(StateChangeNotifierInterface&)> onChange;

private:
    std::string m_name;
    std::vector<std::string>& m_log;
};

class StateChangeNotifierTest : public test::HostTest {
protected:
    void notify(StateChange_e change) { host.session().stateChanges().notify(change); }

    StateChangeNotifier notifier{StateChangeMode_Synchronous};
    std::vector<std::string> log;
    LoggingListener a{"a", log};
    LoggingListener b{"b", log};
    LoggingListener c{"c", log};
};

TEST_F(StateChangeNotifierTest, registersWhileItLives) {
    host.clearCalls();
    { const StateChangeNotifier inner(StateChangeMode_Synchronous); }

    EXPECT_THAT(host.calls(), ElementsAre("CorUtilStateChangeAddListener(2, non-null, non-null)",
                                          "CorUtilStateChangeRemoveListener(non-null, non-null)"));
    EXPECT_EQ(host.records().back().result, "TRUE");
}

TEST_F(StateChangeNotifierTest, tellsCodesInOrderOfAdding) {
    notifier.addListener(&b);
    notifier.addListener(&a);
    notify(StateChange_FrameCreated);
    notify(StateChange_SolutionTimeChanged);

    EXPECT_THAT(log, ElementsAre("b2", "a2", "b52", "a52"));
}

TEST_F(StateChangeNotifierTest, hearsOfChangesInTheHost) {
    notifier.addListener(&a);
    host.setPlotType(PlotType_Cartesian2D);

    EXPECT_THAT(log, ElementsAre("a8"));
}

TEST_F(StateChangeNotifierTest, sameListenerCountsOnce) {
    notifier.addListener(&a);
    notifier.addListener(&a);
    notify(StateChange_FrameCreated);
    EXPECT_THAT(log, ElementsAre("a2"));

    notifier.removeListener(&a);
    notify(StateChange_FrameDeleted);
    EXPECT_THAT(log, ElementsAre("a2"));
}

TEST_F(StateChangeNotifierTest, ignoresNullAndAbsentListeners) {
    notifier.addListener(&a);
    notifier.addListener(nullptr);
    notifier.removeListener(nullptr);
    notifier.removeListener(&b);
    notify(StateChange_FrameCreated);

    EXPECT_THAT(log, ElementsAre("a2"));
}

TEST_F(StateChangeNotifierTest, passesItselfToListeners) {
    StateChangeNotifierInterface* seen = nullptr;
    a.onChange = [&](StateChangeNotifierInterface& told) { seen = &told; };
    notifier.addListener(&a);
    notify(StateChange_FrameCreated);

    EXPECT_EQ(seen, &notifier);
}

TEST_F(StateChangeNotifierTest, listenerMayRemoveItselfWhileItIsTold) {
    a.onChange = [&](StateChangeNotifierInterface& told) { told.removeListener(&a); };
    notifier.addListener(&a);
    notifier.addListener(&b);
    notifier.addListener(&c);
    notify(StateChange_HostQuit);
    notify(StateChange_FrameCreated);

    EXPECT_THAT(log, ElementsAre("a15", "b15", "c15", "b2", "c2"));
}

TEST_F(StateChangeNotifierTest, removalOfOthersCountsFromTheNextChange) {
    a.onChange = [&](StateChangeNotifierInterface& told) { told.removeListener(&b); };
    notifier.addListener(&a);
    notifier.addListener(&b);
    notify(StateChange_FrameCreated);
    notify(StateChange_FrameDeleted);

    EXPECT_THAT(log, ElementsAre("a2", "b2", "a3"));
}

TEST_F(StateChangeNotifierTest, addingCountsFromTheNextChange) {
    a.onChange = [&](StateChangeNotifierInterface& told) { told.addListener(&b); };
    notifier.addListener(&a);
    notify(StateChange_FrameCreated);
    notify(StateChange_FrameDeleted);

    EXPECT_THAT(log, ElementsAre("a2", "a3", "b3"));
}

TEST_F(StateChangeNotifierTest, notifiersAreIndependent) {
    StateChangeNotifier other(StateChangeMode_Synchronous);
    notifier.addListener(&a);
    other.addListener(&b);
    notifier.removeListener(&b);
    notify(StateChange_FrameCreated);

    EXPECT_THAT(log, ElementsAre("a2", "b2"));
}

TEST_F(StateChangeNotifierTest, destroyedNotifierTellsNobody) {
    auto inner = std::make_unique<StateChangeNotifier>(StateChangeMode_Synchronous);
    inner->addListener(&a);
    inner.reset();
    notify(StateChange_FrameCreated);

    EXPECT_THAT(log, IsEmpty());
}

TEST(StateChangeNotifierLifeTest, mayOutliveTheHost) {
    std::vector<std::string> log;
    LoggingListener listener("a", log);
    std::unique_ptr<StateChangeNotifier> notifier;
    {
        const test::MemoryHost host;
        notifier = std::make_unique<StateChangeNotifier>(StateChangeMode_Synchronous);
        notifier->addListener(&listener);
    }
    notifier->removeListener(&listener);
    notifier->addListener(&listener);
    notifier.reset();

    test::MemoryHost next;
    next.session().stateChanges().notify(StateChange_FrameCreated);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_THAT(next.misuse(), IsEmpty());
}

} // namespace
} // namespace corvane::toolbox
