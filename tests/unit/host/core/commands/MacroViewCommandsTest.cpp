// Tests of the commands about plot type, view and drawing.
#include "tests/unit/host/core/commands/MacroTest.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

using MacroViewCommandsTest = MacroTest;

TEST_F(MacroViewCommandsTest, setsThePlotType) {
    play("$!READDATA x\n$!PLOTTYPE = cartesian2d\n");
    EXPECT_EQ(frame().plotType, PlotType_Cartesian2D);
    play("$!PLOTTYPE = CARTESIAN3D\n");
    EXPECT_EQ(frame().plotType, PlotType_Cartesian3D);
    EXPECT_THAT(causeOf("$!PLOTTYPE = POLAR"), HasSubstr("CARTESIAN3D"));
    EXPECT_THAT(causeOf("$!PLOTTYPE CARTESIAN3D"), HasSubstr("Expected"));
    session.silentPage().deleteFrame(frame().id());
    EXPECT_EQ(causeOf("$!PLOTTYPE = CARTESIAN3D"), "There is no frame.");
}

TEST_F(MacroViewCommandsTest, fitsTheView) {
    play("$!READDATA x\n");
    const View3D fitted = frame().view;
    frame().view.position = {};
    play("$!VIEW fit\n");
    EXPECT_EQ(frame().view, fitted);
    EXPECT_EQ(causeOf("$!VIEW FILL"), "Expected FIT, AXIS = axis, or SET name = value.");
    EXPECT_EQ(causeOf("$!VIEW"), "Expected FIT, AXIS = axis, or SET name = value.");
    frame().attachData(nullptr);
    EXPECT_THAT(causeOf("$!VIEW FIT"), HasSubstr("no 3D data"));
}

TEST_F(MacroViewCommandsTest, looksFromTheEndsOfTheAxes) {
    play("$!READDATA x\n");
    const std::vector<std::pair<std::string, Vec3>> towards{{"+X", {1, 0, 0}}, {"-X", {-1, 0, 0}},
                                                            {"+y", {0, 1, 0}}, {"-Y", {0, -1, 0}},
                                                            {"+Z", {0, 0, 1}}, {"-Z", {0, 0, -1}}};
    for (const auto& [axis, direction] : towards) {
        play("$!VIEW AXIS = " + axis + "\n");
        const ViewBasis basis = basisOf(frame().view);
        EXPECT_NEAR(length(basis.toViewer - direction), 0.0, 1e-12) << axis;
        if (direction.z == 0.0) {
            EXPECT_NEAR(length(basis.up - Vec3{0, 0, 1}), 0.0, 1e-12) << axis;
        }
        const View3D seen = frame().view;
        play("$!VIEW FIT\n");
        EXPECT_EQ(frame().view, seen) << axis;
    }
    EXPECT_THAT(causeOf("$!VIEW AXIS = Q"), HasSubstr("There is no axis \"Q\""));
    EXPECT_EQ(causeOf("$!VIEW AXIS +X"), "Expected AXIS = axis.");
}

TEST_F(MacroViewCommandsTest, setsAViewAsAWholeOrNotAtAll) {
    play("$!READDATA x\n");
    play("$!VIEW SET Psi = 10 Theta=20 Alpha = -30 X = 1 Y = 2 Z = 3 originx = 4 OriginY = 5 "
         "OriginZ = 6 Perspective = false Width = 7.5 FieldOfView = 40 Perspective = true\n");
    View3D expected;
    expected.psi = 10;
    expected.theta = 20;
    expected.alpha = -30;
    expected.position = {1, 2, 3};
    expected.rotationOrigin = {4, 5, 6};
    expected.width = 7.5;
    expected.fieldOfView = 40;
    expected.perspective = true;
    EXPECT_EQ(frame().view, expected);
    EXPECT_EQ(causeOf("$!VIEW SET Psi = 1 Width = 2"),
              "The width of a view can be set without perspective only.");
    EXPECT_EQ(causeOf("$!VIEW SET Psi = 1 FieldOfView = 180"), "FieldOfView cannot be \"180\".");
    EXPECT_EQ(causeOf("$!VIEW SET Psi = 1 Tilt = 2"), "A view has no value \"Tilt\".");
    EXPECT_THAT(causeOf("$!VIEW SET Psi = 1 Theta"), HasSubstr("Expected SET"));
    EXPECT_THAT(causeOf("$!VIEW SET"), HasSubstr("Expected SET"));
    EXPECT_EQ(frame().view, expected);
    play("$!PLOTTYPE = CARTESIAN2D\n");
    EXPECT_EQ(causeOf("$!VIEW SET Psi = 1"), "There is no 3D frame that has a view.");
}

TEST_F(MacroViewCommandsTest, redraws) {
    play("$!REDRAW\n");
    EXPECT_THAT(host.renderer().presented(), ElementsAre(true));
    EXPECT_THAT(causeOf("$!REDRAW now"), HasSubstr("nothing"));
}

} // namespace
} // namespace corvane::host
