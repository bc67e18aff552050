// Pictures from the key views of named flights: the views that other tests play are those meant.
#include "host/core/page/Page.h"
#include "host/scene/DataReaders.h"
#include "host/scene/SceneRenderer.h"
#include "tests/cases/FlightCases.h"
#include "tests/golden/GoldenPicture.h"
#include "tests/support/Folders.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

constexpr int width = 320;
constexpr int height = 180;
// The named flights look at the origin from a distance of about 10: the sample data are larger.
constexpr double scale = 2.0;

host::View3D viewOf(const corutiltools::View& key, const host::Vec3& centre) {
    host::View3D view;
    view.position = centre + scale * host::Vec3{key.x(), key.y(), key.z()};
    view.psi = key.psi();
    view.theta = key.theta();
    view.alpha = key.alpha();
    view.width = scale * key.width();
    view.rotationOrigin = centre;
    return view;
}

TEST(FlightPicture, keyViewsOfATiltedOrbit) {
    host::Page page;
    host::Frame& frame = page.createFrame({0.0, 0.0, 8.0, 4.5});
    frame.attachData(scene::DataReaders().read({sourceFile("examples/wake/wake.pvd")}));
    frame.style.isoSurfaces[0] = {true, "Q", 0.25, false, {0.3, 0.5, 0.8}, 1.0};
    scene::SceneRenderer renderer;
    int number = 0;
    for (const corutiltools::KeyFrame_s& key : flightCase("TiltedOrbit").keyFrames) {
        frame.view = viewOf(key.view, frame.data()->bounds.center());
        EXPECT_TRUE(matchesGolden("tilted-orbit-" + std::to_string(++number),
                                  renderer.draw(page, {ExportRegion_WorkArea, width, height, 2})));
    }
}

} // namespace
} // namespace corvane::test
