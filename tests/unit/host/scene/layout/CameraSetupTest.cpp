// Points of the data are seen where the view says.
#include "tests/unit/host/scene/SampleMeshes.h"
#include "tests/unit/host/scene/SceneTest.h"

#include <cmath>
#include <numbers>

namespace corvane::test {

namespace {

using host::Vec3;
using host::View3D;

constexpr int width = 480;
constexpr int height = 270;
constexpr double radian = std::numbers::pi / 180.0;

/// Written out from the definition of the view, not with the functions that the scene uses.
PicturePoint project(const Vec3& point, const View3D& view) {
    const double cosPsi = std::cos(view.psi * radian);
    const double sinPsi = std::sin(view.psi * radian);
    const double cosTheta = std::cos(view.theta * radian);
    const double sinTheta = std::sin(view.theta * radian);
    const Vec3 toViewer{-sinPsi * sinTheta, -sinPsi * cosTheta, cosPsi};
    const Vec3 straightUp{cosPsi * sinTheta, cosPsi * cosTheta, sinPsi};
    const Vec3 straightRight = cross(straightUp, toViewer);
    const double cosAlpha = std::cos(view.alpha * radian);
    const double sinAlpha = std::sin(view.alpha * radian);
    const Vec3 right = cosAlpha * straightRight + sinAlpha * straightUp;
    const Vec3 up = cosAlpha * straightUp - sinAlpha * straightRight;

    const Vec3 v = point - view.position;
    double pixelsPerUnit = width / view.width;
    if (view.perspective) {
        pixelsPerUnit =
            0.5 * height / (-dot(v, toViewer) * std::tan(0.5 * view.fieldOfView * radian));
    }
    return {0.5 * width + dot(v, right) * pixelsPerUnit, 0.5 * height - dot(v, up) * pixelsPerUnit};
}

bool isRed(const Rgb& color) {
    return color.red > 40 && color.green < 10 && color.blue < 10;
}

} // namespace

class CameraSetupTest : public SceneTest {
protected:
    /// Draws a small red cube at the point and finds it in the picture.
    std::optional<PicturePoint> find(const Vec3& point, const View3D& view) {
        if (page.active() != nullptr) {
            page.deleteFrame(page.active()->id());
        }
        const auto data = load("cube.vtp", sampleCube(point, 0.06));
        host::Frame& frame = addPlainFrame(data);
        frame.style.surfaces[0] = {true, false, {1.0, 0.0, 0.0}, 1.0, false};
        frame.style.light = {0.0, 100.0};
        frame.view = view;
        return centerOf(draw(width, height), isRed);
    }

    void expectAt(const Vec3& point, const View3D& view) {
        const auto found = find(point, view);
        ASSERT_TRUE(found.has_value());
        const PicturePoint expected = project(point, view);
        EXPECT_NEAR(found->x, expected.x, 0.35);
        EXPECT_NEAR(found->y, expected.y, 0.35);
    }
};

TEST_F(CameraSetupTest, perspective) {
    View3D view;
    view.position = {3.0, -6.0, 4.0};
    view.psi = 55.0;
    view.theta = -25.0;
    view.fieldOfView = 40.0;
    expectAt({0.0, 0.0, 0.0}, view);
    expectAt({1.0, 1.5, -0.7}, view);
    view.alpha = 35.0;
    expectAt({1.0, 1.5, -0.7}, view);
}

TEST_F(CameraSetupTest, orthographic) {
    View3D view;
    view.perspective = false;
    view.position = {3.0, -6.0, 4.0};
    view.width = 6.0;
    view.psi = 55.0;
    view.theta = -25.0;
    expectAt({0.5, 0.3, 0.0}, view);
    view.alpha = -70.0;
    expectAt({0.5, 0.3, 0.0}, view);
}

TEST_F(CameraSetupTest, straightDownHasNoSingularDirection) {
    View3D view;
    view.position = {0.0, 0.0, 9.0};
    expectAt({1.0, 0.5, 0.0}, view);
    view.theta = 90.0;
    expectAt({1.0, 0.5, 0.0}, view);
}

TEST_F(CameraSetupTest, anglesBeyondATurnAreKept) {
    View3D view;
    view.position = {3.0, -6.0, 4.0};
    view.psi = 55.0 + 360.0;
    view.theta = -25.0 - 720.0;
    expectAt({1.0, 1.5, -0.7}, view);
}

TEST_F(CameraSetupTest, orthographicShowsDataWhereverTheViewerStands) {
    View3D view;
    view.perspective = false;
    view.width = 4.0;
    for (const double z : {-1e6, -3.0, 0.0, 3.0, 1e6}) {
        view.position = {0.2, 0.1, z};
        SCOPED_TRACE(z);
        expectAt({0.8, -0.4, 0.0}, view);
    }
}

TEST_F(CameraSetupTest, dataFarFromTheOrigin) {
    View3D view;
    view.position = {1e5, 2e5, -3e5 + 5.0};
    expectAt({1e5 + 0.5, 2e5 - 0.25, -3e5}, view);
}

TEST_F(CameraSetupTest, aViewerBehindTheDataSeesNothingOfThem) {
    View3D view;
    view.position = {0.0, 0.0, -5.0};
    EXPECT_FALSE(find({0.0, 0.0, 0.0}, view).has_value());
}

TEST_F(CameraSetupTest, aFrameThatReachesBeyondThePictureIsCutOff) {
    View3D view;
    view.position = {0.0, 0.0, 6.0};
    const Vec3 point{0.3, 0.2, 0.0};
    for (const bool perspective : {true, false}) {
        view.perspective = perspective;
        view.width = 5.0;
        ASSERT_TRUE(find(point, view).has_value());
        // 60 pixels an inch: the frame moves 96 pixels left and 24 up.
        page.active()->placement = {-1.6, -0.4, 8.0, 4.5};
        const auto found = centerOf(draw(width, height), isRed);
        ASSERT_TRUE(found.has_value());
        EXPECT_NEAR(found->x, project(point, view).x - 96.0, 0.35);
        EXPECT_NEAR(found->y, project(point, view).y - 24.0, 0.35);
    }
}

TEST_F(CameraSetupTest, insideTheDataOneSeesWhatIsInFront) {
    host::Frame& frame = addPlainFrame(load("room.vtp", sampleCube({0.0, 0.0, 0.0}, 10.0)));
    frame.style.surfaces[0] = {true, false, {1.0, 0.0, 0.0}, 1.0, false};
    frame.style.light = {0.0, 100.0};
    frame.view.position = {1.0, 1.0, 1.0};
    frame.view.fieldOfView = 60.0;
    for (const double psi : {0.0, 90.0, 180.0}) {
        frame.view.psi = psi;
        const host::Picture picture = draw(64, 36);
        for (const int x : {1, 32, 62}) {
            EXPECT_TRUE(isRed(pixelAt(picture, x, 18))) << psi << " " << x;
        }
    }
}

} // namespace corvane::test
