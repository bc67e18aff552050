// Notification of state changes.
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

#include <functional>
#include <stdexcept>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Codes = std::vector<StateChange_e>;

Codes heard;
void hear(StateChange_e change) {
    heard.push_back(change);
}
void hearAs(StateChange_e change, void* clientData) {
    static_cast<Codes*>(clientData)->push_back(change);
}
void lockAndThrow(StateChange_e, void*) {
    CorUtilLockStart(nullptr);
    throw std::runtime_error("the listener failed");
}

/// Does what it is told to when it hears of a change.
struct Listener : toolbox::StateChangeListenerInterface {
    void stateChanged(const toolbox::StateChangeEventInterface& event,
                      toolbox::StateChangeNotifierInterface& notifier) override {
        codes.push_back(event.stateChange());
        if (then) {
            then(notifier);
        }
    }
    Codes codes;
    std::function<void(toolbox::StateChangeNotifierInterface&)> then;
};

class StateChangeApiTest : public HostTest {
protected:
    StateChangeApiTest() { heard.clear(); }

    static CorBool addCallback(CorStateChangeCallback callback, int mode = 2, int api = 1) {
        toolbox::ArgList args;
        args.appendFunction("CallbackFunction", reinterpret_cast<CorGenericFunc>(callback));
        args.appendInt("StateChangeMode", mode);
        args.appendInt("StateChangeCallbackAPI", api);
        return CorUtilStateChangeAddCallbackX(args.handle());
    }
    void change() { CorUtilSolutionTimeSetCurrent(CorUtilSolutionTimeGetCurrent() + 1.0); }

    Codes first;
    Codes second;
};

TEST_F(StateChangeApiTest, aCallbackHearsOfEachChange) {
    EXPECT_EQ(addCallback(&hear), TRUE);
    change();
    change();
    host.setPlotType(PlotType_Cartesian2D);
    host.setData(nullptr);
    EXPECT_THAT(heard, ElementsAre(StateChange_SolutionTimeChanged, StateChange_SolutionTimeChanged,
                                   StateChange_PlotTypeChanged, StateChange_DataSetRemoved));
}

TEST_F(StateChangeApiTest, theListOfArgumentsIsTraced) {
    addCallback(&hear);
    EXPECT_EQ(host.calls().back(),
              "CorUtilStateChangeAddCallbackX(CallbackFunction=non-null, StateChangeMode=2, "
              "StateChangeCallbackAPI=1)");
}

TEST_F(StateChangeApiTest, changesArriveWhileLockedAndSuspended) {
    addCallback(&hear);
    CorUtilLockStart(nullptr);
    CorUtilDrawGraphics(FALSE);
    change();
    EXPECT_THAT(heard, ElementsAre(StateChange_SolutionTimeChanged));
    CorUtilDrawGraphics(TRUE);
    CorUtilLockFinish(nullptr);
}

TEST_F(StateChangeApiTest, aMissingCallbackIsMisuse) {
    host.expectMisuse("CorUtilStateChangeAddCallbackX: no CallbackFunction");
    toolbox::ArgList args;
    EXPECT_EQ(CorUtilStateChangeAddCallbackX(nullptr), FALSE);
    EXPECT_EQ(CorUtilStateChangeAddCallbackX(args.handle()), FALSE);
    EXPECT_EQ(addCallback(nullptr), FALSE);
    EXPECT_EQ(host.misuse().size(), 3U);
}

