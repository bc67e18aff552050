// When the process-wide main dialog comes into being: a program of its own with a single test, as
// that happens once.
#include "addon/ui/DialogMain.h"
#include "tests/support/HostTest.h"
#include "tests/unit/addon/RegisteredAddOn.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::StartsWith;

class DialogMainFirstUseTest : public HostTest {
protected:
    const RegisteredAddOn registration;
};

TEST_F(DialogMainFirstUseTest, setsTheAnimationSpeedOnce) {
    host.session().exportSetup().animationSpeed = 12.0;
    host.clearCalls();
    EXPECT_TRUE(DialogMain::okToLaunch());
    EXPECT_THAT(host.calls(),
                ElementsAre(lockStart, StartsWith("CorUtilStateChangeAddListener(2, "), lockFinish,
                            lockStart,
                            "CorUtilStyleSet(\"ExportSetup\",\"AnimationSpeed\", DValue=30)",
                            lockFinish, lockStart, "CorUtilFrameGetCount()",
                            "CorUtilFrameGetPlotType()", lockFinish));
    EXPECT_EQ(host.session().exportSetup().animationSpeed, 30.0);

    host.session().exportSetup().animationSpeed = 12.0;
    DialogMain::instance();
    EXPECT_EQ(host.session().exportSetup().animationSpeed, 12.0);
}

} // namespace
