// The driver of the system is used where it works. Drivers are made up as files that describe them
// to EGL.
#include "host/app/system/DriverChoice.h"
#include "host/scene/vtk/DrawingTrial.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

using namespace corvane;
using app::chooseDriver;

namespace {

class DriverChoice : public testing::Test {
protected:
    std::string driverFile(const std::string& library) const {
        return folder.write("driver.json", R"({"file_format_version": "1.0.0", "ICD": )"
                                           R"({"library_path": ")" +
                                               library + "\"}}");
    }

    const test::TempFolder folder;
};

TEST_F(DriverChoice, isTheBundledOneWithoutAnythingToDrive) {
    const app::DriverChoice choice = chooseDriver({});
    EXPECT_TRUE(choice.isBundled);
    EXPECT_EQ(choice.reason, "no graphics device was found");
}

TEST_F(DriverChoice, isTheSystemsWhereThatDraws) {
    const app::DriverChoice choice = chooseDriver(
        {.devices = {"/dev/dri/renderD128"}, .driverFiles = driverFile("libEGL_mesa.so.0")});
    EXPECT_FALSE(choice.isBundled) << choice.reason;
}

TEST_F(DriverChoice, isTheBundledOneWhereTheSystemsIsNotThere) {
    const app::DriverChoice choice = chooseDriver(
        {.devices = {"/dev/dri/renderD128"}, .driverFiles = driverFile("libEGL_none.so.0")});
    EXPECT_TRUE(choice.isBundled);
    EXPECT_EQ(choice.reason, "the system's driver failed to draw");
}

TEST_F(DriverChoice, survivesADriverThatCrashes) {
    EXPECT_TRUE(chooseDriver({.driverFiles = driverFile(CRASHING_DRIVER)}).isBundled);
}

TEST_F(DriverChoice, isTheUsersBeforeAll) {
    EXPECT_FALSE(
        chooseDriver({.driverFiles = driverFile(CRASHING_DRIVER), .wish = "system"}).isBundled);
    EXPECT_TRUE(
        chooseDriver({.driverFiles = driverFile("libEGL_mesa.so.0"), .wish = "bundled"}).isBundled);
    EXPECT_TRUE(chooseDriver({.wish = "neither"}).isBundled);
}

} // namespace