TEST_F(StateChangeApiTest, anUnknownKindOfCallbackIsNotAdded) {
    host.expectMisuse("CorUtilStateChangeAddCallbackX: unknown StateChangeCallbackAPI");
    EXPECT_EQ(addCallback(&hear, 2, 7), FALSE);
    change();
    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(StateChangeApiTest, anUnknownModeIsToldAndTakenAsSynchronous) {
    host.expectMisuse("unknown mode");
    EXPECT_EQ(addCallback(&hear, 1), TRUE);
    change();
    EXPECT_THAT(heard, ElementsAre(StateChange_SolutionTimeChanged));
}

TEST_F(StateChangeApiTest, aPairOfFunctionAndDataCountsOnce) {
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(CorUtilStateChangeAddListener(StateChangeMode_Synchronous, &hearAs, &first),
                  TRUE);
    }
    CorUtilStateChangeAddListener(StateChangeMode_Synchronous, &hearAs, &second);
    change();
    EXPECT_THAT(first, ElementsAre(StateChange_SolutionTimeChanged));
    EXPECT_THAT(second, ElementsAre(StateChange_SolutionTimeChanged));
    EXPECT_EQ(CorUtilStateChangeRemoveListener(&hearAs, &first), TRUE);
    EXPECT_EQ(CorUtilStateChangeRemoveListener(&hearAs, &first), FALSE);
    change();
    EXPECT_EQ(first.size(), 1U);
    EXPECT_EQ(second.size(), 2U);
}

TEST_F(StateChangeApiTest, aListenerWithoutFunctionIsMisuse) {
    host.expectMisuse("CorUtilStateChangeAddListener: f is NULL");
    EXPECT_EQ(CorUtilStateChangeAddListener(StateChangeMode_Synchronous, nullptr, &first), FALSE);
}

TEST_F(StateChangeApiTest, aListenerThatThrowsIsReportedAndTheOthersHearOfTheChange) {
    CorUtilStateChangeAddListener(StateChangeMode_Synchronous, &lockAndThrow, nullptr);
    CorUtilStateChangeAddListener(StateChangeMode_Synchronous, &hearAs, &first);
    change();
    EXPECT_THAT(first, ElementsAre(StateChange_SolutionTimeChanged));
    EXPECT_THAT(host.prompts().shown(ShownDialog::Kind::Error), ElementsAre("the listener failed"));
    EXPECT_EQ(host.session().locks().depth(), 0);
}

TEST_F(StateChangeApiTest, aNotifierTellsEachListenerOnce) {
    toolbox::StateChangeNotifier notifier(StateChangeMode_Synchronous);
    Listener listener;
    notifier.addListener(&listener);
    notifier.addListener(&listener);
    change();
    EXPECT_THAT(listener.codes, ElementsAre(StateChange_SolutionTimeChanged));
    notifier.removeListener(&listener);
    notifier.removeListener(&listener);
    change();
    EXPECT_EQ(listener.codes.size(), 1U);
}

TEST_F(StateChangeApiTest, aListenerMayRemoveItselfWhileItIsTold) {
    toolbox::StateChangeNotifier notifier(StateChangeMode_Synchronous);
    Listener leaving;
    Listener staying;
    leaving.then = [&](toolbox::StateChangeNotifierInterface& teller) {
        teller.removeListener(&leaving);
    };
    notifier.addListener(&leaving);
    notifier.addListener(&staying);
    change();
    change();
    EXPECT_EQ(leaving.codes.size(), 1U);
    EXPECT_EQ(staying.codes.size(), 2U);
}

TEST_F(StateChangeApiTest, aListenerAddedWhileAnotherIsToldHearsOfTheNextChange) {
    toolbox::StateChangeNotifier notifier(StateChangeMode_Synchronous);
    Listener adding;
    Listener late;
    adding.then = [&](toolbox::StateChangeNotifierInterface& teller) { teller.addListener(&late); };
    notifier.addListener(&adding);
    change();
    EXPECT_THAT(late.codes, IsEmpty());
    change();
    EXPECT_EQ(late.codes.size(), 1U);
}

TEST_F(StateChangeApiTest, aNotifierThatIsGoneIsNotTold) {
    Listener listener;
    {
        toolbox::StateChangeNotifier notifier(StateChangeMode_Synchronous);
        notifier.addListener(&listener);
    }
    change();
    EXPECT_THAT(listener.codes, IsEmpty());
    EXPECT_EQ(host.count("CorUtilStateChangeRemoveListener"), 1U);
}

TEST_F(StateChangeApiTest, theEndIsToldOnce) {
    addCallback(&hear);
    host.session().quit();
    host.session().quit();
    EXPECT_THAT(heard, ElementsAre(StateChange_HostQuit));
}

} // namespace
} // namespace corvane::test
