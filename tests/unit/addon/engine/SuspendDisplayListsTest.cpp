// The guard that switches display lists off.
#include "addon/engine/SuspendDisplayLists.h"

#include "tests/unit/addon/EngineTest.h"

namespace corvane::test {
namespace {

using corutiltools::SuspendDisplayLists;

using SuspendDisplayListsTest = EngineTest;

TEST_F(SuspendDisplayListsTest, displayListsAreOffForTheScope) {
    {
        const SuspendDisplayLists off;
        EXPECT_FALSE(usesDisplayLists());
    }
    EXPECT_TRUE(usesDisplayLists());
}

TEST_F(SuspendDisplayListsTest, displayListsThatWereOffStayOff) {
    toolbox::StyleValue("Interface").setBoolean(false, "UseDisplayLists");
    { const SuspendDisplayLists off; }
    EXPECT_FALSE(usesDisplayLists());
}

TEST_F(SuspendDisplayListsTest, displayListsThatCannotBeReadCountAsOff) {
    host.failNext("CorUtilStyleGet");
    { const SuspendDisplayLists off; }
    EXPECT_FALSE(usesDisplayLists());
}

} // namespace
} // namespace corvane::test
