// A frame that shows the flow past the cylinder, for tests that compare its pictures.
#pragma once

#include "host/core/page/Page.h"
#include "host/scene/DataReaders.h"
#include "host/scene/SceneRenderer.h"
#include "tests/golden/GoldenPicture.h"
#include "tests/support/Folders.h"

#include <gtest/gtest.h>

#include <string>

namespace corvane::test {

class WakePicture : public testing::Test {
protected:
    static constexpr int width = 320;
    static constexpr int height = 180;
    static constexpr std::size_t flow = 0; ///< blocks of the data
    static constexpr std::size_t body = 1;

    WakePicture() : frame(page.createFrame({0.0, 0.0, 8.0, 4.5})) {
        frame.attachData(scene::DataReaders().read({sourceFile("examples/wake/wake.pvd")}));
        frame.style.annotations.showAxis = false;
        frame.style.annotations.showOutline = false;
        frame.style.contour.variable = "U";
        frame.style.contour.automaticRange = false;
        frame.style.contour.maximum = 1.4;
        frame.style.contour.showLegend = false;
        frame.solutionTime = 3.6;
        frame.view.psi = 65.0;
        frame.view.theta = -35.0;
        fit(frame.view, frame.data()->bounds, static_cast<double>(width) / height);
    }

    void showBody() { frame.style.surfaces.at(body) = {true, false, {0.8, 0.8, 0.8}, 1.0, false}; }
    void showVortices() { frame.style.isoSurfaces[0] = {true, "Q", 0.25, true, {}, 1.0}; }
    void showFloor() { frame.style.slices[0] = {true, 3, 0.05, true, {}, 1.0}; }

    /// By a renderer that has drawn nothing before.
    host::Picture picture() {
        scene::SceneRenderer renderer;
        return pictureBy(renderer);
    }
    host::Picture pictureBy(scene::SceneRenderer& renderer) {
        return renderer.draw(page, {ExportRegion_WorkArea, width, height, 2});
    }

    host::Page page;
    host::Frame& frame;
};

} // namespace corvane::test
