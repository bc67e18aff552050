// When the add-on's menu option can be used.
#include "addon/shell/MenuOption.h"

#include "tests/unit/addon/ShellTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr char label[] = "&Key Frame Animation...";
const std::string queueUpdate = "CorUtilOnIdleQueueAddCallback(non-null, 0)";

class MenuOptionTest : public ShellTest {
protected:
    MenuOptionTest() {
        addMenuOption();
        DialogMain::instance();
        host.clearCalls();
    }

    bool isUsable() { return host.mainMenu().isSensitive("Animate", label); }

    void change(int code) { StateChangeCallback(static_cast<StateChange_e>(code)); }
};

TEST_F(MenuOptionTest, looksAgainAfterTheseChangesAlone) {
    for (const int code : {2, 3, 5, 6, 7, 8, 9, 44, 50, 51}) {
        change(code);
        EXPECT_TRUE(pendingUpdateFuncOnIdle) << code;
        host.runIdle();
        EXPECT_FALSE(pendingUpdateFuncOnIdle) << code;
    }
    EXPECT_EQ(host.count("CorUtilOnIdleQueueAddCallback"), 10u);
}

TEST_F(MenuOptionTest, ignoresAllOtherChanges) {
    for (const int code : {-1, 0, 1, 4, 10, 11, 15, 43, 45, 49, 52, 53, 108}) {
        change(code);
    }
    EXPECT_FALSE(pendingUpdateFuncOnIdle);
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(MenuOptionTest, takesManyChangesForOne) {
    for (const int code : {2, 3, 5, 6, 7, 8, 9, 44, 50, 51}) {
        change(code);
    }
    EXPECT_THAT(host.calls(), ElementsAre(lockStart, queueUpdate, lockFinish));
    host.clearCalls();
    host.runIdle();
    EXPECT_THAT(host.calls(),
                ElementsAre(lockStart, "CorUtilFrameGetCount()", "CorUtilDataSetIsAvailable()",
                            lockStart, "CorUtilFrameGetCount()", "CorUtilFrameGetPlotType()",
                            lockFinish,
                            "CorUtilMenuSetSensitivity(\"Animate\", "
                            "\"&Key Frame Animation...\", TRUE)",
                            lockFinish));
}

TEST_F(MenuOptionTest, needsAFrame) {
    host.session().silentPage().deleteFrame(host.frame().id());
    updateMenuOption();
    EXPECT_FALSE(isUsable());
}

TEST_F(MenuOptionTest, needsDataInSpiteOfA3DPlot) {
    host.setData(nullptr);
    EXPECT_TRUE(DialogMain::okToLaunch());
    updateMenuOption();
    EXPECT_FALSE(isUsable());
}

TEST_F(MenuOptionTest, needsA3DPlot) {
    host.setPlotType(PlotType_Cartesian2D);
    updateMenuOption();
    EXPECT_FALSE(isUsable());
    host.setPlotType(PlotType_Cartesian3D);
    updateMenuOption();
    EXPECT_TRUE(isUsable());
}

TEST_F(MenuOptionTest, looksAgainAfterAFailedUpdate) {
    change(StateChange_FrameCreated);
    host.throwAt("CorUtilMenuSetSensitivity");
    EXPECT_THROW(onIdleCallback(0), std::runtime_error);
    EXPECT_FALSE(pendingUpdateFuncOnIdle);
    EXPECT_EQ(lockDepth(), 0);
}

} // namespace
